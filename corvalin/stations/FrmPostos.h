#pragma once

#include "corvalin/frame/TelaPostos.h"
#include "corvalin/stations/Posto.h"

#include <array>

class QLineEdit;

namespace halvo {
class Grid;
class Spin;
}  // namespace halvo

namespace corvalin {

// "Histórico de Vazões Semanais": the catalogue of stations with their weekly flows, one grid row
// per year and one column per week, the first and last years set by two spinners. A new station
// is typed in under a code of its own; a stored one keeps its code.
//
// The week columns are settled by the first station at loading and never change afterwards: a
// case is meant to hold one week count.
class FrmPostos : public TelaPostos {
    Q_OBJECT

public:
    explicit FrmPostos(QWidget* pai = nullptr);

protected:
    void pPrepararControles() override;
    void pMostrarPrimeiro() override;
    void pMostrar(const Posto& posto) override;
    void pLimpar() override;
    bool pGravar() override;
    // A station being made counts as changed from the start, without leaving its state.
    bool pHaAlteracoes() const override;
    void pEsquecerAlteracoes() override;
    bool pSomenteLista() const override { return false; }
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    // The shortest history the spinners leave, and the span a new station starts with.
    static constexpr int MinimoDeAnos = 20;

    static void pInforma(const QString& texto);
    void pMostrarVazoes(const Posto& posto);
    void pNovo();
    void pMarcarAlteracao(bool cadastro);
    void pExcluir();
    void pImportar();
    bool pValidarAno(int indice, bool paraCima);
    void pAjustarGrade(int indice);
    bool pValidarPosto();
    bool pValidarVazoes();

    QLineEdit* mTxtArea;
    std::array<halvo::Spin*, 2> mSpnAno;
    halvo::Grid* mGrade;

    bool mPostoAlterado = false;
    bool mHistoricoAlterado = false;
    bool mAnoConfirmado = false;
    // While the screen opens, the focus is left where it is.
    bool mAbrindo = false;
    Posto mPosto;
};

}  // namespace corvalin
