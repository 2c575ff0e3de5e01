#include "halvo/app/DialogoNovoCaso.h"
#include "halvo/app/JanelaPrincipal.h"
#include "halvo/app/ListaDeCasos.h"
#include "halvo/app/Modelos.h"
#include "halvo/app/PainelCasos.h"
#include "halvo/app/UtilitariosSistemaGui.h"
#include "halvo/sdk/Servicos.h"
#include "tests/doubles/DialogoRoteirizado.h"

#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMdiArea>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

// The window's case commands on the real plug-in, each answered from a script.
class TesteJanelaCorvalin : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void casesAreCreatedOpenedCopiedAndDeletedWithTheirScreens();

private:
    void cria(const QString& estudo, const QString& nome, const QString& descricao);
    void seleciona(std::int32_t codigo);
    void aciona(const char* nome);
    bool ativa(const char* nome) const;
    QString caminho(const QString& relativo) const {
        return QDir::toNativeSeparators(mPasta.filePath(relativo));
    }

    QTemporaryDir mPasta;
    halvo::JanelaPrincipal* mJanela = nullptr;
};

void TesteJanelaCorvalin::initTestCase() {
    QStandardPaths::setTestModeEnabled(true);
    QFile::remove(halvo::ListaDeCasos::ArquivoPadrao());
}

void TesteJanelaCorvalin::cria(const QString& estudo, const QString& nome, const QString& descricao) {
    QTimer::singleShot(0, this, [=, this] {
        auto* dialogo = qobject_cast<halvo::DialogoNovoCaso*>(QApplication::activeModalWidget());
        QVERIFY(dialogo != nullptr);
        dialogo->findChild<QComboBox*>(u"CboEstudo"_s)->setCurrentText(estudo);
        dialogo->findChild<QLineEdit*>(u"TxtNome"_s)->setText(nome);
        dialogo->findChild<QLineEdit*>(u"TxtDescricao"_s)->setText(descricao);
        dialogo->findChild<QLineEdit*>(u"TxtPasta"_s)->setText(caminho(estudo + u'/' + nome));
        dialogo->accept();
    });
    aciona("acaoNovo");
}

void TesteJanelaCorvalin::seleciona(std::int32_t codigo) {
    mJanela->findChild<halvo::PainelCasos*>()->Seleciona(codigo);
}

void TesteJanelaCorvalin::aciona(const char* nome) {
    QAction* acao = mJanela->findChild<QAction*>(QString::fromLatin1(nome));
    QVERIFY(acao != nullptr);
    QVERIFY(acao->isEnabled());
    acao->trigger();
}

bool TesteJanelaCorvalin::ativa(const char* nome) const {
    const QAction* acao = mJanela->findChild<QAction*>(QString::fromLatin1(nome));
    return acao != nullptr && acao->isEnabled();
}

void TesteJanelaCorvalin::casesAreCreatedOpenedCopiedAndDeletedWithTheirScreens() {
    teste::DialogoRoteirizado dialogo;
    halvo::UtilitariosSistemaGui sistema;
    const halvo::InstalacaoServicos servicos(&dialogo, &sistema, nullptr);
    const halvo::Modelos modelos(QStringLiteral(CORVALIN_PASTA_BIN "/modelos"));
    const auto modelo = modelos.Cria(u"Corvalin"_s);
    QVERIFY(modelo != nullptr);
    halvo::ListaDeCasos lista;
    halvo::JanelaPrincipal janela(*modelo, lista);
    mJanela = &janela;
    sistema.setPrincipal(&janela);

    cria(u"Rio Grande"_s, u"Furnas"_s, u"Previsão de 2026"_s);
    cria(u"Rio Paraná"_s, u"Itaipu"_s, QString());
    QVERIFY(QFile::exists(caminho(u"Rio Grande/Furnas/Corvalin.mdb"_s)));
    QCOMPARE(lista.Casos().size(), 2u);
    QVERIFY(!ativa("acaoTela_1_1"));

    seleciona(1);
    aciona("acaoAbrir");
    QCOMPARE(janela.Gerente().Aberto(), std::optional<std::int32_t>(1));
    // Opening another case closes the first with its screens, and the next case's screens open.
    aciona("acaoTela_1_1");
    seleciona(2);
    aciona("acaoAbrir");
    QCOMPARE(janela.Gerente().Aberto(), std::optional<std::int32_t>(2));
    QVERIFY(janela.Area().subWindowList().isEmpty());
    aciona("acaoTela_1_1");
    QCOMPARE(janela.Area().subWindowList().size(), 1);
    QVERIFY(dialogo.Mensagens().empty());
    aciona("acaoFechar");
    QVERIFY(!janela.Gerente().Aberto());
    QVERIFY(janela.Area().subWindowList().isEmpty());
    QVERIFY(!ativa("acaoTela_1_1"));

    // A copy opens the copied case for the plug-in and closes it, so the open case is open again
    // after it; a folder in use is refused.
    const QString copia = caminho(u"Rio Grande/Furnas 2"_s);
    seleciona(2);
    aciona("acaoAbrir");
    dialogo.respondePasta(copia);
    seleciona(1);
    aciona("acaoCopiar");
    QCOMPARE(janela.Gerente().Aberto(), std::optional<std::int32_t>(2));
    QVERIFY(QFile::exists(copia + u"/Corvalin.mdb"_s));
    const halvo::EntradaCaso* copiado = lista.ProcuraPasta(copia);
    QVERIFY(copiado != nullptr);
    QCOMPARE(copiado->Estudo + u'|' + copiado->Nome + u'|' + copiado->Descricao,
             u"Rio Grande|Furnas 2|Previsão de 2026"_s);
    const std::int32_t codigoDaCopia = copiado->Codigo;
    dialogo.respondePasta(copia);
    seleciona(1);
    aciona("acaoCopiar");
    QCOMPARE(lista.Casos().size(), 3u);
    QVERIFY(dialogo.Mensagens().back().texto.contains(u"não está vazia"_s));

    // Deleting asks first, and takes the case's screens along.
    seleciona(codigoDaCopia);
    aciona("acaoAbrir");
    aciona("acaoTela_1_1");
    QCOMPARE(janela.Area().subWindowList().size(), 1);
    dialogo.responde(halvo::Resposta::Nao);
    aciona("acaoApagar");
    QVERIFY(QDir(copia).exists());
    dialogo.responde(halvo::Resposta::Sim);
    aciona("acaoApagar");
    QCOMPARE(dialogo.Mensagens().back().titulo, u"Confirmação"_s);
    QVERIFY(!QDir(copia).exists());
    QVERIFY(lista.ProcuraPasta(copia) == nullptr);
    QVERIFY(!janela.Gerente().Aberto());
    QVERIFY(janela.Area().subWindowList().isEmpty());

    seleciona(2);
    aciona("acaoSomenteLeitura");
    halvo::ListaDeCasos relida;
    QVERIFY(relida.Carrega());
    QCOMPARE(relida.Casos().size(), 2u);
    QVERIFY(relida.Procura(2)->SomenteLeitura);
    QVERIFY(!relida.Procura(1)->SomenteLeitura);
}

}  // namespace

QTEST_MAIN(TesteJanelaCorvalin)
#include "test_janela_corvalin.moc"
