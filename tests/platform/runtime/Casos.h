#pragma once

#include "platform/runtime/ErroVB.h"

#include <QString>

#include <gtest/gtest.h>

#include <initializer_list>
#include <ostream>

// Failures show the text itself rather than its UTF-16 units.
inline void PrintTo(const QString& s, std::ostream* os) {
    *os << '"' << s.toStdString() << '"';
}

// The number of the run-time error that f raises; 0 when it raises none.
template <typename F>
int numeroDoErro(F&& f) {
    try {
        f();
    } catch (const plataforma::ErroVB& e) {
        return e.Number();
    }
    return 0;
}

// One row of a table of cases: the expression as written, what it gave and what it should give.
// A braced list evaluates its rows in the order written, so a row may rely on the one before.
template <typename T>
struct Caso {
    const char* expressao;
    T obtido;
    T esperado;
};
#define CASO(expressao, esperado) {#expressao, (expressao), esperado}
#define ERRO(expressao, numero) {#expressao, numeroDoErro([&] { (expressao); }), numero}

template <typename T>
void confere(std::initializer_list<Caso<T>> casos) {
    for (const Caso<T>& caso : casos) {
        EXPECT_EQ(caso.obtido, caso.esperado) << caso.expressao;
    }
}
