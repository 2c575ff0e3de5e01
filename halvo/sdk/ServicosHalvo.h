#pragma once

#include <QString>

#include <cstdint>

namespace halvo {

// The host's global services to models.
class ServicosHalvo {
public:
    virtual ~ServicosHalvo() = default;
    // The model that is current in the host.
    virtual void ModeloAtual(std::int16_t codigo) = 0;
    // The folder path of a folder reference, for deleting a case and for everything else.
    virtual QString CaminhoParaApagar(const QString& referencia) = 0;
    virtual QString CaminhoCompleto(const QString& referencia) = 0;
};

}  // namespace halvo
