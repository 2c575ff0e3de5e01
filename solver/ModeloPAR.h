#pragma once

// Periodic autoregressive model of the weekly flows: each week of the year has its own
// transformation, mean and deviation, and its own autoregression of the standardised flows on the
// weeks before it, of an order chosen by the Bayesian information criterion.

#include "solver/Transformacao.h"

#include <array>
#include <cstddef>
#include <span>
#include <vector>

namespace solver {

class SerieSemanal;

inline constexpr int horizonte = 6;    // weeks forecast
inline constexpr int ordemMaxima = 6;  // lags an autoregression may use

using Trajetoria = std::array<double, horizonte>;

// Bounds on the flows of each week ahead (the limits of "Modelo e Previsão").
struct Faixa {
    double inferior = 0.0;
    double superior = 0.0;
};
using FaixasHorizonte = std::array<Faixa, horizonte>;

struct ParametrosSemana {
    TransformacaoSemana transformacao;
    double media = 0.0;        // of the transformed flows
    double desvio = 1.0;       // of the transformed flows
    std::vector<double> phi;   // phi[k - 1] weighs the standardised flow k weeks before
    double desvioRuido = 1.0;  // of the innovation, in standardised units
    double vazaoPiso = 0.0;    // no forecast falls below it
};

// The standardised flows of the weeks before an origin, the nearest first.
using EstadoPassado = std::array<double, ordemMaxima>;

class ModeloPAR {
public:
    // Fits on the positions [0, fim) of the series.
    static ModeloPAR ajusta(const SerieSemanal& serie, std::size_t fim, TipoTransformacao tipo);

    TipoTransformacao getTipo() const { return tipo_; }
    int getNumSemanas() const { return static_cast<int>(semanas_.size()); }
    const ParametrosSemana& getParametros(int semana) const {
        return semanas_[static_cast<std::size_t>(semana)];
    }

    double padroniza(double vazao, int semana) const;
    // Back to a flow, never below the week's floor.
    double vazao(double z, int semana) const;
    // The standardised flows of the weeks before position origem of the series.
    EstadoPassado estado(std::span<const double> vazoes, std::size_t origem) const;
    // The conditional mean of the standardised flow of the week, given the weeks before it.
    double esperado(int semana, const EstadoPassado& passado) const;
    // One week on: the week's flow for the given innovation (in units of the week's innovation
    // deviation), within the bounds when there are any; the state moves on with it.
    double passo(int semana, EstadoPassado& passado, double inovacao, const Faixa* faixa) const;
    // Week of the year of the week h after origem (h = 0 is the origin itself).
    int semanaAFrente(std::size_t origem, std::size_t h) const;
    // Standardised innovations of the week and its neighbours, for resampling.
    const std::vector<double>& getResiduos(int semana) const {
        return residuos_[static_cast<std::size_t>(semana)];
    }
    // Kernel bandwidth of the smoothed resampling of those innovations.
    double getLarguraNucleo(int semana) const { return larguraNucleo_[static_cast<std::size_t>(semana)]; }

private:
    void pAjustaTransformacoes(const SerieSemanal& serie, std::size_t fim);
    void pAjustaAutorregressoes(const std::vector<double>& z, std::size_t fim);
    void pAgrupaResiduos(const std::vector<std::vector<double>>& residuosDaSemana);

    TipoTransformacao tipo_ = TipoTransformacao::nenhuma;
    std::vector<ParametrosSemana> semanas_;
    std::vector<std::vector<double>> residuos_;
    std::vector<double> larguraNucleo_;
};

// Moves the state one week on, with the new standardised flow as the nearest.
void avancaEstado(EstadoPassado& passado, double z);

}  // namespace solver
