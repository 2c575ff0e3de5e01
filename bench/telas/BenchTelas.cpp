// The station screen on a century of weekly flows: the first station of the case has 100 years of
// 52 weeks. Timed: showing that station again (its record and history read, the grid filled), the
// history read alone, for comparison, and the whole opening of the screen, painted once.

#include "corvalin/casedb/casoBD.h"
#include "corvalin/stations/FrmPostos.h"
#include "corvalin/stations/Posto.h"
#include "corvalin/stations/PostoBD.h"
#include "halvo/app/CasoPasta.h"
#include "halvo/sdk/CamadaAcesso.h"
#include "halvo/sdk/NotificadorRegistro.h"

#include <QApplication>
#include <QDir>
#include <QPushButton>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <memory>

namespace {

constexpr int Anos = 100;
constexpr int PrimeiroAno = 1921;
constexpr int Semanas = 52;

// One case, made once, whose first station holds the century.
struct Caso {
    Caso()
        : caso(std::make_shared<halvo::CasoPasta>(pasta.filePath(QStringLiteral("caso")))),
          bd(std::make_shared<corvalin::casoBD>()) {
        bd->Criar(pasta.filePath(QStringLiteral("caso")));
        bd->Fechar();
        bd->Abrir(*caso, true, true);
        postoBD.setCasoBD(bd);
        medido.Codigo = 1;
        medido.Nome = QStringLiteral("Aproveitamento Secular");
        medido.AnoInicial = PrimeiroAno;
        medido.AnoFinal = PrimeiroAno + Anos - 1;
        postoBD.setPosto(medido);
        corvalin::Historico vazoes(Anos, Semanas);
        for (int ano = 1; ano <= Anos; ++ano) {
            for (int semana = 1; semana <= Semanas; ++semana) {
                vazoes(ano, semana) = static_cast<float>(1000 + ano * 3.25 + semana * 0.5);
            }
        }
        postoBD.setHistorico(medido, vazoes);
    }
    ~Caso() { bd->Fechar(); }

    static Caso& instancia() {
        static Caso caso;
        return caso;
    }

    corvalin::ObjetosCaso objetos() const {
        return {std::make_shared<halvo::CamadaAcesso>(), bd, caso,
                std::make_shared<halvo::NotificadorRegistro>()};
    }

    QTemporaryDir pasta;
    std::shared_ptr<halvo::CasoPasta> caso;
    std::shared_ptr<corvalin::casoBD> bd;
    corvalin::PostoBD postoBD;
    corvalin::Posto medido;
};

std::unique_ptr<corvalin::FrmPostos> pAbre() {
    auto tela = std::make_unique<corvalin::FrmPostos>();
    tela->setObjetos(Caso::instancia().objetos());
    tela->Carregar();
    tela->show();
    QCoreApplication::processEvents();
    return tela;
}

// The button "first" shows the station again: its record and history read, the grid filled.
void MostrarPosto(benchmark::State& state) {
    const auto tela = pAbre();
    auto* primeiro = tela->findChild<QPushButton*>(QStringLiteral("BotPostosNavegacao_0"));
    for (auto _ : state) {
        primeiro->click();
    }
    state.SetItemsProcessed(state.iterations() * Anos * Semanas);
}
BENCHMARK(MostrarPosto)->Unit(benchmark::kMillisecond);

void LerHistorico(benchmark::State& state) {
    Caso& caso = Caso::instancia();
    corvalin::Historico vazoes;
    for (auto _ : state) {
        benchmark::DoNotOptimize(caso.postoBD.getHistorico(caso.medido, vazoes));
    }
    state.SetItemsProcessed(state.iterations() * Anos * Semanas);
}
BENCHMARK(LerHistorico)->Unit(benchmark::kMillisecond);

// Made, loaded on the first station, shown and painted, and closed.
void AbrirTela(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(pAbre());
    }
}
BENCHMARK(AbrirTela)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    // The offscreen platform warns on every window shown; the table is what this program prints.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    const QApplication aplicacao(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
