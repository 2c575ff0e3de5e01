#include "halvo/controles/RichText.h"
#include "platform/runtime/ErroVB.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>

using namespace Qt::StringLiterals;

namespace {

class TesteRichText : public QObject {
    Q_OBJECT

private slots:
    void eachStyleHasItsColourAndWeight();
    void aFileIsShownAsWrittenAndAMissingOneIsError53();
};

void TesteRichText::eachStyleHasItsColourAndWeight() {
    halvo::RichText texto;
    texto.AdicionaLinha(u"Posto 1 - Furnas"_s, halvo::RichText::Normal, true, true);
    texto.AdicionaLinha(u"Erro: "_s, halvo::RichText::Erro, false, false);
    texto.AdicionaLinha(u"ano inicial inválido."_s, halvo::RichText::Erro, false, true);
    texto.AdicionaLinha(u"Aviso: série curta."_s, halvo::RichText::Aviso, true, true);
    QCOMPARE(texto.Texto(), u"Posto 1 - Furnas\nErro: ano inicial inválido.\nAviso: série curta.\n"_s);

    // The colour and weight of the first piece of each line.
    const struct {
        QColor cor;
        int peso;
    } linhas[]{{Qt::black, QFont::Bold}, {Qt::red, QFont::Normal}, {Qt::blue, QFont::Bold}};
    for (int i = 0; i < 3; ++i) {
        const QTextCharFormat formato =
            texto.document()->findBlockByNumber(i).begin().fragment().charFormat();
        QCOMPARE(formato.foreground().color(), linhas[i].cor);
        QCOMPARE(formato.fontWeight(), linhas[i].peso);
    }
    texto.Limpa();
    QCOMPARE(texto.Texto(), QString());
}

void TesteRichText::aFileIsShownAsWrittenAndAMissingOneIsError53() {
    QTemporaryDir pasta;
    QFile arquivo(pasta.filePath(u"Relat.txt"_s));
    QVERIFY(arquivo.open(QIODevice::WriteOnly));
    arquivo.write(
        "Vaz\xF5"
        "es semanais\r\nfim\rsem LF");
    arquivo.close();

    halvo::RichText texto;
    texto.AdicionaLinha(u"antes"_s, halvo::RichText::Erro, false, true);
    texto.CarregaArquivo(arquivo.fileName());
    QCOMPARE(texto.Texto(), u"Vazões semanais\nfim\nsem LF"_s);
    QVERIFY(texto.isReadOnly());
    try {
        texto.CarregaArquivo(pasta.filePath(u"nada.txt"_s));
        QFAIL("a missing file is an error");
    } catch (const plataforma::ErroVB& erro) {
        QCOMPARE(erro.Number(), 53);
    }
}

}  // namespace

QTEST_MAIN(TesteRichText)
#include "test_richtext.moc"
