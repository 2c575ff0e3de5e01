#pragma once

// A run that cannot go on: the code and the reason that RUNSTATE.DAT reports to the plug-in.

#include <stdexcept>
#include <string>

namespace solver {

enum class CodigoEstado : int {
    sucesso = 0,
    entradaInvalida = 1,   // a file missing, unreadable or malformed
    historicoCurto = 2,    // too few years to fit, or no flows right before the forecast
    limitesInvalidos = 3,  // the limits file out of range
    erroInterno = 9,
};

class FalhaExecucao : public std::runtime_error {
public:
    FalhaExecucao(CodigoEstado codigo, const std::string& motivo)
        : std::runtime_error(motivo), codigo_(codigo) {}
    CodigoEstado getCodigo() const { return codigo_; }

private:
    CodigoEstado codigo_;
};

}  // namespace solver
