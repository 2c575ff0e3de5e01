#include "halvo/sdk/UtilitariosTexto.h"

#include "platform/texto/Texto.h"

#include <QLocale>

namespace halvo {

QString UtilitariosTexto::FormataCampo(double valor, const QString& descritor, int tipo) const {
    return texto::FormataCampo(valor, descritor, tipo);
}

double UtilitariosTexto::LeNumero(const QString& campo) const { return texto::LeNumero(campo); }

bool UtilitariosTexto::AceitaTecla(QChar tecla, const QString& texto, int, bool decimal) const {
    constexpr QChar backspace(8);
    if (tecla.isDigit() || tecla == backspace) {
        return true;
    }
    const QString separador = QLocale().decimalPoint();
    return decimal && QString(tecla) == separador && !texto.contains(separador);
}

}  // namespace halvo
