// The run assistant's screen: its three faces, the checks of its list, the report of the
// validation and a run with the test solver.

#include "corvalin/execution/FrmExecutar.h"
#include "corvalin/frame/AberturaTelasGui.h"
#include "halvo/controles/RichText.h"
#include "tests/corvalin/frame/CasoDeTelas.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QTextBlock>
#include <QtTest>

#include <algorithm>

using teste::controle;

namespace {

// A plug-in folder where the test solver stands as the solver.
class InstalacaoTeste {
public:
    explicit InstalacaoTeste(const teste::CasoDeTelas& caso)
        : pasta(QDir::toNativeSeparators(caso.host.caminho(QStringLiteral("modelos")))) {
        QDir().mkpath(pasta);
        QFile::link(QStringLiteral(CORVALIN_PASTA_BIN "/CorvalinTeste"),
                    pasta + QDir::separator() + QStringLiteral("Corvalin"));
    }
    // The run leaves the current folder in the case, which goes with the test.
    ~InstalacaoTeste() { QDir::setCurrent(QDir::tempPath()); }
    InstalacaoTeste(const InstalacaoTeste&) = delete;
    InstalacaoTeste& operator=(const InstalacaoTeste&) = delete;

    QString pasta;
};

std::unique_ptr<corvalin::FrmExecutar> abre(const teste::CasoDeTelas& caso,
                                            const InstalacaoTeste& instalacao) {
    auto tela = std::make_unique<corvalin::FrmExecutar>(instalacao.pasta);
    tela->setObjetos(caso.objetos());
    tela->Carregar();
    tela->show();
    return tela;
}

QPushButton& botao(const QWidget& tela, const char* nome) {
    return controle<QPushButton>(tela, QString::fromLatin1(nome));
}

QListWidget& lista(const QWidget& tela) {
    return controle<QListWidget>(tela, QStringLiteral("LstExecutar"));
}

QStringList linhas(const QWidget& tela) {
    QStringList textos;
    for (int i = 0; i < lista(tela).count(); ++i) {
        textos << lista(tela).item(i)->text() + (lista(tela).item(i)->checkState() == Qt::Checked ? "*" : "");
    }
    return textos;
}

// The colour of a line of the report, found by its text.
QColor cor(const QWidget& tela, const QString& texto) {
    const auto& rtf = controle<halvo::RichText>(tela, QStringLiteral("RtfExecutar"));
    for (QTextBlock bloco = rtf.document()->begin(); bloco.isValid(); bloco = bloco.next()) {
        if (bloco.text() == texto) {
            return bloco.begin().fragment().charFormat().foreground().color();
        }
    }
    return {};
}

QString relatorio(const QWidget& tela) {
    return controle<halvo::RichText>(tela, QStringLiteral("RtfExecutar")).Texto();
}

QString rotulo(const QWidget& tela, const char* nome) {
    return controle<QLabel>(tela, QString::fromLatin1(nome)).text();
}

void escreve(const QString& caminho, const QStringList& linhas) {
    QFile arquivo(caminho);
    QVERIFY(arquivo.open(QIODevice::WriteOnly));
    arquivo.write(linhas.join(QStringLiteral("\r\n")).toLatin1() + "\r\n");
}

}  // namespace

class TesteFrmExecutar : public QObject {
    Q_OBJECT

private slots:
    // With no station there is nothing to go forward with, and the check buttons change nothing.
    void catalogoVazio() {
        teste::CasoDeTelas caso;
        const InstalacaoTeste instalacao(caso);
        auto tela = abre(caso, instalacao);
        QCOMPARE(tela->windowTitle(), QStringLiteral("Assistente de Execução"));
        QCOMPARE(lista(*tela).count(), 0);
        QVERIFY(!botao(*tela, "BotExecutarAvancar").isEnabled());
        botao(*tela, "BotExecutarMarcar").click();
        QVERIFY(!botao(*tela, "BotExecutarAvancar").isEnabled());
        botao(*tela, "BotExecutarDesmarcar").click();
        QVERIFY(!botao(*tela, "BotExecutarAvancar").isEnabled());
    }

    // Step 1 and 2 and back: the checks decide the button, and survive the way back; a warning
    // lets the run go, an error (a station deleted meanwhile) stops it.
    void passosEValidacao() {
        teste::CasoDeTelas caso;
        const InstalacaoTeste instalacao(caso);
        caso.adiciona(1234, QStringLiteral("Rio - Alto"));
        corvalin::Posto curto = caso.adiciona(20, QStringLiteral("Curto"));
        curto.AnoInicial = 1990;
        caso.grava(curto);
        const corvalin::Posto apagado = caso.adiciona(30, QStringLiteral("Apagado"));
        auto tela = abre(caso, instalacao);
        QCOMPARE(linhas(*tela), (QStringList{QStringLiteral("30 - Apagado*"), QStringLiteral("20 - Curto*"),
                                             QStringLiteral("1234 - Rio - Alto*")}));
        QCOMPARE(lista(*tela).currentRow(), 0);
        QCOMPARE(rotulo(*tela, "LblExecutar"),
                 QStringLiteral("Selecione os postos que deseja incluir na execução:"));
        auto& avancar = botao(*tela, "BotExecutarAvancar");
        QCOMPARE(avancar.text(), QStringLiteral("&Avançar >"));
        QVERIFY(avancar.isEnabled());
        QVERIFY(!botao(*tela, "BotExecutarVoltar").isVisible());
        QVERIFY(!controle<halvo::RichText>(*tela, QStringLiteral("RtfExecutar")).isVisible());

        botao(*tela, "BotExecutarDesmarcar").click();
        QVERIFY(!avancar.isEnabled());
        lista(*tela).item(2)->setCheckState(Qt::Checked);
        QVERIFY(avancar.isEnabled());
        lista(*tela).item(1)->setCheckState(Qt::Checked);

        avancar.click();
        QCOMPARE(rotulo(*tela, "LblExecutar"), QStringLiteral("Validação dos dados antes da execução:"));
        QVERIFY(!lista(*tela).isVisible());
        QVERIFY(!botao(*tela, "BotExecutarMarcar").isVisible());
        QVERIFY(botao(*tela, "BotExecutarVoltar").isVisible());
        QVERIFY(controle<halvo::RichText>(*tela, QStringLiteral("RtfExecutar")).isVisible());
        QCOMPARE(avancar.text(), QStringLiteral("&Executar"));
        QVERIFY(avancar.isEnabled());
        QCOMPARE(rotulo(*tela, "LblExecutarAlertas"), QStringLiteral("1 aviso"));
        QCOMPARE(rotulo(*tela, "LblExecutarProblemas"), QStringLiteral("0 erros"));
        QVERIFY(controle<QLabel>(*tela, QStringLiteral("LblExecutarAlertas")).isVisible());
        QVERIFY(relatorio(*tela).contains(QStringLiteral("Posto: 1234 - Rio - Alto\nDados Gerais OK.")));
        QCOMPARE(cor(*tela, QStringLiteral("O Histórico de Vazões Semanais tem menos de 20 anos.")),
                 QColor(Qt::blue));
        QVERIFY(!relatorio(*tela).contains(QStringLiteral("Apagado")));

        botao(*tela, "BotExecutarVoltar").click();
        QVERIFY(lista(*tela).isVisible());
        QVERIFY(!botao(*tela, "BotExecutarVoltar").isVisible());
        QCOMPARE(avancar.text(), QStringLiteral("&Avançar >"));
        QCOMPARE(linhas(*tela).at(0), QStringLiteral("30 - Apagado"));

        caso.postoBD->delPosto(apagado);
        botao(*tela, "BotExecutarMarcar").click();
        avancar.click();
        QVERIFY(!avancar.isEnabled());
        QCOMPARE(tela->focusWidget(), &botao(*tela, "BotExecutarVoltar"));
        QCOMPARE(rotulo(*tela, "LblExecutarProblemas"), QStringLiteral("1 erro"));
        QCOMPARE(cor(*tela, QStringLiteral("Posto apagado.")), QColor(Qt::red));
    }

    // A run from the screen as the host opens it: files generated under the progress form, the
    // solver once per station, the log in blue and black, the host told, "Fechar" the only button
    // left, and the screen gone when it is pressed.
    void execucaoComSolverDeTeste() {
        teste::CasoDeTelas caso;
        const InstalacaoTeste instalacao(caso);
        corvalin::Posto a = caso.adiciona(10, QStringLiteral("A"));
        caso.historico(a, 1980, 2008, 52);
        corvalin::Posto b = caso.adiciona(20, QStringLiteral("B"));
        caso.historico(b, 1980, 2008, 52);
        escreve(caso.pasta() + QStringLiteral("Instrucoes_10.txt"),
                {QStringLiteral("previsao 1 2 3 4 5 6 0.5 1.5 2.5 3.5 4.5 5.5 2 3 4 5 6 7"),
                 QStringLiteral("runstate 0")});
        escreve(caso.pasta() + QStringLiteral("Instrucoes_20.txt"), {QStringLiteral("runstate 1")});
        corvalin::AberturaTelasGui abertura;
        abertura.setPastaPlugin(instalacao.pasta);
        QVERIFY(abertura.Abrir(QStringLiteral("FrmExecutar"), caso.objetos(), 1, 3, nullptr));
        QPointer<QWidget> tela = caso.host.sistema.Filhas.front();
        QCOMPARE(tela->windowTitle(), QStringLiteral("Assistente de Execução (Caso)"));
        botao(*tela, "BotExecutarAvancar").click();
        caso.host.dialogo.limpa();
        botao(*tela, "BotExecutarAvancar").click();

        QCOMPARE(rotulo(*tela, "LblExecutar"), QStringLiteral("Execução do Caso:"));
        QCOMPARE(relatorio(*tela).split(QLatin1Char('\n')).mid(0, 6),
                 (QStringList{QStringLiteral("Posto 10 - A"), QStringLiteral("Caso executado com sucesso."),
                              QStringLiteral(" "), QStringLiteral("Posto 20 - B"),
                              QStringLiteral("Caso executado com erro."), QStringLiteral(" ")}));
        QCOMPARE(cor(*tela, QStringLiteral("Posto 20 - B")), QColor(Qt::blue));
        QCOMPARE(caso.notificador->Eventos(), std::vector<std::int32_t>{5});
        QVERIFY(!controle<QLabel>(*tela, QStringLiteral("LblExecutarProblemas")).isVisible());

        plataforma::Vetor<float> previsao;
        plataforma::Vetor<float> inferior;
        plataforma::Vetor<float> superior;
        caso.postoBD->getVazoesPrevistas(10, previsao, inferior, superior);
        QCOMPARE(previsao.UBound(), 6);
        QCOMPARE(superior[6], 7.0F);

        // The progress form came and went, and the pointer is back.
        QVERIFY(!caso.host.sistema.Auxiliares.empty());
        const QWidgetList janelas = QApplication::topLevelWidgets();
        QVERIFY(std::none_of(janelas.begin(), janelas.end(), [](const QWidget* janela) {
            return janela->objectName() == QStringLiteral("FrmBarraDeProgresso");
        }));
        QCOMPARE(caso.host.dialogo.Ponteiros().back(), halvo::Ponteiro::Padrao);

        auto& cancela = botao(*tela, "BotExecutarCancela");
        QCOMPARE(cancela.text(), QStringLiteral("Fechar"));
        QVERIFY(cancela.isEnabled());
        QVERIFY(!botao(*tela, "BotExecutarAvancar").isEnabled());
        QVERIFY(!botao(*tela, "BotExecutarVoltar").isEnabled());
        cancela.click();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(tela.isNull());
        QVERIFY(caso.host.dialogo.Mensagens().empty());
    }
};

QTEST_MAIN(TesteFrmExecutar)
#include "test_frmexecutar.moc"
