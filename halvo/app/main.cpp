#include "halvo/app/JanelaPrincipal.h"
#include "halvo/app/LinhaDeComando.h"
#include "halvo/app/ListaDeCasos.h"
#include "halvo/app/Modelos.h"
#include "halvo/app/ServicoDialogoGui.h"
#include "halvo/app/UtilitariosSistemaGui.h"
#include "halvo/sdk/Servicos.h"

#include <QApplication>
#include <QTextStream>

#include <cstring>

namespace {

// Without a display the window cannot open; the platform plug-in would abort the program.
bool pTemTela() {
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    const QString plataforma = qEnvironmentVariable("QT_QPA_PLATFORM");
    if (plataforma.startsWith(QStringLiteral("offscreen")) ||
        plataforma.startsWith(QStringLiteral("minimal")) || plataforma.startsWith(QStringLiteral("vnc"))) {
        return true;
    }
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
#else
    return true;
#endif
}

int pJanela(int argc, char* argv[], const QString& pasta) {
    QApplication aplicacao(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Halvo"));
    halvo::ServicoDialogoGui dialogo;
    halvo::UtilitariosSistemaGui sistema;
    const halvo::InstalacaoServicos servicos(&dialogo, &sistema, nullptr);

    const halvo::Modelos modelos(halvo::Modelos::PastaPadrao());
    const auto modelo = modelos.Cria();
    if (!modelo) {
        halvo::Servicos::dialogo().Mensagem(
            QStringLiteral("Nenhum modelo encontrado em %1.").arg(halvo::Modelos::PastaPadrao()), {},
            halvo::Icone::Erro);
        return 1;
    }
    halvo::ListaDeCasos lista;
    if (!lista.Carrega()) {
        halvo::Servicos::dialogo().Mensagem(
            QStringLiteral("A lista de casos em %1 não pôde ser lida.").arg(lista.Arquivo()), {},
            halvo::Icone::Exclamacao);
    }
    halvo::JanelaPrincipal janela(*modelo, lista);
    sistema.setPrincipal(&janela);
    janela.show();
    if (!pasta.isEmpty()) {
        janela.AbrePasta(pasta);
    }
    return QApplication::exec();
}

}  // namespace

int main(int argc, char* argv[]) {
    const bool janela = argc == 1 || std::strcmp(argv[1], "janela") == 0;
    if (janela) {
        QTextStream erro(stderr);
        if (argc > 3) {
            erro << QStringLiteral("halvo: uso: halvo janela [PASTA]") << Qt::endl;
            return 2;
        }
        if (!pTemTela()) {
            erro << QStringLiteral(
                        "halvo: não há tela para abrir a janela (defina DISPLAY ou "
                        "QT_QPA_PLATFORM=offscreen).")
                 << Qt::endl;
            return 1;
        }
        return pJanela(argc, argv, argc == 3 ? QString::fromLocal8Bit(argv[2]) : QString());
    }
    QCoreApplication aplicacao(argc, argv);
    QTextStream saida(stdout);
    QTextStream erro(stderr);
    const halvo::Modelos modelos(halvo::Modelos::PastaPadrao());
    halvo::LinhaDeComando linha(modelos, saida, erro);
    return linha.Executa(QCoreApplication::arguments().mid(1));
}
