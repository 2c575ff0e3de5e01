#include "halvo/app/Modelos.h"

#include <QCoreApplication>
#include <QDir>
#include <QJsonObject>
#include <QLibrary>

namespace halvo {

Modelos::Modelos(const QString& pasta) {
    const QDir dir(pasta);
    const QStringList arquivos = dir.entryList(QDir::Files, QDir::Name);
    for (const QString& arquivo : arquivos) {
        if (!QLibrary::isLibrary(arquivo)) {
            continue;
        }
        QPluginLoader carregador(dir.filePath(arquivo));
        auto* plugin = qobject_cast<ModeloPlugin*>(carregador.instance());
        if (plugin == nullptr) {
            mFalhas << QStringLiteral("%1: %2").arg(arquivo, carregador.errorString());
            continue;
        }
        const QString nome = carregador.metaData().value(QStringLiteral("MetaData")).toObject().value(
            QStringLiteral("Modelo")).toString();
        mEncontrados.push_back({nome, plugin});
    }
}

QStringList Modelos::Nomes() const {
    QStringList nomes;
    for (const auto& encontrado : mEncontrados) {
        nomes << encontrado.nome;
    }
    return nomes;
}

std::unique_ptr<IModelo> Modelos::Cria(const QString& nome) const {
    for (const auto& encontrado : mEncontrados) {
        if (nome.isEmpty() || encontrado.nome.compare(nome, Qt::CaseInsensitive) == 0) {
            return encontrado.plugin->CriaModelo();
        }
    }
    return nullptr;
}

QString Modelos::PastaPadrao() { return QCoreApplication::applicationDirPath() + QStringLiteral("/modelos"); }

}  // namespace halvo
