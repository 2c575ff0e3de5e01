#include "halvo/controles/Spin.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class TesteSpin : public QObject {
    Q_OBJECT

private slots:
    void theBeforeChangeEventCanCancelAStepAndNoneIsAskedAtTheLimits();
};

void TesteSpin::theBeforeChangeEventCanCancelAStepAndNoneIsAskedAtTheLimits() {
    halvo::Spin spin;
    spin.setMinimo(1);
    spin.setMaximo(2200);
    spin.setTexto(u"2000"_s);
    QList<bool> direcoes;
    connect(&spin, &halvo::Spin::AntesDeMudar, this, [&](bool paraCima, bool& cancela) {
        direcoes << paraCima;
        cancela = paraCima;
    });
    QSignalSpy mudancas(&spin, &halvo::Spin::Alterado);

    spin.stepUp();
    QCOMPARE(spin.Texto(), u"2000"_s);
    QCOMPARE(mudancas.count(), 0);
    spin.stepDown();
    QCOMPARE(spin.Texto(), u"1999"_s);
    QCOMPARE(mudancas.count(), 1);
    QCOMPARE(direcoes, (QList<bool>{true, false}));

    spin.setTexto(u"1"_s);
    spin.stepDown();
    spin.setTexto(u"2200"_s);
    spin.stepUp();
    QCOMPARE(direcoes.size(), 2);
    QCOMPARE(spin.Texto(), u"2200"_s);
    // A text that is no number steps to the minimum.
    spin.setTexto(u"abc"_s);
    spin.stepDown();
    QCOMPARE(spin.Texto(), u"1"_s);
}

}  // namespace

QTEST_MAIN(TesteSpin)
#include "test_spin.moc"
