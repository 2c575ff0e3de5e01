#pragma once

#include "halvo/app/EntradaCaso.h"
#include "halvo/sdk/Caso.h"

namespace halvo {

// The host's case object, answering a model from what the host keeps of the case: "Diretorio"
// (the folder with its separator), "Codigo", "estudo", "Nome", "Descricao", and the creation's
// "DataCriacao" and "HoraCriacao" in ISO form. Item names are answered in either case ("Nome"
// and "nome"). The read-only flag may change while the case is open; screens opened later see it.
class CasoPasta : public caso {
public:
    explicit CasoPasta(EntradaCaso entrada);
    // A case named on the command line by its folder.
    explicit CasoPasta(const QString& pasta);

    bool SomenteLeitura() const override;
    QString Item(const QString& nome) const override;

    void setSomenteLeitura(bool somenteLeitura) { mEntrada.SomenteLeitura = somenteLeitura; }

private:
    EntradaCaso mEntrada;
};

}  // namespace halvo
