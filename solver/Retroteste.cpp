#include "solver/Retroteste.h"

#include "solver/Estatistica.h"
#include "solver/Previsor.h"
#include "solver/SerieSemanal.h"

#include <algorithm>
#include <cmath>
#include <optional>

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

// Over all weeks ahead, or over week ahead h alone.
Desempenho pDesempenho(const Placar& placar, const std::vector<Placar>& porAno, const Placar& climatologia,
                       std::optional<std::size_t> h = std::nullopt) {
    const auto indice = [&](const Placar& p) {
        return h ? p.razaoConjunta(*h, climatologia) : p.indice(climatologia);
    };
    Desempenho d;
    for (std::size_t semana = 0; semana < horizonte; ++semana) {
        d.semanasVencidas += (!h || *h == semana) && placar.superaEmAmbas(semana, climatologia) ? 1 : 0;
    }
    d.indice = indice(placar);
    for (const Placar& doAno : porAno) {
        d.indicePorAno.push_back(indice(doAno));
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

namespace {

// The back-test's forecasts with each weight, over all of it and year by year, and those of
// climatology on the same weeks.
struct Medidas {
    std::array<Placar, pesosCandidatos.size()> porPeso;
    std::array<std::vector<Placar>, pesosCandidatos.size()> porPesoEAno;
    Placar climatologia;
};

Medidas pMede(const SerieSemanal& serie, std::size_t fim, TipoTransformacao tipo, double confianca) {
    const auto numSemanas = static_cast<std::size_t>(serie.getNumSemanas());
    const auto anos = static_cast<std::size_t>(anosDeRetroteste(fim, serie.getNumSemanas()));
    Medidas m;
    for (auto& porAno : m.porPesoEAno) {
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
                m.climatologia.registra(h, previsor.getClimatologia().previsao(serie.semana(origem + h)),
                                        observado);
                for (std::size_t i = 0; i < pesosCandidatos.size(); ++i) {
                    const double previsto = resumo.ponto(h, pesosCandidatos[i]);
                    m.porPeso[i].registra(h, previsto, observado);
                    m.porPeso[i].registraIntervalo(h, resumo.intervalo.inferior[h],
                                                   resumo.intervalo.superior[h], observado);
                    m.porPesoEAno[i][ano].registra(h, previsto, observado);
                }
            }
        }
    }
    return m;
}

// The station's weight is the one that does best over all weeks ahead; each week ahead keeps it
// unless another does clearly better at that week ahead.
Candidato pEscolhePesos(TipoTransformacao tipo, const Medidas& m) {
    Candidato c;
    c.tipo = tipo;
    c.climatologia = m.climatologia;
    std::vector<Desempenho> daEstacao;
    for (std::size_t i = 0; i < pesosCandidatos.size(); ++i) {
        daEstacao.push_back(pDesempenho(m.porPeso[i], m.porPesoEAno[i], c.climatologia));
    }
    const std::size_t pesoDaEstacao = escolhePreferindoOPrimeiro(daEstacao);
    std::vector<Placar> escolhidosPorAno(m.porPesoEAno[pesoDaEstacao].size());
    for (std::size_t h = 0; h < horizonte; ++h) {
        std::vector<std::size_t> ordem = {pesoDaEstacao};
        for (std::size_t i = 0; i < pesosCandidatos.size(); ++i) {
            if (i != pesoDaEstacao) {
                ordem.push_back(i);
            }
        }
        std::vector<Desempenho> naSemana;
        for (const std::size_t i : ordem) {
            naSemana.push_back(pDesempenho(m.porPeso[i], m.porPesoEAno[i], c.climatologia, h));
        }
        const std::size_t escolhido = ordem[escolhePreferindoOPrimeiro(naSemana)];
        c.pesos[h] = pesosCandidatos[escolhido];
        c.placar.adotaSemana(h, m.porPeso[escolhido]);
        for (std::size_t ano = 0; ano < escolhidosPorAno.size(); ++ano) {
            escolhidosPorAno[ano].adotaSemana(h, m.porPesoEAno[escolhido][ano]);
        }
    }
    c.desempenho = pDesempenho(c.placar, escolhidosPorAno, c.climatologia);
    return c;
}

}  // namespace

Candidato retrotesta(const SerieSemanal& serie, std::size_t fim, TipoTransformacao tipo, double confianca) {
    return pEscolhePesos(tipo, pMede(serie, fim, tipo, confianca));
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
