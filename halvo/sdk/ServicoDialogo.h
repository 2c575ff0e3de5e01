#pragma once

#include <QString>
#include <QStringList>

namespace halvo {

enum class Icone { Nenhum, Erro, Pergunta, Exclamacao, Informacao };
enum class Botoes { Ok, OkCancelar, SimNao, SimNaoCancelar };
enum class Resposta { Ok, Cancelar, Sim, Nao };
// The mouse pointer values of the old platform.
enum class Ponteiro : int { Padrao = 0, Seta = 1, Ocupado = 11 };

// Everything that talks to the user through a dialog, and the mouse pointer. The core never shows
// a window itself: the host's GUI implements this with message boxes and file dialogs, the command
// line with the console, and tests with a script.
class ServicoDialogo {
public:
    virtual ~ServicoDialogo() = default;

    // A message box. An empty title is the program's own title.
    virtual Resposta Mensagem(const QString& texto, const QString& titulo = {}, Icone icone = Icone::Nenhum,
                              Botoes botoes = Botoes::Ok) = 0;
    // One file to open; filter in the form "Descrição|*.ext|..."; empty on cancel.
    virtual QString SelecionaArquivo(const QString& filtro, const QString& titulo, const QString& inicial) = 0;
    // Several files at once, with no filter, title or start folder; empty on cancel.
    virtual QStringList SelecionaArquivos() = 0;
    // A folder; empty on cancel.
    virtual QString SelecionaPasta(const QString& inicial, const QString& titulo) = 0;

    virtual void MousePointer(Ponteiro p) = 0;
};

}  // namespace halvo
