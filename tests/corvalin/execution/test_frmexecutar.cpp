// The run assistant's screen: its three faces, the checks of its list, the counts of the
// validation and a run with the test solver, opened as the host opens it.

#include "corvalin/execution/FrmExecutar.h"
#include "corvalin/frame/AberturaTelasGui.h"
#include "halvo/controles/RichText.h"
#include "tests/corvalin/editors/TelaTeste.h"
#include "tests/corvalin/execution/ArquivosTeste.h"

#include <QApplication>
#include <QDir>
#include <QListWidget>
#include <QPointer>

using namespace teste;

namespace {

const QString Avancar = QStringLiteral("BotExecutarAvancar");
// What each face shows.
const auto Faces = {"LstExecutar",        "BotExecutarMarcar",    "BotExecutarDesmarcar", "RtfExecutar",
                    "LblExecutarAlertas", "LblExecutarProblemas", "BotExecutarVoltar"};
const QStringList Selecao = {"LstExecutar", "BotExecutarMarcar", "BotExecutarDesmarcar"};

QListWidget& lista(const QWidget& tela) {
    return controle<QListWidget>(tela, QStringLiteral("LstExecutar"));
}

// The lines of the list, a checked one marked with "*".
QStringList linhas(const QWidget& tela) {
    QStringList textos;
    for (int i = 0; i < lista(tela).count(); ++i) {
        const QListWidgetItem& item = *lista(tela).item(i);
        textos << item.text() + (item.checkState() == Qt::Checked ? QStringLiteral("*") : QString());
    }
    return textos;
}

const halvo::RichText& relatorio(const QWidget& tela) {
    return controle<halvo::RichText>(tela, QStringLiteral("RtfExecutar"));
}

}  // namespace

class TesteFrmExecutar : public QObject {
    Q_OBJECT

private slots:
    // The run leaves the current folder in the case, which goes with the test.
    void cleanup() { QDir::setCurrent(QDir::tempPath()); }

    // Step 1 and 2 and back: the checks decide the button and survive the way back; only checked
    // rows are validated, and a warning alone lets the run start. An error (a station deleted
    // meanwhile) stops the run and sends the user back.
    void passosEValidacao() {
        CasoDeTelas caso;
        caso.adiciona(1234, QStringLiteral("Rio - Alto"));
        corvalin::Posto curto = caso.adiciona(20, QStringLiteral("Curto"));
        curto.AnoInicial = 1990;
        caso.grava(curto);
        const corvalin::Posto apagado = caso.adiciona(30, QStringLiteral("Apagado"));
        auto tela = std::make_unique<corvalin::FrmExecutar>(caso.host.caminho(QStringLiteral("modelos")));
        tela->setObjetos(caso.objetos());
        tela->Carregar();
        tela->show();
        QCOMPARE(linhas(*tela), (QStringList{"30 - Apagado*", "20 - Curto*", "1234 - Rio - Alto*"}));
        QCOMPARE(visiveis(*tela, Faces), Selecao);

        clica(*tela, QStringLiteral("BotExecutarDesmarcar"));
        QVERIFY(habilitados(*tela, {"BotExecutarAvancar"}).isEmpty());
        lista(*tela).item(2)->setCheckState(Qt::Checked);
        QCOMPARE(habilitados(*tela, {"BotExecutarAvancar"}).size(), 1);
        lista(*tela).item(1)->setCheckState(Qt::Checked);

        clica(*tela, Avancar);
        QCOMPARE(visiveis(*tela, Faces), (QStringList{"RtfExecutar", "LblExecutarAlertas",
                                                      "LblExecutarProblemas", "BotExecutarVoltar"}));
        QCOMPARE(valores(*tela,
                         {"LblExecutar", "BotExecutarAvancar", "LblExecutarAlertas", "LblExecutarProblemas"}),
                 (QStringList{"Validação dos dados antes da execução:", "&Executar", "1 aviso", "0 erros"}));
        QCOMPARE(habilitados(*tela, {"BotExecutarAvancar"}).size(), 1);
        QVERIFY(
            relatorio(*tela).Texto().contains(QStringLiteral("Posto: 1234 - Rio - Alto\nDados Gerais OK.")));
        QVERIFY(!relatorio(*tela).Texto().contains(QStringLiteral("Apagado")));

        clica(*tela, QStringLiteral("BotExecutarVoltar"));
        QCOMPARE(visiveis(*tela, Faces), Selecao);
        QCOMPARE(linhas(*tela).at(0), QStringLiteral("30 - Apagado"));

        caso.postoBD->delPosto(apagado);
        clica(*tela, QStringLiteral("BotExecutarMarcar"));
        clica(*tela, Avancar);
        QVERIFY(habilitados(*tela, {"BotExecutarAvancar"}).isEmpty());
        // A report of its own, not added to the one before.
        QVERIFY(relatorio(*tela).Texto().startsWith(QStringLiteral("Posto: 30 - Apagado\nPosto apagado.")));
        QCOMPARE(valor(*tela, QStringLiteral("LblExecutarProblemas")), QStringLiteral("1 erro"));
    }

    // A run from the screen as the host opens it: the log on the screen, the host told, the
    // pointer back, "Fechar" the only button left, and the screen gone when it is pressed.
    void execucaoComSolverDeTeste() {
        CasoDeTelas caso;
        for (const auto& [codigo, nome] : {std::pair{10, "A"}, std::pair{20, "B"}}) {
            corvalin::Posto posto = caso.adiciona(codigo, QString::fromLatin1(nome));
            caso.historico(posto, 1980, 2008, 52);
        }
        Grava(caso.pasta() + QStringLiteral("Instrucoes_10.txt"), {QStringLiteral("runstate 0")});
        Grava(caso.pasta() + QStringLiteral("Instrucoes_20.txt"), {QStringLiteral("runstate 1")});
        corvalin::AberturaTelasGui abertura;
        abertura.setPastaPlugin(InstalaSolverDeTeste(caso.host.caminho(QStringLiteral("modelos"))));
        QVERIFY(abertura.Abrir(QStringLiteral("FrmExecutar"), caso.objetos(), 1, 3, nullptr));
        QPointer<QWidget> tela = caso.host.sistema.Filhas.front();
        clica(*tela, Avancar);
        clica(*tela, Avancar);

        QCOMPARE(relatorio(*tela).Texto().split(u'\n').mid(0, 6),
                 (QStringList{"Posto 10 - A", "Caso executado com sucesso.", " ", "Posto 20 - B",
                              "Caso executado com erro.", " "}));
        QCOMPARE(caso.notificador->Eventos(), std::vector<std::int32_t>{halvo::EventoExecucaoComErro});
        QCOMPARE(visiveis(*tela, Faces), (QStringList{"RtfExecutar", "BotExecutarVoltar"}));
        QCOMPARE(habilitados(*tela, {"BotExecutarVoltar", "BotExecutarAvancar", "BotExecutarCancela"}),
                 QStringList{QStringLiteral("BotExecutarCancela")});
        QCOMPARE(valor(*tela, QStringLiteral("BotExecutarCancela")), QStringLiteral("Fechar"));

        QCOMPARE(caso.host.dialogo.Ponteiros().back(), halvo::Ponteiro::Padrao);

        clica(*tela, QStringLiteral("BotExecutarCancela"));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(tela.isNull());
    }
};

QTEST_MAIN(TesteFrmExecutar)
#include "test_frmexecutar.moc"
