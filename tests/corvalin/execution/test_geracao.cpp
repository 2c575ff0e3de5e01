#include "corvalin/execution/JanelaProgresso.h"
#include "tests/corvalin/execution/CasoExecucao.h"

#include <gmock/gmock.h>

namespace teste {
namespace {

using corvalin::Posto;
using ::testing::ElementsAre;

using Geracao = CasoExecucao;

// The screen's road writes a limits file only where the station asks for one and its code is not
// 0; the host's road writes none, though the general data still name it. An unchecked station
// gets nothing.
TEST_F(Geracao, EachStationsFilesInItsFolderOnTheScreensRoadAndTheHosts) {
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
    corvalin::JanelaProgressoNula janela;
    assistente().pGerarArquivos(janela);
    EXPECT_THAT(arquivosDe(10), ElementsAre("C10.arq", "C10.dat"));
    EXPECT_THAT(arquivosDe(20), ElementsAre("C20.arq", "C20.dat", "C20.lim", "VAZPAST.dat"));
    EXPECT_THAT(arquivosDe(0), ElementsAre("C0.arq", "C0.dat"));
    EXPECT_EQ(LinhasDe(arquivoPosto(20, "C20.arq")).mid(14, 2), (QStringList{"1", "C20.lim"}));

    lista.setMarcada(0, false);
    for (const std::int32_t codigo : {10, 20}) {
        QDir(pastaPosto(codigo)).removeRecursively();
    }
    assistente().pGerarArquivosDireto();
    EXPECT_FALSE(QDir(pastaPosto(10)).exists());
    EXPECT_THAT(arquivosDe(20), ElementsAre("C20.arq", "C20.dat", "VAZPAST.dat"));
    EXPECT_EQ(LinhasDe(arquivoPosto(20, "C20.arq")).mid(14, 2), (QStringList{"1", "C20.lim"}));
}

}  // namespace
}  // namespace teste
