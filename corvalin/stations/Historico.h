#pragma once

#include "platform/runtime/Vetor.h"

namespace corvalin {

// The weekly flow history of a station: (year position, week), both from 0 and position 0 unused;
// year Y stands at Y - AnoInicial + 1. A value of 0 is a week without a known flow.
using Historico = plataforma::Matriz<float>;

}  // namespace corvalin
