#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QString>
#include <QWidget>

#include <type_traits>

namespace corvalin {

// A control of a screen, owned by its parent, under its own name (the name tests and the keyboard
// find it by), with its caption when it has one (buttons, check boxes, labels).
template <class T>
T* Controle(QWidget& pai, const QString& nome, const QString& texto = {}) {
    auto* controle = new T(&pai);
    controle->setObjectName(nome);
    if constexpr (std::is_base_of_v<QAbstractButton, T> || std::is_base_of_v<QLabel, T>) {
        controle->setText(texto);
    }
    return controle;
}

}  // namespace corvalin
