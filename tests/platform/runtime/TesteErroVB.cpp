#include "platform/runtime/ErroVB.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

using plataforma::ErroVB;

TEST(ErroVB, StandardErrorsCarryThePortugueseRunTimeTexts) {
    const std::pair<int, const char*> casos[] = {{6, "Estouro"},
                                                 {13, "Tipos incompatíveis"},
                                                 {62, "Entrada após o final do arquivo"},
                                                 {3022, "Erro definido pelo aplicativo ou pelo objeto"}};
    for (const auto& [numero, descricao] : casos) {
        const ErroVB erro = ErroVB::padrao(numero);
        EXPECT_EQ(erro.Number(), numero);
        EXPECT_EQ(erro.Description(), QString::fromUtf8(descricao));
        EXPECT_EQ(std::string(erro.what()), std::to_string(numero) + ": " + descricao);
    }
}
