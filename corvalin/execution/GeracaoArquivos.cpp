#include "corvalin/execution/GeracaoArquivos.h"

#include "corvalin/execution/JanelaProgresso.h"
#include "corvalin/execution/ListaPostos.h"
#include "corvalin/frame/Mensagens.h"
#include "corvalin/modelfiles/PostoARQ.h"
#include "corvalin/options/Opcoes.h"
#include "corvalin/options/OpcoesBD.h"
#include "corvalin/stations/Posto.h"
#include "corvalin/stations/PostoBD.h"
#include "halvo/sdk/Caso.h"

namespace corvalin {

namespace {

// Hides the progress form however the generation ends.
class FormularioVisivel {
public:
    explicit FormularioVisivel(JanelaProgresso& janela) : mJanela(janela) { mJanela.Mostra(); }
    ~FormularioVisivel() { mJanela.Esconde(); }
    FormularioVisivel(const FormularioVisivel&) = delete;
    FormularioVisivel& operator=(const FormularioVisivel&) = delete;

private:
    JanelaProgresso& mJanela;
};

}  // namespace

GeracaoArquivos::GeracaoArquivos(const halvo::caso& caso, PostoBD& postoBD, OpcoesBD& opcoesBD)
    : mCaso(caso), mPostoBD(postoBD), mOpcoesBD(opcoesBD) {}

void GeracaoArquivos::pGerarArquivos(const ListaPostos& lista, JanelaProgresso& janela) {
    const FormularioVisivel visivel(janela);
    const PostoARQ arquivos;
    for (int linha = 0; linha < lista.Quantidade(); ++linha) {
        if (!lista.Marcada(linha)) {
            continue;
        }
        const QString texto = lista.Texto(linha);
        Posto posto;
        mPostoBD.getPosto(posto, BuscaPorCodigo, CodigoDaLinha(texto), {});
        Opcoes opcoes;
        mOpcoesBD.getOpcoes(opcoes);
        posto.Arquivos.NaoUsaLimite = opcoes.Arquivos.NaoUsaLimite;

        const QString pasta = mCaso.Item(QStringLiteral("Diretorio"));
        janela.setCaption(texto + QStringLiteral(": ") + Mensagens::msgGerandoDadosGerais);
        janela.Mostra();
        arquivos.geraDadosGerais(pasta, posto, janela.Barra());
        if (posto.FlafVazpast) {
            arquivos.geraVazpast(pasta, posto);
        }
        janela.setCaption(texto + QStringLiteral(": ") + Mensagens::msgGerandoVazoesSemanais);
        arquivos.geraVazoesSemanais(pasta, posto, mPostoBD, janela.Barra());
        if (!posto.Arquivos.NaoUsaLimite && posto.FlagLimite != 0 && posto.Codigo != 0) {
            arquivos.geraLimites(mCaso.Item(QStringLiteral("diretorio")), posto, mPostoBD);
        }
    }
}

void GeracaoArquivos::pGerarArquivosDireto(const ListaPostos& lista) {
    const PostoARQ arquivos;
    ProgressoNulo barra;
    for (int linha = 0; linha < lista.Quantidade(); ++linha) {
        if (!lista.Marcada(linha)) {
            continue;
        }
        Posto posto;
        mPostoBD.getPosto(posto, BuscaPorCodigo, CodigoDaLinha(lista.Texto(linha)), {});
        const QString pasta = mCaso.Item(QStringLiteral("Diretorio"));
        arquivos.geraDadosGerais(pasta, posto, barra);
        if (posto.FlafVazpast) {
            arquivos.geraVazpast(pasta, posto);
        }
        arquivos.geraVazoesSemanais(pasta, posto, mPostoBD, barra);
    }
}

}  // namespace corvalin
