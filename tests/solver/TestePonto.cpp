// The point forecast taken from the scenarios, the climatology it is measured against, and the
// back-test's choices of weight and transformation.

#include "tests/solver/EstacaoTeste.h"

#include "solver/Climatologia.h"
#include "solver/Estatistica.h"
#include "solver/PontoPrevisto.h"
#include "solver/Retroteste.h"
#include "solver/SerieSemanal.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
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
    // Relative error alone gives the median weighted by 1 / y, below the ordinary one; squared
    // error alone the mean.
    const std::pair<double, double> pesos[] = {
        {0.5, variancia / 30.0}, {0.5, variancia}, {0.5, 30.0 * variancia}, {0.5, 1e12}, {1e9, variancia}};
    for (const auto& [erroRelativo, erroQuadratico] : pesos) {
        const double f = solver::valorPerdaConjunta(y, erroRelativo, erroQuadratico);
        // No point of a fine grid over the sample's range does better.
        double melhorGrade = std::numeric_limits<double>::infinity();
        for (int i = 0; i <= 20000; ++i) {
            const double g = y.front() + (y.back() - y.front()) * i / 20000.0;
            melhorGrade = std::min(melhorGrade, pPerdaMedia(y, g, erroRelativo, erroQuadratico));
        }
        EXPECT_LE(pPerdaMedia(y, f, erroRelativo, erroQuadratico), melhorGrade + 1e-9) << erroQuadratico;
    }
    EXPECT_LT(solver::valorPerdaConjunta(y, 0.5, 1e12), solver::quantilOrdenado(y, 0.5));
    EXPECT_NEAR(solver::valorPerdaConjunta(y, 1e9, variancia), solver::media(y), 1e-6);
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

solver::Desempenho pDesempenho(int semanasVencidas, std::vector<double> indicePorAno) {
    solver::Desempenho d{semanasVencidas, solver::media(indicePorAno), std::move(indicePorAno)};
    return d;
}

TEST(Retroteste, OPrimeiroSoPerdeParaQuemOVenceComClareza) {
    const auto primeiro = pDesempenho(6, {0.8, 1.2, 0.9, 1.1, 1.0});
    // 2% better on the whole, but the years disagree.
    EXPECT_EQ(solver::escolhePreferindoOPrimeiro({primeiro, pDesempenho(6, {0.9, 1.0, 1.0, 0.95, 1.05})}),
              0u);
    // 2% better in every year.
    EXPECT_EQ(solver::escolhePreferindoOPrimeiro({primeiro, pDesempenho(6, {0.78, 1.18, 0.88, 1.08, 0.98})}),
              1u);
    // A single year gives no spread to judge by: the better one wins.
    EXPECT_EQ(solver::escolhePreferindoOPrimeiro({pDesempenho(6, {1.0}), pDesempenho(6, {0.98})}), 1u);
}

TEST(Retroteste, QuemPerdeParaAClimatologiaEmMaisSemanasNaoEOMelhor) {
    const auto primeiro = pDesempenho(4, {1.6, 1.7, 1.5, 1.8, 1.6});
    // The lowest index loses to climatology at two weeks ahead; the one that never loses, with a
    // clearly lower index than the first's, is chosen.
    const auto perdeEmDuas = pDesempenho(4, {1.2, 1.3, 1.1, 1.4, 1.2});
    const auto venceEmTodas = pDesempenho(6, {1.4, 1.5, 1.3, 1.6, 1.4});
    EXPECT_EQ(solver::escolhePreferindoOPrimeiro({primeiro, perdeEmDuas, venceEmTodas}), 2u);
    // Winning more weeks ahead is not enough without a clearly lower index.
    EXPECT_EQ(solver::escolhePreferindoOPrimeiro({primeiro, pDesempenho(6, {1.7, 1.6, 1.6, 1.7, 1.7})}), 0u);
}

TEST(Retroteste, EscolheOLogaritmoEmVazoesLogNormaisEBateAClimatologia) {
    // A lognormal first-order autoregression, strongly skewed.
    const solver::SerieSemanal serie(1950, teste::semanasDoAno,
                                     teste::simula(teste::processo(0.8, 0.0, 0.6, 3.0, 0.9, 0.0), 30, 21));
    const auto escolha = solver::escolheModelo(
        serie, serie.tamanho(), {TipoTransformacao::nenhuma, TipoTransformacao::logaritmica}, 0.95);
    ASSERT_EQ(escolha.candidatos.size(), 2u);
    EXPECT_EQ(escolha.getEscolhido().tipo, TipoTransformacao::logaritmica);
    const solver::Candidato& log = escolha.getEscolhido();
    EXPECT_EQ(log.desempenho.indicePorAno.size(), static_cast<std::size_t>(solver::maximoAnosRetroteste));
    EXPECT_EQ(log.desempenho.semanasVencidas, solver::horizonte);
    EXPECT_DOUBLE_EQ(log.desempenho.indice, log.placar.indice(log.climatologia));
    for (std::size_t h = 0; h < solver::horizonte; ++h) {
        EXPECT_NE(std::find(solver::pesosCandidatos.begin(), solver::pesosCandidatos.end(), log.pesos[h]),
                  solver::pesosCandidatos.end());
        EXPECT_TRUE(log.placar.superaEmAmbas(h, log.climatologia)) << h;
        EXPECT_EQ(log.placar.casos(h), log.climatologia.casos(h));
        // The 95% interval of the process it was built for, from the back-test's few paths.
        EXPECT_GT(log.placar.cobertura(h), 85.0) << h;
        EXPECT_LT(log.placar.cobertura(h), 99.0) << h;
    }
}

}  // namespace
