#include "solver/Climatologia.h"

#include "solver/SerieSemanal.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace solver {

Climatologia::Climatologia(const SerieSemanal& serie, std::size_t fim)
    : medias_(static_cast<std::size_t>(serie.getNumSemanas()), 0.0) {
    std::vector<std::size_t> anos(medias_.size(), 0);
    for (std::size_t t = 0; t < fim; ++t) {
        medias_[static_cast<std::size_t>(serie.semana(t))] += serie.vazao(t);
        ++anos[static_cast<std::size_t>(serie.semana(t))];
    }
    for (std::size_t s = 0; s < medias_.size(); ++s) {
        medias_[s] /= static_cast<double>(std::max<std::size_t>(anos[s], 1));
    }
    for (std::size_t t = 0; t < fim; ++t) {
        const double erro = previsao(serie.semana(t)) - serie.vazao(t);
        erroRelativo_ += std::abs(erro) / serie.vazao(t);
        erroQuadratico_ += erro * erro;
    }
    // A station whose flows never vary is forecast exactly by its means; the scales must still
    // divide.
    const double n = static_cast<double>(std::max<std::size_t>(fim, 1));
    erroRelativo_ = std::max(erroRelativo_ / n, std::numeric_limits<double>::min());
    erroQuadratico_ = std::max(erroQuadratico_ / n, std::numeric_limits<double>::min());
}

}  // namespace solver
