// The forecast chart: its week labels count back from the first forecast week, four weeks with a
// Vazpast file and six without, and its lines join at the last verified week.

#include "corvalin/results/FrmGrafico.h"
#include "tests/corvalin/frame/CasoDeTelas.h"

#include <QBarCategoryAxis>
#include <QChart>
#include <QChartView>
#include <QLegend>
#include <QLineEdit>
#include <QLineSeries>
#include <QPushButton>
#include <QValueAxis>
#include <QtTest>

using namespace Qt::StringLiterals;
using teste::controle;

namespace {

QChart& grafico(const QWidget& tela) {
    return *controle<QChartView>(tela, u"GrfGrafico"_s).chart();
}

// The week labels, as numbers.
QList<int> rotulos(const QWidget& tela) {
    QList<int> semanas;
    for (QAbstractAxis* eixo : grafico(tela).axes(Qt::Horizontal)) {
        for (const QString& rotulo : qobject_cast<QBarCategoryAxis*>(eixo)->categories()) {
            semanas << rotulo.toInt();
        }
    }
    return semanas;
}

QList<QPointF> pontos(const QWidget& tela, const QString& serie) {
    for (QAbstractSeries* s : grafico(tela).series()) {
        if (s->name() == serie) {
            return qobject_cast<QLineSeries*>(s)->points();
        }
    }
    return {};
}

// Every point of every line within the scale of the flows.
bool tudoNaEscala(const QWidget& tela) {
    const auto* vazoes = qobject_cast<QValueAxis*>(grafico(tela).axes(Qt::Vertical).front());
    for (QAbstractSeries* serie : grafico(tela).series()) {
        for (const QPointF& ponto : qobject_cast<QLineSeries*>(serie)->points()) {
            if (ponto.y() < vazoes->min() || ponto.y() > vazoes->max()) {
                return false;
            }
        }
    }
    return true;
}

void proximo(const QWidget& tela) {
    controle<QPushButton>(tela, u"BotGraficoNavegacao_2"_s).click();
}

}  // namespace

class TesteFrmGrafico : public QObject {
    Q_OBJECT

private slots:
    void semanasEValores() {
        teste::CasoDeTelas caso;
        // A: forecast from week 3 of 2009, six weeks of history before it.
        corvalin::Posto a = caso.adiciona(1, u"A"_s, 3, 2009);
        caso.historico(a, 1980, 2009, 10);
        caso.previsao(1, {100, 101, 102, 103, 104, 105});
        // B: the same week with a Vazpast file, whose four values come in reverse.
        corvalin::Posto b = caso.posto(2, u"B"_s, 3, 2009);
        b.FlafVazpast = true;
        b.NomeArqVazpast = u"vazpast.txt"_s;
        std::tie(b.VazpastSemana_1, b.VazpastSemana_2, b.VazpastSemana_3, b.VazpastSemana_4) =
            std::tuple(11, 12, 13, 14);
        caso.grava(b);
        caso.previsao(2, {20, 21, 22, 23, 24, 25});
        // C: from week 6, so the first label falls below week 1.
        corvalin::Posto c = caso.adiciona(3, u"C"_s, 6, 2009);
        caso.historico(c, 1980, 2009, 10);
        caso.previsao(3, {1, 2, 3, 4, 5, 6});

        auto tela = teste::carrega<corvalin::FrmGrafico>(caso);
        QCOMPARE(rotulos(*tela), (QList<int>{49, 50, 51, 52, 1, 2, 3, 4, 5, 6, 7, 8}));
        const QList<QPointF> verificadas = pontos(*tela, u"Vazões Verificadas"_s);
        QCOMPARE(verificadas.size(), 6);
        QCOMPARE(verificadas.front(), QPointF(0, 2008 * 0.01F + 49));
        QCOMPARE(verificadas.back(), QPointF(5, 2009 * 0.01F + 2));
        const QList<QPointF> previstas = pontos(*tela, u"Vazões Previstas"_s);
        QCOMPARE(previstas.size(), 7);
        QCOMPARE(previstas.front(), verificadas.back());
        QCOMPARE(previstas.at(1), QPointF(6, 100));
        QCOMPARE(previstas.back(), QPointF(11, 105));
        QCOMPARE(pontos(*tela, u"Limite Inferior"_s).front(), verificadas.back());
        QCOMPARE(pontos(*tela, u"Limite Superior"_s).back(), QPointF(11, 105 * 1.1F));
        QVERIFY(tudoNaEscala(*tela));

        proximo(*tela);
        QCOMPARE(rotulos(*tela), (QList<int>{51, 52, 1, 2, 3, 4, 5, 6, 7, 8}));
        QCOMPARE(pontos(*tela, u"Vazões Verificadas"_s),
                 (QList<QPointF>{{0, 14}, {1, 13}, {2, 12}, {3, 11}}));
        QCOMPARE(pontos(*tela, u"Vazões Previstas"_s).front(), QPointF(3, 11));
        QVERIFY(tudoNaEscala(*tela));

        proximo(*tela);
        QCOMPARE(rotulos(*tela).mid(0, 7), (QList<int>{52, 1, 2, 3, 4, 5, 6}));
        QCOMPARE(grafico(*tela).series().size(), 4);
        QVERIFY(caso.host.dialogo.Mensagens().empty());
    }

    // Without the weeks before the forecast: the message and an empty chart; without a forecast:
    // an empty chart and no message.
    void graficoVazio() {
        teste::CasoDeTelas caso;
        // A: all it needs; B: a forecast of 2011 on a history to 2009; C: no forecast.
        for (const auto& [codigo, ano, previsao] :
             {std::tuple{1, 2009, true}, {2, 2011, true}, {3, 2009, false}}) {
            corvalin::Posto p = caso.adiciona(codigo, QString::number(codigo), 3, ano);
            caso.historico(p, 1980, 2009, 10);
            if (previsao) {
                caso.previsao(codigo, {1, 2, 3, 4, 5, 6});
            }
        }

        auto tela = teste::carrega<corvalin::FrmGrafico>(caso);
        QCOMPARE(grafico(*tela).series().size(), 4);
        proximo(*tela);
        const auto& mensagens = caso.host.dialogo.Mensagens();
        QCOMPARE(mensagens.size(), std::size_t{1});
        QCOMPARE(mensagens.front().titulo + u'|' + mensagens.front().texto,
                 u"|Não existem as Vazões Anteriores pedidas!"_s);
        QVERIFY(grafico(*tela).series().isEmpty());
        QVERIFY(rotulos(*tela).isEmpty());

        proximo(*tela);
        QCOMPARE(controle<QLineEdit>(*tela, u"TxtGraficoCodigo"_s).text(), u"3"_s);
        QCOMPARE(mensagens.size(), std::size_t{1});
        QVERIFY(grafico(*tela).series().isEmpty());
    }
};

QTEST_MAIN(TesteFrmGrafico)
#include "test_frmgrafico.moc"
