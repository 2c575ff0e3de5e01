#include "corvalin/frame/AberturaTelasGui.h"

#include "corvalin/editors/FrmDadosGerais.h"
#include "corvalin/editors/FrmImporta.h"
#include "corvalin/editors/FrmLimites.h"
#include "corvalin/execution/FrmExecutar.h"
#include "corvalin/options/FrmOpcoes.h"
#include "corvalin/results/FrmGrafico.h"
#include "corvalin/results/FrmPrevisoes.h"
#include "corvalin/results/FrmResultados.h"
#include "corvalin/stations/FrmPostos.h"
#include "halvo/sdk/Caso.h"
#include "halvo/sdk/Servicos.h"
#include "halvo/sdk/UtilitariosSistema.h"

#include <array>

namespace corvalin {

namespace {

template <class T>
std::unique_ptr<Tela> pFaz(const QString&) {
    return std::make_unique<T>();
}

std::unique_ptr<Tela> pFazExecutar(const QString& pastaPlugin) {
    return std::make_unique<FrmExecutar>(pastaPlugin);
}

struct Fabrica {
    const char* nome;
    std::unique_ptr<Tela> (*faz)(const QString& pastaPlugin);
};

// The screens that exist, by their form names.
constexpr std::array Fabricas{
    Fabrica{"FrmExecutar", &pFazExecutar},
    Fabrica{"FrmPrevisoes", &pFaz<FrmPrevisoes>},
    Fabrica{"FrmGrafico", &pFaz<FrmGrafico>},
    Fabrica{"FrmResultados", &pFaz<FrmResultados>},
    Fabrica{"FrmDadosGerais", &pFaz<FrmDadosGerais>},
    Fabrica{"FrmLimites", &pFaz<FrmLimites>},
    Fabrica{"FrmImporta", &pFaz<FrmImporta>},
    Fabrica{"FrmPostos", &pFaz<FrmPostos>},
    Fabrica{"FrmOpcoes", &pFaz<FrmOpcoes>},
};

const halvo::caso& pCaso(const ObjetosCaso& objetos) {
    if (!objetos.caso) {
        throw plataforma::ErroVB::padrao(plataforma::ErroObjetoNaoDefinido);
    }
    return *objetos.caso;
}

std::unique_ptr<Tela> pFazTela(const QString& nome, const QString& pastaPlugin) {
    for (const Fabrica& fabrica : Fabricas) {
        if (nome == QLatin1String(fabrica.nome)) {
            return fabrica.faz(pastaPlugin);
        }
    }
    return nullptr;
}

}  // namespace

bool AberturaTelasGui::Abrir(const QString& nome, const ObjetosCaso& objetos, std::int16_t item,
                             std::int32_t grupo, QObject* contexto) {
    std::unique_ptr<Tela> tela = pFazTela(nome, mPastaPlugin);
    if (!tela) {
        return false;
    }
    tela->setObjetos(objetos);
    try {
        tela->Carregar();
        auto& sistema = halvo::Servicos::sistema();
        sistema.JanelaFilha(tela.get(), contexto);
        const halvo::caso& caso = pCaso(objetos);
        sistema.JanelaRegistra(tela.get(), caso.Item(QStringLiteral("estudo")),
                               caso.Item(QStringLiteral("codigo")), grupo, item);
        tela->setWindowTitle(tela->windowTitle() + QStringLiteral(" (") + caso.Item(QStringLiteral("nome")) +
                             QLatin1Char(')'));
    } catch (const plataforma::ErroVB& erro) {
        // A screen that cannot load is not shown.
        MsgErro(erro.Number(), erro.Description(), QStringLiteral("Form_Load"), nome);
        return false;
    }
    tela->setAttribute(Qt::WA_DeleteOnClose);
    tela.release()->show();
    return true;
}

}  // namespace corvalin
