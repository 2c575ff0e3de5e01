#include "corvalin/execution/ExecucaoPostos.h"
#include "corvalin/frame/Mensagens.h"
#include "corvalin/options/Opcoes.h"
#include "corvalin/options/OpcoesBD.h"
#include "platform/runtime/Vetor.h"
#include "tests/corvalin/execution/CasoExecucao.h"

#include <gmock/gmock.h>

namespace teste {
namespace {

using corvalin::Posto;
using corvalin::RegistroTexto;
using namespace corvalin::Mensagens;
using ::testing::ElementsAre;

const QString Sucesso = msgCasoExecutadoSucesso;
const QString Falha = msgCasoExecutadoErro;
const QString Branco = " ";

// The instruction of a forecast with values that tell the weeks and the series apart.
QString pPrevisao(int base) {
    QString instrucao = QStringLiteral("previsao");
    for (int i = 0; i < 18; ++i) {
        instrucao += QStringLiteral(" %1.5").arg(base + i / 6 * 100 + (i % 6 + 1) * 10);
    }
    return instrucao;
}

class Execucao : public CasoExecucao {
protected:
    void executa() {
        assistente().pCarregarPostos();
        assistente().pGerarArquivosDireto();
        assistente().pExecutar();
    }

    std::vector<float> previsao(std::int32_t codigo, int serie) const {
        plataforma::Vetor<float> valores[3];
        postoBD.getVazoesPrevistas(codigo, valores[0], valores[1], valores[2]);
        const auto& dados = valores[serie].dados();
        return {dados.begin() + 1, dados.end()};
    }
};

// The solver's notice is shown and its file goes.
TEST_F(Execucao, OneStationFromFolderToStoredForecast) {
    grava(PostoPronto(10, "Alfa"));
    instrucoes(10, {pPrevisao(1000), "relatorio texto", "planilha", "prevp", "aviso Previsão limitada.",
                    "runstate 0"});
    // The error file stands right behind the plug-in's folder text, not inside the folder.
    Grava(pastaPlugin + QStringLiteral("merro.tmp"), {"x"});
    QDir().mkpath(pastaPosto(10));
    Grava(arquivoPosto(10, "Caso.dat"), {"ANTIGO.arq"});

    executa();

    EXPECT_THAT(execucoes(), ElementsAre("10 C10.arq dadosgerais=1 merro=1 previsao=0"));
    EXPECT_THAT(host.sistema.Programas, ElementsAre(arquivoPosto(10, "Executa.bat")));
    EXPECT_THAT(arquivosDe(10), ElementsAre("C10.arq", "C10.bcx", "C10.dat", "C10.exc", "C10.prv", "C10.rel",
                                            "Caso.dat", "RUNSTATE.DAT"));
    EXPECT_THAT(LinhasDe(arquivoPosto(10, "Caso.dat")), ElementsAre("C10.arq"));
    EXPECT_THAT(previsao(10, 0), ElementsAre(1010.5f, 1020.5f, 1030.5f, 1040.5f, 1050.5f, 1060.5f));
    EXPECT_THAT(previsao(10, 2), ElementsAre(1210.5f, 1220.5f, 1230.5f, 1240.5f, 1250.5f, 1260.5f));

    EXPECT_THAT(textosDoRegistro(), ElementsAre("Posto 10 - Alfa", Sucesso, Branco));
    const auto& linhas = registro.Linhas();
    EXPECT_TRUE(linhas[0].estilo == RegistroTexto::Aviso && linhas[0].destaque && linhas[0].quebraLinha);
    EXPECT_TRUE(linhas[1].estilo == RegistroTexto::Normal && !linhas[1].destaque && linhas[1].quebraLinha);
    EXPECT_THAT(notificador->Eventos(), ElementsAre(halvo::EventoExecucaoSemErro));
    ASSERT_EQ(host.dialogo.Mensagens().size(), 1u);
    EXPECT_EQ(host.dialogo.Mensagens()[0].texto, "Previsão limitada.");
    EXPECT_EQ(host.dialogo.Mensagens()[0].titulo, msgTituloInformacao);
    EXPECT_EQ(host.dialogo.Mensagens()[0].icone, halvo::Icone::Informacao);
}

TEST_F(Execucao, ACrashASilentSolverAndAVerdictOfOneEachFailAndTheNextStationStillRuns) {
    const QStringList nomes = {"A", "B", "C", "D", "E"};
    for (int i = 0; i < nomes.size(); ++i) {
        grava(PostoPronto((i + 1) * 10, nomes[i]));
    }
    instrucoes(10, {pPrevisao(100), "runstate 0"});
    instrucoes(20, {pPrevisao(200), "aborta"});
    instrucoes(30, {});
    instrucoes(40, {pPrevisao(400), "runstate 1"});
    instrucoes(50, {"runstate  0 "});
    // A former forecast of the silent station stays when it writes none.
    plataforma::Vetor<float> antiga(6);
    antiga[1] = 7;
    postoBD.setVazoesPrevistas(30, antiga, antiga, antiga);

    executa();

    EXPECT_EQ(execucoes().size(), 5);
    EXPECT_THAT(textosDoRegistro(),
                ElementsAre("Posto 10 - A", Sucesso, Branco, "Posto 20 - B", Falha, Branco, "Posto 30 - C",
                            Falha, Branco, "Posto 40 - D", Falha, Branco, "Posto 50 - E", Sucesso, Branco));
    EXPECT_THAT(notificador->Eventos(), ElementsAre(halvo::EventoExecucaoComErro));
    // A failed station is harvested all the same.
    EXPECT_FLOAT_EQ(previsao(20, 0).at(0), 210.5f);
    EXPECT_FLOAT_EQ(previsao(30, 0).at(0), 7);
    EXPECT_FLOAT_EQ(previsao(40, 1).at(5), 560.5f);
    EXPECT_TRUE(host.dialogo.Mensagens().empty());
}

TEST_F(Execucao, TheStationsEraseFlagsAndTheRemovalOfAnEmptyFolder) {
    for (const auto& [codigo, nome] : {std::pair{10, "Alfa"}, std::pair{20, "Beta"}}) {
        Posto posto = PostoPronto(codigo, nome);
        posto.Arquivos.ArquivoRelatorio = "REL.DAT.TXT";
        posto.Arquivos.ApagarArquivoDadosGerais = posto.Arquivos.ApagarArquivoVazoesSemanais = true;
        posto.Arquivos.ApagarArquivoRelatorio = posto.Arquivos.ApagarArquivoExcel = true;
        grava(posto);
    }
    instrucoes(10, {pPrevisao(1), "relatorio r", "planilha", "runstate 0"});
    // A solver that clears away its own control file leaves nothing behind.
    instrucoes(20, {"apaga Caso.dat"});

    executa();

    // The report's companion is named from its first dot.
    EXPECT_THAT(arquivosDe(10), ElementsAre("C10.prv", "Caso.dat", "RUNSTATE.DAT"));
    EXPECT_FALSE(QDir(pastaPosto(20)).exists());
    EXPECT_THAT(textosDoRegistro(),
                ElementsAre("Posto 10 - Alfa", Sucesso, Branco, "Posto 20 - Beta", Falha, Branco));
}

// The shared forecasts folder gives a station its former forecast before the run and takes every
// station's forecast back after it.
TEST_F(Execucao, TheSharedForecastFolderFeedsAStationWithoutForecastAndTakesEveryForecastBack) {
    const QString compartilhada = QDir::toNativeSeparators(host.caminho("previsoes"));
    QDir().mkpath(compartilhada);
    corvalin::OpcoesBD opcoesBD;
    opcoesBD.setCasoBD(bd);
    corvalin::Opcoes opcoes;
    opcoesBD.getOpcoes(opcoes);
    opcoes.setPastaPrevisoes(compartilhada);
    opcoesBD.setOpcoes(opcoes);
    const QString compartilhado = compartilhada + QDir::separator() + QStringLiteral("C%1.prv");
    Grava(compartilhado.arg(10), {"compartilhado 10"});
    Grava(compartilhado.arg(20), {"compartilhado 20"});
    for (const auto& [codigo, nome] : {std::pair{10, "Alfa"}, std::pair{20, "Beta"}}) {
        grava(PostoPronto(codigo, nome));
        instrucoes(codigo, {"runstate 0"});
    }
    QDir().mkpath(pastaPosto(20));
    Grava(arquivoPosto(20, "C20.prv"), {"local 20"});

    executa();

    EXPECT_THAT(execucoes(), ElementsAre("10 C10.arq dadosgerais=1 merro=0 previsao=1",
                                         "20 C20.arq dadosgerais=1 merro=0 previsao=1"));
    EXPECT_THAT(LinhasDe(arquivoPosto(10, "C10.prv")), ElementsAre("compartilhado 10"));
    EXPECT_THAT(LinhasDe(compartilhado.arg(20)), ElementsAre("local 20"));
}

TEST_F(Execucao, TheHostsRunTakesEveryStationTwice) {
    Posto alfa = PostoPronto(10, "Alfa");
    alfa.Arquivos.ApagarArquivoDadosGerais = true;
    grava(alfa);
    grava(PostoPronto(20, "Beta"));
    instrucoes(10, {"runstate 0"});
    instrucoes(20, {"runstate 0"});

    // The screen's opening loads the list, and the run loads it again behind.
    assistente().pCarregarPostos();
    assistente().ExecutarCorvalin();

    EXPECT_EQ(lista.Quantidade(), 4);
    // The first pass erases the general data file, so the second finds none.
    EXPECT_THAT(execucoes(), ElementsAre("10 C10.arq dadosgerais=1 merro=0 previsao=0",
                                         "20 C20.arq dadosgerais=1 merro=0 previsao=0",
                                         "10 C10.arq dadosgerais=0 merro=0 previsao=0",
                                         "20 C20.arq dadosgerais=1 merro=0 previsao=0"));
    EXPECT_EQ(textosDoRegistro().count(Sucesso), 4);
    EXPECT_THAT(notificador->Eventos(), ElementsAre(halvo::EventoExecucaoSemErro));
}

}  // namespace
}  // namespace teste
