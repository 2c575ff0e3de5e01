#include "corvalin/execution/JanelaProgresso.h"
#include "corvalin/frame/Mensagens.h"
#include "corvalin/options/Opcoes.h"
#include "tests/corvalin/execution/CasoExecucao.h"

#include <gmock/gmock.h>

namespace teste {
namespace {

using corvalin::Posto;
using ::testing::ElementsAre;

// Records what the generation shows of its progress.
class JanelaGravadora : public corvalin::JanelaProgresso {
public:
    void setCaption(const QString& texto) override { Eventos << QStringLiteral("caption ") + texto; }
    void Mostra() override { Eventos << "mostra"; }
    void Esconde() override { Eventos << "esconde"; }
    corvalin::Progresso& Barra() override { return mBarra; }

    QStringList Eventos;

private:
    corvalin::ProgressoNulo mBarra;
};

class Geracao : public CasoExecucao {
protected:
    // Beta has limits and a Vazpast file; Zero asks for limits too, but code 0 gets no limits file.
    void SetUp() override {
        CasoExecucao::SetUp();
        grava(PostoPronto(10, "Alfa"));
        for (const auto& [codigo, nome] : {std::pair{20, "Beta"}, std::pair{0, "Zero"}}) {
            Posto comLimites = PostoPronto(codigo, nome);
            comLimites.FlafVazpast = codigo != 0;
            comLimites.NomeArqVazpast = "VAZPAST.dat";
            comLimites.FlagLimite = 1;
            comLimites.NomeArqLimite = QStringLiteral("C%1.lim").arg(codigo);
            comLimites.discretizacao = 2;
            comLimites.Magnitude = 1;
            grava(comLimites);
        }
        assistente().pCarregarPostos();
    }
};

TEST_F(Geracao, TheAssistantWritesEachCheckedStationsFilesInItsFolderUnderTheProgressForm) {
    JanelaGravadora janela;
    assistente().pGerarArquivos(janela);

    EXPECT_THAT(arquivosDe(10), ElementsAre("C10.arq", "C10.dat"));
    EXPECT_THAT(arquivosDe(20), ElementsAre("C20.arq", "C20.dat", "C20.lim", "VAZPAST.dat"));
    EXPECT_THAT(arquivosDe(0), ElementsAre("C0.arq", "C0.dat"));
    const QString gerando = QStringLiteral("caption %1: ") + corvalin::Mensagens::msgGerandoDadosGerais;
    const QString vazoes = QStringLiteral("caption %1: ") + corvalin::Mensagens::msgGerandoVazoesSemanais;
    EXPECT_THAT(janela.Eventos,
                ElementsAre("mostra", gerando.arg("10 - Alfa"), "mostra", vazoes.arg("10 - Alfa"),
                            gerando.arg("20 - Beta"), "mostra", vazoes.arg("20 - Beta"),
                            gerando.arg("0 - Zero"), "mostra", vazoes.arg("0 - Zero"), "esconde"));
    // The general data file names the limits file it was written with.
    EXPECT_EQ(LinhasDe(arquivoPosto(20, "C20.arq")).at(14), "1");
}

// The case's switch against limits reaches the general data and stops the limits file on the
// screen's road. The host's road reads no options and writes no limits file, while the station's
// own flag still names one.
TEST_F(Geracao, TheCaseOptionOfNotUsingLimitsOnTheScreensRoadAndTheHosts) {
    mudaOpcoes([](corvalin::Opcoes& opcoes) { opcoes.Arquivos.NaoUsaLimite = true; });
    lista.setMarcada(0, false);
    JanelaGravadora janela;
    assistente().pGerarArquivos(janela);
    EXPECT_FALSE(QDir(pastaPosto(10)).exists());
    const QStringList semLimites = {"C20.arq", "C20.dat", "VAZPAST.dat"};
    EXPECT_EQ(arquivosDe(20), semLimites);
    EXPECT_EQ(LinhasDe(arquivoPosto(20, "C20.arq")).mid(14, 2), (QStringList{" 0 ", QString()}));

    QDir(pastaPosto(20)).removeRecursively();
    assistente().pGerarArquivosDireto();
    EXPECT_EQ(arquivosDe(20), semLimites);
    EXPECT_EQ(LinhasDe(arquivoPosto(20, "C20.arq")).mid(14, 2), (QStringList{"1", "C20.lim"}));
}

}  // namespace
}  // namespace teste
