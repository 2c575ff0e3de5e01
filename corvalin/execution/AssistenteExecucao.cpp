#include "corvalin/execution/AssistenteExecucao.h"

#include "corvalin/execution/ExecucaoPostos.h"
#include "corvalin/execution/GeracaoArquivos.h"
#include "corvalin/execution/ListaPostos.h"
#include "corvalin/execution/ValidacaoExecucao.h"
#include "corvalin/frame/Mensagens.h"
#include "corvalin/stations/Posto.h"
#include "platform/runtime/Vetor.h"

namespace corvalin {

AssistenteExecucao::AssistenteExecucao(ObjetosCaso objetos, QString pastaPlugin, ListaPostos& lista,
                                       RegistroTexto& registro)
    : mObjetos(std::move(objetos)),
      mPastaPlugin(std::move(pastaPlugin)),
      mLista(lista),
      mRegistro(registro),
      mLblExecutar(Mensagens::msgSelecionePostosExecucao) {
    mPostoBD.setCasoBD(mObjetos.casoBD);
    mOpcoesBD.setCasoBD(mObjetos.casoBD);
}

bool AssistenteExecucao::pCarregarPostos() {
    plataforma::Vetor<Posto> postos;
    mPostoBD.getPostos(postos);
    for (int i = 1; i <= postos.UBound(); ++i) {
        mLista.Adiciona(TextoDaLinha(postos[i]));
        mLista.setMarcada(mLista.Quantidade() - 1, true);
    }
    if (postos.UBound() > 0) {
        mLista.setLinhaAtual(0);
    }
    return postos.UBound() > 0;
}

bool AssistenteExecucao::pValidar() {
    mLblExecutar = Mensagens::msgValidacaoDados;
    ValidacaoExecucao validacao(mPostoBD, mRegistro);
    const bool semErros = validacao.pValidar(mLista);
    mLblExecutarAlertas = validacao.TextoAlertas();
    mLblExecutarProblemas = validacao.TextoProblemas();
    return semErros;
}

void AssistenteExecucao::pGerarArquivos(JanelaProgresso& janela) {
    GeracaoArquivos(*mObjetos.caso, mPostoBD, mOpcoesBD).pGerarArquivos(mLista, janela);
}

void AssistenteExecucao::pGerarArquivosDireto() {
    GeracaoArquivos(*mObjetos.caso, mPostoBD, mOpcoesBD).pGerarArquivosDireto(mLista);
}

void AssistenteExecucao::pExecutar() {
    mLblExecutar = TituloExecucao;
    ExecucaoPostos(*mObjetos.caso, mPostoBD, mOpcoesBD, mRegistro, mPastaPlugin)
        .pExecutar(mLista, *mObjetos.Notificador);
}

void AssistenteExecucao::ExecutarCorvalin() {
    pCarregarPostos();
    for (int linha = 0; linha < mLista.Quantidade(); ++linha) {
        mLista.setMarcada(linha, true);
    }
    pGerarArquivosDireto();
    pExecutar();
}

}  // namespace corvalin
