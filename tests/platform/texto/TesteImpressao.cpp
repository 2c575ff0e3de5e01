#include "platform/texto/Texto.h"

#include "Apoio.h"

#include <cstdint>
#include <limits>
#include <utility>

using namespace texto;

TEST(Str, SingleHasSevenDigitsOfItsOwnValueDoubleFifteenAndIntegersPrintWhole) {
    const EmLocal pt(Portugues);  // the point whatever the locale
    // clang-format off
    const std::pair<float, const char*> simples[] = {
        {0.1f, " .1"},              {123.45f, " 123.45"},          {1234567.0f, " 1234567"},
        {12345678.0f, " 1.234568E+07"}, {10000000.0f, " 1E+07"},   {-0.5f, "-.5"},
        {0.0f, " 0"},               {-0.0f, " 0"},                 {2.0f / 3.0f, " .6666667"},
        {999999.94f, " 999999.9"},  {9999999.5f, " 1E+07"},        {0.0001f, " .0001"},
        {0.00001f, " 1E-05"},       {-1.5e-10f, "-1.5E-10"},       {3.4028235e38f, " 3.402823E+38"},
        {0.5f, " .5"}};
    const std::pair<double, const char*> duplos[] = {
        {0.0001, " .0001"},      {0.00001, " 1E-05"},     {0.000099999999, " 9.9999999E-05"},
        {-0.5, "-.5"},           {0.0, " 0"},             {1e15, " 1E+15"},
        {123456789012345.0, " 123456789012345"},          {999999999999999.4, " 999999999999999"},
        {999999999999999.6, " 1E+15"},                    {1.0 / 3.0, " .333333333333333"},
        {1e100, " 1E+100"},      {-2.5e-300, "-2.5E-300"}, {0.1f, " .100000001490116"},
        {1234.5, " 1234.5"},
        {std::numeric_limits<double>::infinity(), " 1.#INF"},
        {-std::numeric_limits<double>::infinity(), "-1.#INF"}};
    // clang-format on
    for (const auto& [valor, texto] : simples) {
        EXPECT_EQ(Str(valor), texto) << texto;
    }
    for (const auto& [valor, texto] : duplos) {
        EXPECT_EQ(Str(valor), texto) << texto;
    }
    confere<QString>({CASO(Str(12), " 12"), CASO(Str(std::int16_t{-7}), "-7"),
                      CASO(Str(std::uint8_t{255}), " 255"), CASO(Str(std::int64_t{0}), " 0"),
                      CASO(Str(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808")});
}

// What a writer prints an importer must read back as the same stored value, for every value
// that came from a text of the model files (up to 6 digits for a Single, 15 for a Double).
TEST(Str, ReadsBackAsTheSameValue) {
    int comparados = 0;
    for (int potencia = -11; potencia <= 9; ++potencia) {
        const QString expoente = u"e%1"_s.arg(potencia);
        for (std::int64_t mantissa = 1; mantissa < 1000000; mantissa += 997) {
            const auto f = static_cast<float>(Val(QString::number(mantissa) + expoente));
            ASSERT_EQ(static_cast<float>(Val(Str(f))), f) << Str(f).toStdString();
            ASSERT_EQ(static_cast<float>(Val(Str(-f))), -f);
            const double d = Val(QString::number(mantissa * 1000000007) + expoente);
            ASSERT_EQ(Val(Str(d)), d) << Str(d).toStdString();
            ++comparados;
        }
    }
    EXPECT_GT(comparados, 20000);
}

TEST(TextoRegional, ScreensShowTheLocaleSeparator) {
    const EmLocal pt(Portugues);
    confere<QString>({CASO(TextoRegional(0.5f), "0,5"), CASO(TextoRegional(-0.5f), "-0,5"),
                      CASO(TextoRegional(1234.5f), "1234,5"), CASO(TextoRegional(0.1f), "0,1"),
                      CASO(TextoRegional(12345678.0f), "1,234568E+07"), CASO(TextoRegional(0.00001), "1E-05"),
                      CASO(TextoRegional(2.0 / 3.0), "0,666666666666667"), CASO(TextoRegional(0.0), "0"),
                      CASO(FormatNumber(1234.56, 1), "1.234,6"), CASO(FormatNumber(0.5, 2), "0,50"),
                      CASO(FormatNumber(-1234567.891, 2), "-1.234.567,89")});
}
