#pragma once

// Procedures shared by every part of the plug-in.

#include "platform/runtime/Vetor.h"
#include "platform/texto/ArquivoTexto.h"

#include <QString>

#include <cstdint>
#include <memory>

namespace corvalin {

// The busy pointer for the length of a scope, back to the default however the scope ends.
class PonteiroOcupado {
public:
    PonteiroOcupado();
    ~PonteiroOcupado();
    PonteiroOcupado(const PonteiroOcupado&) = delete;
    PonteiroOcupado& operator=(const PonteiroOcupado&) = delete;
};

// The interface version text: "3." followed by the component's major.minor.revision.
QString VersaoInterface();

// The error reporter of the traps: a message box with the error's number and description, the
// routine and the module, and the remark when it is not blank. It never lets an error out.
void MsgErro(std::int32_t numero, const QString& descricao, const QString& rotina, const QString& modulo,
             const QString& observacao = {});

// Opens a file for writing, making its folder when missing; null when it cannot be opened.
std::unique_ptr<texto::ArquivoSaida> AbreArquivoGravacao(const QString& caminho);

// Sizes the three arrays of limits (period numbers, lower, upper; cleared) for a grouping code:
// 1 weekly (52 or 53 periods by usa53Semanas), 2 monthly, 3 quarterly, 4 half-yearly, else none.
void DimensionaLimites(std::uint8_t discretizacao, plataforma::Vetor<std::int16_t>& periodos,
                       plataforma::Vetor<float>& limiteInferior, plataforma::Vetor<float>& limiteSuperior,
                       std::uint8_t usa53Semanas);

// A key of an initialisation file, "*" when absent. The system's "WIN.INI" key "intl"/"sDecimal"
// is the decimal separator of the user's number format.
QString LeStringIni(const QString& arquivo, const QString& secao, const QString& chave);

}  // namespace corvalin
