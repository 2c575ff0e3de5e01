#include "tests/e2e/Instalacao.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace teste {
namespace {

using ::testing::ElementsAre;

MATCHER_P(Contem, parte, "") {
    return arg.contains(QString::fromUtf8(parte));
}

Saida pHalvo(const QStringList& argumentos) {
    return Executa(Instalacao::teste().halvo(), argumentos);
}

// The road CI takes: a case made by the host, filled from the two stations of the tests' data, run
// with the test solver and its forecasts read back.
TEST(LinhaDeComando, MadeImportedRunAndReadTheForecastOfTheSolver) {
    const QTemporaryDir pasta;
    const QString caso = pasta.filePath("caso");
    ASSERT_EQ(pHalvo({"criar", caso}).codigo, 0);
    Grava(caso + "/Instrucoes.txt",
          {"previsao 10.24 20 30 40 50 60 5 6 7 8 9 10.04 100 200 300 400 500 600.06", "runstate 0"});

    const Saida importar =
        pHalvo({"importar", caso, DadoDeTeste("execucao/101.arq"), DadoDeTeste("execucao/202.arq")});
    ASSERT_EQ(importar.codigo, 0) << importar.erro.toStdString();
    EXPECT_THAT(importar.linhas(), ElementsAre(Contem("Arquivo 1 de 2: "), Contem("Arquivo 2 de 2: "),
                                               "Importação concluída: 2 arquivo(s)."));

    const Saida executar = pHalvo({"executar", caso});
    ASSERT_EQ(executar.codigo, 0) << executar.erro.toStdString();
    // The host's road runs every station twice, in two passes over the catalogue.
    const QString alfa = "Posto 101 - Rio Alfa em Primeira";
    const QString beta = "Posto 202 - Rio Beta em São José";
    EXPECT_THAT(executar.linhas().filter("Posto "), ElementsAre(alfa, beta, alfa, beta));
    EXPECT_EQ(executar.linhas().count("Caso executado com sucesso."), 4);

    const Saida previsoes = pHalvo({"previsoes", caso});
    ASSERT_EQ(previsoes.codigo, 0) << previsoes.erro.toStdString();
    EXPECT_THAT(previsoes.linhas(),
                ElementsAre("Posto 101 - Rio Alfa em Primeira",
                            "              Sem 31    Sem 32    Sem 33    Sem 34    Sem 35    Sem 36",
                            "Previsão        10.2      20.0      30.0      40.0      50.0      60.0",
                            "L. Inf.          5.0       6.0       7.0       8.0       9.0      10.0",
                            "L. Sup.        100.0     200.0     300.0     400.0     500.0     600.1",
                            "Posto 202 - Rio Beta em São José",
                            "               Sem 1     Sem 2     Sem 3     Sem 4     Sem 5     Sem 6",
                            "Previsão        10.2      20.0      30.0      40.0      50.0      60.0",
                            "L. Inf.          5.0       6.0       7.0       8.0       9.0      10.0",
                            "L. Sup.        100.0     200.0     300.0     400.0     500.0     600.1"));

    // A solver that crashes, writes nothing or leaves a verdict of 1 fails its station alone. The
    // verdict of the run before is taken away: a solver that writes none leaves it standing.
    for (const QString& falha : QStringList{QString(), "aborta", "runstate 1"}) {
        Grava(caso + "/Instrucoes_101.txt", {falha});
        QFile::remove(caso + "/101/RUNSTATE.DAT");
        const Saida assistente = pHalvo({"assistente", caso});
        EXPECT_EQ(assistente.codigo, 1) << falha.toStdString();
        EXPECT_THAT(assistente.linhas().filter(QRegularExpression("^Posto |^Caso executado")),
                    ElementsAre(alfa, "Caso executado com erro.", beta, "Caso executado com sucesso."))
            << falha.toStdString();
    }
}

TEST(LinhaDeComando, TheImportReportsProblemsAndFailsWithoutTouchingTheCase) {
    const QTemporaryDir pasta;
    const QString caso = pasta.filePath("caso");
    ASSERT_EQ(pHalvo({"criar", caso}).codigo, 0);
    const QString ausente = QDir::toNativeSeparators(QDir(caso).absoluteFilePath("nada.arq"));
    const Saida importar = pHalvo({"importar", caso, ausente});
    EXPECT_EQ(importar.codigo, 1);
    EXPECT_THAT(importar.linhas(),
                ElementsAre("Foram encontrados alguns problemas nos arquivos selecionados:",
                            "Arquivo de Vazões Semanais não encontrado.", ausente));
    EXPECT_EQ(pHalvo({"importar", caso}).codigo, 2);
    EXPECT_EQ(pHalvo({"previsoes", caso}).saida, QString());
}

}  // namespace
}  // namespace teste
