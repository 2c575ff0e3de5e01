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

double quantil(std::vector<double> x, double p) {
    if (x.empty()) {
        return 0.0;
    }
    // Selection instead of a full sort: only the two order statistics around p are needed.
    const double posicao = std::clamp(p, 0.0, 1.0) * static_cast<double>(x.size() - 1);
    const auto abaixo = static_cast<std::size_t>(std::floor(posicao));
    const auto alvo = x.begin() + static_cast<std::ptrdiff_t>(abaixo);
    std::nth_element(x.begin(), alvo, x.end());
    const double inferior = *alvo;
    const double superior = abaixo + 1 < x.size() ? *std::min_element(alvo + 1, x.end()) : inferior;
    return inferior + (posicao - static_cast<double>(abaixo)) * (superior - inferior);
}

}  // namespace solver
