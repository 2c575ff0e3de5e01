#pragma once

// Daily flows of a river turned into years of 52 weeks: days 1 to 7 of a year are week 1, and so
// on; the last 8 or 9 days of the year fold into week 52.

#include <filesystem>
#include <string>
#include <vector>

namespace skill {

inline constexpr int semanasPorAno = 52;

struct RioSemanal {
    int anoInicial = 0;  // first year with all 52 weeks
    // Weekly mean flows, complete years first; the last year may stop early.
    std::vector<std::vector<double>> anos;

    int anosCompletos() const;
    // All complete weeks in one run, week 1 of anoInicial first.
    std::vector<double> serie() const;
};

// Reads "date,flow_m3s" lines. A week counts only when all its days have a flow; the years before
// the first complete one are dropped, and the series ends at the first incomplete week after it.
RioSemanal leRio(const std::filesystem::path& csv);

int semanaDoDia(int diaDoAno);

}  // namespace skill
