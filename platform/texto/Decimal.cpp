#include "platform/texto/Decimal.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace texto::detalhe {

namespace {

// Power of ten of the first significant digit of a number text that from_chars refused as out of
// range: positive means an overflow, negative an underflow.
int pOrdem(std::string_view numero) {
    const auto e = numero.find('e');
    int expoente = 0;
    if (e != std::string_view::npos) {
        std::from_chars(numero.data() + e + 1, numero.data() + numero.size(), expoente);
    }
    const auto mantissa = numero.substr(0, e);
    const auto primeiro = mantissa.find_first_of("123456789");
    const auto ponto = std::min(mantissa.find('.'), mantissa.size());
    const int posicao =
        primeiro < ponto ? static_cast<int>(ponto - primeiro) - 1 : -static_cast<int>(primeiro - ponto);
    return expoente + posicao;
}

}  // namespace

Decimal decompoe(double x, int precisao) {
    // "-d.dddddddddddddddde-308" at most
    std::array<char, 32> texto{};
    const auto fim =
        std::to_chars(texto.begin(), texto.end(), x, std::chars_format::scientific, precisao - 1).ptr;
    std::string_view v(texto.data(), static_cast<std::size_t>(fim - texto.data()));

    Decimal d;
    d.negativo = v.front() == '-';
    if (d.negativo) {
        v.remove_prefix(1);
    }
    const auto e = v.find('e');
    for (const char c : v.substr(0, e)) {
        if (c != '.') {
            d.digitos += c;
        }
    }
    const auto expoente = v.substr(e + (v[e + 1] == '+' ? 2 : 1));
    std::from_chars(expoente.data(), expoente.data() + expoente.size(), d.expoente);

    d.digitos.erase(d.digitos.find_last_not_of('0') + 1);
    if (d.digitos.empty()) {
        d.expoente = 0;
    }
    return d;
}

Decimal arredondaCasas(Decimal d, int casas) {
    const int mantidos = d.expoente + 1 + casas;
    if (d.digitos.empty() || mantidos >= static_cast<int>(d.digitos.size())) {
        return d;
    }
    if (mantidos < 0) {
        d.digitos.clear();
        d.expoente = 0;
        return d;
    }
    const bool sobe = d.digitos[static_cast<std::size_t>(mantidos)] >= '5';
    d.digitos.resize(static_cast<std::size_t>(mantidos));
    if (sobe) {
        auto i = d.digitos.size();
        while (i > 0 && d.digitos[i - 1] == '9') {
            d.digitos[--i] = '0';
        }
        if (i > 0) {
            ++d.digitos[i - 1];
        } else {
            d.digitos.insert(d.digitos.begin(), '1');
            ++d.expoente;
        }
    }
    d.digitos.erase(d.digitos.find_last_not_of('0') + 1);
    if (d.digitos.empty()) {
        d.expoente = 0;
    }
    return d;
}

PartesFixas partesFixas(const Decimal& d, int casas) {
    PartesFixas p;
    if (d.expoente >= 0 && !d.digitos.empty()) {
        const auto tamanho = static_cast<std::size_t>(d.expoente) + 1;
        p.inteira = d.digitos.substr(0, tamanho);
        p.inteira.resize(tamanho, '0');
        if (d.digitos.size() > tamanho) {
            p.fracao = d.digitos.substr(tamanho);
        }
    } else if (d.expoente < 0) {
        p.fracao = std::string(static_cast<std::size_t>(-d.expoente - 1), '0') + d.digitos;
    }
    if (static_cast<int>(p.fracao.size()) < casas) {
        p.fracao.resize(static_cast<std::size_t>(casas), '0');
    }
    return p;
}

double converte(std::string_view numero) {
    double valor = 0.0;
    const auto [fim, erro] = std::from_chars(numero.data(), numero.data() + numero.size(), valor);
    if (erro == std::errc::result_out_of_range) {
        // from_chars leaves the value untouched then
        valor = pOrdem(numero) > 0 ? std::numeric_limits<double>::infinity() : 0.0;
        valor = std::copysign(valor, numero.front() == '-' ? -1.0 : 1.0);
    }
    return valor;
}

}  // namespace texto::detalhe
