#include "tests/corvalin/modelfiles/CasoModelo.h"

#include "platform/texto/ArquivoTexto.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <map>

namespace teste {

using namespace Qt::StringLiterals;
using corvalin::Historico;
using corvalin::Posto;

namespace {

Historico pHistorico(const Posto& posto, float (*valor)(int ano, int semana)) {
    Historico vazoes(posto.AnoFinal - posto.AnoInicial + 1, posto.getNumSemanas());
    for (int ano = posto.AnoInicial; ano <= posto.AnoFinal; ++ano) {
        for (int semana = 1; semana <= posto.getNumSemanas(); ++semana) {
            vazoes(ano - posto.AnoInicial + 1, semana) = valor(ano, semana);
        }
    }
    return vazoes;
}

float pValorSaoSimao(int ano, int semana) {
    // Texts of every width the value field takes, and a value below 1.
    static const std::map<std::pair<int, int>, float> especiais = {{{1995, 1}, 100000},
                                                                   {{1995, 5}, 0.75f},
                                                                   {{1995, 52}, 9876.5f},
                                                                   {{1996, 10}, 12},
                                                                   {{1996, 52}, 123456}};
    if (ano == 1997 && semana > 30) {
        return 0;
    }
    const auto especial = especiais.find({ano, semana});
    return especial != especiais.end()
               ? especial->second
               : static_cast<float>(1000 + 37 * semana + 11 * (ano - 1995) + 0.5 * (semana % 2));
}

float pValorTresMarias(int ano, int semana) {
    return ano == 2003 && semana > 20 ? 0 : static_cast<float>(500 + 3.5 * semana + (ano - 2001) * 100);
}

}  // namespace

Posto SaoSimao() {
    return {.Arquivos = {.ArquivoRelatorio = u"SSIMAO.rel"_s,
                         .ArquivoVazoesSemanais = u"SSIMAO.dat"_s,
                         .ArquivoPrevisoes = u"SSIMAO.prv"_s,
                         .ArquivoExcel = u"SSIMAO.exc"_s,
                         .ArquivoDadosGerais = u"SSIMAO.arq"_s},
            .Codigo = 33,
            .Nome = u"São Simão"_s,
            .Area = 171000.5f,
            .AnoInicial = 1995,
            .AnoFinal = 1997,
            .ImpressaoParametros = true,
            .Transformacao = 5,
            .MesInicial = 1,
            .IntervaloConfianca = 95,
            .SemanaInicialPrev = 31,
            .AnoInicialPrev = 1997,
            .FlafVazpast = true,
            .NomeArqVazpast = u"Vazpast.dat"_s,
            .FlagLimite = 1,
            .NomeArqLimite = u"SSIMAO.lim"_s,
            .AnoFinalHistorico = 1997,
            .VazpastSemana_1 = 1523.4,
            .VazpastSemana_2 = 1498.25,
            .VazpastSemana_3 = 1400,
            .VazpastSemana_4 = 0.5,
            .discretizacao = 2,
            .Magnitude = 3};
}

Historico HistoricoSaoSimao() {
    return pHistorico(SaoSimao(), pValorSaoSimao);
}

Posto TresMarias() {
    Posto p;
    p.Codigo = 156;
    p.Nome = u"Três Marias"_s;
    p.Area = 50600;
    p.AnoInicial = 2001;
    p.AnoFinal = 2003;
    p.Arquivos.ArquivoVazoesSemanais = u"TMARIAS.dat"_s;
    p.Arquivos.CasoUsa53Semanas = 1;
    return p;
}

Historico HistoricoTresMarias() {
    return pHistorico(TresMarias(), pValorTresMarias);
}

::testing::AssertionResult MesmoHistorico(const Historico& esperado, const Historico& lido) {
    const bool mesmaForma = esperado.UBound1() == lido.UBound1() && esperado.UBound2() == lido.UBound2();
    for (int i = 0; mesmaForma && i <= esperado.UBound1(); ++i) {
        for (int j = 0; j <= esperado.UBound2(); ++j) {
            if (esperado(i, j) != lido(i, j)) {
                return ::testing::AssertionFailure() << "(" << i << ", " << j << "): " << lido(i, j);
            }
        }
    }
    return mesmaForma ? ::testing::AssertionSuccess() : ::testing::AssertionFailure() << "another shape";
}

CasoModelo::CasoModelo() {
    postoBD.setCasoBD(caso.bd);
    opcoesBD.setCasoBD(caso.bd);
}

QByteArray CasoModelo::linhas(const QStringList& texto) {
    QByteArray bytes;
    for (const QString& linha : texto) {
        bytes += texto::ParaCp1252(linha) + "\r\n";
    }
    return bytes;
}

QString CasoModelo::dourado(const QString& relativo) {
    return QStringLiteral(CORVALIN_DADOS_TESTE "/modelfiles/") + relativo;
}

QByteArray CasoModelo::conteudo(const QString& caminho) {
    QFile f(caminho);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

QString CasoModelo::arquivo(const QString& nome, const QByteArray& bytes) const {
    const QString caminho = host.caminho(u"entrada/"_s + nome);
    QDir().mkpath(QFileInfo(caminho).absolutePath());
    QFile f(caminho);
    EXPECT_TRUE(f.open(QIODevice::WriteOnly) && f.write(bytes) == bytes.size()) << caminho.toStdString();
    return QDir::toNativeSeparators(caminho);
}

QString CasoModelo::pastaExecucao() const {
    return QDir::toNativeSeparators(host.caminho(u"execucao"_s)) + QDir::separator();
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

}  // namespace teste
