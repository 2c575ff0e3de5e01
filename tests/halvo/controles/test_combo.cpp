#include "halvo/controles/Combo.h"
#include "tests/doubles/HostTeste.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

namespace {

using recordstore::Recordset;

class TesteCombo : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void listaNaOrdemDoIndiceSemMoverATabela();
    void escolhaPeloTecladoEPeloMouseDaOMarcador();
    void digitarAvisaMudancaESoIsso();
    void releALista();
    void somenteListaETamanhoMaximo();
    void tabelaFechadaEAvisadaEDeixaListaVazia();

private:
    void adiciona(int codigo, const QString& nome);
    recordstore::Bookmark marcadorDe(const QString& nome);
    QStringList itens() const;

    std::unique_ptr<teste::HostTeste> mHost;
    std::unique_ptr<recordstore::Database> mBanco;
    std::unique_ptr<Recordset> mPostos;
    std::unique_ptr<halvo::Combo> mCombo;
};

void TesteCombo::init() {
    mHost = std::make_unique<teste::HostTeste>();
    mBanco = recordstore::Database::CreateDatabase(mHost->caminho(QStringLiteral("Corvalin.mdb")));
    using recordstore::Tipo;
    mBanco->Append(
        {QStringLiteral("Postos"),
         {recordstore::CreateField(QStringLiteral("Codigo"), Tipo::Long),
          recordstore::CreateField(QStringLiteral("NomeDoAproveitamento"), Tipo::Texto, 60)},
         {{QStringLiteral("Codigo"), true, QStringLiteral("Codigo")},
          {QStringLiteral("NomeDoAproveitamento"), false, QStringLiteral("NomeDoAproveitamento")}}});
    mPostos = mBanco->OpenRecordset(QStringLiteral("Postos"));
    adiciona(30, QStringLiteral("Sobradinho"));
    adiciona(10, QStringLiteral("Furnas"));
    adiciona(20, QStringLiteral("Itaipu"));
    adiciona(40, QStringLiteral("Água Vermelha"));

    mCombo = std::make_unique<halvo::Combo>();
    mCombo->setTabela(*mPostos);
    mCombo->setCampo(QStringLiteral("NomeDoAproveitamento"));
    mCombo->setIndice(QStringLiteral("NomeDoAproveitamento"));
    mCombo->show();
    mCombo->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(mCombo.get()));
}

void TesteCombo::cleanup() {
    mCombo.reset();
    mPostos.reset();
    mBanco.reset();
    mHost.reset();
}

void TesteCombo::adiciona(int codigo, const QString& nome) {
    mPostos->AddNew();
    mPostos->setCampo(QStringLiteral("Codigo"), codigo);
    mPostos->setCampo(QStringLiteral("NomeDoAproveitamento"), nome);
    mPostos->Update();
}

recordstore::Bookmark TesteCombo::marcadorDe(const QString& nome) {
    const auto busca = mPostos->Clone();
    busca->setIndex(QStringLiteral("NomeDoAproveitamento"));
    busca->Seek(QStringLiteral("="), {nome});
    return busca->Bookmark();
}

QStringList TesteCombo::itens() const {
    QStringList nomes;
    for (int i = 0; i < mCombo->count(); ++i) {
        nomes << mCombo->itemText(i);
    }
    return nomes;
}

void TesteCombo::listaNaOrdemDoIndiceSemMoverATabela() {
    mPostos->setIndex(QStringLiteral("Codigo"));
    mPostos->Seek(QStringLiteral("="), {20});
    const recordstore::Bookmark antes = mPostos->Bookmark();

    mCombo->showPopup();
    QCOMPARE(itens(), (QStringList{QStringLiteral("Água Vermelha"), QStringLiteral("Furnas"),
                                   QStringLiteral("Itaipu"), QStringLiteral("Sobradinho")}));
    mCombo->hidePopup();
    QCOMPARE(mPostos->Index(), QStringLiteral("Codigo"));
    QCOMPARE(mPostos->Bookmark(), antes);
}

void TesteCombo::escolhaPeloTecladoEPeloMouseDaOMarcador() {
    QSignalSpy escolhas(mCombo.get(), &halvo::Combo::Selecionado);
    QSignalSpy mudancas(mCombo.get(), &halvo::Combo::Alterado);
    mCombo->setTexto(QStringLiteral("furnas"));
    QCOMPARE(mCombo->Texto(), QStringLiteral("furnas"));
    QCOMPARE(escolhas.count(), 0);

    mCombo->setFocus();
    QTest::keyClick(mCombo.get(), Qt::Key_Down);
    QCOMPARE(escolhas.count(), 1);
    const auto marcador = escolhas.takeFirst().at(0).value<recordstore::Bookmark>();
    QCOMPARE(marcador, marcadorDe(QStringLiteral("Itaipu")));
    mPostos->setBookmark(marcador);
    QCOMPARE(mPostos->campo(QStringLiteral("Codigo")).paraInteiro(), 20);
    QCOMPARE(mCombo->Texto(), QStringLiteral("Itaipu"));

    mCombo->showPopup();
    QAbstractItemView* lista = mCombo->view();
    QTRY_VERIFY(lista->isVisible());
    const QRect item = lista->visualRect(lista->model()->index(3, 0));
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, item.center());
    QTRY_COMPARE(escolhas.count(), 1);
    QCOMPARE(escolhas.takeFirst().at(0).value<recordstore::Bookmark>(),
             marcadorDe(QStringLiteral("Sobradinho")));
    QCOMPARE(mudancas.count(), 0);
}

void TesteCombo::digitarAvisaMudancaESoIsso() {
    QSignalSpy escolhas(mCombo.get(), &halvo::Combo::Selecionado);
    QSignalSpy mudancas(mCombo.get(), &halvo::Combo::Alterado);
    mCombo->setFocus();
    mCombo->lineEdit()->clear();
    QTest::keyClicks(mCombo->lineEdit(), QStringLiteral("Itaipu"));
    QCOMPARE(mudancas.count(), 6);
    QCOMPARE(mudancas.last().at(0).toString(), QStringLiteral("Itaipu"));
    // A typed name that is on the list is still just typed, when Enter ends it or the focus leaves.
    QTest::keyClick(mCombo->lineEdit(), Qt::Key_Return);
    mCombo->clearFocus();
    QCOMPARE(escolhas.count(), 0);
    QCOMPARE(mCombo->Texto(), QStringLiteral("Itaipu"));

    mCombo->setTexto(QStringLiteral("Novo posto"));
    QCOMPARE(mCombo->Texto(), QStringLiteral("Novo posto"));
    QCOMPARE(mudancas.count(), 6);
}

void TesteCombo::releALista() {
    mCombo->showPopup();
    mCombo->hidePopup();
    QCOMPARE(mCombo->count(), 4);
    adiciona(50, QStringLiteral("Barra Bonita"));
    mCombo->showPopup();
    QCOMPARE(mCombo->count(), 5);
    QCOMPARE(mCombo->itemText(1), QStringLiteral("Barra Bonita"));
    mCombo->hidePopup();
}

void TesteCombo::somenteListaETamanhoMaximo() {
    mCombo->setTamanhoMaximo(10);
    mCombo->setFocus();
    QTest::keyClicks(mCombo->lineEdit(), QStringLiteral("Um nome longo demais"));
    QCOMPARE(mCombo->Texto().size(), 10);

    mCombo->setSomenteLista(true);
    QVERIFY(mCombo->lineEdit() == nullptr);
    QCOMPARE(mCombo->Texto(), QString());
    // A name that the list did not hold yet is looked for again.
    adiciona(60, QStringLiteral("Tucuruí"));
    mCombo->setTexto(QStringLiteral("Tucuruí"));
    QCOMPARE(mCombo->Texto(), QStringLiteral("Tucuruí"));

    QSignalSpy escolhas(mCombo.get(), &halvo::Combo::Selecionado);
    QTest::keyClicks(mCombo.get(), QStringLiteral("F"));
    QCOMPARE(mCombo->Texto(), QStringLiteral("Furnas"));
    QCOMPARE(escolhas.count(), 1);
    QCOMPARE(escolhas.at(0).at(0).value<recordstore::Bookmark>(), marcadorDe(QStringLiteral("Furnas")));

    mCombo->setSomenteLista(false);
    QCOMPARE(mCombo->Texto(), QStringLiteral("Furnas"));
    QTest::keyClicks(mCombo->lineEdit(), QStringLiteral("xxxxxxxxxx"));
    QCOMPARE(mCombo->Texto().size(), 10);
}

void TesteCombo::tabelaFechadaEAvisadaEDeixaListaVazia() {
    mCombo->setTexto(QStringLiteral("Furnas"));
    mBanco->Close();
    mCombo->showPopup();
    mCombo->hidePopup();
    QCOMPARE(mCombo->count(), 0);
    QCOMPARE(mHost->dialogo.Mensagens().size(), 1u);
    QCOMPARE(mHost->dialogo.Mensagens()[0].icone, halvo::Icone::Erro);
    QCOMPARE(mCombo->Texto(), QStringLiteral("Furnas"));
}

}  // namespace

QTEST_MAIN(TesteCombo)
#include "test_combo.moc"
