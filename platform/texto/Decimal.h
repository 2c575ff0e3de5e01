#pragma once

// Decimal digits of numbers, both ways, without the C library's locale: the model files always
// use "." whatever LC_NUMERIC says.

#include <string>
#include <string_view>

namespace texto::detalhe {

// Significant digits of the printers: a Single prints with 7, a Double with 15.
inline constexpr int DigitosSingle = 7;
inline constexpr int DigitosDouble = 15;

// A finite number as decimal digits; the first digit stands for 10^expoente.
struct Decimal {
    bool negativo = false;
    std::string digitos;  // no leading or trailing zeros; empty for zero
    int expoente = 0;
};

// x rounded to precisao significant digits (1 to 17), from its exact binary value.
Decimal decompoe(double x, int precisao);

// d rounded to casas decimals, ties away from zero.
Decimal arredondaCasas(Decimal d, int casas);

// The digits before and after the point in fixed notation; the fraction is padded with zeros to
// at least casas digits. No digit before the point gives an empty inteira.
struct PartesFixas {
    std::string inteira;
    std::string fracao;
};
PartesFixas partesFixas(const Decimal& d, int casas);

// The value of "[-]digits[.digits][e[-]digits]"; a magnitude beyond a double gives an infinity
// and one below the smallest double gives 0.
double converte(std::string_view numero);

}  // namespace texto::detalhe
