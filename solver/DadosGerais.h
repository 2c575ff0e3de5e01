#pragma once

// The station's general data file, which Caso.dat names: one value per line, in a fixed order.

#include <filesystem>
#include <string>

namespace solver {

struct DadosGerais {
    std::string arquivoRelatorio;
    bool imprimeParametros = false;
    std::string arquivoVazoesSemanais;
    int transformacao = 0;  // 0 to 5, the sets of candidates
    int mesInicial = 1;
    std::string arquivoPrevisoes;
    std::string arquivoPlanilha;
    double intervaloConfianca = 95.0;  // in percent
    int semanaInicialPrev = 1;
    int anoInicialPrev = 0;
    bool usaVazpast = false;  // the file's switch is inverted: 0 means in use
    std::string arquivoVazpast;
    int anoFinalHistorico = 0;
    int codigo = 0;
    int flagLimite = 0;  // 0 none, 1 bounds model and forecast, 2 bounds the forecast
    std::string arquivoLimites;
    int numSemanas = 52;
};

// Reads Caso.dat in the folder and the general data file it names. Throws FalhaExecucao.
DadosGerais leCaso(const std::filesystem::path& pasta);
DadosGerais leDadosGerais(const std::filesystem::path& arquivo);

}  // namespace solver
