#pragma once

#include "halvo/sdk/Notificador.h"

#include <vector>

namespace halvo {

// Keeps the events that a model sends, in order: the command line judges an outcome by them.
class NotificadorRegistro : public Notificador {
public:
    void Notifica(caso&, std::int32_t evento) override { mEventos.push_back(evento); }
    const std::vector<std::int32_t>& Eventos() const { return mEventos; }

private:
    std::vector<std::int32_t> mEventos;
};

}  // namespace halvo
