#pragma once

#include "corvalin/frame/TelaPostos.h"
#include "corvalin/options/Opcoes.h"
#include "corvalin/stations/Posto.h"
#include "halvo/sdk/ServicoDialogo.h"
#include "platform/runtime/Vetor.h"

class QCheckBox;
class QComboBox;
class QGroupBox;

namespace halvo {
class Grid;
}

namespace corvalin {

// "Limites": the limits in percent that bound a station's forecast, one lower and one upper per
// period of a grouping of the year, with their kind, the division of the flow and the name of
// their file. A switch of the whole case turns limits off; it is saved with the station shown.
//
// The arrays mirror the grid's rows from 1; -1 marks a period without a value. Each grouping keeps
// its own limits in the store, so going back to one brings its values back.
class FrmLimites : public TelaPostos {
    Q_OBJECT

public:
    explicit FrmLimites(QWidget* pai = nullptr);

protected:
    void pPrepararControles() override;
    void pMostrarPrimeiro() override;
    void pMostrar(const Posto& posto) override;
    // With no station the controls keep what they hold.
    void pLimpar() override {}
    bool pGravar() override;
    bool pGravarConfirmado() override { return pValidaNomeArquivo() && Gravar(); }

private:
    QWidget* pMontaControles();
    void pLigaEventos();
    void pPreparaGrade();
    void pTituloGrade();
    void pMostrarLimites();
    void pMostrarNovamente();
    void pHabilita(bool habilitado);
    void pUsaLimiteClicado();
    void pCelulaEditada(int linha, int coluna);
    bool pValida();
    bool pValidaNomeArquivo();
    // Says what is wrong, titled "Atenção", and puts the user on the control.
    bool pRecusa(const QString& mensagem, halvo::Icone icone, QWidget& controle);
    bool pPreenchendo() const { return getEstado() == Preenchendo; }

    Posto mPosto;
    Opcoes mOpcoes;
    plataforma::Vetor<std::int16_t> mOrdem;
    plataforma::Vetor<float> mLimiteInferior;
    plataforma::Vetor<float> mLimiteSuperior;

    QCheckBox* mChkUsaLimite = nullptr;
    QGroupBox* mFrame2 = nullptr;
    QComboBox* mCmbLimite = nullptr;
    QComboBox* mCmbDiscretizacao = nullptr;
    QComboBox* mCmbMagnitude = nullptr;
    QLineEdit* mTxtArqLimite = nullptr;
    halvo::Grid* mGrdLimites = nullptr;
};

}  // namespace corvalin
