#include "Apoio.h"

#include <QTimeZone>

namespace {

class Campos : public BaseDeTeste {
protected:
    void SetUp() override {
        BaseDeTeste::SetUp();
        bd->Append(defTipos());
        rs = bd->OpenRecordset(u"Tipos"_s);
    }

    Valor escreveELe(const char* campo, const Valor& valor) {
        adiciona(*rs, {{"Chave", ++mChave}, {campo, valor}});
        rs->MoveLast();  // physical order: the row just added
        return rs->campo(QString::fromLatin1(campo));
    }

    int erroAoEscrever(const char* campo, const Valor& valor) {
        rs->AddNew();
        return numeroDoErro([&] { rs->setCampo(QString::fromLatin1(campo), valor); });
    }

    std::unique_ptr<Recordset> rs;
    int mChave = 0;
};

QDateTime data(int a, int m, int d, int h = 0, int min = 0, int s = 0) {
    return {QDate(a, m, d), QTime(h, min, s), QTimeZone::utc()};
}

// A row of the Tipos table with its key, a byte and a name; the other fields Null.
std::vector<Valor> linha(int chave, const Valor& octeto, const Valor& nome) {
    return {chave, Valor(), octeto, Valor(), Valor(), Valor(), Valor(), nome, Valor()};
}

}  // namespace

TEST_F(Campos, AddNewStartsFromTheDefaultsAndNullsElsewhere) {
    rs->AddNew();
    confere<Valor>({CASO(rs->campo(u"Sim"_s), true), CASO(rs->campo(u"Simples"_s), static_cast<double>(0.1f)),
                    CASO(rs->campo(u"Nome"_s), "O'Neil"), CASO(rs->campo(u"Octeto"_s), {})});
    rs->setCampo(u"Chave"_s, 1);
    rs->setCampo(u"Octeto"_s, Valor());
    rs->Update();
    rs->MoveFirst();
    confere<Valor>({CASO(rs->campo(u"Octeto"_s), {}), CASO(rs->campo(u"Duplo"_s), {}),
                    CASO(rs->campo(u"Nome"_s), "O'Neil")});
}

TEST_F(Campos, ValuesAreConvertedAsTheOldPlatformConvertedThem) {
    confere<Valor>({CASO(escreveELe("Octeto", 2.5), std::int64_t{2}),
                    CASO(escreveELe("Curto", "-32768"), std::int64_t{-32768}),
                    CASO(escreveELe("Chave", "2147483647.4"), std::int64_t{2147483647}),
                    CASO(escreveELe("Duplo", true), -1.0), CASO(escreveELe("Sim", 2), true),
                    CASO(escreveELe("Sim", 0.0), false), CASO(escreveELe("Nome", 12), "12"),
                    // A Single keeps exactly the float it was given.
                    CASO(escreveELe("Simples", 0.1), static_cast<double>(0.1f)),
                    CASO(escreveELe("Simples", 3.4e38), static_cast<double>(3.4e38f)),
                    CASO(escreveELe("Quando", data(2024, 2, 29, 13, 45, 10)), data(2024, 2, 29, 13, 45, 10)),
                    CASO(escreveELe("Quando", "2001-09-10"), data(2001, 9, 10)),
                    CASO(escreveELe("Quando", "07:30"), data(1899, 12, 30, 7, 30)),
                    CASO(escreveELe("Quando", 36526.5), data(2000, 1, 1, 12)),
                    CASO(escreveELe("Sim", true), true)});
}

TEST_F(Campos, EveryBrokenRuleRaisesTheEnginesErrorAndWritesNothing) {
    confere<int>({CASO(erroAoEscrever("Octeto", 256), 6), CASO(erroAoEscrever("Octeto", -1), 6),
                  CASO(erroAoEscrever("Octeto", true), 6),  // true is -1
                  CASO(erroAoEscrever("Curto", 32768), 6),
                  CASO(erroAoEscrever("Curto", -32768.5), 0),  // rounds to even, inside the range
                  CASO(erroAoEscrever("Chave", std::int64_t{2147483648}), 6),
                  CASO(erroAoEscrever("Simples", 3.5e38), 6), CASO(erroAoEscrever("Chave", "12a"), 13),
                  CASO(erroAoEscrever("Duplo", ""), 13), CASO(erroAoEscrever("Quando", "31/12/2024"), 13),
                  CASO(erroAoEscrever("Sim", "talvez"), 13), CASO(erroAoEscrever("Nome", "1234567"), 3163),
                  CASO(erroAoEscrever("Nome", "123456"), 0), CASO(erroAoEscrever("Inexistente", 1), 3265),
                  ERRO(rs->campo(u"Inexistente"_s), 3265)});

    // A refused value leaves the buffer as it was.
    rs->AddNew();
    rs->setCampo(u"Chave"_s, 1);
    rs->setCampo(u"Nome"_s, u"abc"_s);
    EXPECT_EQ(numeroDoErro([&] { rs->setCampo(u"Nome"_s, u"abcdefgh"_s); }), 3163);
    EXPECT_EQ(rs->campo(u"Nome"_s), Valor("abc"));
    rs->Update();

    // Zero-length text is refused at Update, unless the field allows it; a duplicate key likewise.
    rs->AddNew();
    rs->setCampo(u"Chave"_s, 2);
    rs->setCampo(u"Livre"_s, QString());
    rs->setCampo(u"Nome"_s, QString());
    try {
        rs->Update();
        ADD_FAILURE() << "a zero-length name was written";
    } catch (const plataforma::ErroVB& e) {
        EXPECT_EQ(e.Number(), 3315);
        EXPECT_EQ(e.Description(),
                  u"O campo 'Tipos.Nome' não pode ser uma seqüência de caracteres de comprimento zero."_s);
    }
    rs->setCampo(u"Nome"_s, u"x"_s);
    rs->setCampo(u"Chave"_s, 1);
    EXPECT_EQ(numeroDoErro([&] { rs->Update(); }), 3022);
    EXPECT_EQ(todos(*rs, "Chave").size(), 1u);

    adiciona(*rs, {{"Chave", 2}, {"Livre", QString()}});
    // Characters that the text order ignores still make a text that is not empty.
    adiciona(*rs, {{"Chave", 3}, {"Nome", QString(2, QChar(0))}});
    EXPECT_EQ(todos(*rs, "Chave").size(), 3u);
}

TEST_F(Campos, ManyRowsAtOnceKeepEveryRuleWriteAllOrNoneAndLeaveTheCurrentRecord) {
    adiciona(*rs, {{"Chave", 1000}});
    rs->MoveFirst();

    std::vector<std::vector<Valor>> linhas;
    for (int i = 1; i <= 150; ++i) {  // more rows than one statement takes
        linhas.push_back(linha(i, i % 256, u"n%1"_s.arg(i % 100)));
    }
    rs->AddNewRows(linhas);
    EXPECT_EQ(inteiro(*rs, "Chave"), 1000) << "the current record stays";
    EXPECT_EQ(todos(*rs, "Chave").size(), 151u);
    rs->setIndex(u"Chave"_s);
    rs->Seek(u"="_s, {150});
    ASSERT_FALSE(rs->NoMatch());
    EXPECT_EQ(inteiro(*rs, "Octeto"), 150);
    EXPECT_EQ(texto(*rs, "Nome"), u"n50"_s);

    // A broken rule anywhere, in the first statement or the last, writes none of the rows.
    const auto falha = [&](std::vector<Valor> ruim, std::size_t onde) {
        std::vector<std::vector<Valor>> lote;
        for (int i = 0; i < 130; ++i) {
            lote.push_back(linha(2000 + i, 1, u"x"_s));
        }
        lote[onde] = std::move(ruim);
        const int erro = numeroDoErro([&] { rs->AddNewRows(lote); });
        EXPECT_EQ(todos(*rs, "Chave").size(), 151u);
        return erro;
    };
    EXPECT_EQ(falha(linha(3000, 256, u"x"_s), 3), 6);
    EXPECT_EQ(falha(linha(3000, 1, u"longo demais"_s), 129), 3163);
    EXPECT_EQ(falha(linha(3000, 1, QString()), 64), 3315);
    EXPECT_EQ(falha(linha(7, 1, u"x"_s), 128), 3022) << "a key that is already there";
    EXPECT_EQ(falha({2999}, 0), 3001) << "a row without every field";
}
