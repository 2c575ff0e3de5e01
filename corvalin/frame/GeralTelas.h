#pragma once

// The shared procedures that work on controls.

#include <QString>

class QLineEdit;
class QTabWidget;

namespace corvalin {

// The first enabled tab, or the current one when none is.
int ObtemPrimeiraTab(const QTabWidget& abas);

// The key filter of the numeric text boxes: refuses (sets tecla to 0) a character that is not a
// digit, the backspace, one of permitidos or, when decimal, the user's decimal separator. The
// separator is taken once, never first, at the very start, nor where it would fill the box.
void FiltraTeclaNumerica(const QLineEdit& caixa, char16_t& tecla, const QString& permitidos, bool decimal);

}  // namespace corvalin
