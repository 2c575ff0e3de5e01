#pragma once

// The tables of an open file as the store sees them, read from SQLite's own schema and kept until
// the schema changes.

#include "platform/recordstore/Esquema.h"

#include <QHash>
#include <QString>

#include <memory>
#include <vector>

struct sqlite3;

namespace recordstore {

class Catalogo {
public:
    // The table of that name (any case), or null when the file has none.
    std::shared_ptr<const MetaTabela> tabela(sqlite3* bd, const QString& nome);
    std::vector<QString> nomes(sqlite3* bd) const;  // in creation order
    void esquece();                                 // after a change of schema

private:
    QHash<QString, std::shared_ptr<const MetaTabela>> mTabelas;  // by lower-case name
};

}  // namespace recordstore
