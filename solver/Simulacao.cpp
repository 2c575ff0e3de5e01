#include "solver/Simulacao.h"

#include <algorithm>
#include <cmath>

namespace solver {

namespace {

// One draw of the generator serves a whole step. Its upper 32 bits pick the residual, by
// multiplication and shift; its two lower 16-bit halves are two uniforms whose sum, centred and
// scaled to unit variance, is a triangular kernel, cheaper than a normal and as good a smoother.
struct Sorteado {
    std::size_t posicao;
    double nucleo;
};

Sorteado pSorteia(std::uint64_t bits, std::size_t quantos) {
    constexpr double escala16 = 1.0 / 65536.0;
    const double u1 = (static_cast<double>((bits >> 16) & 0xFFFFu) + 0.5) * escala16;
    const double u2 = (static_cast<double>(bits & 0xFFFFu) + 0.5) * escala16;
    return {static_cast<std::size_t>(((bits >> 32) * quantos) >> 32), std::sqrt(6.0) * (u1 + u2 - 1.0)};
}

}  // namespace

Cenarios Simulador::simula(std::span<const double> vazoes, std::size_t origem, int trajetorias,
                           const FaixasHorizonte* faixas) {
    const EstadoPassado inicial = modelo_.estado(vazoes, origem);
    Cenarios cenarios;
    for (auto& valores : cenarios) {
        valores.resize(static_cast<std::size_t>(trajetorias));
    }
    // What each week ahead draws from, the same for every path.
    struct Sorteio {
        int semana;
        const std::vector<double>* residuos;
        double largura;
        double escala;  // takes the kernel's jitter back out, so the smoothing keeps the variance
    };
    std::vector<Sorteio> sorteios;
    for (std::size_t h = 0; h < horizonte; ++h) {
        const int semana = modelo_.semanaAFrente(origem, h);
        const auto& residuos = modelo_.getResiduos(semana);
        const double largura = modelo_.getLarguraNucleo(semana);
        sorteios.push_back({semana, &residuos, largura, 1.0 / std::sqrt(1.0 + largura * largura)});
    }
    for (std::size_t m = 0; m < static_cast<std::size_t>(trajetorias); ++m) {
        EstadoPassado passado = inicial;
        for (std::size_t h = 0; h < horizonte; ++h) {
            const Sorteio& s = sorteios[h];
            const Sorteado sorteado = pSorteia(gerador_(), s.residuos->size());
            const double inovacao =
                ((*s.residuos)[sorteado.posicao] + s.largura * sorteado.nucleo) * s.escala;
            cenarios[h][m] = modelo_.passo(s.semana, passado, inovacao, faixas ? &(*faixas)[h] : nullptr);
        }
    }
    for (auto& valores : cenarios) {
        std::sort(valores.begin(), valores.end());
    }
    return cenarios;
}

}  // namespace solver
