#include "halvo/controles/Grid.h"
#include "platform/runtime/ErroVB.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QLocale>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>

namespace {

int numeroDoErro(const std::function<void()>& acao) {
    try {
        acao();
    } catch (const plataforma::ErroVB& erro) {
        return erro.Number();
    }
    return 0;
}

class TesteGrid : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void fixasSaoOsCabecalhos();
    void codigosDeAlinhamento();
    void linhasInseridasRemovidasELimpeza();
    void edicaoPeloTecladoAvisaLinhaEColuna();
    void colunaNumericaRecusaLetras();

private:
    QAbstractItemModel& modelo() const { return *mTabela->model(); }
    void vaiPara(int linha, int coluna);
    // Keys as the user types them, each to whatever has the focus (the table, then its editor).
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

void TesteGrid::vaiPara(int linha, int coluna) {
    mGrid->setLinha(linha);
    mGrid->setColuna(coluna);
    QCOMPARE(mGrid->Linha(), linha);
    QCOMPARE(mGrid->Coluna(), coluna);
}

void TesteGrid::digita(const char* teclas) {
    for (; *teclas != '\0'; ++teclas) {
        switch (*teclas) {
            case '\r':
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
                QCoreApplication::processEvents();  // the editor commits on the next turn of the loop
                break;
            case '\x1b':
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
                break;
            default:
                QTest::keyClick(QApplication::focusWidget(), *teclas);
        }
    }
}

void TesteGrid::fixasSaoOsCabecalhos() {
    mGrid->setTextoMatriz(0, 0, QStringLiteral("Ano"));
    mGrid->setTextoMatriz(0, 2, QStringLiteral("Sem 2"));
    mGrid->setTextoMatriz(3, 0, QStringLiteral("1992"));
    mGrid->setTextoMatriz(1, 1, QStringLiteral("10,5"));
    QCOMPARE(modelo().rowCount(), 3);
    QCOMPARE(modelo().columnCount(), 3);
    QCOMPARE(modelo().headerData(1, Qt::Horizontal).toString(), QStringLiteral("Sem 2"));
    QCOMPARE(modelo().headerData(2, Qt::Vertical).toString(), QStringLiteral("1992"));
    QCOMPARE(modelo().index(0, 0).data().toString(), QStringLiteral("10,5"));
    QCOMPARE(mGrid->TextoMatriz(0, 0), QStringLiteral("Ano"));
    QVERIFY(!mTabela->horizontalHeader()->isHidden());
    QVERIFY(!mTabela->verticalHeader()->isHidden());

    mGrid->setLarguraColuna(0, 1000);
    mGrid->setLarguraColuna(2, 1500);
    QCOMPARE(mTabela->verticalHeader()->width(), 67);
    QCOMPARE(mTabela->columnWidth(1), 100);
    QCOMPARE(mGrid->LarguraColuna(2), 1500);

    // Without fixed cells every cell is the user's, and no header shows.
    mGrid->setLinhasFixas(0);
    mGrid->setColunasFixas(0);
    QCOMPARE(modelo().rowCount(), 4);
    QCOMPARE(modelo().index(0, 2).data().toString(), QStringLiteral("Sem 2"));
    QVERIFY(mTabela->horizontalHeader()->isHidden());
    QVERIFY(mTabela->verticalHeader()->isHidden());

    QCOMPARE(numeroDoErro([&] { mGrid->TextoMatriz(4, 0); }), 9);
    QCOMPARE(numeroDoErro([&] { mGrid->setTextoMatriz(0, 4, QStringLiteral("x")); }), 9);
    QCOMPARE(numeroDoErro([&] { mGrid->setLarguraColuna(4, 100); }), 9);
}

void TesteGrid::codigosDeAlinhamento() {
    mGrid->setTextoMatriz(1, 1, QStringLiteral("12,5"));
    mGrid->setTextoMatriz(1, 2, QStringLiteral("Previsão"));
    const auto alinhamento = [this](int coluna) {
        return modelo().index(0, coluna - 1).data(Qt::TextAlignmentRole).value<Qt::Alignment>();
    };
    QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil));
    QCOMPARE(alinhamento(1), Qt::AlignRight | Qt::AlignVCenter);
    QCOMPARE(alinhamento(2), Qt::AlignLeft | Qt::AlignVCenter);

    const std::vector<std::pair<int, Qt::Alignment>> codigos{
        {0, Qt::AlignLeft | Qt::AlignTop},      {2, Qt::AlignLeft | Qt::AlignBottom},
        {3, Qt::AlignHCenter | Qt::AlignTop},   {4, Qt::AlignHCenter | Qt::AlignVCenter},
        {7, Qt::AlignRight | Qt::AlignVCenter}, {8, Qt::AlignRight | Qt::AlignBottom}};
    for (const auto& [codigo, esperado] : codigos) {
        mGrid->setAlinhamentoColuna(2, codigo);
        QCOMPARE(mGrid->AlinhamentoColuna(2), codigo);
        QCOMPARE(alinhamento(2), esperado);
    }
    // One column at a time.
    QCOMPARE(alinhamento(1), Qt::AlignRight | Qt::AlignVCenter);
}

void TesteGrid::linhasInseridasRemovidasELimpeza() {
    for (int linha = 0; linha < 4; ++linha) {
        mGrid->setTextoMatriz(linha, 0, QString::number(1990 + linha));
        mGrid->setTextoMatriz(linha, 1, QStringLiteral("v%1").arg(linha));
    }
    mGrid->setTextoMatriz(0, 1, QStringLiteral("Sem 1"));

    mGrid->InsereLinha(1);
    QCOMPARE(mGrid->Linhas(), 5);
    QCOMPARE(mGrid->TextoMatriz(1, 0), QString());
    QCOMPARE(mGrid->TextoMatriz(2, 1), QStringLiteral("v1"));
    QCOMPARE(modelo().headerData(1, Qt::Vertical).toString(), QStringLiteral("1991"));
    mGrid->InsereLinha(5);
    QCOMPARE(mGrid->Linhas(), 6);
    mGrid->RemoveLinha(5);
    mGrid->RemoveLinha(1);
    QCOMPARE(mGrid->TextoMatriz(1, 1), QStringLiteral("v1"));
    QCOMPARE(mGrid->TextoMatriz(3, 1), QStringLiteral("v3"));
    // The header row stays.
    QCOMPARE(numeroDoErro([&] { mGrid->InsereLinha(0); }), 9);
    QCOMPARE(numeroDoErro([&] { mGrid->RemoveLinha(4); }), 9);

    mGrid->setLinhas(6);
    QCOMPARE(mGrid->TextoMatriz(3, 1), QStringLiteral("v3"));
    QCOMPARE(mGrid->TextoMatriz(5, 1), QString());
    mGrid->setLinhas(3);
    QCOMPARE(modelo().rowCount(), 2);

    mGrid->Limpa(false);
    QCOMPARE(mGrid->TextoMatriz(1, 1), QString());
    QCOMPARE(mGrid->TextoMatriz(0, 1), QStringLiteral("Sem 1"));
    QCOMPARE(mGrid->TextoMatriz(2, 0), QStringLiteral("1992"));
    mGrid->Limpa(true);
    QCOMPARE(mGrid->TextoMatriz(0, 1), QString());
    QCOMPARE(modelo().headerData(1, Qt::Vertical).toString(), QString());
}

void TesteGrid::edicaoPeloTecladoAvisaLinhaEColuna() {
    mGrid->show();
    mGrid->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(mGrid.get()));
    QSignalSpy fins(mGrid.get(), &halvo::Grid::FimDeEdicao);
    QSignalSpy mudancas(mGrid.get(), &halvo::Grid::CelulaAlterada);
    mGrid->setTextoMatriz(2, 3, QStringLiteral("antes"));
    mGrid->setTextoAtual(QStringLiteral("de código"));
    QCOMPARE(fins.count(), 0);

    vaiPara(2, 3);
    QCOMPARE(mGrid->TextoAtual(), QStringLiteral("antes"));
    mTabela->setFocus();
    digita("abc\r");
    QCOMPARE(mGrid->TextoMatriz(2, 3), QStringLiteral("abc"));
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
    QCOMPARE(mGrid->TextoMatriz(2, 3), QStringLiteral("abc"));
    QCOMPARE(fins.count(), 2);

    mGrid->setEditavel(false);
    digita("123");
    QCOMPARE(QApplication::focusWidget(), mTabela);
    QCOMPARE(mGrid->TextoMatriz(2, 3), QStringLiteral("abc"));
}

void TesteGrid::colunaNumericaRecusaLetras() {
    QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil));
    mGrid->ColunaNumerica(1, 4);
    mGrid->show();
    mGrid->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(mGrid.get()));
    mTabela->setFocus();

    vaiPara(1, 1);
    digita("1a2,5x9\r");
    QCOMPARE(mGrid->TextoMatriz(1, 1), QStringLiteral("12,5"));

    vaiPara(2, 1);
    digita("-3.,4-\r");
    QCOMPARE(mGrid->TextoMatriz(2, 1), QStringLiteral("-3,4"));

    vaiPara(1, 2);
    digita("Sem 1\r");
    QCOMPARE(mGrid->TextoMatriz(1, 2), QStringLiteral("Sem 1"));
}

}  // namespace

QTEST_MAIN(TesteGrid)
#include "test_grid.moc"
