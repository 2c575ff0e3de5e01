// Whole runs in a station folder: the verdict in RUNSTATE.DAT, and the forecast file exactly as
// the plug-in reads it.

#include "tests/solver/EstacaoTeste.h"

#include "solver/Estatistica.h"
#include "solver/Execucao.h"
#include "solver/Texto.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>

namespace {

using solver::CodigoEstado;
using enum solver::CodigoEstado;
using teste::semanasDoAno;
namespace fs = std::filesystem;

constexpr int anoInicial = 1970;

class Execucao : public ::testing::Test {
protected:
    fs::path pasta() const { return pasta_.caminho(); }
    // Caso.dat, the general data and the weekly flows up to the week before the forecast.
    void monta() const {
        const auto fim = static_cast<std::size_t>((dados_.anoInicialPrev - anoInicial) * semanasDoAno +
                                                  dados_.semanaInicialPrev - 1);
        std::vector<std::vector<double>> anos;
        for (std::size_t t = 0; t < fim; t += semanasDoAno) {
            anos.emplace_back(vazoes_.begin() + t, vazoes_.begin() + std::min(t + semanasDoAno, fim));
        }
        teste::escreve(pasta() / "Caso.dat", {"1234.arq"});
        teste::escreve(pasta() / "1234.arq", teste::arquivoDadosGerais(dados_));
        teste::escreve(pasta() / "1234.dat", teste::arquivoVazoes(1234, "Posto Sintético", anoInicial, anos));
    }

    // Runs and checks the verdict: the code on line 1, a reason on line 2 when it failed, and
    // never a forecast file after a failure.
    void executaEsperando(CodigoEstado esperado) const {
        EXPECT_EQ(solver::executaEstacao(pasta()), esperado);
        const auto estado = solver::leLinhas(pasta() / "RUNSTATE.DAT");
        ASSERT_TRUE(estado);
        ASSERT_FALSE(estado->empty());
        EXPECT_EQ(estado->front(), std::to_string(static_cast<int>(esperado)));
        if (esperado != sucesso) {
            ASSERT_EQ(estado->size(), 2u);
            EXPECT_FALSE(estado->at(1).empty());
            EXPECT_FALSE(fs::exists(pasta() / "1234.prv"));
        }
    }

    teste::PastaTemporaria pasta_;
    // 31 years of a lognormal first-order autoregression, forecast from week 20 of 2000.
    teste::DadosGeraisTeste dados_{
        .semanaInicialPrev = 20, .anoInicialPrev = 2000, .anoFinalHistorico = 2000};
    std::vector<double> vazoes_ = teste::simula({0.7, 0.0, std::sqrt(1.0 - 0.7 * 0.7), 3.0, 0.5, 0.0}, 31, 3);
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
            const auto valor = solver::numeroExato(linha.substr(24 + 9 * j, 9));
            EXPECT_TRUE(valor) << linha;
            valores.back().push_back(valor.value_or(0.0));
        }
    }
    return valores;
}

TEST_F(Execucao, SucessoDeixaPrevisaoVereditoEAvisoSoQuandoMerecido) {
    vazoes_[5 * semanasDoAno + 10] = 0.0;  // the writer stops 1975 at week 11: 42 weeks to fill
    monta();
    executaEsperando(sucesso);
    EXPECT_EQ(teste::leBytes(pasta() / "RUNSTATE.DAT"), "0\r\n");

    const auto valores = pUltimasTresLinhas(teste::leBytes(pasta() / "1234.prv"));
    for (std::size_t j = 0; j < 6; ++j) {
        EXPECT_GT(valores[0][j], 0.0);
        EXPECT_LE(valores[1][j], valores[0][j]);
        EXPECT_GE(valores[2][j], valores[0][j]);
        EXPECT_LT(valores[1][j], valores[2][j]);
    }
    const auto aviso = solver::leLinhas(pasta() / "Aviso.txt");
    ASSERT_TRUE(aviso);
    EXPECT_EQ(aviso->front(), "A previsão do posto 1234 merece atenção: semanas sem vazão preenchidas.");

    // Again on the same folder, once nothing deserves a word: no Aviso.txt, and the same forecast
    // from one run to the next.
    vazoes_[5 * semanasDoAno + 10] = 1.0;
    monta();
    executaEsperando(sucesso);
    EXPECT_FALSE(fs::exists(pasta() / "Aviso.txt"));
    const std::string primeira = teste::leBytes(pasta() / "1234.prv");
    executaEsperando(sucesso);
    EXPECT_EQ(teste::leBytes(pasta() / "1234.prv"), primeira);
}

TEST_F(Execucao, LimitesDaPrevisaoSaoRespeitadosEAvisados) {
    // Narrow weekly limits, one band: the 45th and 55th percentiles of the week's past flows.
    dados_.flagLimite = 2;
    monta();
    std::vector<std::string> limites = {"1 ", "1 "};
    for (int s = 1; s <= 52; ++s) {
        limites.push_back(std::to_string(s) + (s < 10 ? " " : "") + " 45.0 55.0");
    }
    teste::escreve(pasta() / "1234.lim", limites);
    executaEsperando(sucesso);
    const auto previsao = pUltimasTresLinhas(teste::leBytes(pasta() / "1234.prv"))[0];
    for (std::size_t h = 0; h < previsao.size(); ++h) {
        std::vector<double> semana;
        for (std::size_t a = 0; a < 30; ++a) {
            semana.push_back(vazoes_[a * semanasDoAno + 19 + h]);
        }
        EXPECT_GE(previsao[h], solver::quantil(semana, 0.45) - 0.01) << h;
        EXPECT_LE(previsao[h], solver::quantil(semana, 0.55) + 0.01) << h;
    }
    const auto aviso = solver::leLinhas(pasta() / "Aviso.txt");
    ASSERT_TRUE(aviso);
    EXPECT_NE(aviso->front().find("previsão limitada"), std::string::npos);
}

// Each way a run fails leaves its code and a reason, and no forecast, not even the one a run
// before it left. Every case starts from a whole station and breaks it in one place.
TEST_F(Execucao, CadaFalhaDeixaSeuCodigoNoVeredito) {
    const auto dadosGerais = [this](std::size_t linha, const std::string& texto) {
        auto linhas = teste::arquivoDadosGerais(dados_);
        linhas[linha] = texto;
        teste::escreve(pasta() / "1234.arq", linhas);
    };
    const auto limitesRuins = [&] { teste::escreve(pasta() / "1234.lim", {"2 ", "5 "}); };
    const auto nada = [](auto&&...) {};
    const struct {
        const char* caso;
        std::function<void(teste::DadosGeraisTeste&)> dados;
        std::function<void()> arquivos;
        CodigoEstado codigo;
    } falhas[] = {
        {"sem vazões semanais", nada, [&] { fs::remove(pasta() / "1234.dat"); }, entradaInvalida},
        {"Vazpast pedido e ausente", [](auto& d) { d.usaVazpast = true; }, nada, entradaInvalida},
        {"nove anos de histórico", [](auto& d) { d.anoInicialPrev = d.anoFinalHistorico = anoInicial + 8; },
         nada, historicoCurto},
        // The week before the forecast lies beyond the end of the file.
        {"sem vazão anterior à previsão", nada, [&] { dadosGerais(8, "30"); }, historicoCurto},
        // The limits file's checks are the reader's; one shows the code reaching the verdict.
        {"agrupamento fora da faixa", [](auto& d) { d.flagLimite = 1; }, limitesRuins, limitesInvalidos},
    };
    const teste::DadosGeraisTeste padrao = dados_;
    for (const auto& falha : falhas) {
        SCOPED_TRACE(falha.caso);
        dados_ = padrao;
        falha.dados(dados_);
        monta();
        falha.arquivos();
        teste::escreve(pasta() / "1234.prv", {"de uma execução anterior"});
        executaEsperando(falha.codigo);
    }
    // General data that do not read, or no Caso.dat, leave the forecast file unnamed.
    dados_ = padrao;
    monta();
    dadosGerais(3, "x");
    executaEsperando(entradaInvalida);
    fs::remove(pasta() / "Caso.dat");
    executaEsperando(entradaInvalida);
}

}  // namespace
