// Whole runs in a station folder: the verdict in RUNSTATE.DAT, and the forecast file exactly as
// the plug-in reads it.

#include "tests/solver/EstacaoTeste.h"

#include "solver/Execucao.h"
#include "solver/Texto.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>

namespace {

using solver::CodigoEstado;
namespace fs = std::filesystem;

constexpr int anoInicial = 1970;

class Execucao : public ::testing::Test {
protected:
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

    // Whether a line of the report holds the text.
    bool relatorioContem(const std::string& texto) const {
        const auto linhas = *solver::leLinhas(pasta() / "1234.rel");
        return std::any_of(linhas.begin(), linhas.end(),
                           [&](const std::string& l) { return l.find(texto) != std::string::npos; });
    }

    teste::PastaTemporaria pasta_;
    // 31 years of a lognormal first-order autoregression, forecast from week 20 of 2000.
    teste::DadosGeraisTeste dados_{
        .semanaInicialPrev = 20, .anoInicialPrev = 2000, .anoFinalHistorico = 2000};
    std::vector<std::vector<double>> anos_ = teste::anosDe(
        teste::simula(teste::processo(0.7, 0.0, std::sqrt(1.0 - 0.7 * 0.7), 3.0, 0.5, 0.0), 31, 3));
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
    for (const char* texto :
         {"Semanas sem vazão preenchidas: 42", "<- escolhido", "Parâmetros do modelo por semana"}) {
        EXPECT_TRUE(relatorioContem(texto)) << texto;
    }
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

    // Again on the same folder, once nothing deserves a word: no Aviso.txt, and the same forecast
    // from one run to the next.
    anos_[5][10] = 1.0;
    monta();
    executaEsperando(CodigoEstado::sucesso);
    EXPECT_FALSE(fs::exists(pasta() / "Aviso.txt"));
    const std::string primeira = teste::leBytes(pasta() / "1234.prv");
    executaEsperando(CodigoEstado::sucesso);
    EXPECT_EQ(teste::leBytes(pasta() / "1234.prv"), primeira);
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
    EXPECT_TRUE(relatorioContem("Semanas limitadas pelos limites: "));
}

// Each way a run fails leaves its code and a reason, and no forecast, not even the one a run
// before it left. Every case starts from a whole station and breaks it in one place.
TEST_F(Execucao, CadaFalhaDeixaSeuCodigoNoVeredito) {
    const auto dadosGerais = [this](std::size_t linha, const std::string& texto) {
        auto linhas = teste::arquivoDadosGerais(dados_);
        linhas[linha] = texto;
        teste::escreve(pasta() / "1234.arq", linhas);
    };
    const struct {
        const char* caso;
        std::function<void()> prepara;
        CodigoEstado codigo;
    } falhas[] = {
        {"sem vazões semanais", [&] { fs::remove(pasta() / "1234.dat"); }, CodigoEstado::entradaInvalida},
        {"Vazpast pedido e ausente",
         [&] {
             dados_.usaVazpast = true;
             monta();
         },
         CodigoEstado::entradaInvalida},
        {"nove anos de histórico",
         [&] {
             dados_.anoInicialPrev = dados_.anoFinalHistorico = anoInicial + 8;
             monta();
         },
         CodigoEstado::historicoCurto},
        // The week before the forecast lies beyond the end of the file.
        {"sem vazão anterior à previsão", [&] { dadosGerais(8, "30"); }, CodigoEstado::historicoCurto},
        // The limits file's checks are the reader's; one shows the code reaching the verdict.
        {"agrupamento fora da faixa",
         [&] {
             dados_.flagLimite = 1;
             monta();
             teste::escreve(pasta() / "1234.lim", {"2 ", "5 "});
         },
         CodigoEstado::limitesInvalidos},
    };
    const teste::DadosGeraisTeste padrao = dados_;
    for (const auto& falha : falhas) {
        SCOPED_TRACE(falha.caso);
        dados_ = padrao;
        monta();
        falha.prepara();
        teste::escreve(pasta() / "1234.prv", {"de uma execução anterior"});
        executaEsperando(falha.codigo);
    }
    // General data that do not read, or no Caso.dat, leave the forecast file unnamed.
    dados_ = padrao;
    monta();
    dadosGerais(3, "x");
    executaEsperando(CodigoEstado::entradaInvalida);
    fs::remove(pasta() / "Caso.dat");
    executaEsperando(CodigoEstado::entradaInvalida);
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
