#include "solver/Placar.h"

#include <cmath>
#include <limits>

namespace solver {

namespace {

double pRazao(double soma, std::size_t n) {
    return n == 0 ? std::numeric_limits<double>::quiet_NaN() : soma / static_cast<double>(n);
}

}  // namespace

void Placar::registra(std::size_t h, double previsto, double observado) {
    somaErroPercentual_[h] += 100.0 * std::abs(previsto - observado) / observado;
    somaQuadrados_[h] += (previsto - observado) * (previsto - observado);
    ++casos_[h];
}

void Placar::registraIntervalo(std::size_t h, double inferior, double superior, double observado) {
    dentro_[h] += observado >= inferior && observado <= superior ? 1 : 0;
    ++intervalos_[h];
}

double Placar::mape(std::size_t h) const {
    return pRazao(somaErroPercentual_[h], casos_[h]);
}

double Placar::rmse(std::size_t h) const {
    return std::sqrt(pRazao(somaQuadrados_[h], casos_[h]));
}

double Placar::cobertura(std::size_t h) const {
    return 100.0 * pRazao(static_cast<double>(dentro_[h]), intervalos_[h]);
}

double Placar::mapeMedio() const {
    double soma = 0.0;
    for (std::size_t h = 0; h < horizonte; ++h) {
        soma += mape(h);
    }
    return soma / horizonte;
}

}  // namespace solver
