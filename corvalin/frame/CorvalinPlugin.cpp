#include "corvalin/frame/CorvalinPlugin.h"

#include "corvalin/frame/AberturaTelasGui.h"
#include "corvalin/frame/Corvalin.h"

namespace corvalin {

std::unique_ptr<halvo::IModelo> CorvalinPlugin::CriaModelo() {
    return std::make_unique<Corvalin>(std::make_unique<AberturaTelasGui>());
}

}  // namespace corvalin
