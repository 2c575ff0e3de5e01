#include "corvalin/casedb/casoBD.h"
#include "corvalin/stations/PostoBD.h"
#include "platform/runtime/Vetor.h"
#include "tests/doubles/HostTeste.h"
#include "tests/e2e/Instalacao.h"

#include <QDir>

#include <gmock/gmock.h>

#include <memory>

namespace teste {
namespace {

using ::testing::Contains;
using ::testing::Each;
using ::testing::Gt;

// The host of the build with the model's own solver beside the plug-in, on a demo station.
TEST(SolverReal, ADemoStationRunThroughTheHostsRoadLeavesItsForecastAndItsFiles) {
    HostTeste host;
    const QString caso = host.caminho(QStringLiteral("caso"));
    const QString halvo = Instalacao::halvoDaCompilacao();
    ASSERT_EQ(Executa(halvo, {QStringLiteral("criar"), caso}).codigo, 0);
    const Saida importar = Executa(halvo, {QStringLiteral("importar"), caso, Amostra(QStringLiteral("1333.arq"))});
    ASSERT_EQ(importar.codigo, 0) << importar.saida.toStdString();

    const Saida executar = Executa(halvo, {QStringLiteral("executar"), caso});
    EXPECT_EQ(executar.codigo, 0) << executar.saida.toStdString() << executar.erro.toStdString();
    EXPECT_EQ(executar.linhas().count(QStringLiteral("Caso executado com sucesso.")), 2);

    const QStringList arquivos = QDir(caso + QStringLiteral("/1333")).entryList(QDir::Files);
    for (const char* nome : {"1333.prv", "1333.rel", "1333.bcx", "1333.exc", "RUNSTATE.DAT", "Caso.dat"}) {
        EXPECT_THAT(arquivos, Contains(QString::fromLatin1(nome)));
    }
    for (const char* nome : {"Executa.bat", "Prevp.dat", "Prevt.dat", "Aviso.txt"}) {
        EXPECT_THAT(arquivos, ::testing::Not(Contains(QString::fromLatin1(nome))));
    }

    auto bd = std::make_shared<corvalin::casoBD>();
    ASSERT_TRUE(bd->Abrir(CasoTeste(caso), true, true));
    {
        corvalin::PostoBD postoBD;
        postoBD.setCasoBD(bd);
        plataforma::Vetor<float> previsao;
        plataforma::Vetor<float> inferior;
        plataforma::Vetor<float> superior;
        postoBD.getVazoesPrevistas(1333, previsao, inferior, superior);
        ASSERT_EQ(previsao.UBound(), 6);
        const std::vector<float> valores(previsao.dados().begin() + 1, previsao.dados().end());
        EXPECT_THAT(valores, Each(Gt(0.0f)));
        EXPECT_GT(superior[1], inferior[1]);
    }
    bd->Fechar();
}

}  // namespace
}  // namespace teste
