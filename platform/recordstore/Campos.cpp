#include "platform/recordstore/Campos.h"

#include "platform/recordstore/Conversoes.h"
#include "platform/recordstore/Erros.h"

#include <cfloat>
#include <cmath>
#include <limits>

namespace recordstore::campos {

namespace {

using plataforma::ErroVB;

constexpr int tamanhoMaximoTexto = 255;

// A number as an assignment to a numeric field sees it: a text must hold one.
double numeroDe(const Valor& valor) {
    if (valor.ehTexto()) {
        const auto n = conversoes::numeroDeTexto(valor.paraTexto());
        if (!n) {
            throw ErroVB::padrao(plataforma::ErroTiposIncompativeis);
        }
        return *n;
    }
    return valor.paraDouble();
}

std::int64_t inteiroNaFaixa(const Valor& valor, std::int64_t minimo, std::int64_t maximo) {
    const std::int64_t n = conversoes::arredondaPar(numeroDe(valor));
    if (n < minimo || n > maximo) {
        throw ErroVB::padrao(plataforma::ErroEstouro);
    }
    return n;
}

float simples(double numero) {
    if (!std::isfinite(numero) || std::fabs(numero) > FLT_MAX) {
        throw ErroVB::padrao(plataforma::ErroEstouro);
    }
    return static_cast<float>(numero);
}

}  // namespace

int tamanhoTexto(const FieldDef& campo) {
    return campo.Size > 0 ? campo.Size : tamanhoMaximoTexto;
}

Valor converte(const FieldDef& campo, const Valor& valor) {
    if (valor.nulo()) {
        return {};
    }
    switch (campo.Type) {
        case Tipo::Boolean:
            return valor.paraBool();
        case Tipo::Byte:
            return inteiroNaFaixa(valor, 0, std::numeric_limits<std::uint8_t>::max());
        case Tipo::Integer:
            return inteiroNaFaixa(valor, std::numeric_limits<std::int16_t>::min(),
                                  std::numeric_limits<std::int16_t>::max());
        case Tipo::Long:
            return inteiroNaFaixa(valor, std::numeric_limits<std::int32_t>::min(),
                                  std::numeric_limits<std::int32_t>::max());
        case Tipo::Single:
            return simples(numeroDe(valor));
        case Tipo::Double: {
            const double d = numeroDe(valor);
            if (!std::isfinite(d)) {
                throw ErroVB::padrao(plataforma::ErroEstouro);
            }
            return d;
        }
        case Tipo::DataHora:
            return conversoes::normalizaData(valor.paraDataHora());
        case Tipo::Texto: {
            const QString t = valor.paraTexto();
            if (t.size() > tamanhoTexto(campo)) {
                throw erroBD(ErroCampoPequeno);
            }
            return t;
        }
    }
    throw ErroVB::padrao(plataforma::ErroTiposIncompativeis);
}

ValorSql paraSql(const FieldDef& campo, const Valor& convertido) {
    if (convertido.nulo()) {
        return {};
    }
    switch (campo.Type) {
        case Tipo::Boolean:
            return std::int64_t{convertido.paraBool() ? 1 : 0};
        case Tipo::Byte:
        case Tipo::Integer:
        case Tipo::Long:
            return convertido.paraInteiro();
        case Tipo::Single:
        case Tipo::Double:
            return convertido.paraDouble();
        case Tipo::DataHora:
            return conversoes::textoDeData(convertido.paraDataHora());
        case Tipo::Texto:
            break;
    }
    return convertido.paraTexto();
}

Valor le(const FieldDef& campo, const ValorSql& armazenado) {
    if (std::holds_alternative<std::monostate>(armazenado)) {
        return {};
    }
    if (const auto* texto = std::get_if<QString>(&armazenado)) {
        if (campo.Type == Tipo::DataHora) {
            if (const auto data = conversoes::dataDeTexto(*texto)) {
                return *data;
            }
        }
        return *texto;  // a text field, or a hand-made file's text in another type
    }
    const Valor numero = std::holds_alternative<std::int64_t>(armazenado)
                             ? Valor(std::get<std::int64_t>(armazenado))
                             : Valor(std::get<double>(armazenado));
    switch (campo.Type) {
        case Tipo::Boolean:
            return numero.paraBool();
        case Tipo::Byte:
        case Tipo::Integer:
        case Tipo::Long:
            return numero.paraInteiro();
        case Tipo::Single:
        case Tipo::Double:
            return numero.paraDouble();
        case Tipo::DataHora:
            return numero.paraDataHora();
        case Tipo::Texto:
            break;
    }
    return numero.paraTexto();
}

bool recusaComprimentoZero(const FieldDef& campo, const Valor& convertido) {
    return campo.Type == Tipo::Texto && !campo.AllowZeroLength && convertido.ehTexto() &&
           convertido.paraTexto().isEmpty();
}

}  // namespace recordstore::campos
