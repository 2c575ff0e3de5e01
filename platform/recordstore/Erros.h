#pragma once

// The engine's run-time errors that the store raises, with their Portuguese descriptions.

#include "platform/runtime/ErroVB.h"

#include <QString>

#include <cstdint>

namespace recordstore {

enum CodigoErroBD : std::int32_t {
    ErroReservado = 3000,
    ErroArgumentoInvalido = 3001,
    ErroTabelaExiste = 3010,
    ErroSemIndiceAtual = 3019,
    ErroSemAddNewOuEdit = 3020,
    ErroSemRegistroAtual = 3021,
    ErroDuplicado = 3022,
    ErroArquivoInexistente = 3024,
    ErroSomenteLeitura = 3027,
    ErroSemTransacao = 3034,
    ErroDisco = 3043,
    ErroCaminhoInvalido = 3044,
    ErroTabelaInexistente = 3078,
    ErroTextoAposInstrucao = 3142,
    ErroIndicadorInvalido = 3159,
    ErroCampoPequeno = 3163,
    ErroRegistroExcluido = 3167,
    ErroCampoRepetido = 3191,
    ErroBancoExiste = 3204,
    ErroBloqueado = 3218,
    ErroSemCampos = 3264,
    ErroItemInexistente = 3265,
    ErroComprimentoZero = 3315,
    ErroFormatoBanco = 3343,
    ErroObjetoInvalido = 3420,
    ErroIndiceInexistente = 3800,
};

// The error of that number; argumento fills the name the description quotes (a table, a field as
// "Tabela.Campo", an index, a path), where it quotes one.
plataforma::ErroVB erroBD(std::int32_t numero, const QString& argumento = {});

// The engine's error for an SQLite result code (extended codes included) on the file at caminho.
plataforma::ErroVB erroDoSqlite(int codigo, const QString& caminho);

}  // namespace recordstore
