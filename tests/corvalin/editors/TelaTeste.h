#pragma once

// What the user does on a screen, by the controls' names, for the tests of the editing screens.

#include "tests/corvalin/frame/CasoDeTelas.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QtTest>

namespace teste {

inline void clica(const QWidget& tela, const QString& nome) {
    controle<QAbstractButton>(tela, nome).click();
}

// Replaces what the control holds by typing, key by key, as the user would.
inline void digita(const QWidget& tela, const QString& nome, const QString& texto) {
    auto& alvo = controle<QWidget>(tela, nome);
    QTest::keyClick(&alvo, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&alvo, Qt::Key_Backspace);
    QTest::keyClicks(&alvo, texto);
}

inline QString textoDe(const QWidget& tela, const QString& nome) {
    return controle<QLineEdit>(tela, nome).text();
}

// Picks a line of a list with the keyboard, one step at a time.
inline void escolhe(const QWidget& tela, const QString& nome, int linha) {
    auto& lista = controle<QComboBox>(tela, nome);
    while (lista.currentIndex() < linha) {
        QTest::keyClick(&lista, Qt::Key_Down);
    }
    while (lista.currentIndex() > linha) {
        QTest::keyClick(&lista, Qt::Key_Up);
    }
}

// The messages shown, as "title|text".
inline QStringList mensagens(const DialogoRoteirizado& dialogo) {
    QStringList textos;
    for (const auto& mensagem : dialogo.Mensagens()) {
        textos << mensagem.titulo + u'|' + mensagem.texto;
    }
    return textos;
}

inline corvalin::Posto lePosto(const CasoDeTelas& caso, int codigo) {
    corvalin::Posto posto;
    if (!caso.postoBD->getPosto(posto, corvalin::BuscaPorCodigo, codigo, {})) {
        qFatal("no station %d", codigo);
    }
    return posto;
}

}  // namespace teste
