#include "solver/SerieSemanal.h"

#include "solver/ArquivosEstacao.h"
#include "solver/Estatistica.h"
#include "solver/Falha.h"

#include <algorithm>

namespace solver {

SerieSemanal::SerieSemanal(int anoInicial, int numSemanas, std::vector<double> vazoes)
    : anoInicial_(anoInicial), numSemanas_(numSemanas), vazoes_(std::move(vazoes)) {
    observada_.resize(vazoes_.size());
    for (std::size_t t = 0; t < vazoes_.size(); ++t) {
        observada_[t] = vazoes_[t] > 0.0;
    }
}

int SerieSemanal::ano(std::size_t t) const {
    return anoInicial_ + static_cast<int>(t / static_cast<std::size_t>(numSemanas_));
}

void SerieSemanal::preencheLacunas(std::size_t maxInterpolada) {
    lacunas_.clear();
    for (std::size_t t = 0; t < vazoes_.size();) {
        if (observada_[t]) {
            ++t;
            continue;
        }
        Lacuna lacuna{t, 0, false};
        while (t < vazoes_.size() && !observada_[t]) {
            ++lacuna.semanas;
            ++t;
        }
        lacuna.interpolada = lacuna.inicio > 0 && t < vazoes_.size() && lacuna.semanas <= maxInterpolada;
        lacunas_.push_back(lacuna);
    }
    for (const Lacuna& lacuna : lacunas_) {
        if (lacuna.interpolada) {
            const double antes = vazoes_[lacuna.inicio - 1];
            const double depois = vazoes_[lacuna.inicio + lacuna.semanas];
            for (std::size_t k = 1; k <= lacuna.semanas; ++k) {
                const double fracao = static_cast<double>(k) / static_cast<double>(lacuna.semanas + 1);
                vazoes_[lacuna.inicio + k - 1] = antes + fracao * (depois - antes);
            }
        } else {
            pPreencheComMediana(lacuna);
        }
    }
}

void SerieSemanal::pPreencheComMediana(const Lacuna& lacuna) {
    for (std::size_t t = lacuna.inicio; t < lacuna.inicio + lacuna.semanas; ++t) {
        std::vector<double> mesmaSemana;
        for (std::size_t u = static_cast<std::size_t>(semana(t)); u < vazoes_.size();
             u += static_cast<std::size_t>(numSemanas_)) {
            if (observada_[u]) {
                mesmaSemana.push_back(vazoes_[u]);
            }
        }
        if (mesmaSemana.empty()) {
            throw FalhaExecucao(CodigoEstado::historicoCurto, "Não há vazão observada na semana " +
                                                                  std::to_string(semana(t) + 1) +
                                                                  " de nenhum ano do histórico.");
        }
        vazoes_[t] = quantil(mesmaSemana, 0.5);
    }
}

SerieSemanal montaSerie(const VazoesArquivo& arquivo, int numSemanas, std::size_t origem,
                        const std::optional<std::array<double, 4>>& vazpast) {
    std::vector<double> vazoes(origem, 0.0);
    for (std::size_t t = 0; t < origem; ++t) {
        const std::size_t ano = t / static_cast<std::size_t>(numSemanas);
        if (ano < arquivo.vazoes.size()) {
            vazoes[t] = arquivo.vazoes[ano][t % static_cast<std::size_t>(numSemanas)];
        }
    }
    if (vazpast) {
        for (std::size_t k = 0; k < vazpast->size() && k < origem; ++k) {
            vazoes[origem - 1 - k] = (*vazpast)[k];
        }
    }
    // The forecast starts from the last observation: it must be the week right before it.
    if (origem == 0 || vazoes[origem - 1] <= 0.0) {
        throw FalhaExecucao(CodigoEstado::historicoCurto,
                            "O histórico não tem a vazão da semana anterior à semana inicial da "
                            "previsão.");
    }
    return SerieSemanal(arquivo.anoInicial, numSemanas, std::move(vazoes));
}

}  // namespace solver
