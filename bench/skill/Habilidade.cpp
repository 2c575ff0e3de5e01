#include "bench/skill/Habilidade.h"

#include "solver/Climatologia.h"
#include "solver/Estatistica.h"
#include "solver/Formato.h"
#include "solver/Previsor.h"
#include "solver/Retroteste.h"
#include "solver/SerieSemanal.h"
#include "solver/Simulacao.h"

#include <functional>

namespace skill {

namespace {

using solver::horizonte;

constexpr double coberturaMinima = 90.0;
constexpr double coberturaMaxima = 98.0;

struct Avaliacao {
    const solver::SerieSemanal& serie;
    std::size_t fim;  // first held-out week

    // Runs forecast(origin) -> (point, lower, upper) over every held-out origin.
    solver::Placar mede(
        const std::function<void(std::size_t, solver::Trajetoria&, solver::Intervalo&)>& previsor) const {
        solver::Placar placar;
        for (std::size_t origem = fim; origem < serie.tamanho(); ++origem) {
            solver::Trajetoria previsto{};
            solver::Intervalo intervalo;
            previsor(origem, previsto, intervalo);
            for (std::size_t h = 0; h < horizonte && origem + h < serie.tamanho(); ++h) {
                const double observado = serie.vazao(origem + h);
                placar.registra(h, previsto[h], observado);
                placar.registraIntervalo(h, intervalo.inferior[h], intervalo.superior[h], observado);
            }
        }
        return placar;
    }

    // The solver's forecast with a candidate's transformation and point weights, as the program
    // makes it at each origin.
    solver::Placar modelo(const solver::Candidato& candidato) const {
        const solver::Previsor previsor(serie, fim, candidato.tipo);
        return mede([&](std::size_t origem, solver::Trajetoria& p, solver::Intervalo& i) {
            const solver::ResumoCenarios resumo = previsor.preve(serie.getVazoes(), origem, confiancaAvaliada,
                                                                 solver::Simulador::trajetoriasPadrao);
            p = resumo.ponto(candidato.pesos);
            i = resumo.intervalo;
        });
    }

    // The last week repeated; its interval from the spread of the ratios h weeks apart in the fit.
    solver::Placar persistencia() const {
        const double cauda = (1.0 - confiancaAvaliada) / 2.0;
        std::array<std::pair<double, double>, horizonte> razoes{};
        for (std::size_t h = 0; h < horizonte; ++h) {
            std::vector<double> r;
            for (std::size_t t = 1; t + h < fim; ++t) {
                r.push_back(serie.vazao(t + h) / serie.vazao(t - 1));
            }
            razoes[h] = {solver::quantil(r, cauda), solver::quantil(r, 1.0 - cauda)};
        }
        return mede([&](std::size_t origem, solver::Trajetoria& p, solver::Intervalo& i) {
            const double ultima = serie.vazao(origem - 1);
            for (std::size_t h = 0; h < horizonte; ++h) {
                p[h] = ultima;
                i.inferior[h] = ultima * razoes[h].first;
                i.superior[h] = ultima * razoes[h].second;
            }
        });
    }

    // The mean of the week of the year; its interval from that week's quantiles.
    solver::Placar climatologia() const {
        const double cauda = (1.0 - confiancaAvaliada) / 2.0;
        const solver::Climatologia medias(serie, fim);
        std::vector<std::pair<double, double>> faixas(semanasPorAno);
        for (std::size_t s = 0; s < semanasPorAno; ++s) {
            std::vector<double> v;
            for (std::size_t t = s; t < fim; t += semanasPorAno) {
                v.push_back(serie.vazao(t));
            }
            faixas[s] = {solver::quantil(v, cauda), solver::quantil(v, 1.0 - cauda)};
        }
        return mede([&](std::size_t origem, solver::Trajetoria& p, solver::Intervalo& i) {
            for (std::size_t h = 0; h < horizonte; ++h) {
                const std::size_t s = (origem + h) % semanasPorAno;
                p[h] = medias.previsao(static_cast<int>(s));
                i.inferior[h] = faixas[s].first;
                i.superior[h] = faixas[s].second;
            }
        });
    }
};

std::string pTabela(const char* titulo, const std::vector<Metodo>& metodos,
                    const std::function<double(const solver::Placar&, std::size_t)>& medida,
                    const char* formato) {
    std::string t =
        std::string("| ") + titulo + " | 1 | 2 | 3 | 4 | 5 | 6 |\n|---|---|---|---|---|---|---|\n";
    for (const Metodo& m : metodos) {
        t += "| " + m.nome + " |";
        for (std::size_t h = 0; h < horizonte; ++h) {
            t += " " + solver::numero(formato, medida(m.placar, h)) + " |";
        }
        t += "\n";
    }
    return t + "\n";
}

}  // namespace

std::vector<Metodo> avaliaRio(const RioSemanal& rio) {
    std::vector<double> vazoes = rio.serie();
    vazoes.resize(static_cast<std::size_t>(rio.anosCompletos()) * semanasPorAno);
    const solver::SerieSemanal serie(rio.anoInicial, semanasPorAno, std::move(vazoes));
    const Avaliacao a{serie, serie.tamanho() - anosAvaliados * semanasPorAno};
    const solver::Escolha escolha =
        solver::escolheModelo(serie, a.fim, solver::candidatas(5), confiancaAvaliada);
    std::vector<Metodo> metodos = {
        {"Corvalin (escolha: " + solver::nomeTransformacao(escolha.getEscolhido().tipo) + ")", {}},
        {"Persistência", a.persistencia()},
        {"Climatologia", a.climatologia()},
    };
    for (const solver::Candidato& c : escolha.candidatos) {
        metodos.push_back({"PAR " + solver::nomeTransformacao(c.tipo), a.modelo(c)});
    }
    metodos[0].placar = metodos[3 + escolha.escolhido].placar;
    return metodos;
}

std::string tabelas(const std::string& rio, const std::vector<Metodo>& metodos) {
    std::string t = "### " + rio + "\n\n";
    t += pTabela(
        "MAPE (%) por semana à frente", metodos,
        [](const solver::Placar& p, std::size_t h) { return p.mape(h); }, "%.1f");
    t += pTabela(
        "RMSE (m³/s)", metodos, [](const solver::Placar& p, std::size_t h) { return p.rmse(h); }, "%.4g");
    t += pTabela(
        "Cobertura do intervalo de 95% (%)", metodos,
        [](const solver::Placar& p, std::size_t h) { return p.cobertura(h); }, "%.1f");
    const solver::Placar& nosso = metodos[0].placar;
    std::string falhas;
    for (std::size_t h = 0; h < horizonte; ++h) {
        for (std::size_t referencia : {1u, 2u}) {
            const solver::Placar& outro = metodos[referencia].placar;
            if (nosso.mape(h) >= outro.mape(h)) {
                falhas += " MAPE " + std::to_string(h + 1) + " vs " + metodos[referencia].nome + ";";
            }
            if (nosso.rmse(h) >= outro.rmse(h)) {
                falhas += " RMSE " + std::to_string(h + 1) + " vs " + metodos[referencia].nome + ";";
            }
        }
        if (nosso.cobertura(h) < coberturaMinima || nosso.cobertura(h) > coberturaMaxima) {
            falhas += " cobertura " + std::to_string(h + 1) + ";";
        }
    }
    return t + (falhas.empty() ? "Metas atingidas em todas as semanas à frente.\n\n"
                               : "Metas não atingidas:" + falhas + "\n\n");
}

}  // namespace skill
