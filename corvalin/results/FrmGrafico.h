#pragma once

#include "corvalin/frame/TelaPostos.h"

class QBarCategoryAxis;
class QChart;
class QChartView;
class QValueAxis;

namespace corvalin {

// "Gráfico das Previsões": the last verified flows of one station, the forecast that follows
// them and the band of its limits, one line each, with the weeks along the bottom. The weeks
// count back from the first forecast week of the station's general data.
class FrmGrafico : public TelaPostos {
    Q_OBJECT

public:
    explicit FrmGrafico(QWidget* pai = nullptr);

protected:
    void pPrepararControles() override { pAjustarGrafico(); }
    void pMostrar(const Posto& posto) override { pPreencherGrafico(posto); }
    void pLimpar() override { pEsvaziar(); }

private:
    void pAjustarGrafico();
    void pPreencherGrafico(const Posto& posto);
    void pEsvaziar();

    QChartView* mVista;
    QChart* mGrafico;
    QBarCategoryAxis* mSemanas;
    QValueAxis* mVazoes;
};

}  // namespace corvalin
