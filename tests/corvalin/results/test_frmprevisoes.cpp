// The forecast table: its week titles follow the end of each station's history.

#include "corvalin/results/FrmPrevisoes.h"
#include "halvo/controles/Grid.h"
#include "tests/corvalin/frame/CasoDeTelas.h"

#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QtTest>

using namespace Qt::StringLiterals;
using teste::controle;

namespace {

QStringList linha(const halvo::Grid& grade, int linha) {
    QStringList textos;
    for (int coluna = 0; coluna < grade.Colunas(); ++coluna) {
        textos << grade.TextoMatriz(linha, coluna);
    }
    return textos;
}

QStringList semanas(std::initializer_list<int> numeros) {
    QStringList titulos{QString()};
    for (const int numero : numeros) {
        titulos << u"Sem %1"_s.arg(numero);
    }
    return titulos;
}

}  // namespace

class TesteFrmPrevisoes : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil)); }

    // Stations in name order: a history ending in week 52, in week 50, in week 52 of a 53-week
    // station, no history at all, and no forecast.
    void semanasPeloFimDoHistorico() {
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
        caso.previsao(4, {1, 2, 3, 4, 5, 6});
        caso.adiciona(5, u"E"_s);

        auto tela = teste::carrega<corvalin::FrmPrevisoes>(caso);
        const auto& grade = controle<halvo::Grid>(*tela, u"GrdPrevisoes"_s);
        auto& proximo = controle<QPushButton>(*tela, u"BotPrevisoesNavegacao_2"_s);
        QCOMPARE(grade.Linhas(), 4);

        QCOMPARE(linha(grade, 0), semanas({1, 2, 3, 4, 5, 6}));
        QCOMPARE(linha(grade, 1).mid(0, 3), (QStringList{"Previsão", "123,5", "1.234,6"}));
        QCOMPARE(linha(grade, 2).mid(0, 2), (QStringList{"L. Inf.", "111,1"}));
        QCOMPARE(linha(grade, 3).mid(0, 2), (QStringList{"L. Sup.", "135,8"}));

        proximo.click();
        QCOMPARE(linha(grade, 0), semanas({51, 52, 1, 2, 3, 4}));
        proximo.click();
        QCOMPARE(linha(grade, 0), semanas({53, 1, 2, 3, 4, 5}));
        proximo.click();
        QCOMPARE(linha(grade, 0), semanas({1, 2, 3, 4, 5, 6}));
        QCOMPARE(linha(grade, 1).at(6), u"6,0"_s);

        proximo.click();
        QCOMPARE(controle<QLineEdit>(*tela, u"TxtPrevisoesCodigo"_s).text(), u"5"_s);
        for (int i = 0; i < 4; ++i) {
            QCOMPARE(linha(grade, i), QStringList(7, QString()));
        }
        QVERIFY(caso.host.dialogo.Mensagens().empty());
    }
};

QTEST_MAIN(TesteFrmPrevisoes)
#include "test_frmprevisoes.moc"
