#pragma once

// Text layout helpers of the output files.

#include <string>
#include <string_view>

namespace solver {

// Columns of a UTF-8 text as the Windows-1252 file will have them: one per character.
std::size_t colunas(std::string_view utf8);
// The text left-aligned in a field of the given width, blank-filled.
std::string aEsquerda(std::string_view utf8, std::size_t largura);
std::string aDireita(std::string_view utf8, std::size_t largura);
// printf-style formatting of one number.
std::string numero(const char* formato, double valor);
// A flow right-aligned in the forecast file's nine columns: enough decimals for small flows,
// fewer for large ones, so that it always fits.
std::string campoVazao(double valor);

}  // namespace solver
