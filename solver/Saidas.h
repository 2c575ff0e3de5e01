#pragma once

// The texts of the files the solver leaves in the station folder, as lines without terminators.

#include "solver/Previsao.h"

#include <string>
#include <vector>

namespace solver {

// Forecast file: header lines, then exactly the forecast and its two bounds, each a label in
// columns 1 to 24 and six values in nine-column fields from column 25.
std::vector<std::string> textoPrevisao(const EntradaEstacao& e, const PrevisaoEstacao& p);
std::vector<std::string> textoRelatorio(const EntradaEstacao& e, const PrevisaoEstacao& p);
// The report's companion: the transformation of each week of the year.
std::vector<std::string> textoBoxCox(const EntradaEstacao& e, const PrevisaoEstacao& p);
// Tab-separated statistics of the forecast by week ahead.
std::vector<std::string> textoPlanilha(const EntradaEstacao& e, const PrevisaoEstacao& p);
// What deserves the user's attention; empty when nothing does. The first line is one sentence.
std::vector<std::string> textoAviso(const EntradaEstacao& e, const PrevisaoEstacao& p);

// Week of the year (from 1) and year of the week h after the first forecast week.
struct SemanaAno {
    int semana;
    int ano;
};
SemanaAno semanaPrevista(const DadosGerais& d, std::size_t h);

}  // namespace solver
