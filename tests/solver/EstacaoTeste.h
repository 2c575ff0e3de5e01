#pragma once

// Station folders for the tests: a temporary folder, the station files laid out as the plug-in
// writes them, and synthetic flows of known processes.

#include "solver/Texto.h"

#include <stdlib.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <numbers>
#include <random>
#include <string>
#include <vector>

namespace teste {

class PastaTemporaria {
public:
    PastaTemporaria() {
        std::string modelo = (std::filesystem::temp_directory_path() / "corvalin_solver_XXXXXX").string();
        caminho_ = ::mkdtemp(modelo.data());
    }
    ~PastaTemporaria() {
        std::error_code ignorado;
        std::filesystem::remove_all(caminho_, ignorado);
    }
    PastaTemporaria(const PastaTemporaria&) = delete;
    PastaTemporaria& operator=(const PastaTemporaria&) = delete;
    const std::filesystem::path& caminho() const { return caminho_; }

private:
    std::filesystem::path caminho_;
};

// Writes the lines in Windows-1252, each ended by CR LF.
inline void escreve(const std::filesystem::path& arquivo, const std::vector<std::string>& linhas) {
    std::ofstream saida(arquivo, std::ios::binary);
    for (const auto& linha : linhas) {
        saida << solver::paraCp1252(linha) << "\r\n";
    }
}

inline std::string leBytes(const std::filesystem::path& arquivo) {
    std::ifstream entrada(arquivo, std::ios::binary);
    return {std::istreambuf_iterator<char>(entrada), std::istreambuf_iterator<char>()};
}

inline std::string aDireita(const std::string& s, std::size_t largura) {
    return std::string(largura > s.size() ? largura - s.size() : 0, ' ') + s;
}

// Weekly flows file: code and name, the years, then nine flows a line, each right-aligned in six
// columns without a leading zero (".5") and followed by ". ", with the year in columns 77 to 80.
// A year stops at its first zero.
inline std::vector<std::string> arquivoVazoes(int codigo, const std::string& nome, int anoInicial,
                                              const std::vector<std::vector<double>>& anos) {
    const int anoFinal = anoInicial + static_cast<int>(anos.size()) - 1;
    std::vector<std::string> linhas = {
        aDireita(std::to_string(codigo), 8) + " " + nome,
        aDireita(std::to_string(anoInicial), 5) + aDireita(std::to_string(anoFinal), 5) + "   123.4."};
    for (std::size_t a = 0; a < anos.size(); ++a) {
        const std::string ano = std::to_string(anoInicial + static_cast<int>(a));
        const auto fim =
            static_cast<std::size_t>(std::find(anos[a].begin(), anos[a].end(), 0.0) - anos[a].begin());
        for (std::size_t k = 0; k < fim; k += 9) {
            std::string linha = " ";
            for (std::size_t j = k; j < std::min(k + 9, fim); ++j) {
                char texto[32];
                std::snprintf(texto, sizeof texto, "%.5g", anos[a][j]);
                linha += aDireita(texto[0] == '0' ? texto + 1 : texto, 6) + ". ";
            }
            linhas.push_back(linha + std::string(80 - ano.size() - linha.size(), ' ') + ano);
        }
    }
    return linhas;
}

// General data of station 1234: its files named "1234.*", transformation code 5, 95%.
struct DadosGeraisTeste {
    int semanaInicialPrev = 1;
    int anoInicialPrev = 0;
    int anoFinalHistorico = 0;
    bool usaVazpast = false;
    int flagLimite = 0;
};

inline std::vector<std::string> arquivoDadosGerais(const DadosGeraisTeste& d) {
    const bool limites = d.flagLimite != 0;
    return {"1234.rel",
            "S",
            "1234.dat",
            "5",
            "1",
            "1234.prv",
            "1234.exc",
            "95",
            std::to_string(d.semanaInicialPrev),
            std::to_string(d.anoInicialPrev),
            d.usaVazpast ? "0" : "1",
            d.usaVazpast ? "Vazpast.dat" : "",
            std::to_string(d.anoFinalHistorico),
            "1234",
            limites ? std::to_string(d.flagLimite) : " 0 ",
            limites ? "1234.lim" : "",
            "0"};
}

// 52-week years whose log flows are a seasonal mean, nivel + sin, plus a periodic autoregression
// of order 2 (phi1 + phi1Sazonal * sin on the first lag) scaled by escala + escalaSazonal * cos:
// skewed, as floods make them.
struct Processo {
    double phi1;
    double phi2;
    double desvioRuido;
    double nivel = 4.0;
    double escala = 0.4;
    double escalaSazonal = 0.1;
    double phi1Sazonal = 0.0;
};
inline constexpr int semanasDoAno = 52;

inline double fase(std::size_t semana) {
    return 2.0 * std::numbers::pi * static_cast<double>(semana) / semanasDoAno;
}

// The flows of anos years, from a fixed seed.
inline std::vector<double> simula(const Processo& p, int anos, unsigned semente) {
    std::mt19937 gerador(semente);
    std::normal_distribution<double> normal;
    std::vector<double> vazoes;
    double z1 = 0.0;
    double z2 = 0.0;
    for (int t = 0; t < anos * semanasDoAno; ++t) {
        const double f = fase(static_cast<std::size_t>(t % semanasDoAno));
        const double z =
            (p.phi1 + p.phi1Sazonal * std::sin(f)) * z1 + p.phi2 * z2 + p.desvioRuido * normal(gerador);
        z2 = z1;
        z1 = z;
        vazoes.push_back(std::exp(p.nivel + std::sin(f) + (p.escala + p.escalaSazonal * std::cos(f)) * z));
    }
    return vazoes;
}

}  // namespace teste
