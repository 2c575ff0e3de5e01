#pragma once

#include <QString>
#include <QStringList>

#include <ostream>

// Readable texts in the failures of the tests.
inline void PrintTo(const QString& texto, std::ostream* saida) { *saida << '"' << texto.toStdString() << '"'; }

namespace teste {

// Text files as the model writes them (Windows-1252, CR LF); a missing file reads as no lines.
QStringList LinhasDe(const QString& caminho);
void Grava(const QString& caminho, const QStringList& linhas);

}  // namespace teste
