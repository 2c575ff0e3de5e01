#pragma once

#include "corvalin/options/OpcoesArquivos.h"

#include <QString>

#include <array>
#include <cstdint>

namespace corvalin {

// The case-wide options: default file names and erase flags, the shared folder of forecasts, and
// the three filters of the import dialogs.
class Opcoes {
public:
    OpcoesArquivos Arquivos;

    // Empty, or a folder that ends in the separator (the setter adds it).
    const QString& PastaPrevisoes() const { return mPastaPrevisoes; }
    void setPastaPrevisoes(const QString& pasta);

    // Indexed from 1 to 3; any other index is a subscript error (9).
    const QString& Filtro(std::int16_t indice) const;
    void setFiltro(std::int16_t indice, const QString& filtro);
    const QString& FiltroDescricao(std::int16_t indice) const;
    void setFiltroDescricao(std::int16_t indice, const QString& descricao);

private:
    QString mPastaPrevisoes;
    std::array<QString, 3> mFiltro;
    std::array<QString, 3> mFiltroDescricao;
};

}  // namespace corvalin
