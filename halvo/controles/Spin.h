#pragma once

#include <QAbstractSpinBox>

#include <optional>

namespace halvo {

// The number spinner: a text field, which may be empty, with up and down buttons; the arrow keys,
// the page keys and the wheel step as the buttons do.
//
// - A step always moves by exactly one, between Minimo and Maximo; at a bound it does nothing and
//   emits nothing. A step from an empty or non-numeric text goes to Minimo.
// - Before a step, AntesDeMudar(paraCima, cancela) is emitted with cancela false; a handler that
//   sets it to true cancels the step. Connect it directly (the default for a same-thread
//   connection), since the flag travels by reference.
// - After a step, and after every change typed by the user, Alterado is emitted.
// - The user may type digits, and a leading minus when Minimo is negative; the typed value is not
//   held to the bounds (a screen checks it).
// - setTexto and the properties emit nothing.
// - Formato and Passo are kept for the screens that set them; they do not change the behaviour.
class Spin : public QAbstractSpinBox {
    Q_OBJECT

public:
    explicit Spin(QWidget* pai = nullptr);

    int Formato() const { return mFormato; }
    void setFormato(int formato) { mFormato = formato; }
    QString Texto() const;
    void setTexto(const QString& texto);
    int Maximo() const { return mMaximo; }
    void setMaximo(int maximo);
    int Minimo() const { return mMinimo; }
    void setMinimo(int minimo);
    bool Passo() const { return mPasso; }
    void setPasso(bool passo) { mPasso = passo; }

    void stepBy(int passos) override;
    QSize sizeHint() const override;

signals:
    void AntesDeMudar(bool paraCima, bool& cancela);
    void Alterado();

protected:
    StepEnabled stepEnabled() const override;
    QValidator::State validate(QString& entrada, int& posicao) const override;

private:
    std::optional<int> pValor() const;

    int mFormato = 0;
    int mMaximo = 100;
    int mMinimo = 0;
    bool mPasso = false;
};

}  // namespace halvo
