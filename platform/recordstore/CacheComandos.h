#pragma once

// Prepared statements kept for reuse, each owned by one table handle so that two handles never
// step the same statement.

#include "platform/recordstore/Sqlite.h"

#include <cstddef>
#include <unordered_map>

struct sqlite3;

namespace recordstore {

struct ChaveComando {
    int dono = 0;     // the handle
    int tipo = 0;     // what the statement does, in the owner's own numbering
    int indice = -1;  // the order it walks
    int nivel = 0;
    int chaves = 0;
    unsigned variante = 0;  // direction and which key values are null

    bool operator==(const ChaveComando&) const = default;
};

class CacheComandos {
public:
    // The statement under that key, reset, prepared from sql() when it is not kept yet.
    template <class GeraSql>
    sqlite3_stmt* obtem(sqlite3* bd, const ChaveComando& chave, GeraSql&& sql) {
        if (const auto it = mComandos.find(chave); it != mComandos.end()) {
            sql::reinicia(it->second.get());
            return it->second.get();
        }
        return mComandos.emplace(chave, sql::prepara(bd, sql(), true)).first->second.get();
    }
    void descarta(int dono);
    void limpa();

private:
    struct Hash {
        std::size_t operator()(const ChaveComando& c) const noexcept;
    };
    std::unordered_map<ChaveComando, Instrucao, Hash> mComandos;
};

}  // namespace recordstore
