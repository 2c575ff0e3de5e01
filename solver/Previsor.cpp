#include "solver/Previsor.h"

#include "solver/Simulacao.h"

namespace solver {

Previsor::Previsor(const SerieSemanal& serie, std::size_t fim, TipoTransformacao tipo)
    : modelo_(ModeloPAR::ajusta(serie, fim, tipo)), climatologia_(serie, fim) {}

ResumoCenarios Previsor::preve(std::span<const double> vazoes, std::size_t origem, double confianca,
                               int trajetorias, const FaixasHorizonte* faixas) const {
    Simulador simulador(modelo_);
    return resumeCenarios(simulador.simula(vazoes, origem, trajetorias, faixas), climatologia_, confianca);
}

}  // namespace solver
