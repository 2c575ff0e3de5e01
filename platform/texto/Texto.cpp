#include "platform/texto/Texto.h"

#include "platform/runtime/ErroVB.h"

namespace texto {

namespace {

void pExigeNaoNegativo(qsizetype n) {
    if (n < 0) {
        throw plataforma::ErroVB::padrao(plataforma::ErroChamadaInvalida);
    }
}

}  // namespace

QString Mid(const QString& s, qsizetype inicio, qsizetype n) {
    if (inicio < 1) {
        throw plataforma::ErroVB::padrao(plataforma::ErroChamadaInvalida);
    }
    if (inicio > s.size()) {
        return {};
    }
    return s.mid(inicio - 1, n < 0 ? -1 : n);
}

QString Left(const QString& s, qsizetype n) {
    pExigeNaoNegativo(n);
    return s.left(n);
}

QString Right(const QString& s, qsizetype n) {
    pExigeNaoNegativo(n);
    return s.right(n);
}

QString Trim(const QString& s) {
    qsizetype inicio = 0;
    qsizetype fim = s.size();
    while (inicio < fim && s[inicio] == u' ') {
        ++inicio;
    }
    while (fim > inicio && s[fim - 1] == u' ') {
        --fim;
    }
    return s.mid(inicio, fim - inicio);
}

QString Space(qsizetype n) {
    pExigeNaoNegativo(n);
    return QString(n, u' ');
}

qsizetype InStr(const QString& s, const QString& procura, bool ignoraCaixa, qsizetype inicio) {
    if (inicio < 1) {
        throw plataforma::ErroVB::padrao(plataforma::ErroChamadaInvalida);
    }
    return s.indexOf(procura, inicio - 1, ignoraCaixa ? Qt::CaseInsensitive : Qt::CaseSensitive) + 1;
}

// Character by character, so that no text changes its length ("ß" stays one column).
QString LCase(const QString& s) {
    QString r = s;
    for (QChar& c : r) {
        c = c.toLower();
    }
    return r;
}

QString UCase(const QString& s) {
    QString r = s;
    for (QChar& c : r) {
        c = c.toUpper();
    }
    return r;
}

}  // namespace texto
