#pragma once

#include "corvalin/frame/TelaPostos.h"

#include <array>
#include <functional>
#include <utility>
#include <vector>

class QCheckBox;
class QGroupBox;
class QLabel;
class QRadioButton;
class QTabWidget;

namespace halvo {
class Spin;
}

namespace corvalin {

// "Dados Gerais": what the solver is told for one station, on four tabs: parameters and file
// names, the transformation of the flows, the files erased after a run, and the Vazpast values.
// No record is held between events: each operation loads the station on the screen anew.
//
// The 53-week switch is not a change of its own: it only bounds the week spinner, so that ticking
// it alone leaves nothing to save.
class FrmDadosGerais : public TelaPostos {
    Q_OBJECT

public:
    explicit FrmDadosGerais(QWidget* pai = nullptr);

protected:
    void pPrepararControles() override;
    void pMostrarPrimeiro() override;
    void pMostrar(const Posto& posto) override;
    void pLimpar() override;
    bool pGravar() override;
    void pGravarClicado() override;

    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    // The names of the output files and of the Vazpast file.
    static constexpr int TamanhoNomeCurto = 12;

    // The four tabs, made in reading order (FrmDadosGeraisControles.cpp).
    QWidget* pMontaParametros();
    QWidget* pMontaTransformacao();
    QWidget* pMontaExclusao();
    QWidget* pMontaVazpast();
    QWidget* pMontaAbas();
    void pEntraNaAba();
    // What the user's changes and keys do (FrmDadosGeraisEventos.cpp).
    void pLigaAlteracoes();
    // A key handler of a text box: it sees each character typed and refuses it by setting it to 0.
    void pFiltra(QLineEdit& caixa, std::function<void(char16_t&)> filtro);

    void pHabilitaArquivosEntrada();
    void pUsaVazpastClicado();
    void pCasoUsa53SemanasClicado();
    // The week within the spinner's bounds, with a word to the user when it was not.
    void pAplicaRegraSemana();
    bool pValida();
    // Tells why a value is refused and puts the user on it.
    bool pRecusa(const QString& mensagem, QWidget& controle);
    void pImportar();
    void pPreencheVazpast(const Posto& posto);
    void pLeTela(Posto& posto) const;

    QTabWidget* mGiiDadosGerais;
    QLineEdit* mTxtIntervaloConfianca;
    halvo::Spin* mSpnMesInicial;
    halvo::Spin* mSpnSemanaInicialPrev;
    QLineEdit* mTxtAnoInicialPev;
    QLineEdit* mTxtAnoFinalHistorico;
    QCheckBox* mChkImpressao;
    QCheckBox* mChkCasoUsa53Semanas;
    QCheckBox* mChkArquivosEntrada;
    QCheckBox* mChkUsaVazpast;
    std::array<QLabel*, 5> mLblArquivo{};
    std::array<QLineEdit*, 6> mTxtArquivo{};
    std::array<QRadioButton*, 6> mOptTransformacao{};
    std::array<QCheckBox*, 4> mChkExclusao{};
    QGroupBox* mFmeVazpast = nullptr;
    std::array<QLineEdit*, 4> mTxtVazpast{};
    QPushButton* mBotImportar;
    std::vector<std::pair<QLineEdit*, std::function<void(char16_t&)>>> mFiltros;
};

}  // namespace corvalin
