#include "halvo/controles/RichText.h"

#include "platform/runtime/ErroVB.h"
#include "platform/texto/ArquivoTexto.h"

#include <QFile>
#include <QFontDatabase>
#include <QTextCursor>

namespace halvo {

namespace {

QColor pCor(int estilo) {
    switch (estilo) {
        case RichText::Erro:
            return Qt::red;
        case RichText::Aviso:
            return Qt::blue;
        default:
            return Qt::black;
    }
}

}  // namespace

RichText::RichText(QWidget* pai) : QPlainTextEdit(pai) {
    setReadOnly(true);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
}

void RichText::AdicionaLinha(const QString& texto, int estilo, bool destaque, bool quebraLinha) {
    QTextCharFormat formato;
    formato.setForeground(pCor(estilo));
    formato.setFontWeight(destaque ? QFont::Bold : QFont::Normal);
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(texto, formato);
    if (quebraLinha) {
        cursor.insertBlock();
    }
    setTextCursor(cursor);
    ensureCursorVisible();
}

void RichText::CarregaArquivo(const QString& caminho) {
    QFile arquivo(caminho);
    if (!arquivo.exists()) {
        throw plataforma::ErroVB::padrao(plataforma::ErroArquivoNaoEncontrado);
    }
    if (!arquivo.open(QIODevice::ReadOnly)) {
        throw plataforma::ErroVB::padrao(plataforma::ErroAcessoCaminho);
    }
    QString texto = texto::DeCp1252(arquivo.readAll());
    texto.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
    setPlainText(texto);
}

}  // namespace halvo
