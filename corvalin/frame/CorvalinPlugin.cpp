#include "corvalin/frame/CorvalinPlugin.h"

#include "corvalin/frame/AberturaTelasGui.h"
#include "corvalin/frame/Corvalin.h"

namespace corvalin {

std::unique_ptr<halvo::IModelo> CorvalinPlugin::CriaModelo() {
    auto telas = std::make_unique<AberturaTelasGui>();
    AberturaTelasGui& abertura = *telas;
    auto modelo = std::make_unique<Corvalin>(std::move(telas));
    abertura.setPastaPlugin(modelo->PastaPlugin());
    return modelo;
}

}  // namespace corvalin
