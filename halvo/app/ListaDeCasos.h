#pragma once

#include "halvo/app/EntradaCaso.h"

#include <QString>

#include <cstdint>
#include <vector>

namespace halvo {

// The studies and cases that the host keeps, saved as JSON. Codes are given by the list, one more
// than any it gave before, so that a deleted case's code is not reused.
class ListaDeCasos {
public:
    // "casos.json" in the host's configuration folder of the user.
    static QString ArquivoPadrao();

    explicit ListaDeCasos(QString arquivo = ArquivoPadrao());

    // Reads the file: a missing file is an empty list. False, with an empty list, when the file
    // cannot be read or does not hold a list of cases.
    bool Carrega();
    // Writes the file (making its folder); false when it cannot be written.
    bool Grava() const;
    const QString& Arquivo() const { return mArquivo; }

    const std::vector<EntradaCaso>& Casos() const { return mCasos; }
    const EntradaCaso* Procura(std::int32_t codigo) const;
    const EntradaCaso* ProcuraPasta(const QString& pasta) const;

    // Lists a case under a new code, which it gives; the folder is kept in its normal form.
    std::int32_t Adiciona(EntradaCaso entrada);
    void Remove(std::int32_t codigo);
    void setSomenteLeitura(std::int32_t codigo, bool somenteLeitura);

private:
    QString mArquivo;
    std::vector<EntradaCaso> mCasos;
    std::int32_t mProximoCodigo = 1;
};

}  // namespace halvo
