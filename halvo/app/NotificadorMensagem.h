#pragma once

#include "halvo/sdk/Notificador.h"

#include <QString>

#include <functional>

namespace halvo {

// Tells the user, in one sentence, each event that a model reports about a case.
class NotificadorMensagem : public Notificador {
public:
    explicit NotificadorMensagem(std::function<void(const QString&)> mostra) : mMostra(std::move(mostra)) {}

    void Notifica(caso&, std::int32_t evento) override { mMostra(Frase(evento)); }

    static QString Frase(std::int32_t evento);

private:
    std::function<void(const QString&)> mMostra;
};

}  // namespace halvo
