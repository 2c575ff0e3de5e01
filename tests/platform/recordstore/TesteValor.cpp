#include "Apoio.h"

#include <QTimeZone>

namespace {

QDateTime data(int a, int m, int d, int h = 0, int min = 0, int s = 0) {
    return {QDate(a, m, d), QTime(h, min, s), QTimeZone::utc()};
}

}  // namespace

TEST(Valor, ReadsAsTheOldPlatformConverted) {
    const Valor nulo;
    EXPECT_TRUE(nulo.nulo());
    EXPECT_FALSE(Valor("").nulo());
    // Integers round half to even; true is -1; a text holds a locale-free number.
    confere<std::int64_t>({CASO(nulo.paraInteiro(), 0), CASO(Valor(2.5).paraInteiro(), 2),
                           CASO(Valor(3.5).paraInteiro(), 4), CASO(Valor(-2.5).paraInteiro(), -2),
                           CASO(Valor(2.51).paraInteiro(), 3), CASO(Valor(true).paraInteiro(), -1),
                           CASO(Valor(std::int64_t{9007199254740993}).paraInteiro(), 9007199254740993)});
    confere<double>({CASO(nulo.paraDouble(), 0), CASO(Valor(" 12.5 ").paraDouble(), 12.5),
                     CASO(Valor("1,5").paraDouble(), 0), CASO(Valor("abc").paraDouble(), 0)});
    confere<bool>({CASO(nulo.paraBool(), false), CASO(Valor("Verdadeiro").paraBool(), true),
                   CASO(Valor("false").paraBool(), false), CASO(Valor("2").paraBool(), true)});
    confere<QString>(
        {CASO(nulo.paraTexto(), ""), CASO(Valor(0.1).paraTexto(), "0.1"), CASO(Valor(-7).paraTexto(), "-7")});
    confere<int>({ERRO(Valor(1e300).paraInteiro(), 6), ERRO(Valor("talvez").paraBool(), 13)});
}

TEST(Valor, DatesCountDaysFromTheZeroDateAndPrintWithoutMidnightOrTheZeroDate) {
    confere<QDateTime>({CASO(Valor(36526).paraDataHora(), data(2000, 1, 1)),
                        CASO(Valor(-1.25).paraDataHora(), data(1899, 12, 29, 6)),
                        CASO(Valor("2024-02-29 13:45:10").paraDataHora(), data(2024, 2, 29, 13, 45, 10)),
                        CASO(Valor("2024-02-29T13:45:10").paraDataHora(), data(2024, 2, 29, 13, 45, 10)),
                        CASO(Valor("13:45").paraDataHora(), data(1899, 12, 30, 13, 45))});
    EXPECT_DOUBLE_EQ(Valor(data(2000, 1, 1, 18)).paraDouble(), 36526.75);
    EXPECT_EQ(numeroDoErro([] { Valor("29/02/2024").paraDataHora(); }), 13);
    confere<QString>({CASO(Valor(data(2024, 2, 29)).paraTexto(), "2024-02-29"),
                      CASO(Valor(data(1899, 12, 30, 8, 5)).paraTexto(), "08:05:00"),
                      CASO(Valor(data(2024, 2, 29, 8, 5)).paraTexto(), "2024-02-29 08:05:00")});
}
