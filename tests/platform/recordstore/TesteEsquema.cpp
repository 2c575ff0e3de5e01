#include "Apoio.h"

#include <QFile>

#include <tuple>

using recordstore::FieldDef;

namespace {

using Esquema = BaseDeTeste;

// Every attribute of the fields, in order, for a comparison that names the field that differs.
std::vector<std::tuple<QString, Tipo, int, bool, Valor>> descricao(const std::vector<FieldDef>& campos) {
    std::vector<std::tuple<QString, Tipo, int, bool, Valor>> lidos;
    for (const FieldDef& c : campos) {
        lidos.emplace_back(c.Name, c.Type, c.Size, c.AllowZeroLength, c.DefaultValue);
    }
    return lidos;
}

}  // namespace

TEST_F(Esquema, AReopenedFileHasTheSameFieldsAndIndexes) {
    const auto definicao = defTipos();
    bd->Append(definicao);
    auto esperados = definicao.Fields;  // defaults come back in the field's own type
    esperados[3].DefaultValue = std::int64_t{-1};
    esperados[4].DefaultValue = static_cast<double>(0.1f);
    esperados[6].DefaultValue = Valor(u"2000-01-01"_s).paraDataHora();
    EXPECT_EQ(descricao(bd->Fields(u"tipos"_s)), descricao(esperados));
    bd.reset();

    bd = Database::OpenDatabase(caminho());
    EXPECT_EQ(bd->NomesDasTabelas(), std::vector<QString>{u"Tipos"_s});
    EXPECT_EQ(descricao(bd->Fields(u"Tipos"_s)), descricao(esperados));
    auto rs = bd->OpenRecordset(u"Tipos"_s);
    for (const auto& [chave, octeto, curto] : {std::tuple{1, 1, 1998}, {2, 1, 2000}, {3, 2, 1999}}) {
        adiciona(*rs, {{"Chave", chave}, {"Octeto", octeto}, {"Curto", curto}});
    }
    rs->setIndex(u"OctetoCurto"_s);
    EXPECT_EQ(ateOFim(*rs, "Curto"), (Inteiros{2000, 1998, 1999}));
    rs->setIndex(u"Nome"_s);  // not unique: every row has the default name
    EXPECT_EQ(todos(*rs, "Chave").size(), 3u);
    confere<int>({ERRO(adiciona(*rs, {{"Chave", 1}}), 3022),
                  ERRO(adiciona(*rs, {{"Chave", 4}, {"Livre", QString()}, {"Nome", QString()}}), 3315)});
}

TEST_F(Esquema, FilesAndTablesReportTheEnginesErrors) {
    criaPostos();
    const auto campo = [](const char* nome) { return CreateField(QString::fromLatin1(nome), Tipo::Integer); };
    const recordstore::TableDef quebrada{
        u"Quebrada"_s, {CreateField(u"A"_s, Tipo::Long)}, {{u"B"_s, true, u"A;+B"_s}}};
    confere<int>({ERRO(Database::CreateDatabase(caminho()), 3204),
                  ERRO(Database::CreateDatabase(caminho(u"nao/existe.mdb"_s)), 3044),
                  ERRO(Database::OpenDatabase(caminho(u"outro.mdb"_s)), 3024), ERRO(criaPostos(), 3010),
                  ERRO(bd->OpenRecordset(u"Opcoes"_s), 3078), ERRO(bd->Fields(u"Opcoes"_s), 3078),
                  ERRO(bd->AppendField(u"Postos"_s, campo("anoinicial")), 0),
                  ERRO(bd->AppendField(u"Postos"_s, campo("AnoInicial")), 3191),
                  ERRO(bd->Append(quebrada), 3265),
                  ERRO(bd->Execute(u"DELETE FROM Postos; DELETE FROM Postos"_s), 3142)});
    EXPECT_FALSE(bd->ExisteTabela(u"Quebrada"_s));
    EXPECT_TRUE(bd->ExisteTabela(u"postos"_s));

    // A file that is not a database opens, and fails at the first table.
    bd->Close();
    QFile lixo(caminho(u"lixo.mdb"_s));
    ASSERT_TRUE(lixo.open(QIODevice::WriteOnly));
    lixo.write(QByteArray("isto não é um banco de dados, só texto solto. ").repeated(100));
    lixo.close();
    bd = Database::OpenDatabase(lixo.fileName());
    EXPECT_EQ(numeroDoErro([&] { bd->OpenRecordset(u"CasoCORVALIN"_s); }), 3343);
}
