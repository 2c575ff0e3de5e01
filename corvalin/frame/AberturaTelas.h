#pragma once

#include <QString>

#include <cstdint>
#include <memory>

class QObject;

namespace halvo {
class caso;
class CamadaAcesso;
class Notificador;
}  // namespace halvo

namespace corvalin {

class casoBD;

// The four objects that every screen of a case receives before it loads.
struct ObjetosCaso {
    std::shared_ptr<halvo::CamadaAcesso> CamadaAcesso;
    std::shared_ptr<corvalin::casoBD> casoBD;
    std::shared_ptr<halvo::caso> caso;
    std::shared_ptr<halvo::Notificador> Notificador;
};

// Opens the screens of the model. The entry object decides which screen a host's request names;
// the screens' library makes and shows it.
class AberturaTelas {
public:
    virtual ~AberturaTelas() = default;
    // Makes a new instance of the screen named tela (a form name such as "FrmPostos"), gives it the
    // objects, makes it a child of the host's work area given by contexto, registers it with the
    // host under the group and item, and shows it. False when there is no such screen.
    virtual bool Abrir(const QString& tela, const ObjetosCaso& objetos, std::int16_t item, std::int32_t grupo,
                       QObject* contexto) = 0;
};

}  // namespace corvalin
