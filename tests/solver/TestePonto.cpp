// The point forecast taken from the scenarios, the climatology it is measured against, and the
// back-test's choices of weight and transformation.

#include "solver/Climatologia.h"
#include "solver/Estatistica.h"
#include "solver/PontoPrevisto.h"
#include "solver/Retroteste.h"
#include "solver/SerieSemanal.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

namespace {

using solver::TipoTransformacao;

double pPerdaMedia(const std::vector<double>& y, double f, double erroRelativo, double erroQuadratico) {
    double soma = 0.0;
    for (const double v : y) {
        soma += std::abs(v - f) / (v * erroRelativo) + (v - f) * (v - f) / erroQuadratico;
    }
    return soma / static_cast<double>(y.size());
}

TEST(PontoPrevisto, ValorPerdaConjuntaMinimizaAPerdaEVaiDaMedianaPonderadaAMedia) {
    std::mt19937 gerador(3);
    std::lognormal_distribution<double> lognormal(2.0, 0.8);
    std::vector<double> y(400);
    for (double& v : y) {
        v = lognormal(gerador);
    }
    std::sort(y.begin(), y.end());
    const double variancia = std::pow(solver::desvioPadrao(y), 2);
    for (const double erroQuadratico : {variancia / 30.0, variancia, 30.0 * variancia}) {
        const double f = solver::valorPerdaConjunta(y, 0.5, erroQuadratico);
        // No point of a fine grid over the sample's range does better.
        double melhorGrade = std::numeric_limits<double>::infinity();
        for (int i = 0; i <= 20000; ++i) {
            const double g = y.front() + (y.back() - y.front()) * i / 20000.0;
            melhorGrade = std::min(melhorGrade, pPerdaMedia(y, g, 0.5, erroQuadratico));
        }
        EXPECT_LE(pPerdaMedia(y, f, 0.5, erroQuadratico), melhorGrade + 1e-9) << erroQuadratico;
    }
    // Squared error alone gives the mean; relative error alone the median weighted by 1 / y,
    // below the ordinary one.
    EXPECT_NEAR(solver::valorPerdaConjunta(y, 1e9, variancia), solver::media(y), 1e-6);
    double pesoTotal = 0.0;
    for (const double v : y) {
        pesoTotal += 1.0 / v;
    }
    double acumulado = 0.0;
    std::size_t k = 0;
    while (acumulado + 1.0 / y[k] < pesoTotal / 2.0) {
        acumulado += 1.0 / y[k++];
    }
    EXPECT_DOUBLE_EQ(solver::valorPerdaConjunta(y, 0.5, 1e12), y[k]);
    EXPECT_LT(y[k], solver::quantilOrdenado(y, 0.5));

    const std::vector<double> iguais(5, 7.0);
    EXPECT_DOUBLE_EQ(solver::valorPerdaConjunta(iguais, 0.5, 1.0), 7.0);
}

TEST(Climatologia, MediaDaSemanaEErrosApenasDosAnosAjustados) {
    // Years of 1 and 3 everywhere, then a year that lies beyond the fit.
    std::vector<double> vazoes(52, 1.0);
    vazoes.insert(vazoes.end(), 52, 3.0);
    vazoes.insert(vazoes.end(), 52, 100.0);
    const solver::SerieSemanal serie(1990, 52, vazoes);
    const solver::Climatologia c(serie, 2 * 52);
    EXPECT_DOUBLE_EQ(c.previsao(0), 2.0);
    EXPECT_DOUBLE_EQ(c.previsao(51), 2.0);
    EXPECT_DOUBLE_EQ(c.getErroRelativo(), (1.0 + 1.0 / 3.0) / 2.0);
    EXPECT_DOUBLE_EQ(c.getErroQuadratico(), 1.0);
}

// A scoreboard with one forecast per week ahead, whose MAPE is 100 erro % and RMSE erro.
solver::Placar pPlacar(double erro) {
    solver::Placar p;
    for (std::size_t h = 0; h < solver::horizonte; ++h) {
        p.registra(h, 1.0 + erro, 1.0);
    }
    return p;
}

// Of MAPE 100 mape % and RMSE rmse on the first week ahead, within a millionth: a tiny flow
// carries the relative error, a huge one the squared error.
solver::Placar pPlacar(double mape, double rmse) {
    solver::Placar p;
    p.registra(0, 1e-6 * (1.0 + 2.0 * mape), 1e-6);
    p.registra(0, 1e6 + std::sqrt(2.0) * rmse, 1e6);
    return p;
}

TEST(Retroteste, PesoQuePerdeParaAClimatologiaNaoEEscolhido) {
    const solver::Placar climatologia = pPlacar(0.5, 0.5);
    ASSERT_NEAR(climatologia.mape(0), 50.0, 1e-4);
    ASSERT_NEAR(climatologia.rmse(0), 0.5, 1e-4);
    // The smallest sum of ratios (0.4 + 1.02) loses on RMSE; of those that beat climatology on
    // both, the one with the smallest sum wins.
    solver::PlacaresPorPeso porPeso = {pPlacar(0.2, 0.51), pPlacar(0.35, 0.45), pPlacar(0.3, 0.48),
                                       pPlacar(0.45, 0.4), pPlacar(0.49, 0.49)};
    EXPECT_EQ(solver::escolhePeso(porPeso, climatologia, 0), 2u);
    // When none beats climatology on both, the smallest sum.
    porPeso = {pPlacar(0.2, 0.51), pPlacar(0.6, 0.3), pPlacar(0.3, 0.6), pPlacar(0.1, 0.7),
               pPlacar(0.7, 0.7)};
    EXPECT_EQ(solver::escolhePeso(porPeso, climatologia, 0), 0u);
}

solver::Candidato pCandidato(double erro, std::vector<double> indicePorAno) {
    solver::Candidato c;
    c.placar = pPlacar(erro);
    c.climatologia = pPlacar(1.0);
    c.indicePorAno = std::move(indicePorAno);
    return c;
}

TEST(Retroteste, DesafianteSoSubstituiOPreferidoComVantagemClara) {
    // Index 2 erro: 1.0 for the preferred one.
    const auto preferido = pCandidato(0.5, {0.8, 1.2, 0.9, 1.1, 1.0});
    ASSERT_DOUBLE_EQ(preferido.indice(), 1.0);
    // 2% better on the whole, but the years disagree.
    EXPECT_EQ(solver::escolheCandidato({preferido, pCandidato(0.49, {0.9, 1.0, 1.0, 0.95, 1.05})}), 0u);
    // 2% better in every year.
    EXPECT_EQ(solver::escolheCandidato({preferido, pCandidato(0.49, {0.78, 1.18, 0.88, 1.08, 0.98})}), 1u);
    // The best of three replaces the preferred one; a worse one never does.
    EXPECT_EQ(solver::escolheCandidato({preferido, pCandidato(0.6, {1.0, 1.4, 1.1, 1.3, 1.2}),
                                        pCandidato(0.4, {0.6, 1.0, 0.7, 0.9, 0.8})}),
              2u);
    // A single year gives no spread to judge by: the better one wins.
    EXPECT_EQ(solver::escolheCandidato({pCandidato(0.5, {1.0}), pCandidato(0.49, {0.98})}), 1u);
}

// Weekly flows whose logarithm is a seasonal mean plus a first-order autoregression: strongly
// skewed, as floods make them.
solver::SerieSemanal pSerieAssimetrica(int anos, unsigned semente) {
    std::mt19937 gerador(semente);
    std::normal_distribution<double> normal;
    std::vector<double> vazoes;
    double z = 0.0;
    for (int t = 0; t < anos * 52; ++t) {
        z = 0.8 * z + 0.6 * normal(gerador);
        vazoes.push_back(std::exp(3.0 + std::sin(2.0 * std::numbers::pi * (t % 52) / 52.0) + 0.9 * z));
    }
    return solver::SerieSemanal(1950, 52, std::move(vazoes));
}

TEST(Retroteste, EscolheOLogaritmoEmVazoesLogNormaisEBateAClimatologia) {
    const auto serie = pSerieAssimetrica(30, 21);
    const auto escolha = solver::escolheModelo(
        serie, serie.tamanho(), {TipoTransformacao::nenhuma, TipoTransformacao::logaritmica}, 0.95);
    ASSERT_EQ(escolha.candidatos.size(), 2u);
    EXPECT_EQ(escolha.getEscolhido().tipo, TipoTransformacao::logaritmica);
    const solver::Candidato& log = escolha.getEscolhido();
    EXPECT_EQ(log.indicePorAno.size(), static_cast<std::size_t>(solver::maximoAnosRetroteste));
    for (std::size_t h = 0; h < solver::horizonte; ++h) {
        EXPECT_TRUE(log.placar.superaEmAmbas(h, log.climatologia)) << h;
        EXPECT_EQ(log.placar.casos(h), log.climatologia.casos(h));
        EXPECT_NE(std::find(solver::pesosCandidatos.begin(), solver::pesosCandidatos.end(), log.pesos[h]),
                  solver::pesosCandidatos.end());
        // The 95% interval of the process it was built for, from the back-test's few paths.
        EXPECT_GT(log.placar.cobertura(h), 85.0) << h;
        EXPECT_LT(log.placar.cobertura(h), 99.0) << h;
    }
}

}  // namespace
