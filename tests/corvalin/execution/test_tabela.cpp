#include "corvalin/results/TabelaPrevisoes.h"
#include "corvalin/stations/Historico.h"
#include "platform/runtime/Vetor.h"
#include "tests/corvalin/execution/CasoExecucao.h"

#include <QLocale>

#include <gmock/gmock.h>

namespace teste {
namespace {

using corvalin::Posto;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Tabela : public CasoExecucao {
protected:
    void TearDown() override {
        QLocale::setDefault(QLocale::c());
        CasoExecucao::TearDown();
    }

    // A station whose history ends in the given week of its last year, with a forecast.
    Posto posto(std::int32_t codigo, int ultimaSemana, bool semanas53) {
        Posto p = PostoPronto(codigo, QStringLiteral("P%1").arg(codigo), 2);
        p.Arquivos.CasoUsa53Semanas = semanas53 ? 1 : 0;
        grava(p);
        corvalin::Historico vazoes(2, p.getNumSemanas());
        for (int ano = 1; ano <= 2; ++ano) {
            for (int semana = 1; semana <= p.getNumSemanas(); ++semana) {
                vazoes(ano, semana) = ano == 2 && semana > ultimaSemana ? 0 : 10;
            }
        }
        postoBD.setHistorico(p, vazoes);
        plataforma::Vetor<float> previsao(6);
        for (int i = 1; i <= 6; ++i) {
            previsao[i] = 100 + i;
        }
        previsao[1] = 123.45f;
        postoBD.setVazoesPrevistas(codigo, previsao, previsao, previsao);
        return p;
    }
};

TEST_F(Tabela, WeeksFollowTheEndOfTheHistoryAndWrap) {
    const auto tabela = corvalin::TabelaPrevisoes(postoBD, posto(1, 50, false));
    ASSERT_EQ(tabela.size(), 4u);
    EXPECT_THAT(tabela[0], ElementsAre(QString(), QStringLiteral("Sem 51"), QStringLiteral("Sem 52"),
                                       QStringLiteral("Sem 1"), QStringLiteral("Sem 2"), QStringLiteral("Sem 3"),
                                       QStringLiteral("Sem 4")));
    EXPECT_EQ(tabela[1].at(0), QStringLiteral("Previsão"));
    EXPECT_EQ(tabela[2].at(0), QStringLiteral("L. Inf."));
    EXPECT_EQ(tabela[3].at(0), QStringLiteral("L. Sup."));
    EXPECT_EQ(tabela[3].at(6), QStringLiteral("106.0"));

    const auto longo = corvalin::TabelaPrevisoes(postoBD, posto(2, 52, true));
    EXPECT_EQ(longo[0].mid(1, 3), QStringList({QStringLiteral("Sem 53"), QStringLiteral("Sem 1"),
                                               QStringLiteral("Sem 2")}));
    const auto curto = corvalin::TabelaPrevisoes(postoBD, posto(3, 52, false));
    EXPECT_EQ(curto[0].at(1), QStringLiteral("Sem 1"));
}

TEST_F(Tabela, OneDecimalInTheUsersFormAndNothingWithoutForecast) {
    QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil));
    const Posto p = posto(1, 10, false);
    EXPECT_EQ(corvalin::TabelaPrevisoes(postoBD, p)[1].at(1), QStringLiteral("123,5"));

    grava(PostoPronto(9, QStringLiteral("Sem previsão")));
    Posto sem;
    ASSERT_TRUE(postoBD.getPosto(sem, corvalin::BuscaPorCodigo, 9, {}));
    EXPECT_THAT(corvalin::TabelaPrevisoes(postoBD, sem), IsEmpty());
}

}  // namespace
}  // namespace teste
