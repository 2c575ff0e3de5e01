#include "halvo/app/DialogoNovoCaso.h"
#include "halvo/app/JanelaPrincipal.h"
#include "halvo/app/ListaDeCasos.h"
#include "halvo/app/Modelos.h"
#include "halvo/app/PainelCasos.h"
#include "halvo/app/UtilitariosSistemaGui.h"
#include "halvo/sdk/Servicos.h"
#include "platform/recordstore/Recordstore.h"
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

namespace {

// The window's case commands on the real plug-in, each answered from a script.
class TesteJanelaCorvalin : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void casoCriadoAbertoCopiadoEApagado();

private:
    void cria(const QString& estudo, const QString& nome, const QString& descricao);
    void seleciona(std::int32_t codigo);
    void aciona(const char* nome);
    QString caminho(const QString& relativo) const {
        return QDir::toNativeSeparators(mPasta.filePath(relativo));
    }
    static QString titulo(const QString& pasta);
    void capturaSePedida();

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
        dialogo->findChild<QComboBox*>(QStringLiteral("CboEstudo"))->setCurrentText(estudo);
        dialogo->findChild<QLineEdit*>(QStringLiteral("TxtNome"))->setText(nome);
        dialogo->findChild<QLineEdit*>(QStringLiteral("TxtDescricao"))->setText(descricao);
        dialogo->findChild<QLineEdit*>(QStringLiteral("TxtPasta"))->setText(caminho(estudo + u'/' + nome));
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

// The case's title as the plug-in wrote it into its database.
QString TesteJanelaCorvalin::titulo(const QString& pasta) {
    const auto banco = recordstore::Database::OpenDatabase(pasta + QStringLiteral("/Corvalin.mdb"));
    const auto tabela = banco->OpenRecordset(QStringLiteral("CasoCORVALIN"));
    return tabela->Eof() ? QString() : tabela->campo(QStringLiteral("Titulo")).paraTexto();
}

void TesteJanelaCorvalin::casoCriadoAbertoCopiadoEApagado() {
    teste::DialogoRoteirizado dialogo;
    halvo::UtilitariosSistemaGui sistema;
    const halvo::InstalacaoServicos servicos(&dialogo, &sistema, nullptr);
    const halvo::Modelos modelos(QStringLiteral(CORVALIN_PASTA_BIN "/modelos"));
    const auto modelo = modelos.Cria(QStringLiteral("Corvalin"));
    QVERIFY(modelo != nullptr);
    halvo::ListaDeCasos lista;
    halvo::JanelaPrincipal janela(*modelo, lista);
    mJanela = &janela;
    sistema.setPrincipal(&janela);

    cria(QStringLiteral("Rio Grande"), QStringLiteral("Furnas"), QStringLiteral("Previsão de 2026"));
    cria(QStringLiteral("Rio Paraná"), QStringLiteral("Itaipu"), QString());
    const QString furnas = caminho(QStringLiteral("Rio Grande/Furnas"));
    QVERIFY(QFile::exists(furnas + QStringLiteral("/Corvalin.mdb")));
    QCOMPARE(lista.Casos().size(), 2u);

    seleciona(1);
    aciona("acaoAbrir");
    QCOMPARE(janela.Gerente().Aberto(), std::optional<std::int32_t>(1));
    QCOMPARE(titulo(furnas), QStringLiteral("Furnas"));
    aciona("acaoFechar");
    QVERIFY(!janela.Gerente().Aberto());

    // A copy opens the case for the plug-in and closes it again.
    const QString copia = caminho(QStringLiteral("Rio Grande/Furnas 2"));
    dialogo.respondePasta(copia);
    seleciona(1);
    aciona("acaoCopiar");
    QVERIFY(QFile::exists(copia + QStringLiteral("/Corvalin.mdb")));
    const halvo::EntradaCaso* copiado = lista.ProcuraPasta(copia);
    QVERIFY(copiado != nullptr);
    QCOMPARE(copiado->Nome, QStringLiteral("Furnas 2"));
    QCOMPARE(copiado->Estudo, QStringLiteral("Rio Grande"));
    QCOMPARE(copiado->Descricao, QStringLiteral("Previsão de 2026"));
    const std::int32_t codigoDaCopia = copiado->Codigo;
    QVERIFY(!janela.Gerente().Aberto());

    // With the case open, it is open again after the copy; a folder in use is refused.
    seleciona(2);
    aciona("acaoAbrir");
    dialogo.respondePasta(copia);
    seleciona(1);
    aciona("acaoCopiar");
    QCOMPARE(lista.Casos().size(), 3u);
    QVERIFY(dialogo.Mensagens().back().texto.contains(QStringLiteral("não está vazia")));
    dialogo.respondePasta(caminho(QStringLiteral("Rio Grande/Furnas 3")));
    aciona("acaoCopiar");
    QCOMPARE(lista.Casos().size(), 4u);
    QCOMPARE(janela.Gerente().Aberto(), std::optional<std::int32_t>(2));

    dialogo.responde(halvo::Resposta::Sim);
    seleciona(codigoDaCopia);
    aciona("acaoApagar");
    QVERIFY(!QDir(copia).exists());
    QVERIFY(lista.ProcuraPasta(copia) == nullptr);
    QCOMPARE(dialogo.Mensagens().back().titulo, QStringLiteral("Confirmação"));

    halvo::ListaDeCasos relida;
    QVERIFY(relida.Carrega());
    QCOMPARE(relida.Casos().size(), 3u);

    seleciona(1);
    aciona("acaoAbrir");
    capturaSePedida();
}

// The picture of the window for the documentation, taken only when asked for.
void TesteJanelaCorvalin::capturaSePedida() {
    if (qEnvironmentVariableIsEmpty("HALVO_CAPTURA_JANELA")) {
        return;
    }
    mJanela->resize(1100, 680);
    mJanela->show();
    for (const char* tela : {"acaoTela_4_1", "acaoTela_4_3"}) {
        aciona(tela);
    }
    mJanela->Area().cascadeSubWindows();
    QVERIFY(QTest::qWaitForWindowExposed(mJanela));
    const QString arquivo =
        QDir::cleanPath(QStringLiteral(CORVALIN_DADOS_TESTE "/../../docs/janela-principal.png"));
    QVERIFY(QDir().mkpath(QFileInfo(arquivo).absolutePath()));
    QVERIFY(mJanela->grab().save(arquivo));
}

}  // namespace

QTEST_MAIN(TesteJanelaCorvalin)
#include "test_janela_corvalin.moc"
