#include "solver/ModeloPAR.h"

#include "solver/Estatistica.h"
#include "solver/SerieSemanal.h"

#include <Eigen/Dense>

#include <algorithm>
#include <cmath>
#include <limits>

namespace solver {

namespace {

// Innovations are resampled from the week and this many weeks on each side, so that each draw
// keeps the season's skewness without resting on one week's few years.
constexpr int semanasVizinhasResiduos = 2;
// Each week's autoregression is estimated on its own years and those of the weeks beside it: the
// coefficients change slowly through the year, and the pooled sample steadies them.
constexpr int semanasVizinhasAutorregressao = 1;
// The mean and deviation of each week are averaged over this many weeks on each side.
constexpr int semanasVizinhasPadronizacao = 1;
// Silverman's factor for the bandwidth of the kernel that smooths the resampled innovations.
constexpr double fatorSilverman = 0.9;
// Observations per lag that an autoregression needs before it may use that lag.
constexpr std::size_t observacoesPorOrdem = 8;
// A week whose transformed flows hardly vary (a constant series) still standardises.
constexpr double desvioMinimo = 1e-9;
// The forecast floor, as a fraction of the week's smallest flow in the fit.
constexpr double fracaoPiso = 0.5;

std::size_t pVizinha(int semana, int deslocamento, int numSemanas) {
    return static_cast<std::size_t>(((semana + deslocamento) % numSemanas + numSemanas) % numSemanas);
}

// Vectors and matrices of at most ordemMaxima rows, kept on the stack: a fit solves thousands.
using VetorLags = Eigen::Matrix<double, Eigen::Dynamic, 1, 0, ordemMaxima, 1>;
using MatrizLags = Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, 0, ordemMaxima, ordemMaxima>;

struct Autorregressao {
    std::vector<double> phi;
    double desvioRuido = 1.0;
    MatrizLags inversaProdutos;  // (X'X)^-1 of the chosen lags, for the leverages
};

// Least squares of z[t] on z[t-1..t-p] for the targets given, for every order up to the cap, and
// the one with the smallest Bayesian information criterion. The cross products are formed once;
// each order solves its own leading block.
Autorregressao pEscolheOrdem(const std::vector<double>& z, const std::vector<std::size_t>& alvos) {
    const auto n = static_cast<double>(alvos.size());
    const int maxima = std::clamp(static_cast<int>(alvos.size() / observacoesPorOrdem), 0, ordemMaxima);
    Eigen::Matrix<double, ordemMaxima, ordemMaxima> xx =
        Eigen::Matrix<double, ordemMaxima, ordemMaxima>::Zero();
    Eigen::Matrix<double, ordemMaxima, 1> xy = Eigen::Matrix<double, ordemMaxima, 1>::Zero();
    double yy = 0.0;
    for (const std::size_t t : alvos) {
        Eigen::Matrix<double, ordemMaxima, 1> x;
        for (int k = 0; k < ordemMaxima; ++k) {
            x[k] = z[t - 1 - static_cast<std::size_t>(k)];
        }
        xx.noalias() += x * x.transpose();
        xy += x * z[t];
        yy += z[t] * z[t];
    }
    Autorregressao melhor;
    double melhorCriterio = std::numeric_limits<double>::infinity();
    for (int p = 0; p <= maxima; ++p) {
        VetorLags b = VetorLags::Zero(p);
        if (p > 0) {
            b = xx.topLeftCorner(p, p).ldlt().solve(xy.head(p));
        }
        const double somaQuadrados = std::max(yy - b.dot(xy.head(p)), 1e-12 * n);
        const double criterio = n * std::log(somaQuadrados / n) + p * std::log(n);
        if (criterio < melhorCriterio) {
            melhorCriterio = criterio;
            melhor.phi.assign(b.data(), b.data() + p);
            melhor.desvioRuido = std::sqrt(somaQuadrados / std::max(n - p, 1.0));
            melhor.inversaProdutos = xx.topLeftCorner(p, p).inverse();
        }
    }
    return melhor;
}

}  // namespace

void avancaEstado(EstadoPassado& passado, double z) {
    std::copy_backward(passado.begin(), passado.end() - 1, passado.end());
    passado.front() = z;
}

ModeloPAR ModeloPAR::ajusta(const SerieSemanal& serie, std::size_t fim, TipoTransformacao tipo) {
    ModeloPAR modelo;
    modelo.tipo_ = tipo;
    modelo.semanas_.resize(static_cast<std::size_t>(serie.getNumSemanas()));
    modelo.pAjustaTransformacoes(serie, fim);
    std::vector<double> z(fim);
    for (std::size_t t = 0; t < fim; ++t) {
        z[t] = modelo.padroniza(serie.vazao(t), serie.semana(t));
    }
    modelo.pAjustaAutorregressoes(z, fim);
    return modelo;
}

void ModeloPAR::pAjustaTransformacoes(const SerieSemanal& serie, std::size_t fim) {
    const int numSemanas = getNumSemanas();
    const auto vazoesDaSemana = [&](int s) {
        std::vector<double> vazoes;
        for (auto t = static_cast<std::size_t>(s); t < fim; t += static_cast<std::size_t>(numSemanas)) {
            vazoes.push_back(serie.vazao(t));
        }
        return vazoes;
    };
    for (int s = 0; s < numSemanas; ++s) {
        const std::vector<double> vazoes = vazoesDaSemana(s);
        ParametrosSemana& p = semanas_[static_cast<std::size_t>(s)];
        p.transformacao = ajustaTransformacao(tipo_, vazoes);
        p.vazaoPiso = fracaoPiso * *std::min_element(vazoes.begin(), vazoes.end());
        // The mean and the variance of each week are averaged with those of the weeks beside it,
        // each in this week's transformation: a record of a few decades gives each week's mean
        // an error of a fifth of its deviation, which the neighbours cut down.
        double somaMedias = 0.0;
        double somaVariancias = 0.0;
        for (int d = -semanasVizinhasPadronizacao; d <= semanasVizinhasPadronizacao; ++d) {
            std::vector<double> y = vazoesDaSemana(static_cast<int>(pVizinha(s, d, numSemanas)));
            for (double& v : y) {
                v = p.transformacao.aplica(v);
            }
            somaMedias += media(y);
            const double desvio = desvioPadrao(y);
            somaVariancias += desvio * desvio;
        }
        p.media = somaMedias / (2 * semanasVizinhasPadronizacao + 1);
        p.desvio = std::max(std::sqrt(somaVariancias / (2 * semanasVizinhasPadronizacao + 1)), desvioMinimo);
    }
}

void ModeloPAR::pAjustaAutorregressoes(const std::vector<double>& z, std::size_t fim) {
    const auto numSemanas = semanas_.size();
    std::vector<std::vector<double>> residuosDaSemana(numSemanas);
    for (std::size_t s = 0; s < numSemanas; ++s) {
        std::vector<std::size_t> alvos;
        std::vector<std::size_t> daSemana;
        for (int d = -semanasVizinhasAutorregressao; d <= semanasVizinhasAutorregressao; ++d) {
            // Targets need all lags; the first year's first weeks have none before them.
            for (std::size_t t = pVizinha(static_cast<int>(s), d, static_cast<int>(numSemanas)); t < fim;
                 t += numSemanas) {
                if (t >= static_cast<std::size_t>(ordemMaxima)) {
                    alvos.push_back(t);
                    if (d == 0) {
                        daSemana.push_back(t);
                    }
                }
            }
        }
        const Autorregressao ar = pEscolheOrdem(z, alvos);
        ParametrosSemana& p = semanas_[s];
        p.phi = ar.phi;
        p.desvioRuido = std::max(ar.desvioRuido, desvioMinimo);
        for (const std::size_t t : daSemana) {
            double previsto = 0.0;
            VetorLags x(static_cast<Eigen::Index>(p.phi.size()));
            for (std::size_t k = 0; k < p.phi.size(); ++k) {
                previsto += p.phi[k] * z[t - 1 - k];
                x[static_cast<Eigen::Index>(k)] = z[t - 1 - k];
            }
            // A fitted residual is smaller than the error of a new forecast by its leverage;
            // dividing by sqrt(1 - h) gives back the spread of a new one.
            const double alavanca = p.phi.empty() ? 0.0 : std::min(x.dot(ar.inversaProdutos * x), 0.9);
            residuosDaSemana[s].push_back((z[t] - previsto) / (p.desvioRuido * std::sqrt(1.0 - alavanca)));
        }
    }
    pAgrupaResiduos(residuosDaSemana);
}

void ModeloPAR::pAgrupaResiduos(const std::vector<std::vector<double>>& residuosDaSemana) {
    const int numSemanas = getNumSemanas();
    residuos_.assign(semanas_.size(), {});
    larguraNucleo_.assign(semanas_.size(), 0.0);
    for (int s = 0; s < numSemanas; ++s) {
        auto& grupo = residuos_[static_cast<std::size_t>(s)];
        for (int d = -semanasVizinhasResiduos; d <= semanasVizinhasResiduos; ++d) {
            const auto& vizinha = residuosDaSemana[pVizinha(s, d, numSemanas)];
            grupo.insert(grupo.end(), vizinha.begin(), vizinha.end());
        }
        if (grupo.empty()) {
            grupo.push_back(0.0);
        }
        // Resampling a season's few innovations alone leaves gaps between them and cuts the tails
        // at the largest one seen: a smoothed bootstrap fills both.
        larguraNucleo_[static_cast<std::size_t>(s)] =
            fatorSilverman * desvioPadrao(grupo) * std::pow(static_cast<double>(grupo.size()), -0.2);
    }
}

double ModeloPAR::padroniza(double vazao, int semana) const {
    const ParametrosSemana& p = getParametros(semana);
    return (p.transformacao.aplica(vazao) - p.media) / p.desvio;
}

double ModeloPAR::vazao(double z, int semana) const {
    const ParametrosSemana& p = getParametros(semana);
    return std::max(p.transformacao.inverte(p.media + p.desvio * z), p.vazaoPiso);
}

EstadoPassado ModeloPAR::estado(std::span<const double> vazoes, std::size_t origem) const {
    EstadoPassado passado{};
    const auto numSemanas = static_cast<std::size_t>(getNumSemanas());
    for (std::size_t k = 0; k < passado.size() && k < origem; ++k) {
        const std::size_t t = origem - 1 - k;
        passado[k] = padroniza(vazoes[t], static_cast<int>(t % numSemanas));
    }
    return passado;
}

double ModeloPAR::esperado(int semana, const EstadoPassado& passado) const {
    const ParametrosSemana& p = getParametros(semana);
    double z = 0.0;
    for (std::size_t k = 0; k < p.phi.size(); ++k) {
        z += p.phi[k] * passado[k];
    }
    return z;
}

double ModeloPAR::passo(int semana, EstadoPassado& passado, double inovacao, const Faixa* faixa) const {
    double z = esperado(semana, passado) + inovacao * getParametros(semana).desvioRuido;
    double fluxo = vazao(z, semana);
    if (faixa != nullptr && (fluxo < faixa->inferior || fluxo > faixa->superior)) {
        fluxo = std::clamp(fluxo, faixa->inferior, faixa->superior);
        z = padroniza(fluxo, semana);
    }
    avancaEstado(passado, z);
    return fluxo;
}

int ModeloPAR::semanaAFrente(std::size_t origem, std::size_t h) const {
    return static_cast<int>((origem + h) % semanas_.size());
}

}  // namespace solver
