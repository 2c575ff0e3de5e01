#pragma once

// What a table handle holds: its table, its cursor and its edit buffer.

#include "platform/recordstore/Cursor.h"
#include "platform/recordstore/Edicao.h"
#include "platform/recordstore/Recordstore.h"
#include "platform/recordstore/Tabela.h"

namespace recordstore {

struct Recordset::Estado {
    Estado(std::shared_ptr<Conexao> conexao, const QString& nome)
        : tabela(std::move(conexao), nome), cursor(tabela), edicao(tabela) {}

    // The state, once the handle is known to be usable (3420 otherwise) and its metadata current.
    Estado& verificado() {
        tabela.conexao();
        return *this;
    }
    int campo(const QString& nome) const;  // 3265

    Tabela tabela;  // first: the cursor and the buffer refer to it
    Cursor cursor;
    Edicao edicao;
    bool noMatch = false;
};

}  // namespace recordstore
