#include "bench/skill/Tempo.h"

#include "bench/skill/Amostras.h"
#include "solver/Estatistica.h"
#include "solver/Execucao.h"
#include "solver/Formato.h"
#include "solver/Texto.h"

#include <chrono>
#include <stdexcept>

namespace skill {

namespace {

constexpr int execucoes = 20;

}  // namespace

std::string cronometraEstacaoLonga(const std::filesystem::path& pastaRios,
                                   const std::filesystem::path& pasta) {
    // The longest river, its first years repeated at the end up to 90 years; the station uses every
    // candidate transformation, a Vazpast and limits on the model's paths, the costliest road.
    RioSemanal rio = leRio(pastaRios / "fraser_hope.csv");
    rio.anos.resize(static_cast<std::size_t>(rio.anosCompletos()));
    for (std::size_t a = 0; rio.anos.size() < anosEstacaoLonga; ++a) {
        rio.anos.push_back(rio.anos[a]);
    }
    const EstacaoAmostra estacao{9090, "", "Fraser estendido a 90 anos", "217000", 5, true, 20, true, true};
    std::filesystem::create_directories(pasta);
    geraEstacao(estacao, rio, pasta);
    solver::gravaLinhas(pasta / "Caso.dat", {"9090.arq"});
    std::vector<double> tempos;
    for (int i = 0; i < execucoes; ++i) {
        const auto inicio = std::chrono::steady_clock::now();
        if (solver::executaEstacao(pasta) != solver::CodigoEstado::sucesso) {
            throw std::runtime_error("a execução da estação de 90 anos falhou");
        }
        tempos.push_back(std::chrono::duration<double>(std::chrono::steady_clock::now() - inicio).count());
    }
    return "Estação de " + std::to_string(anosEstacaoLonga) +
           " anos (transformação 5, Vazpast, limites 1): " + "mediana " +
           solver::numero("%.1f", 1000.0 * solver::quantil(tempos, 0.5)) + " ms, pior " +
           solver::numero("%.1f", 1000.0 * solver::quantil(tempos, 1.0)) + " ms em " +
           std::to_string(execucoes) + " execuções.";
}

}  // namespace skill
