#include "solver/PontoPrevisto.h"

#include "solver/Climatologia.h"
#include "solver/Estatistica.h"

namespace solver {

double valorPerdaConjunta(std::span<const double> ordenados, double erroRelativo, double erroQuadratico) {
    if (ordenados.empty()) {
        return 0.0;
    }
    // Between two consecutive flows, the derivative of the mean loss is
    //   (sum of 1/y below f - sum of 1/y above f) / (n erroRelativo) + 2 (f - mean y) / erroQuadratico,
    // linear in f, and it jumps upwards at each flow: its one zero is either inside a stretch or at
    // the flow where it jumps across.
    const std::size_t n = ordenados.size();
    double somaInversos = 0.0;
    for (const double y : ordenados) {
        somaInversos += 1.0 / y;
    }
    const double mediaFluxos = media(ordenados);
    const double escala = erroQuadratico / (2.0 * static_cast<double>(n) * erroRelativo);
    double inversosAbaixo = 0.0;
    for (std::size_t k = 0;; ++k) {
        const double zeroDoTrecho = mediaFluxos - escala * (2.0 * inversosAbaixo - somaInversos);
        if (k > 0 && zeroDoTrecho <= ordenados[k - 1]) {
            return ordenados[k - 1];
        }
        if (k == n || zeroDoTrecho < ordenados[k]) {
            return zeroDoTrecho;
        }
        inversosAbaixo += 1.0 / ordenados[k];
    }
}

Trajetoria ResumoCenarios::ponto(const PesosPonto& pesos) const {
    Trajetoria t{};
    for (std::size_t h = 0; h < horizonte; ++h) {
        t[h] = ponto(h, pesos[h]);
    }
    return t;
}

ResumoCenarios resumeCenarios(const Cenarios& cenarios, const Climatologia& climatologia, double confianca) {
    ResumoCenarios r;
    const double cauda = (1.0 - confianca) / 2.0;
    for (std::size_t h = 0; h < horizonte; ++h) {
        r.mediana[h] = quantilOrdenado(cenarios[h], 0.5);
        r.perdaConjunta[h] =
            valorPerdaConjunta(cenarios[h], climatologia.getErroRelativo(), climatologia.getErroQuadratico());
        r.intervalo.inferior[h] = quantilOrdenado(cenarios[h], cauda);
        r.intervalo.superior[h] = quantilOrdenado(cenarios[h], 1.0 - cauda);
    }
    return r;
}

}  // namespace solver
