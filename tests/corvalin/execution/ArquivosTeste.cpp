#include "tests/corvalin/execution/ArquivosTeste.h"

#include "platform/texto/ArquivoTexto.h"

#include <QFile>

namespace teste {

QStringList LinhasDe(const QString& caminho) {
    QStringList linhas;
    if (!QFile::exists(caminho)) {
        return linhas;
    }
    texto::ArquivoEntrada entrada(caminho);
    while (!entrada.Eof()) {
        linhas << entrada.LineInput();
    }
    return linhas;
}

void Grava(const QString& caminho, const QStringList& linhas) {
    texto::ArquivoSaida saida(caminho);
    for (const QString& linha : linhas) {
        saida.Print(linha);
    }
    saida.Close();
}

}  // namespace teste
