#pragma once

#include <QAbstractButton>
#include <QBoxLayout>
#include <QFrame>
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

// The foot of an assistant's page: a sunken rule, then its step buttons at the right, Cancel set
// apart from the other two.
inline void AdicionaPassos(QVBoxLayout& tela, QWidget& voltar, QWidget& avancar, QWidget& cancela) {
    auto* linha = new QFrame;
    linha->setFrameShape(QFrame::HLine);
    linha->setFrameShadow(QFrame::Sunken);
    tela.addWidget(linha);
    auto* passos = new QHBoxLayout;
    passos->addStretch(1);
    passos->addWidget(&voltar);
    passos->addWidget(&avancar);
    passos->addSpacing(avancar.fontMetrics().averageCharWidth() * 2);
    passos->addWidget(&cancela);
    tela.addLayout(passos);
}

}  // namespace corvalin
