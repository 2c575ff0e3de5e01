#include "corvalin/frame/Geral.h"
#include "corvalin/modelfiles/PostoARQ.h"
#include "corvalin/modelfiles/PostoARQComum.h"
#include "corvalin/stations/Posto.h"
#include "corvalin/stations/PostoBD.h"
#include "halvo/sdk/UtilitariosArquivo.h"
#include "platform/recordstore/Recordstore.h"
#include "platform/runtime/ErroVB.h"
#include "platform/runtime/Vetor.h"
#include "platform/texto/ArquivoTexto.h"
#include "platform/texto/Texto.h"

namespace corvalin {

namespace {

using namespace texto;
using postoarq::pPreencher;

constexpr int TipoSingle = 4;  // the host's type code of a 32-bit float
const QString FormatoLimite = QStringLiteral("F4.1");

bool pCodigoValido(std::uint8_t valor) {
    return valor >= 1 && valor <= 4;
}

// Periods of a grouping: weeks, months, quarters, half-years.
int pPeriodos(std::uint8_t discretizacao, const Posto& posto) {
    switch (discretizacao) {
        case 1:
            return posto.getNumSemanas();
        case 2:
            return 12;
        case 3:
            return 4;
        default:  // 4, the only code left once the file's value is checked
            return 2;
    }
}

}  // namespace

bool PostoARQ::importaLimites(const QString& arquivo, Posto& posto, PostoBD& postoBD,
                              QString& mensagem) const {
    if (!halvo::UtilitariosArquivo().ArquivoExiste(arquivo)) {
        return false;
    }
    try {
        ArquivoEntrada entrada(arquivo);
        const std::uint8_t discretizacao = CByte(Val(entrada.LineInput()));
        // This message names NumeroPosto, which is never set, where the next names the code; both
        // keep Str's leading blank.
        if (!pCodigoValido(discretizacao)) {
            mensagem = posto.Nome + QStringLiteral(" - ") + QString::number(posto.NumeroPosto) + u':' +
                       QStringLiteral(
                           "Valor inválido para o período de composição da distribuição das variáveis (") +
                       Str(discretizacao) + QStringLiteral(").");
            return false;
        }
        const int periodos = pPeriodos(discretizacao, posto);
        const std::uint8_t magnitude = CByte(Val(entrada.LineInput()));
        if (!pCodigoValido(magnitude)) {
            mensagem = posto.Nome + QStringLiteral(" - ") + QString::number(posto.Codigo) + u':' +
                       QStringLiteral("Valor inválido para a divisão da magnitude de vazão (") +
                       Str(magnitude) + QStringLiteral(").");
            return false;
        }
        plataforma::Vetor<float> limiteInferior(periodos);
        plataforma::Vetor<float> limiteSuperior(periodos);
        // The period number in the line decides the position, not the line's place.
        for (int periodo = 1; periodo <= periodos; ++periodo) {
            if (entrada.Eof()) {
                mensagem = QStringLiteral(
                    "Alerta: Alguns valores de limite da restrição não foram informados no arquivo. Será "
                    "adotado o "
                    "valor padrão zero (0).");
                break;
            }
            const QString linha = entrada.LineInput();
            const int ordem = CByte(LeNumero(Mid(linha, 1, 2)));
            limiteInferior[ordem] = CSng(LeNumero(Mid(linha, 4, 4)));
            limiteSuperior[ordem] = CSng(LeNumero(Mid(linha, 9, 4)));
        }
        posto.Magnitude = magnitude;
        posto.discretizacao = discretizacao;
        posto.NomeArqLimite = postoarq::pExtensaoLimites(posto.NomeArqLimite);

        recordstore::Transacao transacao(postoBD.BancoDeDados());
        postoBD.setLimitesPrevisao(posto.Codigo, discretizacao, limiteInferior, limiteSuperior);
        postoBD.setDadosGerais(posto);
        transacao.Commit();
    } catch (const plataforma::ErroVB&) {
        return false;
    }
    return true;
}

bool PostoARQ::geraLimites(const QString& pasta, Posto& posto, PostoBD& postoBD) const {
    posto.NomeArqLimite = postoarq::pExtensaoLimites(posto.NomeArqLimite);
    postoBD.setDadosGerais(posto);
    const auto saida =
        AbreArquivoGravacao(postoarq::pCaminhoDoPosto(pasta, posto.Codigo, posto.NomeArqLimite));
    if (!saida) {
        return false;
    }
    saida->Print(pPreencher(QString::number(posto.discretizacao), 1, false));
    saida->Print(pPreencher(QString::number(posto.Magnitude), 1, false));

    plataforma::Vetor<std::int16_t> periodos;
    plataforma::Vetor<float> limiteInferior;
    plataforma::Vetor<float> limiteSuperior;
    DimensionaLimites(posto.discretizacao, periodos, limiteInferior, limiteSuperior,
                      posto.Arquivos.CasoUsa53Semanas);
    postoBD.getLimitesPrevisao(posto.Codigo, posto.discretizacao, periodos, limiteInferior, limiteSuperior);
    for (int i = 1; i <= periodos.UBound(); ++i) {
        saida->Print(pPreencher(Trim(Str(periodos[i])), 1, false) + u' ' +
                     FormataCampo(limiteInferior[i], FormatoLimite, TipoSingle) + u' ' +
                     FormataCampo(limiteSuperior[i], FormatoLimite, TipoSingle));
    }
    saida->Close();
    return true;
}

}  // namespace corvalin
