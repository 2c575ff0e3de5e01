#pragma once

#include "halvo/sdk/UtilitariosSistema.h"

#include <QPointer>
#include <QWidget>

#include <optional>

namespace halvo {

// The window and process services of the host's window.
//
// - ExecutaPrograma shows the busy pointer and lets the window paint once before the program
//   blocks the thread until it ends.
// - JanelaFilha adds a model's screen to the work area given as the context (a QMdiArea) as a
//   subwindow; both are deleted when the screen closes, however it is closed.
// - JanelaRegistra keeps on the screen which case (study and code), group and item it belongs
//   to, for RegistroDe.
// - JanelaAuxiliar makes the progress window a tool window of the main window, so that it stays
//   on top of it.
class UtilitariosSistemaGui : public UtilitariosSistema {
public:
    struct Registro {
        QString estudo;
        QString caso;
        std::int32_t grupo = 0;
        std::int16_t item = 0;
    };

    // What JanelaRegistra kept on a window; nothing for a window it never saw.
    static std::optional<Registro> RegistroDe(const QWidget& janela);

    void setPrincipal(QWidget* principal) { mPrincipal = principal; }

    void ExecutaPrograma(const QString& arquivo, std::int16_t estilo, const QString& argumentos,
                         std::int32_t reservado, bool espera) override;
    void JanelaFilha(QWidget* janela, QObject* contexto) override;
    void JanelaRegistra(QWidget* janela, const QString& estudo, const QString& caso, std::int32_t grupo,
                        std::int16_t item) override;
    void JanelaAuxiliar(QWidget* janela) override;

private:
    QPointer<QWidget> mPrincipal;
};

}  // namespace halvo
