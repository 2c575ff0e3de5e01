#include "tests/solver/EstacaoTeste.h"

#include "solver/Texto.h"

#include <unistd.h>

#include <cmath>
#include <fstream>
#include <iterator>
#include <numbers>

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
            d.imprime ? "S" : "N",
            "1234.dat",
            std::to_string(d.transformacao),
            "1",
            "1234.prv",
            "1234.exc",
            std::to_string(d.confianca),
            std::to_string(d.semanaInicialPrev),
            std::to_string(d.anoInicialPrev),
            d.usaVazpast ? "0" : "1",
            d.usaVazpast ? "Vazpast.dat" : "",
            std::to_string(d.anoFinalHistorico),
            std::to_string(d.codigo),
            limites ? std::to_string(d.flagLimite) : " 0 ",
            limites ? "1234.lim" : "",
            "0"};
}

std::vector<std::vector<double>> anosSinteticos(int anos, int numSemanas, unsigned semente) {
    std::mt19937 gerador(semente);
    std::normal_distribution<double> normal;
    constexpr double phi = 0.7;
    double z = 0.0;
    std::vector<std::vector<double>> resultado(static_cast<std::size_t>(anos));
    for (auto& ano : resultado) {
        for (int s = 0; s < numSemanas; ++s) {
            z = phi * z + std::sqrt(1.0 - phi * phi) * normal(gerador);
            const double media = 3.0 + std::sin(2.0 * std::numbers::pi * s / numSemanas);
            ano.push_back(std::round(std::exp(media + 0.5 * z) * 100.0) / 100.0);
        }
    }
    return resultado;
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
    escreve(pasta / "1234.dat", arquivoVazoes(d.codigo, "Posto Sintético", anoInicial, ate));
}

}  // namespace teste
