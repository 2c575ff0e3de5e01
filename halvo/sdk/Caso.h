#pragma once

#include <QString>

namespace halvo {

// The host's object for one case. Items are named texts: "Diretorio" (also "diretorio"; the case
// folder, ending in the native separator), "Codigo"/"codigo", "estudo", "nome"/"Nome",
// "Descricao", "DataCriacao", "HoraCriacao".
class caso {
public:
    virtual ~caso() = default;
    virtual bool SomenteLeitura() const = 0;
    virtual QString Item(const QString& nome) const = 0;
};

}  // namespace halvo
