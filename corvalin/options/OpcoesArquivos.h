#pragma once

#include <QString>

#include <cstdint>

namespace corvalin {

// The names of a station's five files (or the case's templates of them), which of them are erased
// after a run, and two settings that only a station's general data carry.
struct OpcoesArquivos {
    QString ArquivoRelatorio;
    QString ArquivoVazoesSemanais;
    QString ArquivoPrevisoes;
    QString ArquivoExcel;
    QString ArquivoDadosGerais;
    bool ApagarArquivoRelatorio = false;
    bool ApagarArquivoVazoesSemanais = false;
    bool ApagarArquivoExcel = false;
    bool ApagarArquivoDadosGerais = false;
    bool NaoUsaLimite = false;
    std::uint8_t CasoUsa53Semanas = 0;  // a station's general data only

    // True when all five file names are empty.
    bool Vazio() const {
        return ArquivoRelatorio.isEmpty() && ArquivoVazoesSemanais.isEmpty() && ArquivoPrevisoes.isEmpty() &&
               ArquivoExcel.isEmpty() && ArquivoDadosGerais.isEmpty();
    }
};

}  // namespace corvalin
