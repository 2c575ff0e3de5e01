#include "platform/recordstore/Colacao.h"

#include "platform/recordstore/Erros.h"

#include <sqlite3.h>
#include <unicode/ucol.h>

#include <memory>

namespace recordstore {

namespace {

int compara(void* colador, int bytesA, const void* a, int bytesB, const void* b) {
    // SQLite hands the text over in UTF-16, which ICU compares without conversion.
    const UCollationResult r =
        ucol_strcoll(static_cast<const UCollator*>(colador), static_cast<const UChar*>(a), bytesA / 2,
                     static_cast<const UChar*>(b), bytesB / 2);
    return r == UCOL_LESS ? -1 : (r == UCOL_GREATER ? 1 : 0);
}

void fecha(void* colador) {
    ucol_close(static_cast<UCollator*>(colador));
}

}  // namespace

void registraColacaoGeral(sqlite3* bd) {
    UErrorCode estado = U_ZERO_ERROR;
    std::unique_ptr<UCollator, decltype(&ucol_close)> colador(ucol_open("", &estado), &ucol_close);
    if (U_FAILURE(estado)) {
        throw erroBD(ErroReservado, QString::fromLatin1(u_errorName(estado)));
    }
    ucol_setStrength(colador.get(), UCOL_SECONDARY);
    const int rc = sqlite3_create_collation_v2(bd, "GERAL", SQLITE_UTF16, colador.get(), &compara, &fecha);
    if (rc != SQLITE_OK) {
        throw erroBD(ErroReservado, QString::number(rc));
    }
    colador.release();  // the connection owns it now
}

}  // namespace recordstore
