// The model recovers the parameters of processes it was built for, and its interval has the
// width the process gives.

#include "solver/Estatistica.h"
#include "solver/ModeloPAR.h"
#include "solver/Previsor.h"
#include "solver/SerieSemanal.h"
#include "solver/Transformacao.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

namespace {

using solver::TipoTransformacao;

constexpr int semanas = 52;

struct Processo {
    std::vector<double> phi1;  // per week
    std::vector<double> phi2;
    double desvioRuido;
};

// Log flows of a periodic autoregression of order 2 with a seasonal mean and deviation.
solver::SerieSemanal pSimula(const Processo& p, int anos, unsigned semente) {
    std::mt19937 gerador(semente);
    std::normal_distribution<double> normal;
    std::vector<double> vazoes;
    double z1 = 0.0;
    double z2 = 0.0;
    for (int t = 0; t < anos * semanas; ++t) {
        const auto s = static_cast<std::size_t>(t % semanas);
        const double z = p.phi1[s] * z1 + p.phi2[s] * z2 + p.desvioRuido * normal(gerador);
        z2 = z1;
        z1 = z;
        const double fase = 2.0 * std::numbers::pi * static_cast<double>(s) / semanas;
        vazoes.push_back(std::exp(4.0 + std::sin(fase) + (0.4 + 0.1 * std::cos(fase)) * z));
    }
    return solver::SerieSemanal(1900, semanas, std::move(vazoes));
}

TEST(ModeloPAR, RecuperaCoeficientesEOrdemDeUmaAutorregressaoPeriodicaDePrimeiraOrdem) {
    Processo p{std::vector<double>(semanas), std::vector<double>(semanas, 0.0), 0.6};
    for (int s = 0; s < semanas; ++s) {
        p.phi1[static_cast<std::size_t>(s)] = 0.5 + 0.3 * std::sin(2.0 * std::numbers::pi * s / semanas);
    }
    const auto serie = pSimula(p, 300, 11);
    const auto modelo = solver::ModeloPAR::ajusta(serie, serie.tamanho(), TipoTransformacao::logaritmica);
    double erro = 0.0;
    int ordemUm = 0;
    for (int s = 0; s < semanas; ++s) {
        const auto& ps = modelo.getParametros(s);
        ASSERT_FALSE(ps.phi.empty()) << "semana " << s;
        erro += std::abs(ps.phi[0] - p.phi1[static_cast<std::size_t>(s)]);
        ordemUm += ps.phi.size() == 1 ? 1 : 0;
        // The seasonal mean of the log flows is 4 + sin.
        EXPECT_NEAR(ps.media, 4.0 + std::sin(2.0 * std::numbers::pi * s / semanas), 0.1);
    }
    EXPECT_LT(erro / semanas, 0.06);
    EXPECT_GE(ordemUm, 45);
}

TEST(ModeloPAR, RecuperaSegundaOrdem) {
    const Processo p{std::vector<double>(semanas, 0.55), std::vector<double>(semanas, 0.3), 0.5};
    const auto serie = pSimula(p, 300, 12);
    const auto modelo = solver::ModeloPAR::ajusta(serie, serie.tamanho(), TipoTransformacao::logaritmica);
    double soma1 = 0.0;
    double soma2 = 0.0;
    int ordemDois = 0;
    for (int s = 0; s < semanas; ++s) {
        const auto& phi = modelo.getParametros(s).phi;
        ASSERT_GE(phi.size(), 2u) << "semana " << s;
        soma1 += phi[0];
        soma2 += phi[1];
        ordemDois += phi.size() == 2 ? 1 : 0;
    }
    EXPECT_NEAR(soma1 / semanas, 0.55, 0.05);
    EXPECT_NEAR(soma2 / semanas, 0.3, 0.05);
    EXPECT_GE(ordemDois, 45);
}

TEST(ModeloPAR, IntervaloTemALarguraEAAssimetriaDoProcesso) {
    // Order 1 with phi 0.6 everywhere: one week ahead the log flow is normal with mean
    // mu + sd * 0.6 * z and deviation sd * 0.8 * sigma_z, so the flow's bounds are lognormal.
    const Processo p{std::vector<double>(semanas, 0.6), std::vector<double>(semanas, 0.0), 0.8};
    const auto serie = pSimula(p, 300, 13);
    const solver::Previsor previsor(serie, serie.tamanho(), TipoTransformacao::logaritmica);
    const std::size_t origem = serie.tamanho() - 10;
    const auto resumo = previsor.preve(serie.getVazoes(), origem, 0.95, solver::Simulador::trajetoriasPadrao);
    const auto& intervalo = resumo.intervalo;

    const auto s = static_cast<std::size_t>(serie.semana(origem));
    const double fase = 2.0 * std::numbers::pi * static_cast<double>(s) / semanas;
    const double desvio = 0.4 + 0.1 * std::cos(fase);
    const double zAnterior =
        (std::log(serie.vazao(origem - 1)) - 4.0 -
         std::sin(2.0 * std::numbers::pi * static_cast<double>((s + semanas - 1) % semanas) / semanas)) /
        (0.4 +
         0.1 * std::cos(2.0 * std::numbers::pi * static_cast<double>((s + semanas - 1) % semanas) / semanas));
    const double centro = 4.0 + std::sin(fase) + desvio * 0.6 * zAnterior;
    const double meiaLargura = 1.96 * desvio * 0.8;
    EXPECT_NEAR(std::log(resumo.mediana[0]), centro, 0.1);
    EXPECT_NEAR(std::log(intervalo.inferior[0]), centro - meiaLargura, 0.12);
    EXPECT_NEAR(std::log(intervalo.superior[0]), centro + meiaLargura, 0.12);
    // Back-transformed, the upper side is the wider one.
    EXPECT_GT(intervalo.superior[0] - resumo.mediana[0], resumo.mediana[0] - intervalo.inferior[0]);
    // A lognormal's mean lies above its median; the joint-loss value between the two losses'
    // optima, below the mean.
    EXPECT_LT(resumo.perdaConjunta[0], std::exp(centro + 0.5 * meiaLargura * meiaLargura / (1.96 * 1.96)));
    // The same seed gives the same scenarios, whatever was forecast before.
    EXPECT_EQ(previsor.preve(serie.getVazoes(), origem, 0.95, solver::Simulador::trajetoriasPadrao)
                  .intervalo.superior,
              intervalo.superior);
}

TEST(Transformacao, IdaEVoltaDeCadaTipo) {
    for (const double lambda : {0.0, 0.25, 0.5, 1.0, 1.5}) {
        const solver::TransformacaoSemana t{TipoTransformacao::boxCox, lambda};
        for (const double x : {0.003, 1.0, 37.5, 12000.0}) {
            EXPECT_NEAR(t.inverte(t.aplica(x)), x, 1e-9 * x) << lambda << " " << x;
        }
    }
    const solver::TransformacaoSemana log{TipoTransformacao::logaritmica, 0.0};
    const solver::TransformacaoSemana nenhuma{TipoTransformacao::nenhuma, 1.0};
    EXPECT_DOUBLE_EQ(log.inverte(log.aplica(42.0)), 42.0);
    EXPECT_DOUBLE_EQ(nenhuma.aplica(42.0), 42.0);
    // Below the Box-Cox origin there is no flow.
    EXPECT_EQ((solver::TransformacaoSemana{TipoTransformacao::boxCox, 0.5}.inverte(-3.0)), 0.0);
}

TEST(Transformacao, EstimaOExpoenteBoxCox) {
    std::mt19937 gerador(5);
    // Skewed enough for the likelihood to tell the exponents apart.
    std::normal_distribution<double> normal(5.0, 1.5);
    for (const double lambda : {0.5, 1.0}) {
        const solver::TransformacaoSemana t{TipoTransformacao::boxCox, lambda};
        std::vector<double> vazoes;
        for (int i = 0; i < 2000; ++i) {
            vazoes.push_back(t.inverte(normal(gerador)));
        }
        EXPECT_NEAR(solver::estimaLambdaBoxCox(vazoes), lambda, 0.1);
    }
}

TEST(Transformacao, CandidatasDeCadaCodigo) {
    using enum TipoTransformacao;
    EXPECT_EQ(solver::candidatas(0), (std::vector{nenhuma}));
    EXPECT_EQ(solver::candidatas(1), (std::vector{logaritmica, nenhuma}));
    EXPECT_EQ(solver::candidatas(2), (std::vector{boxCox, nenhuma}));
    EXPECT_EQ(solver::candidatas(3), (std::vector{logaritmica}));
    EXPECT_EQ(solver::candidatas(4), (std::vector{boxCox}));
    EXPECT_EQ(solver::candidatas(5), (std::vector{logaritmica, boxCox, nenhuma}));
}

TEST(Estatistica, QuantilInterpolaEntreEstatisticasDeOrdem) {
    EXPECT_DOUBLE_EQ(solver::quantil({4.0, 1.0, 3.0, 2.0}, 0.5), 2.5);
    EXPECT_DOUBLE_EQ(solver::quantil({4.0, 1.0, 3.0, 2.0}, 0.0), 1.0);
    EXPECT_DOUBLE_EQ(solver::quantil({4.0, 1.0, 3.0, 2.0}, 1.0), 4.0);
    EXPECT_DOUBLE_EQ(solver::quantil({10.0, 0.0}, 0.25), 2.5);
}

}  // namespace
