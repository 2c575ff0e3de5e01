#pragma once

// What the user does on a screen and what he sees, by the controls' names.

#include "corvalin/frame/Geral.h"
#include "tests/corvalin/frame/CasoDeTelas.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QtTest>

namespace teste {

using Nomes = std::initializer_list<const char*>;

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

// Picks a line of a list with the keyboard, one step at a time.
inline void escolhe(const QWidget& tela, const QString& nome, int linha) {
    auto& lista = controle<QComboBox>(tela, nome);
    while (lista.currentIndex() != linha) {
        QTest::keyClick(&lista, lista.currentIndex() < linha ? Qt::Key_Down : Qt::Key_Up);
    }
}

// What a control shows: its text, its caption, the line chosen in a list, or "x" for a ticked box.
inline QString valor(const QWidget& tela, const QString& nome) {
    const auto& alvo = controle<QWidget>(tela, nome);
    if (const auto* lista = qobject_cast<const QComboBox*>(&alvo)) {
        return lista->currentText();
    }
    if (const auto* caixa = qobject_cast<const QLineEdit*>(&alvo)) {
        return caixa->text();
    }
    if (const auto* rotulo = qobject_cast<const QLabel*>(&alvo)) {
        return rotulo->text();
    }
    const auto& botao = controle<QAbstractButton>(tela, nome);
    return botao.isCheckable() ? (botao.isChecked() ? QStringLiteral("x") : QString()) : botao.text();
}

inline QStringList valores(const QWidget& tela, Nomes nomes) {
    QStringList textos;
    for (const char* nome : nomes) {
        textos << valor(tela, QString::fromLatin1(nome));
    }
    return textos;
}

// The names among nomes whose controls pass the test.
template <class Teste>
QStringList filtra(const QWidget& tela, Nomes nomes, Teste teste) {
    QStringList passam;
    for (const char* nome : nomes) {
        if (teste(controle<QWidget>(tela, QString::fromLatin1(nome)))) {
            passam << QString::fromLatin1(nome);
        }
    }
    return passam;
}

inline QStringList habilitados(const QWidget& tela, Nomes nomes) {
    return filtra(tela, nomes, [](const QWidget& w) { return w.isEnabled(); });
}

inline QStringList visiveis(const QWidget& tela, Nomes nomes) {
    return filtra(tela, nomes, [&tela](const QWidget& w) { return w.isVisibleTo(&tela); });
}

// The messages shown, as "title|text", and forgets them.
inline QStringList mensagens(DialogoRoteirizado& dialogo) {
    QStringList textos;
    for (const auto& mensagem : dialogo.Mensagens()) {
        textos << mensagem.titulo + u'|' + mensagem.texto;
    }
    dialogo.limpa();
    return textos;
}

inline corvalin::Posto lePosto(const CasoDeTelas& caso, int codigo) {
    corvalin::Posto posto;
    if (!caso.postoBD->getPosto(posto, corvalin::BuscaPorCodigo, codigo, {})) {
        qFatal("no station %d", codigo);
    }
    return posto;
}

struct Limites {
    explicit Limites(std::uint8_t tipo) { corvalin::DimensionaLimites(tipo, ordem, inferior, superior, 0); }
    plataforma::Vetor<std::int16_t> ordem;
    plataforma::Vetor<float> inferior;
    plataforma::Vetor<float> superior;
};

// The stored limits of one period, lower and upper.
inline std::pair<float, float> limite(const CasoDeTelas& caso, int codigo, std::uint8_t tipo, int periodo) {
    Limites l(tipo);
    caso.postoBD->getLimitesPrevisao(codigo, tipo, l.ordem, l.inferior, l.superior);
    return {l.inferior[periodo], l.superior[periodo]};
}

}  // namespace teste
