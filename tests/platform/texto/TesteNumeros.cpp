#include "platform/texto/Texto.h"

#include "Apoio.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <utility>

using namespace texto;

namespace {

const double Infinito = std::numeric_limits<double>::infinity();
const double NaN = std::numeric_limits<double>::quiet_NaN();

}  // namespace

TEST(Val, ReadsTheLongestNumberAndSkipsBlanksAnywhere) {
    const EmLocal pt(Portugues);  // the point whatever the locale
    // clang-format off
    const std::pair<const char*, double> casos[] = {
        {"12 34", 1234},   {"  -12.5", -12.5}, {"+7", 7},      {"- 3", -3},    {"\t1\n2", 12},
        {"1 . 5", 1.5},    {".5", 0.5},        {"-.5", -0.5},  {"5.", 5},      {"1.2.3", 1.2},
        {"1e", 1},         {"1e+", 1},         {"1E-", 1},     {"1D2", 100},   {"1d-2", 0.01},
        {"2 E 1 0", 2e10}, {"1e2e3", 100},     {"1e+-2", 1},   {"-", 0},       {".", 0},
        {"", 0},           {"--3", 0},         {"&H10", 0},    {"&O7", 0},     {"abc12", 0},
        {"12abc", 12},     {"12,5", 12},       {"\r5", 0},     {"1234.5.", 1234.5},
        {"0.1", 0.1},      {"123456789012345678", 123456789012345678.0},
        {"1e999", Infinito}, {"-1 E 400", -Infinito}, {"1e99999999999999999999", Infinito}};
    // clang-format on
    for (const auto& [texto, valor] : casos) {
        EXPECT_EQ(Val(texto), valor) << texto;
    }
    EXPECT_EQ(Val("1" + QString(400, u'0')), Infinito);
    EXPECT_EQ(Val("0." + QString(400, u'0') + "1"), 0);
    EXPECT_EQ(Val("0." + QString(400, u'0') + "1e400"), 0.1);
    for (const char* zero : {"-0", "-1e-999", "-0.0e5", "-"}) {
        EXPECT_FALSE(std::signbit(Val(zero))) << "no negative zero from " << zero;
    }
}

TEST(Val, WeeklyFlowFieldsWrappedInZeros) {
    const auto campo = [](const char* s) { return Val("0" + Trim(QString::fromLatin1(s)) + "0"); };
    confere<double>({CASO(campo("123"), 1230), CASO(campo("  123.5."), 123.5), CASO(campo("12.5"), 12.5),
                     CASO(campo("       "), 0), CASO(campo(""), 0), CASO(campo("."), 0)});
}

TEST(Conversoes, RoundHalfToEvenAndRaiseError6OutsideTheType) {
    confere<std::int64_t>({CASO(CInt(2.5), 2), CASO(CInt(3.5), 4), CASO(CInt(-2.5), -2), CASO(CInt(-3.5), -4),
                           CASO(CInt(2.5000001), 3), CASO(CInt(-32768.5), -32768), CASO(CByte(-0.5), 0),
                           CASO(CByte(255.4), 255), CASO(CLng(2147483647.4), 2147483647),
                           CASO(CLng(-2147483648.5), -2147483648), CASO(CLng(1e9 + 0.5), 1000000000)});
    confere<float>({CASO(CSng(0.1), 0.1f), CASO(CSng(-3.4028234e38), -3.4028234e38f)});
    confere<int>({ERRO(CByte(255.5), 6), ERRO(CByte(-0.51), 6), ERRO(CByte(Infinito), 6), ERRO(CByte(NaN), 6),
                  ERRO(CInt(32767.5), 6), ERRO(CInt(-32768.6), 6), ERRO(CInt(-Infinito), 6),
                  ERRO(CInt(NaN), 6), ERRO(CLng(2147483647.5), 6), ERRO(CLng(-2147483649.0), 6),
                  ERRO(CLng(NaN), 6), ERRO(CSng(1e39), 6), ERRO(CSng(-1e39), 6), ERRO(CSng(Infinito), 6),
                  ERRO(CSng(NaN), 6)});
}

TEST(Conversoes, TextConversionsUseTheLocale) {
    const EmLocal pt(Portugues);
    confere<double>({CASO(CDbl(u"1.234,5"_s), 1234.5), CASO(CDbl(u" 12,5 "_s), 12.5)});
    confere<std::int64_t>({CASO(CLng(u"12,5"_s), 12), CASO(CLng(u"13,5"_s), 14)});
    for (const char* texto : {"", "   ", "abc", "12,5x", "12,5,3", "inf", "nan"}) {
        EXPECT_EQ(numeroDoErro([texto] { CDbl(texto); }), 13) << texto;
        EXPECT_EQ(numeroDoErro([texto] { CLng(texto); }), 13) << texto;
    }
    confere<int>({ERRO(CDbl(u"1e400"_s), 6), ERRO(CLng(u"3000000000"_s), 6)});
}

TEST(Conversoes, IsNumericTakesTheLocaleFormAndThePointForm) {
    struct EmCadaLocal {
        QLocale local;
        std::initializer_list<const char*> sim;
        std::initializer_list<const char*> nao;
    };
    const EmCadaLocal casos[] = {{QLocale::c(),
                           {"12.5", " 12 ", "-3", "+3", "1e5", ".5", "5."},
                           {"", "   ", "abc", "12a", "1.2.3", ".", "-", "inf", "nan", "1e400", "1 2"}},
                          {Portugues, {"12,5", "12.5", "1.234,5", " -0,5 "}, {"12,5,3", "R$ 5", "", "inf"}}};
    for (const auto& [local, sim, nao] : casos) {
        const EmLocal em(local);
        for (const char* texto : sim) {
            EXPECT_TRUE(IsNumeric(texto)) << texto << " in " << local.name().toStdString();
        }
        for (const char* texto : nao) {
            EXPECT_FALSE(IsNumeric(texto)) << texto << " in " << local.name().toStdString();
        }
    }
}
