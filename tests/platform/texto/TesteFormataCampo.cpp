#include "platform/texto/Texto.h"

#include "Apoio.h"

#include <limits>
#include <utility>

using namespace texto;

namespace {

constexpr int Single = 4;
constexpr int Double = 5;

struct Formato {
    double valor;
    const char* descritor;
    const char* campo;
    int tipo = Single;
};

}  // namespace

// Layouts as gfortran 12 writes them for a REAL*4. Where gfortran rounds the binary value half to
// even, the host's formatter rounds the printed digits half away from zero: a Single from its 7
// digits, a Double from its 15 (the rows after the blank line).
TEST(FormataCampo, LaysOutFieldsAsFortranRoundingThePrintedDigits) {
    // clang-format off
    const Formato casos[] = {
        {0.5, "F4.1", " 0.5"},   {0.5, "F2.1", ".5"},     {-0.5, "F3.1", "-.5"},   {-0.5, "F2.1", "**"},
        {99.96, "F4.1", "****"}, {99.94, "F4.1", "99.9"}, {-0.04, "F4.1", "-0.0"}, {0, "F2.1", ".0"},
        {0.4, "F5.0", "   0."},  {3, "F2.0", "3."},       {-12.345, "F6.2", "-12.35"},
        {123, "I4", " 123"},     {123, "I2", "**"},       {-0.4, "I2", " 0"},      {12.5, "f6.2", " 12.50"},

        {0.45f, "F4.1", " 0.5"},     {0.45f, "F4.1", " 0.4", Double},                 {9.95f, "F3.1", "***"},
        {0.25, "F4.1", " 0.3", Double},  {2.5, "I1", "3", Double},  {-2.5, "I2", "-3", Double},
        {std::numeric_limits<double>::quiet_NaN(), "F4.1", "****", Double}};
    // clang-format on
    for (const auto& [valor, descritor, campo, tipo] : casos) {
        EXPECT_EQ(FormataCampo(valor, descritor, tipo), campo)
            << valor << " " << descritor << " type " << tipo;
    }
}

// The limits file: every limit the screen allows is written in 4 columns and read back unchanged.
TEST(FormataCampo, LimitsSurviveWritingAndReading) {
    for (int decimos = 1; decimos <= 999; ++decimos) {
        const float limite = static_cast<float>(decimos / 10.0);
        const QString campo = FormataCampo(limite, "F4.1", Single);
        ASSERT_EQ(campo.size(), 4);
        ASSERT_EQ(static_cast<float>(LeNumero(campo)), limite) << campo.toStdString();
    }
}

// Fields of the limits file read alike whatever the user's number format.
TEST(LeNumero, TakesPointOrCommaAndNothingElseInAnyLocale) {
    const std::pair<const char*, double> casos[] = {{" 5.0", 5}, {"12,5", 12.5}, {"    ", 0},   {"-.5", -0.5},
                                                    {"+3", 3},   {"5.", 5},      {" 1,5 ", 1.5}};
    for (const QLocale& local : {QLocale::c(), Portugues}) {
        const EmLocal em(local);
        for (const auto& [campo, valor] : casos) {
            EXPECT_EQ(LeNumero(campo), valor) << campo << " in " << local.name().toStdString();
        }
        for (const char* campo : {"1.2.3", "abc", "1 2", "-", "1e2", "1.234,5"}) {
            EXPECT_EQ(numeroDoErro([campo] { LeNumero(campo); }), 13)
                << campo << " in " << local.name().toStdString();
        }
    }
}
