#include "platform/recordstore/Esquema.h"

#include "platform/recordstore/Campos.h"
#include "platform/recordstore/Erros.h"
#include "platform/recordstore/Sqlite.h"

#include <QRegularExpression>
#include <QStringList>

namespace recordstore {

namespace {

struct TipoDeclarado {
    const char* nome;
    Tipo tipo;
};

// The store writes the first name of each type; the others are read in files made by hand.
constexpr TipoDeclarado tiposDeclarados[] = {
    {"BOOLEAN", Tipo::Boolean},   {"BYTE", Tipo::Byte},     {"INTEGER", Tipo::Integer},
    {"LONG", Tipo::Long},         {"SINGLE", Tipo::Single}, {"DOUBLE", Tipo::Double},
    {"DATETIME", Tipo::DataHora}, {"TEXT", Tipo::Texto},    {"BIT", Tipo::Boolean},
    {"YESNO", Tipo::Boolean},     {"TINYINT", Tipo::Byte},  {"SMALLINT", Tipo::Integer},
    {"SHORT", Tipo::Integer},     {"INT", Tipo::Long},      {"REAL", Tipo::Single},
    {"FLOAT", Tipo::Double},      {"DATE", Tipo::DataHora}, {"VARCHAR", Tipo::Texto},
    {"CHAR", Tipo::Texto},
};

QString nomeDoTipo(const FieldDef& campo) {
    for (const auto& t : tiposDeclarados) {
        if (t.tipo == campo.Type) {
            const QString nome = QString::fromLatin1(t.nome);
            return campo.Type == Tipo::Texto
                       ? QStringLiteral("%1(%2)").arg(nome).arg(campos::tamanhoTexto(campo))
                       : nome;
        }
    }
    return {};
}

// SQLite's own affinity rules, for declared types the store does not know.
Tipo tipoPorAfinidade(const QString& declarado) {
    if (declarado.contains(QLatin1String("INT"))) {
        return Tipo::Long;
    }
    for (const auto* real : {"REAL", "FLOA", "DOUB"}) {
        if (declarado.contains(QLatin1String(real))) {
            return Tipo::Double;
        }
    }
    return Tipo::Texto;
}

// Binary, as the check in Update is: the text collation ignores some characters (NUL among them),
// which would make a text of them count as empty.
QString restricaoComprimentoZero(const QString& campo) {
    return QStringLiteral("CHECK (%1 <> '' COLLATE BINARY)").arg(sql::aspas(campo));
}

QString definicaoDoCampo(const FieldDef& campo) {
    QString def = sql::aspas(campo.Name) + QLatin1Char(' ') + nomeDoTipo(campo);
    if (!campo.DefaultValue.nulo()) {
        def += QStringLiteral(" DEFAULT ") +
               sql::literal(campos::paraSql(campo, campos::converte(campo, campo.DefaultValue)));
    }
    if (campo.Type == Tipo::Texto) {
        def += QStringLiteral(" COLLATE GERAL");
        if (!campo.AllowZeroLength) {
            def += QLatin1Char(' ') + restricaoComprimentoZero(campo.Name);
        }
    }
    return def;
}

bool mesmoNome(const QString& a, const QString& b) {
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

}  // namespace

int MetaTabela::posicaoCampo(const QString& nome) const {
    for (std::size_t i = 0; i < campos.size(); ++i) {
        if (mesmoNome(campos[i].Name, nome)) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

const MetaIndice* MetaTabela::indice(const QString& nome) const {
    for (const auto& i : indices) {
        if (mesmoNome(i.def.Name, nome)) {
            return &i;
        }
    }
    return nullptr;
}

std::vector<ColunaChave> MetaTabela::colunasDe(const IndexDef& indice) const {
    std::vector<ColunaChave> colunas;
    for (QString parte : indice.Fields.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        parte = parte.trimmed();
        ColunaChave coluna;
        if (parte.startsWith(QLatin1Char('+')) || parte.startsWith(QLatin1Char('-'))) {
            coluna.descendente = parte.startsWith(QLatin1Char('-'));
            parte = parte.mid(1).trimmed();
        }
        coluna.campo = posicaoCampo(parte);
        if (coluna.campo < 0) {
            throw erroBD(ErroItemInexistente);
        }
        coluna.texto = campos[static_cast<std::size_t>(coluna.campo)].Type == Tipo::Texto;
        colunas.push_back(coluna);
    }
    if (colunas.empty()) {
        throw erroBD(ErroSemCampos);
    }
    return colunas;
}

namespace esquema {

MetaTabela metaDe(const TableDef& tabela) {
    if (tabela.Fields.empty()) {
        throw erroBD(ErroSemCampos);
    }
    MetaTabela meta{tabela.Name, {}, {}};
    for (const auto& campo : tabela.Fields) {
        if (meta.posicaoCampo(campo.Name) >= 0) {
            throw erroBD(ErroCampoRepetido);
        }
        meta.campos.push_back(campo);
    }
    for (const auto& indice : tabela.Indexes) {
        meta.indices.push_back({indice, meta.colunasDe(indice)});
    }
    return meta;
}

QString sqlCriaTabela(const MetaTabela& tabela) {
    QStringList campos;
    for (const auto& campo : tabela.campos) {
        campos << QStringLiteral("  ") + definicaoDoCampo(campo);
    }
    return QStringLiteral("CREATE TABLE %1 (\n%2\n)")
        .arg(sql::aspas(tabela.nome), campos.join(QStringLiteral(",\n")));
}

QString sqlCriaIndice(const MetaTabela& tabela, const MetaIndice& indice) {
    QStringList colunas;
    for (const auto& coluna : indice.colunas) {
        colunas << sql::aspas(tabela.campos[static_cast<std::size_t>(coluna.campo)].Name) +
                       (coluna.descendente ? QStringLiteral(" DESC") : QString());
    }
    return QStringLiteral("CREATE %1INDEX %2 ON %3 (%4)")
        .arg(indice.def.Primary ? QStringLiteral("UNIQUE ") : QString(),
             sql::aspas(nomeSqliteDoIndice(tabela.nome, indice.def.Name)), sql::aspas(tabela.nome),
             colunas.join(QStringLiteral(", ")));
}

QString sqlAcrescentaCampo(const QString& tabela, const FieldDef& campo) {
    return QStringLiteral("ALTER TABLE %1 ADD COLUMN %2").arg(sql::aspas(tabela), definicaoDoCampo(campo));
}

FieldDef campoDeclarado(const QString& nome, const QString& tipoDeclarado, const QString& sqlDaTabela) {
    static const QRegularExpression formato(QStringLiteral(R"(^\s*(\w+)\s*(?:\(\s*(\d+)\s*\))?)"));
    const QString tipo = tipoDeclarado.toUpper();
    const auto partes = formato.match(tipo);
    FieldDef campo{nome, tipoPorAfinidade(tipo), 0, false, {}};
    for (const auto& t : tiposDeclarados) {
        if (partes.captured(1) == QLatin1String(t.nome)) {
            campo.Type = t.tipo;
        }
    }
    if (campo.Type == Tipo::Texto) {
        campo.Size = partes.captured(2).toInt();
        campo.AllowZeroLength = !sqlDaTabela.contains(restricaoComprimentoZero(nome), Qt::CaseInsensitive);
    }
    return campo;
}

QString listaDeCampos(const std::vector<ColunaChave>& colunas, const std::vector<FieldDef>& campos) {
    QStringList partes;
    for (const auto& coluna : colunas) {
        const QString sinal =
            coluna.descendente ? QStringLiteral("-") : (partes.isEmpty() ? QString() : QStringLiteral("+"));
        partes << sinal + campos[static_cast<std::size_t>(coluna.campo)].Name;
    }
    return partes.join(QLatin1Char(';'));
}

QString nomeSqliteDoIndice(const QString& tabela, const QString& indice) {
    return tabela + QLatin1Char('.') + indice;
}

QString nomeDoIndice(const QString& tabela, const QString& nomeSqlite) {
    const QString prefixo = tabela + QLatin1Char('.');
    return nomeSqlite.startsWith(prefixo, Qt::CaseInsensitive) ? nomeSqlite.mid(prefixo.size()) : nomeSqlite;
}

}  // namespace esquema
}  // namespace recordstore
