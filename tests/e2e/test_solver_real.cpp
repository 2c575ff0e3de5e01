#include "tests/e2e/Instalacao.h"

#include <QDir>

#include <gmock/gmock.h>

namespace teste {
namespace {

using ::testing::AnyOfArray;
using ::testing::Each;
using ::testing::IsSupersetOf;
using ::testing::Not;

// The numbers of a line of the forecast table, after its title.
std::vector<double> pValores(const QStringList& linhas, const QString& titulo) {
    std::vector<double> valores;
    for (const QString& linha : linhas) {
        if (linha.startsWith(titulo)) {
            for (const QString& campo : linha.mid(titulo.size()).split(u' ', Qt::SkipEmptyParts)) {
                valores.push_back(campo.toDouble());
            }
        }
    }
    return valores;
}

// The host of the build with the model's own solver beside the plug-in, on a demo station.
TEST(SolverReal, ADemoStationRunThroughTheHostsRoadLeavesItsForecastAndItsFiles) {
    const QTemporaryDir pasta;
    const QString caso = pasta.filePath("caso");
    const QString halvo = Instalacao::halvoDaCompilacao();
    ASSERT_EQ(Executa(halvo, {"criar", caso}).codigo, 0);
    const Saida importar = Executa(halvo, {"importar", caso, DadoDeTeste("../../samples/1333.arq")});
    ASSERT_EQ(importar.codigo, 0) << importar.saida.toStdString();

    const Saida executar = Executa(halvo, {"executar", caso});
    EXPECT_EQ(executar.codigo, 0) << executar.saida.toStdString() << executar.erro.toStdString();
    EXPECT_EQ(executar.linhas().count("Caso executado com sucesso."), 2);
    const QStringList arquivos = QDir(caso + "/1333").entryList(QDir::Files);
    EXPECT_THAT(arquivos,
                IsSupersetOf({"1333.prv", "1333.rel", "1333.bcx", "1333.exc", "RUNSTATE.DAT", "Caso.dat"}));
    EXPECT_THAT(arquivos, Each(Not(AnyOfArray({"Executa.bat", "Prevp.dat", "Prevt.dat", "Aviso.txt"}))));

    const QStringList tabela = Executa(halvo, {"previsoes", caso}).linhas();
    const std::vector<double> previsao = pValores(tabela, "Previsão");
    ASSERT_EQ(previsao.size(), 6u) << tabela.join(u'\n').toStdString();
    EXPECT_THAT(previsao, Each(::testing::Gt(0.0)));
    EXPECT_LT(pValores(tabela, "L. Inf.").at(0), pValores(tabela, "L. Sup.").at(0));
}

}  // namespace
}  // namespace teste
