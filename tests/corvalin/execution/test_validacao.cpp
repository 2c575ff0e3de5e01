#include "corvalin/execution/ValidacaoExecucao.h"
#include "corvalin/frame/Mensagens.h"
#include "tests/corvalin/execution/CasoExecucao.h"

#include <gmock/gmock.h>

#include <tuple>

namespace teste {
namespace {

using corvalin::Posto;
using namespace corvalin::Mensagens;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;

using Validacao = CasoExecucao;

TEST_F(Validacao, ReportOfACaseWithADeletedStationAShortHistoryABadNameAndAShortVazpastName) {
    grava(PostoPronto(10, "Alfa"));
    grava(PostoPronto(20, "Beta", 19));
    Posto vazpastCurto = PostoPronto(30, "Delta");
    vazpastCurto.FlafVazpast = true;
    vazpastCurto.NomeArqVazpast = "VP";
    grava(vazpastCurto);
    grava(PostoPronto(40, "Eta"));
    Posto nomeRuim = PostoPronto(50, "Gama");
    nomeRuim.Arquivos.ArquivoRelatorio = "RELATORIO.rel";
    grava(nomeRuim);

    ASSERT_TRUE(assistente().pCarregarPostos());
    Posto apagado;
    ASSERT_TRUE(postoBD.getPosto(apagado, corvalin::BuscaPorCodigo, 40, {}));
    postoBD.delPosto(apagado);

    EXPECT_FALSE(assistente().pValidar());
    const QString branco = " ";
    // The short Vazpast name reads back from the case as no file at all, so its rule has
    // nothing to find there.
    EXPECT_THAT(textosDoRegistro(),
                ElementsAre("Posto: 10 - Alfa", msgDadosGeraisOK, branco, "Posto: 20 - Beta",
                            msgHistoricoMenos20Anos, msgDadosGeraisOK, branco, "Posto: 30 - Delta",
                            msgDadosGeraisOK, branco, "Posto: 40 - Eta", msgPostoApagado, branco,
                            "Posto: 50 - Gama", msgNomeRelatorioInvalido, branco, branco));
    std::vector<int> estilos;
    for (const auto& linha : registro.Linhas()) {
        estilos.push_back(linha.estilo);
        EXPECT_TRUE(linha.destaque && linha.quebraLinha);
    }
    EXPECT_THAT(estilos, ElementsAreArray({1, 1, 1, 1, 3, 1, 1, 1, 1, 1, 1, 2, 1, 1, 2, 1, 1}));
    EXPECT_EQ(assistente().getLblExecutarAlertas(), "1 aviso");
    EXPECT_EQ(assistente().getLblExecutarProblemas(), "2 erros");
}

// Straight on a record, since a short Vazpast name does not survive the store: each rule just
// past a bound, in the rules' order, and then at it.
TEST_F(Validacao, RulesJustPastTheirBoundsAndAtThem) {
    corvalin::ValidacaoExecucao validacao(postoBD, registro);
    Posto posto = PostoPronto(1, "X");
    posto.FlafVazpast = true;
    for (const auto& [vazpast, transformacao, mes, intervalo, semana, anoPrevisao] :
         {std::tuple{"VP", 6, 13, -1, 0, 0}, std::tuple{"VP1", 5, 12, 0, 52, 1}}) {
        posto.NomeArqVazpast = vazpast;
        posto.Transformacao = transformacao;
        posto.MesInicial = mes;
        posto.IntervaloConfianca = intervalo;
        posto.SemanaInicialPrev = semana;
        posto.AnoInicialPrev = anoPrevisao;
        validacao.ValidaPosto("1 - X", &posto, 0);
    }
    EXPECT_THAT(textosDoRegistro(),
                ElementsAre("Posto: 1 - X", msgTransformacaoNaoDefinida, msgMesInicialInvalido,
                            msgIntervaloInvalido, msgSemanaInicialInvalida, msgAnoInicialInvalido,
                            msgVazpastNaoDefinido, " ", "Posto: 1 - X", msgDadosGeraisOK, " "));
}

}  // namespace
}  // namespace teste
