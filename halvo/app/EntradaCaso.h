#pragma once

#include <QDateTime>
#include <QString>

#include <cstdint>

namespace halvo {

// What the host keeps of one case.
struct EntradaCaso {
    QString Estudo;
    QString Nome;
    QString Pasta;  // absolute, with native separators and no trailing one
    QString Descricao;
    std::int32_t Codigo = 0;  // given by the host's list; 0 for a case named on the command line
    QDateTime Criacao;
    bool SomenteLeitura = false;

    // A case known only by its folder: the folder's name is the case's, its parent's the study's,
    // and it is created now.
    static EntradaCaso DaPasta(const QString& pasta);
    // The form in which a folder is kept, so that two spellings of one folder compare equal.
    static QString PastaNormal(const QString& pasta);
};

}  // namespace halvo
