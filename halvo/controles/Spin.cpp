#include "halvo/controles/Spin.h"

#include <QLineEdit>
#include <QRegularExpression>

#include <algorithm>

namespace halvo {

namespace {

// Enough for any 32-bit value.
constexpr int DigitosMaximos = 9;

}  // namespace

Spin::Spin(QWidget* pai) : QAbstractSpinBox(pai) {
    connect(lineEdit(), &QLineEdit::textEdited, this, &Spin::Alterado);
}

QString Spin::Texto() const {
    return lineEdit()->text();
}

void Spin::setTexto(const QString& texto) {
    lineEdit()->setText(texto);
    update();
}

void Spin::setMaximo(int maximo) {
    mMaximo = maximo;
    updateGeometry();
    update();
}

void Spin::setMinimo(int minimo) {
    mMinimo = minimo;
    update();
}

// One step whatever the key: a screen that follows the spinner with one row per change relies on it.
void Spin::stepBy(int passos) {
    const bool paraCima = passos > 0;
    const std::optional<int> atual = pValor();
    const int novo = atual ? std::clamp(*atual + (paraCima ? 1 : -1), mMinimo, mMaximo) : mMinimo;
    if (atual == novo) {
        return;
    }
    bool cancela = false;
    emit AntesDeMudar(paraCima, cancela);
    if (cancela) {
        return;
    }
    setTexto(QString::number(novo));
    emit Alterado();
}

QSize Spin::sizeHint() const {
    QSize tamanho = QAbstractSpinBox::sizeHint();
    tamanho.rwidth() += fontMetrics().horizontalAdvance(QString::number(std::max(mMaximo, mMinimo)));
    return tamanho;
}

QAbstractSpinBox::StepEnabled Spin::stepEnabled() const {
    const std::optional<int> atual = pValor();
    if (!atual) {
        return StepUpEnabled | StepDownEnabled;
    }
    StepEnabled passos = StepNone;
    if (*atual < mMaximo) {
        passos |= StepUpEnabled;
    }
    if (*atual > mMinimo) {
        passos |= StepDownEnabled;
    }
    return passos;
}

QValidator::State Spin::validate(QString& entrada, int&) const {
    static const QRegularExpression comSinal(QStringLiteral("^-?\\d{0,%1}$").arg(DigitosMaximos));
    static const QRegularExpression semSinal(QStringLiteral("^\\d{0,%1}$").arg(DigitosMaximos));
    if (!(mMinimo < 0 ? comSinal : semSinal).match(entrada).hasMatch()) {
        return QValidator::Invalid;
    }
    return entrada == QStringLiteral("-") ? QValidator::Intermediate : QValidator::Acceptable;
}

std::optional<int> Spin::pValor() const {
    bool ok = false;
    const int valor = Texto().trimmed().toInt(&ok);
    return ok ? std::optional<int>(valor) : std::nullopt;
}

}  // namespace halvo
