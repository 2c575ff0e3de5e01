#include "solver/Simulacao.h"

#include "solver/Estatistica.h"

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

Intervalo Simulador::intervalo(std::span<const double> vazoes, std::size_t origem, double confianca,
                               int trajetorias, const FaixasHorizonte* faixas) {
    const EstadoPassado inicial = modelo_.estado(vazoes, origem);
    std::array<std::vector<double>, horizonte> porSemana;
    for (auto& valores : porSemana) {
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
            porSemana[h][m] = modelo_.passo(semana, passado, inovacao, faixas ? &(*faixas)[h] : nullptr);
        }
    }
    Intervalo intervalo;
    const double cauda = (1.0 - confianca) / 2.0;
    for (std::size_t h = 0; h < horizonte; ++h) {
        intervalo.inferior[h] = quantil(porSemana[h], cauda);
        intervalo.superior[h] = quantil(porSemana[h], 1.0 - cauda);
    }
    return intervalo;
}

}  // namespace solver
