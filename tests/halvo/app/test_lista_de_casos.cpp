#include "halvo/app/ListaDeCasos.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

halvo::EntradaCaso entrada(const QString& estudo, const QString& nome, const QString& pasta) {
    halvo::EntradaCaso e;
    e.Estudo = estudo;
    e.Nome = nome;
    e.Pasta = pasta;
    e.Descricao = QStringLiteral("Cheia de 1983");
    e.Criacao = QDateTime(QDate(2026, 3, 1), QTime(14, 5, 0));
    return e;
}

TEST(ListaDeCasos, GravadaERelidaSemReusarCodigos) {
    QTemporaryDir dir;
    const QString arquivo = dir.filePath(QStringLiteral("config/casos.json"));
    halvo::ListaDeCasos lista(arquivo);
    ASSERT_TRUE(lista.Carrega()) << "a missing file is an empty list";
    EXPECT_EQ(lista.Adiciona(
                  entrada(QStringLiteral("Rio Grande"), QStringLiteral("Furnas"), dir.filePath("a/../a"))),
              1);
    EXPECT_EQ(lista.Adiciona(
                  entrada(QStringLiteral("Rio Grande"), QStringLiteral("Marimbondo"), dir.filePath("b"))),
              2);
    lista.setSomenteLeitura(2, true);
    lista.Remove(2);
    ASSERT_TRUE(lista.Grava());

    halvo::ListaDeCasos relida(arquivo);
    ASSERT_TRUE(relida.Carrega());
    ASSERT_EQ(relida.Casos().size(), 1u);
    const halvo::EntradaCaso* furnas = relida.ProcuraPasta(dir.filePath(QStringLiteral("a/")));
    ASSERT_NE(furnas, nullptr);
    EXPECT_EQ(furnas->Pasta, QDir::toNativeSeparators(dir.filePath(QStringLiteral("a"))));
    EXPECT_EQ(furnas->Criacao, QDateTime(QDate(2026, 3, 1), QTime(14, 5, 0)));
    EXPECT_EQ(
        relida.Adiciona(entrada(QStringLiteral("Rio Grande"), QStringLiteral("Outro"), dir.filePath("c"))), 3)
        << "the code of a deleted case stays used";

    QFile estragado(arquivo);
    ASSERT_TRUE(estragado.open(QIODevice::WriteOnly));
    estragado.write("{\"casos\": [{\"nome\": \"sem pasta nem código\"}]}");
    estragado.close();
    EXPECT_FALSE(relida.Carrega());
    EXPECT_TRUE(relida.Casos().empty());
}

TEST(Janela, SemTelaFalhaNumaLinha) {
    QProcess processo;
    QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
    for (const char* variavel : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        ambiente.remove(QString::fromLatin1(variavel));
    }
    processo.setProcessEnvironment(ambiente);
    processo.start(QStringLiteral(CORVALIN_PASTA_BIN "/halvo"), {QStringLiteral("janela")});
    ASSERT_TRUE(processo.waitForFinished(30000));
    EXPECT_EQ(processo.exitCode(), 1);
    const QString erro = QString::fromUtf8(processo.readAllStandardError());
    EXPECT_TRUE(erro.startsWith(QStringLiteral("halvo: "))) << erro.toStdString();
    EXPECT_EQ(erro.count(u'\n'), 1);
}

}  // namespace
