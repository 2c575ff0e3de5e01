#include "solver/Retroteste.h"

#include "solver/Estatistica.h"
#include "solver/Previsor.h"
#include "solver/SerieSemanal.h"

#include <algorithm>
#include <cmath>

namespace solver {

namespace {

bool pVenceComClareza(const Desempenho& desafiante, const Desempenho& preferido) {
    std::vector<double> diferencas;
    for (std::size_t ano = 0; ano < preferido.indicePorAno.size(); ++ano) {
        diferencas.push_back(desafiante.indicePorAno[ano] - preferido.indicePorAno[ano]);
    }
    const double erroPadrao = desvioPadrao(diferencas) /
                              std::sqrt(static_cast<double>(std::max<std::size_t>(diferencas.size(), 1)));
    return desafiante.indice + erroPadrao < preferido.indice;
}

Desempenho pDesempenho(const Placar& placar, const std::vector<Placar>& porAno, const Placar& climatologia) {
    Desempenho d;
    for (std::size_t h = 0; h < horizonte; ++h) {
        d.semanasVencidas += placar.superaEmAmbas(h, climatologia) ? 1 : 0;
    }
    d.indice = placar.indice(climatologia);
    for (const Placar& doAno : porAno) {
        d.indicePorAno.push_back(doAno.indice(climatologia));
    }
    return d;
}

}  // namespace

std::size_t escolhePreferindoOPrimeiro(const std::vector<Desempenho>& opcoes) {
    const auto melhor =
        static_cast<std::size_t>(std::min_element(opcoes.begin(), opcoes.end(),
                                                  [](const Desempenho& a, const Desempenho& b) {
                                                      return a.semanasVencidas != b.semanasVencidas
                                                                 ? a.semanasVencidas > b.semanasVencidas
                                                                 : a.indice < b.indice;
                                                  }) -
                                 opcoes.begin());
    return pVenceComClareza(opcoes[melhor], opcoes.front()) ? melhor : 0;
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
    // The forecasts of each weight, over all the back-test and year by year.
    std::array<Placar, pesosCandidatos.size()> porPeso;
    std::array<std::vector<Placar>, pesosCandidatos.size()> porPesoEAno;
    for (auto& porAno : porPesoEAno) {
        porAno.resize(anos);
    }
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
                    porPesoEAno[i][ano].registra(h, previsto, observado);
                }
            }
        }
    }
    std::vector<Desempenho> desempenhos;
    for (std::size_t i = 0; i < pesosCandidatos.size(); ++i) {
        desempenhos.push_back(pDesempenho(porPeso[i], porPesoEAno[i], c.climatologia));
    }
    const std::size_t escolhido = escolhePreferindoOPrimeiro(desempenhos);
    c.peso = pesosCandidatos[escolhido];
    c.placar = porPeso[escolhido];
    c.desempenho = desempenhos[escolhido];
    return c;
}

Escolha escolheModelo(const SerieSemanal& serie, std::size_t fim, const std::vector<TipoTransformacao>& tipos,
                      double confianca) {
    Escolha escolha;
    std::vector<Desempenho> desempenhos;
    for (const TipoTransformacao tipo : tipos) {
        escolha.candidatos.push_back(retrotesta(serie, fim, tipo, confianca));
        desempenhos.push_back(escolha.candidatos.back().desempenho);
    }
    escolha.escolhido = escolhePreferindoOPrimeiro(desempenhos);
    return escolha;
}

}  // namespace solver
