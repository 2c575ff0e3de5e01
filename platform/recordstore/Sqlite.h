#pragma once

// Thin helpers over the SQLite C API: statements as owned objects, values in and out, and every
// failure turned into the engine's error.

#include <QString>

#include <cstdint>
#include <memory>
#include <variant>

struct sqlite3;
struct sqlite3_stmt;

namespace recordstore {

// A value as SQLite stores it.
using ValorSql = std::variant<std::monostate, std::int64_t, double, QString>;

struct FinalizaInstrucao {
    void operator()(sqlite3_stmt* instrucao) const;
};
using Instrucao = std::unique_ptr<sqlite3_stmt, FinalizaInstrucao>;

namespace sql {

QString aspas(const QString& identificador);  // "name", for tables, fields and indexes
QString literal(const ValorSql& valor);       // a constant as SQL text

// Prepares the first statement of texto; resto, when given, receives what follows it.
Instrucao prepara(sqlite3* bd, const QString& texto, bool persistente = false, QString* resto = nullptr);
// Prepares and runs one statement that returns no rows.
void executa(sqlite3* bd, const QString& texto);

[[noreturn]] void falha(sqlite3* bd, int codigo);

void liga(sqlite3_stmt* instrucao, int posicao, const ValorSql& valor);  // positions from 1
void ligaInteiro(sqlite3_stmt* instrucao, int posicao, std::int64_t valor);
void ligaTexto(sqlite3_stmt* instrucao, int posicao, const QString& valor);

bool passo(sqlite3_stmt* instrucao);  // true on a row, false at the end
void reinicia(sqlite3_stmt* instrucao);

ValorSql coluna(sqlite3_stmt* instrucao, int posicao);  // positions from 0
std::int64_t inteiro(sqlite3_stmt* instrucao, int posicao);
QString texto(sqlite3_stmt* instrucao, int posicao);

}  // namespace sql
}  // namespace recordstore
