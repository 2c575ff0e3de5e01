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

    // Rows of a station in a table, counted on a handle of its own so that the shared ones stay.
    int linhas(const QString& tabela, int codigo,
               const QString& campo = QStringLiteral("CodigoDoPosto")) const {
        auto rs = caso.bd->BancoDeDados().OpenRecordset(tabela);
        int n = 0;
        for (; !rs->Eof(); rs->MoveNext()) {
            n += rs->campo(campo).paraInteiro() == codigo ? 1 : 0;
        }
        return n;
    }

    CasoAberto caso;
    corvalin::PostoBD postoBD;
};

}  // namespace teste
