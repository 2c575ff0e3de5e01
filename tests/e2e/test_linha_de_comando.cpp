#include "tests/e2e/Instalacao.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace teste {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

MATCHER_P(Contem, parte, "") { return arg.contains(QString::fromUtf8(parte)); }

const QString Sucesso = QStringLiteral("Caso executado com sucesso.");
const QString Falha = QStringLiteral("Caso executado com erro.");

// A case made by the host, filled from the two stations of the tests' data.
class LinhaDeComando : public ::testing::Test {
protected:
    void SetUp() override {
        caso = mPasta.filePath(QStringLiteral("caso"));
        ASSERT_EQ(halvo({QStringLiteral("criar"), caso}).codigo, 0);
    }

    Saida halvo(const QStringList& argumentos) const { return Executa(Instalacao::teste().halvo(), argumentos); }

    Saida importa(const QStringList& arquivos) const {
        return halvo(QStringList{QStringLiteral("importar"), caso} + arquivos);
    }
    Saida importaDados() const {
        return importa({DadoDeTeste(QStringLiteral("execucao/101.arq")), DadoDeTeste(QStringLiteral("execucao/202.arq"))});
    }

    // What the test solver does in every station, or in one.
    void instrucoes(const QStringList& linhas, const QString& codigo = {}) const {
        const QString nome = codigo.isEmpty() ? QStringLiteral("Instrucoes.txt") : QStringLiteral("Instrucoes_%1.txt").arg(codigo);
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
        if (linhas[i].startsWith(QStringLiteral("Posto "))) {
            blocos << linhas[i].mid(6) + QStringLiteral(": ") + linhas[i + 1];
        }
    }
    return blocos;
}

TEST_F(LinhaDeComando, MadeImportedRunAndReadTheForecastOfTheSolver) {
    instrucoes({QStringLiteral("previsao 10.24 20 30 40 50 60 5 6 7 8 9 10.04 100 200 300 400 500 600.06"),
                QStringLiteral("runstate 0")});

    const Saida importar = importaDados();
    ASSERT_EQ(importar.codigo, 0) << importar.erro.toStdString();
    EXPECT_THAT(importar.linhas(),
                ElementsAre(Contem("Arquivo 1 de 2: "), Contem("Arquivo 2 de 2: "),
                            QStringLiteral("Importação concluída: 2 arquivo(s).")));

    const Saida executar = halvo({QStringLiteral("executar"), caso});
    ASSERT_EQ(executar.codigo, 0) << executar.erro.toStdString();
    // The host's road runs every station twice, in two passes over the catalogue.
    const QString alfa = QStringLiteral("101 - Rio Alfa em Primeira: ") + Sucesso;
    const QString beta = QStringLiteral("202 - Rio Beta em São José: ") + Sucesso;
    EXPECT_THAT(pBlocos(executar), ElementsAre(alfa, beta, alfa, beta));

    const Saida previsoes = halvo({QStringLiteral("previsoes"), caso});
    ASSERT_EQ(previsoes.codigo, 0) << previsoes.erro.toStdString();
    EXPECT_THAT(previsoes.linhas(),
                ElementsAre(QStringLiteral("Posto 101 - Rio Alfa em Primeira"),
                            QStringLiteral("              Sem 31    Sem 32    Sem 33    Sem 34    Sem 35    Sem 36"),
                            QStringLiteral("Previsão        10.2      20.0      30.0      40.0      50.0      60.0"),
                            QStringLiteral("L. Inf.          5.0       6.0       7.0       8.0       9.0      10.0"),
                            QStringLiteral("L. Sup.        100.0     200.0     300.0     400.0     500.0     600.1"),
                            QStringLiteral("Posto 202 - Rio Beta em São José"),
                            QStringLiteral("               Sem 1     Sem 2     Sem 3     Sem 4     Sem 5     Sem 6"),
                            QStringLiteral("Previsão        10.2      20.0      30.0      40.0      50.0      60.0"),
                            QStringLiteral("L. Inf.          5.0       6.0       7.0       8.0       9.0      10.0"),
                            QStringLiteral("L. Sup.        100.0     200.0     300.0     400.0     500.0     600.1")));
}

TEST_F(LinhaDeComando, ACrashASilentSolverAndAVerdictOfOneEndInErrorAndTheNextStationRuns) {
    ASSERT_EQ(importaDados().codigo, 0);
    instrucoes({QStringLiteral("runstate 0")}, QStringLiteral("202"));
    const QString alfaFalhou = QStringLiteral("101 - Rio Alfa em Primeira: ") + Falha;
    const QString betaBem = QStringLiteral("202 - Rio Beta em São José: ") + Sucesso;

    for (const QString& falha : {QString(), QStringLiteral("aborta"), QStringLiteral("runstate 1")}) {
        instrucoes({falha}, QStringLiteral("101"));
        const Saida assistente = halvo({QStringLiteral("assistente"), caso});
        EXPECT_EQ(assistente.codigo, 1) << falha.toStdString();
        EXPECT_THAT(pBlocos(assistente), ElementsAre(alfaFalhou, betaBem)) << falha.toStdString();
    }
    const Saida executar = halvo({QStringLiteral("executar"), caso});
    EXPECT_EQ(executar.codigo, 1);
    EXPECT_THAT(pBlocos(executar), ElementsAre(alfaFalhou, betaBem, alfaFalhou, betaBem));
}

TEST_F(LinhaDeComando, ValidationOfTheWholeCaseOrOfTheCodesGiven) {
    // A station whose general data ask for month 13.
    QTemporaryDir arquivos;
    for (const QString& nome : {QStringLiteral("101.arq"), QStringLiteral("101.dat")}) {
        ASSERT_TRUE(QFile::copy(DadoDeTeste(QStringLiteral("execucao/") + nome), arquivos.filePath(nome)));
    }
    QStringList dadosGerais = LinhasDe(arquivos.filePath(QStringLiteral("101.arq")));
    dadosGerais[4] = QStringLiteral("13");
    Grava(arquivos.filePath(QStringLiteral("101.arq")), dadosGerais);
    ASSERT_EQ(importa({arquivos.filePath(QStringLiteral("101.arq")), DadoDeTeste(QStringLiteral("execucao/202.arq"))})
                  .codigo,
              0);
    instrucoes({QStringLiteral("runstate 0")});

    const Saida todos = halvo({QStringLiteral("validar"), caso});
    EXPECT_EQ(todos.codigo, 1);
    EXPECT_THAT(todos.linhas(),
                ElementsAre(QStringLiteral("Validação dos dados antes da execução:"),
                            QStringLiteral("Posto: 101 - Rio Alfa em Primeira"), QStringLiteral("ERRO: Mês inicial inválido."),
                            QStringLiteral(" "), QStringLiteral("Posto: 202 - Rio Beta em São José"),
                            QStringLiteral("Dados Gerais OK."), QStringLiteral(" "), QStringLiteral(" "),
                            QStringLiteral("0 avisos"), QStringLiteral("1 erro")));

    const Saida beta = halvo({QStringLiteral("validar"), caso, QStringLiteral("202")});
    EXPECT_EQ(beta.codigo, 0);
    EXPECT_THAT(beta.linhas(), ::testing::Contains(QStringLiteral("Posto: 202 - Rio Beta em São José")));
    EXPECT_THAT(beta.linhas(), ::testing::Not(::testing::Contains(QStringLiteral("Posto: 101 - Rio Alfa em Primeira"))));

    const Saida ausente = halvo({QStringLiteral("validar"), caso, QStringLiteral("999")});
    EXPECT_EQ(ausente.codigo, 2);
    EXPECT_THAT(ausente.erro.toStdString(), HasSubstr("999"));

    // Errors stop the assistant before any solver starts.
    EXPECT_EQ(halvo({QStringLiteral("assistente"), caso}).codigo, 2);
    EXPECT_FALSE(QFile::exists(caso + QStringLiteral("/Execucoes.txt")));
    const Saida soBeta = halvo({QStringLiteral("assistente"), caso, QStringLiteral("202")});
    EXPECT_EQ(soBeta.codigo, 0);
    EXPECT_THAT(LinhasDe(caso + QStringLiteral("/Execucoes.txt")), ElementsAre(Contem("202 202.arq")));
}

TEST_F(LinhaDeComando, TheImportReportsProblemsAndFailsWithoutTouchingTheCase) {
    const QString ausente = QDir::toNativeSeparators(QDir(caso).absoluteFilePath(QStringLiteral("nada.arq")));
    const Saida importar = importa({ausente});
    EXPECT_EQ(importar.codigo, 1);
    EXPECT_THAT(importar.linhas(),
                ElementsAre(QStringLiteral("Foram encontrados alguns problemas nos arquivos selecionados:"),
                            QStringLiteral("Arquivo de Vazões Semanais não encontrado."), ausente));
    EXPECT_EQ(halvo({QStringLiteral("importar"), caso}).codigo, 2);
    EXPECT_EQ(halvo({QStringLiteral("previsoes"), caso}).saida, QString());
}

}  // namespace
}  // namespace teste
