#include "corvalin/frame/Geral.h"
#include "corvalin/frame/Mensagens.h"
#include "corvalin/frame/Progresso.h"
#include "corvalin/modelfiles/PostoARQ.h"
#include "corvalin/modelfiles/PostoARQComum.h"
#include "corvalin/options/Opcoes.h"
#include "corvalin/options/OpcoesBD.h"
#include "corvalin/stations/Posto.h"
#include "corvalin/stations/PostoBD.h"
#include "halvo/sdk/ServicoDialogo.h"
#include "halvo/sdk/Servicos.h"
#include "halvo/sdk/UtilitariosArquivo.h"
#include "platform/recordstore/Recordstore.h"
#include "platform/runtime/ErroVB.h"
#include "platform/texto/ArquivoTexto.h"
#include "platform/texto/Texto.h"

namespace corvalin {

namespace {

using namespace texto;
using postoarq::pAdicionaErro;

constexpr int LinhasPorAno = 6;
constexpr int ValoresPorLinha = 9;
constexpr int LarguraValor = 6;  // the value's digits; its "." and a blank follow
constexpr int LarguraCampo = 8;  // columns of one value in a data line
constexpr int LarguraLinha = 80;
constexpr int ColunaAno = 77;

// Values in line j of a year: nine, and whatever the year has left in the sixth.
int pValoresNaLinha(int j, int numSemanas) {
    return j == LinhasPorAno ? numSemanas - 52 + 7 : ValoresPorLinha;
}

// Share of the history done at a given year and week, in percent.
double pPercentual(const Posto& posto, int ano, int semana, int numSemanas) {
    const double feito = static_cast<double>(ano - posto.AnoInicial) * numSemanas + semana;
    const double total = (static_cast<double>(posto.AnoFinal) - posto.AnoInicial + 1) * numSemanas;
    return feito / total * 100;
}

// Reads the data lines into vazoes. False, with the detail for the error list, when a year before
// the last is incomplete; run-time failures are raised. The last year may end early at a line
// boundary or within a short line.
bool pLeHistorico(ArquivoEntrada& entrada, const Posto& posto, Progresso& progresso, Historico& vazoes,
                  QString& detalhe) {
    const int numSemanas = posto.getNumSemanas();
    // The year count is 16-bit arithmetic: it overflows beyond 32767.
    const int anos = CInt(static_cast<double>(posto.AnoFinal) - posto.AnoInicial + 1);
    if (anos < 0) {
        throw plataforma::ErroVB::padrao(plataforma::ErroSubscrito);
    }
    vazoes.ReDim(anos, numSemanas);
    int contador = 2;
    for (int ano = posto.AnoInicial; ano <= posto.AnoFinal; ++ano) {
        const bool ultimoAno = ano == posto.AnoFinal;
        for (int j = 1; j <= LinhasPorAno; ++j) {
            if (ultimoAno && entrada.Eof()) {
                return true;
            }
            ++contador;
            const QString linha = entrada.LineInput();
            if (!ultimoAno && j != LinhasPorAno && Val(Mid(linha, ColunaAno, 4)) != ano) {
                detalhe = QStringLiteral(" (") + Mensagens::msgOAno + Trim(Str(ano)) +
                          Mensagens::msgAnoIncompletoLinha + Trim(Str(contador - 1)) + QStringLiteral(")");
                return false;
            }
            const int valores = pValoresNaLinha(j, numSemanas);
            for (int k = 1; k <= valores; ++k) {
                if (ultimoAno && linha.size() < LarguraCampo * k) {
                    return true;
                }
                const int semana = (j - 1) * ValoresPorLinha + k;
                progresso.setValue(pPercentual(posto, ano, semana, numSemanas));
                // The zeros around the field make a blank field and a bare "." read as 0.
                const QString campo = Mid(linha, (k - 1) * LarguraCampo + 2, LarguraCampo - 1);
                vazoes(ano - posto.AnoInicial + 1, semana) = CSng(Val(u'0' + Trim(campo) + u'0'));
            }
        }
    }
    return true;
}

// Right-aligns a number's text in a field.
QString pAlinhaDireita(const QString& texto, qsizetype largura) {
    return Space(largura - texto.size()) + texto;
}

}  // namespace

bool PostoARQ::importaVazoesSemanais(const QString& arquivo, QString& erros, Progresso& progresso,
                                     Posto& posto, PostoBD& postoBD, OpcoesBD& opcoesBD, bool semNomesPadrao,
                                     bool soCabecalho) const {
    if (!halvo::UtilitariosArquivo().ArquivoExiste(arquivo)) {
        return false;
    }
    try {
        ArquivoEntrada entrada(arquivo);
        progresso.setValue(0);

        // The code is read from columns 3 to 10, two to the right of where it is written.
        const QString identificacao = entrada.LineInput();
        if (posto.Codigo == 0) {
            posto.Codigo = CLng(Val(Trim(Mid(identificacao, 3, 8))));
        }
        posto.Nome = Trim(Mid(identificacao, 10, 60));
        if (posto.Codigo == 0 || Trim(posto.Nome).isEmpty()) {
            progresso.Esconde();
            halvo::Servicos::dialogo().Mensagem(
                QStringLiteral(
                    "Arquivo com formato incompatível. Verifique se o arquivo selecionado é válido."),
                Mensagens::msgTituloInformacao, halvo::Icone::Nenhum, halvo::Botoes::Ok);
            return false;
        }

        const QString periodo = entrada.LineInput();
        posto.AnoInicial = CInt(Val(Mid(periodo, 1, 5)));
        posto.AnoFinal = CInt(Val(Mid(periodo, 6, 5)));
        posto.Area = CSng(Val(Mid(periodo, 11, 9)));
        if (soCabecalho) {
            return true;
        }

        Historico vazoes;
        QString detalhe;
        if (!pLeHistorico(entrada, posto, progresso, vazoes, detalhe)) {
            pAdicionaErro(erros, Mensagens::msgVazoesSemanais + detalhe);
            return false;
        }
        // A store that refuses what the file holds fails the import as the file itself would.
        recordstore::Transacao transacao(postoBD.BancoDeDados());
        postoBD.setPosto(posto);
        postoBD.setHistorico(posto, vazoes);
        if (!semNomesPadrao) {
            Opcoes opcoes;
            opcoesBD.getOpcoes(opcoes);
            postoBD.setNomesPadrao(posto, opcoes);
        }
        transacao.Commit();
    } catch (const plataforma::ErroVB&) {
        pAdicionaErro(erros, Mensagens::msgVazoesSemanais);
        return false;
    }
    return true;
}

bool PostoARQ::geraVazoesSemanais(const QString& pasta, const Posto& posto, PostoBD& postoBD,
                                  Progresso& progresso) const {
    const auto saida = AbreArquivoGravacao(
        postoarq::pCaminhoDoPosto(pasta, posto.Codigo, posto.Arquivos.ArquivoVazoesSemanais));
    if (!saida) {
        return false;
    }
    progresso.setValue(0);
    Historico vazoes;
    postoBD.getHistorico(posto, vazoes);

    saida->Print(postoarq::pPreencher(Trim(Str(posto.Codigo)), 7, true) + u' ' + posto.Nome +
                 Space(60 - posto.Nome.size()));
    saida->Print(pAlinhaDireita(Trim(Str(posto.AnoInicial)), 5) +
                 pAlinhaDireita(Trim(Str(posto.AnoFinal)), 5) + pAlinhaDireita(Trim(Str(posto.Area)), 8) +
                 u'.');

    const int numSemanas = posto.getNumSemanas();
    for (int ano = posto.AnoInicial; ano <= posto.AnoFinal; ++ano) {
        const QString textoAno = Trim(Str(ano));
        // A zero ends the year: neither it nor any later week of that year is written.
        bool fimDoAno = false;
        for (int j = 1; j <= LinhasPorAno && !fimDoAno; ++j) {
            QString linha(1, u' ');
            const int valores = pValoresNaLinha(j, numSemanas);
            for (int k = 1; k <= valores; ++k) {
                const int semana = (j - 1) * ValoresPorLinha + k;
                progresso.setValue(pPercentual(posto, ano, semana, numSemanas));
                const float valor = vazoes(ano - posto.AnoInicial + 1, semana);
                if (valor == 0) {
                    fimDoAno = true;
                    break;
                }
                linha += pAlinhaDireita(Trim(Str(valor)), LarguraValor) + QStringLiteral(". ");
            }
            if (!Trim(linha).isEmpty()) {
                saida->Print(linha + Space(LarguraLinha - linha.size() - textoAno.size()) + textoAno);
            }
        }
    }
    saida->Close();
    return true;
}

}  // namespace corvalin
