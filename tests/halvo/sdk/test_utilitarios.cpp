#include "halvo/sdk/Servicos.h"
#include "halvo/sdk/UtilitariosArquivo.h"
#include "halvo/sdk/UtilitariosSistema.h"
#include "tests/doubles/HostTeste.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

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

TEST(NomesCurtos, SoAceitaOitoPontoTres) {
    for (const char* valido : {"1234.arq", "VAZOES.DAT", "a.b", "ABCDEFGH.XYZ", "São.dat", "r_1-2.rel"}) {
        EXPECT_TRUE(arquivos.NomeArquivoValido(QString::fromUtf8(valido))) << valido;
    }
    for (const char* invalido :
         {"", "semponto", "ABCDEFGHI.dat", "nome.abcd", ".dat", "nome.", "dois pontos.a.b", "com espaco.dat",
          "a*b.dat", "a?.dat", "a/b.dat", "a.d t", "[Código do Posto].dat"}) {
        EXPECT_FALSE(arquivos.NomeArquivoValido(QString::fromUtf8(invalido))) << invalido;
    }
    EXPECT_TRUE(arquivos.NomeValido(QStringLiteral("12345678")));
    EXPECT_FALSE(arquivos.NomeValido(QStringLiteral("123456789")));
    EXPECT_FALSE(arquivos.NomeValido(QString()));
    EXPECT_TRUE(arquivos.ExtensaoValida(QStringLiteral("prv")));
    EXPECT_FALSE(arquivos.ExtensaoValida(QStringLiteral("prvx")));
    EXPECT_FALSE(arquivos.ExtensaoValida(QString()));
}

TEST(Caminhos, SeparaPastaENome) {
    EXPECT_EQ(arquivos.SeparaCaminho(QStringLiteral("/casos/c1/1234/Caso.dat"), true), QStringLiteral("/casos/c1/1234/"));
    EXPECT_EQ(arquivos.SeparaCaminho(QStringLiteral("/casos/c1/1234/Caso.dat"), false), QStringLiteral("/casos/c1/1234"));
    EXPECT_EQ(arquivos.SeparaCaminho(QStringLiteral("Caso.dat"), true), QString());
    EXPECT_EQ(arquivos.NomeDoArquivo(QStringLiteral("/casos/c1/1234.arq")), QStringLiteral("1234.arq"));
    EXPECT_EQ(arquivos.NomeDoArquivo(QStringLiteral("1234.arq")), QStringLiteral("1234.arq"));
}

TEST(Arquivos, CopiaRespeitaSobrescreverEApagaPastaInteira) {
    QTemporaryDir dir;
    const QString a = dir.filePath(QStringLiteral("a.txt"));
    const QString b = dir.filePath(QStringLiteral("b.txt"));
    escreve(a, "novo");
    escreve(b, "velho");
    EXPECT_FALSE(arquivos.CopiaArquivo(a, b, false));
    EXPECT_EQ(le(b), "velho");
    EXPECT_TRUE(arquivos.CopiaArquivo(a, b, true));
    EXPECT_EQ(le(b), "novo");
    EXPECT_FALSE(arquivos.CopiaArquivo(dir.filePath(QStringLiteral("falta.txt")), b, true));

    const QString pasta = dir.filePath(QStringLiteral("p/q"));
    EXPECT_TRUE(arquivos.CriaPasta(pasta));
    EXPECT_TRUE(arquivos.PastaVazia(pasta));
    escreve(pasta + QStringLiteral("/.oculto"), "x");
    EXPECT_FALSE(arquivos.PastaVazia(pasta)) << "a hidden file makes a folder not empty";
    EXPECT_TRUE(arquivos.ApagaPasta(dir.filePath(QStringLiteral("p")), true));
    EXPECT_FALSE(arquivos.PastaExiste(pasta));
    EXPECT_FALSE(arquivos.ApagaPasta(dir.filePath(QStringLiteral("p")), true)) << "a missing folder is a failure";
    EXPECT_FALSE(arquivos.ArquivoExiste(dir.path())) << "a folder is not a file";
}

TEST(Processos, ExecutaNoShellNaPastaCorrenteEEspera) {
    QTemporaryDir dir;
    escreve(dir.filePath(QStringLiteral("Executa.bat")), "sleep 0.2\necho feito > saida.txt\nexit 3\n");
    const QString anterior = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(dir.path()));
    const int codigo = halvo::ExecutaNoShell(dir.filePath(QStringLiteral("Executa.bat")));
    QDir::setCurrent(anterior);
    EXPECT_EQ(codigo, 3);
    EXPECT_EQ(le(dir.filePath(QStringLiteral("saida.txt"))), "feito\n") << "ran in the current folder, and waited";
}

TEST(Servicos, InstalacaoValeSoNoEscopo) {
    halvo::ServicoDialogo* padrao = &halvo::Servicos::dialogo();
    {
        teste::HostTeste host;
        EXPECT_EQ(&halvo::Servicos::dialogo(), &host.dialogo);
        EXPECT_EQ(&halvo::Servicos::sistema(), &host.sistema);
        halvo::UtilitariosArquivo().SelecionaArquivo(QStringLiteral("*.*|*.*"), {}, {});
        ASSERT_EQ(host.dialogo.FiltrosPedidos().size(), 1u) << "the file utility asks through the dialog service";
    }
    EXPECT_EQ(&halvo::Servicos::dialogo(), padrao);
}

}  // namespace
