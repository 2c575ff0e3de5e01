#include "corvalin/execution/ValidacaoExecucao.h"
#include "corvalin/frame/Mensagens.h"
#include "tests/corvalin/execution/CasoExecucao.h"

#include <gmock/gmock.h>

namespace teste {
namespace {

using corvalin::Posto;
using namespace corvalin::Mensagens;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::Not;

class Validacao : public CasoExecucao {
protected:
    // The findings of one station's rules, header and closing blank left out.
    QStringList achados(const Posto* posto) {
        corvalin::RegistroMemoria linhas;
        corvalin::ValidacaoExecucao validacao(postoBD, linhas);
        validacao.ValidaPosto("1 - X", posto, 0);
        QStringList textos;
        for (std::size_t i = 1; i + 1 < linhas.Linhas().size(); ++i) {
            textos << linhas.Linhas()[i].texto;
        }
        return textos;
    }
};

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

    host.dialogo.limpa();
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
    EXPECT_EQ(assistente().getLblExecutar(), msgValidacaoDados);
    EXPECT_THAT(host.dialogo.Ponteiros(), ElementsAre(halvo::Ponteiro::Ocupado, halvo::Ponteiro::Padrao));
}

// Each rule at its bounds; the findings come in the rules' order.
TEST_F(Validacao, RulesAtTheirBounds) {
    Posto posto = PostoPronto(1, "X");
    EXPECT_THAT(achados(&posto), ElementsAre(msgDadosGeraisOK));
    posto.AnoInicial = posto.AnoFinal - 19;
    posto.IntervaloConfianca = 0;
    posto.SemanaInicialPrev = 52;
    posto.Transformacao = 0;  // no lower bound
    posto.MesInicial = 12;
    EXPECT_THAT(achados(&posto), ElementsAre(msgDadosGeraisOK));
    posto.AnoInicial += 1;
    posto.IntervaloConfianca = 100;
    posto.Arquivos.CasoUsa53Semanas = 1;
    posto.SemanaInicialPrev = 53;
    EXPECT_THAT(achados(&posto), ElementsAre(msgHistoricoMenos20Anos, msgDadosGeraisOK));

    posto.Arquivos.CasoUsa53Semanas = 0;
    posto.IntervaloConfianca = 101;
    posto.Transformacao = 6;
    posto.MesInicial = 13;
    posto.AnoInicialPrev = 0;
    EXPECT_THAT(achados(&posto),
                ElementsAre(msgHistoricoMenos20Anos, msgTransformacaoNaoDefinida, msgMesInicialInvalido,
                            msgIntervaloInvalido, msgSemanaInicialInvalida, msgAnoInicialInvalido));
    posto = PostoPronto(1, "X");
    posto.IntervaloConfianca = -1;
    posto.MesInicial = 0;
    posto.Arquivos.ArquivoDadosGerais = "SEMPONTO";
    posto.Arquivos.ArquivoVazoesSemanais = "A.DATA";
    posto.Arquivos.ArquivoPrevisoes = "A B.prv";
    posto.Arquivos.ArquivoExcel = QString();
    posto.FlafVazpast = true;
    posto.NomeArqVazpast = "VP";
    EXPECT_THAT(achados(&posto),
                ElementsAre(msgNomeDadosGeraisInvalido, msgNomeHistoricoInvalido,
                            msgNomeVazoesFuturasInvalido, msgNomeExcelInvalido, msgMesInicialInvalido,
                            msgIntervaloInvalido, msgVazpastNaoDefinido));
    posto.NomeArqVazpast = "VP1";
    EXPECT_THAT(achados(&posto), Not(Contains(msgVazpastNaoDefinido)));

    // Undefined general data skip the other rules but not the Vazpast one.
    posto = Posto();
    posto.AnoInicial = 1990;
    posto.AnoFinal = 2008;
    posto.FlafVazpast = true;
    posto.NomeArqVazpast = "VP";
    EXPECT_THAT(achados(&posto),
                ElementsAre(msgHistoricoMenos20Anos, msgDadosGeraisNaoDefinidos, msgVazpastNaoDefinido));
}

}  // namespace
}  // namespace teste
