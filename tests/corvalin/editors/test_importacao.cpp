#include "corvalin/editors/ImportacaoPostos.h"
#include "corvalin/frame/Geral.h"
#include "corvalin/frame/Mensagens.h"
#include "corvalin/frame/Progresso.h"
#include "corvalin/stations/Historico.h"
#include "halvo/sdk/CamadaAcesso.h"
#include "tests/corvalin/execution/CasoExecucao.h"

#include <QFile>
#include <QFileInfo>

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
            linhas << (linha.destaque ? "!" : QString()) + linha.texto;
        }
        return linhas;
    }

    void TearDown() override {
        mImportacao.reset();
        CasoExecucao::TearDown();
    }

    const QString entrada = CopiaDadosDeExecucao(host.caminho("entrada"));
    const QString alfa = entrada + QStringLiteral("101.arq");
    const QString beta = entrada + QStringLiteral("202.arq");
    corvalin::ProgressoNulo barra;
    StatusGravador status;

private:
    std::unique_ptr<corvalin::ImportacaoPostos> mImportacao;
};

// Each of the files a station may have reaches the case: the general data and the weekly flows
// of both, the Vazpast values and limits of Beta.
TEST_F(Importacao, ChecksThenLoadsWholeStationsFromTheirFiles) {
    ASSERT_TRUE(importacao().pVerificaArquivos({alfa, beta}));
    EXPECT_TRUE(registro.Linhas().empty());
    ASSERT_TRUE(importacao().pImportaArquivos({alfa, beta}));

    EXPECT_TRUE(registro.Linhas().empty());
    EXPECT_THAT(status.Status, ElementsAre(alfa + QStringLiteral("|Arquivo 1 de 2"),
                                           beta + QStringLiteral("|Arquivo 2 de 2")));
    EXPECT_THAT(notificador->Eventos(), ElementsAre(halvo::EventoImportacaoConcluida));
    Posto posto;
    corvalin::Historico vazoes;
    ASSERT_TRUE(postoBD.getPosto(posto, corvalin::BuscaPorCodigo, 101, {}));
    ASSERT_TRUE(postoBD.getHistorico(posto, vazoes));
    EXPECT_EQ(std::tuple(posto.Nome, postoBD.getUltimaSemana(posto), vazoes(1, 1)),
              std::tuple(QStringLiteral("Rio Alfa em Primeira"), 30, 73.8f));

    ASSERT_TRUE(postoBD.getPosto(posto, corvalin::BuscaPorCodigo, 202, {}));
    EXPECT_EQ(std::pair(posto.Nome, posto.VazpastSemana_4),
              std::pair(QStringLiteral("Rio Beta em São José"), 66.5));
    EXPECT_GT(conta("VazoesSemanais", 202), 0);
    plataforma::Vetor<std::int16_t> ordem;
    plataforma::Vetor<float> inferior;
    plataforma::Vetor<float> superior;
    corvalin::DimensionaLimites(2, ordem, inferior, superior, 0);
    postoBD.getLimitesPrevisao(202, 2, ordem, inferior, superior);
    EXPECT_EQ(superior[12], 98.0f);
}

TEST_F(Importacao, TheCheckPassReportsEveryBadLineAndGoesOn) {
    EXPECT_FALSE(importacao().pVerificaArquivos({}));
    EXPECT_THAT(relatorio(), ElementsAre(QStringLiteral("!") + msgNenhumArquivo));

    const QString ausente = entrada + QStringLiteral("999.arq");
    QFile::remove(entrada + QStringLiteral("101.dat"));
    // A weekly flows file whose heading names no station.
    QStringList vazoes = LinhasDe(entrada + QStringLiteral("202.dat"));
    vazoes[0] = QString(70, u' ');
    Grava(entrada + QStringLiteral("202.dat"), vazoes);
    const QString bom = CopiaDadosDeExecucao(host.caminho("outra")) + QStringLiteral("101.arq");

    EXPECT_FALSE(importacao().pVerificaArquivos({ausente, bom, alfa, beta}));
    EXPECT_THAT(relatorio(), ElementsAre(QStringLiteral("!") + msgVazoesNaoEncontrado, ausente,
                                         QStringLiteral("!") + msgVazoesNaoEncontrado, alfa,
                                         QStringLiteral("!") + msgVazoesInvalido, beta));
    // The reader of the weekly flows file told its own message on the way.
    ASSERT_EQ(host.dialogo.Mensagens().size(), 1u);
    EXPECT_EQ(host.dialogo.Mensagens()[0].titulo, msgTituloInformacao);
    EXPECT_EQ(conta("Postos", 101), 0) << "the check stores nothing";
}

TEST_F(Importacao, FailingFilesAreReportedAndWhatTheReadersStoredStays) {
    // Alfa now asks for a Vazpast file of another station; Beta's history has a hole in 1987.
    QStringList dadosGerais = LinhasDe(alfa);
    dadosGerais[10] = "0";
    Grava(alfa, dadosGerais);
    QStringList vazoes = LinhasDe(entrada + QStringLiteral("202.dat"));
    vazoes.remove(2 + 6 + 2, 2);
    Grava(entrada + QStringLiteral("202.dat"), vazoes);
    QFile::remove(entrada + QStringLiteral("Vazpast.dat"));
    ASSERT_TRUE(importacao().pVerificaArquivos({alfa, beta}));

    EXPECT_FALSE(importacao().pImportaArquivos({alfa, beta}));
    EXPECT_THAT(
        relatorio(),
        ElementsAre("!Erro na leitura do arquivo de Vazpasts.", alfa,
                    QStringLiteral("!Erro na leitura dos arquivos de Vazões Semanais (o ano 1987 está "
                                   "incompleto - linha: 12), Vazpasts."),
                    beta));
    EXPECT_THAT(notificador->Eventos(), ElementsAre(halvo::EventoImportacaoConcluida));
    Posto posto;
    ASSERT_TRUE(postoBD.getPosto(posto, corvalin::BuscaPorCodigo, 101, {}));
    EXPECT_EQ(posto.AnoFinal, 2005);
    // Beta's general data went in before its history failed; its catalogue row did not.
    EXPECT_EQ(std::pair(conta("Postos", 202), conta("DadosGerais", 202)), std::pair(0, 1));
}

// The limits files are sought in the folder of the last file, and nobody says when one is not
// there; a limits file short of lines alone ends with an empty report and the warning's event.
TEST_F(Importacao, LimitsFilesComeFromTheLastFilesFolderAndTheirWarningIsAnEventOnly) {
    const QString outra = CopiaDadosDeExecucao(host.caminho("outra")) + QStringLiteral("101.arq");
    QFile::remove(QFileInfo(outra).path() + QStringLiteral("/202.lim"));
    ASSERT_TRUE(importacao().pVerificaArquivos({beta, outra}));
    EXPECT_TRUE(importacao().pImportaArquivos({beta, outra}));
    EXPECT_EQ(conta("LimitesPrevisao", 202), 0);

    QStringList limites = LinhasDe(entrada + QStringLiteral("202.lim"));
    limites.removeLast();
    Grava(entrada + QStringLiteral("202.lim"), limites);
    ASSERT_TRUE(importacao().pVerificaArquivos({beta}));
    EXPECT_FALSE(importacao().pImportaArquivos({beta}));
    EXPECT_TRUE(registro.Linhas().empty());
    EXPECT_THAT(notificador->Eventos(),
                ElementsAre(halvo::EventoImportacaoConcluida, halvo::EventoImportacaoComProblemas));
}

}  // namespace
}  // namespace teste
