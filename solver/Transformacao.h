#pragma once

// The transformations of the weekly flows that bring each week of the year near to normal.

#include <span>
#include <string>
#include <vector>

namespace solver {

enum class TipoTransformacao { nenhuma, logaritmica, boxCox };

std::string nomeTransformacao(TipoTransformacao tipo);

// The candidates that each code of the general data names, tried in this order.
std::vector<TipoTransformacao> candidatas(int codigoTransformacao);

struct TransformacaoSemana {
    TipoTransformacao tipo = TipoTransformacao::nenhuma;
    double lambda = 1.0;  // Box-Cox exponent; 0 is the logarithm, 1 a shift of the flows

    double aplica(double vazao) const;
    // Back to flows. Values that the transformation cannot reach (below the Box-Cox origin) give 0,
    // and the caller decides the floor.
    double inverte(double y) const;
};

// Box-Cox exponent of one week of the year by maximum profile likelihood of the flows, searched
// within [lambdaMinimo, lambdaMaximo].
double estimaLambdaBoxCox(std::span<const double> vazoes);
inline constexpr double lambdaMinimo = 0.0;
inline constexpr double lambdaMaximo = 1.5;

TransformacaoSemana ajustaTransformacao(TipoTransformacao tipo, std::span<const double> vazoes);

}  // namespace solver
