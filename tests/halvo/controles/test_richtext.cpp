#include "halvo/controles/RichText.h"
#include "platform/runtime/ErroVB.h"

#include <QFile>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>

namespace {

class TesteRichText : public QObject {
    Q_OBJECT

private slots:
    void estilosDasLinhas();
    void arquivoComoEstaSemQuebra();
};

// The format of the first piece of text in a block.
QTextCharFormat formatoDe(const QTextBlock& bloco) {
    return bloco.begin().fragment().charFormat();
}

void TesteRichText::estilosDasLinhas() {
    halvo::RichText texto;
    texto.AdicionaLinha(QStringLiteral("Posto 1 - Furnas"), halvo::RichText::Normal, true, true);
    texto.AdicionaLinha(QStringLiteral("Erro: "), halvo::RichText::Erro, false, false);
    texto.AdicionaLinha(QStringLiteral("ano inicial inválido."), halvo::RichText::Erro, false, true);
    texto.AdicionaLinha(QStringLiteral("Aviso: série curta."), halvo::RichText::Aviso, true, true);
    QCOMPARE(texto.Texto(),
             QStringLiteral("Posto 1 - Furnas\nErro: ano inicial inválido.\nAviso: série curta.\n"));

    const QTextDocument& documento = *texto.document();
    QCOMPARE(formatoDe(documento.findBlockByNumber(0)).foreground().color(), QColor(Qt::black));
    QCOMPARE(formatoDe(documento.findBlockByNumber(0)).fontWeight(), int(QFont::Bold));
    QCOMPARE(formatoDe(documento.findBlockByNumber(1)).foreground().color(), QColor(Qt::red));
    QCOMPARE(formatoDe(documento.findBlockByNumber(1)).fontWeight(), int(QFont::Normal));
    QCOMPARE(formatoDe(documento.findBlockByNumber(2)).foreground().color(), QColor(Qt::blue));

    texto.Limpa();
    QCOMPARE(texto.Texto(), QString());
}

void TesteRichText::arquivoComoEstaSemQuebra() {
    QTemporaryDir pasta;
    const QString caminho = pasta.filePath(QStringLiteral("Relat.txt"));
    QFile arquivo(caminho);
    QVERIFY(arquivo.open(QIODevice::WriteOnly));
    const QByteArray longa(400, '-');
    arquivo.write(
        "Vaz\xF5"
        "es semanais\r\n" +
        longa + "\r\nfim\rsem LF");
    arquivo.close();

    halvo::RichText texto;
    texto.resize(200, 100);
    texto.show();
    QVERIFY(QTest::qWaitForWindowExposed(&texto));
    texto.AdicionaLinha(QStringLiteral("antes"), halvo::RichText::Erro, false, true);
    texto.CarregaArquivo(caminho);
    QCOMPARE(texto.Texto(), QStringLiteral("Vazões semanais\n") + QString::fromLatin1(longa) +
                                QStringLiteral("\nfim\nsem LF"));
    QCOMPARE(texto.document()->findBlockByNumber(1).layout()->lineCount(), 1);
    QVERIFY(texto.horizontalScrollBar()->maximum() > 0);
    QVERIFY(texto.isReadOnly());

    try {
        texto.CarregaArquivo(pasta.filePath(QStringLiteral("nada.txt")));
        QFAIL("a missing file is an error");
    } catch (const plataforma::ErroVB& erro) {
        QCOMPARE(erro.Number(), 53);
    }
}

}  // namespace

QTEST_MAIN(TesteRichText)
#include "test_richtext.moc"
