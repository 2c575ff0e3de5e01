// The import of a whole catalogue from weekly flows files: 200 stations of 90 years of 52 weeks
// into one case, each file in its own transaction, with the case's default names. The parse is
// the import less its stores: the same stores are timed alone in another case, with the same
// transactions and calls.

#include "corvalin/casedb/casoBD.h"
#include "corvalin/frame/Progresso.h"
#include "corvalin/modelfiles/PostoARQ.h"
#include "corvalin/options/Opcoes.h"
#include "corvalin/options/OpcoesBD.h"
#include "corvalin/stations/Posto.h"
#include "corvalin/stations/PostoBD.h"
#include "halvo/app/CasoPasta.h"
#include "platform/recordstore/Recordstore.h"

#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

#include <chrono>
#include <cmath>
#include <cstdio>
#include <memory>
#include <random>
#include <vector>

namespace {

using corvalin::Historico;
using corvalin::Posto;
using Relogio = std::chrono::steady_clock;

constexpr int Postos = 200;
constexpr int Anos = 90;
constexpr int PrimeiroAno = 1931;
constexpr int Semanas = 52;

// A case with its two stores, made in a folder of its own.
struct Caso {
    explicit Caso(const QString& pasta) {
        if (!bd->Criar(pasta)) {
            std::fprintf(stderr, "cannot make a case in %s\n", qPrintable(pasta));
            std::exit(1);
        }
        bd->Fechar();
        bd->Abrir(halvo::CasoPasta(pasta), true, true);
        postoBD.setCasoBD(bd);
        opcoesBD.setCasoBD(bd);
        corvalin::Opcoes opcoes;
        opcoes.Arquivos.ArquivoVazoesSemanais = QStringLiteral("[Código do Posto].dat");
        opcoes.Arquivos.ArquivoDadosGerais = QStringLiteral("[Código do Posto].arq");
        opcoesBD.setOpcoes(opcoes);
    }
    std::shared_ptr<corvalin::casoBD> bd = std::make_shared<corvalin::casoBD>();
    corvalin::PostoBD postoBD;
    corvalin::OpcoesBD opcoesBD;
};

Posto pPosto(int codigo) {
    Posto p;
    p.Codigo = codigo;
    p.Nome = QStringLiteral("Aproveitamento %1").arg(codigo);
    p.Area = static_cast<float>(1000 + 37 * codigo);
    p.AnoInicial = PrimeiroAno;
    p.AnoFinal = PrimeiroAno + Anos - 1;
    p.Arquivos.ArquivoVazoesSemanais = QStringLiteral("vazoes.dat");
    return p;
}

// A seasonal river: a mean of its own, a wet and a dry half of the year, noise that persists from
// week to week, and five significant digits, as the stations' files carry them.
Historico pHistorico(std::mt19937& gerador) {
    std::lognormal_distribution<double> media(5.5, 1.2);
    std::normal_distribution<double> ruido(0, 0.25);
    const double base = media(gerador);
    Historico vazoes(Anos, Semanas);
    double anterior = 0;
    for (int ano = 1; ano <= Anos; ++ano) {
        for (int semana = 1; semana <= Semanas; ++semana) {
            anterior = 0.7 * anterior + ruido(gerador);
            const double v = base * std::exp(0.8 * std::sin(2 * M_PI * semana / Semanas) + anterior);
            const double escala = std::pow(10.0, std::floor(std::log10(v)) - 4);
            vazoes(ano, semana) = static_cast<float>(std::max(0.001, std::round(v / escala) * escala));
        }
    }
    return vazoes;
}

// A copy of a weekly flows file whose last field reads beyond a float; its path.
QString pUltimoValorInvalido(const QString& arquivo) {
    QFile original(arquivo);
    original.open(QIODevice::ReadOnly);
    QByteArray bytes = original.readAll();
    // the last line ends in "\r\n"; its seventh field stands in columns 50 to 56
    const qsizetype linha = bytes.lastIndexOf("\r\n", bytes.size() - 3) + 2;
    bytes.replace(linha + 49, 7, "  9E+99");
    const QString copia = arquivo + QStringLiteral(".invalido");
    QFile saida(copia);
    saida.open(QIODevice::WriteOnly);
    saida.write(bytes);
    return copia;
}

double pSegundos(Relogio::duration d) {
    return std::chrono::duration<double>(d).count();
}

}  // namespace

int main() {
    QTemporaryDir pasta;
    std::mt19937 gerador(20261122);
    std::vector<Posto> postos;
    std::vector<Historico> historicos;
    for (int codigo = 1; codigo <= Postos; ++codigo) {
        postos.push_back(pPosto(codigo));
        historicos.push_back(pHistorico(gerador));
    }

    // The stores alone, in the same calls and transactions as the import makes.
    Caso origem(pasta.filePath(QStringLiteral("origem")));
    auto inicio = Relogio::now();
    for (std::size_t i = 0; i < postos.size(); ++i) {
        Posto posto = postos[i];
        recordstore::Transacao transacao(origem.postoBD.BancoDeDados());
        origem.postoBD.setPosto(posto);
        origem.postoBD.setHistorico(posto, historicos[i]);
        corvalin::Opcoes opcoes;
        origem.opcoesBD.getOpcoes(opcoes);
        origem.postoBD.setNomesPadrao(posto, opcoes);
        transacao.Commit();
    }
    const double lojas = pSegundos(Relogio::now() - inicio);

    const corvalin::PostoARQ arq;
    corvalin::ProgressoNulo progresso;
    const QString execucao = pasta.filePath(QStringLiteral("execucao")) + QDir::separator();
    inicio = Relogio::now();
    for (const Posto& posto : postos) {
        arq.geraVazoesSemanais(execucao, posto, origem.postoBD, progresso);
    }
    const double escrita = pSegundos(Relogio::now() - inicio);

    // The same files once more with their very last value out of a float's range: the reader
    // parses everything and then fails, which stores nothing.
    QStringList arquivos;
    QStringList semGravar;
    for (const Posto& posto : postos) {
        arquivos << execucao + QString::number(posto.Codigo) + QDir::separator() +
                        QStringLiteral("vazoes.dat");
        semGravar << pUltimoValorInvalido(arquivos.back());
    }
    Caso destino(pasta.filePath(QStringLiteral("destino")));
    QString erros;
    const auto importaTodos = [&](const QStringList& lista) {
        int importados = 0;
        for (const QString& arquivo : lista) {
            Posto posto;
            importados += arq.importaVazoesSemanais(arquivo, erros, progresso, posto, destino.postoBD,
                                                    destino.opcoesBD, false, false);
        }
        return importados;
    };
    inicio = Relogio::now();
    const int rejeitados = Postos - importaTodos(semGravar);
    const double leitura = pSegundos(Relogio::now() - inicio);
    inicio = Relogio::now();
    const int importados = importaTodos(arquivos);
    const double importacao = pSegundos(Relogio::now() - inicio);

    int iguais = 0;
    for (std::size_t i = 0; i < postos.size(); ++i) {
        Historico lido;
        destino.postoBD.getHistorico(postos[i], lido);
        bool igual = true;
        for (int ano = 1; ano <= Anos; ++ano) {
            for (int semana = 1; semana <= Semanas; ++semana) {
                igual = igual && lido(ano, semana) == historicos[i](ano, semana);
            }
        }
        iguais += igual;
    }

    std::printf("%d stations x %d years x %d weeks (%d values)\n", Postos, Anos, Semanas,
                Postos * Anos * Semanas);
    std::printf("import, total           %8.3f s  (%d imported, %d read back equal)\n", importacao,
                importados, iguais);
    std::printf("import, per station     %8.2f ms\n", importacao * 1000 / Postos);
    std::printf("parse, without storing  %8.3f s  (%.0f%% of the import; %d files read whole and refused)\n",
                leitura, 100 * leitura / importacao, rejeitados);
    std::printf("stores alone            %8.3f s  (the import's store calls in another case)\n", lojas);
    std::printf("writing the %d files   %8.3f s\n", Postos, escrita);
    return importados == Postos && iguais == Postos && rejeitados == Postos ? 0 : 1;
}
