#include "halvo/controles/Spin.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

namespace {

class TesteSpin : public QObject {
    Q_OBJECT

private slots:
    void passosParamNosLimitesEPartemDoMinimo();
    void antesDeMudarPodeCancelar();
    void tecladoDigitaEPassaDeUmEmUm();
};

void TesteSpin::passosParamNosLimitesEPartemDoMinimo() {
    halvo::Spin spin;
    spin.setMinimo(1);
    spin.setMaximo(3);
    QSignalSpy mudancas(&spin, &halvo::Spin::Alterado);

    spin.setTexto(QString());
    spin.stepUp();
    QCOMPARE(spin.Texto(), QStringLiteral("1"));
    spin.setTexto(QStringLiteral("abc"));
    spin.stepDown();
    QCOMPARE(spin.Texto(), QStringLiteral("1"));
    QCOMPARE(mudancas.count(), 2);

    spin.stepDown();
    QCOMPARE(spin.Texto(), QStringLiteral("1"));
    spin.stepUp();
    spin.stepUp();
    spin.stepUp();
    QCOMPARE(spin.Texto(), QStringLiteral("3"));
    // A step at a bound is no change.
    QCOMPARE(mudancas.count(), 4);

    // A typed value beyond a bound steps back inside it.
    spin.setTexto(QStringLiteral("9999"));
    spin.stepUp();
    QCOMPARE(spin.Texto(), QStringLiteral("3"));
    QCOMPARE(mudancas.count(), 5);
}

void TesteSpin::antesDeMudarPodeCancelar() {
    halvo::Spin spin;
    spin.setMinimo(1);
    spin.setMaximo(2200);
    spin.setTexto(QStringLiteral("2000"));
    QList<bool> direcoes;
    connect(&spin, &halvo::Spin::AntesDeMudar, this, [&](bool paraCima, bool& cancela) {
        direcoes << paraCima;
        cancela = paraCima;
    });
    QSignalSpy mudancas(&spin, &halvo::Spin::Alterado);

    spin.stepUp();
    QCOMPARE(spin.Texto(), QStringLiteral("2000"));
    QCOMPARE(mudancas.count(), 0);
    spin.stepDown();
    QCOMPARE(spin.Texto(), QStringLiteral("1999"));
    QCOMPARE(mudancas.count(), 1);
    QCOMPARE(direcoes, (QList<bool>{true, false}));

    spin.setTexto(QStringLiteral("1"));
    spin.stepDown();
    // No question when there is no step to take.
    QCOMPARE(direcoes.size(), 2);
}

void TesteSpin::tecladoDigitaEPassaDeUmEmUm() {
    halvo::Spin spin;
    spin.setMinimo(1);
    spin.setMaximo(2200);
    spin.show();
    spin.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&spin));
    QSignalSpy mudancas(&spin, &halvo::Spin::Alterado);

    spin.findChild<QLineEdit*>()->clear();
    QTest::keyClicks(&spin, QStringLiteral("19a-9.0"));
    QCOMPARE(spin.Texto(), QStringLiteral("1990"));
    QCOMPARE(mudancas.count(), 4);

    QTest::keyClick(&spin, Qt::Key_Up);
    QCOMPARE(spin.Texto(), QStringLiteral("1991"));
    QTest::keyClick(&spin, Qt::Key_PageDown);
    QCOMPARE(spin.Texto(), QStringLiteral("1990"));
    QCOMPARE(mudancas.count(), 6);

    spin.setTexto(QStringLiteral("2000"));
    QCOMPARE(mudancas.count(), 6);
}

}  // namespace

QTEST_MAIN(TesteSpin)
#include "test_spin.moc"
