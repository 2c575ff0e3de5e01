#include "halvo/sdk/ServicosPadrao.h"

#include <QFileInfo>
#include <QTextStream>

namespace halvo {

Resposta ServicoDialogoConsole::Mensagem(const QString& texto, const QString& titulo, Icone, Botoes botoes) {
    QTextStream erro(stderr);
    QString linhas = texto;
    linhas.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
    if (!titulo.isEmpty()) {
        erro << titulo << ": ";
    }
    erro << linhas << Qt::endl;
    switch (botoes) {
        case Botoes::SimNao:
        case Botoes::SimNaoCancelar:
            return Resposta::Sim;
        case Botoes::Ok:
        case Botoes::OkCancelar:
            break;
    }
    return Resposta::Ok;
}

QString ServicoDialogoConsole::SelecionaArquivo(const QString&, const QString&, const QString&) { return {}; }

QStringList ServicoDialogoConsole::SelecionaArquivos() { return {}; }

QString ServicoDialogoConsole::SelecionaPasta(const QString&, const QString&) { return {}; }

void ServicoDialogoConsole::MousePointer(Ponteiro) {}

void UtilitariosSistemaConsole::ExecutaPrograma(const QString& arquivo, std::int16_t, const QString&, std::int32_t,
                                                bool) {
    ExecutaNoShell(arquivo);
}

void UtilitariosSistemaConsole::JanelaFilha(QWidget*, QObject*) {}

void UtilitariosSistemaConsole::JanelaRegistra(QWidget*, const QString&, const QString&, std::int32_t,
                                               std::int16_t) {}

void UtilitariosSistemaConsole::JanelaAuxiliar(QWidget*) {}

void ServicosHalvoConsole::ModeloAtual(std::int16_t) {}

QString ServicosHalvoConsole::CaminhoParaApagar(const QString& referencia) { return CaminhoCompleto(referencia); }

QString ServicosHalvoConsole::CaminhoCompleto(const QString& referencia) {
    return referencia.isEmpty() ? referencia : QFileInfo(referencia).absoluteFilePath();
}

}  // namespace halvo
