#pragma once

// Scenarios of the weeks ahead: paths of the model driven by innovations resampled from its own
// residuals of the same season, taken back through the transformation, so that they are as
// asymmetric as the flows are.

#include "solver/ModeloPAR.h"

#include <cstdint>
#include <random>
#include <vector>

namespace solver {

// The simulated flows of each week ahead, in increasing order.
using Cenarios = std::array<std::vector<double>, horizonte>;

class Simulador {
public:
    // A fixed seed makes every run of a station give the same scenarios.
    static constexpr std::uint64_t sementePadrao = 20240601;
    // Enough paths for the 2.5% and 97.5% quantiles to move by well under a percent between seeds.
    static constexpr int trajetoriasPadrao = 2000;

    explicit Simulador(const ModeloPAR& modelo, std::uint64_t semente = sementePadrao)
        : modelo_(modelo), gerador_(semente) {}

    // From the flows before origem; within the bounds of each week ahead when there are any.
    Cenarios simula(std::span<const double> vazoes, std::size_t origem, int trajetorias,
                    const FaixasHorizonte* faixas = nullptr);

private:
    const ModeloPAR& modelo_;
    std::mt19937_64 gerador_;
};

}  // namespace solver
