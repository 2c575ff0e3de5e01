// The import assistant driven through its pages: the list of files with its picker and the
// Delete key, the check and its report, the import with its status and its report.

#include "corvalin/editors/FrmImporta.h"
#include "halvo/controles/RichText.h"
#include "tests/corvalin/editors/TelaTeste.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QTextBlock>

using teste::clica;
using teste::controle;

namespace {

const QString Avancar = QStringLiteral("BotImportaAvancar");

// The station files of the tests' data, in a folder of the test, ending in the separator.
QString copiaDados(const teste::CasoDeTelas& caso) {
    const QString pasta =
        QDir::toNativeSeparators(caso.host.caminho(QStringLiteral("entrada"))) + QDir::separator();
    QDir().mkpath(pasta);
    const QDir dados(QStringLiteral(CORVALIN_DADOS_TESTE "/execucao"));
    for (const QString& arquivo : dados.entryList(QDir::Files)) {
        QFile::copy(dados.filePath(arquivo), pasta + arquivo);
    }
    return pasta;
}

QStringList linhas(const QWidget& tela) {
    QStringList textos;
    const auto& lista = controle<QListWidget>(tela, QStringLiteral("LstImporta"));
    for (int i = 0; i < lista.count(); ++i) {
        textos << lista.item(i)->text();
    }
    return textos;
}

// The report, a highlighted line marked with "!".
QStringList relatorio(const QWidget& tela) {
    QStringList textos;
    const auto& texto = controle<halvo::RichText>(tela, QStringLiteral("TxtImporta"));
    for (QTextBlock bloco = texto.document()->begin(); bloco.isValid(); bloco = bloco.next()) {
        if (!bloco.text().isEmpty()) {
            const bool destaque = bloco.begin().fragment().charFormat().fontWeight() == QFont::Bold;
            textos << (destaque ? QStringLiteral("!") : QString()) + bloco.text();
        }
    }
    return textos;
}

bool visivel(const QWidget& tela, const QString& nome) {
    return controle<QWidget>(tela, nome).isVisibleTo(&tela);
}

QString legenda(const QWidget& tela, const QString& nome) {
    return controle<QAbstractButton>(tela, nome).text();
}

QString rotulo(const QWidget& tela, const QString& nome) {
    return controle<QLabel>(tela, nome).text();
}

}  // namespace

class TesteFrmImporta : public QObject {
    Q_OBJECT

private slots:
    // The list takes each path once and loses the selected one to Delete; going back keeps it;
    // two good stations are found, imported and told to the host, and only closing is left.
    void importaDoisPostos() {
        teste::CasoDeTelas caso;
        const QString pasta = copiaDados(caso);
        const QString alfa = pasta + QStringLiteral("101.arq");
        const QString beta = pasta + QStringLiteral("202.arq");
        auto tela = teste::carrega<corvalin::FrmImporta>(caso);
        tela->show();
        QCOMPARE(tela->windowTitle(), QStringLiteral("Assistente de Importação"));
        QCOMPARE(rotulo(*tela, QStringLiteral("LblImporta")),
                 QStringLiteral("Selecione os arquivos de Dados Gerais dos Postos a serem importados:"));
        QVERIFY(!visivel(*tela, QStringLiteral("TxtImporta")));
        QVERIFY(!visivel(*tela, QStringLiteral("BotImportaVoltar")));
        QCOMPARE(legenda(*tela, Avancar), QStringLiteral("&Avançar >"));
        QCOMPARE(legenda(*tela, QStringLiteral("BotImportaCancela")), QStringLiteral("&Cancela"));

        caso.host.dialogo.respondeArquivos({alfa, beta});
        caso.host.dialogo.respondeArquivos({beta, pasta + QStringLiteral("Vazpast.dat")});
        for (int i = 0; i < 3; ++i) {
            clica(*tela, QStringLiteral("BotImportaSelecionar"));
        }
        QCOMPARE(linhas(*tela), (QStringList{alfa, beta, pasta + QStringLiteral("Vazpast.dat")}));
        auto& lista = controle<QListWidget>(*tela, QStringLiteral("LstImporta"));
        lista.setCurrentRow(2);
        QTest::keyClick(&lista, Qt::Key_Delete);
        QCOMPARE(linhas(*tela), (QStringList{alfa, beta}));
        lista.clearSelection();
        QTest::keyClick(&lista, Qt::Key_Delete);
        QCOMPARE(linhas(*tela).size(), 2);

        clica(*tela, Avancar);
        QCOMPARE(
            rotulo(*tela, QStringLiteral("LblImporta")),
            QStringLiteral("Os arquivos foram encontrados. Clique em 'Iniciar' para iniciar a importação."));
        QVERIFY(!visivel(*tela, QStringLiteral("LstImporta")));
        QVERIFY(!visivel(*tela, QStringLiteral("BotImportaSelecionar")));
        QVERIFY(!visivel(*tela, QStringLiteral("TxtImporta")));
        QVERIFY(visivel(*tela, QStringLiteral("BotImportaVoltar")));
        QCOMPARE(legenda(*tela, Avancar), QStringLiteral("&Iniciar"));
        QVERIFY(controle<QWidget>(*tela, Avancar).isEnabled());
        clica(*tela, QStringLiteral("BotImportaVoltar"));
        QVERIFY(visivel(*tela, QStringLiteral("LstImporta")));
        QCOMPARE(linhas(*tela), (QStringList{alfa, beta}));
        QCOMPARE(legenda(*tela, Avancar), QStringLiteral("&Avançar >"));

        clica(*tela, Avancar);
        clica(*tela, Avancar);
        QCOMPARE(rotulo(*tela, QStringLiteral("LblImporta")),
                 QStringLiteral(
                     "Importação concluída com sucesso. Clique em 'Fechar' para encerrar o Assistente."));
        for (const char* nome : {"TxtImporta", "BotImportaVoltar", "BotImportaAvancar",
                                 "LblImportaStatusNome", "LblImportaStatusNumero", "PrgImporta"}) {
            QVERIFY2(!visivel(*tela, QString::fromLatin1(nome)), nome);
        }
        QCOMPARE(rotulo(*tela, QStringLiteral("LblImportaStatusNome")), beta);
        QCOMPARE(rotulo(*tela, QStringLiteral("LblImportaStatusNumero")), QStringLiteral("Arquivo 2 de 2"));
        QCOMPARE(legenda(*tela, QStringLiteral("BotImportaCancela")), QStringLiteral("&Fechar"));
        QVERIFY(controle<QWidget>(*tela, QStringLiteral("BotImportaCancela")).isEnabled());
        QCOMPARE(teste::lePosto(caso, 101).Nome, QStringLiteral("Rio Alfa em Primeira"));
        QCOMPARE(teste::lePosto(caso, 202).Nome, QStringLiteral("Rio Beta em São José"));
        QCOMPARE(caso.notificador->Eventos(), std::vector<std::int32_t>{halvo::EventoImportacaoConcluida});
        QVERIFY(caso.host.dialogo.Mensagens().empty());

        clica(*tela, QStringLiteral("BotImportaCancela"));
        QVERIFY(!tela->isVisible());
    }

    // Problems found by the check leave only the way back, with the report: nothing listed, then a
    // station whose weekly flows file is missing.
    void problemasNaVerificacao() {
        teste::CasoDeTelas caso;
        const QString pasta = copiaDados(caso);
        auto tela = teste::carrega<corvalin::FrmImporta>(caso);
        clica(*tela, Avancar);
        QCOMPARE(rotulo(*tela, QStringLiteral("LblImporta")),
                 QStringLiteral("Foram encontrados alguns problemas nos arquivos selecionados:"));
        QVERIFY(visivel(*tela, QStringLiteral("TxtImporta")));
        QCOMPARE(relatorio(*tela), QStringList{QStringLiteral("!Não foi encontrado nenhum arquivo.")});
        QVERIFY(!controle<QWidget>(*tela, Avancar).isEnabled());
        QVERIFY(controle<QWidget>(*tela, QStringLiteral("BotImportaCancela")).isEnabled());

        clica(*tela, QStringLiteral("BotImportaVoltar"));
        QVERIFY(!visivel(*tela, QStringLiteral("TxtImporta")));
        QVERIFY(controle<QWidget>(*tela, Avancar).isEnabled());
        QFile::remove(pasta + QStringLiteral("101.dat"));
        caso.host.dialogo.respondeArquivos({pasta + QStringLiteral("101.arq")});
        clica(*tela, QStringLiteral("BotImportaSelecionar"));
        clica(*tela, Avancar);
        QCOMPARE(relatorio(*tela), (QStringList{QStringLiteral("!Arquivo de Vazões Semanais não encontrado."),
                                                pasta + QStringLiteral("101.arq")}));
        QVERIFY(!controle<QWidget>(*tela, Avancar).isEnabled());
    }

    // A file that fails during the import is reported on the last page, which then has only
    // "Fechar".
    void problemasNaImportacao() {
        teste::CasoDeTelas caso;
        const QString pasta = copiaDados(caso);
        QFile::remove(pasta + QStringLiteral("Vazpast.dat"));
        auto tela = teste::carrega<corvalin::FrmImporta>(caso);
        caso.host.dialogo.respondeArquivos({pasta + QStringLiteral("202.arq")});
        clica(*tela, QStringLiteral("BotImportaSelecionar"));
        clica(*tela, Avancar);
        QVERIFY(controle<QWidget>(*tela, Avancar).isEnabled());
        clica(*tela, Avancar);

        QCOMPARE(rotulo(*tela, QStringLiteral("LblImporta")),
                 QStringLiteral("Ocorreram alguns problemas durante a importação:"));
        QVERIFY(visivel(*tela, QStringLiteral("TxtImporta")));
        QCOMPARE(relatorio(*tela), (QStringList{QStringLiteral("!Erro na leitura do arquivo de Vazpasts."),
                                                pasta + QStringLiteral("202.arq")}));
        QVERIFY(!visivel(*tela, QStringLiteral("BotImportaAvancar")));
        QCOMPARE(legenda(*tela, QStringLiteral("BotImportaCancela")), QStringLiteral("&Fechar"));
        QVERIFY(controle<QWidget>(*tela, QStringLiteral("BotImportaCancela")).isEnabled());
    }
};

QTEST_MAIN(TesteFrmImporta)
#include "test_frmimporta.moc"
