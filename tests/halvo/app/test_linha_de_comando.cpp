#include "platform/recordstore/Recordstore.h"
#include "tests/corvalin/casedb/BancoAntigo.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Saida {
    int codigo;
    QString erro;
};

// Runs the built host program, as a user or a script would.
Saida halvo(const QStringList& argumentos) {
    QProcess processo;
    processo.start(QStringLiteral(CORVALIN_PASTA_BIN "/halvo"), argumentos);
    EXPECT_TRUE(processo.waitForFinished(60000));
    return {processo.exitStatus() == QProcess::NormalExit ? processo.exitCode() : -1,
            QString::fromUtf8(processo.readAllStandardError())};
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

TEST(CommandLine, CreateThenOpenLeaveEightTablesAndOneCaseRow) {
    QTemporaryDir dir;
    const QString pasta = dir.filePath(u"c1"_s);
    const Saida criar = halvo({u"criar"_s, pasta});
    ASSERT_EQ(criar.codigo, 0) << criar.erro.toStdString();
    const QString arquivo = pasta + u"/Corvalin.mdb"_s;
    EXPECT_EQ(contaLinhas(arquivo, u"CasoCORVALIN"_s), 0) << "a new case is completed at its first opening";
    const Saida abrir = halvo({u"abrir"_s, pasta});
    ASSERT_EQ(abrir.codigo, 0) << abrir.erro.toStdString();
    EXPECT_EQ(recordstore::Database::OpenDatabase(arquivo)->NomesDasTabelas().size(), 8u);
    EXPECT_EQ(contaLinhas(arquivo, u"CasoCORVALIN"_s), 1);
    EXPECT_EQ(QDir(pasta).entryList(QDir::Files), QStringList{u"Corvalin.mdb"_s})
        << "a closed case is one file";

    EXPECT_NE(halvo({u"criar"_s, pasta}).codigo, 0) << "a case is not made over another";
}

TEST(CommandLine, OpenUpgradesAnOldFileKeepingItsRowsAndRefusesAFileThatIsNotACase) {
    QTemporaryDir dir;
    const QString antigo = dir.filePath(u"antigo"_s);
    ASSERT_TRUE(QDir().mkpath(antigo));
    ASSERT_TRUE(executaSqlite3(antigo + u"/Corvalin.mdb"_s, sqlCincoTabelas()));
    ASSERT_EQ(halvo({u"abrir"_s, antigo}).codigo, 0);
    const QString arquivo = antigo + u"/Corvalin.mdb"_s;
    EXPECT_EQ(recordstore::Database::OpenDatabase(arquivo)->NomesDasTabelas().size(), 8u);
    EXPECT_EQ(contaLinhas(arquivo, u"Postos"_s), 1);
    EXPECT_EQ(contaLinhas(arquivo, u"VazoesSemanais"_s), 1);

    const QString estranho = dir.filePath(u"estranho"_s);
    ASSERT_TRUE(QDir().mkpath(estranho));
    QFile lixo(estranho + u"/Corvalin.mdb"_s);
    ASSERT_TRUE(lixo.open(QIODevice::WriteOnly));
    lixo.write("isto não é um banco de dados");
    lixo.close();
    const Saida falha = halvo({u"abrir"_s, estranho});
    EXPECT_NE(falha.codigo, 0);
    EXPECT_TRUE(falha.erro.contains(u"danificado ou não é de um Caso Corvalinh."_s))
        << falha.erro.toStdString();
    EXPECT_TRUE(falha.erro.trimmed().endsWith(u"não foi possível abrir o caso em %1."_s.arg(estranho)));
}

}  // namespace
