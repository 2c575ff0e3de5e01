#include "solver/Simulacao.h"

#include <algorithm>
#include <cmath>

namespace solver {

double Simulador::pNucleoTriangular() {
    // The sum of two uniforms, centred and scaled to unit variance: a triangular kernel, which
    // costs one draw of the generator instead of a normal's several.
    constexpr double escala32 = 1.0 / 4294967296.0;
    const std::uint64_t bits = gerador_();
    const double u1 = static_cast<double>(bits >> 32) * escala32;
    const double u2 = static_cast<double>(bits & 0xFFFFFFFFu) * escala32;
    return std::sqrt(6.0) * (u1 + u2 - 1.0);
}

Cenarios Simulador::simula(std::span<const double> vazoes, std::size_t origem, int trajetorias,
                           const FaixasHorizonte* faixas) {
    const EstadoPassado inicial = modelo_.estado(vazoes, origem);
    Cenarios cenarios;
    for (auto& valores : cenarios) {
        valores.resize(static_cast<std::size_t>(trajetorias));
    }
    for (std::size_t m = 0; m < static_cast<std::size_t>(trajetorias); ++m) {
        EstadoPassado passado = inicial;
        for (std::size_t h = 0; h < horizonte; ++h) {
            const int semana = modelo_.semanaAFrente(origem, h);
            const auto& residuos = modelo_.getResiduos(semana);
            std::uniform_int_distribution<std::size_t> sorteio(0, residuos.size() - 1);
            // The kernel's jitter is scaled back out, so the smoothing keeps the innovations' variance.
            const double largura = modelo_.getLarguraNucleo(semana);
            const double inovacao = (residuos[sorteio(gerador_)] + largura * pNucleoTriangular()) /
                                    std::sqrt(1.0 + largura * largura);
            cenarios[h][m] = modelo_.passo(semana, passado, inovacao, faixas ? &(*faixas)[h] : nullptr);
        }
    }
    for (auto& valores : cenarios) {
        std::sort(valores.begin(), valores.end());
    }
    return cenarios;
}

}  // namespace solver
