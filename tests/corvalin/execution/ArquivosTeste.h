#pragma once

#include <QString>
#include <QStringList>

#include <ostream>

// Readable texts in the failures of the tests.
inline void PrintTo(const QString& texto, std::ostream* saida) {
    *saida << '"' << texto.toStdString() << '"';
}

namespace teste {

// Text files as the model writes them (Windows-1252, CR LF); a missing file reads as no lines.
QStringList LinhasDe(const QString& caminho);
void Grava(const QString& caminho, const QStringList& linhas);

// The two stations' files of the tests' data copied into a new folder, which is answered in
// native form and ending in the separator.
QString CopiaDadosDeExecucao(const QString& pasta);
// A new plug-in folder where the test solver stands as the solver.
QString InstalaSolverDeTeste(const QString& pasta);

}  // namespace teste
