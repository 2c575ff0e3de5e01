#include "halvo/sdk/UtilitariosArquivo.h"
#include "halvo/sdk/UtilitariosSistema.h"
#include "tests/platform/runtime/Casos.h"

#include <QDir>
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
    for (const char* valido : {"1234.arq", "VAZOES.DAT", "a.b", "ABCDEFGH.XYZ", "São.dat", "r_1-2.rel"}) {
        EXPECT_TRUE(arquivos.NomeArquivoValido(QString::fromUtf8(valido))) << valido;
    }
    for (const char* invalido :
         {"", "semponto", "ABCDEFGHI.dat", "nome.abcd", ".dat", "nome.", "dois pontos.a.b", "com espaco.dat",
          "a*b.dat", "a?.dat", "a/b.dat", "a.d t", "[Código do Posto].dat"}) {
        EXPECT_FALSE(arquivos.NomeArquivoValido(QString::fromUtf8(invalido))) << invalido;
    }
    confere<bool>(
        {CASO(arquivos.NomeValido(u"12345678"_s), true), CASO(arquivos.NomeValido(u"123456789"_s), false),
         CASO(arquivos.NomeValido({}), false), CASO(arquivos.ExtensaoValida(u"prv"_s), true),
         CASO(arquivos.ExtensaoValida(u"prvx"_s), false), CASO(arquivos.ExtensaoValida({}), false)});
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

TEST(Shell, RunsTheScriptInTheCurrentFolderAndWaitsForIt) {
    QTemporaryDir dir;
    escreve(dir.filePath(u"Executa.bat"_s), "sleep 0.2\necho feito > saida.txt\nexit 3\n");
    const QString anterior = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(dir.path()));
    const int codigo = halvo::ExecutaNoShell(dir.filePath(u"Executa.bat"_s));
    QDir::setCurrent(anterior);
    EXPECT_EQ(codigo, 3);
    EXPECT_EQ(le(dir.filePath(u"saida.txt"_s)), "feito\n") << "ran in the current folder, and waited";
}

}  // namespace
