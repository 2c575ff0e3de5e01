#include "tests/e2e/Instalacao.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>

#include <stdexcept>

namespace teste {

namespace {

void pCopia(const QString& origem, const QString& destino) {
    if (!QFile::copy(origem, destino)) {
        throw std::runtime_error("the test installation could not be made");
    }
}

}  // namespace

QStringList Saida::linhas() const { return saida.split(u'\n', Qt::SkipEmptyParts); }

const Instalacao& Instalacao::teste() {
    static const Instalacao instalacao;
    return instalacao;
}

Instalacao::Instalacao() {
    const QString bin = QStringLiteral(CORVALIN_PASTA_BIN);
    QDir(mPasta.path()).mkpath(QStringLiteral("modelos"));
    pCopia(bin + QStringLiteral("/halvo"), halvo());
    pCopia(bin + QStringLiteral("/modelos/libcorvalin.so"), mPasta.filePath(QStringLiteral("modelos/libcorvalin.so")));
    pCopia(bin + QStringLiteral("/CorvalinTeste"), mPasta.filePath(QStringLiteral("modelos/Corvalin")));
}

QString Instalacao::halvo() const { return mPasta.filePath(QStringLiteral("halvo")); }

QString Instalacao::halvoDaCompilacao() { return QStringLiteral(CORVALIN_PASTA_BIN "/halvo"); }

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
            QString::fromUtf8(processo.readAllStandardOutput()), QString::fromUtf8(processo.readAllStandardError())};
}

QString DadoDeTeste(const QString& relativo) { return QStringLiteral(CORVALIN_DADOS_TESTE "/") + relativo; }

QString Amostra(const QString& nome) { return QStringLiteral(CORVALIN_DADOS_TESTE "/../../samples/") + nome; }

}  // namespace teste
