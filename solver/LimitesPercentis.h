#pragma once

// The limits of the forecast: percentiles of the historical flows of the forecast week's period,
// taken among the years whose previous week's flow fell in the same magnitude band as the last
// observation.

#include "solver/ArquivosEstacao.h"
#include "solver/ModeloPAR.h"

namespace solver {

class SerieSemanal;

// The period of the grouping (from 0) in which a week of the year (from 0) falls. The weekly year
// begins with the first month of the hydrological year; months, quarters and half-years are
// those of the calendar, each week counted in the month of its middle day.
int periodoDaSemana(int semana, Agrupamento agrupamento, int mesInicial);

struct LimitesDaSemana {
    Faixa faixa;
    int periodo = 0;         // from 0
    int faixaMagnitude = 0;  // from 0
};

// The limits of each week ahead of origem, from the positions [0, fim) of the series.
std::array<LimitesDaSemana, horizonte> calculaLimites(const SerieSemanal& serie, std::size_t fim,
                                                      const ArquivoLimites& limites, int mesInicial,
                                                      std::size_t origem);

}  // namespace solver
