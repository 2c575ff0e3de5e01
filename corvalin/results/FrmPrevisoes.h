#pragma once

#include "corvalin/frame/TelaPostos.h"

namespace halvo {
class Grid;
}

namespace corvalin {

// "Previsões": the stored forecast of one station, six weeks across, the forecast and its two
// limits down. The weeks follow the end of the station's history as it stands now.
class FrmPrevisoes : public TelaPostos {
    Q_OBJECT

public:
    explicit FrmPrevisoes(QWidget* pai = nullptr);

protected:
    void pPrepararControles() override { pAjustarGrade(); }
    void pMostrar(const Posto& posto) override { pPreencherGrade(posto); }
    void pLimpar() override;

private:
    void pAjustarGrade();
    void pPreencherGrade(const Posto& posto);

    halvo::Grid* mGrade;
};

}  // namespace corvalin
