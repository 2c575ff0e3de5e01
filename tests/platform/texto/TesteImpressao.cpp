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
        {0.5f, " .5"},              {-0.5f, "-.5"},                {123.45f, " 123.45"},
        {12345678.0f, " 1.234568E+07"}, {0.0f, " 0"},              {2.0f / 3.0f, " .6666667"},
        {9999999.5f, " 1E+07"},     {0.00001f, " 1E-05"},          {-1.5e-10f, "-1.5E-10"}};
    const std::pair<double, const char*> duplos[] = {
        {0.00001, " 1E-05"},            {1.0 / 3.0, " .333333333333333"}, {0.1f, " .100000001490116"},
        {999999999999999.6, " 1E+15"},  {1234.5, " 1234.5"},
        {std::numeric_limits<double>::infinity(), " 1.#INF"}};
    // clang-format on
    for (const auto& [valor, texto] : simples) {
        EXPECT_EQ(Str(valor), texto) << texto;
    }
    for (const auto& [valor, texto] : duplos) {
        EXPECT_EQ(Str(valor), texto) << texto;
    }
    confere<QString>({CASO(Str(12), " 12"), CASO(Str(std::int16_t{-7}), "-7")});
}

// What a writer prints an importer must read back as the same stored value, for every value
// that came from a text of the model files (up to 6 digits for a Single, 15 for a Double).
TEST(Str, ReadsBackAsTheSameValue) {
    for (int potencia = -11; potencia <= 9; ++potencia) {
        const QString expoente = u"e%1"_s.arg(potencia);
        for (std::int64_t mantissa = 1; mantissa < 1000000; mantissa += 997) {
            const auto f = static_cast<float>(Val(QString::number(mantissa) + expoente));
            ASSERT_EQ(static_cast<float>(Val(Str(f))), f) << Str(f).toStdString();
            ASSERT_EQ(static_cast<float>(Val(Str(-f))), -f);
            const double d = Val(QString::number(mantissa * 1000000007) + expoente);
            ASSERT_EQ(Val(Str(d)), d) << Str(d).toStdString();
        }
    }
}

TEST(TextoRegional, ScreensShowTheLocaleSeparator) {
    const EmLocal pt(Portugues);
    confere<QString>({CASO(TextoRegional(-0.5f), "-0,5"), CASO(TextoRegional(0.1f), "0,1"),
                      CASO(TextoRegional(12345678.0f), "1,234568E+07"),
                      CASO(TextoRegional(2.0 / 3.0), "0,666666666666667"),
                      CASO(FormatNumber(1234.56, 1), "1.234,6"),
                      CASO(FormatNumber(-1234567.891, 2), "-1.234.567,89")});
}
