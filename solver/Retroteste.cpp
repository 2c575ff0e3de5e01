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

Retroteste::Retroteste(const SerieSemanal& serie, std::size_t fim, TipoTransformacao tipo, int anos)
    : serie_(serie), fim_(fim) {
    const auto numSemanas = static_cast<std::size_t>(serie.getNumSemanas());
    for (auto bloco = static_cast<std::size_t>(anos); bloco >= 1; --bloco) {
        const std::size_t inicio = fim - bloco * numSemanas;
        blocos_.push_back({inicio, ModeloPAR::ajusta(serie, inicio, tipo)});
    }
}

Placar Retroteste::mede(std::optional<double> confianca) const {
    Placar placar;
    const auto numSemanas = static_cast<std::size_t>(serie_.getNumSemanas());
    for (const Bloco& bloco : blocos_) {
        Simulador simulador(bloco.modelo);
        for (std::size_t origem = bloco.inicio; origem < bloco.inicio + numSemanas && origem < fim_;
             ++origem) {
            const Trajetoria previsto = bloco.modelo.previsao(serie_.getVazoes(), origem);
            std::optional<Intervalo> intervalo;
            if (confianca) {
                intervalo =
                    simulador.intervalo(serie_.getVazoes(), origem, *confianca, trajetoriasRetroteste);
            }
            for (std::size_t h = 0; h < horizonte && origem + h < fim_; ++h) {
                // Filled weeks are no observations to be scored against.
                if (!serie_.observada(origem + h)) {
                    continue;
                }
                placar.registra(h, previsto[h], serie_.vazao(origem + h));
                if (intervalo) {
                    placar.registraIntervalo(h, intervalo->inferior[h], intervalo->superior[h],
                                             serie_.vazao(origem + h));
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
    std::vector<Retroteste> retrotestes;
    for (const TipoTransformacao tipo : tipos) {
        retrotestes.emplace_back(serie, fim, tipo, anos);
        escolha.candidatos.push_back({tipo, retrotestes.back().mede()});
        if (escolha.candidatos.back().placar.mapeMedio() <
            escolha.candidatos[escolha.escolhido].placar.mapeMedio()) {
            escolha.escolhido = escolha.candidatos.size() - 1;
        }
    }
    escolha.candidatos[escolha.escolhido].placar = retrotestes[escolha.escolhido].mede(confianca);
    return escolha;
}

}  // namespace solver
