#pragma once

// Rolling-origin back-test: over each of the last years of the history the model is fitted on the
// data before that year and forecasts six weeks from every week of it.

#include "solver/Placar.h"
#include "solver/Transformacao.h"

#include <optional>
#include <vector>

namespace solver {

class SerieSemanal;

// Years a fit needs at least; the history must hold one more for the back-test.
inline constexpr int minimoAnosAjuste = 8;
inline constexpr int maximoAnosRetroteste = 5;
// Paths per origin when the back-test also measures the interval's coverage.
inline constexpr int trajetoriasRetroteste = 250;

// Years of back-test that the positions [0, fim) allow; 0 when the history is too short.
int anosDeRetroteste(std::size_t fim, int numSemanas);

// confianca (0 to 1), when given, also measures the coverage of the interval.
Placar retroteste(const SerieSemanal& serie, std::size_t fim, TipoTransformacao tipo, int anos,
                  std::optional<double> confianca = std::nullopt);

struct Candidato {
    TipoTransformacao tipo;
    Placar placar;
};

struct Escolha {
    std::vector<Candidato> candidatos;
    std::size_t escolhido = 0;  // the smallest mean MAPE
};

// Back-tests every candidate and measures the chosen one's interval as well.
Escolha escolheModelo(const SerieSemanal& serie, std::size_t fim, const std::vector<TipoTransformacao>& tipos,
                      double confianca);

}  // namespace solver
