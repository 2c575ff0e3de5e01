// The result screens: the forecast table's week titles follow the end of each station's history;
// the chart's week labels count back from the first forecast week, four weeks with a Vazpast file
// and six without; the report viewer reads each choice's file and says when it is missing.

#include "corvalin/options/Opcoes.h"
#include "corvalin/options/OpcoesBD.h"
#include "corvalin/results/FrmGrafico.h"
#include "corvalin/results/FrmPrevisoes.h"
#include "corvalin/results/FrmResultados.h"
#include "halvo/controles/Grid.h"
#include "halvo/controles/RichText.h"
#include "tests/corvalin/frame/CasoDeTelas.h"

#include <QBarCategoryAxis>
#include <QChart>
#include <QChartView>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QLineSeries>
#include <QLocale>
#include <QPushButton>
#include <QtTest>

using namespace Qt::StringLiterals;
using teste::controle;

namespace {

// Steps a screen, whose buttons carry the given word, to its next station.
void proximo(const QWidget& tela, const QString& palavra) {
    controle<QPushButton>(tela, u"Bot%1Navegacao_2"_s.arg(palavra)).click();
}

QStringList linha(const halvo::Grid& grade, int linha) {
    QStringList textos;
    for (int coluna = 0; coluna < grade.Colunas(); ++coluna) {
        textos << grade.TextoMatriz(linha, coluna);
    }
    return textos;
}

QChart& grafico(const QWidget& tela) {
    return *controle<QChartView>(tela, u"GrfGrafico"_s).chart();
}

// The chart's week labels, as numbers.
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

void escreve(const QString& caminho, const QByteArray& texto) {
    QDir().mkpath(QFileInfo(caminho).path());
    QFile arquivo(caminho);
    QVERIFY(arquivo.open(QIODevice::WriteOnly));
    arquivo.write(texto + "\r\n");
}

QString visto(const QWidget& tela) {
    return controle<halvo::RichText>(tela, u"RtfResultados"_s).Texto().trimmed();
}

void escolhe(const QWidget& tela, int indice) {
    controle<QComboBox>(tela, u"CboResultadosArquivo"_s).setCurrentIndex(indice);
}

}  // namespace

class TesteTelasResultados : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil)); }

    // Stations in name order: a history ending in week 52, in week 50, in week 52 of a 53-week
    // station, and no forecast.
    void previsoesSemanasPeloFimDoHistorico() {
        teste::CasoDeTelas caso;
        corvalin::Posto a = caso.adiciona(1, u"A"_s, 20);
        caso.historico(a, 1980, 2008, 52);
        caso.previsao(1, {123.45F, 1234.56F, 3, 4, 5, 6});
        corvalin::Posto b = caso.adiciona(2, u"B"_s, 20);
        caso.historico(b, 1980, 2008, 50);
        caso.previsao(2, {1, 2, 3, 4, 5, 6});
        corvalin::Posto c = caso.posto(3, u"C"_s);
        c.Arquivos.CasoUsa53Semanas = 1;
        caso.historico(c, 1980, 2008, 52);
        caso.previsao(3, {1, 2, 3, 4, 5, 6});
        caso.adiciona(4, u"D"_s);

        auto tela = teste::carrega<corvalin::FrmPrevisoes>(caso);
        const auto& grade = controle<halvo::Grid>(*tela, u"GrdPrevisoes"_s);
        QCOMPARE(linha(grade, 0).join(u'|'), u"|Sem 1|Sem 2|Sem 3|Sem 4|Sem 5|Sem 6"_s);
        QCOMPARE(linha(grade, 1).mid(0, 3), (QStringList{"Previsão", "123,5", "1.234,6"}));
        QCOMPARE(linha(grade, 2).mid(0, 2), (QStringList{"L. Inf.", "111,1"}));
        QCOMPARE(linha(grade, 3).mid(0, 2), (QStringList{"L. Sup.", "135,8"}));

        proximo(*tela, u"Previsoes"_s);
        QCOMPARE(linha(grade, 0).join(u'|'), u"|Sem 51|Sem 52|Sem 1|Sem 2|Sem 3|Sem 4"_s);
        proximo(*tela, u"Previsoes"_s);
        QCOMPARE(linha(grade, 0).join(u'|'), u"|Sem 53|Sem 1|Sem 2|Sem 3|Sem 4|Sem 5"_s);
        proximo(*tela, u"Previsoes"_s);
        QCOMPARE(controle<QLineEdit>(*tela, u"TxtPrevisoesCodigo"_s).text(), u"4"_s);
        QCOMPARE(linha(grade, 1), QStringList(7, QString()));
        QVERIFY(caso.host.dialogo.Mensagens().empty());
    }

    void graficoSemanasEValores() {
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

        auto tela = teste::carrega<corvalin::FrmGrafico>(caso);
        QCOMPARE(rotulos(*tela), (QList<int>{49, 50, 51, 52, 1, 2, 3, 4, 5, 6, 7, 8}));
        QCOMPARE(pontos(*tela, u"Vazões Verificadas"_s).front(), QPointF(0, 2008 * 0.01F + 49));
        // The forecast line starts from the last verified week.
        QCOMPARE(pontos(*tela, u"Vazões Previstas"_s),
                 (QList<QPointF>{
                     {5, 2009 * 0.01F + 2}, {6, 100}, {7, 101}, {8, 102}, {9, 103}, {10, 104}, {11, 105}}));

        proximo(*tela, u"Grafico"_s);
        QCOMPARE(rotulos(*tela), (QList<int>{51, 52, 1, 2, 3, 4, 5, 6, 7, 8}));
        QCOMPARE(pontos(*tela, u"Vazões Verificadas"_s),
                 (QList<QPointF>{{0, 14}, {1, 13}, {2, 12}, {3, 11}}));
        QVERIFY(caso.host.dialogo.Mensagens().empty());
    }

    // Without the weeks before the forecast: the message and an empty chart.
    void graficoSemVazoesAnteriores() {
        teste::CasoDeTelas caso;
        corvalin::Posto p = caso.adiciona(1, u"A"_s, 3, 2011);
        caso.historico(p, 1980, 2009, 10);
        caso.previsao(1, {1, 2, 3, 4, 5, 6});

        auto tela = teste::carrega<corvalin::FrmGrafico>(caso);
        const auto& mensagens = caso.host.dialogo.Mensagens();
        QCOMPARE(mensagens.size(), std::size_t{1});
        QCOMPARE(mensagens.front().texto, u"Não existem as Vazões Anteriores pedidas!"_s);
        QVERIFY(grafico(*tela).series().isEmpty());
    }

    // A file that is not there says so; the choice of file stays from station to station.
    void resultadosArquivosDoPosto() {
        teste::CasoDeTelas caso;
        caso.adiciona(1, u"A"_s);
        caso.adiciona(2, u"B"_s);
        for (const char* arquivo : {"1/1.rel", "1/1.bcx", "1/1.prv", "2/2.prv"}) {
            escreve(caso.pasta() + QString::fromLatin1(arquivo), arquivo);
        }

        auto tela = teste::carrega<corvalin::FrmResultados>(caso);
        QCOMPARE(visto(*tela), u"1/1.rel"_s);
        escolhe(*tela, 3);
        QCOMPARE(visto(*tela), u"1/1.bcx"_s);
        escolhe(*tela, 2);
        QCOMPARE(visto(*tela), u"Arquivo inexistente."_s);
        escolhe(*tela, 1);
        QCOMPARE(visto(*tela), u"1/1.prv"_s);

        // With a folder of forecasts, only that folder counts.
        corvalin::OpcoesBD opcoesBD;
        opcoesBD.setCasoBD(caso.bd);
        corvalin::Opcoes opcoes;
        opcoes.setPastaPrevisoes(caso.host.caminho(u"previsoes"_s));
        opcoesBD.setOpcoes(opcoes);
        escreve(caso.host.caminho(u"previsoes/2.prv"_s), "previsao central B");
        proximo(*tela, u"Resultados"_s);
        QCOMPARE(visto(*tela), u"previsao central B"_s);
        controle<QPushButton>(*tela, u"BotResultadosNavegacao_0"_s).click();
        QCOMPARE(visto(*tela), u"Arquivo inexistente."_s);
    }
};

QTEST_MAIN(TesteTelasResultados)
#include "test_telasresultados.moc"
