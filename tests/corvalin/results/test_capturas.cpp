// Pictures of the result screens for the documentation, on the demo case made from samples/ by
// the host's own commands and opened in the host's window with the real plug-in. Taken only when
// CORVALIN_CAPTURAS names the folder for them ("docs" is the repository's).

#include "halvo/app/JanelaPrincipal.h"
#include "halvo/app/ListaDeCasos.h"
#include "halvo/app/Modelos.h"
#include "halvo/app/UtilitariosSistemaGui.h"
#include "halvo/sdk/Servicos.h"
#include "tests/doubles/DialogoRoteirizado.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QString Raiz = QDir::cleanPath(QStringLiteral(CORVALIN_DADOS_TESTE "/../.."));

int comando(const QStringList& argumentos) {
    QProcess processo;
    processo.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    processo.start(QStringLiteral(CORVALIN_PASTA_BIN "/halvo"), argumentos);
    processo.waitForFinished(600000);
    return processo.exitStatus() == QProcess::NormalExit ? processo.exitCode() : -1;
}

QWidget& tela(const QWidget& janela, const QString& nome) {
    auto* encontrada = janela.findChild<QWidget*>(nome);
    if (encontrada == nullptr) {
        qFatal("no screen %s", qPrintable(nome));
    }
    return *encontrada;
}

// Steps a screen to the station of the given code.
void vaiPara(const QWidget& tela, const QString& palavra, const QString& codigo) {
    auto* proximo = tela.findChild<QPushButton*>(QStringLiteral("Bot%1Navegacao_2").arg(palavra));
    auto* texto = tela.findChild<QLineEdit*>(QStringLiteral("Txt%1Codigo").arg(palavra));
    for (int i = 0; i < 10 && texto->text() != codigo; ++i) {
        proximo->click();
    }
    QCOMPARE(texto->text(), codigo);
}

void salva(QWidget& janela, const QString& arquivo) {
    QVERIFY(janela.grab().save(arquivo));
}

}  // namespace

class TesteCapturas : public QObject {
    Q_OBJECT

private slots:
    void telasDoCasoDemo() {
        const QString pedido = qEnvironmentVariable("CORVALIN_CAPTURAS");
        if (pedido.isEmpty()) {
            QSKIP("CORVALIN_CAPTURAS names no folder for the pictures");
        }
        const QString destino = QDir(Raiz).absoluteFilePath(pedido);
        QVERIFY(QDir().mkpath(destino));
        QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil));

        QTemporaryDir pasta;
        const QString caso = pasta.filePath(QStringLiteral("Amostras/Demonstração"));
        QStringList amostras;
        for (const QString& nome :
             QDir(Raiz + QStringLiteral("/samples")).entryList({QStringLiteral("*.arq")})) {
            amostras << Raiz + QStringLiteral("/samples/") + nome;
        }
        QCOMPARE(comando({QStringLiteral("criar"), caso}), 0);
        QCOMPARE(comando(QStringList{QStringLiteral("importar"), caso} + amostras), 0);
        QCOMPARE(comando({QStringLiteral("assistente"), caso}), 0);

        QStandardPaths::setTestModeEnabled(true);
        QFile::remove(halvo::ListaDeCasos::ArquivoPadrao());
        teste::DialogoRoteirizado dialogo;
        halvo::UtilitariosSistemaGui sistema;
        const halvo::InstalacaoServicos servicos(&dialogo, &sistema, nullptr);
        const halvo::Modelos modelos(QStringLiteral(CORVALIN_PASTA_BIN "/modelos"));
        const auto modelo = modelos.Cria(QStringLiteral("Corvalin"));
        QVERIFY(modelo != nullptr);
        halvo::ListaDeCasos lista;
        halvo::JanelaPrincipal janela(*modelo, lista);
        sistema.setPrincipal(&janela);
        janela.resize(1560, 900);
        janela.show();
        QVERIFY(QTest::qWaitForWindowExposed(&janela));
        QVERIFY(janela.AbrePasta(caso));
        for (const char* acao : {"acaoTela_4_3", "acaoTela_4_1", "acaoTela_4_2"}) {
            janela.findChild<QAction*>(QString::fromLatin1(acao))->trigger();
        }

        QWidget& previsoes = tela(janela, QStringLiteral("FrmPrevisoes"));
        QWidget& grafico = tela(janela, QStringLiteral("FrmGrafico"));
        QWidget& resultados = tela(janela, QStringLiteral("FrmResultados"));
        vaiPara(previsoes, QStringLiteral("Previsoes"), QStringLiteral("8005"));
        vaiPara(grafico, QStringLiteral("Grafico"), QStringLiteral("5054"));
        vaiPara(resultados, QStringLiteral("Resultados"), QStringLiteral("1333"));

        previsoes.parentWidget()->resize(700, 250);
        salva(*previsoes.parentWidget(), destino + QStringLiteral("/frmprevisoes.png"));
        grafico.parentWidget()->resize(820, 560);
        salva(*grafico.parentWidget(), destino + QStringLiteral("/frmgrafico.png"));

        const QSize area = janela.Area().viewport()->size();
        const int esquerda = 700;
        previsoes.parentWidget()->setGeometry(0, 0, esquerda, 250);
        grafico.parentWidget()->setGeometry(0, 250, esquerda, area.height() - 250);
        resultados.parentWidget()->setGeometry(esquerda, 0, area.width() - esquerda, area.height());
        salva(janela, destino + QStringLiteral("/janela-tres-telas.png"));
        QVERIFY(dialogo.Mensagens().empty());
    }
};

QTEST_MAIN(TesteCapturas)
#include "test_capturas.moc"
