#pragma once

// A model fitted on the first years of a series, with the climatology of the same years: all that
// a forecast from a later origin needs.

#include "solver/Climatologia.h"
#include "solver/ModeloPAR.h"
#include "solver/PontoPrevisto.h"

namespace solver {

class Previsor {
public:
    // Fits on the positions [0, fim) of the series.
    Previsor(const SerieSemanal& serie, std::size_t fim, TipoTransformacao tipo);

    const ModeloPAR& getModelo() const { return modelo_; }
    const Climatologia& getClimatologia() const { return climatologia_; }

    // The scenarios of the weeks after the flows before origem, summarised. Each forecast draws
    // from the fixed seed afresh, so that it does not depend on the forecasts made before it.
    ResumoCenarios preve(std::span<const double> vazoes, std::size_t origem, double confianca,
                         int trajetorias, const FaixasHorizonte* faixas = nullptr) const;

private:
    ModeloPAR modelo_;
    Climatologia climatologia_;
};

}  // namespace solver
