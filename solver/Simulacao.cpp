#include "solver/Simulacao.h"

#include "solver/Estatistica.h"

namespace solver {

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
            porSemana[h][m] = modelo_.passo(semana, passado, residuos[sorteio(gerador_)],
                                            faixas ? &(*faixas)[h] : nullptr);
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
