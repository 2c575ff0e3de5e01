#include "bench/skill/Amostras.h"

#include "solver/Formato.h"
#include "solver/Texto.h"

#include <cmath>

namespace skill {

namespace {

constexpr int maximoAlgarismos = 5;
constexpr std::size_t larguraVazao = 6;

std::string pNomeArquivo(int codigo, const char* extensao) {
    return std::to_string(codigo) + "." + extensao;
}

// The weeks of the station: all complete years, then the last year up to the week before the
// forecast.
std::vector<std::vector<double>> pAnosDaEstacao(const EstacaoAmostra& e, const RioSemanal& rio) {
    std::vector<std::vector<double>> anos = rio.anos;
    if (anos.back().size() + 1 < static_cast<std::size_t>(e.semanaInicialPrev)) {
        throw std::runtime_error("o rio termina antes da semana de previsão de " + e.nome);
    }
    anos.back().resize(static_cast<std::size_t>(e.semanaInicialPrev - 1));
    return anos;
}

void pGeraVazoes(const EstacaoAmostra& e, const std::vector<std::vector<double>>& anos, int anoInicial,
                 const std::filesystem::path& pasta) {
    const int anoFinal = anoInicial + static_cast<int>(anos.size()) - 1;
    // Code right-aligned in 8, a blank, the name in 60.
    std::vector<std::string> linhas = {
        solver::aDireita(std::to_string(e.codigo), 8) + " " + solver::aEsquerda(e.nome, 60),
        solver::aDireita(std::to_string(anoInicial), 5) + solver::aDireita(std::to_string(anoFinal), 5) +
            solver::aDireita(e.area, 8) + "."};
    constexpr std::size_t porLinha = 9;
    for (std::size_t a = 0; a < anos.size(); ++a) {
        const std::string ano = std::to_string(anoInicial + static_cast<int>(a));
        for (std::size_t inicio = 0; inicio < anos[a].size(); inicio += porLinha) {
            std::string linha = " ";
            for (std::size_t k = inicio; k < std::min(inicio + porLinha, anos[a].size()); ++k) {
                linha += solver::aDireita(textoVazao(anos[a][k]), larguraVazao) + ". ";
            }
            linhas.push_back(linha + std::string(80 - linha.size() - ano.size(), ' ') + ano);
        }
    }
    solver::gravaLinhas(pasta / pNomeArquivo(e.codigo, "dat"), linhas);
}

void pGeraDadosGerais(const EstacaoAmostra& e, int anoFinal, const std::filesystem::path& pasta) {
    const std::string ano = std::to_string(anoFinal);
    // A station without limits reads back its switch line as the limits file's name, so "0" on
    // both lines is what a round trip through the plug-in leaves.
    solver::gravaLinhas(
        pasta / pNomeArquivo(e.codigo, "arq"),
        {pNomeArquivo(e.codigo, "rel"), e.imprimeParametros ? "S" : "N", pNomeArquivo(e.codigo, "dat"),
         std::to_string(e.transformacao), "1", pNomeArquivo(e.codigo, "prv"), pNomeArquivo(e.codigo, "exc"),
         "95", std::to_string(e.semanaInicialPrev), ano, e.usaVazpast ? "0" : "1",
         e.usaVazpast ? "Vazpast.dat" : "", ano, std::to_string(e.codigo), e.usaLimites ? "1" : "0",
         e.usaLimites ? pNomeArquivo(e.codigo, "lim") : "0", "0"});
}

// Vazpast: three empty lines, the code right-aligned in 5 and padded to 20, then the four past
// flows (nearest first) with two decimals, each left-aligned in 10.
void pGeraVazpast(const EstacaoAmostra& e, const std::vector<double>& ultimoAno,
                  const std::filesystem::path& pasta) {
    std::string linha = solver::aEsquerda(solver::aDireita(std::to_string(e.codigo), 5), 20);
    for (std::size_t k = 1; k <= 4; ++k) {
        linha += solver::aEsquerda(solver::numero("%.2f", ultimoAno[ultimoAno.size() - k]), 10);
    }
    solver::gravaLinhas(pasta / "Vazpast.dat", {"", "", "", linha});
}

// Limits: monthly grouping, two magnitude bands, the 2nd and 98th percentiles each month.
void pGeraLimites(const EstacaoAmostra& e, const std::filesystem::path& pasta) {
    std::vector<std::string> linhas = {"2 ", "2 "};
    for (int mes = 1; mes <= 12; ++mes) {
        linhas.push_back(solver::aEsquerda(std::to_string(mes), 2) + " " + solver::numero("%4.1f", 2.0) +
                         " " + solver::numero("%4.1f", 98.0));
    }
    solver::gravaLinhas(pasta / pNomeArquivo(e.codigo, "lim"), linhas);
}

}  // namespace

const std::vector<EstacaoAmostra>& estacoesAmostra() {
    static const std::vector<EstacaoAmostra> estacoes = {
        {1491, "choptank_greensboro.csv", "Choptank em Greensboro", "292.7", 5, true, 40, false, false},
        {8005, "fraser_hope.csv", "Fraser em Hope", "217000", 5, false, 20, false, false},
        {1333, "minam_camels.csv", "Minam em Minam", "618.9", 1, true, 31, true, false},
        {5054, "red_fargo.csv", "Red em Fargo", "17600", 2, false, 40, false, true},
    };
    return estacoes;
}

std::string textoVazao(double vazao) {
    for (int algarismos = maximoAlgarismos; algarismos >= 1; --algarismos) {
        const int casas = std::max(algarismos - 1 - static_cast<int>(std::floor(std::log10(vazao))), 0);
        std::string texto = solver::numero(("%." + std::to_string(casas) + "f").c_str(), vazao);
        if (texto.find('.') != std::string::npos) {
            texto.erase(texto.find_last_not_of('0') + 1);
            if (texto.back() == '.') {
                texto.pop_back();
            }
        }
        if (texto.starts_with("0.")) {
            texto.erase(0, 1);
        }
        if (texto.size() <= larguraVazao && texto != "0") {
            return texto;
        }
    }
    throw std::runtime_error("vazão sem texto de seis colunas");
}

void geraEstacao(const EstacaoAmostra& e, const RioSemanal& rio, const std::filesystem::path& pasta) {
    const auto anos = pAnosDaEstacao(e, rio);
    pGeraVazoes(e, anos, rio.anoInicial, pasta);
    pGeraDadosGerais(e, rio.anoInicial + static_cast<int>(anos.size()) - 1, pasta);
    if (e.usaVazpast) {
        pGeraVazpast(e, anos.back(), pasta);
    }
    if (e.usaLimites) {
        pGeraLimites(e, pasta);
    }
}

void geraAmostras(const std::filesystem::path& pastaRios, const std::filesystem::path& pasta) {
    std::filesystem::create_directories(pasta);
    for (const EstacaoAmostra& e : estacoesAmostra()) {
        geraEstacao(e, leRio(pastaRios / e.arquivoRio), pasta);
    }
}

}  // namespace skill
