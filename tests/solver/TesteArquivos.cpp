// The station files read as the plug-in writes them.

#include "tests/solver/EstacaoTeste.h"

#include "solver/ArquivosEstacao.h"
#include "solver/DadosGerais.h"
#include "solver/Falha.h"
#include "solver/SerieSemanal.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

namespace {

using solver::CodigoEstado;
using Trocas = std::vector<std::pair<std::size_t, std::string>>;

// The code of the failure the call raises, or sucesso.
template <typename Funcao>
CodigoEstado pCodigo(Funcao f) {
    try {
        f();
    } catch (const solver::FalhaExecucao& falha) {
        return falha.getCodigo();
    }
    return CodigoEstado::sucesso;
}

// The lines written to a file of the folder, for a reader.
std::filesystem::path pArquivo(const teste::PastaTemporaria& pasta, const std::vector<std::string>& linhas) {
    teste::escreve(pasta.caminho() / "lido", linhas);
    return pasta.caminho() / "lido";
}

TEST(VazoesSemanais, AnoInterrompidoEUltimoAnoParcial) {
    teste::PastaTemporaria pasta;
    std::vector<std::vector<double>> anos(3, std::vector<double>(52));
    for (std::size_t a = 0; a < anos.size(); ++a) {
        for (std::size_t s = 0; s < 52; ++s) {
            anos[a][s] = 100.0 * static_cast<double>(a + 1) + static_cast<double>(s) + 0.5;
        }
    }
    anos[1][0] = 0.25;  // written ".25"
    anos[0][19] = 0.0;  // the writer stops 1980 at week 20
    anos[2].resize(30);
    auto linhas = teste::arquivoVazoes(1491, "São Simão", 1980, anos);
    const auto v = solver::leVazoesSemanais(pArquivo(pasta, linhas), 52);
    EXPECT_EQ(std::tie(v.codigo, v.nome, v.anoInicial, v.anoFinal),
              std::make_tuple(1491, std::string("São Simão"), 1980, 1982));
    // What the file does not give reads as 0.
    std::fill(anos[0].begin() + 19, anos[0].end(), 0.0);
    anos[2].resize(52);
    EXPECT_EQ(v.vazoes, anos);

    linhas[3].replace(76, 4, "1975");
    EXPECT_EQ(pCodigo([&] { solver::leVazoesSemanais(pArquivo(pasta, linhas), 52); }),
              CodigoEstado::entradaInvalida);
}

TEST(DadosGerais, AsDezesseteLinhasComoOPluginAsEscreve) {
    teste::PastaTemporaria pasta;
    const auto linhas = teste::arquivoDadosGerais(
        {.semanaInicialPrev = 40, .anoInicialPrev = 2011, .anoFinalHistorico = 2010, .usaVazpast = true});
    const auto g = solver::leDadosGerais(pArquivo(pasta, linhas));
    // Line 15 " 0 " with line 16 empty: no limits.
    EXPECT_EQ(std::tie(g.arquivoRelatorio, g.imprimeParametros, g.transformacao, g.semanaInicialPrev,
                       g.anoInicialPrev, g.usaVazpast, g.arquivoVazpast, g.anoFinalHistorico, g.flagLimite,
                       g.numSemanas),
              std::make_tuple("1234.rel", true, 5, 40, 2011, true, "Vazpast.dat", 2010, 0, 52));

    // Without line 17 the years have 52 weeks; with "1" they have 53.
    auto semLinha17 = linhas;
    semLinha17.pop_back();
    EXPECT_EQ(solver::leDadosGerais(pArquivo(pasta, semLinha17)).numSemanas, 52);
    auto com53 = linhas;
    com53[8] = "53";
    com53[16] = "1";
    EXPECT_EQ(solver::leDadosGerais(pArquivo(pasta, com53)).numSemanas, 53);

    for (const auto& [linha, texto] : Trocas{{3, "7"}, {8, "53"}, {7, "101"}, {10, "2"}, {14, "3"}}) {
        auto ruins = linhas;
        ruins[linha] = texto;
        EXPECT_EQ(pCodigo([&] { solver::leDadosGerais(pArquivo(pasta, ruins)); }),
                  CodigoEstado::entradaInvalida)
            << linha + 1 << ": " << texto;
    }
    semLinha17.resize(15);
    EXPECT_EQ(pCodigo([&] { solver::leDadosGerais(pArquivo(pasta, semLinha17)); }),
              CodigoEstado::entradaInvalida);
}

// The Vazpast line of the station in the plug-in's columns, on the last weeks of the series.
TEST(Vazpast, LinhaDoPostoNasUltimasSemanasDaSerie) {
    teste::PastaTemporaria pasta;
    const auto arquivo = pasta.caminho() / "Vazpast.dat";
    // Code right-aligned in 5, padded to 20; values left-aligned in 10, the nearest week first.
    teste::escreve(arquivo, {"", "", "", " 1333               8.80      13.09     21.61     28.99     ",
                             " 1234               60.00     50.00     40.00     30.00     "});
    EXPECT_EQ(solver::leVazpast(arquivo, 1333)[3], 28.99);
    EXPECT_EQ(pCodigo([&] { solver::leVazpast(arquivo, 99); }), CodigoEstado::entradaInvalida);
    const auto vazpast = solver::leVazpast(arquivo, 1234);

    // Four-week years; the forecast from week 3 of 1991 ends the series at week 2.
    solver::VazoesArquivo vazoes;
    vazoes.anoInicial = 1990;
    vazoes.anoFinal = 1991;
    vazoes.vazoes = {{1, 2, 3, 4}, {5, 6, 7, 0}};
    EXPECT_EQ(solver::montaSerie(vazoes, 4, 6, std::nullopt).getVazoes(),
              (std::vector<double>{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(solver::montaSerie(vazoes, 4, 7, vazpast).getVazoes(),
              (std::vector<double>{1, 2, 3, 30, 40, 50, 60}));
    // Week 4 of 1991 is missing: the Vazpast gives a forecast from week 1 of 1992 its starting
    // flow (without it the run ends short of history).
    EXPECT_EQ(solver::montaSerie(vazoes, 4, 8, vazpast).vazao(7), 60.0);
}

TEST(Limites, PeriodosEPercentisDentroDaFaixa) {
    teste::PastaTemporaria pasta;
    std::vector<std::string> linhas = {"3 ",           "2 ",           "2  10.0 90.0",
                                       "1   2.0 98.0", "4   0.1 99.9", "3   5.0 95.0"};
    const auto l = solver::leLimites(pArquivo(pasta, linhas), 52);
    EXPECT_EQ(std::tie(l.agrupamento, l.faixas), std::make_tuple(solver::Agrupamento::trimestral, 2));
    EXPECT_EQ(l.inferior, (std::vector<double>{2.0, 10.0, 5.0, 0.1}));
    EXPECT_EQ(l.superior, (std::vector<double>{98.0, 90.0, 95.0, 99.9}));

    const Trocas trocas = {{0, "5 "},           {1, "0 "},           {2, "2   0.0 90.0"},
                           {3, "1   2.0100.0"}, {4, "5   1.0 99.0"}, {5, "3  95.0  5.0"}};
    for (const auto& [linha, texto] : trocas) {
        auto ruins = linhas;
        ruins[linha] = texto;
        EXPECT_EQ(pCodigo([&] { solver::leLimites(pArquivo(pasta, ruins), 52); }),
                  CodigoEstado::limitesInvalidos)
            << texto;
    }
    linhas.pop_back();  // quarter 3 missing
    EXPECT_EQ(pCodigo([&] { solver::leLimites(pArquivo(pasta, linhas), 52); }),
              CodigoEstado::limitesInvalidos);
}

}  // namespace
