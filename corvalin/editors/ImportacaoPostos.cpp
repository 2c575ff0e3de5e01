#include "corvalin/editors/ImportacaoPostos.h"

#include "corvalin/execution/RegistroTexto.h"
#include "corvalin/frame/Geral.h"
#include "corvalin/frame/Mensagens.h"
#include "corvalin/frame/Progresso.h"
#include "corvalin/modelfiles/PostoARQ.h"
#include "corvalin/stations/Posto.h"
#include "halvo/sdk/Notificador.h"
#include "halvo/sdk/UtilitariosArquivo.h"
#include "platform/recordstore/Recordstore.h"
#include "platform/texto/Texto.h"

namespace corvalin {

namespace {

using namespace Mensagens;

QString pNumero(qsizetype n) { return texto::Trim(texto::Str(static_cast<std::int64_t>(n))); }

}  // namespace

ImportacaoPostos::ImportacaoPostos(ObjetosCaso objetos, RegistroTexto& relatorio, Progresso& barra,
                                   StatusImportacao& status)
    : mObjetos(std::move(objetos)), mRelatorio(relatorio), mBarra(barra), mStatus(status) {
    mPostoBD.setCasoBD(mObjetos.casoBD);
    mOpcoesBD.setCasoBD(mObjetos.casoBD);
}

bool ImportacaoPostos::pVerificaArquivos(const QStringList& linhas) {
    const PonteiroOcupado ponteiro;
    mRelatorio.Limpa();
    if (linhas.isEmpty()) {
        mRelatorio.AdicionaLinha(msgNenhumArquivo, RegistroTexto::Normal, true, true);
        return false;
    }
    bool tudoBem = true;
    mArquivos.ReDim(static_cast<int>(linhas.size()));
    for (int i = 0; i < linhas.size(); ++i) {
        Arquivo& arquivo = mArquivos[i + 1];
        arquivo.ArquivoVazoes = pArquivoVazoes(linhas[i]);
        if (arquivo.ArquivoVazoes.isEmpty()) {
            pRelata(msgVazoesNaoEncontrado, linhas[i]);
        } else if (pValidaVazoes(arquivo.ArquivoVazoes, arquivo.Codigo)) {
            continue;
        } else {
            pRelata(msgVazoesInvalido, linhas[i]);
        }
        tudoBem = false;
    }
    return tudoBem;
}

QString ImportacaoPostos::pArquivoVazoes(const QString& arquivo) {
    Posto posto;
    QString erros;
    if (!PostoARQ().importaDadosGerais(arquivo, posto, mPostoBD, erros, mBarra, true)) {
        return {};
    }
    const halvo::UtilitariosArquivo arquivos;
    mPastaArquivos = arquivos.SeparaCaminho(arquivo, true);
    const QString candidato = mPastaArquivos + posto.Arquivos.ArquivoVazoesSemanais;
    return arquivos.ArquivoExiste(candidato) ? candidato : QString();
}

bool ImportacaoPostos::pValidaVazoes(const QString& arquivo, std::int32_t& codigo) {
    Posto posto;
    QString erros;
    if (!PostoARQ().importaVazoesSemanais(arquivo, erros, mBarra, posto, mPostoBD, mOpcoesBD, false, true)) {
        return false;
    }
    codigo = posto.Codigo;
    return true;
}

bool ImportacaoPostos::pImportaArquivos(const QStringList& linhas) {
    const PonteiroOcupado ponteiro;
    mRelatorio.Limpa();
    bool tudoBem = true;
    // Not emptied between files: a warning of the limits stays until another replaces it.
    QString mensagem;
    for (int i = 0; i < linhas.size(); ++i) {
        mStatus.setStatus(linhas[i], msgArquivo + u' ' + pNumero(i + 1) + u' ' + msgDe + u' ' + pNumero(linhas.size()));
        QString erros;
        pImportaPosto(linhas[i], mArquivos[i + 1], erros, mensagem);
        if (!erros.isEmpty()) {
            const QString frase = erros.contains(u',') ? msgErroLeituraArquivos : msgErroLeituraArquivo;
            pRelata(frase + u' ' + erros + u'.', linhas[i]);
            tudoBem = false;
        }
    }
    // A warning of the limits alone changes the outcome but is not written to the report.
    if (mensagem.isEmpty()) {
        mObjetos.Notificador->Notifica(*mObjetos.caso, halvo::EventoImportacaoConcluida);
    } else {
        mObjetos.Notificador->Notifica(*mObjetos.caso, halvo::EventoImportacaoComProblemas);
        tudoBem = false;
    }
    return tudoBem;
}

void ImportacaoPostos::pImportaPosto(const QString& linha, const Arquivo& arquivo, QString& erros,
                                     QString& mensagem) {
    const PostoARQ arquivos;
    Posto posto;
    // Whatever the files' outcome, what the readers stored is kept, and all of it at once.
    recordstore::Transacao transacao(mPostoBD.BancoDeDados());
    arquivos.importaDadosGerais(linha, posto, mPostoBD, erros, mBarra, false);
    // The code is the general data file's: the weekly flows file's own is not read.
    arquivos.importaVazoesSemanais(arquivo.ArquivoVazoes, erros, mBarra, posto, mPostoBD, mOpcoesBD, true, false);
    if (posto.Codigo != 0 && posto.FlafVazpast) {
        QString vazpast = linha;
        arquivos.importaVazpast(vazpast, posto, mPostoBD, erros, false);
    }
    if (posto.Codigo != 0 && posto.FlagLimite != 0) {
        // The folder is that of the last file the check pass looked at, not this one's: all
        // files of an import are meant to lie in one folder.
        arquivos.importaLimites(mPastaArquivos + posto.NomeArqLimite, posto, mPostoBD, mensagem);
        if (!texto::Trim(erros).isEmpty() && !texto::Trim(mensagem).isEmpty()) {
            erros = mensagem + QStringLiteral(", ");
        }
    }
    transacao.Commit();
}

void ImportacaoPostos::pRelata(const QString& mensagem, const QString& caminho) {
    mRelatorio.AdicionaLinha(mensagem, RegistroTexto::Normal, true, true);
    mRelatorio.AdicionaLinha(caminho, RegistroTexto::Normal, false, true);
}

}  // namespace corvalin
