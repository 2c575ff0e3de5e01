#pragma once

#include <QChar>
#include <QString>

namespace halvo {

// The host's text utility: Fortran field formatting and reading, and the key filter of its
// numeric text boxes.
class UtilitariosTexto {
public:
    // Code of a 32-bit float for FormataCampo.
    static constexpr int TipoSingle = 4;

    QString FormataCampo(double valor, const QString& descritor, int tipo) const;
    double LeNumero(const QString& campo) const;
    // Whether a typed character goes into a numeric text box: digits and backspace always, and
    // the user's decimal separator once when decimal is true.
    bool AceitaTecla(QChar tecla, const QString& texto, int posicaoCursor, bool decimal) const;
};

}  // namespace halvo
