#include "platform/texto/Texto.h"

#include "platform/runtime/ErroVB.h"
#include "platform/texto/Decimal.h"

#include <QLocale>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>

namespace texto {

namespace {

using plataforma::ErroVB;

bool pDigito(char16_t c) {
    return c >= u'0' && c <= u'9';
}

// Val's scanner: it looks through blanks (space, tab, line feed) wherever they stand.
class LeitorVal {
public:
    explicit LeitorVal(const QString& s) : mTexto(s) {}

    char16_t atual() {
        while (mPosicao < mTexto.size() &&
               (mTexto[mPosicao] == u' ' || mTexto[mPosicao] == u'\t' || mTexto[mPosicao] == u'\n')) {
            ++mPosicao;
        }
        return mPosicao < mTexto.size() ? mTexto[mPosicao].unicode() : u'\0';
    }
    char16_t avanca() {
        ++mPosicao;
        return atual();
    }

private:
    const QString& mTexto;
    qsizetype mPosicao = 0;
};

// Enough for any double and small enough not to overflow while the digits come in.
constexpr int LimiteExpoente = 99999;

// Round to nearest, ties to even, whatever the floating-point environment says.
double pArredondaPar(double x) {
    const double r = std::round(x);
    return std::abs(r - x) == 0.5 ? 2.0 * std::round(x / 2.0) : r;
}

template <typename T>
T pParaInteiro(double x) {
    const double r = pArredondaPar(x);
    // written so that a NaN fails as well
    if (!(r >= static_cast<double>(std::numeric_limits<T>::min()) &&
          r <= static_cast<double>(std::numeric_limits<T>::max()))) {
        throw ErroVB::padrao(plataforma::ErroEstouro);
    }
    return static_cast<T>(r);
}

}  // namespace

double Val(const QString& s) {
    LeitorVal leitor(s);
    std::string numero;
    char16_t c = leitor.atual();
    if (c == u'-' || c == u'+') {
        if (c == u'-') {
            numero += '-';
        }
        c = leitor.avanca();
    }
    bool ponto = false;
    bool digitos = false;
    for (; pDigito(c) || (c == u'.' && !ponto); c = leitor.avanca()) {
        ponto = ponto || c == u'.';
        digitos = digitos || c != u'.';
        numero += static_cast<char>(c);
    }
    if (!digitos) {
        return 0.0;
    }
    if (c == u'E' || c == u'e' || c == u'D' || c == u'd') {
        c = leitor.avanca();
        const bool negativo = c == u'-';
        if (c == u'-' || c == u'+') {
            c = leitor.avanca();
        }
        int expoente = 0;
        for (; pDigito(c); c = leitor.avanca()) {
            expoente = std::min(expoente * 10 + (c - u'0'), LimiteExpoente);
        }
        numero += 'e' + std::to_string(negativo ? -expoente : expoente);
    }
    // + 0.0 turns "-0" into 0
    return detalhe::converte(numero) + 0.0;
}

double LeNumero(const QString& campo) {
    const QString t = Trim(campo);
    if (t.isEmpty()) {
        return 0.0;
    }
    std::string numero;
    bool separador = false;
    bool digitos = false;
    for (qsizetype i = 0; i < t.size(); ++i) {
        const char16_t c = t[i].unicode();
        if (i == 0 && (c == u'-' || c == u'+')) {
            numero += c == u'-' ? "-" : "";
        } else if (pDigito(c)) {
            digitos = true;
            numero += static_cast<char>(c);
        } else if ((c == u'.' || c == u',') && !separador) {
            separador = true;
            numero += '.';
        } else {
            throw ErroVB::padrao(plataforma::ErroTiposIncompativeis);
        }
    }
    if (!digitos) {
        throw ErroVB::padrao(plataforma::ErroTiposIncompativeis);
    }
    return detalhe::converte(numero) + 0.0;
}

bool IsNumeric(const QString& s) {
    const QString t = Trim(s);
    // Qt also reads "inf" and "nan", which the old run time never took for numbers
    const auto numero = [&t](const QLocale& local) {
        bool ok = false;
        return std::isfinite(local.toDouble(t, &ok)) && ok;
    };
    return !t.isEmpty() && (numero(QLocale()) || numero(QLocale::c()));
}

double CDbl(const QString& s) {
    bool ok = false;
    const double valor = QLocale().toDouble(s, &ok);
    if (ok && std::isfinite(valor)) {
        return valor;
    }
    // Qt answers a number too large with an infinity and no success: the old overflow
    throw ErroVB::padrao(!ok && std::isinf(valor) ? plataforma::ErroEstouro
                                                  : plataforma::ErroTiposIncompativeis);
}

std::uint8_t CByte(double x) {
    return pParaInteiro<std::uint8_t>(x);
}

std::int16_t CInt(double x) {
    return pParaInteiro<std::int16_t>(x);
}

std::int32_t CLng(double x) {
    return pParaInteiro<std::int32_t>(x);
}

std::int32_t CLng(const QString& s) {
    return CLng(CDbl(s));
}

float CSng(double x) {
    if (!(std::abs(x) <= static_cast<double>(std::numeric_limits<float>::max()))) {
        throw ErroVB::padrao(plataforma::ErroEstouro);
    }
    return static_cast<float>(x);
}

}  // namespace texto
