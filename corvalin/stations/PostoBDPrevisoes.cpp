// PostoBD: the forecasts brought back from the solver, the weeks that lead up to them, and the
// forecast limits. Writers overwrite by key and delete nothing: rows beyond a shorter new set stay.

#include "corvalin/stations/Posto.h"
#include "corvalin/stations/PostoBD.h"
#include "corvalin/stations/TabelasPosto.h"
#include "platform/texto/Texto.h"

namespace corvalin {

using plataforma::Vetor;
using recordstore::Recordset;
using tabelas::inteiro;

namespace {

const QString CampoPrevisao = QStringLiteral("Previsao");
const QString CampoCodigo = QStringLiteral("Codigo");
const QString CampoTipo = QStringLiteral("Tipo");
const QString CampoOrdem = QStringLiteral("Ordem");

float pSingle(const Recordset& tabela, const QString& campo) {
    return static_cast<float>(tabela.campo(campo).paraDouble());
}

}  // namespace

void PostoBD::setVazoesPrevistas(std::int32_t Codigo, const Vetor<float>& Previsao,
                                 const Vetor<float>& LimiteInferior, const Vetor<float>& LimiteSuperior) {
    const casoBD& bd = tabelas::caso(mCasoBD);
    const int semanas = texto::CByte(Previsao.UBound());
    recordstore::Transacao transacao(bd.BancoDeDados());
    Recordset& tabela = bd.TabVazoesPrevistas();
    for (int semana = 1; semana <= semanas; ++semana) {
        tabela.Seek(QStringLiteral("="), {Codigo, semana});
        tabelas::editaOuAdiciona(tabela, {{tabelas::CodigoDoPosto, Codigo}, {tabelas::Semana, semana}});
        tabela.setCampo(CampoPrevisao, Previsao[semana]);
        tabela.setCampo(tabelas::LimiteInferior, LimiteInferior[semana]);
        tabela.setCampo(tabelas::LimiteSuperior, LimiteSuperior[semana]);
        tabela.Update();
    }
    transacao.Commit();
}

// Filled in the order of the rows from ordinal 1, not by their ordinals; no row for ordinal 1
// reads as no forecast.
void PostoBD::getVazoesPrevistas(std::int32_t Codigo, Vetor<float>& Previsao, Vetor<float>& LimiteInferior,
                                 Vetor<float>& LimiteSuperior) const {
    Recordset& tabela = tabelas::caso(mCasoBD).TabVazoesPrevistas();
    tabela.Seek(QStringLiteral("="), {Codigo, 1});
    if (tabela.NoMatch()) {
        Previsao.ReDim(0);
        LimiteInferior.ReDim(0);
        LimiteSuperior.ReDim(0);
        return;
    }
    for (int n = 1; !tabela.Eof() && inteiro<std::int32_t>(tabela, tabelas::CodigoDoPosto) == Codigo; ++n) {
        Previsao.ReDimPreserve(n);
        LimiteInferior.ReDimPreserve(n);
        LimiteSuperior.ReDimPreserve(n);
        Previsao[n] = pSingle(tabela, CampoPrevisao);
        LimiteInferior[n] = pSingle(tabela, tabelas::LimiteInferior);
        LimiteSuperior[n] = pSingle(tabela, tabelas::LimiteSuperior);
        tabela.MoveNext();
    }
}

// Position 6 is the week just before the forecast, 1 the oldest. The walk goes by rows, with no
// look at weeks or codes: a gap shifts the older values, and a short history runs into the rows
// of the station before; the chart has always been drawn so.
bool PostoBD::getVazoesAnteriores(const Posto& posto, Vetor<float>& Vazoes) const {
    const bool inicioDoAno = posto.SemanaInicialPrev == 1;
    const int ano = inicioDoAno ? posto.AnoInicialPrev - 1 : posto.AnoInicialPrev;
    const int semana = inicioDoAno ? posto.getNumSemanas() : posto.SemanaInicialPrev - 1;
    constexpr int SemanasAnteriores = 6;
    Vazoes.ReDim(SemanasAnteriores);
    Recordset& tabela = tabelas::caso(mCasoBD).TabVazoesSemanais();
    tabela.Seek(QStringLiteral("="), {posto.Codigo, ano, semana});
    if (tabela.NoMatch()) {
        return false;
    }
    for (int i = SemanasAnteriores; i >= 1 && !tabela.Bof(); --i) {
        Vazoes[i] = pSingle(tabela, tabelas::Vazao);
        tabela.MovePrevious();
    }
    return true;
}

// Each grouping (Tipo) keeps its own rows, so that going back to an earlier grouping finds its
// limits again.
void PostoBD::setLimitesPrevisao(std::int32_t Codigo, std::uint8_t Tipo, const Vetor<float>& LimiteInferior,
                                 const Vetor<float>& LimiteSuperior) {
    const casoBD& bd = tabelas::caso(mCasoBD);
    const int periodos = texto::CByte(LimiteSuperior.UBound());
    recordstore::Transacao transacao(bd.BancoDeDados());
    Recordset& tabela = bd.TabLimitesPrevisao();
    for (int ordem = 1; ordem <= periodos; ++ordem) {
        tabela.Seek(QStringLiteral("="), {Codigo, Tipo, ordem});
        tabelas::editaOuAdiciona(tabela, {{CampoCodigo, Codigo}, {CampoTipo, Tipo}, {CampoOrdem, ordem}});
        tabela.setCampo(tabelas::LimiteInferior, LimiteInferior[ordem]);
        tabela.setCampo(tabelas::LimiteSuperior, LimiteSuperior[ordem]);
        tabela.Update();
    }
    transacao.Commit();
}

// The caller sizes the arrays to the periods of the grouping; they are not dimensioned here, and
// with no row for period 1 they stay as they were. The read ends at the count of the arrays, at
// another code, or at another grouping: the old walk spun on a row of another grouping when the
// arrays were longer than the stored rows.
void PostoBD::getLimitesPrevisao(std::int32_t Codigo, std::uint8_t Tipo, Vetor<std::int16_t>& Ordem,
                                 Vetor<float>& LimiteInferior, Vetor<float>& LimiteSuperior) const {
    Recordset& tabela = tabelas::caso(mCasoBD).TabLimitesPrevisao();
    tabela.Seek(QStringLiteral("="), {Codigo, Tipo, 1});
    if (tabela.NoMatch()) {
        return;
    }
    for (int n = 1; !tabela.Eof(); ++n) {
        if (inteiro<std::int32_t>(tabela, CampoCodigo) != Codigo ||
            inteiro<std::uint8_t>(tabela, CampoTipo) != Tipo) {
            break;
        }
        Ordem[n] = inteiro<std::int16_t>(tabela, CampoOrdem);
        LimiteInferior[n] = pSingle(tabela, tabelas::LimiteInferior);
        LimiteSuperior[n] = pSingle(tabela, tabelas::LimiteSuperior);
        tabela.MoveNext();
        if (n == Ordem.UBound()) {
            break;
        }
    }
}

}  // namespace corvalin
