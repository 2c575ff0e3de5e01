#include "platform/texto/ArquivoTexto.h"

#include "Apoio.h"

#include <QFile>
#include <QTemporaryDir>

using namespace texto;

namespace {

class ArquivoTexto : public ::testing::Test {
protected:
    QString caminho(const QString& nome) const { return mPasta.filePath(nome); }

    QString grava(const QByteArray& bytes) const {
        QFile arquivo(caminho(u"entrada.txt"_s));
        EXPECT_TRUE(arquivo.open(QIODevice::WriteOnly) && arquivo.write(bytes) == bytes.size());
        return arquivo.fileName();
    }

    static QByteArray le(const QString& nome) {
        QFile arquivo(nome);
        return arquivo.open(QIODevice::ReadOnly) ? arquivo.readAll() : QByteArray("(sem arquivo)");
    }

    // Every line until Eof; one more read must raise error 62.
    QStringList linhas(const QByteArray& bytes) const {
        ArquivoEntrada entrada(grava(bytes));
        QStringList lidas;
        while (!entrada.Eof()) {
            lidas << entrada.LineInput();
        }
        EXPECT_EQ(numeroDoErro([&entrada] { entrada.LineInput(); }), 62);
        return lidas;
    }

private:
    QTemporaryDir mPasta;
};

}  // namespace

TEST(Cp1252, EveryByteSurvivesARoundTripAndStrangersBecomeAQuestionMark) {
    QByteArray todos;
    for (int b = 0; b < 256; ++b) {
        todos += static_cast<char>(b);
    }
    const QString texto = DeCp1252(todos);
    ASSERT_EQ(texto.size(), 256);
    EXPECT_EQ(ParaCp1252(texto), todos);
    EXPECT_EQ(texto.mid(0x80, 2) + texto.mid(0x9D, 3), u"€\u0081\u009DžŸ"_s);
    EXPECT_EQ(ParaCp1252(u"São €中😀"_s), QByteArray("S\xE3o \x80??"));
}

TEST_F(ArquivoTexto, LinesEndAtCrOrCrLfAndALoneLfIsText) {
    EXPECT_EQ(linhas("a\r\nb\rc\nd\r\n\r\nS\xE3o"), QStringList({"a", "b", "c\nd", "", u"São"_s}));
    EXPECT_EQ(linhas("a\r\n"), QStringList({"a"}));
    EXPECT_EQ(linhas(""), QStringList());
}

TEST_F(ArquivoTexto, OpeningFailuresCarryTheOldNumbers) {
    confere<int>({ERRO(ArquivoEntrada(caminho(u"falta.txt"_s)), 53),
                  ERRO(ArquivoSaida(caminho(u"falta/saida.txt"_s)), 76),
                  ERRO(ArquivoSaida(caminho({})), 75)});
}

// Nothing printed may be lost: not when the file is left to its destructor, nor when the disk is full.
TEST_F(ArquivoTexto, PrintWritesCp1252AndCrLfOverWhatWasThereAndReportsAFailedWrite) {
    const QString nome = grava(QByteArray(500, 'x'));
    ArquivoSaida saida(nome);
    for (const QString& linha : {u"Três Marias"_s, QString(), u"€ 中"_s}) {
        saida.Print(linha);
    }
    saida.Close();
    EXPECT_EQ(le(nome), QByteArray("Tr\xEAs Marias\r\n\r\n\x80 ?\r\n"));
    {
        ArquivoSaida semClose(nome);
        for (int i = 0; i < 1000; ++i) {
            semClose.Print(QString(79, u'9'));
        }
    }
    EXPECT_EQ(le(nome).size(), 1000 * 81);
    if (QFile::exists(u"/dev/full"_s)) {
        ArquivoSaida cheio(u"/dev/full"_s);
        cheio.Print(u"não cabe"_s);
        EXPECT_EQ(numeroDoErro([&cheio] { cheio.Close(); }), 75);
    }
}
