#pragma once

#include "corvalin/frame/Geral.h"
#include "corvalin/frame/Progresso.h"

#include <QWidget>

class QProgressBar;

namespace corvalin {

// The progress form of long operations. One instance exists at a time, made at first use and
// dropped when unloaded; while it lives the pointer is busy, and the host has it as its auxiliary
// window. Its users set its caption, show it, refresh it, and hand its bar to the operation.
class FrmBarraDeProgresso : public QWidget {
    Q_OBJECT

public:
    ~FrmBarraDeProgresso() override;

    // The instance, loaded at first use.
    static FrmBarraDeProgresso& Instancia();
    // Drops the instance, if there is one; the next use makes a new one.
    static void Descarregar();

    // Paints the form at once: the operation that follows keeps the event loop waiting.
    void Atualizar();
    QProgressBar& PrgBarraDeProgresso() const { return *mBarra; }
    // The bar as an operation reports to it, from 0 to 100; hiding it hides the form.
    Progresso& Barra() { return mProgresso; }

private:
    class ProgressoDaBarra : public Progresso {
    public:
        explicit ProgressoDaBarra(FrmBarraDeProgresso& formulario) : mFormulario(formulario) {}
        void setValue(double valor) override;
        void Esconde() override { mFormulario.hide(); }

    private:
        FrmBarraDeProgresso& mFormulario;
    };

    FrmBarraDeProgresso();

    const PonteiroOcupado mPonteiro;
    QProgressBar* mBarra;
    ProgressoDaBarra mProgresso{*this};
};

// The progress form for the length of one operation: loaded with the operation's caption, shown
// and painted at once, unloaded however the operation ends.
class ProgressoDaOperacao {
public:
    explicit ProgressoDaOperacao(const QString& legenda);
    ~ProgressoDaOperacao();
    ProgressoDaOperacao(const ProgressoDaOperacao&) = delete;
    ProgressoDaOperacao& operator=(const ProgressoDaOperacao&) = delete;

    Progresso& Barra() const { return FrmBarraDeProgresso::Instancia().Barra(); }
};

}  // namespace corvalin
