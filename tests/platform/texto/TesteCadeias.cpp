#include "platform/texto/Texto.h"

#include "Apoio.h"

using namespace texto;

TEST(Cadeias, ColumnsPastTheEndAreAbsentAndOnlyTheBlankIsTrimmed) {
    const QString linha = u"  1234 São Simão"_s;
    confere<QString>({CASO(Mid(linha, 3, 4), u"1234"_s), CASO(Mid(linha, 8), u"São Simão"_s),
                      CASO(Mid(linha, 16, 5), u"o"_s), CASO(Mid(linha, 77, 4), ""),
                      CASO(Left(linha, 99), linha), CASO(Right(linha, 5), u"Simão"_s),
                      CASO(Trim(u"  a  b  "_s), u"a  b"_s), CASO(Trim(u"\ta\r\n"_s), u"\ta\r\n"_s),
                      // Case changes keep every column: no "ß" becomes "SS".
                      CASO(UCase(u"três marias ßÿ"_s), u"TRÊS MARIAS ßŸ"_s)});
    const QString caminho = u"/casos/VAZPAST.DAT/Vazpast.dat"_s;
    confere<qsizetype>(
        {CASO(InStr(caminho, u"Vazpast.dat"_s), 20), CASO(InStr(caminho, u"vazpast.dat"_s, true), 8),
         CASO(InStr(caminho, u"vazpast.dat"_s, true, 9), 20), CASO(InStr(caminho, u"x"_s), 0)});
    EXPECT_EQ(numeroDoErro([&linha] { Mid(linha, 0, 1); }), 5);
}
