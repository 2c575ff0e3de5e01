#pragma once

// Skill of the solver on a river: fitted on all years but the last five, it forecasts from every
// week of those five years with the observations up to that week, against persistence,
// climatology and the model under each fixed transformation.

#include "bench/skill/RiosSemanais.h"
#include "solver/Placar.h"

#include <string>
#include <vector>

namespace skill {

inline constexpr int anosAvaliados = 5;
inline constexpr double confiancaAvaliada = 0.95;

struct Metodo {
    std::string nome;
    solver::Placar placar;
};

std::vector<Metodo> avaliaRio(const RioSemanal& rio);

// Markdown tables of MAPE, RMSE and coverage by week ahead, and whether the chosen model meets
// its targets: better than persistence and climatology at every lead, coverage within 90% to 98%.
std::string tabelas(const std::string& rio, const std::vector<Metodo>& metodos);

}  // namespace skill
