#include "solver/Estatistica.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace solver {

double media(std::span<const double> x) {
    return x.empty() ? 0.0 : std::accumulate(x.begin(), x.end(), 0.0) / static_cast<double>(x.size());
}

double desvioPadrao(std::span<const double> x) {
    if (x.size() < 2) {
        return 0.0;
    }
    const double m = media(x);
    double soma = 0.0;
    for (const double v : x) {
        soma += (v - m) * (v - m);
    }
    return std::sqrt(soma / static_cast<double>(x.size() - 1));
}

double quantilOrdenado(std::span<const double> ordenados, double p) {
    if (ordenados.empty()) {
        return 0.0;
    }
    const double posicao = std::clamp(p, 0.0, 1.0) * static_cast<double>(ordenados.size() - 1);
    const auto abaixo = static_cast<std::size_t>(std::floor(posicao));
    const double inferior = ordenados[abaixo];
    const double superior = abaixo + 1 < ordenados.size() ? ordenados[abaixo + 1] : inferior;
    return inferior + (posicao - static_cast<double>(abaixo)) * (superior - inferior);
}

double quantil(std::vector<double> x, double p) {
    std::sort(x.begin(), x.end());
    return quantilOrdenado(x, p);
}

}  // namespace solver
