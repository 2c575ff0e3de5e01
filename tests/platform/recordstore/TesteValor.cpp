#include "platform/recordstore/Valor.h"

#include "Apoio.h"

#include <QTimeZone>

using recordstore::Valor;

namespace {

QDateTime data(int a, int m, int d, int h = 0, int min = 0, int s = 0) {
    return {QDate(a, m, d), QTime(h, min, s), QTimeZone::utc()};
}

}  // namespace

TEST(Valor, NullReadsAsZeroFalseOrEmpty) {
    const Valor nulo;
    EXPECT_TRUE(nulo.nulo());
    EXPECT_EQ(nulo.paraInteiro(), 0);
    EXPECT_EQ(nulo.paraDouble(), 0.0);
    EXPECT_FALSE(nulo.paraBool());
    EXPECT_EQ(nulo.paraTexto(), "");
    EXPECT_FALSE(Valor("").nulo());
}

TEST(Valor, IntegersRoundHalfToEvenAndTrueIsMinusOne) {
    EXPECT_EQ(Valor(2.5).paraInteiro(), 2);
    EXPECT_EQ(Valor(3.5).paraInteiro(), 4);
    EXPECT_EQ(Valor(-2.5).paraInteiro(), -2);
    EXPECT_EQ(Valor(2.51).paraInteiro(), 3);
    EXPECT_EQ(Valor(true).paraInteiro(), -1);
    EXPECT_EQ(Valor(std::int64_t{9007199254740993}).paraInteiro(),
              9007199254740993);  // past a double's 53 bits
    EXPECT_EQ(numeroDoErro([] { Valor(1e300).paraInteiro(); }), 6);
}

TEST(Valor, TextsHoldLocaleFreeNumbers) {
    EXPECT_EQ(Valor(" 12.5 ").paraDouble(), 12.5);
    EXPECT_EQ(Valor("1,5").paraDouble(), 0.0);
    EXPECT_EQ(Valor("abc").paraDouble(), 0.0);
    EXPECT_EQ(Valor(0.1).paraTexto(), "0.1");
    EXPECT_EQ(Valor(-7).paraTexto(), "-7");
    EXPECT_TRUE(Valor("Verdadeiro").paraBool());
    EXPECT_FALSE(Valor("false").paraBool());
    EXPECT_TRUE(Valor("2").paraBool());
    EXPECT_EQ(numeroDoErro([] { Valor("talvez").paraBool(); }), 13);
}

TEST(Valor, DatesCountDaysFromTheZeroDate) {
    EXPECT_EQ(Valor(36526).paraDataHora(), data(2000, 1, 1));
    EXPECT_EQ(Valor(-1.25).paraDataHora(), data(1899, 12, 29, 6));
    EXPECT_DOUBLE_EQ(Valor(data(2000, 1, 1, 18)).paraDouble(), 36526.75);
    EXPECT_EQ(Valor("2024-02-29 13:45:10").paraDataHora(), data(2024, 2, 29, 13, 45, 10));
    EXPECT_EQ(Valor("2024-02-29T13:45:10").paraDataHora(), data(2024, 2, 29, 13, 45, 10));
    EXPECT_EQ(Valor("13:45").paraDataHora(), data(1899, 12, 30, 13, 45));
    EXPECT_EQ(numeroDoErro([] { Valor("29/02/2024").paraDataHora(); }), 13);
    // Printed as the old platform printed them: no midnight, no zero date.
    EXPECT_EQ(Valor(data(2024, 2, 29)).paraTexto(), "2024-02-29");
    EXPECT_EQ(Valor(data(1899, 12, 30, 8, 5)).paraTexto(), "08:05:00");
    EXPECT_EQ(Valor(data(2024, 2, 29, 8, 5)).paraTexto(), "2024-02-29 08:05:00");
}
