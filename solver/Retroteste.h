#pragma once

// Rolling-origin back-test: over each of the last years of the history the model is fitted on the
// data before that year and forecasts six weeks from every week of it, exactly as the station's
// forecast is made. It chooses the weight of the point forecast for each week ahead, and the
// transformation.

#include "solver/Placar.h"
#include "solver/PontoPrevisto.h"
#include "solver/Transformacao.h"

#include <vector>

namespace solver {

class SerieSemanal;

// Years a fit needs at least; the history must hold one more for the back-test.
inline constexpr int minimoAnosAjuste = 8;
inline constexpr int maximoAnosRetroteste = 5;
// Scenarios per origin of the back-test: the choices rest on hundreds of origins, so fewer paths
// than the station's own forecast suffice.
inline constexpr int trajetoriasRetroteste = 100;

// Years of back-test that the positions [0, fim) allow; 0 when the history is too short.
int anosDeRetroteste(std::size_t fim, int numSemanas);

struct Candidato {
    TipoTransformacao tipo = TipoTransformacao::nenhuma;
    PesosPonto pesos{};                // of the point forecast, by week ahead
    Placar placar;                     // of the forecasts with those weights, and of the interval
    Placar climatologia;               // of the week's mean over the years before each back-test year
    std::vector<double> indicePorAno;  // the index of each back-test year against that climatology

    // MAPE and RMSE against the climatology's, summed and averaged over the weeks ahead.
    double indice() const { return placar.indice(climatologia); }
};

using PlacaresPorPeso = std::array<Placar, pesosCandidatos.size()>;

// For one week ahead, the position in pesosCandidatos of the weight to forecast with: among those
// whose forecasts beat climatology on both measures, the one with the smallest sum of the two
// ratios; when none does, the smallest sum. A forecast that loses to the week's mean on either
// measure fails its user, however well it does on the other.
std::size_t escolhePeso(const PlacaresPorPeso& porPeso, const Placar& climatologia, std::size_t h);

// Back-tests the model with one transformation over the positions [0, fim); confianca (0 to 1)
// is that of the interval whose coverage it measures.
Candidato retrotesta(const SerieSemanal& serie, std::size_t fim, TipoTransformacao tipo, double confianca);

struct Escolha {
    std::vector<Candidato> candidatos;
    std::size_t escolhido = 0;

    const Candidato& getEscolhido() const { return candidatos[escolhido]; }
};

// The candidate with the lowest index, unless it is not the first, which is preferred, by more
// than one standard error of their yearly differences: a few lucky weeks must not decide.
std::size_t escolheCandidato(const std::vector<Candidato>& candidatos);

// Back-tests every candidate and chooses among them.
Escolha escolheModelo(const SerieSemanal& serie, std::size_t fim, const std::vector<TipoTransformacao>& tipos,
                      double confianca);

}  // namespace solver
