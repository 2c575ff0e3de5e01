// The progress form and the shared procedures that work on controls.

#include "corvalin/frame/FrmBarraDeProgresso.h"
#include "corvalin/frame/GeralTelas.h"
#include "tests/doubles/HostTeste.h"

#include <QLineEdit>
#include <QLocale>
#include <QPointer>
#include <QProgressBar>
#include <QTabWidget>
#include <QtTest>

using halvo::Ponteiro;

namespace {

// The key as the filter leaves it, typed into a box holding texto with the caret at posicao.
char16_t filtra(const QString& texto, int posicao, char16_t tecla, bool decimal, int maximo = 32767,
                const QString& outros = {}) {
    QLineEdit caixa;
    caixa.setMaxLength(maximo);
    caixa.setText(texto);
    caixa.setCursorPosition(posicao);
    corvalin::FiltraTeclaNumerica(caixa, tecla, outros, decimal);
    return tecla;
}

}  // namespace

class TesteGeralTelas : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil)); }

    // One instance while loaded, the busy pointer for exactly that long, and a new one after.
    void barraDeProgresso() {
        teste::HostTeste host;
        auto& barra = corvalin::FrmBarraDeProgresso::Instancia();
        QPointer<QWidget> primeira = &barra;
        QCOMPARE(&corvalin::FrmBarraDeProgresso::Instancia(), &barra);
        QCOMPARE(host.dialogo.Ponteiros(), std::vector<Ponteiro>{Ponteiro::Ocupado});
        QCOMPARE(host.sistema.Auxiliares, std::vector<QWidget*>{&barra});
        QCOMPARE(barra.PrgBarraDeProgresso().objectName(), QStringLiteral("PrgBarraDeProgresso"));

        barra.setWindowTitle(QStringLiteral("Gerando arquivo de Dados Gerais..."));
        barra.show();
        barra.Atualizar();
        barra.Barra().setValue(42.4);
        QCOMPARE(barra.PrgBarraDeProgresso().value(), 42);
        barra.Barra().Esconde();
        QVERIFY(!barra.isVisible());

        corvalin::FrmBarraDeProgresso::Descarregar();
        QVERIFY(primeira.isNull());
        QCOMPARE(host.dialogo.Ponteiros(), (std::vector<Ponteiro>{Ponteiro::Ocupado, Ponteiro::Padrao}));
        corvalin::FrmBarraDeProgresso::Descarregar();
        QCOMPARE(host.dialogo.Ponteiros().size(), std::size_t{2});

        auto& segunda = corvalin::FrmBarraDeProgresso::Instancia();
        QCOMPARE(segunda.PrgBarraDeProgresso().value(), 0);
        QCOMPARE(host.sistema.Auxiliares.size(), std::size_t{2});
        corvalin::FrmBarraDeProgresso::Descarregar();
    }

    void primeiraTabHabilitada() {
        QTabWidget abas;
        for (int i = 0; i < 3; ++i) {
            abas.addTab(new QWidget, QString::number(i));
        }
        abas.setCurrentIndex(2);
        abas.setTabEnabled(0, false);
        QCOMPARE(corvalin::ObtemPrimeiraTab(abas), 1);
        abas.setTabEnabled(1, false);
        QCOMPARE(corvalin::ObtemPrimeiraTab(abas), 2);
        abas.setTabEnabled(2, false);
        QCOMPARE(corvalin::ObtemPrimeiraTab(abas), 2);
    }

    // The separator is the user's (a comma here), once, never first and never filling the box.
    void filtroNumerico() {
        QCOMPARE(filtra(QStringLiteral("12"), 2, u'5', false), u'5');
        QCOMPARE(filtra(QStringLiteral("12"), 2, u'a', true), char16_t{0});
        QCOMPARE(filtra(QStringLiteral("12"), 2, u'\b', false), u'\b');
        QCOMPARE(filtra(QStringLiteral("12"), 2, u'-', false), char16_t{0});
        QCOMPARE(filtra(QStringLiteral("12"), 2, u'-', false, 32767, QStringLiteral("-")), u'-');

        QCOMPARE(filtra(QStringLiteral("12"), 2, u',', true), u',');
        QCOMPARE(filtra(QStringLiteral("12"), 2, u',', false), char16_t{0});
        QCOMPARE(filtra(QStringLiteral("12"), 2, u'.', true), char16_t{0});
        QCOMPARE(filtra(QStringLiteral("1,2"), 3, u',', true), char16_t{0});
        QCOMPARE(filtra(QStringLiteral("12"), 0, u',', true), char16_t{0});
        QCOMPARE(filtra(QStringLiteral("  "), 2, u',', true), char16_t{0});
        QCOMPARE(filtra(QStringLiteral("1234"), 4, u',', true, 5), char16_t{0});
        QCOMPARE(filtra(QStringLiteral("1234"), 4, u'5', true, 5), u'5');
        QCOMPARE(filtra(QStringLiteral("123"), 3, u',', true, 5), u',');
    }
};

QTEST_MAIN(TesteGeralTelas)
#include "test_geral_telas.moc"
