#pragma once

#include "corvalin/frame/AberturaTelas.h"

namespace corvalin {

// The screens' side of the host's request: makes the named screen, gives it the case's objects,
// loads it, makes it a child of the host's work area, registers it with the host, names the case
// in its caption and shows it without modality. Each screen deletes itself when it closes.
class AberturaTelasGui : public AberturaTelas {
public:
    bool Abrir(const QString& tela, const ObjetosCaso& objetos, std::int16_t item, std::int32_t grupo,
               QObject* contexto) override;

    // The plug-in's folder, where the run assistant finds the solver.
    void setPastaPlugin(const QString& pasta) { mPastaPlugin = pasta; }

private:
    QString mPastaPlugin;
};

}  // namespace corvalin
