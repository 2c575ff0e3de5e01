#pragma once

// Rolling-origin back-test: over each of the last years of the history the model is fitted on the
// data before that year and forecasts six weeks from every week of it, exactly as the station's
// forecast is made. It chooses the weights of the point forecast, and the transformation.

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

// How a forecast did in the back-test against the climatology of the same weeks.
struct Desempenho {
    int semanasVencidas = 0;  // weeks ahead at which it beat climatology on both measures
    // MAPE and RMSE against climatology's, summed and averaged over the weeks ahead measured (2 is
    // as good as climatology), over the whole back-test and in each of its years.
    double indice = 0.0;
    std::vector<double> indicePorAno;
};

// The first of the options, unless the best beats it clearly. The best beats climatology on both
// measures at the most weeks ahead, since a forecast that loses to the week's mean on either fails
// its user however well it does on the other, and then has the lowest index. It beats the first
// clearly when its index is lower by more than one standard error of their yearly differences: a
// few lucky weeks must not decide.
std::size_t escolhePreferindoOPrimeiro(const std::vector<Desempenho>& opcoes);

struct Candidato {
    TipoTransformacao tipo = TipoTransformacao::nenhuma;
    PesosPonto pesos{};   // of the point forecast, chosen among pesosCandidatos
    Placar placar;        // of the forecasts with those weights, and of the interval
    Placar climatologia;  // of the week's mean over the years before each back-test year
    Desempenho desempenho;
};

// Back-tests the model with one transformation over the positions [0, fim) and chooses the
// weights of its point forecast: the station's, the best over all weeks ahead, and each week
// ahead's, the station's unless another beats it clearly at that week ahead. confianca (0 to 1)
// is that of the interval whose coverage it measures.
Candidato retrotesta(const SerieSemanal& serie, std::size_t fim, TipoTransformacao tipo, double confianca);

struct Escolha {
    std::vector<Candidato> candidatos;
    std::size_t escolhido = 0;

    const Candidato& getEscolhido() const { return candidatos[escolhido]; }
};

// Back-tests every candidate and chooses among them, the first preferred.
Escolha escolheModelo(const SerieSemanal& serie, std::size_t fim, const std::vector<TipoTransformacao>& tipos,
                      double confianca);

}  // namespace solver
