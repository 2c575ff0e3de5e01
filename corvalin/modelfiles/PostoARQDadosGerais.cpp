#include "corvalin/frame/Geral.h"
#include "corvalin/frame/Mensagens.h"
#include "corvalin/frame/Progresso.h"
#include "corvalin/modelfiles/PostoARQ.h"
#include "corvalin/modelfiles/PostoARQComum.h"
#include "corvalin/stations/Posto.h"
#include "corvalin/stations/PostoBD.h"
#include "halvo/sdk/UtilitariosArquivo.h"
#include "platform/runtime/ErroVB.h"
#include "platform/texto/ArquivoTexto.h"
#include "platform/texto/Texto.h"

#include <QStringList>

#include <iterator>

namespace corvalin {

namespace {

using namespace texto;

// Room for a file name on reading: an 8.3 name; a longer one is cut without a word.
constexpr int LarguraNome = 12;

// The general data file's own progress scale: steps of an eighth.
void pAvanca(Progresso& progresso, double passo) {
    progresso.setValue(passo / 8);
}

QString pNome(const QString& linha) {
    return Trim(Left(linha, LarguraNome));
}

double pNumero(const QString& linha, qsizetype colunas) {
    return Val(Trim(Left(linha, colunas)));
}

// Lines 1 to 17 into posto; lines 16 and 17 may be missing as the switch of line 15 allows.
void pLeLinhas(ArquivoEntrada& entrada, Posto& posto, Progresso& progresso) {
    OpcoesArquivos& arquivos = posto.Arquivos;
    arquivos.ArquivoRelatorio = pNome(entrada.LineInput());
    pAvanca(progresso, 100);
    const QString impressao = Left(entrada.LineInput(), 1);
    posto.ImpressaoParametros = impressao == QStringLiteral("S") || impressao == QStringLiteral("s");
    pAvanca(progresso, 200);
    arquivos.ArquivoVazoesSemanais = pNome(entrada.LineInput());
    pAvanca(progresso, 300);
    posto.Transformacao = CByte(Val(Left(entrada.LineInput(), 1)));
    pAvanca(progresso, 400);
    posto.MesInicial = CByte(Val(Left(entrada.LineInput(), 2)));
    pAvanca(progresso, 500);
    arquivos.ArquivoPrevisoes = pNome(entrada.LineInput());
    pAvanca(progresso, 550);
    arquivos.ArquivoExcel = pNome(entrada.LineInput());
    pAvanca(progresso, 600);
    posto.IntervaloConfianca = CInt(pNumero(entrada.LineInput(), 12));
    pAvanca(progresso, 625);
    posto.SemanaInicialPrev = CInt(pNumero(entrada.LineInput(), 2));
    pAvanca(progresso, 650);
    posto.AnoInicialPrev = CInt(pNumero(entrada.LineInput(), 4));
    pAvanca(progresso, 700);

    // 0 is yes: a past-flows file is in use, and only then is its name taken.
    posto.FlafVazpast = pNumero(entrada.LineInput(), 1) == 0;
    const QString vazpast = entrada.LineInput();
    if (posto.FlafVazpast) {
        posto.NomeArqVazpast = pNome(vazpast);
    }
    pAvanca(progresso, 720);
    posto.AnoFinalHistorico = CInt(pNumero(entrada.LineInput(), 4));
    pAvanca(progresso, 750);
    posto.Codigo = CLng(pNumero(entrada.LineInput(), 4));

    // A zero switch names the limits file after the switch line itself ("0" as written), and
    // the name line behind it is dropped.
    const QString chave = entrada.LineInput();
    posto.FlagLimite = CByte(pNumero(chave, 1));
    if (posto.FlagLimite != 0) {
        posto.NomeArqLimite = pNome(entrada.LineInput());
    } else if (!entrada.Eof()) {
        posto.NomeArqLimite = pNome(chave);
        entrada.LineInput();
    }
    pAvanca(progresso, 800);
    if (!entrada.Eof()) {
        arquivos.CasoUsa53Semanas = CByte(pNumero(entrada.LineInput(), 1));
    }
}

}  // namespace

bool PostoARQ::importaDadosGerais(const QString& arquivo, Posto& posto, PostoBD& postoBD, QString& erros,
                                  Progresso& progresso, bool soValida) const {
    const halvo::UtilitariosArquivo utilitarios;
    if (!utilitarios.ArquivoExiste(arquivo)) {
        return false;
    }
    try {
        ArquivoEntrada entrada(arquivo);
        progresso.setValue(0);
        posto.Arquivos.ArquivoDadosGerais = utilitarios.NomeDoArquivo(arquivo);
        pLeLinhas(entrada, posto, progresso);
        if (!soValida) {
            postoarq::pGravaDadosGerais(posto, postoBD);
        }
    } catch (const plataforma::ErroVB&) {
        postoarq::pAdicionaErro(erros, Mensagens::msgDadosGerais);
        return false;
    }
    return true;
}

bool PostoARQ::geraDadosGerais(const QString& pasta, const Posto& posto, Progresso& progresso) const {
    const OpcoesArquivos& arquivos = posto.Arquivos;
    const auto saida =
        AbreArquivoGravacao(postoarq::pCaminhoDoPosto(pasta, posto.Codigo, arquivos.ArquivoDadosGerais));
    if (!saida) {
        return false;
    }
    progresso.setValue(0);
    const auto numero = [](auto valor) { return Trim(Str(valor)); };
    // Without limits the switch is a bare number as the old printer wrote it, blanks around.
    const QStringList linhas = {
        arquivos.ArquivoRelatorio,
        posto.ImpressaoParametros ? QStringLiteral("S") : QStringLiteral("N"),
        arquivos.ArquivoVazoesSemanais,
        numero(posto.Transformacao),
        numero(posto.MesInicial),
        arquivos.ArquivoPrevisoes,
        arquivos.ArquivoExcel,
        numero(posto.IntervaloConfianca),
        numero(posto.SemanaInicialPrev),
        numero(posto.AnoInicialPrev),
        posto.FlafVazpast ? QStringLiteral("0") : QStringLiteral("1"),
        Trim(posto.NomeArqVazpast),
        numero(posto.AnoFinalHistorico),
        numero(posto.Codigo),
        arquivos.NaoUsaLimite ? QStringLiteral(" 0 ") : numero(posto.FlagLimite),
        arquivos.NaoUsaLimite ? QString() : posto.NomeArqLimite,
        numero(arquivos.CasoUsa53Semanas),
    };
    constexpr double passos[] = {100, 200, 250, 300, 350, 400, 450, 500, 550,
                                 600, 650, 700, 725, 750, 775, 800, 800};
    static_assert(std::size(passos) == 17);
    for (qsizetype i = 0; i < linhas.size(); ++i) {
        saida->Print(linhas[i]);
        pAvanca(progresso, passos[i]);
    }
    saida->Close();
    return true;
}

}  // namespace corvalin
