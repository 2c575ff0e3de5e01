#include "tests/corvalin/execution/ArquivosTeste.h"

#include "platform/texto/ArquivoTexto.h"

#include <QDir>
#include <QFile>

namespace teste {

QStringList LinhasDe(const QString& caminho) {
    QStringList linhas;
    if (QFile::exists(caminho)) {
        for (texto::ArquivoEntrada entrada(caminho); !entrada.Eof();) {
            linhas << entrada.LineInput();
        }
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

QString CopiaDadosDeExecucao(const QString& pasta) {
    const QString destino = QDir::toNativeSeparators(pasta) + QDir::separator();
    QDir().mkpath(destino);
    const QDir dados(QStringLiteral(CORVALIN_DADOS_TESTE "/execucao"));
    for (const QString& arquivo : dados.entryList(QDir::Files)) {
        QFile::copy(dados.filePath(arquivo), destino + arquivo);
    }
    return destino;
}

QString InstalaSolverDeTeste(const QString& pasta) {
    const QString nativa = QDir::toNativeSeparators(pasta);
    QDir().mkpath(nativa);
    QFile::link(QStringLiteral(CORVALIN_PASTA_BIN "/CorvalinTeste"),
                nativa + QDir::separator() + QStringLiteral("Corvalin"));
    return nativa;
}

}  // namespace teste
