// Pictures of the screens for the documentation, on the demo case made from samples/ by the
// host's own commands and opened in the host's window with the real plug-in. Taken only when
// CORVALIN_CAPTURAS names the folder for them ("docs" is the repository's).

#include "corvalin/casedb/FrmDiretorio.h"
#include "halvo/app/JanelaPrincipal.h"
#include "halvo/app/ListaDeCasos.h"
#include "halvo/app/Modelos.h"
#include "halvo/app/UtilitariosSistemaGui.h"
#include "halvo/sdk/IModelo.h"
#include "halvo/sdk/Servicos.h"
#include "tests/doubles/DialogoRoteirizado.h"

#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTreeView>
#include <QtTest>

#include <memory>

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

// The general data files of the sample stations.
QStringList amostras() {
    QStringList arquivos;
    for (const QString& nome : QDir(Raiz + QStringLiteral("/samples")).entryList({QStringLiteral("*.arq")})) {
        arquivos << QDir::toNativeSeparators(Raiz + QStringLiteral("/samples/") + nome);
    }
    return arquivos;
}

// The demo case in the host's window, with the folder the pictures go to.
class Demo {
public:
    // Makes the case from the samples, runs it, and opens it in the window. The caller checks
    // QTest::currentTestFailed afterwards.
    void prepara() {
        destino = QDir(Raiz).absoluteFilePath(qEnvironmentVariable("CORVALIN_CAPTURAS"));
        QVERIFY(QDir().mkpath(destino));
        QCOMPARE(comando({QStringLiteral("criar"), caso}), 0);
        QCOMPARE(comando(QStringList{QStringLiteral("importar"), caso} + amostras()), 0);
        QCOMPARE(comando({QStringLiteral("assistente"), caso}), 0);

        QFile::remove(halvo::ListaDeCasos::ArquivoPadrao());
        mModelo = mModelos.Cria(QStringLiteral("Corvalin"));
        QVERIFY(mModelo != nullptr);
        mLista = std::make_unique<halvo::ListaDeCasos>();
        janela = std::make_unique<halvo::JanelaPrincipal>(*mModelo, *mLista);
        mSistema.setPrincipal(janela.get());
        janela->resize(1560, 900);
        janela->show();
        QVERIFY(QTest::qWaitForWindowExposed(janela.get()));
        QVERIFY(janela->AbrePasta(caso));
    }

    // Opens the screens of the given actions and finds them by their names.
    void abre(std::initializer_list<const char*> acoes) const {
        for (const char* acao : acoes) {
            janela->findChild<QAction*>(QString::fromLatin1(acao))->trigger();
        }
    }

    QString destino;
    QTemporaryDir pasta;
    const QString caso = pasta.filePath(QStringLiteral("Amostras/Demonstração"));
    teste::DialogoRoteirizado dialogo;

private:
    halvo::UtilitariosSistemaGui mSistema;
    const halvo::InstalacaoServicos mServicos{&dialogo, &mSistema, nullptr};
    const halvo::Modelos mModelos{QStringLiteral(CORVALIN_PASTA_BIN "/modelos")};
    std::unique_ptr<halvo::IModelo> mModelo;
    std::unique_ptr<halvo::ListaDeCasos> mLista;

public:
    // Last, so that it goes first: the window needs the model, the list and the services.
    std::unique_ptr<halvo::JanelaPrincipal> janela;
};

}  // namespace

class TesteCapturas : public QObject {
    Q_OBJECT

private slots:
    void init() {
        if (qEnvironmentVariableIsEmpty("CORVALIN_CAPTURAS")) {
            QSKIP("CORVALIN_CAPTURAS names no folder for the pictures");
        }
        QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil));
        QStandardPaths::setTestModeEnabled(true);
    }

    // The result screens alone in the window first, then the others one by one.
    void telasDoCasoDemo() {
        Demo demo;
        demo.prepara();
        if (QTest::currentTestFailed()) {
            return;
        }
        demo.abre({"acaoTela_4_3", "acaoTela_4_1", "acaoTela_4_2"});
        QWidget& previsoes = tela(*demo.janela, QStringLiteral("FrmPrevisoes"));
        QWidget& grafico = tela(*demo.janela, QStringLiteral("FrmGrafico"));
        QWidget& resultados = tela(*demo.janela, QStringLiteral("FrmResultados"));
        vaiPara(previsoes, QStringLiteral("Previsoes"), QStringLiteral("8005"));
        vaiPara(grafico, QStringLiteral("Grafico"), QStringLiteral("5054"));
        vaiPara(resultados, QStringLiteral("Resultados"), QStringLiteral("1333"));

        previsoes.parentWidget()->resize(700, 250);
        salva(*previsoes.parentWidget(), demo.destino + QStringLiteral("/frmprevisoes.png"));
        grafico.parentWidget()->resize(820, 560);
        salva(*grafico.parentWidget(), demo.destino + QStringLiteral("/frmgrafico.png"));

        const QSize area = demo.janela->Area().viewport()->size();
        const int esquerda = 700;
        previsoes.parentWidget()->setGeometry(0, 0, esquerda, 250);
        grafico.parentWidget()->setGeometry(0, 250, esquerda, area.height() - 250);
        resultados.parentWidget()->setGeometry(esquerda, 0, area.width() - esquerda, area.height());
        salva(*demo.janela, demo.destino + QStringLiteral("/janela-tres-telas.png"));

        // The stations, the options with standard names being chosen, and the folder dialog.
        demo.abre({"acaoTela_1_3", "acaoTela_1_1"});
        QWidget& postos = tela(*demo.janela, QStringLiteral("FrmPostos"));
        vaiPara(postos, QStringLiteral("Postos"), QStringLiteral("1333"));
        postos.parentWidget()->resize(1000, 560);
        salva(*postos.parentWidget(), demo.destino + QStringLiteral("/frmpostos.png"));

        QWidget& opcoes = tela(*demo.janela, QStringLiteral("FrmOpcoes"));
        const std::pair<int, int> escolhas[] = {{0, 2}, {1, 0}, {2, 2}, {3, 2}, {4, 2}};
        for (const auto& [linha, extensao] : escolhas) {
            opcoes.findChild<QComboBox*>(QStringLiteral("CboOpcoesArquivosNome_%1").arg(linha))
                ->setCurrentIndex(0);
            opcoes.findChild<QComboBox*>(QStringLiteral("CboOpcoesArquivosExtensao_%1").arg(linha))
                ->setCurrentIndex(extensao);
        }
        opcoes.parentWidget()->resize(640, 330);
        salva(*opcoes.parentWidget(), demo.destino + QStringLiteral("/frmopcoes.png"));

        // A folder of studies in the home folder, away from the temporary folders of the machine.
        const QTemporaryDir casa(QDir::homePath() + QStringLiteral("/corvalin-XXXXXX"));
        QVERIFY(QDir(casa.path()).mkpath(QStringLiteral("Estudos/Demonstração")));
        corvalin::FrmDiretorio diretorio(demo.janela.get());
        diretorio.setOpcaoParaCriar(true);
        diretorio.setCaminho(casa.filePath(QStringLiteral("Estudos")));
        diretorio.resize(420, 460);
        diretorio.show();
        QVERIFY(QTest::qWaitForWindowExposed(&diretorio));
        // The folder list reads the folders in the background.
        const auto* pastas = diretorio.findChild<QTreeView*>(QStringLiteral("DirDiretorio"));
        QTRY_COMPARE(pastas->model()->rowCount(pastas->currentIndex()), 1);
        salva(diretorio, demo.destino + QStringLiteral("/frmdiretorio.png"));

        // The general data and the limits of a station that has limits, and the import assistant
        // with the sample files listed.
        demo.abre({"acaoTela_1_2", "acaoTela_1_4", "acaoTela_2_1"});
        QWidget& dadosGerais = tela(*demo.janela, QStringLiteral("FrmDadosGerais"));
        vaiPara(dadosGerais, QStringLiteral("DadosGerais"), QStringLiteral("5054"));
        dadosGerais.parentWidget()->resize(900, 470);
        salva(*dadosGerais.parentWidget(), demo.destino + QStringLiteral("/frmdadosgerais.png"));

        QWidget& limites = tela(*demo.janela, QStringLiteral("FrmLimites"));
        vaiPara(limites, QStringLiteral("DadosGerais"), QStringLiteral("5054"));
        limites.parentWidget()->resize(640, 520);
        salva(*limites.parentWidget(), demo.destino + QStringLiteral("/frmlimites.png"));

        QWidget& importa = tela(*demo.janela, QStringLiteral("FrmImporta"));
        demo.dialogo.respondeArquivos(amostras());
        importa.findChild<QPushButton*>(QStringLiteral("BotImportaSelecionar"))->click();
        importa.parentWidget()->resize(720, 360);
        salva(*importa.parentWidget(), demo.destino + QStringLiteral("/frmimporta.png"));
        QVERIFY(demo.dialogo.Mensagens().empty());
    }
};

QTEST_MAIN(TesteCapturas)
#include "test_capturas.moc"
