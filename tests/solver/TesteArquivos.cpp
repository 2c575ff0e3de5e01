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

template <typename F>
CodigoEstado pCodigoDaFalha(F&& f) {
    try {
        f();
    } catch (const solver::FalhaExecucao& falha) {
        return falha.getCodigo();
    }
    return CodigoEstado::sucesso;
}

TEST(Texto, LinhasComQualquerTerminadorEmWindows1252) {
    teste::PastaTemporaria pasta;
    const auto arquivo = pasta.caminho() / "a.txt";
    {
        std::ofstream saida(arquivo, std::ios::binary);
        saida << "S\xe3o Sim\xe3o\r\nb\rc\nd";
    }
    EXPECT_EQ(*solver::leLinhas(arquivo), (std::vector<std::string>{"São Simão", "b", "c", "d"}));
    solver::gravaLinhas(arquivo, {"Previsão", "€"});
    EXPECT_EQ(teste::leBytes(arquivo), "Previs\xe3o\r\n\x80\r\n");
    EXPECT_FALSE(std::filesystem::exists(pasta.caminho() / "a.txt.tmp"));
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
    teste::escreve(pasta.caminho() / "v.dat", teste::arquivoVazoes(1491, "Choptank", 1980, anos));

    const auto v = solver::leVazoesSemanais(pasta.caminho() / "v.dat", 52);
    EXPECT_EQ(std::tie(v.codigo, v.nome, v.anoInicial, v.anoFinal),
              std::make_tuple(1491, std::string("Choptank"), 1980, 1982));
    // What the file does not give reads as 0.
    std::vector<std::vector<double>> lidos = anos;
    std::fill(lidos[0].begin() + 19, lidos[0].end(), 0.0);
    lidos[2].resize(52);
    EXPECT_EQ(v.vazoes, lidos);

    auto linhas = teste::arquivoVazoes(1491, "Choptank", 1980, anos);
    linhas[3].replace(76, 4, "1975");
    teste::escreve(pasta.caminho() / "ruim.dat", linhas);
    EXPECT_EQ(pCodigoDaFalha([&] { solver::leVazoesSemanais(pasta.caminho() / "ruim.dat", 52); }),
              CodigoEstado::entradaInvalida);
}

TEST(DadosGerais, LinhasComoOPluginAsEscreve) {
    teste::PastaTemporaria pasta;
    teste::DadosGeraisTeste d;
    d.semanaInicialPrev = 40;
    d.anoInicialPrev = 2011;
    d.anoFinalHistorico = 2010;
    d.usaVazpast = true;
    auto linhas = teste::arquivoDadosGerais(d);
    teste::escreve(pasta.caminho() / "g.arq", linhas);
    const auto g = solver::leDadosGerais(pasta.caminho() / "g.arq");
    EXPECT_EQ(g.arquivoRelatorio, "1234.rel");
    EXPECT_TRUE(g.imprimeParametros);
    EXPECT_EQ(g.transformacao, 5);
    EXPECT_EQ(g.semanaInicialPrev, 40);
    EXPECT_EQ(g.anoInicialPrev, 2011);
    EXPECT_TRUE(g.usaVazpast);
    EXPECT_EQ(g.arquivoVazpast, "Vazpast.dat");
    EXPECT_EQ(g.anoFinalHistorico, 2010);
    EXPECT_EQ(g.flagLimite, 0);  // " 0 " with line 16 empty
    EXPECT_EQ(g.numSemanas, 52);

    // Without line 17 the years have 52 weeks; with "1" they have 53.
    linhas.pop_back();
    teste::escreve(pasta.caminho() / "g16.arq", linhas);
    EXPECT_EQ(solver::leDadosGerais(pasta.caminho() / "g16.arq").numSemanas, 52);
    linhas.push_back("1");
    linhas[8] = "53";
    teste::escreve(pasta.caminho() / "g53.arq", linhas);
    EXPECT_EQ(solver::leDadosGerais(pasta.caminho() / "g53.arq").numSemanas, 53);

    for (const auto& [linha, texto] : std::vector<std::pair<std::size_t, std::string>>{
             {3, "7"}, {8, "53"}, {7, "101"}, {10, "2"}, {14, "3"}}) {
        auto ruins = teste::arquivoDadosGerais(d);
        ruins[linha] = texto;
        teste::escreve(pasta.caminho() / "ruim.arq", ruins);
        EXPECT_EQ(pCodigoDaFalha([&] { solver::leDadosGerais(pasta.caminho() / "ruim.arq"); }),
                  CodigoEstado::entradaInvalida)
            << "linha " << linha + 1 << ": " << texto;
    }
    teste::escreve(pasta.caminho() / "curto.arq",
                   std::vector<std::string>(linhas.begin(), linhas.begin() + 15));
    EXPECT_EQ(pCodigoDaFalha([&] { solver::leDadosGerais(pasta.caminho() / "curto.arq"); }),
              CodigoEstado::entradaInvalida);
}

TEST(Vazpast, LinhaDoPostoNasColunasDoPlugin) {
    teste::PastaTemporaria pasta;
    // Code right-aligned in 5, padded to 20; values left-aligned in 10.
    teste::escreve(pasta.caminho() / "Vazpast.dat",
                   {"", "", "", " 1333               8.80      13.09     21.61     28.99     ",
                    " 1234               1.00      2.00      3.00      4.50      "});
    EXPECT_EQ(solver::leVazpast(pasta.caminho() / "Vazpast.dat", 1234),
              (std::array<double, 4>{1.0, 2.0, 3.0, 4.5}));
    EXPECT_EQ(solver::leVazpast(pasta.caminho() / "Vazpast.dat", 1333)[3], 28.99);
    EXPECT_EQ(pCodigoDaFalha([&] { solver::leVazpast(pasta.caminho() / "Vazpast.dat", 99); }),
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

    const std::vector<std::pair<std::size_t, std::string>> ruins = {{0, "5 "},           {1, "0 "},
                                                                    {2, "2   0.0 90.0"}, {3, "1   2.0100.0"},
                                                                    {4, "5   1.0 99.0"}, {5, "3  95.0  5.0"}};
    for (const auto& [linha, texto] : ruins) {
        auto r = linhas;
        r[linha] = texto;
        teste::escreve(pasta.caminho() / "r.lim", r);
        EXPECT_EQ(pCodigoDaFalha([&] { solver::leLimites(pasta.caminho() / "r.lim", 52); }),
                  CodigoEstado::limitesInvalidos)
            << texto;
    }
    linhas.pop_back();  // quarter 3 missing
    teste::escreve(pasta.caminho() / "falta.lim", linhas);
    EXPECT_EQ(pCodigoDaFalha([&] { solver::leLimites(pasta.caminho() / "falta.lim", 52); }),
              CodigoEstado::limitesInvalidos);
}

}  // namespace
