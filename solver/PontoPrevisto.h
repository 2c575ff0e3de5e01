#pragma once

// The forecast of each week ahead as one flow, taken from the scenarios. Two values bound the
// choice. The median is the best forecast under absolute error. The joint-loss value minimises
// the expected relative error plus the expected squared error, each divided by climatology's
// error of that kind, and so serves both measures forecasts are judged by: where the scenarios
// are skewed, the relative error pulls it below the median at low flows and the squared error
// towards the mean in floods. The forecast lies between the two, at weights that the back-test
// chooses.

#include "solver/ModeloPAR.h"
#include "solver/Simulacao.h"

#include <span>

namespace solver {

class Climatologia;

struct Intervalo {
    Trajetoria inferior{};
    Trajetoria superior{};
};

// The weights the back-test tries: first the joint-loss value itself (1), the forecast unless the
// back-test shows clearly that one nearer the median (0) does better.
inline constexpr std::array<double, 5> pesosCandidatos = {1.0, 0.75, 0.5, 0.25, 0.0};
using PesosPonto = std::array<double, horizonte>;  // by week ahead

// The value f that minimises the mean over the flows y (in increasing order, all positive) of
// |y - f| / (y erroRelativo) + (y - f)^2 / erroQuadratico.
double valorPerdaConjunta(std::span<const double> ordenados, double erroRelativo, double erroQuadratico);

struct ResumoCenarios {
    Trajetoria mediana{};
    Trajetoria perdaConjunta{};
    Intervalo intervalo;

    double ponto(std::size_t h, double peso) const {
        return mediana[h] + peso * (perdaConjunta[h] - mediana[h]);
    }
    Trajetoria ponto(const PesosPonto& pesos) const;
};

// confianca is the interval's central probability, from 0 to 1.
ResumoCenarios resumeCenarios(const Cenarios& cenarios, const Climatologia& climatologia, double confianca);

}  // namespace solver
