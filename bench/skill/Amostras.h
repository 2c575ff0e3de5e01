#pragma once

// The demo stations of samples/: general data, weekly flows, Vazpast and limits files built from
// the real rivers, laid out byte for byte as the plug-in's writers lay them out.

#include "bench/skill/RiosSemanais.h"

#include <filesystem>
#include <string>
#include <vector>

namespace skill {

struct EstacaoAmostra {
    int codigo;
    std::string arquivoRio;  // in the rivers folder
    std::string nome;
    std::string area;  // as the plug-in prints it
    int transformacao;
    bool imprimeParametros;
    int semanaInicialPrev;  // the history ends the week before
    bool usaVazpast;
    bool usaLimites;
};

const std::vector<EstacaoAmostra>& estacoesAmostra();

// The plug-in's printing of a positive flow (no leading zero, no trailing zeros), with as many of
// 5 significant digits as fit the weekly flows file's six columns.
std::string textoVazao(double vazao);

// Writes every station's files into pasta.
void geraAmostras(const std::filesystem::path& pastaRios, const std::filesystem::path& pasta);

// One station's general data and weekly flows (and its Vazpast or limits file), from the weeks
// of the river up to the one before semanaInicialPrev of the last year.
void geraEstacao(const EstacaoAmostra& estacao, const RioSemanal& rio, const std::filesystem::path& pasta);

}  // namespace skill
