#include "tests/solver/EstacaoTeste.h"

#include "solver/Texto.h"

#include <unistd.h>

#include <cmath>
#include <fstream>
#include <iterator>
#include <numbers>
#include <random>

namespace teste {

PastaTemporaria::PastaTemporaria() {
    static int contador = 0;
    caminho_ = std::filesystem::temp_directory_path() /
               ("corvalin_solver_" + std::to_string(::getpid()) + "_" + std::to_string(++contador));
    std::filesystem::remove_all(caminho_);
    std::filesystem::create_directories(caminho_);
}

PastaTemporaria::~PastaTemporaria() {
    std::error_code ignorado;
    std::filesystem::remove_all(caminho_, ignorado);
}

void escreve(const std::filesystem::path& arquivo, const std::vector<std::string>& linhas) {
    std::ofstream saida(arquivo, std::ios::binary);
    for (const auto& linha : linhas) {
        saida << solver::paraCp1252(linha) << "\r\n";
    }
}

std::string leBytes(const std::filesystem::path& arquivo) {
    std::ifstream entrada(arquivo, std::ios::binary);
    return {std::istreambuf_iterator<char>(entrada), std::istreambuf_iterator<char>()};
}

namespace {

std::string pDireita(const std::string& s, std::size_t largura) {
    return std::string(largura > s.size() ? largura - s.size() : 0, ' ') + s;
}

// The plug-in prints numbers without a leading zero (".5").
std::string pTexto(double v) {
    char texto[32];
    std::snprintf(texto, sizeof texto, "%.5g", v);
    std::string s = texto;
    return s.starts_with("0.") ? s.substr(1) : s;
}

}  // namespace

std::vector<std::string> arquivoVazoes(int codigo, const std::string& nome, int anoInicial,
                                       const std::vector<std::vector<double>>& anos) {
    std::vector<std::string> linhas = {
        pDireita(std::to_string(codigo), 8) + " " + nome + std::string(60 - nome.size(), ' '),
        pDireita(std::to_string(anoInicial), 5) +
            pDireita(std::to_string(anoInicial + static_cast<int>(anos.size()) - 1), 5) +
            pDireita("123.4", 8) + "."};
    for (std::size_t a = 0; a < anos.size(); ++a) {
        const std::string ano = std::to_string(anoInicial + static_cast<int>(a));
        std::string linha = " ";
        bool parou = false;
        for (std::size_t k = 0; k < anos[a].size() && !parou; ++k) {
            parou = anos[a][k] == 0.0;
            if (!parou) {
                linha += pDireita(pTexto(anos[a][k]), 6) + ". ";
            }
            if (parou || k % 9 == 8 || k + 1 == anos[a].size()) {
                if (linha.size() > 1) {
                    linhas.push_back(linha + std::string(80 - linha.size() - ano.size(), ' ') + ano);
                }
                linha = " ";
            }
        }
    }
    return linhas;
}

std::vector<std::string> arquivoDadosGerais(const DadosGeraisTeste& d) {
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

Processo processo(double phi1, double phi2, double desvioRuido, double nivel, double escala,
                  double escalaSazonal) {
    return {std::vector<double>(semanasDoAno, phi1),
            std::vector<double>(semanasDoAno, phi2),
            desvioRuido,
            nivel,
            escala,
            escalaSazonal};
}

std::vector<double> simula(const Processo& p, int anos, unsigned semente) {
    std::mt19937 gerador(semente);
    std::normal_distribution<double> normal;
    std::vector<double> vazoes;
    double z1 = 0.0;
    double z2 = 0.0;
    for (int t = 0; t < anos * semanasDoAno; ++t) {
        const auto s = static_cast<std::size_t>(t % semanasDoAno);
        const double z = p.phi1[s] * z1 + p.phi2[s] * z2 + p.desvioRuido * normal(gerador);
        z2 = z1;
        z1 = z;
        const double fase = 2.0 * std::numbers::pi * static_cast<double>(s) / semanasDoAno;
        vazoes.push_back(
            std::exp(p.nivel + std::sin(fase) + (p.escala + p.escalaSazonal * std::cos(fase)) * z));
    }
    return vazoes;
}

std::vector<std::vector<double>> anosDe(const std::vector<double>& vazoes) {
    std::vector<std::vector<double>> anos(vazoes.size() / semanasDoAno);
    for (std::size_t t = 0; t < anos.size() * semanasDoAno; ++t) {
        anos[t / semanasDoAno].push_back(std::round(vazoes[t] * 100.0) / 100.0);
    }
    return anos;
}

void montaEstacao(const std::filesystem::path& pasta, const DadosGeraisTeste& d,
                  const std::vector<std::vector<double>>& anos, int anoInicial) {
    std::vector<std::vector<double>> ate = anos;
    const auto ultimo = static_cast<std::size_t>(d.anoInicialPrev - anoInicial);
    ate.resize(ultimo + 1);
    ate.back().resize(static_cast<std::size_t>(d.semanaInicialPrev - 1));
    if (ate.back().empty()) {
        ate.pop_back();
    }
    escreve(pasta / "Caso.dat", {"1234.arq"});
    escreve(pasta / "1234.arq", arquivoDadosGerais(d));
    escreve(pasta / "1234.dat", arquivoVazoes(1234, "Posto Sintético", anoInicial, ate));
}

}  // namespace teste
