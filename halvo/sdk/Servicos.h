#pragma once

namespace halvo {

class ServicoDialogo;
class ServicosHalvo;
class UtilitariosSistema;

// The host's process-wide services. The host installs its own before it creates a model; until
// then, and for whatever is not installed, headless defaults answer: dialogs on the console with
// their default button, windows ignored, programs run, paths taken as they are.
class Servicos {
public:
    static ServicoDialogo& dialogo();
    static UtilitariosSistema& sistema();
    static ServicosHalvo& halvo();

    // Installs services (a null pointer keeps the default). The objects must outlive their use.
    static void instalar(ServicoDialogo* dialogo, UtilitariosSistema* sistema, ServicosHalvo* halvo);
};

// Installs services for a scope and puts the former ones back at its end (tests, the CLI).
class InstalacaoServicos {
public:
    InstalacaoServicos(ServicoDialogo* dialogo, UtilitariosSistema* sistema, ServicosHalvo* halvo);
    ~InstalacaoServicos();
    InstalacaoServicos(const InstalacaoServicos&) = delete;
    InstalacaoServicos& operator=(const InstalacaoServicos&) = delete;

private:
    ServicoDialogo* mDialogo;
    UtilitariosSistema* mSistema;
    ServicosHalvo* mHalvo;
};

}  // namespace halvo
