#pragma once

#include "halvo/sdk/ServicoDialogo.h"
#include "halvo/sdk/ServicosHalvo.h"
#include "halvo/sdk/UtilitariosSistema.h"

namespace halvo {

// Headless services: what answers when no host has installed its own, and what the command line
// uses. Messages go to the standard error stream; a question takes its first button.
class ServicoDialogoConsole : public ServicoDialogo {
public:
    Resposta Mensagem(const QString& texto, const QString& titulo, Icone icone, Botoes botoes) override;
    QString SelecionaArquivo(const QString& filtro, const QString& titulo, const QString& inicial) override;
    QStringList SelecionaArquivos() override;
    QString SelecionaPasta(const QString& inicial, const QString& titulo) override;
    void MousePointer(Ponteiro p) override;
};

// Runs programs; has no windows to place.
class UtilitariosSistemaConsole : public UtilitariosSistema {
public:
    void ExecutaPrograma(const QString& arquivo, std::int16_t estilo, const QString& argumentos,
                         std::int32_t reservado, bool espera) override;
    void JanelaFilha(QWidget* janela, QObject* contexto) override;
    void JanelaRegistra(QWidget* janela, const QString& estudo, const QString& caso, std::int32_t grupo,
                        std::int16_t item) override;
    void JanelaAuxiliar(QWidget* janela) override;
};

// A folder reference is a path: its full form is the absolute path.
class ServicosHalvoConsole : public ServicosHalvo {
public:
    void ModeloAtual(std::int16_t codigo) override;
    QString CaminhoParaApagar(const QString& referencia) override;
    QString CaminhoCompleto(const QString& referencia) override;
};

}  // namespace halvo
