#include "platform/texto/Texto.h"

#include "Apoio.h"

using namespace texto;

TEST(Cadeias, ColumnsPastTheEndAreSimplyAbsent) {
    const QString linha = QStringLiteral("  1234 São Simão");
    EXPECT_EQ(Mid(linha, 3, 4), "1234");
    EXPECT_EQ(Mid(linha, 8, 60), QStringLiteral("São Simão"));
    EXPECT_EQ(Mid(linha, 8), QStringLiteral("São Simão"));
    EXPECT_EQ(Mid(linha, 16, 5), QStringLiteral("o"));
    EXPECT_EQ(Mid(linha, 17, 5), "");
    EXPECT_EQ(Mid(linha, 77, 4), "");
    EXPECT_EQ(Mid(linha, 3, 0), "");
    EXPECT_EQ(Left(linha, 4), "  12");
    EXPECT_EQ(Left(linha, 99), linha);
    EXPECT_EQ(Right(linha, 5), QStringLiteral("Simão"));
    EXPECT_EQ(Right(linha, 99), linha);
    EXPECT_EQ(Space(3), "   ");
    EXPECT_EQ(Space(0), "");
}

TEST(Cadeias, BadPositionsAndCountsRaiseError5) {
    EXPECT_EQ(numeroDoErro([] { Mid("abc", 0, 1); }), 5);
    EXPECT_EQ(numeroDoErro([] { Mid("abc", -1); }), 5);
    EXPECT_EQ(numeroDoErro([] { Left("abc", -1); }), 5);
    EXPECT_EQ(numeroDoErro([] { Right("abc", -1); }), 5);
    EXPECT_EQ(numeroDoErro([] { Space(-2); }), 5);
    EXPECT_EQ(numeroDoErro([] { InStr("abc", "a", false, 0); }), 5);
}

TEST(Cadeias, TrimRemovesOnlyTheBlank) {
    EXPECT_EQ(Trim("  a  b  "), "a  b");
    EXPECT_EQ(Trim("     "), "");
    EXPECT_EQ(Trim(""), "");
    EXPECT_EQ(Trim("\ta\r\n"), "\ta\r\n");
    EXPECT_EQ(Trim(QStringLiteral("\u00A0x ")), QStringLiteral("\u00A0x"));
}

TEST(Cadeias, InStrFindsFromAColumnWithOrWithoutCase) {
    const QString caminho = QStringLiteral("/casos/VAZPAST.DAT/Vazpast.dat");
    EXPECT_EQ(InStr(caminho, "Vazpast.dat"), 20);
    EXPECT_EQ(InStr(caminho, "vazpast.dat", true), 8);
    EXPECT_EQ(InStr(caminho, "vazpast.dat", true, 9), 20);
    EXPECT_EQ(InStr(caminho, "vazpast.dat"), 0);
    EXPECT_EQ(InStr(QStringLiteral("SÃO SIMÃO"), QStringLiteral("simão"), true), 5);
    EXPECT_EQ(InStr("abc", "", false, 2), 2);
    EXPECT_EQ(InStr("abc", "a", false, 9), 0);
}

TEST(Cadeias, CaseChangesKeepEveryColumn) {
    EXPECT_EQ(UCase(QStringLiteral("três marias")), QStringLiteral("TRÊS MARIAS"));
    EXPECT_EQ(LCase(QStringLiteral("SÃO SIMÃO Ç")), QStringLiteral("são simão ç"));
    EXPECT_EQ(UCase(QStringLiteral("ßÿ")), QStringLiteral("ßŸ"));
}
