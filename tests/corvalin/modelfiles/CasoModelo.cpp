#include "tests/corvalin/modelfiles/CasoModelo.h"

#include "platform/recordstore/Recordstore.h"
#include "platform/texto/ArquivoTexto.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <stdexcept>

namespace teste {

using corvalin::Historico;
using corvalin::Posto;

namespace {

Historico pHistorico(const Posto& posto, float (*valor)(int ano, int semana)) {
    const int semanas = posto.getNumSemanas();
    Historico vazoes(posto.AnoFinal - posto.AnoInicial + 1, semanas);
    for (int ano = posto.AnoInicial; ano <= posto.AnoFinal; ++ano) {
        for (int semana = 1; semana <= semanas; ++semana) {
            vazoes(ano - posto.AnoInicial + 1, semana) = valor(ano, semana);
        }
    }
    return vazoes;
}

float pValorSaoSimao(int ano, int semana) {
    if (ano == 1997 && semana > 30) {
        return 0;
    }
    // Texts of every width the value field takes, and a value below 1.
    if (ano == 1995 && semana == 1) {
        return 100000;
    }
    if (ano == 1995 && semana == 5) {
        return 0.75f;
    }
    if (ano == 1995 && semana == 52) {
        return 9876.5f;
    }
    if (ano == 1996 && semana == 10) {
        return 12;
    }
    if (ano == 1996 && semana == 52) {
        return 123456;
    }
    return static_cast<float>(1000 + 37 * semana + 11 * (ano - 1995) + 0.5 * (semana % 2));
}

float pValorTresMarias(int ano, int semana) {
    if (ano == 2003 && semana > 20) {
        return 0;
    }
    return static_cast<float>(500 + 3.5 * semana + (ano - 2001) * 100);
}

}  // namespace

Posto SaoSimao() {
    Posto p;
    p.Codigo = 33;
    p.Nome = QStringLiteral("São Simão");
    p.Area = 171000.5f;
    p.AnoInicial = 1995;
    p.AnoFinal = 1997;
    p.Arquivos.ArquivoRelatorio = QStringLiteral("SSIMAO.rel");
    p.Arquivos.ArquivoVazoesSemanais = QStringLiteral("SSIMAO.dat");
    p.Arquivos.ArquivoPrevisoes = QStringLiteral("SSIMAO.prv");
    p.Arquivos.ArquivoExcel = QStringLiteral("SSIMAO.exc");
    p.Arquivos.ArquivoDadosGerais = QStringLiteral("SSIMAO.arq");
    p.ImpressaoParametros = true;
    p.Transformacao = 5;
    p.MesInicial = 1;
    p.IntervaloConfianca = 95;
    p.SemanaInicialPrev = 31;
    p.AnoInicialPrev = 1997;
    p.FlafVazpast = true;
    p.NomeArqVazpast = QStringLiteral("Vazpast.dat");
    p.VazpastSemana_1 = 1523.4;
    p.VazpastSemana_2 = 1498.25;
    p.VazpastSemana_3 = 1400;
    p.VazpastSemana_4 = 0.5;
    p.AnoFinalHistorico = 1997;
    p.FlagLimite = 1;
    p.NomeArqLimite = QStringLiteral("SSIMAO.lim");
    p.discretizacao = 2;
    p.Magnitude = 3;
    return p;
}

Historico HistoricoSaoSimao() {
    return pHistorico(SaoSimao(), pValorSaoSimao);
}

Posto TresMarias() {
    Posto p;
    p.Codigo = 156;
    p.Nome = QStringLiteral("Três Marias");
    p.Area = 50600;
    p.AnoInicial = 2001;
    p.AnoFinal = 2003;
    p.Arquivos.ArquivoVazoesSemanais = QStringLiteral("TMARIAS.dat");
    p.Arquivos.CasoUsa53Semanas = 1;
    return p;
}

Historico HistoricoTresMarias() {
    return pHistorico(TresMarias(), pValorTresMarias);
}

void CasoModelo::SetUp() {
    const QString pasta = host.caminho(QStringLiteral("caso"));
    ASSERT_TRUE(bd->Criar(pasta));
    bd->Fechar();
    ASSERT_TRUE(bd->Abrir(CasoTeste(pasta), false, true));
    postoBD.setCasoBD(bd);
    opcoesBD.setCasoBD(bd);
}

QByteArray CasoModelo::linhas(const QStringList& texto) {
    QByteArray bytes;
    for (const QString& linha : texto) {
        bytes += texto::ParaCp1252(linha) + "\r\n";
    }
    return bytes;
}

QString CasoModelo::caminhoDourado(const QString& relativo) {
    return QStringLiteral(CORVALIN_DADOS_TESTE "/modelfiles/") + relativo;
}

QByteArray CasoModelo::dourado(const QString& relativo) {
    return conteudo(caminhoDourado(relativo));
}

QByteArray CasoModelo::conteudo(const QString& caminho) {
    QFile f(caminho);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

QString CasoModelo::arquivo(const QString& nome, const QByteArray& bytes) const {
    const QString caminho = host.caminho(QStringLiteral("entrada/") + nome);
    QDir().mkpath(QFileInfo(caminho).absolutePath());
    QFile f(caminho);
    if (!f.open(QIODevice::WriteOnly) || f.write(bytes) != bytes.size()) {
        throw std::runtime_error("a test file could not be written");
    }
    return QDir::toNativeSeparators(caminho);
}

QString CasoModelo::pastaExecucao() const {
    return QDir::toNativeSeparators(host.caminho(QStringLiteral("execucao"))) + QDir::separator();
}

QString CasoModelo::gerado(std::int32_t codigo, const QString& nome) const {
    return pastaExecucao() + QString::number(codigo) + QDir::separator() + nome;
}

void CasoModelo::grava(Posto posto, const Historico& vazoes) {
    ASSERT_TRUE(postoBD.setPosto(posto));
    postoBD.setHistorico(posto, vazoes);
}

bool CasoModelo::le(std::int32_t codigo, Posto& posto) const {
    return postoBD.getPosto(posto, corvalin::BuscaPorCodigo, codigo, QString());
}

Historico CasoModelo::historico(const Posto& posto) const {
    Historico vazoes;
    postoBD.getHistorico(posto, vazoes);
    return vazoes;
}

int CasoModelo::contaLinhas(const QString& tabela) const {
    const auto rs = bd->BancoDeDados().OpenRecordset(tabela);
    int n = 0;
    for (; !rs->Eof(); rs->MoveNext()) {
        ++n;
    }
    return n;
}

::testing::AssertionResult MesmoHistorico(const Historico& esperado, const Historico& lido) {
    if (esperado.UBound1() != lido.UBound1() || esperado.UBound2() != lido.UBound2()) {
        return ::testing::AssertionFailure()
               << "shape " << lido.UBound1() << "x" << lido.UBound2() << " instead of " << esperado.UBound1()
               << "x" << esperado.UBound2();
    }
    for (int i = 0; i <= esperado.UBound1(); ++i) {
        for (int j = 0; j <= esperado.UBound2(); ++j) {
            if (esperado(i, j) != lido(i, j)) {
                return ::testing::AssertionFailure()
                       << "(" << i << ", " << j << "): " << lido(i, j) << " instead of " << esperado(i, j);
            }
        }
    }
    return ::testing::AssertionSuccess();
}

}  // namespace teste
