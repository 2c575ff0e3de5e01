#include "solver/Transformacao.h"

#include "solver/Estatistica.h"

#include <cmath>

namespace solver {

std::string nomeTransformacao(TipoTransformacao tipo) {
    switch (tipo) {
        case TipoTransformacao::nenhuma:
            return "sem transformação";
        case TipoTransformacao::logaritmica:
            return "logarítmica";
        case TipoTransformacao::boxCox:
            return "Box-Cox";
    }
    return {};
}

std::vector<TipoTransformacao> candidatas(int codigoTransformacao) {
    using enum TipoTransformacao;
    switch (codigoTransformacao) {
        case 1:
            return {logaritmica, nenhuma};
        case 2:
            return {boxCox, nenhuma};
        case 3:
            return {logaritmica};
        case 4:
            return {boxCox};
        case 5:
            return {logaritmica, boxCox, nenhuma};
        default:
            return {nenhuma};
    }
}

namespace {

// Below this the Box-Cox exponent is the logarithm, numerically.
constexpr double lambdaLogaritmo = 1e-9;

double pBoxCox(double vazao, double lambda) {
    return std::abs(lambda) < lambdaLogaritmo ? std::log(vazao) : (std::pow(vazao, lambda) - 1.0) / lambda;
}

// Profile log-likelihood of a normal sample after the transformation, with its Jacobian. Takes
// the logarithms of the flows, computed once for the whole search.
double pVerossimilhanca(std::span<const double> logVazoes, double lambda, double somaLog) {
    std::vector<double> y(logVazoes.size());
    for (std::size_t i = 0; i < logVazoes.size(); ++i) {
        y[i] = std::abs(lambda) < lambdaLogaritmo ? logVazoes[i] : std::expm1(lambda * logVazoes[i]) / lambda;
    }
    const double n = static_cast<double>(y.size());
    const double m = media(y);
    double variancia = 0.0;
    for (const double v : y) {
        variancia += (v - m) * (v - m);
    }
    variancia /= n;
    return -0.5 * n * std::log(std::max(variancia, 1e-300)) + (lambda - 1.0) * somaLog;
}

}  // namespace

double TransformacaoSemana::aplica(double vazao) const {
    switch (tipo) {
        case TipoTransformacao::nenhuma:
            return vazao;
        case TipoTransformacao::logaritmica:
            return std::log(vazao);
        case TipoTransformacao::boxCox:
            return pBoxCox(vazao, lambda);
    }
    return vazao;
}

double TransformacaoSemana::inverte(double y) const {
    switch (tipo) {
        case TipoTransformacao::nenhuma:
            return y;
        case TipoTransformacao::logaritmica:
            return std::exp(y);
        case TipoTransformacao::boxCox: {
            if (std::abs(lambda) < lambdaLogaritmo) {
                return std::exp(y);
            }
            const double base = lambda * y + 1.0;
            return base > 0.0 ? std::pow(base, 1.0 / lambda) : 0.0;
        }
    }
    return y;
}

double estimaLambdaBoxCox(std::span<const double> vazoes) {
    std::vector<double> logVazoes(vazoes.size());
    double somaLog = 0.0;
    for (std::size_t i = 0; i < vazoes.size(); ++i) {
        logVazoes[i] = std::log(vazoes[i]);
        somaLog += logVazoes[i];
    }
    // The likelihood is unimodal in lambda for practical samples: golden-section search.
    const double razao = (std::sqrt(5.0) - 1.0) / 2.0;
    double a = lambdaMinimo;
    double b = lambdaMaximo;
    double c = b - razao * (b - a);
    double d = a + razao * (b - a);
    double fc = pVerossimilhanca(logVazoes, c, somaLog);
    double fd = pVerossimilhanca(logVazoes, d, somaLog);
    // Hundredths of the exponent change the transformed flows far less than their sampling noise.
    constexpr double tolerancia = 1e-2;
    while (b - a > tolerancia) {
        if (fc > fd) {
            b = d;
            d = c;
            fd = fc;
            c = b - razao * (b - a);
            fc = pVerossimilhanca(logVazoes, c, somaLog);
        } else {
            a = c;
            c = d;
            fc = fd;
            d = a + razao * (b - a);
            fd = pVerossimilhanca(logVazoes, d, somaLog);
        }
    }
    return 0.5 * (a + b);
}

TransformacaoSemana ajustaTransformacao(TipoTransformacao tipo, std::span<const double> vazoes) {
    TransformacaoSemana t{tipo, 1.0};
    if (tipo == TipoTransformacao::logaritmica) {
        t.lambda = 0.0;
    } else if (tipo == TipoTransformacao::boxCox) {
        t.lambda = estimaLambdaBoxCox(vazoes);
    }
    return t;
}

}  // namespace solver
