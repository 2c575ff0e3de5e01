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
    // What each week ahead draws from, the same for every path.
    struct Sorteio {
        int semana;
        const std::vector<double>* residuos;
        std::uniform_int_distribution<std::size_t> posicao;
        double largura;
        double escala;  // takes the kernel's jitter back out, so the smoothing keeps the variance
    };
    std::vector<Sorteio> sorteios;
    for (std::size_t h = 0; h < horizonte; ++h) {
        const int semana = modelo_.semanaAFrente(origem, h);
        const auto& residuos = modelo_.getResiduos(semana);
        const double largura = modelo_.getLarguraNucleo(semana);
        sorteios.push_back({semana, &residuos,
                            std::uniform_int_distribution<std::size_t>(0, residuos.size() - 1), largura,
                            1.0 / std::sqrt(1.0 + largura * largura)});
    }
    for (std::size_t m = 0; m < static_cast<std::size_t>(trajetorias); ++m) {
        EstadoPassado passado = inicial;
        for (std::size_t h = 0; h < horizonte; ++h) {
            Sorteio& s = sorteios[h];
            const double inovacao =
                ((*s.residuos)[s.posicao(gerador_)] + s.largura * pNucleoTriangular()) * s.escala;
            cenarios[h][m] = modelo_.passo(s.semana, passado, inovacao, faixas ? &(*faixas)[h] : nullptr);
        }
    }
    for (auto& valores : cenarios) {
        std::sort(valores.begin(), valores.end());
    }
    return cenarios;
}

}  // namespace solver
