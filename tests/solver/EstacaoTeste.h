#pragma once

// Station folders for the tests: a temporary folder, and the station files laid out as the
// plug-in writes them.

#include <filesystem>
#include <random>
#include <string>
#include <vector>

namespace teste {

class PastaTemporaria {
public:
    PastaTemporaria();
    ~PastaTemporaria();
    PastaTemporaria(const PastaTemporaria&) = delete;
    PastaTemporaria& operator=(const PastaTemporaria&) = delete;
    const std::filesystem::path& caminho() const { return caminho_; }

private:
    std::filesystem::path caminho_;
};

// Writes the lines in Windows-1252, each ended by CR LF.
void escreve(const std::filesystem::path& arquivo, const std::vector<std::string>& linhas);
std::string leBytes(const std::filesystem::path& arquivo);

// Weekly flows file: code and name, years, then nine values a line ("value." right-aligned in
// eight columns) and the year in columns 77 to 80; a year stops at its first zero.
std::vector<std::string> arquivoVazoes(int codigo, const std::string& nome, int anoInicial,
                                       const std::vector<std::vector<double>>& anos);

struct DadosGeraisTeste {
    int transformacao = 5;
    int semanaInicialPrev = 1;
    int anoInicialPrev = 0;
    int anoFinalHistorico = 0;
    int codigo = 1234;
    bool usaVazpast = false;
    int flagLimite = 0;
    bool imprime = true;
    int confianca = 95;
};
std::vector<std::string> arquivoDadosGerais(const DadosGeraisTeste& d);

// Years of weekly flows from a periodic first-order autoregression of the log flows with a
// seasonal mean, with a fixed seed.
std::vector<std::vector<double>> anosSinteticos(int anos, int numSemanas, unsigned semente);

// A whole station in the folder (Caso.dat, general data "1234.arq", weekly flows "1234.dat"),
// the history up to the week before the forecast week.
void montaEstacao(const std::filesystem::path& pasta, const DadosGeraisTeste& d,
                  const std::vector<std::vector<double>>& anos, int anoInicial);

}  // namespace teste
