#include "halvo/controles/Grid.h"

#include <QLocale>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class TesteGrid : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void insertedAndRemovedRowsMoveTheCellsAndClearingKeepsTheHeaders();
    void aKeyboardEditEndsWithItsRowAndColumn();
    void aNumericColumnRefusesLetters();

private:
    QAbstractItemModel& modelo() const { return *mTabela->model(); }
    void mostra();
    void vaiPara(int linha, int coluna);
    // Keys as the user types them, each to whatever has the focus (the table, then its editor);
    // '\r' is Enter, '\x1b' Escape.
    static void digita(const char* teclas);

    std::unique_ptr<halvo::Grid> mGrid;
    QTableView* mTabela = nullptr;
};

void TesteGrid::init() {
    mGrid = std::make_unique<halvo::Grid>();
    mGrid->setColunas(4);
    mGrid->setLinhas(4);
    mTabela = mGrid->findChild<QTableView*>();
    QVERIFY(mTabela != nullptr);
    QCOMPARE(mGrid->focusProxy(), mTabela);
}

void TesteGrid::cleanup() {
    mGrid.reset();
    QLocale::setDefault(QLocale::c());
}

void TesteGrid::mostra() {
    mGrid->show();
    mGrid->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(mGrid.get()));
    mTabela->setFocus();
}

void TesteGrid::vaiPara(int linha, int coluna) {
    mGrid->setLinha(linha);
    mGrid->setColuna(coluna);
    QCOMPARE(mGrid->Linha(), linha);
    QCOMPARE(mGrid->Coluna(), coluna);
}

void TesteGrid::digita(const char* teclas) {
    for (; *teclas != '\0'; ++teclas) {
        if (*teclas == '\r' || *teclas == '\x1b') {
            QTest::keyClick(QApplication::focusWidget(), *teclas == '\r' ? Qt::Key_Return : Qt::Key_Escape);
            QCoreApplication::processEvents();  // the editor commits on the next turn of the loop
        } else {
            QTest::keyClick(QApplication::focusWidget(), *teclas);
        }
    }
}

void TesteGrid::insertedAndRemovedRowsMoveTheCellsAndClearingKeepsTheHeaders() {
    for (int linha = 0; linha < 4; ++linha) {
        mGrid->setTextoMatriz(linha, 0, QString::number(1990 + linha));
        mGrid->setTextoMatriz(linha, 1, u"v%1"_s.arg(linha));
    }
    mGrid->setTextoMatriz(0, 1, u"Sem 1"_s);

    mGrid->InsereLinha(1);
    QCOMPARE(mGrid->TextoMatriz(1, 0), QString());
    QCOMPARE(mGrid->TextoMatriz(2, 1), u"v1"_s);
    QCOMPARE(modelo().headerData(1, Qt::Vertical).toString(), u"1991"_s);
    mGrid->InsereLinha(5);
    QCOMPARE(mGrid->Linhas(), 6);
    mGrid->RemoveLinha(5);
    mGrid->RemoveLinha(1);
    QCOMPARE(mGrid->TextoMatriz(1, 1), u"v1"_s);
    QCOMPARE(mGrid->TextoMatriz(3, 1), u"v3"_s);

    mGrid->setLinhas(6);
    QCOMPARE(mGrid->TextoMatriz(3, 1), u"v3"_s);
    QCOMPARE(mGrid->TextoMatriz(5, 1), QString());
    mGrid->Limpa(false);
    QCOMPARE(mGrid->TextoMatriz(0, 1) + mGrid->TextoMatriz(1, 1) + mGrid->TextoMatriz(2, 0), u"Sem 11992"_s);
}

void TesteGrid::aKeyboardEditEndsWithItsRowAndColumn() {
    mostra();
    QSignalSpy fins(mGrid.get(), &halvo::Grid::FimDeEdicao);
    QSignalSpy mudancas(mGrid.get(), &halvo::Grid::CelulaAlterada);
    mGrid->setTextoMatriz(2, 3, u"antes"_s);
    mGrid->setTextoAtual(u"de código"_s);
    QCOMPARE(fins.count(), 0);

    vaiPara(2, 3);
    QCOMPARE(mGrid->TextoAtual(), u"antes"_s);
    digita("abc\r");
    QCOMPARE(mGrid->TextoMatriz(2, 3), u"abc"_s);
    QCOMPARE(fins.count(), 1);
    QCOMPARE(fins.at(0), (QList<QVariant>{2, 3}));
    QCOMPARE(mudancas.count(), 1);
    QCOMPARE(mudancas.at(0), (QList<QVariant>{2, 3}));

    // Committing the same text ends an edit without a change; Escape ends none.
    QTest::keyClick(mTabela, Qt::Key_F2);
    digita("\r");
    QCOMPARE(fins.count(), 2);
    QCOMPARE(mudancas.count(), 1);
    digita("xyz\x1b");
    QCOMPARE(mGrid->TextoMatriz(2, 3), u"abc"_s);
    QCOMPARE(fins.count(), 2);

    mGrid->setEditavel(false);
    digita("123");
    QCOMPARE(QApplication::focusWidget(), mTabela);
    QCOMPARE(mGrid->TextoMatriz(2, 3), u"abc"_s);
}

void TesteGrid::aNumericColumnRefusesLetters() {
    QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil));
    mGrid->ColunaNumerica(1, 4);
    mostra();
    const struct {
        int linha, coluna;
        const char* teclas;
        QString fica;
    } casos[]{{1, 1, "1a2,5x9\r", u"12,5"_s}, {2, 1, "-3.,4-\r", u"-3,4"_s}, {1, 2, "Sem 1\r", u"Sem 1"_s}};
    for (const auto& caso : casos) {
        vaiPara(caso.linha, caso.coluna);
        digita(caso.teclas);
        QCOMPARE(mGrid->TextoMatriz(caso.linha, caso.coluna), caso.fica);
    }
}

}  // namespace

QTEST_MAIN(TesteGrid)
#include "test_grid.moc"
