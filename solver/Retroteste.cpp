#include "solver/Retroteste.h"

#include "solver/Estatistica.h"
#include "solver/Previsor.h"
#include "solver/SerieSemanal.h"

#include <algorithm>
#include <cmath>

namespace solver {

namespace {

// The scoreboard of the forecasts that take, for each week ahead, the weight chosen for it.
Placar pCompoe(const PlacaresPorPeso& porPeso, const std::array<std::size_t, horizonte>& escolhidos) {
    Placar placar;
    for (std::size_t h = 0; h < horizonte; ++h) {
        placar.adotaSemana(h, porPeso[escolhidos[h]]);
    }
    return placar;
}

}  // namespace

std::size_t escolhePeso(const PlacaresPorPeso& porPeso, const Placar& climatologia, std::size_t h) {
    const auto pior = [&](std::size_t a, std::size_t b) {
        const bool aSupera = porPeso[a].superaEmAmbas(h, climatologia);
        const bool bSupera = porPeso[b].superaEmAmbas(h, climatologia);
        return aSupera != bSupera
                   ? bSupera
                   : porPeso[a].razaoConjunta(h, climatologia) > porPeso[b].razaoConjunta(h, climatologia);
    };
    std::size_t melhor = 0;
    for (std::size_t i = 1; i < porPeso.size(); ++i) {
        if (pior(melhor, i)) {
            melhor = i;
        }
    }
    return melhor;
}

int anosDeRetroteste(std::size_t fim, int numSemanas) {
    const int anos = static_cast<int>(fim / static_cast<std::size_t>(numSemanas));
    return std::clamp(anos - minimoAnosAjuste, 0, maximoAnosRetroteste);
}

Candidato retrotesta(const SerieSemanal& serie, std::size_t fim, TipoTransformacao tipo, double confianca) {
    const auto numSemanas = static_cast<std::size_t>(serie.getNumSemanas());
    const auto anos = static_cast<std::size_t>(anosDeRetroteste(fim, serie.getNumSemanas()));
    Candidato c;
    c.tipo = tipo;
    PlacaresPorPeso porPeso;
    std::vector<PlacaresPorPeso> porAno(anos);
    for (std::size_t ano = 0; ano < anos; ++ano) {
        const std::size_t inicio = fim - (anos - ano) * numSemanas;
        const Previsor previsor(serie, inicio, tipo);
        for (std::size_t origem = inicio; origem < inicio + numSemanas; ++origem) {
            const ResumoCenarios resumo =
                previsor.preve(serie.getVazoes(), origem, confianca, trajetoriasRetroteste);
            for (std::size_t h = 0; h < horizonte && origem + h < fim; ++h) {
                // Filled weeks are no observations to be scored against.
                if (!serie.observada(origem + h)) {
                    continue;
                }
                const double observado = serie.vazao(origem + h);
                c.climatologia.registra(h, previsor.getClimatologia().previsao(serie.semana(origem + h)),
                                        observado);
                for (std::size_t i = 0; i < pesosCandidatos.size(); ++i) {
                    const double previsto = resumo.ponto(h, pesosCandidatos[i]);
                    porPeso[i].registra(h, previsto, observado);
                    porPeso[i].registraIntervalo(h, resumo.intervalo.inferior[h],
                                                 resumo.intervalo.superior[h], observado);
                    porAno[ano][i].registra(h, previsto, observado);
                }
            }
        }
    }
    std::array<std::size_t, horizonte> escolhidos{};
    for (std::size_t h = 0; h < horizonte; ++h) {
        escolhidos[h] = escolhePeso(porPeso, c.climatologia, h);
        c.pesos[h] = pesosCandidatos[escolhidos[h]];
    }
    c.placar = pCompoe(porPeso, escolhidos);
    for (const PlacaresPorPeso& doAno : porAno) {
        c.indicePorAno.push_back(pCompoe(doAno, escolhidos).indice(c.climatologia));
    }
    return c;
}

std::size_t escolheCandidato(const std::vector<Candidato>& candidatos) {
    const auto melhor = static_cast<std::size_t>(
        std::min_element(candidatos.begin(), candidatos.end(),
                         [](const Candidato& a, const Candidato& b) { return a.indice() < b.indice(); }) -
        candidatos.begin());
    const Candidato& preferido = candidatos.front();
    const Candidato& desafiante = candidatos[melhor];
    std::vector<double> diferencas;
    for (std::size_t ano = 0; ano < preferido.indicePorAno.size(); ++ano) {
        diferencas.push_back(desafiante.indicePorAno[ano] - preferido.indicePorAno[ano]);
    }
    const double erroPadrao = desvioPadrao(diferencas) /
                              std::sqrt(static_cast<double>(std::max<std::size_t>(diferencas.size(), 1)));
    return desafiante.indice() + erroPadrao < preferido.indice() ? melhor : 0;
}

Escolha escolheModelo(const SerieSemanal& serie, std::size_t fim, const std::vector<TipoTransformacao>& tipos,
                      double confianca) {
    Escolha escolha;
    for (const TipoTransformacao tipo : tipos) {
        escolha.candidatos.push_back(retrotesta(serie, fim, tipo, confianca));
    }
    escolha.escolhido = escolheCandidato(escolha.candidatos);
    return escolha;
}

}  // namespace solver
