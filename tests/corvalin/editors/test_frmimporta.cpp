// The import assistant driven through its pages: the list of files with its picker and the
// Delete key, the check and its report, the import with its status and its report. What the
// passes find is theirs to test; here, what each page makes of it.

#include "corvalin/editors/FrmImporta.h"
#include "halvo/controles/RichText.h"
#include "tests/corvalin/editors/TelaTeste.h"
#include "tests/corvalin/execution/ArquivosTeste.h"

#include <QFile>
#include <QListWidget>
#include <QTextBlock>

using teste::clica;
using teste::controle;
using teste::valor;
using teste::valores;
using teste::visiveis;

namespace {

const QString Avancar = QStringLiteral("BotImportaAvancar");
// What each page says, and what it shows.
const auto Textos = {"LblImporta", "BotImportaAvancar", "BotImportaCancela"};
const auto Controles = {"LstImporta",           "BotImportaSelecionar",   "TxtImporta",
                        "LblImportaStatusNome", "LblImportaStatusNumero", "PrgImporta",
                        "BotImportaVoltar",     "BotImportaAvancar",      "BotImportaCancela"};

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

}  // namespace

class TesteFrmImporta : public QObject {
    Q_OBJECT

private slots:
    // The list takes each path once and loses the selected one to Delete; going back keeps it;
    // two good stations are found, imported and told to the host, and only closing is left.
    void importaDoisPostos() {
        teste::CasoDeTelas caso;
        const QString pasta = teste::CopiaDadosDeExecucao(caso.host.caminho(QStringLiteral("entrada")));
        const QString alfa = pasta + QStringLiteral("101.arq");
        const QString beta = pasta + QStringLiteral("202.arq");
        auto tela = teste::carrega<corvalin::FrmImporta>(caso);
        tela->show();
        QCOMPARE(valores(*tela, Textos),
                 (QStringList{"Selecione os arquivos de Dados Gerais dos Postos a serem importados:",
                              "&Avançar >", "&Cancela"}));
        QCOMPARE(visiveis(*tela, Controles), (QStringList{"LstImporta", "BotImportaSelecionar",
                                                          "BotImportaAvancar", "BotImportaCancela"}));

        caso.host.dialogo.respondeArquivos({alfa, beta});
        caso.host.dialogo.respondeArquivos({beta, pasta + QStringLiteral("Vazpast.dat")});
        for (int i = 0; i < 3; ++i) {
            clica(*tela, QStringLiteral("BotImportaSelecionar"));
        }
        QCOMPARE(linhas(*tela), (QStringList{alfa, beta, pasta + QStringLiteral("Vazpast.dat")}));
        auto& lista = controle<QListWidget>(*tela, QStringLiteral("LstImporta"));
        lista.setCurrentRow(2);
        QTest::keyClick(&lista, Qt::Key_Delete);
        lista.clearSelection();
        QTest::keyClick(&lista, Qt::Key_Delete);
        QCOMPARE(linhas(*tela), (QStringList{alfa, beta}));

        clica(*tela, Avancar);
        QCOMPARE(valores(*tela, Textos),
                 (QStringList{"Os arquivos foram encontrados. Clique em 'Iniciar' para iniciar a importação.",
                              "&Iniciar", "&Cancela"}));
        QCOMPARE(visiveis(*tela, Controles),
                 (QStringList{"BotImportaVoltar", "BotImportaAvancar", "BotImportaCancela"}));
        QCOMPARE(teste::habilitados(*tela, {"BotImportaAvancar"}).size(), 1);
        clica(*tela, QStringLiteral("BotImportaVoltar"));
        QCOMPARE(valor(*tela, Avancar), QStringLiteral("&Avançar >"));
        QCOMPARE(linhas(*tela), (QStringList{alfa, beta}));

        clica(*tela, Avancar);
        clica(*tela, Avancar);
        QCOMPARE(
            valores(*tela,
                    {"LblImporta", "BotImportaCancela", "LblImportaStatusNome", "LblImportaStatusNumero"}),
            (QStringList{"Importação concluída com sucesso. Clique em 'Fechar' para encerrar o Assistente.",
                         "&Fechar", beta, "Arquivo 2 de 2"}));
        QCOMPARE(visiveis(*tela, Controles), QStringList{QStringLiteral("BotImportaCancela")});
        QCOMPARE(teste::habilitados(*tela, {"BotImportaCancela"}).size(), 1);
        QCOMPARE(teste::lePosto(caso, 202).Nome, QStringLiteral("Rio Beta em São José"));
        QCOMPARE(caso.notificador->Eventos(), std::vector<std::int32_t>{halvo::EventoImportacaoConcluida});
        QVERIFY(caso.host.dialogo.Mensagens().empty());

        clica(*tela, QStringLiteral("BotImportaCancela"));
        QVERIFY(!tela->isVisible());
    }

    // Problems found by the check leave only the way back, with the report; problems of the
    // import are reported on the last page, which then has only "Fechar".
    void problemasEmCadaPagina() {
        teste::CasoDeTelas caso;
        const QString pasta = teste::CopiaDadosDeExecucao(caso.host.caminho(QStringLiteral("entrada")));
        QFile::remove(pasta + QStringLiteral("Vazpast.dat"));
        auto tela = teste::carrega<corvalin::FrmImporta>(caso);
        clica(*tela, Avancar);
        QCOMPARE(valor(*tela, QStringLiteral("LblImporta")),
                 QStringLiteral("Foram encontrados alguns problemas nos arquivos selecionados:"));
        QCOMPARE(visiveis(*tela, Controles),
                 (QStringList{"TxtImporta", "BotImportaVoltar", "BotImportaAvancar", "BotImportaCancela"}));
        QCOMPARE(teste::habilitados(*tela, {"BotImportaVoltar", "BotImportaAvancar", "BotImportaCancela"}),
                 (QStringList{"BotImportaVoltar", "BotImportaCancela"}));
        QCOMPARE(relatorio(*tela), QStringList{QStringLiteral("!Não foi encontrado nenhum arquivo.")});

        clica(*tela, QStringLiteral("BotImportaVoltar"));
        caso.host.dialogo.respondeArquivos({pasta + QStringLiteral("202.arq")});
        clica(*tela, QStringLiteral("BotImportaSelecionar"));
        clica(*tela, Avancar);
        clica(*tela, Avancar);
        QCOMPARE(valores(*tela, {"LblImporta", "BotImportaCancela"}),
                 (QStringList{"Ocorreram alguns problemas durante a importação:", "&Fechar"}));
        QCOMPARE(visiveis(*tela, Controles), (QStringList{"TxtImporta", "BotImportaCancela"}));
        QCOMPARE(relatorio(*tela), (QStringList{QStringLiteral("!Erro na leitura do arquivo de Vazpasts."),
                                                pasta + QStringLiteral("202.arq")}));
        QCOMPARE(teste::habilitados(*tela, {"BotImportaCancela"}).size(), 1);
    }
};

QTEST_MAIN(TesteFrmImporta)
#include "test_frmimporta.moc"
