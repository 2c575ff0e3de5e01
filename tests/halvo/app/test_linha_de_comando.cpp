#include "halvo/app/CasoPasta.h"
#include "platform/recordstore/Recordstore.h"
#include "tests/corvalin/casedb/BancoAntigo.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

struct Saida {
    int codigo;
    QString saida;
    QString erro;
};

// Runs the built host program, as a user or a script would.
Saida halvo(const QStringList& argumentos) {
    QProcess processo;
    processo.start(QStringLiteral(CORVALIN_PASTA_BIN "/halvo"), argumentos);
    EXPECT_TRUE(processo.waitForFinished(60000));
    return {processo.exitStatus() == QProcess::NormalExit ? processo.exitCode() : -1,
            QString::fromUtf8(processo.readAllStandardOutput()), QString::fromUtf8(processo.readAllStandardError())};
}

int contaLinhas(const QString& arquivo, const QString& tabela) {
    auto bd = recordstore::Database::OpenDatabase(arquivo);
    auto t = bd->OpenRecordset(tabela);
    int linhas = 0;
    for (; !t->Eof(); t->MoveNext()) {
        ++linhas;
    }
    return linhas;
}

TEST(CasoPasta, ItensDaPastaEDoRelogio) {
    QTemporaryDir dir;
    const halvo::CasoPasta caso(dir.filePath(QStringLiteral("estudo/caso1")));
    EXPECT_EQ(caso.Item(QStringLiteral("Diretorio")), dir.filePath(QStringLiteral("estudo/caso1")) + QDir::separator());
    EXPECT_EQ(caso.Item(QStringLiteral("diretorio")), caso.Item(QStringLiteral("Diretorio")));
    EXPECT_EQ(caso.Item(QStringLiteral("Nome")), QStringLiteral("caso1"));
    EXPECT_EQ(caso.Item(QStringLiteral("nome")), QStringLiteral("caso1"));
    EXPECT_EQ(caso.Item(QStringLiteral("estudo")), QStringLiteral("estudo"));
    EXPECT_EQ(caso.Item(QStringLiteral("DataCriacao")), QDate::currentDate().toString(Qt::ISODate));
    EXPECT_FALSE(caso.SomenteLeitura());
}

TEST(LinhaDeComando, CriarEAbrirDeixamOitoTabelasEUmaIdentificacao) {
    QTemporaryDir dir;
    const QString pasta = dir.filePath(QStringLiteral("c1"));
    const Saida criar = halvo({QStringLiteral("criar"), pasta});
    ASSERT_EQ(criar.codigo, 0) << criar.erro.toStdString();
    const QString arquivo = pasta + QStringLiteral("/Corvalin.mdb");
    EXPECT_EQ(contaLinhas(arquivo, QStringLiteral("CasoCORVALIN")), 0) << "a new case is completed at its first opening";
    const Saida abrir = halvo({QStringLiteral("abrir"), pasta});
    ASSERT_EQ(abrir.codigo, 0) << abrir.erro.toStdString();
    EXPECT_EQ(recordstore::Database::OpenDatabase(arquivo)->NomesDasTabelas().size(), 8u);
    EXPECT_EQ(contaLinhas(arquivo, QStringLiteral("CasoCORVALIN")), 1);
    EXPECT_EQ(QDir(pasta).entryList(QDir::Files), QStringList{QStringLiteral("Corvalin.mdb")})
        << "a closed case is one file";

    EXPECT_NE(halvo({QStringLiteral("criar"), pasta}).codigo, 0) << "a case is not made over another";
}

TEST(LinhaDeComando, AbrirAtualizaVersaoAntigaERecusaOQueNaoECaso) {
    QTemporaryDir dir;
    const QString antigo = dir.filePath(QStringLiteral("antigo"));
    ASSERT_TRUE(QDir().mkpath(antigo));
    ASSERT_TRUE(executaSqlite3(antigo + QStringLiteral("/Corvalin.mdb"), sqlCincoTabelas()));
    ASSERT_EQ(halvo({QStringLiteral("abrir"), antigo}).codigo, 0);
    const QString arquivo = antigo + QStringLiteral("/Corvalin.mdb");
    EXPECT_EQ(recordstore::Database::OpenDatabase(arquivo)->NomesDasTabelas().size(), 8u);
    EXPECT_EQ(contaLinhas(arquivo, QStringLiteral("Postos")), 1);
    EXPECT_EQ(contaLinhas(arquivo, QStringLiteral("VazoesSemanais")), 1);

    const QString estranho = dir.filePath(QStringLiteral("estranho"));
    ASSERT_TRUE(QDir().mkpath(estranho));
    QFile lixo(estranho + QStringLiteral("/Corvalin.mdb"));
    ASSERT_TRUE(lixo.open(QIODevice::WriteOnly));
    lixo.write("isto não é um banco de dados");
    lixo.close();
    const Saida falha = halvo({QStringLiteral("abrir"), estranho});
    EXPECT_NE(falha.codigo, 0);
    EXPECT_TRUE(falha.erro.contains(QStringLiteral("danificado ou não é de um Caso Corvalinh."))) << falha.erro.toStdString();
    EXPECT_TRUE(falha.erro.trimmed().endsWith(QStringLiteral("não foi possível abrir o caso em %1.").arg(estranho)));

    EXPECT_NE(halvo({QStringLiteral("abrir"), dir.filePath(QStringLiteral("nada"))}).codigo, 0);
}

TEST(LinhaDeComando, CopiarApagarInfoEAjuda) {
    QTemporaryDir dir;
    const QString origem = dir.filePath(QStringLiteral("origem"));
    const QString destino = dir.filePath(QStringLiteral("destino"));
    ASSERT_EQ(halvo({QStringLiteral("criar"), origem}).codigo, 0);
    ASSERT_EQ(halvo({QStringLiteral("copiar"), origem, destino}).codigo, 0);
    EXPECT_TRUE(QFile::exists(destino + QStringLiteral("/Corvalin.mdb")));
    EXPECT_EQ(halvo({QStringLiteral("abrir"), destino}).codigo, 0);
    EXPECT_EQ(halvo({QStringLiteral("apagar"), destino}).codigo, 0);
    EXPECT_FALSE(QDir(destino).exists());
    EXPECT_NE(halvo({QStringLiteral("apagar"), destino}).codigo, 0);

    const Saida info = halvo({QStringLiteral("info")});
    EXPECT_EQ(info.codigo, 0);
    EXPECT_TRUE(info.saida.contains(QStringLiteral("Modelo Estocástico de Previsão de Vazões Semanais")));
    EXPECT_TRUE(info.saida.contains(QStringLiteral("Histórico de Vazões Semanais")));
    EXPECT_TRUE(info.saida.contains(QStringLiteral("Gráfico das Previsões")));

    EXPECT_EQ(halvo({QStringLiteral("--help")}).codigo, 0);
    EXPECT_EQ(halvo({QStringLiteral("inventado")}).codigo, 2);
    EXPECT_EQ(halvo({QStringLiteral("criar")}).codigo, 2);
}

}  // namespace
