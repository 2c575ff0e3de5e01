#pragma once

#include "halvo/sdk/ServicoDialogo.h"

#include <deque>
#include <vector>

namespace teste {

// A dialog service that records every call and answers from a script. An unscripted message
// takes its first button and an unscripted file dialog is cancelled, so that a test sees every
// dialog it did not expect in Mensagens().
class DialogoRoteirizado : public halvo::ServicoDialogo {
public:
    struct Mensagem {
        QString texto;
        QString titulo;
        halvo::Icone icone;
        halvo::Botoes botoes;
    };

    halvo::Resposta Mensagem(const QString& texto, const QString& titulo, halvo::Icone icone,
                             halvo::Botoes botoes) override;
    QString SelecionaArquivo(const QString& filtro, const QString& titulo, const QString& inicial) override;
    QStringList SelecionaArquivos() override;
    QString SelecionaPasta(const QString& inicial, const QString& titulo) override;
    void MousePointer(halvo::Ponteiro p) override { mPonteiros.push_back(p); }

    void responde(halvo::Resposta r) { mRespostas.push_back(r); }
    void respondeArquivo(const QString& caminho) { mArquivos.push_back(caminho); }
    void respondeArquivos(const QStringList& caminhos) { mListas.push_back(caminhos); }
    void respondePasta(const QString& pasta) { mPastas.push_back(pasta); }

    const std::vector<struct Mensagem>& Mensagens() const { return mMensagens; }
    const std::vector<QString>& FiltrosPedidos() const { return mFiltros; }
    const std::vector<halvo::Ponteiro>& Ponteiros() const { return mPonteiros; }
    void limpa();

private:
    std::vector<struct Mensagem> mMensagens;
    std::vector<QString> mFiltros;
    std::vector<halvo::Ponteiro> mPonteiros;
    std::deque<halvo::Resposta> mRespostas;
    std::deque<QString> mArquivos;
    std::deque<QStringList> mListas;
    std::deque<QString> mPastas;
};

}  // namespace teste
