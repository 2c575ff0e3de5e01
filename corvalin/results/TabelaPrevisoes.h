#pragma once

#include <QStringList>

#include <vector>

namespace corvalin {

class Posto;
class PostoBD;

// The stored forecast of a station as the forecast table shows it: four rows of seven cells. Row 0
// holds "Sem N" over the weeks, rows 1 to 3 the forecast and its lower and upper limits under
// their titles, with one decimal. The weeks follow the end of the station's history as it stands
// now. No rows at all for a station without forecast.
std::vector<QStringList> TabelaPrevisoes(const PostoBD& postoBD, const Posto& posto);

}  // namespace corvalin
