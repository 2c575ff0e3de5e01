#pragma once

#include "corvalin/frame/AberturaTelas.h"
#include "corvalin/frame/Geral.h"
#include "platform/runtime/ErroVB.h"

#include <QWidget>

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

class QAbstractButton;

namespace corvalin {

class OpcoesBD;
class PostoBD;

// What every screen of the plug-in shares: the four objects of the case, set before it loads; the
// checks and steps of loading; the states of an editing screen, with the prompt that guards unsaved
// changes on every way out; Enter as Tab; and the release of the objects when it closes.
//
// A screen that does not edit never leaves the clean state, so the prompt lets it go at once.
class Tela : public QWidget {
    Q_OBJECT

public:
    enum Estado : std::uint8_t { Novo = 0, Limpo = 1, Alterado = 2, Preenchendo = 3 };

    ~Tela() override;

    void setCamadaAcesso(std::shared_ptr<halvo::CamadaAcesso> objeto) { mCamadaAcesso = std::move(objeto); }
    void setCasoBD(std::shared_ptr<corvalin::casoBD> objeto) { mCasoBD = std::move(objeto); }
    void setCaso(std::shared_ptr<halvo::caso> objeto) { mCaso = std::move(objeto); }
    void setNotificador(std::shared_ptr<halvo::Notificador> objeto) { mNotificador = std::move(objeto); }
    void setObjetos(const ObjetosCaso& objetos);

    // Loads the screen once its objects are set. The checks of the objects only speak: a missing
    // object fails later, in the step that needs it, as an error the caller reports.
    void Carregar();

    Estado getEstado() const { return mEstado; }

protected:
    // nome is the form's name, which the traps report; titulo its caption.
    Tela(const QString& nome, const QString& titulo, QWidget* pai = nullptr);

    // The screen's part of loading, after the checks, the write buttons and the station store.
    virtual void pCarregar() = 0;
    // The screen's own save, run only when there are changes: false when its validation refused.
    virtual bool pGravar() { return true; }
    // What the prompt's Yes runs; a screen that checks something before saving puts it here.
    virtual bool pGravarConfirmado() { return Gravar(); }
    // Whether the prompt has anything to ask about.
    virtual bool pHaAlteracoes() const { return mEstado == Alterado; }
    // Forgets the screen's own change flags, when its changes are saved or dropped.
    virtual void pEsquecerAlteracoes() {}
    // Enter anywhere on the screen.
    virtual void pTeclaEnter() { focusNextChild(); }
    // Drops what the screen holds of its own, after the frame's objects, when it closes.
    virtual void pDescarregarProprios() {}

    // The save of the write button and of the prompt: nothing when there are no changes; after a
    // successful save the screen is clean and the host hears of the change.
    bool Gravar();
    // "Deseja gravar as alterações realizadas?": true when the screen may move on.
    bool pConfirma();
    // A change made by the user: false when it does not count (read-only case, or the screen
    // filling itself); the first one makes a clean screen changed.
    bool pMarcaAlterado();
    void setEstado(Estado estado) { mEstado = estado; }

    // Enabled at loading only when the case may be changed.
    void pRegistraGravacao(QAbstractButton& botao) { mBotoesGravacao.push_back(&botao); }
    // The title of the messages about missing objects; none on most screens.
    void setTituloVerificacao(const QString& titulo) { mTituloVerificacao = titulo; }

    ObjetosCaso getObjetos() const { return {mCamadaAcesso, mCasoBD, mCaso, mNotificador}; }
    // The case's objects; error 91 while one is not set.
    halvo::caso& getCaso() const;
    corvalin::casoBD& getCasoBD() const;
    bool SomenteLeitura() const;
    void Notifica(std::int32_t evento);
    // The stores, made and given the case's database at first use.
    PostoBD& postoBD();
    OpcoesBD& opcoesBD();

    // A trap: runs corpo, and reports a run-time error as this screen's, in routine rotina.
    // False when an error was reported.
    template <class Corpo>
    bool pArmadilha(const QString& rotina, Corpo&& corpo) {
        try {
            std::forward<Corpo>(corpo)();
            return true;
        } catch (const plataforma::ErroVB& erro) {
            MsgErro(erro.Number(), erro.Description(), rotina, objectName());
            return false;
        }
    }

    void keyPressEvent(QKeyEvent* evento) override;
    void closeEvent(QCloseEvent* evento) override;

private:
    void pVerificaObjetos() const;
    void pDescarregar();

    // Released in this order, the station store first, so that it closes its tables while the
    // database is still held.
    std::unique_ptr<PostoBD> mPostoBD;
    std::shared_ptr<halvo::caso> mCaso;
    std::shared_ptr<corvalin::casoBD> mCasoBD;
    std::shared_ptr<halvo::CamadaAcesso> mCamadaAcesso;
    std::shared_ptr<halvo::Notificador> mNotificador;
    std::unique_ptr<OpcoesBD> mOpcoesBD;

    Estado mEstado = Limpo;
    std::vector<QAbstractButton*> mBotoesGravacao;
    QString mTituloVerificacao;
};

}  // namespace corvalin
