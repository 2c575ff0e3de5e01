#include "corvalin/execution/JanelaProgresso.h"
#include "corvalin/frame/Mensagens.h"
#include "corvalin/options/Opcoes.h"
#include "tests/corvalin/execution/CasoExecucao.h"

#include <QDir>
#include <QFile>

#include <gmock/gmock.h>

namespace teste {
namespace {

using corvalin::Posto;
using ::testing::ElementsAre;

// Records what the generation shows of its progress.
class JanelaGravadora : public corvalin::JanelaProgresso {
public:
    void setCaption(const QString& texto) override { Eventos << QStringLiteral("caption ") + texto; }
    void Mostra() override { Eventos << QStringLiteral("mostra"); }
    void Esconde() override { Eventos << QStringLiteral("esconde"); }
    corvalin::Progresso& Barra() override { return mBarra; }

    QStringList Eventos;

private:
    corvalin::ProgressoNulo mBarra;
};

class Geracao : public CasoExecucao {
protected:
    // Two stations; the second with limits and a Vazpast file.
    void SetUp() override {
        CasoExecucao::SetUp();
        grava(PostoPronto(10, QStringLiteral("Alfa")));
        Posto comLimites = PostoPronto(20, QStringLiteral("Beta"));
        comLimites.FlafVazpast = true;
        comLimites.NomeArqVazpast = QStringLiteral("VAZPAST.dat");
        comLimites.FlagLimite = 1;
        comLimites.NomeArqLimite = QStringLiteral("C20.lim");
        comLimites.discretizacao = 2;
        comLimites.Magnitude = 1;
        grava(comLimites);
        assistente().pCarregarPostos();
    }

    void opcaoNaoUsaLimite(bool valor) {
        corvalin::Opcoes opcoes;
        opcoesBD.getOpcoes(opcoes);
        opcoes.Arquivos.NaoUsaLimite = valor;
        opcoesBD.setOpcoes(opcoes);
    }

    QStringList arquivosDe(std::int32_t codigo) const {
        return QDir(pastaPosto(codigo)).entryList(QDir::Files, QDir::Name);
    }
};

TEST_F(Geracao, TheAssistantWritesEachCheckedStationsFilesInItsFolderUnderTheProgressForm) {
    JanelaGravadora janela;
    assistente().pGerarArquivos(janela);

    EXPECT_THAT(arquivosDe(10), ElementsAre(QStringLiteral("C10.arq"), QStringLiteral("C10.dat")));
    EXPECT_THAT(arquivosDe(20), ElementsAre(QStringLiteral("C20.arq"), QStringLiteral("C20.dat"),
                                            QStringLiteral("C20.lim"), QStringLiteral("VAZPAST.dat")));
    const QString gerando = QStringLiteral("caption %1: ") + corvalin::Mensagens::msgGerandoDadosGerais;
    const QString vazoes = QStringLiteral("caption %1: ") + corvalin::Mensagens::msgGerandoVazoesSemanais;
    EXPECT_THAT(janela.Eventos,
                ElementsAre(QStringLiteral("mostra"), gerando.arg(QStringLiteral("10 - Alfa")), QStringLiteral("mostra"),
                            vazoes.arg(QStringLiteral("10 - Alfa")), gerando.arg(QStringLiteral("20 - Beta")),
                            QStringLiteral("mostra"), vazoes.arg(QStringLiteral("20 - Beta")),
                            QStringLiteral("esconde")));
    // The general data file names the limits file it was written with.
    EXPECT_EQ(LinhasDe(arquivoPosto(20, QStringLiteral("C20.arq"))).at(14), QStringLiteral("1"));
}

TEST_F(Geracao, TheCaseOptionOfNotUsingLimitsReachesTheGeneralDataAndStopsTheLimitsFile) {
    opcaoNaoUsaLimite(true);
    lista.setMarcada(0, false);
    JanelaGravadora janela;
    assistente().pGerarArquivos(janela);

    EXPECT_FALSE(QDir(pastaPosto(10)).exists());
    EXPECT_THAT(arquivosDe(20),
                ElementsAre(QStringLiteral("C20.arq"), QStringLiteral("C20.dat"), QStringLiteral("VAZPAST.dat")));
    const QStringList dadosGerais = LinhasDe(arquivoPosto(20, QStringLiteral("C20.arq")));
    EXPECT_EQ(dadosGerais.at(14), QStringLiteral(" 0 "));
    EXPECT_EQ(dadosGerais.at(15), QString());
}

TEST_F(Geracao, AStationWithCodeZeroGetsNoLimitsFile) {
    Posto zero = PostoPronto(0, QStringLiteral("Zero"));
    zero.FlagLimite = 1;
    zero.NomeArqLimite = QStringLiteral("C0.lim");
    zero.discretizacao = 2;
    grava(zero);
    lista.Adiciona(QStringLiteral("0 - Zero"));
    lista.setMarcada(0, false);
    lista.setMarcada(1, false);
    lista.setMarcada(2, true);
    JanelaGravadora janela;
    assistente().pGerarArquivos(janela);
    EXPECT_THAT(arquivosDe(0), ElementsAre(QStringLiteral("C0.arq"), QStringLiteral("C0.dat")));
}

TEST_F(Geracao, TheHostsRoadWritesNoLimitsFileAndReadsNoOptions) {
    opcaoNaoUsaLimite(true);
    assistente().pGerarArquivosDireto();
    EXPECT_THAT(arquivosDe(20),
                ElementsAre(QStringLiteral("C20.arq"), QStringLiteral("C20.dat"), QStringLiteral("VAZPAST.dat")));
    // The station's own flag stands, and so its general data still name the limits file.
    const QStringList dadosGerais = LinhasDe(arquivoPosto(20, QStringLiteral("C20.arq")));
    EXPECT_EQ(dadosGerais.at(14), QStringLiteral("1"));
    EXPECT_EQ(dadosGerais.at(15), QStringLiteral("C20.lim"));
}

}  // namespace
}  // namespace teste
