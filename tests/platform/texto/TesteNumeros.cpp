#include "platform/texto/Texto.h"

#include "Apoio.h"

#include <cmath>
#include <cstdint>
#include <utility>

using namespace texto;

TEST(Val, ReadsTheLongestNumberAndSkipsBlanksAnywhere) {
    const EmLocal pt(Portugues);  // the point whatever the locale
    // clang-format off
    const std::pair<const char*, double> casos[] = {
        {"12 34", 1234},   {"  -12.5", -12.5}, {"- 3", -3},    {"\t1\n2", 12},   {"1 . 5", 1.5},
        {".5", 0.5},       {"1.2.3", 1.2},     {"1e", 1},      {"1D2", 100},     {"1d-2", 0.01},
        {"2 E 1 0", 2e10}, {"1e+-2", 1},       {"", 0},        {"--3", 0},       {"&H10", 0},
        {"12abc", 12},     {"12,5", 12},       {"\r5", 0},     {"0.1", 0.1},     {"1e999", HUGE_VAL}};
    // clang-format on
    for (const auto& [texto, valor] : casos) {
        EXPECT_EQ(Val(texto), valor) << texto;
    }
}

TEST(Val, WeeklyFlowFieldsWrappedInZeros) {
    const auto campo = [](const char* s) { return Val("0" + Trim(QString::fromLatin1(s)) + "0"); };
    confere<double>({CASO(campo("123"), 1230), CASO(campo("  123.5."), 123.5), CASO(campo("12.5"), 12.5),
                     CASO(campo("       "), 0), CASO(campo("."), 0)});
}

TEST(Conversoes, RoundHalfToEvenAndRaiseError6OutsideTheType) {
    confere<std::int64_t>({CASO(CInt(2.5), 2), CASO(CInt(3.5), 4), CASO(CInt(-2.5), -2),
                           CASO(CInt(2.5000001), 3), CASO(CByte(-0.5), 0),
                           CASO(CLng(-2147483648.5), -2147483648)});
    confere<int>({ERRO(CByte(255.5), 6), ERRO(CByte(-0.51), 6), ERRO(CInt(32767.5), 6),
                  ERRO(CInt(HUGE_VAL), 6), ERRO(CLng(2147483647.5), 6), ERRO(CLng(std::nan("")), 6),
                  ERRO(CSng(1e39), 6)});
}

// Screens read what the user typed in the locale's form; IsNumeric also takes the point form.
TEST(Conversoes, TextConversionsAndIsNumericUseTheLocale) {
    const EmLocal pt(Portugues);
    confere<double>({CASO(CDbl(u"1.234,5"_s), 1234.5), CASO(CDbl(u" 12,5 "_s), 12.5)});
    confere<std::int64_t>({CASO(CLng(u"12,5"_s), 12), CASO(CLng(u"13,5"_s), 14)});
    for (const char* texto : {"12,5", "12.5", "1.234,5", " -0,5 "}) {
        EXPECT_TRUE(IsNumeric(texto)) << texto;
    }
    for (const char* texto : {"", "   ", "abc", "12,5x", "12,5,3", "inf", "nan"}) {
        EXPECT_EQ(numeroDoErro([texto] { CDbl(texto); }), 13) << texto;
        EXPECT_EQ(numeroDoErro([texto] { CLng(texto); }), 13) << texto;
        EXPECT_FALSE(IsNumeric(texto)) << texto;
    }
    confere<int>({ERRO(CDbl(u"1e400"_s), 6), ERRO(CLng(u"3000000000"_s), 6)});
}
