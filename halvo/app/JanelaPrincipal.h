#pragma once

#include "halvo/app/GerenteDeCasos.h"

#include <QMainWindow>

#include <cstdint>
#include <memory>
#include <vector>

class QAction;
class QDockWidget;
class QMdiArea;

namespace halvo {

class IModelo;
class ListaDeCasos;
class NotificadorMensagem;
class PainelCasos;

// The host's window: the model's screens in an MDI work area, the studies and cases in a dock,
// and the menus. "Caso" acts on the case selected in the tree (open, copy, delete, read-only) or
// on the open one (close, run); one menu per group of the model's screens opens them as children
// of the work area while a case is open. What the model reports about a case shows in the status
// bar. Closing, switching or deleting a case closes its screens first;
// a screen that refuses (unsaved changes kept by Cancel) keeps the case as it is.
//
// Actions are named for tests and scripts: acaoNovo, acaoAbrir, acaoFechar, acaoCopiar,
// acaoApagar, acaoSomenteLeitura, acaoExecutar, acaoSair, acaoSobre, and acaoTela_<grupo>_<item>.
class JanelaPrincipal : public QMainWindow {
    Q_OBJECT

public:
    // The model and the list must outlive the window.
    JanelaPrincipal(IModelo& modelo, ListaDeCasos& lista, QWidget* pai = nullptr);
    ~JanelaPrincipal() override;

    QMdiArea& Area() const { return *mArea; }
    const GerenteDeCasos& Gerente() const { return mGerente; }
    // Opens the case of a folder, listing it when it is not yet (the command "janela PASTA").
    bool AbrePasta(const QString& pasta);

protected:
    void closeEvent(QCloseEvent* evento) override;

private:
    void pCriaMenuCaso();
    void pCriaMenusDeTelas();
    void pCriaMenuJanela(QDockWidget& doca);
    void pCriaMenuAjuda();
    QAction* pAcao(const QString& nome, const QString& texto);

    void pNovo();
    void pAbrir();
    void pFechar();
    void pCopiar();
    void pApagar();
    void pSomenteLeitura(bool somenteLeitura);
    void pExecutar();
    void pSobre();
    void pAbreTela(std::int16_t item, std::int32_t grupo);
    bool pFechaTelasDoCaso(const EntradaCaso& entrada);
    bool pFechaTelasDoAberto();
    void pMostraCasos();
    void pAtualiza();
    const EntradaCaso* pSelecionado() const;

    IModelo& mModelo;
    std::shared_ptr<NotificadorMensagem> mNotificador;
    GerenteDeCasos mGerente;
    QMdiArea* mArea;
    PainelCasos* mPainel;
    QAction* mAbrir = nullptr;
    QAction* mFechar = nullptr;
    QAction* mCopiar = nullptr;
    QAction* mApagar = nullptr;
    QAction* mSomenteLeitura = nullptr;
    QAction* mExecutar = nullptr;
    std::vector<QAction*> mTelas;
};

}  // namespace halvo
