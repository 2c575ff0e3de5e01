#include "platform/texto/Texto.h"

#include "platform/texto/Decimal.h"

#include <QLocale>

#include <cmath>
#include <cstdlib>

namespace texto {

namespace {

using detalhe::Decimal;

bool pNegativo(double x) {
    return std::signbit(x) && x != 0.0;
}

// The digits of the old general number format, without sign (infinities and NaN as the old run
// time printed them; no model file should carry one): fixed notation while the decimal
// exponent lies within -5 < e < precisao, else one digit, the fraction and "E+nn".
QString pFormaGeral(double x, int precisao, const QString& separador, bool zeroAntesDoSeparador) {
    if (std::isinf(x)) {
        return QStringLiteral("1.#INF");
    }
    if (std::isnan(x)) {
        return QStringLiteral("1.#QNAN");
    }
    const Decimal d = detalhe::decompoe(x, precisao);
    if (d.digitos.empty()) {
        return QStringLiteral("0");
    }
    if (d.expoente > -5 && d.expoente < precisao) {
        const auto partes = detalhe::partesFixas(d, 0);
        QString r =
            QString::fromStdString(partes.inteira.empty() && zeroAntesDoSeparador ? "0" : partes.inteira);
        if (!partes.fracao.empty()) {
            r += separador + QString::fromStdString(partes.fracao);
        }
        return r;
    }
    QString r = QString::fromStdString(d.digitos.substr(0, 1));
    if (d.digitos.size() > 1) {
        r += separador + QString::fromStdString(d.digitos.substr(1));
    }
    return r + QStringLiteral("E%1%2")
                   .arg(QChar(d.expoente < 0 ? u'-' : u'+'))
                   .arg(std::abs(d.expoente), 2, 10, QChar(u'0'));
}

QString pStr(double x, int precisao) {
    return (pNegativo(x) ? u'-' : u' ') + pFormaGeral(x, precisao, QStringLiteral("."), false);
}

// CStr writes the zero that Str leaves out: "0,5".
QString pTextoRegional(double x, int precisao) {
    const QString digitos = pFormaGeral(x, precisao, QLocale().decimalPoint(), true);
    return pNegativo(x) ? u'-' + digitos : digitos;
}

}  // namespace

QString Str(float x) {
    return pStr(x, detalhe::DigitosSingle);
}

QString Str(double x) {
    return pStr(x, detalhe::DigitosDouble);
}

QString Str(std::int64_t x) {
    return x < 0 ? QString::number(x) : u' ' + QString::number(x);
}

QString TextoRegional(float x) {
    return pTextoRegional(x, detalhe::DigitosSingle);
}

QString TextoRegional(double x) {
    return pTextoRegional(x, detalhe::DigitosDouble);
}

QString FormatNumber(double x, int casas) {
    return QLocale().toString(x, 'f', casas);
}

}  // namespace texto
