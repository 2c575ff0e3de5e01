#pragma once

// A walk from a position along an order, one row at a time, holding its statement open so that
// the next row costs one step. It is good while nothing was written to its table and the
// connection did not reset its statements.

#include "platform/recordstore/Tabela.h"
#include "platform/recordstore/Trechos.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace recordstore {

class Caminhada {
public:
    // From the first key values chave (and past rowid, when given), in the order of the index at
    // posicaoIndice (-1: rowid order) with the given key columns. With soIguais the walk yields
    // only rows equal on every given key until soltaIguais.
    Caminhada(Tabela& tabela, int posicaoIndice, std::vector<ColunaChave> colunas, bool avanca,
              std::vector<Valor> chave, std::optional<std::int64_t> rowid, bool soIguais);
    ~Caminhada();
    Caminhada(const Caminhada&) = delete;
    Caminhada& operator=(const Caminhada&) = delete;

    bool proxima(Linha& linha);  // false at the end
    bool avanca() const { return mAvanca; }
    bool vigente() const;
    void soltaIguais() { mPiso = 0; }

private:
    bool pAbreNivel();
    void pFechaNivel();

    Tabela& mTabela;
    int mIndice;
    std::vector<ColunaChave> mColunas;
    bool mAvanca;
    std::vector<Valor> mChave;
    std::optional<std::int64_t> mRowid;
    int mNivel;
    int mPiso;
    sqlite3_stmt* mAtual = nullptr;  // owned by the connection's cache
    std::uint64_t mEpoca = 0;
    std::uint64_t mVersao = 0;
};

}  // namespace recordstore
