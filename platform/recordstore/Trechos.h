#pragma once

// The SQL of a walk along an order (an index's key columns, then rowid; or rowid alone).
//
// Rows after a position (k1..km, rowid) come level by level: first those equal on all m keys
// past the rowid, then those equal on k1..k(m-1) and past km, and so on down to those past k1.
// Each level is an equality prefix and one range, which an index answers without sorting.

#include "platform/recordstore/Esquema.h"

#include <QString>

#include <vector>

namespace recordstore {

struct Trecho {
    bool avanca = true;     // in the order, or against it
    int nivel = 0;          // how many leading keys are equal
    int chaves = 0;         // how many key values the walk started from
    bool comRowid = false;  // the start is a row, not a prefix of keys
    unsigned nulos = 0;     // bit i: key value i is Null

    unsigned variante() const { return (nulos << 2) | (avanca ? 1U : 0U) | (comRowid ? 2U : 0U); }
};

namespace trechos {

// A level that can hold no row: past a Null where Nulls sort last.
bool semLinhas(const std::vector<ColunaChave>& colunas, const Trecho& trecho);

// The level's query after the given selection: its parameters are the non-Null equal keys in
// order, then the bound of the range (the key at nivel, or the rowid), unless that bound is Null.
QString sql(const QString& selecao, const MetaTabela& tabela, const std::vector<ColunaChave>& colunas,
            const Trecho& trecho);

}  // namespace trechos
}  // namespace recordstore
