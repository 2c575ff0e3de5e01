#include "halvo/controles/Spin.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class TesteSpin : public QObject {
    Q_OBJECT

private slots:
    void init() {
        mSpin = std::make_unique<halvo::Spin>();
        mSpin->setMinimo(1);
        mSpin->setMaximo(2200);
    }
    void stepsStopAtTheLimitsAndStartFromTheMinimum();
    void theBeforeChangeEventCanCancelAStep();

private:
    std::unique_ptr<halvo::Spin> mSpin;
};

void TesteSpin::stepsStopAtTheLimitsAndStartFromTheMinimum() {
    // Text before, steps up (or down), text after, and whether that was a change.
    const struct {
        const char* antes;
        int passos;
        const char* depois;
        bool mudou;
    } casos[]{{"", 1, "1", true},        {"abc", -1, "1", true},    {"1", -1, "1", false},
              {"2199", 2, "2200", true}, {"9999", 1, "2200", true}, {"2200", 1, "2200", false}};
    for (const auto& caso : casos) {
        mSpin->setTexto(QString::fromLatin1(caso.antes));
        QSignalSpy mudancas(mSpin.get(), &halvo::Spin::Alterado);
        for (int i = 0; i < std::abs(caso.passos); ++i) {
            caso.passos > 0 ? mSpin->stepUp() : mSpin->stepDown();
        }
        QVERIFY2(mSpin->Texto() == QString::fromLatin1(caso.depois), caso.antes);
        QVERIFY2((mudancas.count() > 0) == caso.mudou, caso.antes);
    }
}

void TesteSpin::theBeforeChangeEventCanCancelAStep() {
    mSpin->setTexto(u"2000"_s);
    QList<bool> direcoes;
    connect(mSpin.get(), &halvo::Spin::AntesDeMudar, this, [&](bool paraCima, bool& cancela) {
        direcoes << paraCima;
        cancela = paraCima;
    });
    QSignalSpy mudancas(mSpin.get(), &halvo::Spin::Alterado);

    mSpin->stepUp();
    QCOMPARE(mSpin->Texto(), u"2000"_s);
    QCOMPARE(mudancas.count(), 0);
    mSpin->stepDown();
    QCOMPARE(mSpin->Texto(), u"1999"_s);
    QCOMPARE(mudancas.count(), 1);
    QCOMPARE(direcoes, (QList<bool>{true, false}));

    mSpin->setTexto(u"1"_s);
    mSpin->stepDown();
    // No question when there is no step to take.
    QCOMPARE(direcoes.size(), 2);
}

}  // namespace

QTEST_MAIN(TesteSpin)
#include "test_spin.moc"
