#pragma once

// Error measures of forecasts against what was observed, by week ahead.

#include "solver/ModeloPAR.h"

namespace solver {

class Placar {
public:
    void registra(std::size_t h, double previsto, double observado);
    void registraIntervalo(std::size_t h, double inferior, double superior, double observado);

    // Mean absolute percentage error, in percent.
    double mape(std::size_t h) const;
    double rmse(std::size_t h) const;
    // Share of the observations inside the interval, in percent.
    double cobertura(std::size_t h) const;
    // MAPE over all weeks ahead: the score by which models are chosen.
    double mapeMedio() const;
    std::size_t casos(std::size_t h) const { return casos_[h]; }

private:
    std::array<double, horizonte> somaErroPercentual_{};
    std::array<double, horizonte> somaQuadrados_{};
    std::array<std::size_t, horizonte> casos_{};
    std::array<std::size_t, horizonte> dentro_{};
    std::array<std::size_t, horizonte> intervalos_{};
};

}  // namespace solver
