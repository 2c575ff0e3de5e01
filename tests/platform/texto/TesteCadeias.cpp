#include "platform/texto/Texto.h"

#include "Apoio.h"

using namespace texto;

TEST(Cadeias, ColumnsPastTheEndAreAbsentAndOnlyTheBlankIsTrimmed) {
    const QString linha = u"  1234 São Simão"_s;
    confere<QString>({CASO(Mid(linha, 3, 4), u"1234"_s), CASO(Mid(linha, 8, 60), u"São Simão"_s),
                      CASO(Mid(linha, 8), u"São Simão"_s), CASO(Mid(linha, 16, 5), u"o"_s),
                      CASO(Mid(linha, 17, 5), ""), CASO(Mid(linha, 77, 4), ""), CASO(Mid(linha, 3, 0), ""),
                      CASO(Left(linha, 4), u"  12"_s), CASO(Left(linha, 99), linha),
                      CASO(Right(linha, 5), u"Simão"_s), CASO(Right(linha, 99), linha),
                      CASO(Space(3), u"   "_s), CASO(Space(0), ""), CASO(Trim(u"  a  b  "_s), u"a  b"_s),
                      CASO(Trim(u"     "_s), ""), CASO(Trim(u"\ta\r\n"_s), u"\ta\r\n"_s),
                      CASO(Trim(u"\u00A0x "_s), u"\u00A0x"_s),
                      // Case changes keep every column: no "ß" becomes "SS".
                      CASO(UCase(u"três marias ßÿ"_s), u"TRÊS MARIAS ßŸ"_s),
                      CASO(LCase(u"SÃO SIMÃO Ç"_s), u"são simão ç"_s)});
}

TEST(Cadeias, InStrFindsFromAColumnWithOrWithoutCase) {
    const QString caminho = u"/casos/VAZPAST.DAT/Vazpast.dat"_s;
    confere<qsizetype>(
        {CASO(InStr(caminho, u"Vazpast.dat"_s), 20), CASO(InStr(caminho, u"vazpast.dat"_s, true), 8),
         CASO(InStr(caminho, u"vazpast.dat"_s, true, 9), 20), CASO(InStr(caminho, u"vazpast.dat"_s), 0),
         CASO(InStr(u"SÃO SIMÃO"_s, u"simão"_s, true), 5), CASO(InStr(u"abc"_s, {}, false, 2), 2),
         CASO(InStr(u"abc"_s, u"a"_s, false, 9), 0)});
}

TEST(Cadeias, BadPositionsAndCountsRaiseError5) {
    const QString abc = u"abc"_s;
    confere<int>({ERRO(Mid(abc, 0, 1), 5), ERRO(Mid(abc, -1), 5), ERRO(Left(abc, -1), 5),
                  ERRO(Right(abc, -1), 5), ERRO(Space(-2), 5), ERRO(InStr(abc, u"a"_s, false, 0), 5)});
}
