// The history as the model sees it: gaps filled and remembered, Vazpast on the last weeks.

#include "solver/ArquivosEstacao.h"
#include "solver/SerieSemanal.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

constexpr int semanas = 4;

TEST(SerieSemanal, InterpolaLacunasCurtasEUsaAMedianaNasLongasENasPontas) {
    // Four-week years; week k of year a holds 10 * (a + 1) + k.
    std::vector<double> v;
    for (int a = 0; a < 6; ++a) {
        for (int k = 0; k < semanas; ++k) {
            v.push_back(10.0 * (a + 1) + k);
        }
    }
    v[0] = 0.0;         // leading gap: median of week 1
    v[5] = v[6] = 0.0;  // two weeks between 20 and 23: a line
    for (int t = 12; t < 18; ++t) {
        v[static_cast<std::size_t>(t)] = 0.0;  // six weeks: too long to interpolate
    }
    solver::SerieSemanal serie(2000, semanas, v);
    serie.preencheLacunas(4);

    std::vector<std::tuple<std::size_t, std::size_t, bool>> lacunas;
    for (const solver::Lacuna& l : serie.getLacunas()) {
        lacunas.emplace_back(l.inicio, l.semanas, l.interpolada);
    }
    EXPECT_EQ(lacunas, (decltype(lacunas){{0, 1, false}, {5, 2, true}, {12, 6, false}}));
    EXPECT_DOUBLE_EQ(serie.vazao(5), 21.0);
    EXPECT_DOUBLE_EQ(serie.vazao(6), 22.0);
    // Week 1 was observed only in years 2, 3 and 6 (20, 30, 60): median 30.
    EXPECT_DOUBLE_EQ(serie.vazao(0), 30.0);
    EXPECT_FALSE(serie.observada(5));
    EXPECT_TRUE(serie.observada(4));
    EXPECT_EQ(serie.ano(13), 2003);
    EXPECT_EQ(serie.semana(13), 1);
}

TEST(SerieSemanal, MontaAteASemanaAnteriorComVazpastNasUltimasSemanas) {
    solver::VazoesArquivo arquivo;
    arquivo.anoInicial = 1990;
    arquivo.anoFinal = 1991;
    arquivo.vazoes = {{1, 2, 3, 4}, {5, 6, 7, 0}};
    // Origin at week 3 of 1991: the series ends at week 2 of 1991.
    const auto sem = solver::montaSerie(arquivo, semanas, 6, std::nullopt);
    EXPECT_EQ(sem.getVazoes(), (std::vector<double>{1, 2, 3, 4, 5, 6}));

    const std::array<double, 4> vazpast = {60, 50, 40, 30};  // nearest first
    const auto com = solver::montaSerie(arquivo, semanas, 7, vazpast);
    EXPECT_EQ(com.getVazoes(), (std::vector<double>{1, 2, 3, 30, 40, 50, 60}));

    // Week 4 of 1991 is missing: the Vazpast gives a forecast from week 1 of 1992 its starting
    // flow (without it the run ends short of history).
    EXPECT_EQ(solver::montaSerie(arquivo, semanas, 8, vazpast).vazao(7), 60.0);
}

}  // namespace
