#include "tests/e2e/Instalacao.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace teste {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

MATCHER_P(Contem, parte, "") {
    return arg.contains(QString::fromUtf8(parte));
}

const QString Sucesso = "Caso executado com sucesso.";
const QString Falha = "Caso executado com erro.";

// A case made by the host, filled from the two stations of the tests' data.
class LinhaDeComando : public ::testing::Test {
protected:
    void SetUp() override {
        caso = mPasta.filePath("caso");
        ASSERT_EQ(halvo({"criar", caso}).codigo, 0);
    }

    Saida halvo(const QStringList& argumentos) const {
        return Executa(Instalacao::teste().halvo(), argumentos);
    }

    Saida importa(const QStringList& arquivos) const {
        return halvo(QStringList{"importar", caso} + arquivos);
    }
    Saida importaDados() const {
        return importa({DadoDeTeste("execucao/101.arq"), DadoDeTeste("execucao/202.arq")});
    }

    // What the test solver does in every station, or in one.
    void instrucoes(const QStringList& linhas, const QString& codigo = {}) const {
        const QString nome =
            codigo.isEmpty() ? QString("Instrucoes.txt") : QString("Instrucoes_%1.txt").arg(codigo);
        Grava(caso + u'/' + nome, linhas);
    }

    QString caso;

private:
    QTemporaryDir mPasta;
};

// Station lines of the run's log.
QStringList pBlocos(const Saida& s) {
    QStringList blocos;
    const QStringList linhas = s.linhas();
    for (qsizetype i = 0; i + 1 < linhas.size(); ++i) {
        if (linhas[i].startsWith("Posto ")) {
            blocos << linhas[i].mid(6) + ": " + linhas[i + 1];
        }
    }
    return blocos;
}

TEST_F(LinhaDeComando, MadeImportedRunAndReadTheForecastOfTheSolver) {
    instrucoes({"previsao 10.24 20 30 40 50 60 5 6 7 8 9 10.04 100 200 300 400 500 600.06", "runstate 0"});

    const Saida importar = importaDados();
    ASSERT_EQ(importar.codigo, 0) << importar.erro.toStdString();
    EXPECT_THAT(importar.linhas(), ElementsAre(Contem("Arquivo 1 de 2: "), Contem("Arquivo 2 de 2: "),
                                               "Importação concluída: 2 arquivo(s)."));

    const Saida executar = halvo({"executar", caso});
    ASSERT_EQ(executar.codigo, 0) << executar.erro.toStdString();
    // The host's road runs every station twice, in two passes over the catalogue.
    const QString alfa = "101 - Rio Alfa em Primeira: " + Sucesso;
    const QString beta = "202 - Rio Beta em São José: " + Sucesso;
    EXPECT_THAT(pBlocos(executar), ElementsAre(alfa, beta, alfa, beta));

    const Saida previsoes = halvo({"previsoes", caso});
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
}

TEST_F(LinhaDeComando, ACrashASilentSolverAndAVerdictOfOneEndInErrorAndTheNextStationRuns) {
    ASSERT_EQ(importaDados().codigo, 0);
    instrucoes({"runstate 0"}, "202");
    const QString alfaFalhou = "101 - Rio Alfa em Primeira: " + Falha;
    const QString betaBem = "202 - Rio Beta em São José: " + Sucesso;

    for (const QString& falha : QStringList{QString(), "aborta", "runstate 1"}) {
        instrucoes({falha}, "101");
        const Saida assistente = halvo({"assistente", caso});
        EXPECT_EQ(assistente.codigo, 1) << falha.toStdString();
        EXPECT_THAT(pBlocos(assistente), ElementsAre(alfaFalhou, betaBem)) << falha.toStdString();
    }
    const Saida executar = halvo({"executar", caso});
    EXPECT_EQ(executar.codigo, 1);
    EXPECT_THAT(pBlocos(executar), ElementsAre(alfaFalhou, betaBem, alfaFalhou, betaBem));
}

TEST_F(LinhaDeComando, ValidationOfTheWholeCaseOrOfTheCodesGiven) {
    // A station whose general data ask for month 13.
    QTemporaryDir arquivos;
    const QString alfa = arquivos.filePath("101.arq");
    ASSERT_TRUE(QFile::copy(DadoDeTeste("execucao/101.dat"), arquivos.filePath("101.dat")));
    QStringList dadosGerais = LinhasDe(DadoDeTeste("execucao/101.arq"));
    dadosGerais[4] = "13";
    Grava(alfa, dadosGerais);
    ASSERT_EQ(importa({alfa, DadoDeTeste("execucao/202.arq")}).codigo, 0);
    instrucoes({"runstate 0"});

    const Saida todos = halvo({"validar", caso});
    EXPECT_EQ(todos.codigo, 1);
    EXPECT_THAT(todos.linhas(),
                ElementsAre("Validação dos dados antes da execução:", "Posto: 101 - Rio Alfa em Primeira",
                            "ERRO: Mês inicial inválido.", " ", "Posto: 202 - Rio Beta em São José",
                            "Dados Gerais OK.", " ", " ", "0 avisos", "1 erro"));

    const Saida beta = halvo({"validar", caso, "202"});
    EXPECT_EQ(beta.codigo, 0);
    EXPECT_THAT(beta.linhas(), ::testing::Contains("Posto: 202 - Rio Beta em São José"));
    EXPECT_THAT(beta.linhas(), ::testing::Not(::testing::Contains("Posto: 101 - Rio Alfa em Primeira")));

    const Saida ausente = halvo({"validar", caso, "999"});
    EXPECT_EQ(ausente.codigo, 2);
    EXPECT_THAT(ausente.erro.toStdString(), HasSubstr("999"));

    // Errors stop the assistant before any solver starts.
    EXPECT_EQ(halvo({"assistente", caso}).codigo, 2);
    EXPECT_FALSE(QFile::exists(caso + "/Execucoes.txt"));
    const Saida soBeta = halvo({"assistente", caso, "202"});
    EXPECT_EQ(soBeta.codigo, 0);
    EXPECT_THAT(LinhasDe(caso + "/Execucoes.txt"), ElementsAre(Contem("202 202.arq")));
}

TEST_F(LinhaDeComando, TheImportReportsProblemsAndFailsWithoutTouchingTheCase) {
    const QString ausente = QDir::toNativeSeparators(QDir(caso).absoluteFilePath("nada.arq"));
    const Saida importar = importa({ausente});
    EXPECT_EQ(importar.codigo, 1);
    EXPECT_THAT(importar.linhas(),
                ElementsAre("Foram encontrados alguns problemas nos arquivos selecionados:",
                            "Arquivo de Vazões Semanais não encontrado.", ausente));
    EXPECT_EQ(halvo({"importar", caso}).codigo, 2);
    EXPECT_EQ(halvo({"previsoes", caso}).saida, QString());
}

}  // namespace
}  // namespace teste
