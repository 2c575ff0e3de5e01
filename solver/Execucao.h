#pragma once

// A run of the solver in a station folder: reads the files, forecasts, writes the outputs and the
// verdict in RUNSTATE.DAT.

#include "solver/Falha.h"

#include <filesystem>

namespace solver {

// Never throws: every failure ends in RUNSTATE.DAT with its code and reason.
CodigoEstado executaEstacao(const std::filesystem::path& pasta);

// RUNSTATE.DAT: the code on the first line and, on failure, the reason on the second.
void gravaEstado(const std::filesystem::path& pasta, CodigoEstado codigo, const std::string& motivo);

}  // namespace solver
