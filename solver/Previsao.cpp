#include "solver/Previsao.h"

#include "solver/Falha.h"

#include <algorithm>

namespace solver {

EntradaEstacao leEntrada(const std::filesystem::path& pasta, DadosGerais dados) {
    EntradaEstacao e{std::move(dados), {}, {}, {}};
    e.vazoes = leVazoesSemanais(pasta / e.dados.arquivoVazoesSemanais, e.dados.numSemanas);
    if (e.dados.usaVazpast) {
        e.vazpast = leVazpast(pasta / e.dados.arquivoVazpast, e.dados.codigo);
    }
    if (e.dados.flagLimite != 0) {
        e.limites = leLimites(pasta / e.dados.arquivoLimites, e.dados.numSemanas);
    }
    return e;
}

namespace {

// Position of the first forecast week, counted from week 1 of the file's first year.
std::size_t pOrigem(const EntradaEstacao& e) {
    const long long semanas =
        static_cast<long long>(e.dados.anoInicialPrev - e.vazoes.anoInicial) * e.dados.numSemanas +
        (e.dados.semanaInicialPrev - 1);
    if (semanas <= 0) {
        throw FalhaExecucao(CodigoEstado::historicoCurto,
                            "A previsão começa antes do primeiro ano do histórico.");
    }
    return static_cast<std::size_t>(semanas);
}

// Flag 1 bounds the simulated paths too; flag 2 only the forecast itself.
constexpr int limitaModeloEPrevisao = 1;

}  // namespace

PrevisaoEstacao calculaPrevisao(const EntradaEstacao& e) {
    const std::size_t origem = pOrigem(e);
    SerieSemanal serie = montaSerie(e.vazoes, e.dados.numSemanas, origem, e.vazpast);
    serie.preencheLacunas(maximoSemanasInterpoladas);
    const auto numSemanas = static_cast<std::size_t>(e.dados.numSemanas);
    const std::size_t fimHistorico =
        static_cast<std::size_t>(std::max(e.dados.anoFinalHistorico - e.vazoes.anoInicial + 1, 0)) *
        numSemanas;
    const std::size_t fimAjuste = std::min(origem, fimHistorico);
    if (anosDeRetroteste(fimAjuste, e.dados.numSemanas) < 1) {
        throw FalhaExecucao(CodigoEstado::historicoCurto,
                            "O histórico tem menos de " + std::to_string(minimoAnosAjuste + 1) +
                                " anos de vazões até o ano final do histórico; não é possível ajustar "
                                "o modelo.");
    }
    const double confianca = e.dados.intervaloConfianca / 100.0;
    Escolha escolha = escolheModelo(serie, fimAjuste, candidatas(e.dados.transformacao), confianca);
    Previsor previsor(serie, fimAjuste, escolha.getEscolhido().tipo);
    PrevisaoEstacao p{std::move(serie), fimAjuste, std::move(escolha), std::move(previsor), {}, {}, {}, {}};
    const std::vector<double>& vazoes = p.serie.getVazoes();
    FaixasHorizonte faixas{};
    if (e.limites) {
        p.limites = calculaLimites(p.serie, p.fimAjuste, *e.limites, e.dados.mesInicial, origem);
        for (std::size_t h = 0; h < horizonte; ++h) {
            faixas[h] = (*p.limites)[h].faixa;
        }
    }
    const bool limitaModelo = e.limites && e.dados.flagLimite == limitaModeloEPrevisao;
    const PesosPonto& pesos = p.escolha.getEscolhido().pesos;
    const ResumoCenarios livre = p.previsor.preve(vazoes, origem, confianca, Simulador::trajetoriasPadrao);
    const ResumoCenarios resumo =
        limitaModelo ? p.previsor.preve(vazoes, origem, confianca, Simulador::trajetoriasPadrao, &faixas)
                     : livre;
    const Trajetoria semLimites = livre.ponto(pesos);
    p.previsao = resumo.ponto(pesos);
    p.intervalo = resumo.intervalo;
    for (std::size_t h = 0; h < horizonte; ++h) {
        if (e.limites && !limitaModelo) {
            p.previsao[h] = std::clamp(p.previsao[h], faixas[h].inferior, faixas[h].superior);
        }
        p.limitada[h] = p.previsao[h] != semLimites[h];
        // Bounds that the forecast crossed (limits of the forecast alone) widen to hold it.
        p.intervalo.inferior[h] = std::min(p.intervalo.inferior[h], p.previsao[h]);
        p.intervalo.superior[h] = std::max(p.intervalo.superior[h], p.previsao[h]);
    }
    return p;
}

}  // namespace solver
