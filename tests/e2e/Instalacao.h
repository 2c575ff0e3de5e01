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
    QStringList linhas() const { return saida.split(u'\n', Qt::SkipEmptyParts); }
};

// A copy of the host with the plug-in in its models folder and, as the solver beside it, the
// test solver: the real roads of the host and the plug-in run it. One for the whole program.
class Instalacao {
public:
    static const Instalacao& teste();

    // The host program of this installation, or of the build (with the real solver).
    QString halvo() const { return mPasta.filePath(QStringLiteral("halvo")); }
    static QString halvoDaCompilacao() { return QStringLiteral(CORVALIN_PASTA_BIN "/halvo"); }

private:
    Instalacao();
    QTemporaryDir mPasta;
};

// Runs a host program to its end in a neutral locale, as a script would.
Saida Executa(const QString& programa, const QStringList& argumentos);

// A file of the tests' data; the demo stations are at "../../samples/".
QString DadoDeTeste(const QString& relativo);

}  // namespace teste
