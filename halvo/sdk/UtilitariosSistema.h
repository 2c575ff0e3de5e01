#pragma once

#include <QString>

#include <cstdint>

class QObject;
class QWidget;

namespace halvo {

// The host's window and process services.
class UtilitariosSistema {
public:
    virtual ~UtilitariosSistema() = default;

    // Starts a program and, when espera is true, returns when it has ended. A batch file is run
    // by the platform's shell (/bin/sh; cmd on Windows) in the current folder.
    virtual void ExecutaPrograma(const QString& arquivo, std::int16_t estilo, const QString& argumentos,
                                 std::int32_t reservado, bool espera) = 0;
    // Makes a model's screen a child window of the host's work area.
    virtual void JanelaFilha(QWidget* janela, QObject* contexto) = 0;
    // Tells the host which screen of which case a window is.
    virtual void JanelaRegistra(QWidget* janela, const QString& estudo, const QString& caso,
                                std::int32_t grupo, std::int16_t item) = 0;
    // Receives the window of the progress form while it lives.
    virtual void JanelaAuxiliar(QWidget* janela) = 0;
};

// The process part that every implementation shares: runs the file through the platform's
// shell in the current folder and blocks until it ends. Gives the exit code, or -1 when the
// program could not be started or crashed.
int ExecutaNoShell(const QString& arquivo);

}  // namespace halvo
