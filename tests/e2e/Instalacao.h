#pragma once

#include "tests/corvalin/execution/ArquivosTeste.h"

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace teste {

// What a run of the host program left.
struct Saida {
    int codigo;  // -1 when the program did not end by itself
    QString saida;
    QString erro;
    QStringList linhas() const;
};

// A copy of the host with the plug-in in its models folder and, as the solver beside it, the
// test solver: the real roads of the host and the plug-in run it. One for the whole program.
class Instalacao {
public:
    static const Instalacao& teste();

    // The host program of this installation, or of the build (with the real solver).
    QString halvo() const;
    static QString halvoDaCompilacao();

private:
    Instalacao();
    QTemporaryDir mPasta;
};

// Runs a host program to its end in a neutral locale, as a script would.
Saida Executa(const QString& programa, const QStringList& argumentos);

// The tests' data and the demo stations.
QString DadoDeTeste(const QString& relativo);
QString Amostra(const QString& nome);

}  // namespace teste
