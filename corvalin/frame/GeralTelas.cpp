#include "corvalin/frame/GeralTelas.h"

#include "corvalin/frame/Geral.h"
#include "platform/texto/Texto.h"

#include <QLineEdit>
#include <QTabWidget>

namespace corvalin {

int ObtemPrimeiraTab(const QTabWidget& abas) {
    for (int i = 0; i < abas.count(); ++i) {
        if (abas.isTabEnabled(i)) {
            return i;
        }
    }
    return abas.currentIndex();
}

void FiltraTeclaNumerica(const QLineEdit& caixa, char16_t& tecla, const QString& permitidos, bool decimal) {
    constexpr char16_t Retrocesso = 8;
    const QString separador =
        decimal ? LeStringIni(QStringLiteral("WIN.INI"), QStringLiteral("intl"), QStringLiteral("sDecimal"))
                : QString();
    const QString caractere(QChar{tecla});
    const QString aceitos = QStringLiteral("0123456789") + separador + QChar{Retrocesso} + permitidos;
    if (!aceitos.contains(caractere)) {
        tecla = 0;
        return;
    }
    if (caractere != separador) {
        return;
    }
    const QString atual = caixa.text();
    if (atual.contains(separador) || texto::Trim(atual).isEmpty() || caixa.cursorPosition() == 0 ||
        atual.size() + 1 == caixa.maxLength()) {
        tecla = 0;
    }
}

}  // namespace corvalin
