#pragma once

// The schema as SQL: the DDL that a table definition becomes, and the way back from declared
// types to field definitions when a file is reopened.

#include "platform/recordstore/Recordstore.h"

#include <QString>

#include <vector>

namespace recordstore {

struct ColunaChave {
    int campo = 0;  // position in the table's fields
    bool descendente = false;
    bool texto = false;  // compared with GERAL
};

struct MetaIndice {
    IndexDef def;
    std::vector<ColunaChave> colunas;
};

// What the store knows of one table: its fields in order and its indexes.
struct MetaTabela {
    QString nome;  // as the file spells it
    std::vector<FieldDef> campos;
    std::vector<MetaIndice> indices;

    int posicaoCampo(const QString& nome) const;  // -1 when absent; names ignore case
    const MetaIndice* indice(const QString& nome) const;
    std::vector<ColunaChave> colunasDe(const IndexDef& indice) const;  // 3265 for an unknown field
};

namespace esquema {

// A new table's definition checked and resolved: 3264 without fields, 3191 for a field named twice,
// 3265 for an index over an unknown field.
MetaTabela metaDe(const TableDef& tabela);

QString sqlCriaTabela(const MetaTabela& tabela);
QString sqlCriaIndice(const MetaTabela& tabela, const MetaIndice& indice);
QString sqlAcrescentaCampo(const QString& tabela, const FieldDef& campo);

// The field that a declared type describes; a text field refuses a zero-length text when the
// table's SQL carries the CHECK that the store writes for it.
FieldDef campoDeclarado(const QString& nome, const QString& tipoDeclarado, const QString& sqlDaTabela);
// "A;+B;-C" for an index's columns.
QString listaDeCampos(const std::vector<ColunaChave>& colunas, const std::vector<FieldDef>& campos);
// The SQLite index "T.I" is the index I of table T.
QString nomeSqliteDoIndice(const QString& tabela, const QString& indice);
QString nomeDoIndice(const QString& tabela, const QString& nomeSqlite);

}  // namespace esquema
}  // namespace recordstore
