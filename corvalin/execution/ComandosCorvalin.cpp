#include "corvalin/execution/ComandosCorvalin.h"

#include "corvalin/editors/ImportacaoPostos.h"
#include "corvalin/execution/AssistenteExecucao.h"
#include "corvalin/execution/JanelaProgresso.h"
#include "corvalin/execution/ListaPostos.h"
#include "corvalin/execution/RegistroTexto.h"
#include "corvalin/results/TabelaPrevisoes.h"
#include "corvalin/frame/Mensagens.h"
#include "corvalin/frame/Progresso.h"
#include "corvalin/stations/Posto.h"
#include "corvalin/stations/PostoBD.h"
#include "halvo/sdk/Notificador.h"

#include <QDir>
#include <QFileInfo>
#include <QTextStream>

#include <optional>

namespace corvalin {

namespace {

using namespace Mensagens;

constexpr int LarguraColuna = 10;

// Passes the events on to the case's notifier and keeps the last, by which a command judges.
class NotificadorRepassa : public halvo::Notificador {
public:
    explicit NotificadorRepassa(std::shared_ptr<halvo::Notificador> destino) : mDestino(std::move(destino)) {}
    void Notifica(halvo::caso& c, std::int32_t evento) override {
        mUltimo = evento;
        if (mDestino) {
            mDestino->Notifica(c, evento);
        }
    }
    std::optional<std::int32_t> Ultimo() const { return mUltimo; }

private:
    std::shared_ptr<halvo::Notificador> mDestino;
    std::optional<std::int32_t> mUltimo;
};

// "Arquivo 1 de 5: path", one line as each file starts.
class StatusConsole : public StatusImportacao {
public:
    explicit StatusConsole(QTextStream& saida) : mSaida(saida) {}
    void setStatus(const QString& nome, const QString& numero) override {
        mSaida << numero << QStringLiteral(": ") << nome << Qt::endl;
    }

private:
    QTextStream& mSaida;
};

}  // namespace

ComandosCorvalin::ComandosCorvalin(ObjetosCaso objetos, QString pastaPlugin, QTextStream& saida, QTextStream& erro)
    : mObjetos(std::move(objetos)), mPastaPlugin(std::move(pastaPlugin)), mSaida(saida), mErro(erro) {}

std::vector<halvo::ComandosDoModelo::Comando> ComandosCorvalin::Comandos() {
    return {
        {QStringLiteral("importar"), QStringLiteral("ARQUIVO..."),
         QStringLiteral("importa os postos a partir dos seus arquivos de Dados Gerais")},
        {QStringLiteral("validar"), QStringLiteral("[CODIGO...]"),
         QStringLiteral("valida os postos do caso, ou só os dos códigos dados, antes da execução")},
        {QStringLiteral("assistente"), QStringLiteral("[CODIGO...]"),
         QStringLiteral("valida, gera os arquivos e executa os postos, cada um uma vez")},
        {QStringLiteral("previsoes"), QString(), QStringLiteral("mostra as previsões guardadas de cada posto")},
    };
}

int ComandosCorvalin::Executa(const QString& nome, const QStringList& argumentos) {
    if (nome == QStringLiteral("importar") && !argumentos.isEmpty()) {
        return pImportar(argumentos);
    }
    if (nome == QStringLiteral("validar") || nome == QStringLiteral("assistente")) {
        return pValidarEExecutar(argumentos, nome == QStringLiteral("assistente"));
    }
    if (nome == QStringLiteral("previsoes") && argumentos.isEmpty()) {
        return pPrevisoes();
    }
    mErro << QStringLiteral("Argumentos inválidos para %1.").arg(nome) << Qt::endl;
    return 2;
}

int ComandosCorvalin::pImportar(const QStringList& nomes) {
    // Paths as the file dialog gives them: whole, in the platform's form.
    QStringList arquivos;
    for (const QString& nome : nomes) {
        arquivos << QDir::toNativeSeparators(QFileInfo(nome).absoluteFilePath());
    }
    RegistroMemoria relatorio;
    ProgressoNulo barra;
    StatusConsole status(mSaida);
    ImportacaoPostos importacao(mObjetos, relatorio, barra, status);

    const bool verificou = importacao.pVerificaArquivos(arquivos);
    const bool importou = verificou && importacao.pImportaArquivos(arquivos);
    if (!verificou || !importou) {
        pLinha(verificou ? msgProblemasImportacao : msgProblemasArquivos);
    }
    for (const auto& linha : relatorio.Linhas()) {
        pLinha(linha.texto);
    }
    if (importou) {
        pLinha(QStringLiteral("Importação concluída: %1 arquivo(s).").arg(arquivos.size()));
    }
    return importou ? 0 : 1;
}

int ComandosCorvalin::pValidarEExecutar(const QStringList& codigos, bool executa) {
    auto notificador = std::make_shared<NotificadorRepassa>(mObjetos.Notificador);
    ObjetosCaso objetos = mObjetos;
    objetos.Notificador = notificador;
    ListaPostosMemoria lista;
    RegistroConsole registro(mSaida);
    AssistenteExecucao assistente(objetos, mPastaPlugin, lista, registro);
    assistente.pCarregarPostos();
    if (!pMarcaCodigos(lista, codigos)) {
        return 2;
    }
    pLinha(msgValidacaoDados);
    const bool semErros = assistente.pValidar();
    pLinha(assistente.getLblExecutarAlertas());
    pLinha(assistente.getLblExecutarProblemas());
    if (!executa) {
        return semErros ? 0 : 1;
    }
    // Errors block the run, as they keep the assistant's button disabled.
    if (!semErros) {
        return 2;
    }
    JanelaProgressoNula janela;
    assistente.pGerarArquivos(janela);
    pLinha(TituloExecucao);
    registro.setMarcaAvisos(false);
    assistente.pExecutar();
    return notificador->Ultimo() == halvo::EventoExecucaoSemErro ? 0 : 1;
}

int ComandosCorvalin::pPrevisoes() {
    PostoBD postoBD;
    postoBD.setCasoBD(mObjetos.casoBD);
    const QString indice = QStringLiteral("NomeDoAproveitamento");
    Posto posto;
    bool achou = postoBD.getPosto(posto, BuscaPrimeiro, 0, indice);
    while (achou) {
        pLinha(msgPosto + u' ' + TextoDaLinha(posto));
        for (const QStringList& linha : TabelaPrevisoes(postoBD, posto)) {
            QString texto = linha.first().leftJustified(LarguraColuna);
            for (qsizetype coluna = 1; coluna < linha.size(); ++coluna) {
                texto += linha[coluna].rightJustified(LarguraColuna);
            }
            pLinha(texto);
        }
        pLinha(QString());
        // The step past the last station stays on it.
        Posto proximo;
        achou = postoBD.getPosto(proximo, BuscaProximo, posto.Codigo, indice) && proximo.Codigo != posto.Codigo;
        posto = proximo;
    }
    return 0;
}

bool ComandosCorvalin::pMarcaCodigos(ListaPostos& lista, const QStringList& codigos) {
    if (codigos.isEmpty()) {
        return true;
    }
    for (int linha = 0; linha < lista.Quantidade(); ++linha) {
        lista.setMarcada(linha, false);
    }
    for (const QString& texto : codigos) {
        bool numero = false;
        const std::int32_t codigo = texto.toInt(&numero);
        bool achou = false;
        for (int linha = 0; numero && linha < lista.Quantidade(); ++linha) {
            if (CodigoDaLinha(lista.Texto(linha)) == codigo) {
                lista.setMarcada(linha, true);
                achou = true;
            }
        }
        if (!achou) {
            mErro << QStringLiteral("O caso não tem o posto %1.").arg(texto) << Qt::endl;
            return false;
        }
    }
    return true;
}

void ComandosCorvalin::pLinha(const QString& texto) { mSaida << texto << Qt::endl; }

}  // namespace corvalin
