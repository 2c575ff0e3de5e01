#include "corvalin/execution/ValidacaoExecucao.h"
#include "corvalin/frame/Mensagens.h"
#include "tests/corvalin/execution/CasoExecucao.h"

#include <gmock/gmock.h>

namespace teste {
namespace {

using corvalin::Posto;
using corvalin::RegistroTexto;
using namespace corvalin::Mensagens;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;

class Validacao : public CasoExecucao {
protected:
    // The findings of one station's rules, header and closing blank left out.
    QStringList achados(const Posto* posto) {
        corvalin::RegistroMemoria linhas;
        corvalin::ValidacaoExecucao validacao(postoBD, linhas);
        validacao.ValidaPosto(QStringLiteral("1 - X"), posto, 0);
        QStringList textos;
        for (std::size_t i = 1; i + 1 < linhas.Linhas().size(); ++i) {
            textos << linhas.Linhas()[i].texto;
        }
        return textos;
    }
};

TEST_F(Validacao, ReportOfACaseWithADeletedStationAShortHistoryABadNameAndAShortVazpastName) {
    grava(PostoPronto(10, QStringLiteral("Alfa")));
    grava(PostoPronto(20, QStringLiteral("Beta"), 19));
    Posto vazpastCurto = PostoPronto(30, QStringLiteral("Delta"));
    vazpastCurto.FlafVazpast = true;
    vazpastCurto.NomeArqVazpast = QStringLiteral("VP");
    grava(vazpastCurto);
    grava(PostoPronto(40, QStringLiteral("Eta")));
    Posto nomeRuim = PostoPronto(50, QStringLiteral("Gama"));
    nomeRuim.Arquivos.ArquivoRelatorio = QStringLiteral("RELATORIO.rel");
    grava(nomeRuim);

    ASSERT_TRUE(assistente().pCarregarPostos());
    Posto apagado;
    ASSERT_TRUE(postoBD.getPosto(apagado, corvalin::BuscaPorCodigo, 40, {}));
    postoBD.delPosto(apagado);

    host.dialogo.limpa();
    EXPECT_FALSE(assistente().pValidar());
    const QString branco = QStringLiteral(" ");
    // The short Vazpast name reads back from the case as no file at all, so its rule has
    // nothing to find there.
    EXPECT_THAT(textosDoRegistro(),
                ElementsAre(QStringLiteral("Posto: 10 - Alfa"), msgDadosGeraisOK, branco,
                            QStringLiteral("Posto: 20 - Beta"), msgHistoricoMenos20Anos, msgDadosGeraisOK, branco,
                            QStringLiteral("Posto: 30 - Delta"), msgDadosGeraisOK, branco,
                            QStringLiteral("Posto: 40 - Eta"), msgPostoApagado, branco,
                            QStringLiteral("Posto: 50 - Gama"), msgNomeRelatorioInvalido, branco, branco));
    std::vector<int> estilos;
    for (const auto& linha : registro.Linhas()) {
        estilos.push_back(linha.estilo);
        EXPECT_TRUE(linha.destaque && linha.quebraLinha);
    }
    EXPECT_THAT(estilos, ElementsAreArray({1, 1, 1, 1, 3, 1, 1, 1, 1, 1, 1, 2, 1, 1, 2, 1, 1}));
    EXPECT_EQ(assistente().getLblExecutarAlertas(), QStringLiteral("1 aviso"));
    EXPECT_EQ(assistente().getLblExecutarProblemas(), QStringLiteral("2 erros"));
    EXPECT_EQ(assistente().getLblExecutar(), msgValidacaoDados);
    EXPECT_THAT(host.dialogo.Ponteiros(), ElementsAre(halvo::Ponteiro::Ocupado, halvo::Ponteiro::Padrao));
}

TEST_F(Validacao, OnlyCheckedRowsAreValidatedAndAWarningAloneLetsTheRunStart) {
    grava(PostoPronto(10, QStringLiteral("Alfa"), 19));
    Posto semDados;
    semDados.Codigo = 20;
    semDados.Nome = QStringLiteral("Beta - com hífen");
    semDados.AnoInicial = 1990;
    semDados.AnoFinal = 2009;
    grava(semDados);
    EXPECT_TRUE(assistente().pCarregarPostos());
    EXPECT_EQ(lista.LinhaAtual(), 0);
    EXPECT_EQ(lista.Texto(1), QStringLiteral("20 - Beta - com hífen"));
    EXPECT_EQ(corvalin::CodigoDaLinha(lista.Texto(1)), 20);

    lista.setMarcada(1, false);
    EXPECT_TRUE(assistente().pValidar());
    EXPECT_EQ(assistente().getLblExecutarAlertas(), QStringLiteral("1 aviso"));
    EXPECT_EQ(assistente().getLblExecutarProblemas(), QStringLiteral("0 erros"));

    // Validating again starts the report and the counts anew.
    lista.setMarcada(0, false);
    lista.setMarcada(1, true);
    EXPECT_FALSE(assistente().pValidar());
    EXPECT_THAT(textosDoRegistro(), ElementsAre(QStringLiteral("Posto: 20 - Beta - com hífen"),
                                                msgDadosGeraisNaoDefinidos, QStringLiteral(" "), QStringLiteral(" ")));
    EXPECT_EQ(assistente().getLblExecutarAlertas(), QStringLiteral("0 avisos"));
    EXPECT_EQ(assistente().getLblExecutarProblemas(), QStringLiteral("1 erro"));
}

TEST_F(Validacao, AnEmptyCatalogueGivesNothingToGoOnWith) {
    EXPECT_FALSE(assistente().pCarregarPostos());
    EXPECT_EQ(lista.Quantidade(), 0);
    EXPECT_EQ(lista.LinhaAtual(), -1);
}

TEST_F(Validacao, RulesAtTheirBounds) {
    Posto posto = PostoPronto(1, QStringLiteral("X"));
    EXPECT_THAT(achados(&posto), ElementsAre(msgDadosGeraisOK));

    posto.IntervaloConfianca = 0;
    posto.SemanaInicialPrev = 52;
    posto.Transformacao = 0;  // no lower bound
    posto.MesInicial = 12;
    EXPECT_THAT(achados(&posto), ElementsAre(msgDadosGeraisOK));
    posto.IntervaloConfianca = 100;
    posto.Arquivos.CasoUsa53Semanas = 1;
    posto.SemanaInicialPrev = 53;
    EXPECT_THAT(achados(&posto), ElementsAre(msgDadosGeraisOK));

    posto.Arquivos.CasoUsa53Semanas = 0;
    posto.IntervaloConfianca = 101;
    posto.Transformacao = 6;
    posto.MesInicial = 13;
    posto.AnoInicialPrev = 0;
    EXPECT_THAT(achados(&posto), ElementsAre(msgTransformacaoNaoDefinida, msgMesInicialInvalido, msgIntervaloInvalido,
                                             msgSemanaInicialInvalida, msgAnoInicialInvalido));
    posto = PostoPronto(1, QStringLiteral("X"));
    posto.IntervaloConfianca = -1;
    posto.MesInicial = 0;
    posto.Arquivos.ArquivoDadosGerais = QStringLiteral("SEMPONTO");
    posto.Arquivos.ArquivoVazoesSemanais = QStringLiteral("A.DATA");
    posto.Arquivos.ArquivoPrevisoes = QStringLiteral("A B.prv");
    posto.Arquivos.ArquivoExcel = QString();
    EXPECT_THAT(achados(&posto), ElementsAre(msgNomeDadosGeraisInvalido, msgNomeHistoricoInvalido,
                                             msgNomeVazoesFuturasInvalido, msgNomeExcelInvalido,
                                             msgMesInicialInvalido, msgIntervaloInvalido));
}

TEST_F(Validacao, UndefinedGeneralDataAndAShortVazpastNameEachAddTheirError) {
    Posto posto;
    posto.Codigo = 1;
    posto.AnoInicial = 1990;
    posto.AnoFinal = 2008;  // 19 years
    posto.FlafVazpast = true;
    posto.NomeArqVazpast = QStringLiteral("VP");
    // Undefined general data skip the other rules but not the Vazpast one.
    EXPECT_THAT(achados(&posto), ElementsAre(msgHistoricoMenos20Anos, msgDadosGeraisNaoDefinidos, msgVazpastNaoDefinido));

    posto = PostoPronto(1, QStringLiteral("X"));
    posto.FlafVazpast = true;
    posto.NomeArqVazpast = QStringLiteral("VP");
    posto.MesInicial = 0;
    EXPECT_THAT(achados(&posto), ElementsAre(msgMesInicialInvalido, msgVazpastNaoDefinido));
    posto.MesInicial = 1;
    posto.NomeArqVazpast = QStringLiteral("VP1");
    EXPECT_THAT(achados(&posto), ElementsAre(msgDadosGeraisOK));

    // A station that is gone shows exactly one error.
    EXPECT_THAT(achados(nullptr), ElementsAre(msgPostoApagado));
}

TEST_F(Validacao, TwentyYearsIsEnough) {
    Posto posto = PostoPronto(1, QStringLiteral("X"));
    posto.AnoInicial = 1990;
    posto.AnoFinal = 2009;
    EXPECT_THAT(achados(&posto), ElementsAre(msgDadosGeraisOK));
    posto.AnoFinal = 2008;
    EXPECT_THAT(achados(&posto), ElementsAre(msgHistoricoMenos20Anos, msgDadosGeraisOK));
}

}  // namespace
}  // namespace teste
