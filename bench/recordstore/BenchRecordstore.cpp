// Cursor speed over a table shaped like the weekly flows: a Long, an Integer and a Byte under a
// three-field primary key, and a Single.

#include "platform/recordstore/Recordstore.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <memory>
#include <random>

using namespace recordstore;

namespace {

constexpr int postos = 250;
constexpr int anos = 80;
constexpr int semanas = 50;  // 250 x 80 x 50 = 1,000,000 rows
constexpr int anoInicial = 1931;
constexpr int linhasPorHistorico = 5300;

TableDef vazoes(const QString& nome) {
    return {
        nome,
        {CreateField(QStringLiteral("CodigoDoPosto"), Tipo::Long),
         CreateField(QStringLiteral("Ano"), Tipo::Integer), CreateField(QStringLiteral("Semana"), Tipo::Byte),
         CreateField(QStringLiteral("Vazao"), Tipo::Single)},
        {{QStringLiteral("CodigoDoPostoAnoSemana"), true, QStringLiteral("CodigoDoPosto;+Ano;+Semana")}}};
}

void adiciona(Recordset& rs, int codigo, int ano, int semana) {
    rs.AddNew();
    rs.setCampo(QStringLiteral("CodigoDoPosto"), codigo);
    rs.setCampo(QStringLiteral("Ano"), ano);
    rs.setCampo(QStringLiteral("Semana"), semana);
    rs.setCampo(QStringLiteral("Vazao"), 100.0 + semana);
    rs.Update();
}

// One file of a million rows, made once for all the benchmarks.
struct Base {
    Base() {
        bd = Database::CreateDatabase(pasta.filePath(QStringLiteral("Corvalin.mdb")));
        bd->Append(vazoes(QStringLiteral("VazoesSemanais")));
        bd->Append(vazoes(QStringLiteral("Novas")));
        rs = bd->OpenRecordset(QStringLiteral("VazoesSemanais"));
        Transacao t(*bd);
        for (int codigo = 1; codigo <= postos; ++codigo) {
            for (int ano = anoInicial; ano < anoInicial + anos; ++ano) {
                for (int semana = 1; semana <= semanas; ++semana) {
                    adiciona(*rs, codigo, ano, semana);
                }
            }
        }
        t.Commit();
        rs->setIndex(QStringLiteral("CodigoDoPostoAnoSemana"));
    }

    static Base& instancia() {
        static Base base;
        return base;
    }

    QTemporaryDir pasta;
    std::unique_ptr<Database> bd;
    std::unique_ptr<Recordset> rs;
};

void MoveNextPelaChave(benchmark::State& state) {
    Recordset& rs = *Base::instancia().rs;
    for (auto _ : state) {
        double soma = 0;
        for (rs.MoveFirst(); !rs.Eof(); rs.MoveNext()) {
            soma += rs.campo(QStringLiteral("Vazao")).paraDouble();
        }
        benchmark::DoNotOptimize(soma);
    }
    state.SetItemsProcessed(state.iterations() * postos * anos * semanas);
}
BENCHMARK(MoveNextPelaChave)->Unit(benchmark::kMillisecond);

void SeekTresCampos(benchmark::State& state) {
    Recordset& rs = *Base::instancia().rs;
    std::mt19937 gerador(42);
    std::uniform_int_distribution<int> codigo(1, postos), ano(anoInicial, anoInicial + anos - 1),
        semana(1, semanas);
    constexpr int buscas = 100000;
    for (auto _ : state) {
        int achados = 0;
        for (int i = 0; i < buscas; ++i) {
            rs.Seek(QStringLiteral("="), {codigo(gerador), ano(gerador), semana(gerador)});
            achados += rs.NoMatch() ? 0 : 1;
        }
        if (achados != buscas) {
            state.SkipWithError("a Seek missed");
        }
    }
    state.SetItemsProcessed(state.iterations() * buscas);
}
BENCHMARK(SeekTresCampos)->Unit(benchmark::kMillisecond);

void AddNewUpdateDeUmHistorico(benchmark::State& state) {
    Base& base = Base::instancia();
    auto novas = base.bd->OpenRecordset(QStringLiteral("Novas"));
    for (auto _ : state) {
        Transacao t(*base.bd);
        for (int i = 0; i < linhasPorHistorico; ++i) {
            adiciona(*novas, 1, anoInicial + i / 53, i % 53 + 1);
        }
        t.Commit();
        state.PauseTiming();
        base.bd->Execute(QStringLiteral("DELETE FROM Novas"));
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * linhasPorHistorico);
}
BENCHMARK(AddNewUpdateDeUmHistorico)->Unit(benchmark::kMillisecond);

// Reading one station's rows back as the history store does: Seek ">=" on the code, then MoveNext.
void LeituraDeUmHistorico(benchmark::State& state) {
    Base& base = Base::instancia();
    auto novas = base.bd->OpenRecordset(QStringLiteral("Novas"));
    {
        Transacao t(*base.bd);
        for (int i = 0; i < linhasPorHistorico; ++i) {
            adiciona(*novas, 7, anoInicial + i / 53, i % 53 + 1);
        }
        t.Commit();
    }
    novas->setIndex(QStringLiteral("CodigoDoPostoAnoSemana"));
    for (auto _ : state) {
        int lidas = 0;
        for (novas->Seek(QStringLiteral(">="), {7});
             !novas->Eof() && novas->campo(QStringLiteral("CodigoDoPosto")).paraInteiro() == 7;
             novas->MoveNext()) {
            benchmark::DoNotOptimize(novas->campo(QStringLiteral("Ano")).paraInteiro());
            benchmark::DoNotOptimize(novas->campo(QStringLiteral("Semana")).paraInteiro());
            benchmark::DoNotOptimize(novas->campo(QStringLiteral("Vazao")).paraDouble());
            ++lidas;
        }
        if (lidas != linhasPorHistorico) {
            state.SkipWithError("rows missing");
        }
    }
    state.SetItemsProcessed(state.iterations() * linhasPorHistorico);
    base.bd->Execute(QStringLiteral("DELETE FROM Novas"));
}
BENCHMARK(LeituraDeUmHistorico)->Unit(benchmark::kMillisecond);

}  // namespace
