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
    void passosParamNosLimitesEPartemDoMinimo();
    void antesDeMudarPodeCancelar();
    void tecladoDigitaSoAlgarismosEPassaDeUmEmUm();

private:
    std::unique_ptr<halvo::Spin> mSpin;
};

void TesteSpin::passosParamNosLimitesEPartemDoMinimo() {
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

void TesteSpin::antesDeMudarPodeCancelar() {
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

void TesteSpin::tecladoDigitaSoAlgarismosEPassaDeUmEmUm() {
    mSpin->show();
    mSpin->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(mSpin.get()));
    QSignalSpy mudancas(mSpin.get(), &halvo::Spin::Alterado);

    mSpin->findChild<QLineEdit*>()->clear();
    QTest::keyClicks(mSpin.get(), u"19a-9.0"_s);
    QCOMPARE(mSpin->Texto(), u"1990"_s);
    QCOMPARE(mudancas.count(), 4);
    QTest::keyClick(mSpin.get(), Qt::Key_Up);
    QCOMPARE(mSpin->Texto(), u"1991"_s);
    QTest::keyClick(mSpin.get(), Qt::Key_PageDown);
    QCOMPARE(mSpin->Texto(), u"1990"_s);
    QCOMPARE(mudancas.count(), 6);
    mSpin->setTexto(u"2000"_s);  // the program's own writes are not the user's changes
    QCOMPARE(mudancas.count(), 6);
}

}  // namespace

QTEST_MAIN(TesteSpin)
#include "test_spin.moc"
