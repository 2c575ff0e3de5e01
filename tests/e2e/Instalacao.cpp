#include "tests/e2e/Instalacao.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>

#include <stdexcept>

namespace teste {

const Instalacao& Instalacao::teste() {
    static const Instalacao instalacao;
    return instalacao;
}

Instalacao::Instalacao() {
    QDir(mPasta.path()).mkpath(QStringLiteral("modelos"));
    for (const auto& [origem, destino] : {std::pair{"halvo", "halvo"},
                                          {"modelos/libcorvalin.so", "modelos/libcorvalin.so"},
                                          {"CorvalinTeste", "modelos/Corvalin"}}) {
        if (!QFile::copy(QStringLiteral(CORVALIN_PASTA_BIN "/") + QLatin1String(origem),
                         mPasta.filePath(QLatin1String(destino)))) {
            throw std::runtime_error("the test installation could not be made");
        }
    }
}

Saida Executa(const QString& programa, const QStringList& argumentos) {
    QProcess processo;
    QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
    ambiente.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    processo.setProcessEnvironment(ambiente);
    processo.start(programa, argumentos);
    if (!processo.waitForFinished(120000)) {
        processo.kill();
        processo.waitForFinished();
    }
    return {processo.exitStatus() == QProcess::NormalExit ? processo.exitCode() : -1,
            QString::fromUtf8(processo.readAllStandardOutput()),
            QString::fromUtf8(processo.readAllStandardError())};
}

QString DadoDeTeste(const QString& relativo) {
    return QStringLiteral(CORVALIN_DADOS_TESTE "/") + relativo;
}

}  // namespace teste
