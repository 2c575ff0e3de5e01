#pragma once

#include "corvalin/stations/Posto.h"
#include "corvalin/stations/PostoBD.h"
#include "tests/corvalin/options/CasoAberto.h"

#include <gtest/gtest.h>

namespace teste {

// An open case with one station store on it.
class PostosTeste : public ::testing::Test {
protected:
    PostosTeste() { postoBD.setCasoBD(caso.bd); }

    // Saves a station with only its catalogue row.
    corvalin::Posto adiciona(int codigo, const QString& nome, int anoInicial = 0, int anoFinal = 0) {
        corvalin::Posto p;
        p.Codigo = codigo;
        p.Nome = nome;
        p.AnoInicial = static_cast<std::int16_t>(anoInicial);
        p.AnoFinal = static_cast<std::int16_t>(anoFinal);
        EXPECT_TRUE(postoBD.setPosto(p));
        return p;
    }

    CasoAberto caso;
    corvalin::PostoBD postoBD;
};

}  // namespace teste
