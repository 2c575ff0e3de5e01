#pragma once

// The mean flow of each week of the year over the fitted years: the reference that every forecast
// must beat, and the scale of the two errors by which forecasts are judged.

#include <cstddef>
#include <vector>

namespace solver {

class SerieSemanal;

class Climatologia {
public:
    // From the positions [0, fim) of the series.
    Climatologia(const SerieSemanal& serie, std::size_t fim);

    double previsao(int semana) const { return medias_[static_cast<std::size_t>(semana)]; }
    // Its mean absolute relative error (a fraction) and mean squared error over those positions.
    double getErroRelativo() const { return erroRelativo_; }
    double getErroQuadratico() const { return erroQuadratico_; }

private:
    std::vector<double> medias_;
    double erroRelativo_ = 0.0;
    double erroQuadratico_ = 0.0;
};

}  // namespace solver
