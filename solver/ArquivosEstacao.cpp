#include "solver/ArquivosEstacao.h"

#include "solver/Falha.h"
#include "solver/Texto.h"

#include <algorithm>
#include <optional>

namespace solver {

namespace {

std::vector<std::string> pLeObrigatorio(const std::filesystem::path& arquivo, const std::string& tipo) {
    auto linhas = leLinhas(arquivo);
    if (!linhas) {
        throw FalhaExecucao(
            CodigoEstado::entradaInvalida,
            "O arquivo de " + tipo + " " + arquivo.filename().string() + " não foi encontrado.");
    }
    return std::move(*linhas);
}

FalhaExecucao pMalFormado(CodigoEstado codigo, const std::filesystem::path& arquivo, std::size_t linha,
                          const std::string& detalhe) {
    return FalhaExecucao(codigo, "Linha " + std::to_string(linha) + " do arquivo " +
                                     arquivo.filename().string() + ": " + detalhe + ".");
}

// Weekly flows: values in 8-column fields from column 2 ("value." right-aligned in columns
// 2 to 8 of the field), the year in columns 77 to 80, nine weeks a line.
constexpr std::size_t colunaAno = 77;
constexpr std::size_t larguraAno = 4;
constexpr std::size_t larguraValor = 8;
constexpr int semanasPorLinha = 9;

}  // namespace

VazoesArquivo leVazoesSemanais(const std::filesystem::path& arquivo, int numSemanas) {
    const auto linhas = pLeObrigatorio(arquivo, "vazões semanais");
    const auto falha = [&](std::size_t linha, const std::string& detalhe) {
        return pMalFormado(CodigoEstado::entradaInvalida, arquivo, linha, detalhe);
    };
    if (linhas.size() < 2) {
        throw falha(linhas.size() + 1, "faltam o cabeçalho e o período do histórico");
    }
    VazoesArquivo v;
    v.codigo = static_cast<int>(numeroInicial(coluna(linhas[0], 1, 8)).value_or(0));
    v.nome = std::string(apara(coluna(linhas[0], 10, 60)));
    const auto anoInicial = inteiroExato(coluna(linhas[1], 1, 5));
    const auto anoFinal = inteiroExato(coluna(linhas[1], 6, 5));
    if (!anoInicial || !anoFinal || *anoFinal < *anoInicial || *anoInicial < 1) {
        throw falha(2, "período do histórico inválido");
    }
    v.anoInicial = *anoInicial;
    v.anoFinal = *anoFinal;
    v.vazoes.assign(static_cast<std::size_t>(v.anoFinal - v.anoInicial + 1),
                    std::vector<double>(static_cast<std::size_t>(numSemanas), 0.0));

    // The writer leaves out the rest of a year after its first missing week, so the lines of a
    // year are counted by the year column rather than by six lines a year.
    int anoAnterior = 0;
    int linhaDoAno = 0;
    for (std::size_t i = 2; i < linhas.size(); ++i) {
        const std::string& linha = linhas[i];
        if (apara(linha).empty()) {
            continue;
        }
        const auto ano = inteiroExato(coluna(linha, colunaAno, larguraAno));
        if (!ano || *ano < v.anoInicial || *ano > v.anoFinal) {
            throw falha(i + 1, "ano ausente ou fora do período do histórico");
        }
        linhaDoAno = *ano == anoAnterior ? linhaDoAno + 1 : 0;
        anoAnterior = *ano;
        const int primeiraSemana = linhaDoAno * semanasPorLinha;
        if (primeiraSemana >= numSemanas) {
            throw falha(i + 1, "semanas demais no ano " + std::to_string(*ano));
        }
        auto& semanas = v.vazoes[static_cast<std::size_t>(*ano - v.anoInicial)];
        const int quantas = std::min(semanasPorLinha, numSemanas - primeiraSemana);
        for (int k = 0; k < quantas; ++k) {
            const auto campo = apara(coluna(linha, 2 + static_cast<std::size_t>(k) * larguraValor, 7));
            if (campo.empty()) {
                continue;
            }
            const auto valor = numeroInicial(campo);
            if (!valor) {
                throw falha(i + 1, "vazão ilegível na semana " + std::to_string(primeiraSemana + k + 1));
            }
            semanas[static_cast<std::size_t>(primeiraSemana + k)] = std::max(*valor, 0.0);
        }
    }
    return v;
}

std::array<double, 4> leVazpast(const std::filesystem::path& arquivo, int codigo) {
    const auto linhas = pLeObrigatorio(arquivo, "Vazpast");
    // Three header lines, then a station a line: code in columns 1 to 5, four values of ten
    // columns from column 21.
    constexpr std::size_t cabecalho = 3;
    for (std::size_t i = cabecalho; i < linhas.size(); ++i) {
        if (inteiroExato(coluna(linhas[i], 1, 5)) != codigo) {
            continue;
        }
        std::array<double, 4> valores{};
        for (std::size_t k = 0; k < valores.size(); ++k) {
            const auto valor = numeroExato(coluna(linhas[i], 21 + 10 * k, 10));
            if (!valor || *valor <= 0.0) {
                throw pMalFormado(CodigoEstado::entradaInvalida, arquivo, i + 1,
                                  "vazão passada " + std::to_string(k + 1) + " inválida");
            }
            valores[k] = *valor;
        }
        return valores;
    }
    throw FalhaExecucao(CodigoEstado::entradaInvalida, "O posto " + std::to_string(codigo) +
                                                           " não consta do arquivo Vazpast " +
                                                           arquivo.filename().string() + ".");
}

int numeroPeriodos(Agrupamento agrupamento, int numSemanas) {
    switch (agrupamento) {
        case Agrupamento::semanal:
            return numSemanas;
        case Agrupamento::mensal:
            return 12;
        case Agrupamento::trimestral:
            return 4;
        case Agrupamento::semestral:
            return 2;
    }
    return 0;
}

ArquivoLimites leLimites(const std::filesystem::path& arquivo, int numSemanas) {
    const auto linhas = pLeObrigatorio(arquivo, "limites");
    const auto foraDaFaixa = [&](std::size_t linha, const std::string& detalhe) {
        return pMalFormado(CodigoEstado::limitesInvalidos, arquivo, linha, detalhe);
    };
    const auto codigoLinha = [&](std::size_t i) {
        return i < linhas.size() ? inteiroExato(linhas[i]) : std::nullopt;
    };
    const auto agrupamento = codigoLinha(0);
    if (!agrupamento || *agrupamento < 1 || *agrupamento > 4) {
        throw foraDaFaixa(1, "agrupamento fora de 1 a 4");
    }
    const auto faixas = codigoLinha(1);
    if (!faixas || *faixas < 1 || *faixas > 4) {
        throw foraDaFaixa(2, "divisão da magnitude fora de 1 a 4");
    }
    ArquivoLimites l;
    l.agrupamento = static_cast<Agrupamento>(*agrupamento);
    l.faixas = *faixas;
    const int periodos = numeroPeriodos(l.agrupamento, numSemanas);
    l.inferior.assign(static_cast<std::size_t>(periodos), -1.0);
    l.superior.assign(static_cast<std::size_t>(periodos), -1.0);
    // The screen accepts percentiles from 0.1 to 99.9.
    constexpr double percentilMinimo = 0.1;
    constexpr double percentilMaximo = 99.9;
    for (std::size_t i = 2; i < linhas.size(); ++i) {
        if (apara(linhas[i]).empty()) {
            continue;
        }
        const auto periodo = inteiroExato(coluna(linhas[i], 1, 2));
        const auto inferior = numeroExato(coluna(linhas[i], 4, 4));
        const auto superior = numeroExato(coluna(linhas[i], 9, 4));
        if (!periodo || *periodo < 1 || *periodo > periodos) {
            throw foraDaFaixa(i + 1, "período fora de 1 a " + std::to_string(periodos));
        }
        if (!inferior || !superior || *inferior < percentilMinimo || *superior > percentilMaximo ||
            *inferior > *superior) {
            throw foraDaFaixa(i + 1, "limites fora de 0,1 a 99,9 ou invertidos");
        }
        l.inferior[static_cast<std::size_t>(*periodo - 1)] = *inferior;
        l.superior[static_cast<std::size_t>(*periodo - 1)] = *superior;
    }
    const auto falta = std::find(l.inferior.begin(), l.inferior.end(), -1.0);
    if (falta != l.inferior.end()) {
        throw FalhaExecucao(CodigoEstado::limitesInvalidos,
                            "O arquivo de limites " + arquivo.filename().string() +
                                " não informa o período " + std::to_string(falta - l.inferior.begin() + 1) +
                                ".");
    }
    return l;
}

}  // namespace solver
