#include "halvo/controles/Combo.h"
#include "tests/doubles/HostTeste.h"

#include <QAbstractItemView>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

using recordstore::Recordset;

class TesteCombo : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void listFollowsTheIndexIsReadAtEachOpeningAndLeavesTheTableWhereItWas();
    void choosingByKeyboardOrMouseGivesTheRecordsBookmark();

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
    mBanco = recordstore::Database::CreateDatabase(mHost->caminho(u"Corvalin.mdb"_s));
    using recordstore::Tipo;
    mBanco->Append(
        {u"Postos"_s,
         {recordstore::CreateField(u"Codigo"_s, Tipo::Long),
          recordstore::CreateField(u"NomeDoAproveitamento"_s, Tipo::Texto, 60)},
         {{u"Codigo"_s, true, u"Codigo"_s}, {u"NomeDoAproveitamento"_s, false, u"NomeDoAproveitamento"_s}}});
    mPostos = mBanco->OpenRecordset(u"Postos"_s);
    for (const auto& [codigo, nome] :
         {std::pair{30, u"Sobradinho"_s}, {10, u"Furnas"_s}, {20, u"Itaipu"_s}, {40, u"Água Vermelha"_s}}) {
        adiciona(codigo, nome);
    }

    mCombo = std::make_unique<halvo::Combo>();
    mCombo->setTabela(*mPostos);
    mCombo->setCampo(u"NomeDoAproveitamento"_s);
    mCombo->setIndice(u"NomeDoAproveitamento"_s);
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
    mPostos->setCampo(u"Codigo"_s, codigo);
    mPostos->setCampo(u"NomeDoAproveitamento"_s, nome);
    mPostos->Update();
}

recordstore::Bookmark TesteCombo::marcadorDe(const QString& nome) {
    const auto busca = mPostos->Clone();
    busca->setIndex(u"NomeDoAproveitamento"_s);
    busca->Seek(u"="_s, {nome});
    return busca->Bookmark();
}

QStringList TesteCombo::itens() const {
    QStringList nomes;
    for (int i = 0; i < mCombo->count(); ++i) {
        nomes << mCombo->itemText(i);
    }
    return nomes;
}

void TesteCombo::listFollowsTheIndexIsReadAtEachOpeningAndLeavesTheTableWhereItWas() {
    mPostos->setIndex(u"Codigo"_s);
    mPostos->Seek(u"="_s, {20});
    const recordstore::Bookmark antes = mPostos->Bookmark();

    mCombo->showPopup();
    QCOMPARE(itens(), (QStringList{u"Água Vermelha"_s, u"Furnas"_s, u"Itaipu"_s, u"Sobradinho"_s}));
    mCombo->hidePopup();
    QCOMPARE(mPostos->Index(), u"Codigo"_s);
    QCOMPARE(mPostos->Bookmark(), antes);

    adiciona(50, u"Barra Bonita"_s);
    mCombo->showPopup();
    QCOMPARE(itens().at(1), u"Barra Bonita"_s);
    mCombo->hidePopup();
}

void TesteCombo::choosingByKeyboardOrMouseGivesTheRecordsBookmark() {
    QSignalSpy escolhas(mCombo.get(), &halvo::Combo::Selecionado);
    QSignalSpy mudancas(mCombo.get(), &halvo::Combo::Alterado);
    mCombo->setTexto(u"furnas"_s);
    QCOMPARE(mCombo->Texto(), u"furnas"_s);
    QCOMPARE(escolhas.count(), 0);

    mCombo->setFocus();
    QTest::keyClick(mCombo.get(), Qt::Key_Down);
    QCOMPARE(escolhas.count(), 1);
    const auto marcador = escolhas.takeFirst().at(0).value<recordstore::Bookmark>();
    QCOMPARE(marcador, marcadorDe(u"Itaipu"_s));
    mPostos->setBookmark(marcador);
    QCOMPARE(mPostos->campo(u"Codigo"_s).paraInteiro(), 20);
    QCOMPARE(mCombo->Texto(), u"Itaipu"_s);

    mCombo->showPopup();
    QAbstractItemView* lista = mCombo->view();
    QTRY_VERIFY(lista->isVisible());
    const QRect item = lista->visualRect(lista->model()->index(3, 0));
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, item.center());
    QTRY_COMPARE(escolhas.count(), 1);
    QCOMPARE(escolhas.takeFirst().at(0).value<recordstore::Bookmark>(), marcadorDe(u"Sobradinho"_s));
    QCOMPARE(mudancas.count(), 0);
}

}  // namespace

QTEST_MAIN(TesteCombo)
#include "test_combo.moc"
