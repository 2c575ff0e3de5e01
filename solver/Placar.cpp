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
    Somas& s = semanas_[h];
    s.erroPercentual += 100.0 * std::abs(previsto - observado) / observado;
    s.quadrados += (previsto - observado) * (previsto - observado);
    ++s.casos;
}

void Placar::registraIntervalo(std::size_t h, double inferior, double superior, double observado) {
    Somas& s = semanas_[h];
    s.dentro += observado >= inferior && observado <= superior ? 1 : 0;
    ++s.intervalos;
}

double Placar::mape(std::size_t h) const {
    return pRazao(semanas_[h].erroPercentual, semanas_[h].casos);
}

double Placar::rmse(std::size_t h) const {
    return std::sqrt(pRazao(semanas_[h].quadrados, semanas_[h].casos));
}

double Placar::cobertura(std::size_t h) const {
    return 100.0 * pRazao(static_cast<double>(semanas_[h].dentro), semanas_[h].intervalos);
}

double Placar::razaoConjunta(std::size_t h, const Placar& referencia) const {
    return mape(h) / referencia.mape(h) + rmse(h) / referencia.rmse(h);
}

bool Placar::superaEmAmbas(std::size_t h, const Placar& referencia) const {
    return mape(h) < referencia.mape(h) && rmse(h) < referencia.rmse(h);
}

double Placar::indice(const Placar& referencia) const {
    double soma = 0.0;
    for (std::size_t h = 0; h < horizonte; ++h) {
        soma += razaoConjunta(h, referencia);
    }
    return soma / horizonte;
}

}  // namespace solver
