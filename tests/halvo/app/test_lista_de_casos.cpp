#include "halvo/app/ListaDeCasos.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

halvo::EntradaCaso entrada(const QString& estudo, const QString& nome, const QString& pasta) {
    halvo::EntradaCaso e;
    e.Estudo = estudo;
    e.Nome = nome;
    e.Pasta = pasta;
    e.Descricao = u"Cheia de 1983"_s;
    e.Criacao = QDateTime(QDate(2026, 3, 1), QTime(14, 5, 0));
    return e;
}

TEST(CaseList, IsSavedAndReadBackWithoutReusingCodesAndADamagedFileLeavesItEmpty) {
    QTemporaryDir dir;
    const QString arquivo = dir.filePath(u"config/casos.json"_s);
    halvo::ListaDeCasos lista(arquivo);
    ASSERT_TRUE(lista.Carrega()) << "a missing file is an empty list";
    EXPECT_EQ(lista.Adiciona(entrada(u"Rio Grande"_s, u"Furnas"_s, dir.filePath("a/../a"))), 1);
    EXPECT_EQ(lista.Adiciona(entrada(u"Rio Grande"_s, u"Marimbondo"_s, dir.filePath("b"))), 2);
    lista.setSomenteLeitura(2, true);
    lista.Remove(2);
    ASSERT_TRUE(lista.Grava());

    halvo::ListaDeCasos relida(arquivo);
    ASSERT_TRUE(relida.Carrega());
    ASSERT_EQ(relida.Casos().size(), 1u);
    const halvo::EntradaCaso* furnas = relida.ProcuraPasta(dir.filePath(u"a/"_s));
    ASSERT_NE(furnas, nullptr);
    EXPECT_EQ(furnas->Pasta, QDir::toNativeSeparators(dir.filePath(u"a"_s)));
    EXPECT_EQ(furnas->Criacao, QDateTime(QDate(2026, 3, 1), QTime(14, 5, 0)));
    EXPECT_EQ(relida.Adiciona(entrada(u"Rio Grande"_s, u"Outro"_s, dir.filePath("c"))), 3)
        << "the code of a deleted case stays used";

    QFile estragado(arquivo);
    ASSERT_TRUE(estragado.open(QIODevice::WriteOnly));
    estragado.write("{\"casos\": [{\"nome\": \"sem pasta nem código\"}]}");
    estragado.close();
    EXPECT_FALSE(relida.Carrega());
    EXPECT_TRUE(relida.Casos().empty());
}

}  // namespace
