#pragma once

// Station folders for the tests: a temporary folder, the station files laid out as the plug-in
// writes them, and synthetic flows of known processes.

#include <filesystem>
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

// General data of station 1234: its files named "1234.*", transformation code 5, 95%.
struct DadosGeraisTeste {
    int semanaInicialPrev = 1;
    int anoInicialPrev = 0;
    int anoFinalHistorico = 0;
    bool usaVazpast = false;
    int flagLimite = 0;
};
std::vector<std::string> arquivoDadosGerais(const DadosGeraisTeste& d);

// A process of 52-week years whose log flows are a seasonal mean, nivel + sin, plus a periodic
// autoregression of order 2 scaled by escala + escalaSazonal * cos: skewed, as floods make them.
struct Processo {
    std::vector<double> phi1;  // per week
    std::vector<double> phi2;
    double desvioRuido;
    double nivel = 4.0;
    double escala = 0.4;
    double escalaSazonal = 0.1;
};
inline constexpr int semanasDoAno = 52;
// The same weights every week.
Processo processo(double phi1, double phi2, double desvioRuido, double nivel = 4.0, double escala = 0.4,
                  double escalaSazonal = 0.1);
// The flows of anos years, from a fixed seed.
std::vector<double> simula(const Processo& p, int anos, unsigned semente);
// The same split into years and rounded to hundredths, as a weekly flows file holds them.
std::vector<std::vector<double>> anosDe(const std::vector<double>& vazoes);

// A whole station in the folder (Caso.dat, general data "1234.arq", weekly flows "1234.dat"),
// the history up to the week before the forecast week.
void montaEstacao(const std::filesystem::path& pasta, const DadosGeraisTeste& d,
                  const std::vector<std::vector<double>>& anos, int anoInicial);

}  // namespace teste
