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
        QFile arquivo(caminho(QStringLiteral("entrada.txt")));
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

TEST(Cp1252, EveryByteSurvivesARoundTrip) {
    QByteArray todos;
    for (int b = 0; b < 256; ++b) {
        todos += static_cast<char>(b);
    }
    const QString texto = DeCp1252(todos);
    ASSERT_EQ(texto.size(), 256);
    EXPECT_EQ(ParaCp1252(texto), todos);
    EXPECT_EQ(texto.mid(0x80, 2) + texto.mid(0x9D, 3), QStringLiteral("€\u0081\u009DžŸ"));
}

TEST(Cp1252, AccentsAreOneByteAndStrangersAQuestionMark) {
    EXPECT_EQ(ParaCp1252(QStringLiteral("São Simão")), QByteArray("S\xE3o Sim\xE3o"));
    EXPECT_EQ(DeCp1252("Tr\xEAs Marias"), QStringLiteral("Três Marias"));
    EXPECT_EQ(ParaCp1252(QStringLiteral("a€b中\u0085c😀d")), QByteArray("a\x80"
                                                                       "b??c?d"));
}

TEST_F(ArquivoTexto, LinesEndAtCrOrCrLfAndALoneLfIsText) {
    EXPECT_EQ(linhas("a\r\nb\rc\nd\r\n\r\nS\xE3o"),
              QStringList({"a", "b", "c\nd", "", QStringLiteral("São")}));
    EXPECT_EQ(linhas("a\r\n"), QStringList({"a"}));
    EXPECT_EQ(linhas("a\r\n\r\n"), QStringList({"a", ""}));
    EXPECT_EQ(linhas("\r\r\n\n"), QStringList({"", "", "\n"}));
    EXPECT_EQ(linhas(""), QStringList());

    ArquivoEntrada entrada(grava("a\r\nb\r\n"));
    entrada.Close();
    EXPECT_TRUE(entrada.Eof());
}

TEST_F(ArquivoTexto, OpeningFailuresCarryTheOldNumbers) {
    EXPECT_EQ(numeroDoErro([this] { ArquivoEntrada e(caminho("falta.txt")); }), 53);
    EXPECT_EQ(numeroDoErro([this] { ArquivoEntrada e(caminho("")); }), 75);
    EXPECT_EQ(numeroDoErro([this] { ArquivoSaida s(caminho("falta/saida.txt")); }), 76);
    EXPECT_EQ(numeroDoErro([this] { ArquivoSaida s(caminho("")); }), 75);
}

TEST_F(ArquivoTexto, PrintWritesCp1252AndCrLfOverWhatWasThere) {
    const QString nome = grava(QByteArray(500, 'x'));
    ArquivoSaida saida(nome);
    saida.Print(QStringLiteral("Três Marias"));
    saida.Print("");
    saida.Print(QStringLiteral("€ 中"));
    saida.Close();
    EXPECT_EQ(le(nome), QByteArray("Tr\xEAs Marias\r\n\r\n\x80 ?\r\n"));
    EXPECT_EQ(numeroDoErro([&saida] { saida.Print("depois"); }), 75);

    {
        ArquivoSaida semClose(nome);
        for (int i = 0; i < 1000; ++i) {
            semClose.Print(QString(79, u'9'));
        }
    }
    EXPECT_EQ(le(nome).size(), 1000 * 81);
}

TEST(ArquivoSaida, AWriteThatFailsIsReportedAtClose) {
    if (!QFile::exists(QStringLiteral("/dev/full"))) {
        GTEST_SKIP() << "no /dev/full here";
    }
    ArquivoSaida saida(QStringLiteral("/dev/full"));
    saida.Print(QStringLiteral("não cabe"));
    EXPECT_EQ(numeroDoErro([&saida] { saida.Close(); }), 75);
}
