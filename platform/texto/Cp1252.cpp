#include "platform/texto/ArquivoTexto.h"

#include <algorithm>
#include <array>

namespace texto {

namespace {

// Bytes 0x80 to 0x9F; the rest of the code page is Latin-1. The five undefined bytes keep the
// control character of their own value, so that every byte survives a round trip.
constexpr std::array<char16_t, 32> Faixa80{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  //
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  //
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  //
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,  //
};

char pByte(char16_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) {
        return static_cast<char>(c);
    }
    const auto achado = std::find(Faixa80.begin(), Faixa80.end(), c);
    return achado == Faixa80.end() ? '?' : static_cast<char>(0x80 + (achado - Faixa80.begin()));
}

}  // namespace

QString DeCp1252(const QByteArray& bytes) {
    QString texto(bytes.size(), Qt::Uninitialized);
    QChar* destino = texto.data();
    for (const char b : bytes) {
        const auto u = static_cast<unsigned char>(b);
        *destino++ = QChar(u >= 0x80 && u < 0xA0 ? Faixa80[u - 0x80] : char16_t{u});
    }
    return texto;
}

QByteArray ParaCp1252(const QString& s) {
    QByteArray bytes;
    bytes.reserve(s.size());
    for (qsizetype i = 0; i < s.size(); ++i) {
        // a character beyond the basic plane is one character, and one "?"
        if (s[i].isHighSurrogate() && i + 1 < s.size() && s[i + 1].isLowSurrogate()) {
            ++i;
        }
        bytes += pByte(s[i].unicode());
    }
    return bytes;
}

}  // namespace texto
