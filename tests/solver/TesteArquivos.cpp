// The station files read as the plug-in writes them.

#include "tests/solver/EstacaoTeste.h"

#include "solver/ArquivosEstacao.h"
#include "solver/DadosGerais.h"
#include "solver/Falha.h"
#include "solver/Texto.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <tuple>

namespace {

using solver::CodigoEstado;
namespace fs = std::filesystem;

// Writes the lines and reads them back with le: the code of the failure, or sucesso.
template <typename Leitor>
CodigoEstado pLeitura(const teste::PastaTemporaria& pasta, const std::vector<std::string>& linhas,
                      Leitor le) {
    const fs::path arquivo = pasta.caminho() / "lido";
    teste::escreve(arquivo, linhas);
    try {
        le(arquivo);
    } catch (const solver::FalhaExecucao& falha) {
        return falha.getCodigo();
    }
    return CodigoEstado::sucesso;
}

TEST(Texto, LinhasComQualquerTerminadorEmWindows1252) {
    teste::PastaTemporaria pasta;
    const auto arquivo = pasta.caminho() / "a.txt";
    std::ofstream(arquivo, std::ios::binary) << "S\xe3o Sim\xe3o\r\nb\rc\nd";
    EXPECT_EQ(*solver::leLinhas(arquivo), (std::vector<std::string>{"São Simão", "b", "c", "d"}));
    solver::gravaLinhas(arquivo, {"Previsão", "€"});
    EXPECT_EQ(teste::leBytes(arquivo), "Previs\xe3o\r\n\x80\r\n");
    EXPECT_FALSE(fs::exists(pasta.caminho() / "a.txt.tmp"));
    EXPECT_FALSE(solver::leLinhas(pasta.caminho() / "nada.txt"));
    EXPECT_EQ(solver::numeroInicial(" 123.4."), 123.4);
    EXPECT_EQ(solver::numeroInicial(".5."), 0.5);
    EXPECT_EQ(solver::numeroExato("12,30"), 12.3);
    EXPECT_FALSE(solver::numeroExato("12.3x"));
    EXPECT_EQ(solver::inteiroExato(" 0 "), 0);
    EXPECT_FALSE(solver::inteiroExato("1.5"));
}

TEST(VazoesSemanais, AnoInterrompidoEUltimoAnoParcial) {
    teste::PastaTemporaria pasta;
    std::vector<std::vector<double>> anos(3, std::vector<double>(52));
    for (std::size_t a = 0; a < anos.size(); ++a) {
        for (std::size_t s = 0; s < 52; ++s) {
            anos[a][s] = 100.0 * static_cast<double>(a + 1) + static_cast<double>(s) + 0.5;
        }
    }
    anos[0][19] = 0.0;  // the writer stops 1980 at week 20
    anos[2].resize(30);
    auto linhas = teste::arquivoVazoes(1491, "Choptank", 1980, anos);
    teste::escreve(pasta.caminho() / "v.dat", linhas);

    const auto v = solver::leVazoesSemanais(pasta.caminho() / "v.dat", 52);
    EXPECT_EQ(std::tie(v.codigo, v.nome, v.anoInicial, v.anoFinal),
              std::make_tuple(1491, std::string("Choptank"), 1980, 1982));
    // What the file does not give reads as 0.
    std::fill(anos[0].begin() + 19, anos[0].end(), 0.0);
    anos[2].resize(52);
    EXPECT_EQ(v.vazoes, anos);

    linhas[3].replace(76, 4, "1975");
    EXPECT_EQ(pLeitura(pasta, linhas, [](const fs::path& a) { solver::leVazoesSemanais(a, 52); }),
              CodigoEstado::entradaInvalida);
}

TEST(DadosGerais, LinhasComoOPluginAsEscreve) {
    teste::PastaTemporaria pasta;
    const teste::DadosGeraisTeste d{
        .semanaInicialPrev = 40, .anoInicialPrev = 2011, .anoFinalHistorico = 2010, .usaVazpast = true};
    auto linhas = teste::arquivoDadosGerais(d);
    teste::escreve(pasta.caminho() / "g.arq", linhas);
    const auto g = solver::leDadosGerais(pasta.caminho() / "g.arq");
    // Line 15 " 0 " with line 16 empty: no limits.
    EXPECT_EQ(std::tie(g.arquivoRelatorio, g.imprimeParametros, g.transformacao, g.semanaInicialPrev,
                       g.anoInicialPrev, g.usaVazpast, g.arquivoVazpast, g.anoFinalHistorico, g.flagLimite,
                       g.numSemanas),
              std::make_tuple("1234.rel", true, 5, 40, 2011, true, "Vazpast.dat", 2010, 0, 52));

    // Without line 17 the years have 52 weeks; with "1" they have 53.
    const auto semanas = [&](const std::vector<std::string>& l) {
        teste::escreve(pasta.caminho() / "s.arq", l);
        return solver::leDadosGerais(pasta.caminho() / "s.arq").numSemanas;
    };
    linhas.pop_back();
    EXPECT_EQ(semanas(linhas), 52);
    linhas.push_back("1");
    linhas[8] = "53";
    EXPECT_EQ(semanas(linhas), 53);

    const auto le = [](const fs::path& a) { solver::leDadosGerais(a); };
    for (const auto& [linha, texto] : std::vector<std::pair<std::size_t, std::string>>{
             {3, "7"}, {8, "53"}, {7, "101"}, {10, "2"}, {14, "3"}}) {
        auto ruins = teste::arquivoDadosGerais(d);
        ruins[linha] = texto;
        EXPECT_EQ(pLeitura(pasta, ruins, le), CodigoEstado::entradaInvalida)
            << "linha " << linha + 1 << ": " << texto;
    }
    linhas.resize(15);
    EXPECT_EQ(pLeitura(pasta, linhas, le), CodigoEstado::entradaInvalida);
}

TEST(Vazpast, LinhaDoPostoNasColunasDoPlugin) {
    teste::PastaTemporaria pasta;
    // Code right-aligned in 5, padded to 20; values left-aligned in 10.
    const std::vector<std::string> linhas = {"", "", "",
                                             " 1333               8.80      13.09     21.61     28.99     ",
                                             " 1234               1.00      2.00      3.00      4.50      "};
    teste::escreve(pasta.caminho() / "Vazpast.dat", linhas);
    EXPECT_EQ(solver::leVazpast(pasta.caminho() / "Vazpast.dat", 1234),
              (std::array<double, 4>{1.0, 2.0, 3.0, 4.5}));
    EXPECT_EQ(solver::leVazpast(pasta.caminho() / "Vazpast.dat", 1333)[3], 28.99);
    EXPECT_EQ(pLeitura(pasta, linhas, [](const fs::path& a) { solver::leVazpast(a, 99); }),
              CodigoEstado::entradaInvalida);
}

TEST(Limites, PeriodosEPercentisDentroDaFaixa) {
    teste::PastaTemporaria pasta;
    std::vector<std::string> linhas = {"3 ",           "2 ",           "2  10.0 90.0",
                                       "1   2.0 98.0", "4   0.1 99.9", "3   5.0 95.0"};
    teste::escreve(pasta.caminho() / "l.lim", linhas);
    const auto l = solver::leLimites(pasta.caminho() / "l.lim", 52);
    EXPECT_EQ(l.agrupamento, solver::Agrupamento::trimestral);
    EXPECT_EQ(l.faixas, 2);
    EXPECT_EQ(l.inferior, (std::vector<double>{2.0, 10.0, 5.0, 0.1}));
    EXPECT_EQ(l.superior, (std::vector<double>{98.0, 90.0, 95.0, 99.9}));

    const auto le = [](const fs::path& a) { solver::leLimites(a, 52); };
    const std::vector<std::pair<std::size_t, std::string>> ruins = {{0, "5 "},           {1, "0 "},
                                                                    {2, "2   0.0 90.0"}, {3, "1   2.0100.0"},
                                                                    {4, "5   1.0 99.0"}, {5, "3  95.0  5.0"}};
    for (const auto& [linha, texto] : ruins) {
        auto r = linhas;
        r[linha] = texto;
        EXPECT_EQ(pLeitura(pasta, r, le), CodigoEstado::limitesInvalidos) << texto;
    }
    linhas.pop_back();  // quarter 3 missing
    EXPECT_EQ(pLeitura(pasta, linhas, le), CodigoEstado::limitesInvalidos);
}

}  // namespace
