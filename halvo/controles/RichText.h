#pragma once

#include <QPlainTextEdit>

namespace halvo {

// The read-only text view of logs and reports, in a fixed-width font and without line wrapping,
// so that the columns of the model's listings stay in place.
//
// - AdicionaLinha appends a text at the end in a style: 1 plain (black), 2 error (red),
//   3 warning (blue); destaque makes it bold, and quebraLinha ends the line after it. The view
//   follows the end.
// - CarregaArquivo shows a Windows-1252 text file as it is (lines end in CR LF or CR); a missing
//   file raises error 53, one that cannot be read error 75.
// - setTexto shows a plain text; Limpa empties the view.
class RichText : public QPlainTextEdit {
    Q_OBJECT

public:
    enum Estilo : int { Normal = 1, Erro = 2, Aviso = 3 };

    explicit RichText(QWidget* pai = nullptr);

    void AdicionaLinha(const QString& texto, int estilo, bool destaque, bool quebraLinha);
    void Limpa() { clear(); }
    void CarregaArquivo(const QString& caminho);
    QString Texto() const { return toPlainText(); }
    void setTexto(const QString& texto) { setPlainText(texto); }
};

}  // namespace halvo
