#pragma once

#include "platform/runtime/ErroVB.h"

// The number of the run-time error that f raises; 0 when it raises none.
template <typename F>
int numeroDoErro(F&& f) {
    try {
        f();
    } catch (const plataforma::ErroVB& e) {
        return e.Number();
    }
    return 0;
}
