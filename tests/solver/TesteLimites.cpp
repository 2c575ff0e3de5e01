// Limits: percentiles of the flows of the forecast week's period within the magnitude band of the
// last observation.

#include "solver/Estatistica.h"
#include "solver/LimitesPercentis.h"
#include "solver/SerieSemanal.h"

#include <gtest/gtest.h>

namespace {

using solver::Agrupamento;

TEST(LimitesPercentis, PeriodosDasSemanas) {
    EXPECT_EQ(solver::periodoDaSemana(7, Agrupamento::semanal, 1), 7);
    EXPECT_EQ(solver::periodoDaSemana(0, Agrupamento::mensal, 1), 0);
    EXPECT_EQ(solver::periodoDaSemana(4, Agrupamento::mensal, 1), 1);  // days 29 to 35: February
    EXPECT_EQ(solver::periodoDaSemana(51, Agrupamento::mensal, 1), 11);
    EXPECT_EQ(solver::periodoDaSemana(52, Agrupamento::mensal, 1),
              11);  // the 53rd week stays in the last month
    // A hydrological year from October: its first week is in October, its last in September.
    EXPECT_EQ(solver::periodoDaSemana(0, Agrupamento::mensal, 10), 9);
    EXPECT_EQ(solver::periodoDaSemana(51, Agrupamento::mensal, 10), 8);
    EXPECT_EQ(solver::periodoDaSemana(51, Agrupamento::trimestral, 10), 2);
    EXPECT_EQ(solver::periodoDaSemana(0, Agrupamento::trimestral, 1), 0);
    EXPECT_EQ(solver::periodoDaSemana(30, Agrupamento::semestral, 1), 1);
    EXPECT_EQ(solver::periodoDaSemana(30, Agrupamento::semestral, 7), 0);
}

TEST(LimitesPercentis, FaixaDaUltimaObservacaoEscolheOsAnos) {
    // Two-week years. Week 2 follows a low week 1 (1) in even years and a high one (100) in odd
    // years, and is itself low (10 + a) or high (200 + a).
    std::vector<double> v;
    constexpr int anos = 40;
    std::vector<double> altas;
    std::vector<double> todas;
    for (int a = 0; a < anos; ++a) {
        const bool alto = a % 2 == 1;
        v.push_back(alto ? 100.0 : 1.0);
        v.push_back(alto ? 200.0 + a : 10.0 + a);
        (alto ? altas : todas).push_back(v.back());
    }
    todas.insert(todas.end(), altas.begin(), altas.end());
    v.push_back(150.0);  // the last observation: week 1, high
    const solver::SerieSemanal serie(1950, 2, v);

    solver::ArquivoLimites limites;
    limites.agrupamento = Agrupamento::semanal;
    limites.faixas = 2;
    limites.inferior = {5.0, 10.0};
    limites.superior = {95.0, 90.0};
    const std::size_t origem = serie.tamanho();
    const auto l = solver::calculaLimites(serie, origem, limites, 1, origem);
    // The first week ahead is week 2: high band, its own percentiles.
    EXPECT_EQ(l[0].periodo, 1);
    EXPECT_EQ(l[0].faixaMagnitude, 1);
    EXPECT_DOUBLE_EQ(l[0].faixa.inferior, solver::quantil(altas, 0.10));
    EXPECT_DOUBLE_EQ(l[0].faixa.superior, solver::quantil(altas, 0.90));

    limites.faixas = 1;
    const auto semFaixas = solver::calculaLimites(serie, origem, limites, 1, origem);
    EXPECT_DOUBLE_EQ(semFaixas[0].faixa.inferior, solver::quantil(todas, 0.10));
    EXPECT_EQ(semFaixas[0].faixaMagnitude, 0);
}

}  // namespace
