#include "corvalin/results/FrmGrafico.h"

#include "corvalin/frame/Mensagens.h"
#include "corvalin/stations/Posto.h"
#include "corvalin/stations/PostoBD.h"
#include "halvo/sdk/ServicoDialogo.h"
#include "halvo/sdk/Servicos.h"
#include "platform/texto/Texto.h"

#include <QBarCategoryAxis>
#include <QChart>
#include <QChartView>
#include <QLegend>
#include <QLineSeries>
#include <QValueAxis>

#include <algorithm>
#include <array>

namespace corvalin {

namespace {

constexpr int SemanasAnteriores = 6;
// A Vazpast file gives four weeks, and they end two weeks later than the history would.
constexpr int SemanasVazpast = 4;
constexpr int AvancoVazpast = 2;

QLineSeries* pSerie(QChart& grafico, const QString& nome) {
    auto* serie = new QLineSeries(&grafico);
    serie->setName(nome);
    return serie;
}

}  // namespace

FrmGrafico::FrmGrafico(QWidget* pai)
    : TelaPostos(QStringLiteral("FrmGrafico"), QStringLiteral("Grafico"),
                 QStringLiteral("Gráfico das Previsões"), Gravacao::Sem, pai),
      mVista(new QChartView(this)),
      mGrafico(new QChart),
      mSemanas(new QBarCategoryAxis),
      mVazoes(new QValueAxis) {
    mVista->setObjectName(QStringLiteral("GrfGrafico"));
    mVista->setChart(mGrafico);
    mVista->setRenderHint(QPainter::Antialiasing);
    mGrafico->addAxis(mSemanas, Qt::AlignBottom);
    mGrafico->addAxis(mVazoes, Qt::AlignLeft);
    pMontaTela(*mVista);
    resize(720, 480);
}

void FrmGrafico::pAjustarGrafico() {
    QFont tituloEixo = mSemanas->titleFont();
    tituloEixo.setPointSize(10);
    mSemanas->setTitleFont(tituloEixo);
    mVazoes->setTitleFont(tituloEixo);

    QLegend& legenda = *mGrafico->legend();
    legenda.setAlignment(Qt::AlignBottom);
    legenda.setLabelColor(QColor(1, 1, 1));
    legenda.setBackgroundVisible(false);
    QFont fonteLegenda(tituloEixo.family(), 8);
    fonteLegenda.setBold(true);
    legenda.setFont(fonteLegenda);
    legenda.setVisible(true);

    QLinearGradient fundo(0, 0, 1, 0);
    fundo.setCoordinateMode(QGradient::ObjectBoundingMode);
    fundo.setColorAt(0, QColor(210, 210, 206));
    fundo.setColorAt(1, QColor(255, 255, 255));
    mGrafico->setBackgroundBrush(fundo);
    mGrafico->setDropShadowEnabled(false);

    mVazoes->setGridLinePen(QPen(QColor(255, 255, 255), 1, Qt::DotLine));
    mGrafico->setLocalizeNumbers(true);
    pEsvaziar();
    mVazoes->setTitleText(Mensagens::msgVazao);
    mSemanas->setTitleText(Mensagens::msgSemana);
}

void FrmGrafico::pEsvaziar() {
    mGrafico->removeAllSeries();
    mSemanas->clear();
}

void FrmGrafico::pPreencherGrafico(const Posto& posto) {
    pEsvaziar();
    plataforma::Vetor<float> passadas;
    if (posto.FlafVazpast) {
        passadas.ReDim(SemanasVazpast);
        passadas[1] = static_cast<float>(posto.VazpastSemana_4);
        passadas[2] = static_cast<float>(posto.VazpastSemana_3);
        passadas[3] = static_cast<float>(posto.VazpastSemana_2);
        passadas[4] = static_cast<float>(posto.VazpastSemana_1);
    } else if (!postoBD().getVazoesAnteriores(posto, passadas)) {
        halvo::Servicos::dialogo().Mensagem(QStringLiteral("Não existem as Vazões Anteriores pedidas!"));
        return;
    }
    plataforma::Vetor<float> previsao;
    plataforma::Vetor<float> limiteInferior;
    plataforma::Vetor<float> limiteSuperior;
    postoBD().getVazoesPrevistas(posto.Codigo, previsao, limiteInferior, limiteSuperior);
    const int n = passadas.UBound();
    const int m = previsao.UBound();
    if (n <= 0 || m <= 0) {
        return;
    }

    const int semanas = posto.getNumSemanas();
    int semana = posto.SemanaInicialPrev + (posto.FlafVazpast ? AvancoVazpast : 0) - SemanasAnteriores;
    if (semana < 1) {
        semana += semanas;
    }
    QStringList rotulos;
    auto pProximaSemana = [&] {
        rotulos.append(texto::Trim(texto::Str(semana)));
        semana = semana < semanas ? semana + 1 : 1;
    };

    // Each line is drawn where it has data: the verified flows up to row n, the forecast and its
    // limits from the last verified point on.
    QLineSeries* verificadas = pSerie(*mGrafico, Mensagens::msgVazoesVerificadas);
    const std::array<QLineSeries*, 3> futuras{
        pSerie(*mGrafico, Mensagens::msgVazoesPrevistas),
        pSerie(*mGrafico, Mensagens::msgLimiteInferior),
        pSerie(*mGrafico, Mensagens::msgLimiteSuperior),
    };
    for (int i = 1; i <= n; ++i) {
        pProximaSemana();
        verificadas->append(i - 1, passadas[i]);
    }
    for (QLineSeries* serie : futuras) {
        serie->append(n - 1, passadas[n]);
    }
    for (int j = 1; j <= m; ++j) {
        pProximaSemana();
        futuras[0]->append(n - 1 + j, previsao[j]);
        futuras[1]->append(n - 1 + j, limiteInferior[j]);
        futuras[2]->append(n - 1 + j, limiteSuperior[j]);
    }
    mSemanas->append(rotulos);
    double menor = passadas[n];
    double maior = menor;
    for (QLineSeries* serie : {verificadas, futuras[0], futuras[1], futuras[2]}) {
        mGrafico->addSeries(serie);
        serie->attachAxis(mSemanas);
        serie->attachAxis(mVazoes);
        for (const QPointF& ponto : serie->points()) {
            menor = std::min(menor, ponto.y());
            maior = std::max(maior, ponto.y());
        }
    }
    // An axis keeps its range when series come to it: the scale follows the data here.
    mVazoes->setRange(menor, maior);
    mVazoes->applyNiceNumbers();
}

}  // namespace corvalin
