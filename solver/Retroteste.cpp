#include "solver/Retroteste.h"

#include "solver/ModeloPAR.h"
#include "solver/SerieSemanal.h"
#include "solver/Simulacao.h"

#include <algorithm>

namespace solver {

int anosDeRetroteste(std::size_t fim, int numSemanas) {
    const int anos = static_cast<int>(fim / static_cast<std::size_t>(numSemanas));
    return std::clamp(anos - minimoAnosAjuste, 0, maximoAnosRetroteste);
}

Placar retroteste(const SerieSemanal& serie, std::size_t fim, TipoTransformacao tipo, int anos,
                  std::optional<double> confianca) {
    Placar placar;
    const auto numSemanas = static_cast<std::size_t>(serie.getNumSemanas());
    for (std::size_t bloco = static_cast<std::size_t>(anos); bloco >= 1; --bloco) {
        const std::size_t inicio = fim - bloco * numSemanas;
        const ModeloPAR modelo = ModeloPAR::ajusta(serie, inicio, tipo);
        Simulador simulador(modelo);
        for (std::size_t origem = inicio; origem < inicio + numSemanas && origem < fim; ++origem) {
            const Trajetoria previsto = modelo.previsao(serie.getVazoes(), origem);
            std::optional<Intervalo> intervalo;
            if (confianca) {
                intervalo = simulador.intervalo(serie.getVazoes(), origem, *confianca, trajetoriasRetroteste);
            }
            for (std::size_t h = 0; h < horizonte && origem + h < fim; ++h) {
                // Filled weeks are no observations to be scored against.
                if (!serie.observada(origem + h)) {
                    continue;
                }
                placar.registra(h, previsto[h], serie.vazao(origem + h));
                if (intervalo) {
                    placar.registraIntervalo(h, intervalo->inferior[h], intervalo->superior[h],
                                             serie.vazao(origem + h));
                }
            }
        }
    }
    return placar;
}

Escolha escolheModelo(const SerieSemanal& serie, std::size_t fim, const std::vector<TipoTransformacao>& tipos,
                      double confianca) {
    const int anos = anosDeRetroteste(fim, serie.getNumSemanas());
    Escolha escolha;
    for (const TipoTransformacao tipo : tipos) {
        escolha.candidatos.push_back({tipo, retroteste(serie, fim, tipo, anos)});
        if (escolha.candidatos.back().placar.mapeMedio() <
            escolha.candidatos[escolha.escolhido].placar.mapeMedio()) {
            escolha.escolhido = escolha.candidatos.size() - 1;
        }
    }
    Candidato& escolhido = escolha.candidatos[escolha.escolhido];
    escolhido.placar = retroteste(serie, fim, escolhido.tipo, anos, confianca);
    return escolha;
}

}  // namespace solver
