#pragma once

#include <span>
#include <vector>

namespace solver {

double media(std::span<const double> x);
// Sample standard deviation (n - 1).
double desvioPadrao(std::span<const double> x);
// Empirical quantile with linear interpolation between order statistics (p from 0 to 1);
// takes a copy because it reorders.
double quantil(std::vector<double> x, double p);

}  // namespace solver
