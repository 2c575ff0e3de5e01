#include "platform/texto/Texto.h"

#include "platform/runtime/ErroVB.h"
#include "platform/texto/Decimal.h"

#include <QRegularExpression>

#include <cmath>

namespace texto {

namespace {

// The host's type code of a 32-bit float.
constexpr int TipoSingle = 4;

struct Descritor {
    bool inteiro = false;
    int largura = 0;
    int casas = 0;
};

// "Fw.d" or "Iw", either case, w from 1.
Descritor pLeDescritor(const QString& texto) {
    static const QRegularExpression forma(
        QStringLiteral("^(?:([Ff])([0-9]{1,3})\\.([0-9]{1,3})|([Ii])([0-9]{1,3}))$"));
    const auto achado = forma.match(texto);
    Descritor d;
    if (achado.hasMatch()) {
        d.inteiro = achado.hasCaptured(4);
        d.largura = achado.captured(d.inteiro ? 5 : 2).toInt();
        d.casas = d.inteiro ? 0 : achado.captured(3).toInt();
    }
    if (d.largura < 1) {
        throw plataforma::ErroVB::padrao(plataforma::ErroChamadaInvalida);
    }
    return d;
}

}  // namespace

QString FormataCampo(double valor, const QString& descritor, int tipo) {
    const Descritor formato = pLeDescritor(descritor);
    const QString estrelas(formato.largura, u'*');
    const bool single = tipo == TipoSingle;
    const double v = single ? static_cast<double>(static_cast<float>(valor)) : valor;
    if (!std::isfinite(v)) {
        return estrelas;
    }
    // Rounded from the digits the value prints with, so that 0.45 as a Single gives 0.5.
    const auto d = detalhe::arredondaCasas(
        detalhe::decompoe(v, single ? detalhe::DigitosSingle : detalhe::DigitosDouble), formato.casas);
    auto [inteira, fracao] = detalhe::partesFixas(d, formato.casas);

    std::string texto = d.negativo && (!formato.inteiro || !d.digitos.empty()) ? "-" : "";
    if (formato.inteiro) {
        texto.append(d.digitos.empty() ? "0" : inteira);
    } else {
        // A negative value that rounds to zero keeps its sign ("-0.0"), as Fortran prints it. The
        // zero before the point is optional and goes only where there is room, unless it is the
        // only digit of the field.
        const auto comZero = texto.size() + 2 + fracao.size();
        if (inteira.empty() && (formato.casas == 0 || comZero <= static_cast<std::size_t>(formato.largura))) {
            inteira.push_back('0');
        }
        texto.append(inteira).append(1, '.').append(fracao);
    }
    if (texto.size() > static_cast<std::size_t>(formato.largura)) {
        return estrelas;
    }
    return QString::fromLatin1(texto).rightJustified(formato.largura);
}

}  // namespace texto
