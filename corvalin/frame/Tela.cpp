#include "corvalin/frame/Tela.h"

#include "corvalin/frame/Mensagens.h"
#include "corvalin/options/OpcoesBD.h"
#include "corvalin/stations/PostoBD.h"
#include "halvo/controles/MDIcontrol.h"
#include "halvo/sdk/Caso.h"
#include "halvo/sdk/Notificador.h"
#include "halvo/sdk/ServicoDialogo.h"
#include "halvo/sdk/Servicos.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QKeyEvent>

namespace corvalin {

namespace {

template <class T>
T& pObjeto(const std::shared_ptr<T>& objeto) {
    if (!objeto) {
        throw plataforma::ErroVB::padrao(plataforma::ErroObjetoNaoDefinido);
    }
    return *objeto;
}

}  // namespace

Tela::Tela(const QString& nome, const QString& titulo, QWidget* pai) : QWidget(pai) {
    setObjectName(nome);
    setWindowTitle(titulo);
    // The host's marker that every screen of a model carries.
    (new halvo::MDIcontrol(this))->setObjectName(QStringLiteral("MDIcontrol1"));
}

Tela::~Tela() {
    pDescarregar();
}

void Tela::setObjetos(const ObjetosCaso& objetos) {
    setCamadaAcesso(objetos.CamadaAcesso);
    setCasoBD(objetos.casoBD);
    setCaso(objetos.caso);
    setNotificador(objetos.Notificador);
}

void Tela::Carregar() {
    pVerificaObjetos();
    if (!mBotoesGravacao.empty()) {
        const bool habilitado = !SomenteLeitura();
        for (QAbstractButton* botao : mBotoesGravacao) {
            botao->setEnabled(habilitado);
        }
    }
    postoBD();
    pCarregar();
}

void Tela::pVerificaObjetos() const {
    auto& dialogo = halvo::Servicos::dialogo();
    if (!mCasoBD) {
        dialogo.Mensagem(QStringLiteral("objeto casoBD indeterminado."), mTituloVerificacao);
    }
    if (!mCaso) {
        dialogo.Mensagem(QStringLiteral("objeto caso indeterminado."), mTituloVerificacao);
    }
    if (!mNotificador) {
        dialogo.Mensagem(QStringLiteral("objeto notificador indeterminado."), mTituloVerificacao);
    }
}

bool Tela::Gravar() {
    if (!pHaAlteracoes()) {
        return true;
    }
    if (!pGravar()) {
        return false;
    }
    mEstado = Limpo;
    pEsquecerAlteracoes();
    Notifica(halvo::EventoCasoAlterado);
    return true;
}

bool Tela::pConfirma() {
    if (!pHaAlteracoes()) {
        return true;
    }
    switch (halvo::Servicos::dialogo().Mensagem(Mensagens::msgGravarAlteracoes,
                                                Mensagens::msgTituloConfirmacao, halvo::Icone::Pergunta,
                                                halvo::Botoes::SimNaoCancelar)) {
        case halvo::Resposta::Sim:
            return pGravarConfirmado();
        case halvo::Resposta::Nao:
            mEstado = Limpo;
            pEsquecerAlteracoes();
            return true;
        default:
            return false;
    }
}

bool Tela::pMarcaAlterado() {
    if (mEstado == Preenchendo || SomenteLeitura()) {
        return false;
    }
    if (mEstado == Limpo) {
        mEstado = Alterado;
    }
    return true;
}

halvo::caso& Tela::getCaso() const {
    return pObjeto(mCaso);
}

corvalin::casoBD& Tela::getCasoBD() const {
    return pObjeto(mCasoBD);
}

bool Tela::SomenteLeitura() const {
    return getCaso().SomenteLeitura();
}

void Tela::Notifica(std::int32_t evento) {
    pObjeto(mNotificador).Notifica(getCaso(), evento);
}

PostoBD& Tela::postoBD() {
    if (!mPostoBD) {
        auto posto = std::make_unique<PostoBD>();
        posto->setCasoBD(mCasoBD);
        mPostoBD = std::move(posto);
    }
    return *mPostoBD;
}

OpcoesBD& Tela::opcoesBD() {
    if (!mOpcoesBD) {
        auto opcoes = std::make_unique<OpcoesBD>();
        opcoes->setCasoBD(mCasoBD);
        mOpcoesBD = std::move(opcoes);
    }
    return *mOpcoesBD;
}

void Tela::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter) {
        evento->accept();
        pTeclaEnter();
        return;
    }
    QWidget::keyPressEvent(evento);
}

// Every way of closing passes here: the exit button, the window's own close, the host's.
void Tela::closeEvent(QCloseEvent* evento) {
    bool fecha = false;
    pArmadilha(QStringLiteral("Form_QueryUnload"), [&] { fecha = pConfirma(); });
    if (!fecha) {
        evento->ignore();
        return;
    }
    pDescarregar();
    pDescarregarProprios();
    evento->accept();
}

void Tela::pDescarregar() {
    mPostoBD.reset();
    mCaso.reset();
    mCasoBD.reset();
    mCamadaAcesso.reset();
    mNotificador.reset();
    mOpcoesBD.reset();
}

}  // namespace corvalin
