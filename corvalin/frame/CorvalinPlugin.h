#pragma once

#include "halvo/sdk/IModelo.h"

#include <QObject>

namespace corvalin {

// What the host's plug-in loader finds in this library.
class CorvalinPlugin : public QObject, public halvo::ModeloPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID HALVO_MODELO_PLUGIN_IID FILE "corvalin.json")
    Q_INTERFACES(halvo::ModeloPlugin)

public:
    std::unique_ptr<halvo::IModelo> CriaModelo() override;
};

}  // namespace corvalin
