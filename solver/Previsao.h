#pragma once

// The whole computation of a station: history, choice of the model, forecast, interval and limits.

#include "solver/ArquivosEstacao.h"
#include "solver/DadosGerais.h"
#include "solver/LimitesPercentis.h"
#include "solver/Previsor.h"
#include "solver/Retroteste.h"
#include "solver/SerieSemanal.h"

#include <optional>

namespace solver {

// Gaps of up to this many weeks between two observations are interpolated.
inline constexpr std::size_t maximoSemanasInterpoladas = 4;
// Below this many years the report and the warning call the history short.
inline constexpr int anosHistoricoCurto = 20;

struct EntradaEstacao {
    DadosGerais dados;
    VazoesArquivo vazoes;
    std::optional<std::array<double, 4>> vazpast;
    std::optional<ArquivoLimites> limites;
};

// Reads every file the general data names, from the station folder. Throws FalhaExecucao.
EntradaEstacao leEntrada(const std::filesystem::path& pasta, DadosGerais dados);

struct PrevisaoEstacao {
    SerieSemanal serie;
    std::size_t fimAjuste = 0;  // positions [0, fimAjuste) fit the model
    Escolha escolha;
    Previsor previsor;  // the chosen candidate fitted on the whole history
    Trajetoria previsao{};
    Intervalo intervalo;
    std::optional<std::array<LimitesDaSemana, horizonte>> limites;
    std::array<bool, horizonte> limitada{};  // the limits moved that week's forecast

    TipoTransformacao tipoEscolhido() const { return escolha.getEscolhido().tipo; }
};

// Throws FalhaExecucao when the history cannot carry a model.
PrevisaoEstacao calculaPrevisao(const EntradaEstacao& entrada);

}  // namespace solver
