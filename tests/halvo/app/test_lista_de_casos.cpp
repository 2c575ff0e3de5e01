#include "halvo/app/ListaDeCasos.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(CaseList, IsSavedAndReadBackWithoutReusingCodesAndADamagedFileLeavesItEmpty) {
    QTemporaryDir dir;
    const QString arquivo = dir.filePath(u"config/casos.json"_s);
    halvo::ListaDeCasos lista(arquivo);
    ASSERT_TRUE(lista.Carrega()) << "a missing file is an empty list";
    halvo::EntradaCaso furnas = halvo::EntradaCaso::DaPasta(dir.filePath(u"Rio Grande/Furnas"_s));
    furnas.Pasta = dir.filePath(u"Rio Grande/Furnas/../Furnas"_s);
    furnas.Descricao = u"Cheia de 1983"_s;
    EXPECT_EQ(lista.Adiciona(furnas), 1);
    EXPECT_EQ(lista.Adiciona(halvo::EntradaCaso::DaPasta(dir.filePath(u"b"_s))), 2);
    lista.Remove(2);
    ASSERT_TRUE(lista.Grava());

    halvo::ListaDeCasos relida(arquivo);
    ASSERT_TRUE(relida.Carrega());
    ASSERT_EQ(relida.Casos().size(), 1u);
    const halvo::EntradaCaso* lido = relida.ProcuraPasta(dir.filePath(u"Rio Grande/Furnas/"_s));
    ASSERT_NE(lido, nullptr);
    EXPECT_EQ(lido->Pasta, QDir::toNativeSeparators(dir.filePath(u"Rio Grande/Furnas"_s)));
    EXPECT_EQ(lido->Estudo + u'|' + lido->Nome + u'|' + lido->Descricao,
              u"Rio Grande|Furnas|Cheia de 1983"_s);
    EXPECT_EQ(lido->Criacao.toSecsSinceEpoch(), furnas.Criacao.toSecsSinceEpoch());
    EXPECT_EQ(relida.Adiciona(halvo::EntradaCaso::DaPasta(dir.filePath(u"c"_s))), 3)
        << "the code of a deleted case stays used";

    QFile estragado(arquivo);
    ASSERT_TRUE(estragado.open(QIODevice::WriteOnly));
    estragado.write("{\"casos\": [{\"nome\": \"sem pasta nem código\"}]}");
    estragado.close();
    EXPECT_FALSE(relida.Carrega());
    EXPECT_TRUE(relida.Casos().empty());
}

}  // namespace
