#pragma once

#include "platform/recordstore/Recordstore.h"
#include "tests/platform/runtime/Casos.h"

#include <QTemporaryDir>

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;
using recordstore::CreateField;
using recordstore::Database;
using recordstore::Recordset;
using recordstore::Tipo;
using recordstore::Valor;
using Inteiros = std::vector<std::int64_t>;

// AddNew, the fields given, Update.
void adiciona(Recordset& rs, std::initializer_list<std::pair<const char*, Valor>> campos);
std::int64_t inteiro(const Recordset& rs, const char* campo);
QString texto(const Recordset& rs, const char* campo);
// The field's values from the current record to the end (or the beginning, going back).
Inteiros ateOFim(Recordset& rs, const char* campo, bool avanca = true);
// Leaves the handle past the end.
int contaLinhas(Recordset& rs);
// Runs the sqlite3 command-line shell on a file; empty when the shell is not installed.
QString sqlite3(const QString& arquivo, const QString& comandos);

// A fresh database in a folder of its own, with the two shapes of table the stores use most: a
// catalogue keyed by a code and sorted by a name, and a history under a three-field key.
class BaseDeTeste : public ::testing::Test {
protected:
    void SetUp() override;
    QString caminho(const QString& nome = u"Corvalin.mdb"_s) const { return mPasta.filePath(nome); }
    void criaPostos();
    void criaVazoes();
    // A field of every type, keyed by Chave; some with defaults, Livre allows a zero-length text.
    static recordstore::TableDef defTipos();
    static void adicionaPosto(Recordset& rs, int codigo, const QString& nome) {
        adiciona(rs, {{"CodigoDoPosto", codigo}, {"NomeDoAproveitamento", nome}});
    }
    static void adicionaVazao(Recordset& rs, int codigo, int ano, int semana, double vazao) {
        adiciona(rs, {{"CodigoDoPosto", codigo}, {"Ano", ano}, {"Semana", semana}, {"Vazao", vazao}});
    }

    QTemporaryDir mPasta;
    std::unique_ptr<Database> bd;
};
