#pragma once

// The old platform's text functions, exactly as the model files rely on them. Columns and
// positions count from 1; every function works on characters (the model files are single-byte
// Windows-1252 text, so one character is one column).

#include <QString>

#include <concepts>
#include <cstdint>

namespace texto {

// Substring of at most n characters from column inicio (n < 0: to the end). What lies beyond the
// end of the text is simply absent. inicio < 1 raises error 5.
QString Mid(const QString& s, qsizetype inicio, qsizetype n = -1);
// Mid(s, 1, n) and its mirror from the right; n < 0 raises error 5.
QString Left(const QString& s, qsizetype n);
QString Right(const QString& s, qsizetype n);
// Removes blanks (the space character only) at both ends.
QString Trim(const QString& s);
// n blanks; n < 0 raises error 5 (the writers' negative padding counts fail this way).
QString Space(qsizetype n);
// Position (from 1) of the first occurrence of procura in s at or after column inicio, 0 when
// absent; an empty procura gives inicio. ignoraCaixa compares without regard to case.
qsizetype InStr(const QString& s, const QString& procura, bool ignoraCaixa = false, qsizetype inicio = 1);
QString LCase(const QString& s);
QString UCase(const QString& s);

// The lenient number reader of the importers: scans from the left, skips blanks wherever they
// stand ("12 34" is 1234), takes an optional sign, digits, one "." and an optional exponent (E or
// D, with its own sign), stops at the first character that does not fit, gives 0 when it read
// nothing. Its separator is "." whatever the locale. Never fails: a magnitude beyond a double
// gives an infinity, which the checked conversions below refuse.
double Val(const QString& s);

// The number printer of the writers: "." as separator, one leading blank when not negative, no
// leading zero before the point (".5", "-.5"), no trailing zeros, rounded to 7 significant digits
// for a float and 15 for a double, exponent form outside 1E-5 < |x| < 10^digits
// ("1E+07", "1.234568E+07", "1E-05"). Integers print whole: Str(12) is " 12".
QString Str(float x);
QString Str(double x);
QString Str(std::int64_t x);
template <std::integral T>
    requires(!std::same_as<T, bool> && !std::same_as<T, std::int64_t>)
QString Str(T x) {
    return Str(static_cast<std::int64_t>(x));
}

// The text form of a number as screens show it (CStr): the digits of Str without its leading
// blank, with the decimal separator of the user's locale (QLocale()) and the zero before it that
// Str leaves out ("0,5").
QString TextoRegional(float x);
QString TextoRegional(double x);
// FormatNumber(x, casas): fixed decimals with the locale's separators, digit grouping included.
QString FormatNumber(double x, int casas);

// IsNumeric: the trimmed text is not empty and is a number in the user's locale (group
// separators allowed) or in the "." form.
bool IsNumeric(const QString& s);

// Conversions to integer types: round to nearest, ties to even; a value outside the type, an
// infinity or a NaN raises error 6. The text overloads convert with the user's locale and raise
// error 13 for a text that is not a number.
std::uint8_t CByte(double x);
std::int16_t CInt(double x);
std::int32_t CLng(double x);
std::int32_t CLng(const QString& s);
// A float from a double; beyond the float's range raises error 6.
float CSng(double x);
// Strict conversion of a text with the locale's decimal separator (group separators allowed):
// error 13 when the text is not a number.
double CDbl(const QString& s);

// Fortran formatting of one field by an edit descriptor: "Fw.d" (w columns, d decimals,
// right-aligned, "." separator, rounded) and "Iw" (integer, right-aligned, rounded). A value that
// does not fit fills the field with "*". tipo is the host's type code of the value (4 for a 32-bit
// float, 5 for a 64-bit float); the value is rounded half away from zero from the digits Str
// prints for its type (7 for a 32-bit float, 15 otherwise). An unknown descriptor raises 5.
QString FormataCampo(double valor, const QString& descritor, int tipo);
// The number of a fixed field, whatever the locale: blanks around are ignored, "." or "," is the
// decimal separator, a blank field is 0; any other text raises error 13.
double LeNumero(const QString& campo);

}  // namespace texto
