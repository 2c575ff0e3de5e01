// The import assistant driven through its pages: the list of files with its picker and the
// Delete key, the check and its report, the import with its status, its report and what it stored.

#include "corvalin/editors/FrmImporta.h"
#include "corvalin/stations/Historico.h"
#include "halvo/controles/RichText.h"
#include "tests/corvalin/editors/TelaTeste.h"
#include "tests/corvalin/execution/ArquivosTeste.h"

#include <QFile>
#include <QListWidget>
#include <QTextBlock>

using namespace Qt::StringLiterals;
using namespace teste;

namespace {

const QString Avancar = u"BotImportaAvancar"_s;
// What each page says, and what it shows.
const auto Textos = {"LblImporta", "BotImportaAvancar", "BotImportaCancela"};
const auto Controles = {"LstImporta",           "BotImportaSelecionar",   "TxtImporta",
                        "LblImportaStatusNome", "LblImportaStatusNumero", "PrgImporta",
                        "BotImportaVoltar",     "BotImportaAvancar",      "BotImportaCancela"};

QStringList linhas(const QWidget& tela) {
    QStringList textos;
    const auto& lista = controle<QListWidget>(tela, "LstImporta");
    for (int i = 0; i < lista.count(); ++i) {
        textos << lista.item(i)->text();
    }
    return textos;
}

// The report, a highlighted line marked with "!".
QStringList relatorio(const QWidget& tela) {
    QStringList textos;
    const auto& texto = controle<halvo::RichText>(tela, "TxtImporta");
    for (QTextBlock bloco = texto.document()->begin(); bloco.isValid(); bloco = bloco.next()) {
        if (!bloco.text().isEmpty()) {
            const bool destaque = bloco.begin().fragment().charFormat().fontWeight() == QFont::Bold;
            textos << (destaque ? u"!"_s : QString()) + bloco.text();
        }
    }
    return textos;
}

}  // namespace

class TesteFrmImporta : public QObject {
    Q_OBJECT

private slots:
    // The picker adds many paths at once, each only once, and Delete drops the selected one; going
    // back keeps the list; two good stations are found, imported whole and told to the host, and
    // only closing is left.
    void importaDoisPostos() {
        CasoDeTelas caso;
        const QString pasta = CopiaDadosDeExecucao(caso.host.caminho(u"entrada"_s));
        const QString alfa = pasta + u"101.arq"_s;
        const QString beta = pasta + u"202.arq"_s;
        auto tela = carrega<corvalin::FrmImporta>(caso);
        tela->show();
        QCOMPARE(valores(*tela, Textos),
                 (QStringList{"Selecione os arquivos de Dados Gerais dos Postos a serem importados:",
                              "&Avançar >", "&Cancela"}));
        QCOMPARE(visiveis(*tela, Controles), (QStringList{"LstImporta", "BotImportaSelecionar",
                                                          "BotImportaAvancar", "BotImportaCancela"}));

        caso.host.dialogo.respondeArquivos({alfa, beta});
        caso.host.dialogo.respondeArquivos({beta, pasta + u"Vazpast.dat"_s});
        for (int i = 0; i < 3; ++i) {
            clica(*tela, "BotImportaSelecionar");
        }
        QCOMPARE(linhas(*tela), (QStringList{alfa, beta, pasta + u"Vazpast.dat"_s}));
        auto& lista = controle<QListWidget>(*tela, "LstImporta");
        lista.setCurrentRow(2);
        QTest::keyClick(&lista, Qt::Key_Delete);
        QCOMPARE(linhas(*tela), (QStringList{alfa, beta}));

        clica(*tela, Avancar);
        QCOMPARE(valores(*tela, Textos),
                 (QStringList{"Os arquivos foram encontrados. Clique em 'Iniciar' para iniciar a importação.",
                              "&Iniciar", "&Cancela"}));
        QCOMPARE(visiveis(*tela, Controles),
                 (QStringList{"BotImportaVoltar", "BotImportaAvancar", "BotImportaCancela"}));
        clica(*tela, "BotImportaVoltar");
        QCOMPARE(linhas(*tela), (QStringList{alfa, beta}));

        clica(*tela, Avancar);
        clica(*tela, Avancar);
        QCOMPARE(
            valores(*tela,
                    {"LblImporta", "BotImportaCancela", "LblImportaStatusNome", "LblImportaStatusNumero"}),
            (QStringList{"Importação concluída com sucesso. Clique em 'Fechar' para encerrar o Assistente.",
                         "&Fechar", beta, "Arquivo 2 de 2"}));
        QCOMPARE(visiveis(*tela, Controles), QStringList{u"BotImportaCancela"_s});
        QCOMPARE(caso.notificador->Eventos(), std::vector<std::int32_t>{halvo::EventoImportacaoConcluida});
        QVERIFY(caso.host.dialogo.Mensagens().empty());

        // Every file of a station reached the case: weekly flows, Vazpast values and limits.
        corvalin::Posto primeiro = lePosto(caso, 101);
        corvalin::Historico vazoes;
        QVERIFY(caso.postoBD->getHistorico(primeiro, vazoes));
        QCOMPARE(std::tuple(primeiro.Nome, caso.postoBD->getUltimaSemana(primeiro), vazoes(1, 1)),
                 std::tuple(u"Rio Alfa em Primeira"_s, 30, 73.8F));
        const corvalin::Posto segundo = lePosto(caso, 202);
        QCOMPARE(std::pair(segundo.Nome, segundo.VazpastSemana_4),
                 std::pair(u"Rio Beta em São José"_s, 66.5));
        QCOMPARE(limite(caso, 202, 2, 12).second, 98.0F);

        clica(*tela, "BotImportaCancela");
        QVERIFY(!tela->isVisible());
    }

    // Problems found by the check, an empty list or a file without its weekly flows, leave only the
    // way back, with the report; problems of the import are reported on the last page, which then
    // has only "Fechar".
    void problemasEmCadaPagina() {
        CasoDeTelas caso;
        const QString pasta = CopiaDadosDeExecucao(caso.host.caminho(u"entrada"_s));
        QFile::remove(pasta + u"Vazpast.dat"_s);
        auto tela = carrega<corvalin::FrmImporta>(caso);
        clica(*tela, Avancar);
        QCOMPARE(valor(*tela, "LblImporta"),
                 u"Foram encontrados alguns problemas nos arquivos selecionados:"_s);
        QCOMPARE(visiveis(*tela, Controles),
                 (QStringList{"TxtImporta", "BotImportaVoltar", "BotImportaAvancar", "BotImportaCancela"}));
        QCOMPARE(habilitados(*tela, {"BotImportaVoltar", "BotImportaAvancar", "BotImportaCancela"}),
                 (QStringList{"BotImportaVoltar", "BotImportaCancela"}));
        QCOMPARE(relatorio(*tela), QStringList{u"!Não foi encontrado nenhum arquivo."_s});

        clica(*tela, "BotImportaVoltar");
        caso.host.dialogo.respondeArquivos({pasta + u"999.arq"_s, pasta + u"202.arq"_s});
        clica(*tela, "BotImportaSelecionar");
        clica(*tela, Avancar);
        QCOMPARE(relatorio(*tela),
                 (QStringList{u"!Arquivo de Vazões Semanais não encontrado."_s, pasta + u"999.arq"_s}));
        clica(*tela, "BotImportaVoltar");
        auto& lista = controle<QListWidget>(*tela, "LstImporta");
        lista.setCurrentRow(0);
        QTest::keyClick(&lista, Qt::Key_Delete);
        clica(*tela, Avancar);
        clica(*tela, Avancar);
        QCOMPARE(valores(*tela, {"LblImporta", "BotImportaCancela"}),
                 (QStringList{"Ocorreram alguns problemas durante a importação:", "&Fechar"}));
        QCOMPARE(visiveis(*tela, Controles), (QStringList{"TxtImporta", "BotImportaCancela"}));
        QCOMPARE(relatorio(*tela),
                 (QStringList{u"!Erro na leitura do arquivo de Vazpasts."_s, pasta + u"202.arq"_s}));
    }
};

QTEST_MAIN(TesteFrmImporta)
#include "test_frmimporta.moc"
