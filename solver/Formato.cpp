#include "solver/Formato.h"

#include <cstdio>

namespace solver {

std::size_t colunas(std::string_view utf8) {
    std::size_t n = 0;
    for (const char c : utf8) {
        // Continuation bytes of a UTF-8 sequence do not start a character.
        n += (static_cast<unsigned char>(c) & 0xC0) != 0x80 ? 1 : 0;
    }
    return n;
}

std::string aEsquerda(std::string_view utf8, std::size_t largura) {
    const std::size_t n = colunas(utf8);
    return std::string(utf8) + std::string(n < largura ? largura - n : 0, ' ');
}

std::string aDireita(std::string_view utf8, std::size_t largura) {
    const std::size_t n = colunas(utf8);
    return std::string(n < largura ? largura - n : 0, ' ') + std::string(utf8);
}

std::string numero(const char* formato, double valor) {
    char texto[64];
    std::snprintf(texto, sizeof texto, formato, valor);
    return texto;
}

std::string campoVazao(double valor) {
    constexpr double limiteDuasCasas = 1e5;
    constexpr double limiteSemCasas = 1e8;
    if (valor < 1.0) {
        return numero("%9.4f", valor);
    }
    if (valor < limiteDuasCasas) {
        return numero("%9.2f", valor);
    }
    if (valor < limiteSemCasas) {
        return numero("%9.0f", valor);
    }
    return numero("%9.2E", valor);
}

}  // namespace solver
