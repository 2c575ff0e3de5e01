#include "solver/LimitesPercentis.h"

#include "solver/Estatistica.h"
#include "solver/SerieSemanal.h"

#include <algorithm>
#include <cmath>

namespace solver {

namespace {

constexpr double diasPorSemana = 7.0;
constexpr double diasPorMes = 365.0 / 12.0;

}  // namespace

int periodoDaSemana(int semana, Agrupamento agrupamento, int mesInicial) {
    if (agrupamento == Agrupamento::semanal) {
        return semana;
    }
    const double meioDaSemana = diasPorSemana * (semana + 0.5);
    const int mesDoAno = std::min(static_cast<int>(meioDaSemana / diasPorMes), 11);
    const int mes = (mesInicial - 1 + mesDoAno) % 12;
    switch (agrupamento) {
        case Agrupamento::mensal:
            return mes;
        case Agrupamento::trimestral:
            return mes / 3;
        default:
            return mes / 6;
    }
}

std::array<LimitesDaSemana, horizonte> calculaLimites(const SerieSemanal& serie, std::size_t fim,
                                                      const ArquivoLimites& limites, int mesInicial,
                                                      std::size_t origem) {
    const double ultima = serie.vazao(origem - 1);
    const auto numSemanas = static_cast<std::size_t>(serie.getNumSemanas());
    std::array<LimitesDaSemana, horizonte> resultado{};
    for (std::size_t h = 0; h < horizonte; ++h) {
        LimitesDaSemana& l = resultado[h];
        l.periodo =
            periodoDaSemana(static_cast<int>((origem + h) % numSemanas), limites.agrupamento, mesInicial);
        std::vector<double> anteriores;
        std::vector<double> vazoes;
        for (std::size_t t = 1; t < fim; ++t) {
            if (periodoDaSemana(serie.semana(t), limites.agrupamento, mesInicial) == l.periodo) {
                anteriores.push_back(serie.vazao(t - 1));
                vazoes.push_back(serie.vazao(t));
            }
        }
        // Equal-count bands of the previous week's flow; the last observation picks one.
        for (int k = 1; k < limites.faixas; ++k) {
            if (ultima > quantil(anteriores, static_cast<double>(k) / limites.faixas)) {
                l.faixaMagnitude = k;
            }
        }
        const double piso = quantil(anteriores, static_cast<double>(l.faixaMagnitude) / limites.faixas);
        const double teto = quantil(anteriores, static_cast<double>(l.faixaMagnitude + 1) / limites.faixas);
        std::vector<double> naFaixa;
        for (std::size_t i = 0; i < vazoes.size(); ++i) {
            if (anteriores[i] >= piso && anteriores[i] <= teto) {
                naFaixa.push_back(vazoes[i]);
            }
        }
        const auto percentil = static_cast<std::size_t>(l.periodo);
        l.faixa.inferior = quantil(naFaixa, limites.inferior[percentil] / 100.0);
        l.faixa.superior = quantil(naFaixa, limites.superior[percentil] / 100.0);
    }
    return resultado;
}

}  // namespace solver
