#pragma once

#include "corvalin/frame/Progresso.h"

#include <QString>

namespace corvalin {

// The progress form of the generation of files: a caption over a bar, shown while it works. The
// screens implement it with a window; a run without a screen shows nothing.
class JanelaProgresso {
public:
    virtual ~JanelaProgresso() = default;
    virtual void setCaption(const QString& texto) = 0;
    virtual void Mostra() = 0;
    virtual void Esconde() = 0;
    virtual Progresso& Barra() = 0;
};

class JanelaProgressoNula : public JanelaProgresso {
public:
    void setCaption(const QString&) override {}
    void Mostra() override {}
    void Esconde() override {}
    Progresso& Barra() override { return mBarra; }

private:
    ProgressoNulo mBarra;
};

}  // namespace corvalin
