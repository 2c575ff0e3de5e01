// The computations on the history: its gaps filled, the limits' percentiles within the magnitude
// band of the last observation, the model's parameters recovered from processes it was built for,
// its interval as wide as the process gives, and the point forecast at the joint loss's minimum.

#include "tests/solver/EstacaoTeste.h"

#include "solver/Estatistica.h"
#include "solver/LimitesPercentis.h"
#include "solver/ModeloPAR.h"
#include "solver/PontoPrevisto.h"
#include "solver/Previsor.h"
#include "solver/Retroteste.h"
#include "solver/SerieSemanal.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <tuple>

namespace {

using solver::Agrupamento;
using solver::TipoTransformacao;
using teste::fase;
using teste::semanasDoAno;

TEST(SerieSemanal, InterpolaLacunasCurtasEUsaAMedianaNasLongasENasPontas) {
    // Four-week years; week k of year a holds 10 * (a + 1) + k.
    std::vector<double> v;
    for (int a = 0; a < 6; ++a) {
        for (int k = 0; k < 4; ++k) {
            v.push_back(10.0 * (a + 1) + k);
        }
    }
    v[0] = 0.0;         // leading gap: median of week 1
    v[5] = v[6] = 0.0;  // two weeks between 20 and 23: a line
    for (int t = 12; t < 18; ++t) {
        v[static_cast<std::size_t>(t)] = 0.0;  // six weeks: too long to interpolate
    }
    solver::SerieSemanal serie(2000, 4, v);
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
}

TEST(LimitesPercentis, PeriodosContadosDoMesInicialDoAno) {
    // Week, grouping, first month of the year, period.
    const std::tuple<int, Agrupamento, int, int> casos[] = {{4, Agrupamento::mensal, 1, 1},
                                                            {0, Agrupamento::mensal, 10, 9},
                                                            {51, Agrupamento::mensal, 10, 8},
                                                            {51, Agrupamento::trimestral, 10, 2},
                                                            {30, Agrupamento::semestral, 7, 0}};
    for (const auto& [semana, agrupamento, mes, periodo] : casos) {
        EXPECT_EQ(solver::periodoDaSemana(semana, agrupamento, mes), periodo) << semana << " " << mes;
    }
}

TEST(LimitesPercentis, FaixaDaUltimaObservacaoEscolheOsAnos) {
    // Two-week years. Week 2 follows a low week 1 (1) in even years and a high one (100) in odd
    // years, and is itself low (10 + a) or high (200 + a).
    std::vector<double> v;
    std::vector<double> altas;
    for (int a = 0; a < 40; ++a) {
        const bool alto = a % 2 == 1;
        v.push_back(alto ? 100.0 : 1.0);
        v.push_back(alto ? 200.0 + a : 10.0 + a);
        if (alto) {
            altas.push_back(v.back());
        }
    }
    v.push_back(150.0);  // the last observation: week 1, high
    const solver::SerieSemanal serie(1950, 2, v);
    const solver::ArquivoLimites limites{Agrupamento::semanal, 2, {5.0, 10.0}, {95.0, 90.0}};
    const auto l = solver::calculaLimites(serie, serie.tamanho(), limites, 1, serie.tamanho());
    // The first week ahead is week 2: high band, its own percentiles.
    EXPECT_EQ(std::tie(l[0].periodo, l[0].faixaMagnitude), std::make_tuple(1, 1));
    EXPECT_DOUBLE_EQ(l[0].faixa.inferior, solver::quantil(altas, 0.10));
    EXPECT_DOUBLE_EQ(l[0].faixa.superior, solver::quantil(altas, 0.90));
}

TEST(ModeloPAR, RecuperaOrdemCoeficientesEMediaDeAutorregressoesPeriodicas) {
    // The process, its order and the seed.
    const std::tuple<teste::Processo, std::size_t, unsigned> casos[] = {
        {{.phi1 = 0.5, .phi2 = 0.0, .desvioRuido = 0.6, .phi1Sazonal = 0.3}, 1, 11},
        {{.phi1 = 0.55, .phi2 = 0.3, .desvioRuido = 0.5}, 2, 12}};
    for (const auto& [p, ordem, semente] : casos) {
        SCOPED_TRACE(ordem);
        const solver::SerieSemanal serie(1900, semanasDoAno, teste::simula(p, 300, semente));
        const auto modelo = solver::ModeloPAR::ajusta(serie, serie.tamanho(), TipoTransformacao::logaritmica);
        double erro1 = 0.0;
        double erro2 = 0.0;
        int ordemCerta = 0;
        for (std::size_t s = 0; s < semanasDoAno; ++s) {
            const auto& ps = modelo.getParametros(static_cast<int>(s));
            ASSERT_GE(ps.phi.size(), ordem) << "semana " << s;
            erro1 += std::abs(ps.phi[0] - (p.phi1 + p.phi1Sazonal * std::sin(fase(s))));
            erro2 += ordem == 2 ? ps.phi[1] - p.phi2 : 0.0;
            ordemCerta += ps.phi.size() == ordem ? 1 : 0;
            EXPECT_NEAR(ps.media, 4.0 + std::sin(fase(s)), 0.1) << "semana " << s;
        }
        EXPECT_LT(erro1 / semanasDoAno, 0.06);
        EXPECT_NEAR(erro2 / semanasDoAno, 0.0, 0.05);
        EXPECT_GE(ordemCerta, 45);
    }
}

TEST(ModeloPAR, IntervaloLogNormalComALarguraDoProcesso) {
    // Order 1 with phi 0.6 everywhere: one week ahead the log flow is normal with mean mu + sd * 0.6 * z
    // and deviation sd * 0.8 * sigma_z. The origin follows a high week (z above 2), where 0.6 * z shows.
    const solver::SerieSemanal serie(1900, semanasDoAno,
                                     teste::simula({.phi1 = 0.6, .phi2 = 0.0, .desvioRuido = 0.8}, 300, 13));
    const solver::Previsor previsor(serie, serie.tamanho(), TipoTransformacao::logaritmica);
    const std::size_t origem = serie.tamanho() - 8;
    const auto resumo = previsor.preve(serie.getVazoes(), origem, 0.95, solver::Simulador::trajetoriasPadrao);

    const auto s = static_cast<std::size_t>(serie.semana(origem));
    const std::size_t anterior = (s + semanasDoAno - 1) % semanasDoAno;
    const double desvio = 0.4 + 0.1 * std::cos(fase(s));
    const double zAnterior = (std::log(serie.vazao(origem - 1)) - 4.0 - std::sin(fase(anterior))) /
                             (0.4 + 0.1 * std::cos(fase(anterior)));
    const double centro = 4.0 + std::sin(fase(s)) + desvio * 0.6 * zAnterior;
    const double meiaLargura = 1.96 * desvio * 0.8;
    EXPECT_NEAR(std::log(resumo.mediana[0]), centro, 0.1);
    EXPECT_NEAR(std::log(resumo.intervalo.inferior[0]), centro - meiaLargura, 0.12);
    EXPECT_NEAR(std::log(resumo.intervalo.superior[0]), centro + meiaLargura, 0.12);
}

double pPerdaMedia(const std::vector<double>& y, double f, double erroRelativo, double erroQuadratico) {
    double soma = 0.0;
    for (const double v : y) {
        soma += std::abs(v - f) / (v * erroRelativo) + (v - f) * (v - f) / erroQuadratico;
    }
    return soma / static_cast<double>(y.size());
}

TEST(PontoPrevisto, ValorPerdaConjuntaMinimizaAPerdaDeCadaPeso) {
    std::mt19937 gerador(3);
    std::lognormal_distribution<double> lognormal(2.0, 0.8);
    std::vector<double> y(400);
    std::generate(y.begin(), y.end(), [&] { return lognormal(gerador); });
    std::sort(y.begin(), y.end());
    const double variancia = std::pow(solver::desvioPadrao(y), 2);
    // From relative error alone (the median weighted by 1 / y) to squared error alone (the mean).
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
    EXPECT_DOUBLE_EQ(solver::valorPerdaConjunta(std::vector<double>(5, 7.0), 0.5, 1.0), 7.0);
}

TEST(Retroteste, EscolheOLogaritmoEmVazoesLogNormaisEBateAClimatologia) {
    // A lognormal first-order autoregression, strongly skewed.
    const teste::Processo p{
        .phi1 = 0.8, .phi2 = 0.0, .desvioRuido = 0.6, .nivel = 3.0, .escala = 0.9, .escalaSazonal = 0.0};
    const solver::SerieSemanal serie(1950, semanasDoAno, teste::simula(p, 30, 21));
    const auto escolha = solver::escolheModelo(
        serie, serie.tamanho(), {TipoTransformacao::nenhuma, TipoTransformacao::logaritmica}, 0.95);
    ASSERT_EQ(escolha.candidatos.size(), 2u);
    const solver::Candidato& log = escolha.getEscolhido();
    EXPECT_EQ(log.tipo, TipoTransformacao::logaritmica);
    for (std::size_t h = 0; h < solver::horizonte; ++h) {
        EXPECT_TRUE(log.placar.superaEmAmbas(h, log.climatologia)) << h;
        // The 95% interval of the process it was built for, from the back-test's few paths.
        EXPECT_GT(log.placar.cobertura(h), 85.0) << h;
        EXPECT_LT(log.placar.cobertura(h), 99.0) << h;
    }
}

}  // namespace
