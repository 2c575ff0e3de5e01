#pragma once

#include <QString>

#include <cstdint>
#include <stdexcept>

namespace plataforma {

// The run-time errors of the old platform that this system meets, by their numbers.
enum CodigoErro : std::int32_t {
    ErroChamadaInvalida = 5,
    ErroEstouro = 6,
    ErroSubscrito = 9,
    ErroTiposIncompativeis = 13,
    ErroArquivoNaoEncontrado = 53,
    ErroFimDeArquivo = 62,
    ErroPermissaoNegada = 70,
    ErroAcessoCaminho = 75,
    ErroCaminhoNaoEncontrado = 76,
    ErroObjetoNaoDefinido = 91,
};

// A run-time error as the old platform raised it: a number and a description. It is the one
// exception type of the system; a trap is a catch that hands both to MsgErro.
class ErroVB : public std::runtime_error {
public:
    ErroVB(std::int32_t numero, const QString& descricao);

    // The error with the platform's own description of that number (Portuguese, as the user's
    // run time would show it); numbers without one get a generic text.
    static ErroVB padrao(std::int32_t numero);

    std::int32_t Number() const noexcept { return mNumero; }
    const QString& Description() const noexcept { return mDescricao; }

private:
    std::int32_t mNumero;
    QString mDescricao;
};

}  // namespace plataforma
