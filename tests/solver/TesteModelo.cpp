// The model recovers the parameters of processes it was built for, and its interval has the
// width the process gives.

#include "tests/solver/EstacaoTeste.h"

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
using teste::semanasDoAno;

double pFase(std::size_t semana) {
    return 2.0 * std::numbers::pi * static_cast<double>(semana) / semanasDoAno;
}

solver::ModeloPAR pAjusta(const teste::Processo& p, unsigned semente) {
    const solver::SerieSemanal serie(1900, semanasDoAno, teste::simula(p, 300, semente));
    return solver::ModeloPAR::ajusta(serie, serie.tamanho(), TipoTransformacao::logaritmica);
}

TEST(ModeloPAR, RecuperaCoeficientesEOrdemDeUmaAutorregressaoPeriodicaDePrimeiraOrdem) {
    teste::Processo p = teste::processo(0.0, 0.0, 0.6);
    for (std::size_t s = 0; s < semanasDoAno; ++s) {
        p.phi1[s] = 0.5 + 0.3 * std::sin(pFase(s));
    }
    const auto modelo = pAjusta(p, 11);
    double erro = 0.0;
    int ordemUm = 0;
    for (std::size_t s = 0; s < semanasDoAno; ++s) {
        const auto& ps = modelo.getParametros(static_cast<int>(s));
        ASSERT_FALSE(ps.phi.empty()) << "semana " << s;
        erro += std::abs(ps.phi[0] - p.phi1[s]);
        ordemUm += ps.phi.size() == 1 ? 1 : 0;
        EXPECT_NEAR(ps.media, 4.0 + std::sin(pFase(s)), 0.1) << "semana " << s;
    }
    EXPECT_LT(erro / semanasDoAno, 0.06);
    EXPECT_GE(ordemUm, 45);
}

TEST(ModeloPAR, RecuperaSegundaOrdem) {
    const auto modelo = pAjusta(teste::processo(0.55, 0.3, 0.5), 12);
    double soma1 = 0.0;
    double soma2 = 0.0;
    int ordemDois = 0;
    for (int s = 0; s < semanasDoAno; ++s) {
        const auto& phi = modelo.getParametros(s).phi;
        ASSERT_GE(phi.size(), 2u) << "semana " << s;
        soma1 += phi[0];
        soma2 += phi[1];
        ordemDois += phi.size() == 2 ? 1 : 0;
    }
    EXPECT_NEAR(soma1 / semanasDoAno, 0.55, 0.05);
    EXPECT_NEAR(soma2 / semanasDoAno, 0.3, 0.05);
    EXPECT_GE(ordemDois, 45);
}

TEST(ModeloPAR, IntervaloTemALarguraEAAssimetriaDoProcesso) {
    // Order 1 with phi 0.6 everywhere: one week ahead the log flow is normal with mean
    // mu + sd * 0.6 * z and deviation sd * 0.8 * sigma_z, so the flow's bounds are lognormal.
    const solver::SerieSemanal serie(1900, semanasDoAno,
                                     teste::simula(teste::processo(0.6, 0.0, 0.8), 300, 13));
    const solver::Previsor previsor(serie, serie.tamanho(), TipoTransformacao::logaritmica);
    const std::size_t origem = serie.tamanho() - 10;
    const auto resumo = previsor.preve(serie.getVazoes(), origem, 0.95, solver::Simulador::trajetoriasPadrao);
    const auto& intervalo = resumo.intervalo;

    const auto s = static_cast<std::size_t>(serie.semana(origem));
    const std::size_t anterior = (s + semanasDoAno - 1) % semanasDoAno;
    const double desvio = 0.4 + 0.1 * std::cos(pFase(s));
    const double zAnterior = (std::log(serie.vazao(origem - 1)) - 4.0 - std::sin(pFase(anterior))) /
                             (0.4 + 0.1 * std::cos(pFase(anterior)));
    const double centro = 4.0 + std::sin(pFase(s)) + desvio * 0.6 * zAnterior;
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

TEST(Transformacao, IdaEVoltaDeCadaTipoEExpoenteBoxCoxEstimado) {
    for (const double lambda : {0.0, 0.25, 0.5, 1.0, 1.5}) {
        const solver::TransformacaoSemana t{TipoTransformacao::boxCox, lambda};
        for (const double x : {0.003, 1.0, 37.5, 12000.0}) {
            EXPECT_NEAR(t.inverte(t.aplica(x)), x, 1e-9 * x) << lambda << " " << x;
        }
    }
    const solver::TransformacaoSemana log{TipoTransformacao::logaritmica, 0.0};
    EXPECT_DOUBLE_EQ(log.inverte(log.aplica(42.0)), 42.0);
    EXPECT_DOUBLE_EQ((solver::TransformacaoSemana{TipoTransformacao::nenhuma, 1.0}.aplica(42.0)), 42.0);
    // Below the Box-Cox origin there is no flow.
    EXPECT_EQ((solver::TransformacaoSemana{TipoTransformacao::boxCox, 0.5}.inverte(-3.0)), 0.0);

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

TEST(Estatistica, QuantilInterpolaEntreEstatisticasDeOrdem) {
    const std::vector<double> v = {4.0, 1.0, 3.0, 2.0};
    EXPECT_DOUBLE_EQ(solver::quantil(v, 0.5), 2.5);
    EXPECT_DOUBLE_EQ(solver::quantil(v, 0.0), 1.0);
    EXPECT_DOUBLE_EQ(solver::quantil(v, 1.0), 4.0);
    EXPECT_DOUBLE_EQ(solver::quantil({10.0, 0.0}, 0.25), 2.5);
}

}  // namespace
