#pragma once

#include "halvo/app/CasoPasta.h"
#include "halvo/app/ListaDeCasos.h"

#include <cstdint>
#include <memory>
#include <optional>

namespace halvo {

class IModelo;
class Notificador;

// The life of the host's cases: the list that the host keeps, and the one case that the model
// holds open. Every change of the list is saved at once; a list that cannot be saved is reported
// through the dialog service. The open case is closed when the object ends.
class GerenteDeCasos {
public:
    GerenteDeCasos(IModelo& modelo, ListaDeCasos& lista, std::shared_ptr<Notificador> notificador);
    ~GerenteDeCasos();
    GerenteDeCasos(const GerenteDeCasos&) = delete;
    GerenteDeCasos& operator=(const GerenteDeCasos&) = delete;

    const ListaDeCasos& Lista() const { return mLista; }
    std::optional<std::int32_t> Aberto() const { return mAberto; }

    // Has the model create the case in its folder and lists it; the new code, or nothing when the
    // model refused (it has told the user why).
    std::optional<std::int32_t> Cria(EntradaCaso entrada);
    // Opens a listed case, closing the open one first; false when the model refused it.
    bool Abre(std::int32_t codigo);
    // Opens the case of a folder, listing it under the folder's names when it is not listed yet;
    // a case listed for this and refused by the model leaves the list again.
    bool AbrePasta(const QString& pasta);
    void Fecha();
    // Copies a listed case into a folder and lists the copy in the same study. The model copies
    // only an open case and releases it, so the case that was open is opened again afterwards.
    std::optional<std::int32_t> Copia(std::int32_t codigo, const QString& destino);
    // Deletes a listed case with its folder through the model (closing it first when open) and
    // drops it from the list; a case whose folder is already gone is just dropped.
    bool Apaga(std::int32_t codigo);
    // Also reaches the open case's object, for the screens opened from now on.
    void setSomenteLeitura(std::int32_t codigo, bool somenteLeitura);
    // Runs the open case without a screen.
    void Executa();

private:
    void pGrava();

    IModelo& mModelo;
    ListaDeCasos& mLista;
    std::shared_ptr<Notificador> mNotificador;
    std::shared_ptr<CasoPasta> mCaso;
    std::optional<std::int32_t> mAberto;
};

}  // namespace halvo
