#include "platform/texto/Texto.h"

#include "Apoio.h"

#include <cmath>
#include <initializer_list>
#include <limits>
#include <utility>

using namespace texto;

namespace {

const double Infinito = std::numeric_limits<double>::infinity();
const double NaN = std::numeric_limits<double>::quiet_NaN();

}  // namespace

TEST(Val, ReadsTheLongestNumberAndSkipsBlanksAnywhere) {
    // clang-format off
    const std::pair<const char*, double> casos[] = {
        {"12 34", 1234},   {"  -12.5", -12.5}, {"+7", 7},      {"- 3", -3},    {"\t1\n2", 12},
        {"1 . 5", 1.5},    {".5", 0.5},        {"-.5", -0.5},  {"5.", 5},      {"1.2.3", 1.2},
        {"1e", 1},         {"1e+", 1},         {"1E-", 1},     {"1D2", 100},   {"1d-2", 0.01},
        {"2 E 1 0", 2e10}, {"1e2e3", 100},     {"1e+-2", 1},   {"-", 0},       {".", 0},
        {"", 0},           {"--3", 0},         {"&H10", 0},    {"&O7", 0},     {"abc12", 0},
        {"12abc", 12},     {"12,5", 12},       {"\r5", 0},     {"1234.5.", 1234.5},
        {"0.1", 0.1},      {"123456789012345678", 123456789012345678.0}};
    // clang-format on
    for (const auto& [texto, valor] : casos) {
        EXPECT_EQ(Val(texto), valor) << texto;
    }
}

TEST(Val, WeeklyFlowFieldsWrappedInZeros) {
    const auto campo = [](const char* s) { return Val(QStringLiteral("0") + Trim(s) + QStringLiteral("0")); };
    EXPECT_EQ(campo("123"), 1230);
    EXPECT_EQ(campo("  123.5."), 123.5);
    EXPECT_EQ(campo("12.5"), 12.5);
    EXPECT_EQ(campo("       "), 0);
    EXPECT_EQ(campo(""), 0);
    EXPECT_EQ(campo("."), 0);
}

TEST(Val, ExtremesGiveInfinityOrZeroAndNeverANegativeZero) {
    EXPECT_EQ(Val("1e999"), Infinito);
    EXPECT_EQ(Val("-1 E 400"), -Infinito);
    EXPECT_EQ(Val("1" + QString(400, u'0')), Infinito);
    EXPECT_EQ(Val("1e99999999999999999999"), Infinito);
    EXPECT_EQ(Val("0." + QString(400, u'0') + "1"), 0);
    EXPECT_EQ(Val("0." + QString(400, u'0') + "1e400"), 0.1);
    for (const char* zero : {"-0", "-1e-999", "-0.0e5", "-"}) {
        EXPECT_FALSE(std::signbit(Val(zero))) << zero;
    }
}

TEST_F(EmPortugues, ValKeepsThePointWhateverTheLocale) {
    EXPECT_EQ(Val("12,5"), 12);
    EXPECT_EQ(Val("12.5"), 12.5);
}

TEST(Conversoes, RoundHalfToEven) {
    EXPECT_EQ(CInt(2.5), 2);
    EXPECT_EQ(CInt(3.5), 4);
    EXPECT_EQ(CInt(-2.5), -2);
    EXPECT_EQ(CInt(-3.5), -4);
    EXPECT_EQ(CInt(2.5000001), 3);
    EXPECT_EQ(CInt(-32768.5), -32768);
    EXPECT_EQ(CByte(-0.5), 0);
    EXPECT_EQ(CByte(255.4), 255);
    EXPECT_EQ(CLng(2147483647.4), 2147483647);
    EXPECT_EQ(CLng(-2147483648.5), -2147483648);
    EXPECT_EQ(CLng(1e9 + 0.5), 1000000000);
    EXPECT_EQ(CSng(0.1), 0.1f);
}

TEST(Conversoes, ValuesOutsideTheTypeRaiseError6) {
    const auto estouram = [](auto conversao, std::initializer_list<double> valores) {
        for (const double x : valores) {
            EXPECT_EQ(numeroDoErro([&] { conversao(x); }), 6) << x;
        }
    };
    estouram(CByte, {255.5, -0.51, Infinito, NaN});
    estouram(CInt, {32767.5, -32768.6, -Infinito, NaN});
    estouram(static_cast<std::int32_t (*)(double)>(CLng), {2147483647.5, -2147483649.0, NaN});
    estouram(CSng, {1e39, -1e39, Infinito, NaN});
    EXPECT_EQ(CSng(-3.4028234e38), -3.4028234e38f);
}

TEST_F(EmPortugues, TextConversionsUseTheLocale) {
    EXPECT_EQ(CDbl("1.234,5"), 1234.5);
    EXPECT_EQ(CDbl(" 12,5 "), 12.5);
    EXPECT_EQ(CLng("12,5"), 12);
    EXPECT_EQ(CLng("13,5"), 14);
    for (const char* texto : {"", "   ", "abc", "12,5x", "12,5,3", "inf", "nan"}) {
        EXPECT_EQ(numeroDoErro([texto] { CDbl(texto); }), 13) << texto;
        EXPECT_EQ(numeroDoErro([texto] { CLng(texto); }), 13) << texto;
    }
    EXPECT_EQ(numeroDoErro([] { CDbl("1e400"); }), 6);
    EXPECT_EQ(numeroDoErro([] { CLng("3000000000"); }), 6);
}

TEST_F(EmC, IsNumericTakesThePointForm) {
    for (const char* sim : {"12.5", " 12 ", "-3", "+3", "1e5", ".5", "5."}) {
        EXPECT_TRUE(IsNumeric(sim)) << sim;
    }
    for (const char* nao : {"", "   ", "abc", "12a", "1.2.3", ".", "-", "inf", "nan", "1e400", "1 2"}) {
        EXPECT_FALSE(IsNumeric(nao)) << nao;
    }
}

TEST_F(EmPortugues, IsNumericTakesTheCommaAndStillThePoint) {
    for (const char* sim : {"12,5", "12.5", "1.234,5", " -0,5 "}) {
        EXPECT_TRUE(IsNumeric(sim)) << sim;
    }
    for (const char* nao : {"12,5,3", "R$ 5", "", "inf"}) {
        EXPECT_FALSE(IsNumeric(nao)) << nao;
    }
}
