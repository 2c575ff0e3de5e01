// Pictures of the screens for the documentation, in the host's window with the real plug-in on the
// demo case made from samples/; taken only when CORVALIN_CAPTURAS names their folder ("docs" is ours).

#include "corvalin/casedb/FrmDiretorio.h"
#include "halvo/app/JanelaPrincipal.h"
#include "halvo/app/ListaDeCasos.h"
#include "halvo/app/Modelos.h"
#include "halvo/app/UtilitariosSistemaGui.h"
#include "halvo/sdk/IModelo.h"
#include "halvo/sdk/Servicos.h"
#include "tests/corvalin/frame/CasoDeTelas.h"
#include "tests/doubles/DialogoRoteirizado.h"

#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMdiArea>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTreeView>
#include <QtTest>

using namespace Qt::StringLiterals;
using teste::controle;

namespace {

const QString Raiz = QDir::cleanPath(QStringLiteral(CORVALIN_DADOS_TESTE "/../.."));

int comando(const QStringList& argumentos) {
    QProcess processo;
    processo.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    processo.start(QStringLiteral(CORVALIN_PASTA_BIN "/halvo"), argumentos);
    processo.waitForFinished(600000);
    return processo.exitStatus() == QProcess::NormalExit ? processo.exitCode() : -1;
}

// The general data files of the sample stations.
QStringList amostras() {
    QStringList arquivos;
    for (const QString& nome : QDir(Raiz + u"/samples"_s).entryList({u"*.arq"_s})) {
        arquivos << QDir::toNativeSeparators(Raiz + u"/samples/"_s + nome);
    }
    return arquivos;
}

// Opens a screen by its menu action, steps it to the station of the given code (its buttons and
// code box carry the given word) and answers its window in the work area.
QWidget& abre(const QWidget& janela, const QString& acao, const QString& nome, const QString& palavra = {},
              const QString& codigo = {}) {
    controle<QAction>(janela, acao).trigger();
    const auto& tela = controle<QWidget>(janela, nome);
    for (int i = 0; i < 10 && !palavra.isEmpty() &&
                    controle<QLineEdit>(tela, u"Txt%1Codigo"_s.arg(palavra)).text() != codigo;
         ++i) {
        controle<QPushButton>(tela, u"Bot%1Navegacao_2"_s.arg(palavra)).click();
    }
    return *tela.parentWidget();
}

void salva(QWidget& janela, const QString& arquivo, QSize tamanho = {}) {
    if (tamanho.isValid()) {
        janela.resize(tamanho);
    }
    QVERIFY(janela.grab().save(QDir(Raiz).absoluteFilePath(qEnvironmentVariable("CORVALIN_CAPTURAS")) + u'/' +
                               arquivo));
}

}  // namespace

class TesteCapturas : public QObject {
    Q_OBJECT

private slots:
    void telasDoCasoDemo() {
        if (qEnvironmentVariableIsEmpty("CORVALIN_CAPTURAS")) {
            QSKIP("CORVALIN_CAPTURAS names no folder for the pictures");
        }
        QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil));
        QStandardPaths::setTestModeEnabled(true);
        QVERIFY(QDir(Raiz).mkpath(qEnvironmentVariable("CORVALIN_CAPTURAS")));
        const QTemporaryDir pasta;
        const QString caso = pasta.filePath(u"Amostras/Demonstração"_s);
        QCOMPARE(comando({u"criar"_s, caso}), 0);
        QCOMPARE(comando(QStringList{u"importar"_s, caso} + amostras()), 0);
        QCOMPARE(comando({u"assistente"_s, caso}), 0);

        // Declared in the order the window needs them, so that it goes first.
        teste::DialogoRoteirizado dialogo;
        halvo::UtilitariosSistemaGui sistema;
        const halvo::InstalacaoServicos servicos{&dialogo, &sistema, nullptr};
        const halvo::Modelos modelos{QStringLiteral(CORVALIN_PASTA_BIN "/modelos")};
        const std::unique_ptr<halvo::IModelo> modelo = modelos.Cria(u"Corvalin"_s);
        QVERIFY(modelo != nullptr);
        QFile::remove(halvo::ListaDeCasos::ArquivoPadrao());
        halvo::ListaDeCasos lista;
        halvo::JanelaPrincipal janela(*modelo, lista);
        sistema.setPrincipal(&janela);
        janela.resize(1560, 900);
        janela.show();
        QVERIFY(QTest::qWaitForWindowExposed(&janela));
        QVERIFY(janela.AbrePasta(caso));

        // The result screens alone, then side by side in the window.
        QWidget& resultados = abre(janela, u"acaoTela_4_3"_s, u"FrmResultados"_s, u"Resultados"_s, u"1333"_s);
        QWidget& previsoes = abre(janela, u"acaoTela_4_1"_s, u"FrmPrevisoes"_s, u"Previsoes"_s, u"8005"_s);
        QWidget& grafico = abre(janela, u"acaoTela_4_2"_s, u"FrmGrafico"_s, u"Grafico"_s, u"5054"_s);
        salva(previsoes, u"frmprevisoes.png"_s, {700, 250});
        salva(grafico, u"frmgrafico.png"_s, {820, 560});
        const QSize area = janela.Area().viewport()->size();
        previsoes.setGeometry(0, 0, 700, 250);
        grafico.setGeometry(0, 250, 700, area.height() - 250);
        resultados.setGeometry(700, 0, area.width() - 700, area.height());
        salva(janela, u"janela-tres-telas.png"_s);
        salva(abre(janela, u"acaoTela_1_3"_s, u"FrmPostos"_s, u"Postos"_s, u"1333"_s), u"frmpostos.png"_s,
              {1000, 560});

        // The options with the standard names being chosen.
        QWidget& opcoes = abre(janela, u"acaoTela_1_1"_s, u"FrmOpcoes"_s);
        for (const auto& [linha, extensao] : {std::pair{0, 2}, {1, 0}, {2, 2}, {3, 2}, {4, 2}}) {
            controle<QComboBox>(opcoes, u"CboOpcoesArquivosNome_%1"_s.arg(linha)).setCurrentIndex(0);
            controle<QComboBox>(opcoes, u"CboOpcoesArquivosExtensao_%1"_s.arg(linha))
                .setCurrentIndex(extensao);
        }
        salva(opcoes, u"frmopcoes.png"_s, {640, 330});

        // A folder of studies in the home folder, away from the temporary folders of the machine.
        const QTemporaryDir casa(QDir::homePath() + u"/corvalin-XXXXXX"_s);
        QVERIFY(QDir(casa.path()).mkpath(u"Estudos/Demonstração"_s));
        corvalin::FrmDiretorio diretorio(&janela);
        diretorio.setOpcaoParaCriar(true);
        diretorio.setCaminho(casa.filePath(u"Estudos"_s));
        diretorio.resize(420, 460);
        diretorio.show();
        QVERIFY(QTest::qWaitForWindowExposed(&diretorio));
        // The folder list reads the folders in the background.
        const auto* pastas = diretorio.findChild<QTreeView*>(u"DirDiretorio"_s);
        QTRY_COMPARE(pastas->model()->rowCount(pastas->currentIndex()), 1);
        salva(diretorio, u"frmdiretorio.png"_s);

        // A station that has limits, and the import assistant with the sample files listed.
        salva(abre(janela, u"acaoTela_1_2"_s, u"FrmDadosGerais"_s, u"DadosGerais"_s, u"5054"_s),
              u"frmdadosgerais.png"_s, {900, 470});
        salva(abre(janela, u"acaoTela_1_4"_s, u"FrmLimites"_s, u"DadosGerais"_s, u"5054"_s),
              u"frmlimites.png"_s, {640, 520});
        QWidget& importa = abre(janela, u"acaoTela_2_1"_s, u"FrmImporta"_s);
        dialogo.respondeArquivos(amostras());
        controle<QPushButton>(importa, u"BotImportaSelecionar"_s).click();
        salva(importa, u"frmimporta.png"_s, {720, 360});
        QVERIFY(dialogo.Mensagens().empty());
    }
};

QTEST_MAIN(TesteCapturas)
#include "test_capturas.moc"
