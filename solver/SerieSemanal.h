#pragma once

// The station's weekly flows as one series, from week 1 of the first year up to the week before
// the first forecast week, with the gaps filled and remembered.

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

namespace solver {

struct VazoesArquivo;

struct Lacuna {
    std::size_t inicio = 0;  // position in the series
    std::size_t semanas = 0;
    bool interpolada = false;  // else filled with the median of each week of the year
};

class SerieSemanal {
public:
    SerieSemanal(int anoInicial, int numSemanas, std::vector<double> vazoes);

    int getAnoInicial() const { return anoInicial_; }
    int getNumSemanas() const { return numSemanas_; }
    std::size_t tamanho() const { return vazoes_.size(); }
    const std::vector<double>& getVazoes() const { return vazoes_; }
    double vazao(std::size_t t) const { return vazoes_[t]; }
    bool observada(std::size_t t) const { return observada_[t]; }
    // Week of the year, from 0, and the year of position t.
    int semana(std::size_t t) const { return static_cast<int>(t % static_cast<std::size_t>(numSemanas_)); }
    int ano(std::size_t t) const;
    const std::vector<Lacuna>& getLacunas() const { return lacunas_; }

    // Fills the missing weeks (value 0 or less): gaps of up to maxInterpolada weeks between two
    // observations by a straight line, the others by the median of their week of the year.
    void preencheLacunas(std::size_t maxInterpolada);

private:
    void pPreencheComMediana(const Lacuna& lacuna);

    int anoInicial_;
    int numSemanas_;
    std::vector<double> vazoes_;
    std::vector<bool> observada_;
    std::vector<Lacuna> lacunas_;
};

// The series of the file up to the week before the first forecast week (origem weeks from week 1
// of the first year), with the Vazpast values, nearest first, on the last four weeks. Throws
// FalhaExecucao when the file ends before that week.
SerieSemanal montaSerie(const VazoesArquivo& arquivo, int numSemanas, std::size_t origem,
                        const std::optional<std::array<double, 4>>& vazpast);

}  // namespace solver
