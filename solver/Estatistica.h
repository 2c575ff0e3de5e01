#pragma once

#include <span>
#include <vector>

namespace solver {

double media(std::span<const double> x);
// Sample standard deviation (n - 1).
double desvioPadrao(std::span<const double> x);
// Empirical quantile with linear interpolation between order statistics (p from 0 to 1), of values
// already in increasing order.
double quantilOrdenado(std::span<const double> ordenados, double p);
// The same of values in any order; takes a copy because it sorts.
double quantil(std::vector<double> x, double p);

}  // namespace solver
