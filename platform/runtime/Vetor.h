#pragma once

#include "platform/runtime/ErroVB.h"

#include <cstddef>
#include <utility>
#include <vector>

namespace plataforma {

// An array with lower bound 0 and a given upper bound, as the old code declared them: the data
// stand from position 1 and position 0 stays unused. An index outside the bounds raises the
// subscript error (9), which the callers' traps rely on.
template <typename T>
class Vetor {
public:
    Vetor() : mDados(1) {}
    explicit Vetor(int limiteSuperior) { ReDim(limiteSuperior); }

    int UBound() const noexcept { return static_cast<int>(mDados.size()) - 1; }

    // Resizes to 0..limiteSuperior; ReDim clears, ReDimPreserve keeps what fits.
    void ReDim(int limiteSuperior) {
        verificaLimite(limiteSuperior);
        mDados.assign(static_cast<std::size_t>(limiteSuperior) + 1, T{});
    }
    void ReDimPreserve(int limiteSuperior) {
        verificaLimite(limiteSuperior);
        mDados.resize(static_cast<std::size_t>(limiteSuperior) + 1);
    }

    T& operator[](int i) { return mDados[posicao(i)]; }
    const T& operator[](int i) const { return mDados[posicao(i)]; }

    const std::vector<T>& dados() const noexcept { return mDados; }

private:
    static void verificaLimite(int limiteSuperior) {
        if (limiteSuperior < -1) {
            throw ErroVB::padrao(ErroSubscrito);
        }
    }
    std::size_t posicao(int i) const {
        if (i < 0 || i > UBound()) {
            throw ErroVB::padrao(ErroSubscrito);
        }
        return static_cast<std::size_t>(i);
    }

    std::vector<T> mDados;
};

// A two-dimensional array with lower bounds 0: (0..linhas, 0..colunas), checked like Vetor.
template <typename T>
class Matriz {
public:
    Matriz() { ReDim(0, 0); }
    Matriz(int limiteLinhas, int limiteColunas) { ReDim(limiteLinhas, limiteColunas); }

    int UBound1() const noexcept { return mLinhas - 1; }
    int UBound2() const noexcept { return mColunas - 1; }

    // Resizes and clears; a bound below -1 is a subscript error, as an array of negative size is.
    void ReDim(int limiteLinhas, int limiteColunas) {
        if (limiteLinhas < -1 || limiteColunas < -1) {
            throw ErroVB::padrao(ErroSubscrito);
        }
        mLinhas = limiteLinhas + 1;
        mColunas = limiteColunas + 1;
        mDados.assign(static_cast<std::size_t>(mLinhas) * static_cast<std::size_t>(mColunas), T{});
    }

    T& operator()(int i, int j) { return mDados[posicao(i, j)]; }
    const T& operator()(int i, int j) const { return mDados[posicao(i, j)]; }

private:
    std::size_t posicao(int i, int j) const {
        if (i < 0 || i >= mLinhas || j < 0 || j >= mColunas) {
            throw ErroVB::padrao(ErroSubscrito);
        }
        return static_cast<std::size_t>(i) * static_cast<std::size_t>(mColunas) + static_cast<std::size_t>(j);
    }

    int mLinhas = 0;
    int mColunas = 0;
    std::vector<T> mDados;
};

}  // namespace plataforma
