// The station store at the sizes of a real case: a century of 53-week history written and read
// back, against the old way of writing it (a walk that deletes and one autocommitted row at a
// time), and the list of a catalogue of 1,000 stations with their general data.

#include "corvalin/casedb/casoBD.h"
#include "corvalin/stations/Posto.h"
#include "corvalin/stations/PostoBD.h"
#include "halvo/app/CasoPasta.h"

#include <QDir>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <memory>

namespace {

using corvalin::Historico;
using corvalin::Posto;

constexpr int Anos = 100;
constexpr int PrimeiroAno = 1921;
constexpr int PostosNoCatalogo = 1000;
constexpr int PostosComHistorico = 20;  // neighbours around the measured station in the table

Posto pPosto(int codigo) {
    Posto p;
    p.Codigo = codigo;
    p.Nome = QStringLiteral("Posto %1").arg(codigo, 4, 10, QLatin1Char('0'));
    p.AnoInicial = PrimeiroAno;
    p.AnoFinal = PrimeiroAno + Anos - 1;
    p.MesInicial = 1;
    p.Arquivos.CasoUsa53Semanas = 1;
    p.Arquivos.ArquivoVazoesSemanais = QStringLiteral("vazoes.dat");
    p.FlafVazpast = true;
    p.NomeArqVazpast = QStringLiteral("vazpast.dat");
    return p;
}

Historico pHistorico(const Posto& p) {
    Historico h(p.AnoFinal - p.AnoInicial + 1, p.getNumSemanas());
    for (int a = 1; a <= h.UBound1(); ++a) {
        for (int s = 1; s <= h.UBound2(); ++s) {
            h(a, s) = static_cast<float>(100 + a + s);
        }
    }
    return h;
}

// One case, made once: a full catalogue, and a few stations with a century of history each.
struct Caso {
    Caso() : bd(std::make_shared<corvalin::casoBD>()) {
        const QString caminho = pasta.filePath(QStringLiteral("caso"));
        bd->Criar(caminho);
        bd->Fechar();
        bd->Abrir(halvo::CasoPasta(caminho), true, true);
        postoBD.setCasoBD(bd);
        recordstore::Transacao t(postoBD.BancoDeDados());
        for (int codigo = 1; codigo <= PostosNoCatalogo; ++codigo) {
            Posto p = pPosto(codigo);
            postoBD.setPosto(p);
            if (codigo <= PostosComHistorico) {
                postoBD.setHistorico(p, pHistorico(p));
            }
        }
        t.Commit();
    }
    ~Caso() { bd->Fechar(); }

    static Caso& instancia() {
        static Caso caso;
        return caso;
    }

    QTemporaryDir pasta;
    std::shared_ptr<corvalin::casoBD> bd;
    corvalin::PostoBD postoBD;
};

const Posto Medido = pPosto(PostosComHistorico / 2);
const Historico HistoricoMedido = pHistorico(Medido);

void HistoricoGravaELe(benchmark::State& state) {
    corvalin::PostoBD& postoBD = Caso::instancia().postoBD;
    Historico lido;
    for (auto _ : state) {
        postoBD.setHistorico(Medido, HistoricoMedido);
        benchmark::DoNotOptimize(postoBD.getHistorico(Medido, lido));
    }
    if (lido(Anos, 53) != HistoricoMedido(Anos, 53)) {
        state.SkipWithError("the history did not come back");
    }
    state.SetItemsProcessed(state.iterations() * Anos * 53);
}
BENCHMARK(HistoricoGravaELe)->Unit(benchmark::kMillisecond);

void HistoricoGrava(benchmark::State& state) {
    corvalin::PostoBD& postoBD = Caso::instancia().postoBD;
    for (auto _ : state) {
        postoBD.setHistorico(Medido, HistoricoMedido);
    }
    state.SetItemsProcessed(state.iterations() * Anos * 53);
}
BENCHMARK(HistoricoGrava)->Unit(benchmark::kMillisecond);

void HistoricoLe(benchmark::State& state) {
    corvalin::PostoBD& postoBD = Caso::instancia().postoBD;
    Historico lido;
    for (auto _ : state) {
        benchmark::DoNotOptimize(postoBD.getHistorico(Medido, lido));
    }
    state.SetItemsProcessed(state.iterations() * Anos * 53);
}
BENCHMARK(HistoricoLe)->Unit(benchmark::kMillisecond);

// The old store's write: a walk that deletes the station's rows one by one, then one row at a
// time, each Update a transaction of its own.
void HistoricoGravaIngenuo(benchmark::State& state) {
    Caso& caso = Caso::instancia();
    recordstore::Recordset& tabela = caso.bd->TabVazoesSemanais();
    for (auto _ : state) {
        tabela.Seek(QStringLiteral(">="), {Medido.Codigo});
        while (!tabela.Eof() &&
               tabela.campo(QStringLiteral("CodigoDoPosto")).paraInteiro() == Medido.Codigo) {
            tabela.Delete();
            tabela.MoveNext();
        }
        for (int ano = Medido.AnoInicial; ano <= Medido.AnoFinal; ++ano) {
            for (int semana = 1; semana <= Medido.getNumSemanas(); ++semana) {
                tabela.AddNew();
                tabela.setCampo(QStringLiteral("CodigoDoPosto"), Medido.Codigo);
                tabela.setCampo(QStringLiteral("Ano"), ano);
                tabela.setCampo(QStringLiteral("Semana"), semana);
                tabela.setCampo(QStringLiteral("Vazao"),
                                HistoricoMedido(ano - Medido.AnoInicial + 1, semana));
                tabela.Update();
            }
        }
    }
    state.SetItemsProcessed(state.iterations() * Anos * 53);
}
BENCHMARK(HistoricoGravaIngenuo)->Unit(benchmark::kMillisecond)->Iterations(3);

void ListaDoCatalogo(benchmark::State& state) {
    const corvalin::PostoBD& postoBD = Caso::instancia().postoBD;
    plataforma::Vetor<Posto> postos;
    for (auto _ : state) {
        postoBD.getPostos(postos);
    }
    if (postos.UBound() != PostosNoCatalogo) {
        state.SkipWithError("stations missing from the list");
    }
    state.SetItemsProcessed(state.iterations() * PostosNoCatalogo);
}
BENCHMARK(ListaDoCatalogo)->Unit(benchmark::kMillisecond);

}  // namespace
