#include "solver/Saidas.h"

#include "solver/Formato.h"

namespace solver {

namespace {

constexpr std::size_t larguraRotulo = 24;
constexpr std::size_t larguraCampo = 9;

std::string pLinhaValores(std::string_view rotulo, const Trajetoria& valores) {
    std::string linha = aEsquerda(rotulo, larguraRotulo);
    for (const double v : valores) {
        linha += campoVazao(v);
    }
    return linha;
}

std::string pDescricaoSemana(const SerieSemanal& serie, std::size_t t) {
    return "semana " + std::to_string(serie.semana(t) + 1) + " de " + std::to_string(serie.ano(t));
}

int pAnosAjuste(const PrevisaoEstacao& p) {
    return static_cast<int>(p.fimAjuste / static_cast<std::size_t>(p.serie.getNumSemanas()));
}

std::size_t pSemanasPreenchidas(const SerieSemanal& serie) {
    std::size_t n = 0;
    for (const Lacuna& l : serie.getLacunas()) {
        n += l.semanas;
    }
    return n;
}

std::string pSemanasLimitadas(const EntradaEstacao& e, const PrevisaoEstacao& p) {
    std::string lista;
    for (std::size_t h = 0; h < horizonte; ++h) {
        if (p.limitada[h]) {
            lista += (lista.empty() ? "" : ", ") + std::to_string(semanaPrevista(e.dados, h).semana);
        }
    }
    return lista;
}

void pAcrescentaCandidatos(std::vector<std::string>& r, const PrevisaoEstacao& p) {
    r.push_back("Modelos candidatos: retroteste com origem em cada semana dos últimos " +
                std::to_string(anosDeRetroteste(p.fimAjuste, p.serie.getNumSemanas())) +
                " anos, modelo reajustado a cada ano com os dados anteriores.");
    r.push_back(
        "Previsão pontual: entre o valor de menor erro relativo e quadrático conjunto (peso 1) e a "
        "mediana dos cenários (peso 0).");
    r.push_back(
        "Índice: MAPE e RMSE divididos pelos da climatologia (média da semana), somados e tomados em "
        "média nas " +
        std::to_string(horizonte) + " semanas à frente; 2 iguala a climatologia.");
    std::string cabecalho = aEsquerda("  Transformação", 22) + aDireita("Índice", 8);
    for (int h = 1; h <= horizonte; ++h) {
        cabecalho += aDireita("MAPE " + std::to_string(h), 9);
    }
    r.push_back(cabecalho);
    for (std::size_t i = 0; i < p.escolha.candidatos.size(); ++i) {
        const Candidato& c = p.escolha.candidatos[i];
        std::string linha =
            aEsquerda("  " + nomeTransformacao(c.tipo), 22) + numero("%8.3f", c.desempenho.indice);
        for (std::size_t h = 0; h < horizonte; ++h) {
            linha += numero("%8.2f%%", c.placar.mape(h));
        }
        r.push_back(linha + (i == p.escolha.escolhido ? "  <- escolhido" : ""));
    }
    std::string pesos = "Pesos da previsão pontual por semana à frente:";
    for (const double peso : p.escolha.getEscolhido().pesos) {
        pesos += numero(" %.2f", peso);
    }
    r.push_back(pesos);
}

void pAcrescentaParametros(std::vector<std::string>& r, const PrevisaoEstacao& p) {
    r.push_back("Parâmetros do modelo por semana do ano (vazões transformadas e padronizadas):");
    std::string cabecalho = "  Semana  Lambda      Média     Desvio  Ordem";
    for (int k = 1; k <= ordemMaxima; ++k) {
        cabecalho += aDireita("phi " + std::to_string(k), 8);
    }
    r.push_back(cabecalho + "  Desvio ruído");
    for (int s = 0; s < p.previsor.getModelo().getNumSemanas(); ++s) {
        const ParametrosSemana& ps = p.previsor.getModelo().getParametros(s);
        std::string linha = numero("  %6.0f", s + 1) + numero("%8.3f", ps.transformacao.lambda) +
                            numero("%11.4g", ps.media) + numero("%11.4g", ps.desvio) +
                            numero("%7.0f", static_cast<double>(ps.phi.size()));
        for (std::size_t k = 0; k < static_cast<std::size_t>(ordemMaxima); ++k) {
            linha += k < ps.phi.size() ? numero("%8.3f", ps.phi[k]) : std::string(8, ' ');
        }
        r.push_back(linha + numero("%14.3f", ps.desvioRuido));
    }
}

void pAcrescentaPrevisao(std::vector<std::string>& r, const EntradaEstacao& e, const PrevisaoEstacao& p) {
    r.push_back("Previsão com intervalo de confiança de " + numero("%.0f", e.dados.intervaloConfianca) +
                "% (" + std::to_string(Simulador::trajetoriasPadrao) +
                " trajetórias com resíduos reamostrados da estação do ano):");
    std::string cabecalho = "  Semana   Ano   Previsão  Lim. Inf.  Lim. Sup.";
    if (p.limites) {
        cabecalho += "  Limite mín.  Limite máx.  Limitada";
    }
    r.push_back(cabecalho);
    for (std::size_t h = 0; h < horizonte; ++h) {
        const SemanaAno sa = semanaPrevista(e.dados, h);
        std::string linha = numero("  %6.0f", sa.semana) + numero("%6.0f", sa.ano) + " " +
                            campoVazao(p.previsao[h]) + "  " + campoVazao(p.intervalo.inferior[h]) + "  " +
                            campoVazao(p.intervalo.superior[h]);
        if (p.limites) {
            const LimitesDaSemana& l = (*p.limites)[h];
            linha += "    " + campoVazao(l.faixa.inferior) + "    " + campoVazao(l.faixa.superior) +
                     (p.limitada[h] ? "  sim" : "  não");
        }
        r.push_back(linha);
    }
}

}  // namespace

SemanaAno semanaPrevista(const DadosGerais& d, std::size_t h) {
    const int indice = d.semanaInicialPrev - 1 + static_cast<int>(h);
    return {indice % d.numSemanas + 1, d.anoInicialPrev + indice / d.numSemanas};
}

std::vector<std::string> textoPrevisao(const EntradaEstacao& e, const PrevisaoEstacao& p) {
    std::string semanas = aEsquerda("Semana", larguraRotulo);
    for (std::size_t h = 0; h < horizonte; ++h) {
        semanas += aDireita(std::to_string(semanaPrevista(e.dados, h).semana), larguraCampo);
    }
    return {"Previsão de vazões semanais do posto " + std::to_string(e.dados.codigo) + " - " + e.vazoes.nome,
            "Intervalo de confiança de " + numero("%.0f", e.dados.intervaloConfianca) +
                "%, a partir da semana " + std::to_string(e.dados.semanaInicialPrev) + " de " +
                std::to_string(e.dados.anoInicialPrev),
            semanas,
            pLinhaValores("Previsão", p.previsao),
            pLinhaValores("Limite Inferior", p.intervalo.inferior),
            pLinhaValores("Limite Superior", p.intervalo.superior)};
}

std::vector<std::string> textoRelatorio(const EntradaEstacao& e, const PrevisaoEstacao& p) {
    const DadosGerais& d = e.dados;
    std::vector<std::string> r = {
        "CORVALIN - PREVISÃO ESTOCÁSTICA DE VAZÕES SEMANAIS",
        "",
        "Posto: " + std::to_string(d.codigo) + " - " + e.vazoes.nome,
        "Vazões semanais: " + d.arquivoVazoesSemanais + ", anos " + std::to_string(e.vazoes.anoInicial) +
            " a " + std::to_string(e.vazoes.anoFinal) + ", " + std::to_string(d.numSemanas) +
            " semanas por ano",
        "Ajuste: da semana 1 de " + std::to_string(e.vazoes.anoInicial) + " até a " +
            pDescricaoSemana(p.serie, p.fimAjuste - 1) + " (" + std::to_string(pAnosAjuste(p)) + " anos)",
        "Última vazão observada: " + pDescricaoSemana(p.serie, p.serie.tamanho() - 1),
        "Vazpast: " + (e.vazpast ? d.arquivoVazpast + ", vazões das 4 semanas anteriores à previsão"
                                 : std::string("não usado")),
        "Limites: " + (e.limites
                           ? d.arquivoLimites + (d.flagLimite == 1 ? " (Modelo e Previsão)" : " (Previsão)")
                           : std::string("não usados")),
    };
    if (pAnosAjuste(p) < anosHistoricoCurto) {
        r.push_back("Atenção: histórico curto, com menos de " + std::to_string(anosHistoricoCurto) +
                    " anos.");
    }
    r.push_back("");
    r.push_back("Semanas sem vazão preenchidas: " + std::to_string(pSemanasPreenchidas(p.serie)));
    for (const Lacuna& l : p.serie.getLacunas()) {
        r.push_back("  " + std::to_string(l.semanas) + " semana(s) a partir da " +
                    pDescricaoSemana(p.serie, l.inicio) +
                    (l.interpolada ? ": interpolação linear" : ": mediana da semana do ano"));
    }
    r.push_back("");
    pAcrescentaCandidatos(r, p);
    r.push_back("");
    r.push_back("Modelo escolhido: autorregressivo periódico, transformação " +
                nomeTransformacao(p.tipoEscolhido()) +
                ", ordem de cada semana pelo critério de "
                "informação bayesiano (até " +
                std::to_string(ordemMaxima) + ").");
    if (d.imprimeParametros) {
        r.push_back("");
        pAcrescentaParametros(r, p);
    }
    r.push_back("");
    pAcrescentaPrevisao(r, e, p);
    if (p.limites) {
        const std::string limitadas = pSemanasLimitadas(e, p);
        r.push_back(limitadas.empty() ? "Nenhuma semana foi limitada."
                                      : "Semanas limitadas pelos limites: " + limitadas + ".");
    }
    return r;
}

std::vector<std::string> textoBoxCox(const EntradaEstacao& e, const PrevisaoEstacao& p) {
    std::vector<std::string> r = {
        "Transformação das vazões por semana do ano - posto " + std::to_string(e.dados.codigo) + " - " +
            e.vazoes.nome,
        "Transformação escolhida: " + nomeTransformacao(p.tipoEscolhido()),
        "  Semana  Lambda      Média     Desvio",
    };
    for (int s = 0; s < p.previsor.getModelo().getNumSemanas(); ++s) {
        const ParametrosSemana& ps = p.previsor.getModelo().getParametros(s);
        r.push_back(numero("  %6.0f", s + 1) + numero("%8.3f", ps.transformacao.lambda) +
                    numero("%11.4g", ps.media) + numero("%11.4g", ps.desvio));
    }
    return r;
}

std::vector<std::string> textoPlanilha(const EntradaEstacao& e, const PrevisaoEstacao& p) {
    const Candidato& escolhido = p.escolha.getEscolhido();
    std::vector<std::string> r = {
        "Semana\tAno\tPrevisão\tLimite Inferior\tLimite Superior\tMAPE retroteste (%)\tRMSE retroteste\t"
        "Cobertura retroteste (%)\tPeso do ponto\tLimitada"};
    for (std::size_t h = 0; h < horizonte; ++h) {
        const SemanaAno sa = semanaPrevista(e.dados, h);
        r.push_back(
            std::to_string(sa.semana) + "\t" + std::to_string(sa.ano) + "\t" + numero("%.4g", p.previsao[h]) +
            "\t" + numero("%.4g", p.intervalo.inferior[h]) + "\t" + numero("%.4g", p.intervalo.superior[h]) +
            "\t" + numero("%.2f", escolhido.placar.mape(h)) + "\t" +
            numero("%.4g", escolhido.placar.rmse(h)) + "\t" + numero("%.1f", escolhido.placar.cobertura(h)) +
            "\t" + numero("%.2f", escolhido.pesos[h]) + "\t" + (p.limitada[h] ? "sim" : "não"));
    }
    return r;
}

std::vector<std::string> textoAviso(const EntradaEstacao& e, const PrevisaoEstacao& p) {
    std::vector<std::string> detalhes;
    std::vector<std::string> motivos;
    if (pAnosAjuste(p) < anosHistoricoCurto) {
        motivos.push_back("histórico curto");
        detalhes.push_back("O histórico ajustado tem " + std::to_string(pAnosAjuste(p)) + " anos, menos de " +
                           std::to_string(anosHistoricoCurto) + ".");
    }
    if (const std::size_t preenchidas = pSemanasPreenchidas(p.serie); preenchidas > 0) {
        motivos.push_back("semanas sem vazão preenchidas");
        detalhes.push_back(std::to_string(preenchidas) +
                           " semana(s) sem vazão foram preenchidas; veja o relatório.");
    }
    if (const std::string limitadas = pSemanasLimitadas(e, p); !limitadas.empty()) {
        motivos.push_back("previsão limitada");
        detalhes.push_back("Os limites alteraram a previsão das semanas " + limitadas + ".");
    }
    if (motivos.empty()) {
        return {};
    }
    std::string resumo;
    for (std::size_t i = 0; i < motivos.size(); ++i) {
        resumo += (i == 0 ? "" : i + 1 == motivos.size() ? " e " : ", ") + motivos[i];
    }
    std::vector<std::string> r = {"A previsão do posto " + std::to_string(e.dados.codigo) +
                                  " merece atenção: " + resumo + "."};
    r.insert(r.end(), detalhes.begin(), detalhes.end());
    return r;
}

}  // namespace solver
