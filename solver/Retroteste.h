#pragma once

// Rolling-origin back-test: over each of the last years of the history the model is fitted on the
// data before that year and forecasts six weeks from every week of it.

#include "solver/ModeloPAR.h"
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
inline constexpr int trajetoriasRetroteste = 100;

// Years of back-test that the positions [0, fim) allow; 0 when the history is too short.
int anosDeRetroteste(std::size_t fim, int numSemanas);

// The models of a back-test: one for each of the last years before fim, fitted on the data
// before that year.
class Retroteste {
public:
    Retroteste(const SerieSemanal& serie, std::size_t fim, TipoTransformacao tipo, int anos);

    // Scores the forecasts from every week of those years; confianca (0 to 1), when given, also
    // measures the coverage of the interval.
    Placar mede(std::optional<double> confianca = std::nullopt) const;

private:
    struct Bloco {
        std::size_t inicio;
        ModeloPAR modelo;
    };

    const SerieSemanal& serie_;
    std::size_t fim_;
    std::vector<Bloco> blocos_;
};

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
