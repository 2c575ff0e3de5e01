// The solver's benchmark on real rivers: skill tables against persistence, climatology and each
// fixed transformation, and the time of a run on a 90-year station.
//
//   bench_skill [--rios PASTA]                  tables and timing
//   bench_skill [--rios PASTA] --amostras PASTA the demo station files of samples/
//   bench_skill [--rios PASTA] --semanas PASTA  the weekly series as CSV, for skill_peers.R
//   bench_skill [--rios PASTA] --tempo          the timing alone

#include "bench/skill/Amostras.h"
#include "bench/skill/Habilidade.h"
#include "bench/skill/Tempo.h"

#include <cstdio>
#include <exception>
#include <fstream>
#include <iostream>
#include <string_view>

namespace {

struct Rio {
    const char* arquivo;
    const char* nome;
};

constexpr Rio rios[] = {
    {"choptank_greensboro.csv", "Choptank em Greensboro (rio costeiro pequeno)"},
    {"fraser_hope.csv", "Fraser em Hope (rio grande de degelo)"},
    {"minam_camels.csv", "Minam em Minam (rio de montanha)"},
    {"red_fargo.csv", "Red em Fargo (rio de planície)"},
};

void exportaSemanas(const std::filesystem::path& pastaRios, const std::filesystem::path& pasta) {
    std::filesystem::create_directories(pasta);
    for (const Rio& r : rios) {
        const skill::RioSemanal rio = skill::leRio(pastaRios / r.arquivo);
        std::ofstream saida(pasta / r.arquivo);
        saida << "ano,semana,vazao\n";
        for (int a = 0; a < rio.anosCompletos(); ++a) {
            for (int s = 0; s < skill::semanasPorAno; ++s) {
                saida << rio.anoInicial + a << ',' << s + 1 << ','
                      << rio.anos[static_cast<std::size_t>(a)][static_cast<std::size_t>(s)] << '\n';
            }
        }
    }
}

void imprimeHabilidade(const std::filesystem::path& pastaRios) {
    for (const Rio& r : rios) {
        const skill::RioSemanal rio = skill::leRio(pastaRios / r.arquivo);
        std::cout << skill::tabelas(std::string(r.nome) + ", " + std::to_string(rio.anoInicial) + " a " +
                                        std::to_string(rio.anoInicial + rio.anosCompletos() - 1),
                                    skill::avaliaRio(rio))
                  << std::flush;
    }
}

void imprimeTempo(const std::filesystem::path& pastaRios) {
    const auto pasta = std::filesystem::temp_directory_path() / "corvalin_bench_skill";
    std::cout << skill::cronometraEstacaoLonga(pastaRios, pasta) << '\n';
    std::filesystem::remove_all(pasta);
}

}  // namespace

int main(int argc, char** argv) {
    std::filesystem::path pastaRios = CORVALIN_PASTA_RIOS;
    std::filesystem::path amostras;
    std::filesystem::path semanas;
    bool soTempo = false;
    for (int i = 1; i < argc; ++i) {
        const std::string_view opcao = argv[i];
        if (opcao == "--tempo") {
            soTempo = true;
        } else if (i + 1 < argc && (opcao == "--rios" || opcao == "--amostras" || opcao == "--semanas")) {
            (opcao == "--rios" ? pastaRios : opcao == "--amostras" ? amostras : semanas) = argv[++i];
        } else {
            std::fprintf(stderr,
                         "uso: bench_skill [--rios PASTA] [--amostras PASTA | --semanas PASTA | --tempo]\n");
            return 2;
        }
    }
    try {
        if (!amostras.empty()) {
            skill::geraAmostras(pastaRios, amostras);
        } else if (!semanas.empty()) {
            exportaSemanas(pastaRios, semanas);
        } else {
            if (!soTempo) {
                imprimeHabilidade(pastaRios);
            }
            imprimeTempo(pastaRios);
        }
    } catch (const std::exception& x) {
        std::fprintf(stderr, "bench_skill: %s\n", x.what());
        return 1;
    }
    return 0;
}
