#pragma once

#include "corvalin/options/OpcoesArquivos.h"

#include <QString>

#include <cstdint>

namespace corvalin {

// The in-memory record of a gauge station: catalogue row, general data and their complement.
// Plain storage: no value is checked, converted or clamped here.
class Posto {
public:
    OpcoesArquivos Arquivos;
    std::int32_t Codigo = 0;
    QString Nome;
    float Area = 0;
    std::int16_t AnoInicial = 0;
    std::int16_t AnoFinal = 0;
    bool ImpressaoParametros = false;
    std::uint8_t Transformacao = 0;  // 0 to 5; higher counts as not defined
    std::uint8_t MesInicial = 0;     // 1 to 12; 0 is not defined
    std::int16_t IntervaloConfianca = 0;
    std::int16_t SemanaInicialPrev = 0;
    std::int16_t AnoInicialPrev = 0;
    bool FlafVazpast = false;  // a past-flows file is in use (the name is spelt so)
    QString NomeArqVazpast;
    std::uint8_t FlagLimite = 0;
    QString NomeArqLimite;
    std::int16_t AnoFinalHistorico = 0;
    double VazpastSemana_1 = 0;
    double VazpastSemana_2 = 0;
    double VazpastSemana_3 = 0;
    double VazpastSemana_4 = 0;
    std::int16_t NumeroPosto = 0;  // nothing assigns it: it reads 0
    std::uint8_t discretizacao = 0;
    std::uint8_t Magnitude = 0;

    // No general data defined: no month, transformation, file name or interval.
    bool DadosGeraisVazios() const {
        return MesInicial == 0 && Transformacao == 0 && Arquivos.Vazio() && IntervaloConfianca == 0;
    }
    // The weeks of every year of this station: 53 when its 53-week flag is 1, else 52.
    std::int16_t getNumSemanas() const { return Arquivos.CasoUsa53Semanas == 1 ? 53 : 52; }
};

}  // namespace corvalin
