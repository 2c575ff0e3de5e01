#pragma once

#include <cstdint>

namespace halvo {

class caso;

// Events that a model sends to the host about a case.
enum EventoCaso : std::int32_t {
    EventoImportacaoComProblemas = 0,
    EventoImportacaoConcluida = 1,
    EventoCasoAlterado = 3,
    EventoExecucaoComErro = 5,
    EventoExecucaoSemErro = 6,
};

class Notificador {
public:
    virtual ~Notificador() = default;
    virtual void Notifica(caso& c, std::int32_t evento) = 0;
};

}  // namespace halvo
