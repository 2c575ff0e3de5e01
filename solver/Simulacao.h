#pragma once

// The forecast interval: paths of the model driven by innovations resampled from its own
// residuals of the same season, taken back through the transformation, so that the interval is as
// asymmetric as the flows are.

#include "solver/ModeloPAR.h"

#include <cstdint>
#include <random>

namespace solver {

struct Intervalo {
    Trajetoria inferior{};
    Trajetoria superior{};
};

class Simulador {
public:
    // A fixed seed makes every run of a station give the same interval.
    static constexpr std::uint64_t sementePadrao = 20240601;
    // Enough paths for the 2.5% and 97.5% quantiles to move by well under a percent between seeds.
    static constexpr int trajetoriasPadrao = 2000;

    explicit Simulador(const ModeloPAR& modelo, std::uint64_t semente = sementePadrao)
        : modelo_(modelo), gerador_(semente) {}

    // confianca is the central probability, from 0 to 1.
    Intervalo intervalo(std::span<const double> vazoes, std::size_t origem, double confianca,
                        int trajetorias = trajetoriasPadrao, const FaixasHorizonte* faixas = nullptr);

private:
    double pNucleoTriangular();

    const ModeloPAR& modelo_;
    std::mt19937_64 gerador_;
};

}  // namespace solver
