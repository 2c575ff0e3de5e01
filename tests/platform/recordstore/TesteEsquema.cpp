#include "Apoio.h"

#include <QFile>

using recordstore::Database;
using recordstore::FieldDef;
using recordstore::Tipo;
using recordstore::Valor;

namespace {

using Esquema = BaseDeTeste;

void esperaIguais(const std::vector<FieldDef>& lidos, const std::vector<FieldDef>& esperados) {
    ASSERT_EQ(lidos.size(), esperados.size());
    for (std::size_t i = 0; i < lidos.size(); ++i) {
        SCOPED_TRACE(esperados[i].Name.toStdString());
        EXPECT_EQ(lidos[i].Name, esperados[i].Name);
        EXPECT_EQ(lidos[i].Type, esperados[i].Type);
        EXPECT_EQ(lidos[i].Size, esperados[i].Size);
        EXPECT_EQ(lidos[i].AllowZeroLength, esperados[i].AllowZeroLength);
        EXPECT_EQ(lidos[i].DefaultValue, esperados[i].DefaultValue);
    }
}

recordstore::TableDef tabelaCompleta() {
    recordstore::TableDef t{QStringLiteral("Completa"),
                            {recordstore::CreateField(QStringLiteral("Codigo"), Tipo::Long),
                             recordstore::CreateField(QStringLiteral("Ativo"), Tipo::Boolean),
                             recordstore::CreateField(QStringLiteral("Tipo"), Tipo::Byte),
                             recordstore::CreateField(QStringLiteral("Ano"), Tipo::Integer),
                             recordstore::CreateField(QStringLiteral("Area"), Tipo::Single),
                             recordstore::CreateField(QStringLiteral("Limite"), Tipo::Double),
                             recordstore::CreateField(QStringLiteral("Data"), Tipo::DataHora),
                             recordstore::CreateField(QStringLiteral("Nome"), Tipo::Texto, 60),
                             recordstore::CreateField(QStringLiteral("Arquivo"), Tipo::Texto, 12)},
                            {{QStringLiteral("CodigoAno"), true, QStringLiteral("Codigo;-Ano")},
                             {QStringLiteral("Nome"), false, QStringLiteral("Nome")}}};
    t.Fields[1].DefaultValue = true;
    t.Fields[3].DefaultValue = -1;
    t.Fields[4].DefaultValue = 0.1f;
    t.Fields[6].DefaultValue = "2000-01-01 00:00:00";
    t.Fields[7].DefaultValue = "O'Neil";
    t.Fields[8].AllowZeroLength = true;
    return t;
}

}  // namespace

TEST_F(Esquema, AReopenedFileHasTheSameFieldsAndIndexes) {
    const auto definicao = tabelaCompleta();
    bd->Append(definicao);
    auto esperados = definicao.Fields;  // defaults come back in the field's own type
    esperados[3].DefaultValue = std::int64_t{-1};
    esperados[4].DefaultValue = static_cast<double>(0.1f);
    esperados[6].DefaultValue = Valor(QStringLiteral("2000-01-01")).paraDataHora();
    esperaIguais(bd->Fields(QStringLiteral("completa")), esperados);
    bd.reset();

    bd = Database::OpenDatabase(caminho());
    EXPECT_EQ(bd->NomesDasTabelas(), std::vector<QString>{QStringLiteral("Completa")});
    esperaIguais(bd->Fields(QStringLiteral("Completa")), esperados);
    auto rs = bd->OpenRecordset(QStringLiteral("Completa"));
    for (const auto& [codigo, ano] : {std::pair{1, 1998}, {1, 2000}, {2, 1999}}) {
        rs->AddNew();
        rs->setCampo(QStringLiteral("Codigo"), codigo);
        rs->setCampo(QStringLiteral("Ano"), ano);
        rs->Update();
    }
    rs->setIndex(QStringLiteral("CodigoAno"));
    EXPECT_EQ(ateOFim(*rs, "Ano"), (std::vector<std::int64_t>{2000, 1998, 1999}));
    rs->setIndex(QStringLiteral("Nome"));  // not unique: every row has the default name
    EXPECT_EQ(contaLinhas(*rs), 3);
    rs->AddNew();
    rs->setCampo(QStringLiteral("Codigo"), 1);
    rs->setCampo(QStringLiteral("Ano"), 2000);
    EXPECT_EQ(numeroDoErro([&] { rs->Update(); }), 3022);
    rs->setCampo(QStringLiteral("Arquivo"), QString());
    rs->setCampo(QStringLiteral("Nome"), QString());
    rs->setCampo(QStringLiteral("Ano"), 2001);
    EXPECT_EQ(numeroDoErro([&] { rs->Update(); }), 3315);
}

TEST_F(Esquema, TheSqlite3ShellReadsTheSchemaNaturally) {
    criaPostos();
    criaVazoes();
    bd->Close();
    const QString esquema = sqlite3(caminho(), QStringLiteral(".schema\nPRAGMA journal_mode;\n"));
    if (esquema.isEmpty()) {
        GTEST_SKIP() << "sqlite3 is not installed";
    }
    for (const char* trecho :
         {"\"CodigoDoPosto\" LONG,",
          "\"NomeDoAproveitamento\" TEXT(60) COLLATE GERAL CHECK (\"NomeDoAproveitamento\" <> '' COLLATE BINARY),",
          "\"AreaDeDrenagem\" SINGLE DEFAULT 0", "\"Ano\" INTEGER,", "\"Semana\" BYTE,",
          "CREATE UNIQUE INDEX \"Postos.CodigoDoPosto\" ON \"Postos\" (\"CodigoDoPosto\");",
          "CREATE INDEX \"Postos.NomeDoAproveitamento\" ON \"Postos\" (\"NomeDoAproveitamento\");",
          "CREATE UNIQUE INDEX \"VazoesSemanais.CodigoDoPostoAnoSemana\" ON \"VazoesSemanais\" "
          "(\"CodigoDoPosto\", \"Ano\", \"Semana\");",
          "\nwal\n"}) {
        EXPECT_TRUE(esquema.contains(QString::fromUtf8(trecho))) << trecho << "\nnot in\n"
                                                                 << esquema.toStdString();
    }
}

TEST_F(Esquema, AFileMadeByHandWithTheDeclaredTypesWorksAlike) {
    bd->Close();
    const QString feito = caminho(QStringLiteral("manual.mdb"));
    sqlite3(feito,
            QStringLiteral(
                "CREATE TABLE Postos (CodigoDoPosto long, NomeDoAproveitamento text(60), "
                "Flag byte, Area Single DEFAULT 2.5);"
                "CREATE UNIQUE INDEX \"Postos.CodigoDoPosto\" ON Postos (CodigoDoPosto);"
                "CREATE INDEX \"Postos.Nome\" ON Postos (NomeDoAproveitamento);"
                "INSERT INTO Postos VALUES (1, 'caconde', 1, 1), (2, 'FURNAS', 2, 2), (3, 'Barra', 3, 3);"));
    if (!QFile::exists(feito)) {
        GTEST_SKIP() << "sqlite3 is not installed";
    }
    bd = Database::OpenDatabase(feito);
    esperaIguais(bd->Fields(QStringLiteral("Postos")),
                 {{QStringLiteral("CodigoDoPosto"), Tipo::Long, 0, false, {}},
                  {QStringLiteral("NomeDoAproveitamento"), Tipo::Texto, 60, true, {}},
                  {QStringLiteral("Flag"), Tipo::Byte, 0, false, {}},
                  {QStringLiteral("Area"), Tipo::Single, 0, false, 2.5}});
    auto rs = bd->OpenRecordset(QStringLiteral("Postos"));
    rs->setIndex(QStringLiteral("Nome"));
    EXPECT_EQ(ateOFim(*rs, "CodigoDoPosto"), (std::vector<std::int64_t>{3, 1, 2}));  // not the binary order
    rs->Seek(QStringLiteral("="), {QStringLiteral("furnas")});
    ASSERT_FALSE(rs->NoMatch());
    EXPECT_EQ(inteiro(*rs, "Flag"), 2);
    rs->AddNew();
    rs->setCampo(QStringLiteral("CodigoDoPosto"), 2);
    EXPECT_EQ(numeroDoErro([&] { rs->Update(); }), 3022);
}

TEST_F(Esquema, AFileThatIsNoDatabaseOpensAndFailsAtTheFirstTable) {
    bd->Close();
    QFile lixo(caminho(QStringLiteral("lixo.mdb")));
    ASSERT_TRUE(lixo.open(QIODevice::WriteOnly));
    lixo.write(QByteArray("isto não é um banco de dados, só texto solto. ").repeated(100));
    lixo.close();
    bd = Database::OpenDatabase(lixo.fileName());
    EXPECT_EQ(numeroDoErro([&] { bd->OpenRecordset(QStringLiteral("CasoCORVALIN")); }), 3343);
}

TEST_F(Esquema, FilesAndTablesReportTheEnginesErrors) {
    criaPostos();
    EXPECT_EQ(numeroDoErro([&] { Database::CreateDatabase(caminho()); }), 3204);
    EXPECT_EQ(numeroDoErro([&] { Database::CreateDatabase(caminho(QStringLiteral("nao/existe.mdb"))); }),
              3044);
    EXPECT_EQ(numeroDoErro([&] { Database::OpenDatabase(caminho(QStringLiteral("outro.mdb"))); }), 3024);
    EXPECT_EQ(numeroDoErro([&] { criaPostos(); }), 3010);
    EXPECT_EQ(numeroDoErro([&] { bd->OpenRecordset(QStringLiteral("Opcoes")); }), 3078);
    EXPECT_EQ(numeroDoErro([&] { bd->Fields(QStringLiteral("Opcoes")); }), 3078);
    EXPECT_EQ(numeroDoErro([&] {
                  bd->AppendField(QStringLiteral("Postos"),
                                  recordstore::CreateField(QStringLiteral("anoinicial"), Tipo::Integer));
              }),
              0);
    EXPECT_EQ(numeroDoErro([&] {
                  bd->AppendField(QStringLiteral("Postos"),
                                  recordstore::CreateField(QStringLiteral("AnoInicial"), Tipo::Integer));
              }),
              3191);
    const recordstore::TableDef quebrada{QStringLiteral("Quebrada"),
                                         {recordstore::CreateField(QStringLiteral("A"), Tipo::Long)},
                                         {{QStringLiteral("B"), true, QStringLiteral("A;+B")}}};
    EXPECT_EQ(numeroDoErro([&] { bd->Append(quebrada); }), 3265);
    EXPECT_FALSE(bd->ExisteTabela(QStringLiteral("Quebrada")));
    EXPECT_TRUE(bd->ExisteTabela(QStringLiteral("postos")));
    EXPECT_EQ(numeroDoErro([&] { bd->Execute(QStringLiteral("DELETE FROM Postos; DELETE FROM Postos")); }),
              3142);
}

TEST_F(Esquema, SchemaChangesKeepOpenHandlesWorking) {
    criaVazoes();
    auto andando = bd->OpenRecordset(QStringLiteral("VazoesSemanais"));
    auto parado = bd->OpenRecordset(QStringLiteral("VazoesSemanais"));
    for (int semana = 1; semana <= 5; ++semana) {
        adicionaVazao(*andando, 1, 2000, semana, semana);
    }
    andando->setIndex(QStringLiteral("CodigoDoPostoAnoSemana"));
    andando->MoveNext();
    parado->MoveLast();

    bd->Execute(QStringLiteral("alter table VazoesSemanais add column CasoUsa53Semanas byte;"));
    EXPECT_EQ(andando->FieldCount(), 5);
    EXPECT_EQ(bd->Fields(QStringLiteral("VazoesSemanais")).back().Type, Tipo::Byte);
    andando->MoveNext();
    EXPECT_EQ(inteiro(*andando, "Semana"), 3);
    EXPECT_TRUE(andando->campo(QStringLiteral("CasoUsa53Semanas")).nulo());  // existing rows hold Null
    EXPECT_EQ(inteiro(*parado, "Semana"), 5);

    bd->AppendField(QStringLiteral("VazoesSemanais"),
                    recordstore::CreateField(QStringLiteral("Obs"), Tipo::Texto, 10));
    parado->Edit();
    parado->setCampo(QStringLiteral("Obs"), QStringLiteral("cheia"));
    parado->Update();
    EXPECT_EQ(parado->campo(QStringLiteral("Obs")), Valor("cheia"));
    EXPECT_TRUE(andando->campo(QStringLiteral("Obs")).nulo());

    bd->Execute(QStringLiteral("DELETE FROM VazoesSemanais WHERE Semana >= 3"));
    EXPECT_EQ(numeroDoErro([&] { andando->campo(QStringLiteral("Semana")); }), 3167);
    andando->MovePrevious();
    EXPECT_EQ(inteiro(*andando, "Semana"), 2);
}
