#pragma once

#include "corvalin/frame/Tela.h"
#include "platform/recordstore/Recordstore.h"

#include <initializer_list>

class QLabel;
class QLineEdit;
class QPushButton;

namespace halvo {
class Combo;
}

namespace corvalin {

class Posto;

// The screens that walk through the stations. For the screen's word X it makes the controls
// LblXCodigo, TxtXCodigo, LblXNome, CBDX above the screen's own part, and BotXNavegacao_0 to _3
// (first, previous, next, last), BotXGravar on editing screens and BotXSair below it.
//
// Every step starts from the station on the screen, found again from the code in TxtXCodigo, and
// runs in the order of the stations' names; the prompt of unsaved changes comes first.
class TelaPostos : public Tela {
    Q_OBJECT

protected:
    enum class Gravacao { Sem, Com };

    TelaPostos(const QString& nome, const QString& palavra, const QString& titulo, Gravacao gravacao,
               QWidget* pai = nullptr);

    // Lays the screen out: the station above, corpo, and the buttons below, the screen's own
    // buttons (made by it, in their order) between the navigation and the write and exit buttons.
    void pMontaTela(QWidget& corpo, std::initializer_list<QPushButton*> botoesProprios = {});

    // The screen's own controls at loading, once the record list is bound.
    virtual void pPrepararControles() {}
    // The first station at loading.
    virtual void pMostrarPrimeiro();
    // Fill and empty the screen's own controls; the code and the name are the frame's.
    virtual void pMostrar(const Posto& posto) = 0;
    virtual void pLimpar() = 0;
    // After a station was shown by a step or a choice in the list.
    virtual void pNavegou(const Posto&) {}
    // The write button; a screen that does something before saving puts it here.
    virtual void pGravarClicado() { Gravar(); }
    // Whether the user only chooses in the record list, or may also type a name in it.
    virtual bool pSomenteLista() const { return true; }

    // The code on the screen: its numeric value when the text is a number, else 0.
    std::int32_t pCodigoNaTela() const;
    // Shows the station found, or clears the screen when none was.
    void pExibir(bool achou, const Posto& posto);

    QLineEdit& TxtCodigo() const { return *mTxtCodigo; }
    // The code box and its label, open only where a code may be typed.
    void setCodigoHabilitado(bool habilitado);
    // The record list, where an editing screen hears a name typed.
    halvo::Combo& CBD() const { return *mCBD; }
    // The four navigation buttons, for a screen that shuts the way to other stations.
    void setNavegacaoHabilitada(bool habilitada);
    // Loads the station whose code is on the screen; when there is none, says that one must be
    // chosen first.
    bool pObtemPosto(Posto& posto);

    static const QString IndiceNome;

private:
    void pCarregar() final;
    void pNavegacao(int indice);
    void pEscolhido(recordstore::Bookmark marcador);

    QString mPalavra;
    Gravacao mGravacao;
    QLabel* mLblCodigo;
    QLineEdit* mTxtCodigo;
    QLabel* mLblNome;
    halvo::Combo* mCBD;
    // The name as the screen last showed it or the user typed it, put back when a choice in the
    // list is cancelled at the prompt.
    QString mNomeNaTela;
};

}  // namespace corvalin
