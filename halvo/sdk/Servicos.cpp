#include "halvo/sdk/Servicos.h"

#include "halvo/sdk/ServicosPadrao.h"

namespace halvo {

namespace {

struct Instalados {
    ServicoDialogo* dialogo = nullptr;
    UtilitariosSistema* sistema = nullptr;
    ServicosHalvo* halvo = nullptr;
};

Instalados& instalados() {
    static Instalados servicos;
    return servicos;
}

template <typename Padrao, typename Interface>
Interface& ouPadrao(Interface* instalado) {
    static Padrao padrao;
    return instalado ? *instalado : padrao;
}

}  // namespace

ServicoDialogo& Servicos::dialogo() { return ouPadrao<ServicoDialogoConsole>(instalados().dialogo); }

UtilitariosSistema& Servicos::sistema() { return ouPadrao<UtilitariosSistemaConsole>(instalados().sistema); }

ServicosHalvo& Servicos::halvo() { return ouPadrao<ServicosHalvoConsole>(instalados().halvo); }

void Servicos::instalar(ServicoDialogo* dialogo, UtilitariosSistema* sistema, ServicosHalvo* halvo) {
    instalados() = {dialogo, sistema, halvo};
}

InstalacaoServicos::InstalacaoServicos(ServicoDialogo* dialogo, UtilitariosSistema* sistema, ServicosHalvo* halvo)
    : mDialogo(instalados().dialogo), mSistema(instalados().sistema), mHalvo(instalados().halvo) {
    Servicos::instalar(dialogo, sistema, halvo);
}

InstalacaoServicos::~InstalacaoServicos() { Servicos::instalar(mDialogo, mSistema, mHalvo); }

}  // namespace halvo
