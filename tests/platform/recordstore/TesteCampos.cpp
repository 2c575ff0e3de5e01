#include "Apoio.h"

#include <QTimeZone>

using recordstore::Tipo;
using recordstore::Valor;

namespace {

class Campos : public BaseDeTeste {
protected:
    void SetUp() override {
        BaseDeTeste::SetUp();
        recordstore::TableDef t{QStringLiteral("Tipos"),
                                {recordstore::CreateField(QStringLiteral("Chave"), Tipo::Long),
                                 recordstore::CreateField(QStringLiteral("Sim"), Tipo::Boolean),
                                 recordstore::CreateField(QStringLiteral("Octeto"), Tipo::Byte),
                                 recordstore::CreateField(QStringLiteral("Curto"), Tipo::Integer),
                                 recordstore::CreateField(QStringLiteral("Simples"), Tipo::Single),
                                 recordstore::CreateField(QStringLiteral("Duplo"), Tipo::Double),
                                 recordstore::CreateField(QStringLiteral("Quando"), Tipo::DataHora),
                                 recordstore::CreateField(QStringLiteral("Nome"), Tipo::Texto, 5),
                                 recordstore::CreateField(QStringLiteral("Livre"), Tipo::Texto, 5)},
                                {{QStringLiteral("Chave"), true, QStringLiteral("Chave")}}};
        t.Fields[1].DefaultValue = true;
        t.Fields[4].DefaultValue = 1.5;
        t.Fields[7].DefaultValue = "novo";
        t.Fields[8].AllowZeroLength = true;
        bd->Append(t);
        rs = bd->OpenRecordset(QStringLiteral("Tipos"));
    }

    Valor escreveELe(const char* campo, const Valor& valor) {
        rs->AddNew();
        rs->setCampo(QStringLiteral("Chave"), ++mChave);
        rs->setCampo(QString::fromLatin1(campo), valor);
        rs->Update();
        rs->MoveLast();  // physical order: the row just added
        return rs->campo(QString::fromLatin1(campo));
    }

    int erroAoEscrever(const char* campo, const Valor& valor) {
        rs->AddNew();
        return numeroDoErro([&] { rs->setCampo(QString::fromLatin1(campo), valor); });
    }

    std::unique_ptr<recordstore::Recordset> rs;
    int mChave = 0;
};

QDateTime data(int a, int m, int d, int h = 0, int min = 0, int s = 0) {
    return {QDate(a, m, d), QTime(h, min, s), QTimeZone::utc()};
}

}  // namespace

TEST_F(Campos, AddNewStartsFromTheDefaultsAndNullsElsewhere) {
    rs->AddNew();
    EXPECT_EQ(rs->campo(QStringLiteral("Sim")), Valor(true));
    EXPECT_EQ(rs->campo(QStringLiteral("Simples")), Valor(1.5));
    EXPECT_EQ(rs->campo(QStringLiteral("Nome")), Valor("novo"));
    EXPECT_TRUE(rs->campo(QStringLiteral("Octeto")).nulo());
    rs->setCampo(QStringLiteral("Chave"), 1);
    rs->setCampo(QStringLiteral("Octeto"), Valor());
    rs->Update();
    rs->MoveFirst();
    EXPECT_TRUE(rs->campo(QStringLiteral("Octeto")).nulo());
    EXPECT_TRUE(rs->campo(QStringLiteral("Duplo")).nulo());
    EXPECT_EQ(rs->campo(QStringLiteral("Nome")), Valor("novo"));
}

TEST_F(Campos, NumbersAreConvertedAsTheOldPlatformConvertedThem) {
    EXPECT_EQ(escreveELe("Octeto", 2.5), Valor(std::int64_t{2}));
    EXPECT_EQ(escreveELe("Octeto", 3.5), Valor(std::int64_t{4}));
    EXPECT_EQ(escreveELe("Curto", -2.5), Valor(std::int64_t{-2}));
    EXPECT_EQ(escreveELe("Curto", "-32768"), Valor(std::int64_t{-32768}));
    EXPECT_EQ(escreveELe("Chave", "2147483647.4"), Valor(std::int64_t{2147483647}));
    EXPECT_EQ(escreveELe("Duplo", true), Valor(-1.0));
    EXPECT_EQ(escreveELe("Sim", 2), Valor(true));
    EXPECT_EQ(escreveELe("Sim", 0.0), Valor(false));
    EXPECT_EQ(escreveELe("Nome", 12), Valor("12"));
    // A Single keeps exactly the float it was given.
    EXPECT_EQ(escreveELe("Simples", 0.1).paraDouble(), static_cast<double>(0.1f));
    EXPECT_EQ(escreveELe("Simples", 3.4e38).paraDouble(), static_cast<double>(3.4e38f));
}

TEST_F(Campos, BooleansAndDatesAreStoredReadably) {
    EXPECT_EQ(escreveELe("Quando", data(2024, 2, 29, 13, 45, 10)), Valor(data(2024, 2, 29, 13, 45, 10)));
    EXPECT_EQ(escreveELe("Quando", "2001-09-10"), Valor(data(2001, 9, 10)));
    EXPECT_EQ(escreveELe("Quando", "07:30"), Valor(data(1899, 12, 30, 7, 30)));
    EXPECT_EQ(escreveELe("Quando", 36526.5), Valor(data(2000, 1, 1, 12)));
    escreveELe("Sim", true);
    bd->Close();
    const QString armazenado = sqlite3(caminho(), QStringLiteral("SELECT Quando FROM Tipos WHERE Chave = 4;"
                                                                 "SELECT Sim FROM Tipos WHERE Chave = 5;"));
    if (armazenado.isEmpty()) {
        GTEST_SKIP() << "sqlite3 is not installed";
    }
    EXPECT_EQ(armazenado, "2000-01-01 12:00:00\n1\n");
}

TEST_F(Campos, EveryBrokenRuleRaisesTheEnginesErrorAndWritesNothing) {
    EXPECT_EQ(erroAoEscrever("Octeto", 256), 6);
    EXPECT_EQ(erroAoEscrever("Octeto", -1), 6);
    EXPECT_EQ(erroAoEscrever("Octeto", true), 6);  // true is -1
    EXPECT_EQ(erroAoEscrever("Curto", 32768), 6);
    EXPECT_EQ(erroAoEscrever("Curto", -32768.5), 0);  // rounds to even, inside the range
    EXPECT_EQ(erroAoEscrever("Chave", std::int64_t{2147483648}), 6);
    EXPECT_EQ(erroAoEscrever("Simples", 3.5e38), 6);
    EXPECT_EQ(erroAoEscrever("Chave", "12a"), 13);
    EXPECT_EQ(erroAoEscrever("Duplo", ""), 13);
    EXPECT_EQ(erroAoEscrever("Quando", "31/12/2024"), 13);
    EXPECT_EQ(erroAoEscrever("Sim", "talvez"), 13);
    EXPECT_EQ(erroAoEscrever("Nome", "123456"), 3163);
    EXPECT_EQ(erroAoEscrever("Nome", "12345"), 0);
    EXPECT_EQ(erroAoEscrever("Inexistente", 1), 3265);
    EXPECT_EQ(numeroDoErro([&] { rs->campo(QStringLiteral("Inexistente")); }), 3265);

    // A refused value leaves the buffer as it was.
    rs->AddNew();
    rs->setCampo(QStringLiteral("Chave"), 1);
    rs->setCampo(QStringLiteral("Nome"), QStringLiteral("abc"));
    EXPECT_EQ(numeroDoErro([&] { rs->setCampo(QStringLiteral("Nome"), QStringLiteral("abcdefgh")); }), 3163);
    EXPECT_EQ(rs->campo(QStringLiteral("Nome")), Valor("abc"));
    rs->Update();

    // Zero-length text is refused at Update, unless the field allows it; a duplicate key likewise.
    rs->AddNew();
    rs->setCampo(QStringLiteral("Chave"), 2);
    rs->setCampo(QStringLiteral("Livre"), QString());
    rs->setCampo(QStringLiteral("Nome"), QString());
    const auto erro = [&] {
        try {
            rs->Update();
        } catch (const plataforma::ErroVB& e) {
            return e;
        }
        return plataforma::ErroVB(0, {});
    }();
    EXPECT_EQ(erro.Number(), 3315);
    EXPECT_EQ(
        erro.Description(),
        QStringLiteral("O campo 'Tipos.Nome' não pode ser uma seqüência de caracteres de comprimento zero."));
    rs->setCampo(QStringLiteral("Nome"), QStringLiteral("x"));
    rs->setCampo(QStringLiteral("Chave"), 1);
    EXPECT_EQ(numeroDoErro([&] { rs->Update(); }), 3022);
    EXPECT_EQ(contaLinhas(*rs), 1);

    rs->AddNew();
    rs->setCampo(QStringLiteral("Chave"), 2);
    rs->setCampo(QStringLiteral("Livre"), QString());
    rs->Update();  // the buffer survives a failed Update, and a fixed one goes through
    EXPECT_EQ(contaLinhas(*rs), 2);

    // Characters that the text order ignores still make a text that is not empty.
    rs->AddNew();
    rs->setCampo(QStringLiteral("Chave"), 3);
    rs->setCampo(QStringLiteral("Nome"), QString(2, QChar(0)));
    rs->Update();
    EXPECT_EQ(contaLinhas(*rs), 3);
}

TEST_F(Campos, WritingNeedsAnAddNewOrAnEdit) {
    EXPECT_EQ(numeroDoErro([&] { rs->Update(); }), 3020);
    EXPECT_EQ(numeroDoErro([&] { rs->setCampo(QStringLiteral("Nome"), "a"); }), 3020);
    EXPECT_EQ(numeroDoErro([&] { rs->CancelUpdate(); }), 3020);
    rs->AddNew();
    rs->setCampo(QStringLiteral("Chave"), 1);
    rs->CancelUpdate();
    EXPECT_EQ(numeroDoErro([&] { rs->Update(); }), 3020);
    EXPECT_TRUE(rs->Bof() && rs->Eof());
}

namespace {

// A row of the Tipos table with its key, a byte and a name; the other fields Null.
std::vector<Valor> linha(int chave, const Valor& octeto, const Valor& nome) {
    return {chave, Valor(), octeto, Valor(), Valor(), Valor(), Valor(), nome, Valor()};
}

TEST_F(Campos, ManyRowsAtOnceKeepEveryRuleWriteAllOrNoneAndLeaveTheCurrentRecord) {
    rs->AddNew();
    rs->setCampo(QStringLiteral("Chave"), 1000);
    rs->Update();
    rs->MoveFirst();

    std::vector<std::vector<Valor>> linhas;
    for (int i = 1; i <= 150; ++i) {  // more rows than one statement takes
        linhas.push_back(linha(i, i % 256, QStringLiteral("n%1").arg(i % 100)));
    }
    rs->AddNewRows(linhas);
    EXPECT_EQ(rs->campo(QStringLiteral("Chave")).paraInteiro(), 1000) << "the current record stays";
    EXPECT_EQ(contaLinhas(*rs), 151);
    rs->setIndex(QStringLiteral("Chave"));
    rs->Seek(QStringLiteral("="), {150});
    ASSERT_FALSE(rs->NoMatch());
    EXPECT_EQ(rs->campo(QStringLiteral("Octeto")).paraInteiro(), 150);
    EXPECT_EQ(rs->campo(QStringLiteral("Nome")).paraTexto(), QStringLiteral("n50"));

    // A broken rule anywhere, in the first statement or the last, writes none of the rows.
    const auto falha = [&](std::vector<Valor> ruim, std::size_t onde) {
        std::vector<std::vector<Valor>> lote;
        for (int i = 0; i < 130; ++i) {
            lote.push_back(linha(2000 + i, 1, QStringLiteral("x")));
        }
        lote[onde] = std::move(ruim);
        const int erro = numeroDoErro([&] { rs->AddNewRows(lote); });
        EXPECT_EQ(contaLinhas(*rs), 151);
        return erro;
    };
    EXPECT_EQ(falha(linha(3000, 256, QStringLiteral("x")), 3), 6);
    EXPECT_EQ(falha(linha(3000, 1, QStringLiteral("longo demais")), 129), 3163);
    EXPECT_EQ(falha(linha(3000, 1, QString()), 64), 3315);
    EXPECT_EQ(falha(linha(7, 1, QStringLiteral("x")), 128), 3022) << "a key that is already there";
    EXPECT_EQ(falha({2999}, 0), 3001) << "a row without every field";
}

}  // namespace
