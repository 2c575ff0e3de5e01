// Whole runs in a station folder: the verdict in RUNSTATE.DAT, and the forecast file exactly as
// the plug-in reads it.

#include "tests/solver/EstacaoTeste.h"

#include "solver/Execucao.h"
#include "solver/Texto.h"

#include <gtest/gtest.h>

namespace {

using solver::CodigoEstado;
namespace fs = std::filesystem;

constexpr int anoInicial = 1970;

class Execucao : public ::testing::Test {
protected:
    void SetUp() override {
        dados_.semanaInicialPrev = 20;
        dados_.anoInicialPrev = 2000;
        dados_.anoFinalHistorico = 2000;
        anos_ = teste::anosSinteticos(31, 52, 3);
    }

    fs::path pasta() const { return pasta_.caminho(); }
    void monta() const { teste::montaEstacao(pasta(), dados_, anos_, anoInicial); }

    // Runs and checks the verdict: the code on line 1, a reason on line 2 when it failed, and
    // never a forecast file after a failure.
    void executaEsperando(CodigoEstado esperado) const {
        EXPECT_EQ(solver::executaEstacao(pasta()), esperado);
        const auto estado = solver::leLinhas(pasta() / "RUNSTATE.DAT");
        ASSERT_TRUE(estado);
        ASSERT_FALSE(estado->empty());
        EXPECT_EQ(estado->front(), std::to_string(static_cast<int>(esperado)));
        if (esperado != CodigoEstado::sucesso) {
            ASSERT_EQ(estado->size(), 2u);
            EXPECT_FALSE(estado->at(1).empty());
            EXPECT_FALSE(fs::exists(pasta() / "1234.prv"));
        }
    }

    teste::PastaTemporaria pasta_;
    teste::DadosGeraisTeste dados_;
    std::vector<std::vector<double>> anos_;
};

// The last three lines: a label in 24 columns and six values of 9 columns, read as the plug-in
// reads them (Val of each trimmed field).
std::vector<std::vector<double>> pUltimasTresLinhas(const std::string& bytes) {
    EXPECT_TRUE(bytes.ends_with("\r\n"));
    EXPECT_FALSE(bytes.ends_with("\r\n\r\n"));
    std::vector<std::string> linhas;
    for (std::size_t inicio = 0; inicio < bytes.size();) {
        const std::size_t fim = bytes.find("\r\n", inicio);
        linhas.push_back(bytes.substr(inicio, fim - inicio));
        inicio = fim + 2;
    }
    EXPECT_GE(linhas.size(), 3u);
    const std::vector<std::string> rotulos = {"Previs\xe3o", "Limite Inferior", "Limite Superior"};
    std::vector<std::vector<double>> valores;
    for (std::size_t i = 0; i < 3; ++i) {
        const std::string& linha = linhas[linhas.size() - 3 + i];
        EXPECT_EQ(linha.size(), 24u + 6u * 9u) << linha;
        EXPECT_EQ(linha.substr(0, 24), rotulos[i] + std::string(24 - rotulos[i].size(), ' '));
        valores.emplace_back();
        for (std::size_t j = 0; j < 6; ++j) {
            const std::string campo = linha.substr(24 + 9 * j, 9);
            EXPECT_NE(campo.front(), '\0');
            const auto valor = solver::numeroExato(campo);
            EXPECT_TRUE(valor) << campo;
            valores.back().push_back(valor.value_or(0.0));
        }
    }
    return valores;
}

TEST_F(Execucao, SucessoDeixaPrevisaoRelatoriosEVeredito) {
    anos_[5][10] = 0.0;  // the writer stops 1975 at week 11: 42 weeks to fill
    monta();
    executaEsperando(CodigoEstado::sucesso);
    EXPECT_EQ(teste::leBytes(pasta() / "RUNSTATE.DAT"), "0\r\n");

    const auto valores = pUltimasTresLinhas(teste::leBytes(pasta() / "1234.prv"));
    for (std::size_t j = 0; j < 6; ++j) {
        EXPECT_GT(valores[0][j], 0.0);
        EXPECT_LE(valores[1][j], valores[0][j]);
        EXPECT_GE(valores[2][j], valores[0][j]);
        EXPECT_LT(valores[1][j], valores[2][j]);
    }
    const auto relatorio = *solver::leLinhas(pasta() / "1234.rel");
    const auto contem = [&](const std::string& texto) {
        return std::any_of(relatorio.begin(), relatorio.end(),
                           [&](const std::string& l) { return l.find(texto) != std::string::npos; });
    };
    EXPECT_TRUE(contem("Semanas sem vazão preenchidas: 42"));
    EXPECT_TRUE(contem("<- escolhido"));
    EXPECT_TRUE(contem("Parâmetros do modelo por semana"));
    EXPECT_EQ(solver::leLinhas(pasta() / "1234.bcx")->size(), 3u + 52u);

    const auto planilha = *solver::leLinhas(pasta() / "1234.exc");
    ASSERT_EQ(planilha.size(), 7u);
    for (const std::string& linha : planilha) {
        EXPECT_EQ(std::count(linha.begin(), linha.end(), '\t'), 9) << linha;
    }
    EXPECT_TRUE(planilha[1].starts_with("20\t2000\t"));

    const auto aviso = solver::leLinhas(pasta() / "Aviso.txt");
    ASSERT_TRUE(aviso);
    EXPECT_EQ(aviso->front(), "A previsão do posto 1234 merece atenção: semanas sem vazão preenchidas.");

    // Run again on the same folder: the same forecast, and no Aviso.txt once nothing deserves one.
    const std::string primeira = teste::leBytes(pasta() / "1234.prv");
    anos_[5][10] = 1.0;
    monta();
    executaEsperando(CodigoEstado::sucesso);
    EXPECT_FALSE(fs::exists(pasta() / "Aviso.txt"));
    EXPECT_NE(teste::leBytes(pasta() / "1234.prv"), "");
    EXPECT_EQ(solver::executaEstacao(pasta()), CodigoEstado::sucesso);
    const std::string segunda = teste::leBytes(pasta() / "1234.prv");
    EXPECT_EQ(teste::leBytes(pasta() / "1234.prv"), segunda);
    EXPECT_FALSE(primeira.empty());
}

TEST_F(Execucao, LimitesDaPrevisaoSaoRespeitadosEAvisados) {
    // Narrow weekly limits: the 45th to 55th percentiles bound the forecast.
    dados_.flagLimite = 2;
    monta();
    std::vector<std::string> limites = {"1 ", "1 "};
    for (int s = 1; s <= 52; ++s) {
        limites.push_back(std::to_string(s) + (s < 10 ? " " : "") + " 45.0 55.0");
    }
    teste::escreve(pasta() / "1234.lim", limites);
    executaEsperando(CodigoEstado::sucesso);
    const auto aviso = solver::leLinhas(pasta() / "Aviso.txt");
    ASSERT_TRUE(aviso);
    EXPECT_NE(aviso->front().find("previsão limitada"), std::string::npos);
    const auto relatorio = *solver::leLinhas(pasta() / "1234.rel");
    EXPECT_TRUE(std::any_of(relatorio.begin(), relatorio.end(), [](const std::string& l) {
        return l.starts_with("Semanas limitadas pelos limites: ");
    }));
}

TEST_F(Execucao, FalhasDeEntrada) {
    executaEsperando(CodigoEstado::entradaInvalida);  // no Caso.dat

    monta();
    fs::remove(pasta() / "1234.dat");
    executaEsperando(CodigoEstado::entradaInvalida);

    monta();
    auto dados = teste::arquivoDadosGerais(dados_);
    dados[3] = "x";
    teste::escreve(pasta() / "1234.arq", dados);
    executaEsperando(CodigoEstado::entradaInvalida);

    dados_.usaVazpast = true;
    monta();
    executaEsperando(CodigoEstado::entradaInvalida);  // Vazpast named but missing
}

TEST_F(Execucao, FalhaNaoDeixaPrevisaoAntiga) {
    monta();
    executaEsperando(CodigoEstado::sucesso);
    ASSERT_TRUE(fs::exists(pasta() / "1234.prv"));
    fs::remove(pasta() / "1234.dat");
    executaEsperando(CodigoEstado::entradaInvalida);
}

TEST_F(Execucao, HistoricoCurto) {
    dados_.anoInicialPrev = dados_.anoFinalHistorico = anoInicial + 8;
    monta();
    executaEsperando(CodigoEstado::historicoCurto);

    // A forecast week beyond the end of the file has no flow to start from.
    dados_.anoInicialPrev = dados_.anoFinalHistorico = 2000;
    monta();
    dados_.semanaInicialPrev = 30;
    teste::escreve(pasta() / "1234.arq", teste::arquivoDadosGerais(dados_));
    executaEsperando(CodigoEstado::historicoCurto);
}

TEST_F(Execucao, LimitesForaDaFaixa) {
    dados_.flagLimite = 1;
    monta();
    teste::escreve(pasta() / "1234.lim", {"2 ", "5 "});
    executaEsperando(CodigoEstado::limitesInvalidos);
    std::vector<std::string> mensais = {"2 ", "2 "};
    for (int m = 1; m <= 12; ++m) {
        mensais.push_back(std::to_string(m) + (m < 10 ? " " : "") + (m == 7 ? "  0.0 99.0" : "  1.0 99.0"));
    }
    teste::escreve(pasta() / "1234.lim", mensais);
    executaEsperando(CodigoEstado::limitesInvalidos);
}

// The demo stations of samples/ run as they stand.
TEST(Amostras, CadaPostoExecutaComSucesso) {
    const fs::path amostras = CORVALIN_AMOSTRAS;
    int postos = 0;
    for (const auto& entrada : fs::directory_iterator(amostras)) {
        if (entrada.path().extension() != ".arq") {
            continue;
        }
        ++postos;
        teste::PastaTemporaria pasta;
        for (const auto& arquivo : fs::directory_iterator(amostras)) {
            fs::copy_file(arquivo.path(), pasta.caminho() / arquivo.path().filename());
        }
        teste::escreve(pasta.caminho() / "Caso.dat", {entrada.path().filename().string()});
        EXPECT_EQ(solver::executaEstacao(pasta.caminho()), CodigoEstado::sucesso) << entrada.path();
        const auto estado = solver::leLinhas(pasta.caminho() / "RUNSTATE.DAT");
        EXPECT_EQ(estado->front(), "0") << (estado->size() > 1 ? estado->at(1) : "");
    }
    EXPECT_EQ(postos, 4);
}

}  // namespace
