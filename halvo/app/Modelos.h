#pragma once

#include "halvo/sdk/IModelo.h"

#include <QPluginLoader>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

namespace halvo {

// The models that the host finds as plug-ins in a folder (by default "modelos" beside the host's
// program); a plug-in names its model in its metadata ("Modelo"). A plug-in's code stays loaded for the life of the process.
class Modelos {
public:
    explicit Modelos(const QString& pasta);

    // The names of the models found, in the order of their files.
    QStringList Nomes() const;
    // A new model object by its name (any model when the name is empty); null when none matches.
    std::unique_ptr<IModelo> Cria(const QString& nome = {}) const;
    // Why plug-ins of the folder could not be loaded, one line each.
    const QStringList& Falhas() const { return mFalhas; }

    static QString PastaPadrao();

private:
    struct Encontrado {
        QString nome;
        ModeloPlugin* plugin;
    };
    std::vector<Encontrado> mEncontrados;
    QStringList mFalhas;
};

}  // namespace halvo
