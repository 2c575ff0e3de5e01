#include "corvalin/execution/ValidacaoExecucao.h"

#include "corvalin/execution/ListaPostos.h"
#include "corvalin/execution/RegistroTexto.h"
#include "corvalin/frame/Geral.h"
#include "corvalin/frame/Mensagens.h"
#include "corvalin/stations/Posto.h"
#include "corvalin/stations/PostoBD.h"
#include "halvo/sdk/UtilitariosArquivo.h"
#include "platform/texto/Texto.h"

namespace corvalin {

namespace {

using namespace Mensagens;

constexpr int AnosMinimosHistorico = 20;
constexpr qsizetype MenorNomeVazpast = 3;

QString pContagem(std::int16_t n, const QString& singular, const QString& plural) {
    return texto::Trim(texto::Str(n)) + u' ' + (n == 1 ? singular : plural);
}

}  // namespace

ValidacaoExecucao::ValidacaoExecucao(const PostoBD& postoBD, RegistroTexto& registro)
    : mPostoBD(postoBD), mRegistro(registro) {}

bool ValidacaoExecucao::pValidar(const ListaPostos& lista) {
    const PonteiroOcupado ponteiro;
    mRegistro.Limpa();
    mErros = 0;
    mAvisos = 0;
    for (int linha = 0; linha < lista.Quantidade(); ++linha) {
        if (!lista.Marcada(linha)) {
            continue;
        }
        const QString texto = lista.Texto(linha);
        Posto posto;
        if (mPostoBD.getPosto(posto, BuscaPorCodigo, CodigoDaLinha(texto), {})) {
            ValidaPosto(texto, &posto, mPostoBD.getUltimaSemana(posto));
        } else {
            ValidaPosto(texto, nullptr, 0);
        }
    }
    pLinha(QStringLiteral(" "), RegistroTexto::Normal);
    return mErros == 0;
}

void ValidacaoExecucao::ValidaPosto(const QString& linha, const Posto* posto, std::uint8_t ultimaSemana) {
    pLinha(msgPosto + QStringLiteral(": ") + linha, RegistroTexto::Normal);
    bool temErro = false;
    // A station that is gone goes on to the Vazpast rule with an empty record, so that it shows
    // exactly one error.
    const Posto vazio;
    if (posto == nullptr) {
        temErro = pFalha(false, msgPostoApagado, RegistroTexto::Erro);
    } else {
        pRegrasDoPosto(*posto, ultimaSemana, temErro);
    }
    const Posto& lido = posto == nullptr ? vazio : *posto;
    temErro |= pFalha(!(lido.FlafVazpast && lido.NomeArqVazpast.size() < MenorNomeVazpast), msgVazpastNaoDefinido,
                      RegistroTexto::Erro);
    if (!temErro) {
        pLinha(msgDadosGeraisOK, RegistroTexto::Normal);
    }
    pLinha(QStringLiteral(" "), RegistroTexto::Normal);
}

void ValidacaoExecucao::pRegrasDoPosto(const Posto& posto, std::uint8_t ultimaSemana, bool& temErro) {
    pFalha(posto.AnoFinal - posto.AnoInicial + 1 >= AnosMinimosHistorico, msgHistoricoMenos20Anos,
           RegistroTexto::Aviso);
    // Meant to compare the stations' last weeks, but the week seen is cleared at every row and
    // nothing sets it: the test always passes and its warning is never given.
    const std::uint8_t ultimaSemanaVista = 0;
    pFalha(ultimaSemanaVista == 0 || ultimaSemanaVista == ultimaSemana, msgUltimaSemanaDiferente,
           RegistroTexto::Aviso);
    if (pFalha(!posto.DadosGeraisVazios(), msgDadosGeraisNaoDefinidos, RegistroTexto::Erro)) {
        temErro = true;
        return;
    }
    const halvo::UtilitariosArquivo arquivos;
    const OpcoesArquivos& nomes = posto.Arquivos;
    const struct {
        bool passa;
        const QString& texto;
    } regras[] = {
        {arquivos.NomeArquivoValido(nomes.ArquivoDadosGerais), msgNomeDadosGeraisInvalido},
        {arquivos.NomeArquivoValido(nomes.ArquivoVazoesSemanais), msgNomeHistoricoInvalido},
        {arquivos.NomeArquivoValido(nomes.ArquivoRelatorio), msgNomeRelatorioInvalido},
        {arquivos.NomeArquivoValido(nomes.ArquivoPrevisoes), msgNomeVazoesFuturasInvalido},
        {arquivos.NomeArquivoValido(nomes.ArquivoExcel), msgNomeExcelInvalido},
        // No lower bound: a transformation of 0, which the record calls not defined, passes.
        {posto.Transformacao <= 5, msgTransformacaoNaoDefinida},
        {posto.MesInicial >= 1 && posto.MesInicial <= 12, msgMesInicialInvalido},
        {posto.IntervaloConfianca >= 0 && posto.IntervaloConfianca <= 100, msgIntervaloInvalido},
        {posto.SemanaInicialPrev >= 1 && posto.SemanaInicialPrev <= posto.getNumSemanas(), msgSemanaInicialInvalida},
        {posto.AnoInicialPrev >= 1, msgAnoInicialInvalido},
    };
    for (const auto& regra : regras) {
        temErro |= pFalha(regra.passa, regra.texto, RegistroTexto::Erro);
    }
}

bool ValidacaoExecucao::pFalha(bool passa, const QString& texto, int estilo) {
    if (!passa) {
        pLinha(texto, estilo);
    }
    return !passa;
}

void ValidacaoExecucao::pLinha(const QString& texto, int estilo) {
    if (estilo == RegistroTexto::Erro) {
        ++mErros;
    } else if (estilo == RegistroTexto::Aviso) {
        ++mAvisos;
    }
    mRegistro.AdicionaLinha(texto, estilo, true, true);
}

QString ValidacaoExecucao::TextoAlertas() const { return pContagem(mAvisos, msgAvisoSingular, msgAvisoPlural); }

QString ValidacaoExecucao::TextoProblemas() const { return pContagem(mErros, msgErroSingular, msgErroPlural); }

}  // namespace corvalin
