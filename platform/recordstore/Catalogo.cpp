#include "platform/recordstore/Catalogo.h"

#include "platform/recordstore/Campos.h"
#include "platform/recordstore/Sqlite.h"
#include "platform/runtime/ErroVB.h"

namespace recordstore {

namespace {

// SQLite keeps a default as the text of its expression; only constants mean a value here.
Valor valorDoPadrao(const ValorSql& expressao) {
    if (!std::holds_alternative<QString>(expressao)) {
        return {};
    }
    const QString t = std::get<QString>(expressao).trimmed();
    if (t.size() >= 2 && t.startsWith(QLatin1Char('\'')) && t.endsWith(QLatin1Char('\''))) {
        return t.mid(1, t.size() - 2).replace(QLatin1String("''"), QLatin1String("'"));
    }
    bool inteiro = false;
    const qint64 i = t.toLongLong(&inteiro);
    if (inteiro) {
        return std::int64_t{i};
    }
    bool real = false;
    const double d = t.toDouble(&real);
    return real ? Valor(d) : Valor();
}

Valor padraoDoCampo(const FieldDef& campo, const ValorSql& expressao) {
    try {
        return campos::converte(campo, valorDoPadrao(expressao));
    } catch (const plataforma::ErroVB&) {
        return {};  // a hand-made default that the field's type cannot hold is no default
    }
}

std::vector<FieldDef> lerCampos(sqlite3* bd, const QString& tabela, const QString& sqlDaTabela) {
    const Instrucao q =
        sql::prepara(bd, QStringLiteral("SELECT name, type, dflt_value FROM pragma_table_info(?1)"));
    sql::ligaTexto(q.get(), 1, tabela);
    std::vector<FieldDef> campos;
    while (sql::passo(q.get())) {
        FieldDef campo = esquema::campoDeclarado(sql::texto(q.get(), 0), sql::texto(q.get(), 1), sqlDaTabela);
        campo.DefaultValue = padraoDoCampo(campo, sql::coluna(q.get(), 2));
        campos.push_back(campo);
    }
    return campos;
}

// The key columns of an index; nothing for an index over expressions, which the store cannot use.
std::vector<ColunaChave> lerColunas(sqlite3* bd, const QString& indice, const std::vector<FieldDef>& campos) {
    const Instrucao q = sql::prepara(
        bd, QStringLiteral("SELECT cid, \"desc\" FROM pragma_index_xinfo(?1) WHERE key = 1 ORDER BY seqno"));
    sql::ligaTexto(q.get(), 1, indice);
    std::vector<ColunaChave> colunas;
    while (sql::passo(q.get())) {
        const auto campo = sql::inteiro(q.get(), 0);
        if (campo < 0 || campo >= static_cast<std::int64_t>(campos.size())) {
            return {};
        }
        colunas.push_back({static_cast<int>(campo), sql::inteiro(q.get(), 1) != 0,
                           campos[static_cast<std::size_t>(campo)].Type == Tipo::Texto});
    }
    return colunas;
}

std::vector<MetaIndice> lerIndices(sqlite3* bd, const MetaTabela& tabela) {
    const Instrucao q =
        sql::prepara(bd, QStringLiteral("SELECT l.name, l.\"unique\", l.origin "
                                        "FROM pragma_index_list(?1) AS l "
                                        "JOIN sqlite_schema AS s ON s.name = l.name ORDER BY s.rowid"));
    sql::ligaTexto(q.get(), 1, tabela.nome);
    std::vector<MetaIndice> indices;
    while (sql::passo(q.get())) {
        const QString nomeSqlite = sql::texto(q.get(), 0);
        auto colunas = lerColunas(bd, nomeSqlite, tabela.campos);
        if (colunas.empty()) {
            continue;
        }
        // A PRIMARY KEY written by hand gets the name the old engine gave such an index.
        const bool chavePrimaria = sql::texto(q.get(), 2) == QLatin1String("pk");
        IndexDef def{
            chavePrimaria ? QStringLiteral("PrimaryKey") : esquema::nomeDoIndice(tabela.nome, nomeSqlite),
            sql::inteiro(q.get(), 1) != 0, esquema::listaDeCampos(colunas, tabela.campos)};
        indices.push_back({def, std::move(colunas)});
    }
    return indices;
}

}  // namespace

std::shared_ptr<const MetaTabela> Catalogo::tabela(sqlite3* bd, const QString& nome) {
    const QString chave = nome.toLower();
    if (const auto it = mTabelas.constFind(chave); it != mTabelas.constEnd()) {
        return *it;
    }
    const Instrucao q = sql::prepara(
        bd, QStringLiteral(
                "SELECT name, sql FROM sqlite_schema WHERE type = 'table' AND name = ?1 COLLATE NOCASE"));
    sql::ligaTexto(q.get(), 1, nome);
    if (!sql::passo(q.get())) {
        return nullptr;
    }
    auto meta = std::make_shared<MetaTabela>();
    meta->nome = sql::texto(q.get(), 0);
    meta->campos = lerCampos(bd, meta->nome, sql::texto(q.get(), 1));
    meta->indices = lerIndices(bd, *meta);
    mTabelas.insert(chave, meta);
    return meta;
}

std::vector<QString> Catalogo::nomes(sqlite3* bd) const {
    const Instrucao q =
        sql::prepara(bd, QStringLiteral("SELECT name FROM sqlite_schema WHERE type = 'table' "
                                        "AND name NOT LIKE 'sqlite\\_%' ESCAPE '\\' ORDER BY rowid"));
    std::vector<QString> nomes;
    while (sql::passo(q.get())) {
        nomes.push_back(sql::texto(q.get(), 0));
    }
    return nomes;
}

void Catalogo::esquece() {
    mTabelas.clear();
}

}  // namespace recordstore
