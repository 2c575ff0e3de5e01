#pragma once

// Times a whole run of the solver (reading, fitting, choosing, forecasting, writing) on a station
// of 90 years.

#include <filesystem>
#include <string>

namespace skill {

inline constexpr int anosEstacaoLonga = 90;

// Builds the station in pasta and returns a line with the median and worst time of the runs.
std::string cronometraEstacaoLonga(const std::filesystem::path& pastaRios,
                                   const std::filesystem::path& pasta);

}  // namespace skill
