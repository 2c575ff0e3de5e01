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
inline void adiciona(Recordset& rs, std::initializer_list<std::pair<const char*, Valor>> campos) {
    rs.AddNew();
    for (const auto& [nome, valor] : campos) {
        rs.setCampo(QString::fromLatin1(nome), valor);
    }
    rs.Update();
}

inline std::int64_t inteiro(const Recordset& rs, const char* campo) {
    return rs.campo(QString::fromLatin1(campo)).paraInteiro();
}

inline QString texto(const Recordset& rs, const char* campo) {
    return rs.campo(QString::fromLatin1(campo)).paraTexto();
}

// The field's values from the current record to the end (or the beginning, going back).
inline Inteiros ateOFim(Recordset& rs, const char* campo, bool avanca = true) {
    Inteiros valores;
    while (avanca ? !rs.Eof() : !rs.Bof()) {
        valores.push_back(inteiro(rs, campo));
        avanca ? rs.MoveNext() : rs.MovePrevious();
    }
    return valores;
}

// The field's values of the whole table in the current order; leaves the handle past the end.
inline Inteiros todos(Recordset& rs, const char* campo) {
    if (rs.Bof() && rs.Eof()) {
        return {};
    }
    rs.MoveFirst();
    return ateOFim(rs, campo);
}

// A fresh database in a folder of its own, with the two shapes of table the stores use most: a
// catalogue keyed by a code and sorted by a name, and a history under a three-field key.
class BaseDeTeste : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(mPasta.isValid());
        bd = Database::CreateDatabase(caminho());
    }
    QString caminho(const QString& nome = u"Corvalin.mdb"_s) const { return mPasta.filePath(nome); }

    void criaPostos() {
        recordstore::TableDef t{u"Postos"_s,
                                {CreateField(u"CodigoDoPosto"_s, Tipo::Long),
                                 CreateField(u"NomeDoAproveitamento"_s, Tipo::Texto, 60),
                                 CreateField(u"AreaDeDrenagem"_s, Tipo::Single)},
                                {{u"CodigoDoPosto"_s, true, u"CodigoDoPosto"_s},
                                 {u"NomeDoAproveitamento"_s, false, u"NomeDoAproveitamento"_s}}};
        t.Fields[2].DefaultValue = 0;
        bd->Append(t);
    }
    void criaVazoes() {
        bd->Append({u"VazoesSemanais"_s,
                    {CreateField(u"CodigoDoPosto"_s, Tipo::Long), CreateField(u"Ano"_s, Tipo::Integer),
                     CreateField(u"Semana"_s, Tipo::Byte), CreateField(u"Vazao"_s, Tipo::Single)},
                    {{u"CodigoDoPostoAnoSemana"_s, true, u"CodigoDoPosto;+Ano;+Semana"_s},
                     {u"CodigoDoPosto"_s, false, u"CodigoDoPosto"_s}}});
    }
    // A field of every type, keyed by Chave; some with defaults, Livre allows a zero-length text.
    static recordstore::TableDef defTipos() {
        recordstore::TableDef t{
            u"Tipos"_s,
            {CreateField(u"Chave"_s, Tipo::Long), CreateField(u"Sim"_s, Tipo::Boolean),
             CreateField(u"Octeto"_s, Tipo::Byte), CreateField(u"Curto"_s, Tipo::Integer),
             CreateField(u"Simples"_s, Tipo::Single), CreateField(u"Duplo"_s, Tipo::Double),
             CreateField(u"Quando"_s, Tipo::DataHora), CreateField(u"Nome"_s, Tipo::Texto, 6),
             CreateField(u"Livre"_s, Tipo::Texto, 6)},
            {{u"Chave"_s, true, u"Chave"_s},
             {u"OctetoCurto"_s, false, u"Octeto;-Curto"_s},
             {u"Nome"_s, false, u"Nome"_s}}};
        t.Fields[1].DefaultValue = true;
        t.Fields[3].DefaultValue = -1;
        t.Fields[4].DefaultValue = 0.1f;
        t.Fields[6].DefaultValue = "2000-01-01 00:00:00";
        t.Fields[7].DefaultValue = "O'Neil";  // quoted in the schema's SQL
        t.Fields[8].AllowZeroLength = true;
        return t;
    }
    static void adicionaPosto(Recordset& rs, int codigo, const QString& nome) {
        adiciona(rs, {{"CodigoDoPosto", codigo}, {"NomeDoAproveitamento", nome}});
    }
    static void adicionaVazao(Recordset& rs, int codigo, int ano, int semana, double vazao) {
        adiciona(rs, {{"CodigoDoPosto", codigo}, {"Ano", ano}, {"Semana", semana}, {"Vazao", vazao}});
    }

    QTemporaryDir mPasta;
    std::unique_ptr<Database> bd;
};
