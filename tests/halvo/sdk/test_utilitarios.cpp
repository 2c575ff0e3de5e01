#include "halvo/sdk/UtilitariosArquivo.h"
#include "tests/platform/runtime/Casos.h"

#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

void escreve(const QString& caminho, const QByteArray& conteudo) {
    QFile arquivo(caminho);
    ASSERT_TRUE(arquivo.open(QIODevice::WriteOnly));
    arquivo.write(conteudo);
}

QByteArray le(const QString& caminho) {
    QFile arquivo(caminho);
    return arquivo.open(QIODevice::ReadOnly) ? arquivo.readAll() : QByteArray();
}

const halvo::UtilitariosArquivo arquivos;

TEST(ShortNames, OnlyEightDotThreeNamesAreValid) {
    for (const char* valido : {"1234.arq", "ABCDEFGH.XYZ", "a.b", "São.dat"}) {
        EXPECT_TRUE(arquivos.NomeArquivoValido(QString::fromUtf8(valido))) << valido;
    }
    for (const char* invalido :
         {"ABCDEFGHI.dat", "nome.abcd", ".dat", "nome.", "dois pontos.a.b", "a*b.dat"}) {
        EXPECT_FALSE(arquivos.NomeArquivoValido(QString::fromUtf8(invalido))) << invalido;
    }
    confere<bool>({CASO(arquivos.NomeValido(u"123456789"_s), false),
                   CASO(arquivos.ExtensaoValida(u"prv"_s), true), CASO(arquivos.ExtensaoValida({}), false)});
}

TEST(Files, CopyHonoursOverwriteAndDeleteTakesTheWholeFolder) {
    QTemporaryDir dir;
    const QString a = dir.filePath(u"a.txt"_s);
    const QString b = dir.filePath(u"b.txt"_s);
    escreve(a, "novo");
    escreve(b, "velho");
    EXPECT_FALSE(arquivos.CopiaArquivo(a, b, false));
    EXPECT_EQ(le(b), "velho");
    EXPECT_TRUE(arquivos.CopiaArquivo(a, b, true));
    EXPECT_EQ(le(b), "novo");
    EXPECT_FALSE(arquivos.CopiaArquivo(dir.filePath(u"falta.txt"_s), b, true));

    const QString pasta = dir.filePath(u"p/q"_s);
    EXPECT_TRUE(arquivos.CriaPasta(pasta));
    EXPECT_TRUE(arquivos.PastaVazia(pasta));
    escreve(pasta + u"/.oculto"_s, "x");
    EXPECT_FALSE(arquivos.PastaVazia(pasta)) << "a hidden file makes a folder not empty";
    EXPECT_TRUE(arquivos.ApagaPasta(dir.filePath(u"p"_s), true));
    EXPECT_FALSE(arquivos.PastaExiste(pasta));
    EXPECT_FALSE(arquivos.ApagaPasta(dir.filePath(u"p"_s), true)) << "a missing folder is a failure";
    EXPECT_FALSE(arquivos.ArquivoExiste(dir.path())) << "a folder is not a file";
}

}  // namespace
