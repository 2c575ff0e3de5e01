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
    std::size_t casos(std::size_t h) const { return semanas_[h].casos; }

    // MAPE and RMSE of the week ahead, each as a fraction of the reference's on the same weeks,
    // summed: 2 is as good as the reference, and less is better.
    double razaoConjunta(std::size_t h, const Placar& referencia) const;
    // Whether both measures of the week ahead are below the reference's.
    bool superaEmAmbas(std::size_t h, const Placar& referencia) const;
    // The mean of razaoConjunta over the weeks ahead: the score by which models are compared.
    double indice(const Placar& referencia) const;

    // Takes the week ahead h from another scoreboard, for forecasts whose rule changes with the
    // week ahead.
    void adotaSemana(std::size_t h, const Placar& outro) { semanas_[h] = outro.semanas_[h]; }

private:
    struct Somas {
        double erroPercentual = 0.0;
        double quadrados = 0.0;
        std::size_t casos = 0;
        std::size_t dentro = 0;
        std::size_t intervalos = 0;
    };
    std::array<Somas, horizonte> semanas_{};
};

}  // namespace solver
