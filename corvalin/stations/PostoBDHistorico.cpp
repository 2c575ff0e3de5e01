// PostoBD: the weekly flow history, one row of VazoesSemanais for each week with a value.

#include "corvalin/stations/Posto.h"
#include "corvalin/stations/PostoBD.h"
#include "corvalin/stations/TabelasPosto.h"

#include <algorithm>
#include <vector>

namespace corvalin {

using recordstore::Recordset;
using tabelas::inteiro;

// True only when a row was stored and another row follows it in the table: a station whose one
// row is the table's last reads false, as its callers have always seen it.
bool PostoBD::getHistorico(const Posto& posto, Historico& vazoes) const {
    vazoes.ReDim(posto.AnoFinal - posto.AnoInicial + 1, posto.getNumSemanas());
    Recordset& tabela = tabelas::caso(mCasoBD).TabVazoesSemanais();
    tabela.Seek(QStringLiteral(">="), {posto.Codigo});
    if (tabela.NoMatch()) {
        return false;
    }
    bool leu = false;
    while (inteiro<std::int32_t>(tabela, tabelas::CodigoDoPosto) == posto.Codigo) {
        vazoes(inteiro<int>(tabela, tabelas::Ano) - posto.AnoInicial + 1,
               inteiro<int>(tabela, tabelas::Semana)) =
            static_cast<float>(tabela.campo(tabelas::Vazao).paraDouble());
        tabela.MoveNext();
        if (tabela.Eof()) {
            break;
        }
        leu = true;
    }
    return leu;
}

// The old rows go first and there is no merging; weeks are written in the index's order, one row
// for each week with a value (the fields in the table's order: station, year, week, flow). All in
// one transaction: a failure half-way (an array smaller than the record's years) leaves the old
// history in place.
void PostoBD::setHistorico(const Posto& posto, const Historico& vazoes) {
    const casoBD& bd = tabelas::caso(mCasoBD);
    recordstore::Transacao transacao(bd.BancoDeDados());
    pApagarHistorico(posto.Codigo);
    const int semanas = posto.getNumSemanas();
    std::vector<std::vector<recordstore::Valor>> linhas;
    linhas.reserve(static_cast<std::size_t>(std::max(posto.AnoFinal - posto.AnoInicial + 1, 0) * semanas));
    for (int ano = posto.AnoInicial; ano <= posto.AnoFinal; ++ano) {
        for (int semana = 1; semana <= semanas; ++semana) {
            const float vazao = vazoes(ano - posto.AnoInicial + 1, semana);
            if (vazao != 0.0f) {  // a missing week has no row
                linhas.push_back({posto.Codigo, ano, semana, vazao});
            }
        }
    }
    bd.TabVazoesSemanais().AddNewRows(linhas);
    transacao.Commit();
}

// The last week with a value, from the year AnoFinal on; 0 when that year and the later ones
// hold no row of the station.
std::uint8_t PostoBD::getUltimaSemana(const Posto& posto) const {
    Recordset& tabela = tabelas::caso(mCasoBD).TabVazoesSemanais();
    tabela.Seek(QStringLiteral(">="), {posto.Codigo, posto.AnoFinal});
    std::uint8_t semana = 0;
    while (!tabela.Eof() && inteiro<std::int32_t>(tabela, tabelas::CodigoDoPosto) == posto.Codigo) {
        semana = inteiro<std::uint8_t>(tabela, tabelas::Semana);
        tabela.MoveNext();
    }
    return semana;
}

// One statement instead of a walk over the station's rows: the same rows go, much faster. Where
// the handle stands afterwards is left open; every caller seeks before it reads.
void PostoBD::pApagarHistorico(std::int32_t Codigo) {
    tabelas::caso(mCasoBD).BancoDeDados().Execute(
        QStringLiteral("DELETE FROM VazoesSemanais WHERE CodigoDoPosto = %1").arg(Codigo));
}

}  // namespace corvalin
