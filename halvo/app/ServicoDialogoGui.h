#pragma once

#include "halvo/sdk/ServicoDialogo.h"

namespace halvo {

// The text of a message as a box shows it: CR LF and a lone CR (with which models join lines)
// become line breaks.
QString TextoDaMensagem(const QString& texto);
// A filter in the old form "Descrição|*.a;*.b|Outra|*.c" in the form of Qt's file dialogs,
// "Descrição (*.a *.b);;Outra (*.c)". A description that already shows its patterns in
// parentheses shows them once.
QString FiltroDoQt(const QString& filtro);

// The dialogs of the host's window: message boxes with the icon, title and buttons asked for (an
// empty title is the program's, "Halvo"), with Enter and Escape as the box gives them; file and
// folder dialogs in native paths; the mouse pointer as one value (busy, arrow or the default),
// which a message box or a file dialog sets aside while it is up.
class ServicoDialogoGui : public ServicoDialogo {
public:
    Resposta Mensagem(const QString& texto, const QString& titulo, Icone icone, Botoes botoes) override;
    QString SelecionaArquivo(const QString& filtro, const QString& titulo, const QString& inicial) override;
    QStringList SelecionaArquivos() override;
    QString SelecionaPasta(const QString& inicial, const QString& titulo) override;
    void MousePointer(Ponteiro p) override;
};

}  // namespace halvo
