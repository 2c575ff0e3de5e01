#pragma once

// Indexed table handles over SQLite, in the vocabulary of the old data-access layer (DAO over
// the Jet engine) and with that engine's behaviour where the stores rely on it.
//
// The file is an ordinary SQLite file. Tables, fields and indexes are real SQLite objects with
// readable declared types (BOOLEAN, BYTE, INTEGER for 16 bits, LONG, SINGLE, DOUBLE, DATETIME,
// TEXT(n)); a text field that refuses a zero-length text carries CHECK ("F" <> ''). An index
// "I" of table "T" is the SQLite index "T.I"; a primary index is UNIQUE. Text is compared and
// sorted with the collation GERAL (ICU, root locale, secondary strength: case-insensitive and
// accent-sensitive, the same on every machine), which every connection registers.
//
// Every violation of a field's rule raises plataforma::ErroVB with the engine's number and a
// Portuguese description, before anything is written.

#include "platform/recordstore/Valor.h"

#include <QString>

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <vector>

namespace recordstore {

struct FieldDef {
    QString Name;
    Tipo Type = Tipo::Texto;
    int Size = 0;                  // characters, for Tipo::Texto; 0 elsewhere
    bool AllowZeroLength = false;  // the engine's default for a new field; no effect on non-text fields
    Valor DefaultValue;            // Null: no default
};

struct IndexDef {
    QString Name;
    bool Primary = false;
    QString Fields;  // "A;+B;-C": "+" ascending (the default), "-" descending
};

struct TableDef {
    QString Name;
    std::vector<FieldDef> Fields;  // in creation order; attributes may be set by position
    std::vector<IndexDef> Indexes;
};

// CreateField: a field definition with the engine's defaults.
FieldDef CreateField(const QString& nome, Tipo tipo, int tamanho = 0);

// A bookmark: identifies one record of one table for as long as the record lives.
using Bookmark = std::int64_t;

class Recordset;
struct Conexao;  // the open file, shared by the database and its handles

class Database {
public:
    // Creates the file; an existing file raises 3204 ("database already exists"), a path that
    // cannot be made 3044. The locale string and the options (the old engine's sort-order locale
    // and its encryption flag) have no meaning for this store: the collation is fixed and the file
    // is plain, so both are accepted and ignored.
    static std::unique_ptr<Database> CreateDatabase(const QString& caminho, const QString& localidade = {},
                                                    int opcoes = 0);
    // Opens an existing file (3024 when it does not exist). A file that is not a database opens,
    // and fails at the first table opened (3343), as the old engine did.
    static std::unique_ptr<Database> OpenDatabase(const QString& caminho);

    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    // Closes the file. Handles still open become invalid: their next use raises 3420.
    void Close();
    QString Name() const;  // the path

    // TableDefs: Append a new table with its fields and indexes (3010 if it exists); look one up.
    void Append(const TableDef& tabela);
    bool ExisteTabela(const QString& nome) const;
    std::vector<QString> NomesDasTabelas() const;
    // The fields of an existing table, in order (3078 when the table does not exist).
    std::vector<FieldDef> Fields(const QString& tabela) const;
    // Fields.Append on an existing table: existing rows hold Null (3191 if the name exists).
    void AppendField(const QString& tabela, const FieldDef& campo);

    // Runs one SQL statement on the file, as the old engine's Execute ran one of its own.
    void Execute(const QString& sql);

    // OpenRecordset as a table handle: no current index (physical order), on the first record
    // when there is one. 3078 when the table does not exist, 3343 when the file is not a database.
    std::unique_ptr<Recordset> OpenRecordset(const QString& tabela);

    // Transactions (the workspace's BeginTrans, CommitTrans, Rollback). They nest; only the
    // outermost one commits. The outermost one takes the write lock at once, so that a second
    // process waits for it rather than failing.
    void BeginTrans();
    void CommitTrans();
    void Rollback();

private:
    explicit Database(std::shared_ptr<Conexao> conexao);
    std::shared_ptr<Conexao> m;
};

// A transaction tied to a scope: committed by Commit, rolled back if the scope ends without it
// (an exception, an early return).
class Transacao {
public:
    explicit Transacao(Database& bd);
    ~Transacao();
    Transacao(const Transacao&) = delete;
    Transacao& operator=(const Transacao&) = delete;
    void Commit();

private:
    Database& mBd;
    bool mAtiva = true;
};

// A table handle: a cursor with a current index and a current record, shared by whoever holds it.
//
// Rules of the current record, as the old engine kept them:
// - Bof()/Eof() are both true on an empty table; MovePrevious past the first record sets Bof,
//   MoveNext past the last sets Eof; moving on from there (or MoveFirst/MoveLast on an empty
//   table, or reading with no current record) raises 3021.
// - Setting Index to another index makes the first record in its order current.
// - Seek finds the first record, in the order of the current index, whose first key fields equal
//   ("=") or follow or equal (">=") the given values; one to three values, a prefix of the index.
//   With no match NoMatch() is true and the handle stands past the end (Eof). Without a current
//   index Seek raises 3019.
// - After AddNew and Update the record that was current before AddNew stays current (an empty
//   table thus stays past its end). After Edit and Update the edited record stays current.
// - After Delete there is no current record; MoveNext goes to the record after the deleted one
//   and MovePrevious to the one before it.
// - Moving while an AddNew or Edit is pending drops the pending changes.
class Recordset {
public:
    ~Recordset();
    Recordset(const Recordset&) = delete;
    Recordset& operator=(const Recordset&) = delete;

    QString Name() const;  // the table
    int FieldCount() const;

    QString Index() const;  // empty: physical order
    void setIndex(const QString& indice);  // 3800 when the table has no such index

    void Seek(const QString& comparacao, std::initializer_list<Valor> chave);
    bool NoMatch() const;

    bool Bof() const;
    bool Eof() const;  // EOF is a C macro, hence the spelling
    void MoveFirst();
    void MoveLast();
    void MoveNext();
    void MovePrevious();

    recordstore::Bookmark Bookmark() const;   // 3021 without a current record
    void setBookmark(recordstore::Bookmark b);  // 3159 for a bookmark of no record

    void AddNew();  // an edit buffer filled with the fields' defaults
    void Edit();    // 3021 without a current record
    // Writes the edit buffer: 3020 without AddNew or Edit; 3315 for a zero-length text where the
    // field refuses it; 3022 for a duplicate in a primary index. Nothing is written on failure.
    void Update();
    void CancelUpdate();
    // Many AddNew + Update in one go: each row gives every field in the table's order. Every rule
    // of Update holds for every row, and a failure writes none of them; the current record stays.
    // The old layer wrote one row at a time; this writes many rows per statement, for the long
    // histories that a station's save or import writes at once.
    void AddNewRows(const std::vector<std::vector<Valor>>& linhas);
    void Delete();  // 3021 without a current record
    void Close();
    // Clone: another handle on the same table and file, with the same current index, standing on
    // the first record. Bookmarks are valid across the two; moving one does not move the other.
    std::unique_ptr<Recordset> Clone() const;

    // Reading a field: the edit buffer while an AddNew or Edit is pending, else the current
    // record (3021 without one, 3167 if it was deleted meanwhile). 3265 for an unknown name.
    Valor campo(const QString& nome) const;
    // Writing a field of the edit buffer (3020 without AddNew or Edit), converted to the field's
    // type: 13 for a value that is not of it, 6 for a number out of a Byte, Integer or Long,
    // 3163 for a text longer than the field.
    void setCampo(const QString& nome, const Valor& valor);

private:
    friend class Database;
    struct Estado;
    explicit Recordset(std::unique_ptr<Estado> estado);
    std::unique_ptr<Estado> m;
};

}  // namespace recordstore
