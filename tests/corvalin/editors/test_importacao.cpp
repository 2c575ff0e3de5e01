#include "corvalin/editors/ImportacaoPostos.h"
#include "corvalin/frame/Geral.h"
#include "corvalin/frame/Mensagens.h"
#include "corvalin/frame/Progresso.h"
#include "corvalin/stations/Historico.h"
#include "halvo/sdk/CamadaAcesso.h"
#include "tests/corvalin/execution/CasoExecucao.h"

#include <QDir>
#include <QFile>

#include <gmock/gmock.h>

namespace teste {
namespace {

using corvalin::Posto;
using namespace corvalin::Mensagens;
using ::testing::ElementsAre;

class StatusGravador : public corvalin::StatusImportacao {
public:
    void setStatus(const QString& nome, const QString& numero) override { Status << nome + u'|' + numero; }
    QStringList Status;
};

class Importacao : public CasoExecucao {
protected:
    void SetUp() override {
        CasoExecucao::SetUp();
        entrada = copiaDados(QStringLiteral("entrada"));
    }

    // The station files of the tests' data, in a folder of the test.
    QString copiaDados(const QString& nome) const {
        const QString pasta = QDir::toNativeSeparators(host.caminho(nome)) + QDir::separator();
        QDir().mkpath(pasta);
        const QDir dados(QStringLiteral(CORVALIN_DADOS_TESTE "/execucao"));
        for (const QString& arquivo : dados.entryList(QDir::Files)) {
            QFile::copy(dados.filePath(arquivo), pasta + arquivo);
        }
        return pasta;
    }

    corvalin::ImportacaoPostos& importacao() {
        if (!mImportacao) {
            corvalin::ObjetosCaso objetos{std::make_shared<halvo::CamadaAcesso>(), bd, caso, notificador};
            mImportacao = std::make_unique<corvalin::ImportacaoPostos>(objetos, registro, barra, status);
        }
        return *mImportacao;
    }

    // The report as text, a highlighted line marked with "!".
    QStringList relatorio() const {
        QStringList linhas;
        for (const auto& linha : registro.Linhas()) {
            EXPECT_EQ(linha.estilo, corvalin::RegistroTexto::Normal);
            linhas << (linha.destaque ? QStringLiteral("!") : QString()) + linha.texto;
        }
        return linhas;
    }

    // Replaces one line (from 1) of a general data file of the test's folder.
    void trocaLinha(const QString& arquivo, int linha, const QString& texto) const {
        QStringList linhas = LinhasDe(arquivo);
        linhas[linha - 1] = texto;
        Grava(arquivo, linhas);
    }

    void TearDown() override {
        mImportacao.reset();
        CasoExecucao::TearDown();
    }

    QString entrada;
    corvalin::ProgressoNulo barra;
    StatusGravador status;

private:
    std::unique_ptr<corvalin::ImportacaoPostos> mImportacao;
};

TEST_F(Importacao, ChecksThenLoadsWholeStationsFromTheirFiles) {
    const QStringList linhas = {entrada + QStringLiteral("101.arq"), entrada + QStringLiteral("202.arq")};
    ASSERT_TRUE(importacao().pVerificaArquivos(linhas));
    EXPECT_TRUE(registro.Linhas().empty());
    ASSERT_TRUE(importacao().pImportaArquivos(linhas));

    EXPECT_TRUE(registro.Linhas().empty());
    EXPECT_THAT(status.Status, ElementsAre(linhas[0] + QStringLiteral("|Arquivo 1 de 2"),
                                           linhas[1] + QStringLiteral("|Arquivo 2 de 2")));
    EXPECT_THAT(notificador->Eventos(), ElementsAre(halvo::EventoImportacaoConcluida));

    Posto alfa;
    ASSERT_TRUE(postoBD.getPosto(alfa, corvalin::BuscaPorCodigo, 101, {}));
    EXPECT_EQ(alfa.Nome, QStringLiteral("Rio Alfa em Primeira"));
    EXPECT_EQ(alfa.AnoInicial, 1981);
    EXPECT_EQ(alfa.AnoFinal, 2005);
    EXPECT_EQ(alfa.Arquivos.ArquivoDadosGerais, QStringLiteral("101.arq"));
    EXPECT_EQ(alfa.SemanaInicialPrev, 31);
    EXPECT_EQ(postoBD.getUltimaSemana(alfa), 30);
    corvalin::Historico vazoes;
    ASSERT_TRUE(postoBD.getHistorico(alfa, vazoes));
    EXPECT_FLOAT_EQ(vazoes(1, 1), 73.8f);

    Posto beta;
    ASSERT_TRUE(postoBD.getPosto(beta, corvalin::BuscaPorCodigo, 202, {}));
    EXPECT_EQ(beta.Nome, QStringLiteral("Rio Beta em São José"));
    EXPECT_TRUE(beta.FlafVazpast);
    EXPECT_DOUBLE_EQ(beta.VazpastSemana_1, 75.2);
    EXPECT_DOUBLE_EQ(beta.VazpastSemana_4, 66.5);
    EXPECT_EQ(beta.discretizacao, 2);
    plataforma::Vetor<std::int16_t> ordem;
    plataforma::Vetor<float> inferior;
    plataforma::Vetor<float> superior;
    corvalin::DimensionaLimites(2, ordem, inferior, superior, 0);
    postoBD.getLimitesPrevisao(202, 2, ordem, inferior, superior);
    EXPECT_EQ(ordem[12], 12);
    EXPECT_FLOAT_EQ(superior[12], 98.0f);
}

TEST_F(Importacao, TheCheckPassReportsEveryBadLineAndGoesOn) {
    EXPECT_FALSE(importacao().pVerificaArquivos({}));
    EXPECT_THAT(relatorio(), ElementsAre(QStringLiteral("!") + msgNenhumArquivo));

    const QString ausente = entrada + QStringLiteral("999.arq");
    const QString semVazoes = entrada + QStringLiteral("101.arq");
    QFile::remove(entrada + QStringLiteral("101.dat"));
    const QString invalido = entrada + QStringLiteral("202.arq");
    // A weekly flows file whose heading names no station.
    QStringList vazoes = LinhasDe(entrada + QStringLiteral("202.dat"));
    vazoes[0] = QString(70, u' ');
    Grava(entrada + QStringLiteral("202.dat"), vazoes);
    const QString bom = copiaDados(QStringLiteral("outra")) + QStringLiteral("101.arq");

    EXPECT_FALSE(importacao().pVerificaArquivos({ausente, bom, semVazoes, invalido}));
    EXPECT_THAT(relatorio(), ElementsAre(QStringLiteral("!") + msgVazoesNaoEncontrado, ausente,
                                         QStringLiteral("!") + msgVazoesNaoEncontrado, semVazoes,
                                         QStringLiteral("!") + msgVazoesInvalido, invalido));
    // The reader of the weekly flows file told its own message on the way.
    ASSERT_EQ(host.dialogo.Mensagens().size(), 1u);
    EXPECT_EQ(host.dialogo.Mensagens()[0].titulo, msgTituloInformacao);
    // The check stores nothing.
    Posto posto;
    EXPECT_FALSE(postoBD.getPosto(posto, corvalin::BuscaPorCodigo, 101, {}));
}

TEST_F(Importacao, FailingFilesAreReportedAndWhatTheReadersStoredStays) {
    const QString alfa = entrada + QStringLiteral("101.arq");
    const QString beta = entrada + QStringLiteral("202.arq");
    // Alfa now asks for a Vazpast file of another station; Beta's history has a hole in 1987.
    trocaLinha(alfa, 11, QStringLiteral("0"));
    QStringList vazoes = LinhasDe(entrada + QStringLiteral("202.dat"));
    vazoes.remove(2 + 6 + 2, 2);
    Grava(entrada + QStringLiteral("202.dat"), vazoes);
    QFile::remove(entrada + QStringLiteral("Vazpast.dat"));
    ASSERT_TRUE(importacao().pVerificaArquivos({alfa, beta}));

    EXPECT_FALSE(importacao().pImportaArquivos({alfa, beta}));
    EXPECT_THAT(relatorio(),
                ElementsAre(QStringLiteral("!Erro na leitura do arquivo de Vazpasts."), alfa,
                            QStringLiteral("!Erro na leitura dos arquivos de Vazões Semanais (o ano 1987 está "
                                           "incompleto - linha: 12), Vazpasts."),
                            beta));
    EXPECT_THAT(notificador->Eventos(), ElementsAre(halvo::EventoImportacaoConcluida));
    Posto posto;
    ASSERT_TRUE(postoBD.getPosto(posto, corvalin::BuscaPorCodigo, 101, {}));
    EXPECT_EQ(posto.AnoFinal, 2005);
    // Beta's general data went in before its history failed; its catalogue row did not.
    EXPECT_FALSE(postoBD.getPosto(posto, corvalin::BuscaPorCodigo, 202, {}));
    EXPECT_EQ(conta(QStringLiteral("DadosGerais"), 202), 1);
}

TEST_F(Importacao, AWarningOfTheLimitsAloneEndsWithAnEmptyReportAndEventZero) {
    const QString beta = entrada + QStringLiteral("202.arq");
    QStringList limites = LinhasDe(entrada + QStringLiteral("202.lim"));
    limites.removeLast();
    Grava(entrada + QStringLiteral("202.lim"), limites);
    ASSERT_TRUE(importacao().pVerificaArquivos({beta}));

    EXPECT_FALSE(importacao().pImportaArquivos({beta}));
    EXPECT_TRUE(registro.Linhas().empty());
    EXPECT_THAT(notificador->Eventos(), ElementsAre(halvo::EventoImportacaoComProblemas));
}

TEST_F(Importacao, LimitsFilesAreSoughtInTheFolderOfTheLastFile) {
    const QString beta = entrada + QStringLiteral("202.arq");
    const QString alfa = copiaDados(QStringLiteral("outra")) + QStringLiteral("101.arq");
    QFile::remove(host.caminho(QStringLiteral("outra/202.lim")));
    ASSERT_TRUE(importacao().pVerificaArquivos({beta, alfa}));

    // The limits file stands beside Beta's files but is not found, and nobody says so.
    EXPECT_TRUE(importacao().pImportaArquivos({beta, alfa}));
    EXPECT_TRUE(registro.Linhas().empty());
    EXPECT_EQ(conta(QStringLiteral("LimitesPrevisao"), 202), 0);
    EXPECT_EQ(conta(QStringLiteral("Postos"), 202), 1);
}

}  // namespace
}  // namespace teste
