#pragma once

// The weekly flows, Vazpast and limits files of a station, read as the plug-in writes them.
// Every reader throws FalhaExecucao with the reason when a file is missing or malformed.

#include <array>
#include <filesystem>
#include <string>
#include <vector>

namespace solver {

struct VazoesArquivo {
    int codigo = 0;
    std::string nome;
    int anoInicial = 0;
    int anoFinal = 0;
    // vazoes[ano - anoInicial][semana - 1]; 0 marks a week the file does not give.
    std::vector<std::vector<double>> vazoes;
};

VazoesArquivo leVazoesSemanais(const std::filesystem::path& arquivo, int numSemanas);

// The four past flows of the station: the first is the week right before the forecast.
std::array<double, 4> leVazpast(const std::filesystem::path& arquivo, int codigo);

enum class Agrupamento { semanal = 1, mensal = 2, trimestral = 3, semestral = 4 };

struct ArquivoLimites {
    Agrupamento agrupamento = Agrupamento::semanal;
    int faixas = 1;  // equal-count bands of the previous week's flow
    // Percentiles per period, from period 1.
    std::vector<double> inferior;
    std::vector<double> superior;
};

int numeroPeriodos(Agrupamento agrupamento, int numSemanas);
ArquivoLimites leLimites(const std::filesystem::path& arquivo, int numSemanas);

}  // namespace solver
