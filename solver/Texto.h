#pragma once

// Text files as the plug-in exchanges them: Windows-1252 bytes, lines ended by CR LF when written
// and by CR, LF or CR LF when read. Inside the solver all text is UTF-8.

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace solver {

std::string deCp1252(std::string_view bytes);
// Characters outside the code page become "?".
std::string paraCp1252(std::string_view utf8);

// The lines of a file without their terminators; nullopt when the file cannot be read.
std::optional<std::vector<std::string>> leLinhas(const std::filesystem::path& arquivo);

// Writes the lines, each ended by CR LF, to a temporary name beside the target and renames it over
// the target, so that a reader never meets a half-written file. Throws std::runtime_error.
void gravaLinhas(const std::filesystem::path& arquivo, const std::vector<std::string>& linhas);

// Columns count from 1; what lies beyond the end of the text is absent, never an error.
std::string_view coluna(std::string_view linha, std::size_t inicio, std::size_t largura);
std::string_view apara(std::string_view s);

// The number at the start of the text (blanks around it skipped), "." or "," as separator;
// nullopt when no number starts there.
std::optional<double> numeroInicial(std::string_view s);
// The whole trimmed text must be one number.
std::optional<double> numeroExato(std::string_view s);
// A whole number that fills the trimmed text.
std::optional<int> inteiroExato(std::string_view s);

}  // namespace solver
