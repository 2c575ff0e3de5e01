#include "Apoio.h"

using recordstore::Recordset;
using recordstore::Valor;

namespace {

using Ints = std::vector<std::int64_t>;

class Cursor : public BaseDeTeste {
protected:
    void SetUp() override {
        BaseDeTeste::SetUp();
        criaPostos();
        criaVazoes();
        postos = bd->OpenRecordset(QStringLiteral("Postos"));
        vazoes = bd->OpenRecordset(QStringLiteral("VazoesSemanais"));
    }

    // Station 1: 1998 weeks 1-3, 1999 weeks 1-2; station 2: 1998 week 2, 1999 weeks 1 and 3;
    // written out of key order, so that physical order and index order differ.
    void preencheVazoes() {
        for (const auto& [codigo, ano, semana] : std::vector<std::tuple<int, int, int>>{{2, 1999, 3},
                                                                                        {1, 1998, 1},
                                                                                        {2, 1998, 2},
                                                                                        {1, 1999, 2},
                                                                                        {1, 1998, 3},
                                                                                        {2, 1999, 1},
                                                                                        {1, 1998, 2},
                                                                                        {1, 1999, 1}}) {
            adicionaVazao(*vazoes, codigo, ano, semana, codigo * 10000 + ano % 100 * 100 + semana);
        }
        vazoes->setIndex(QStringLiteral("CodigoDoPostoAnoSemana"));
    }

    std::unique_ptr<Recordset> postos;
    std::unique_ptr<Recordset> vazoes;
};

}  // namespace

TEST_F(Cursor, AnEmptyTableStandsAtBothEndsAndRefusesEveryMove) {
    EXPECT_TRUE(postos->Bof());
    EXPECT_TRUE(postos->Eof());
    EXPECT_EQ(numeroDoErro([&] { postos->MoveFirst(); }), 3021);
    EXPECT_EQ(numeroDoErro([&] { postos->MoveLast(); }), 3021);
    EXPECT_EQ(numeroDoErro([&] { postos->MoveNext(); }), 3021);
    EXPECT_EQ(numeroDoErro([&] { postos->MovePrevious(); }), 3021);
    EXPECT_EQ(numeroDoErro([&] { postos->campo(QStringLiteral("CodigoDoPosto")); }), 3021);
    EXPECT_EQ(numeroDoErro([&] { postos->Bookmark(); }), 3021);
    EXPECT_EQ(numeroDoErro([&] { postos->Edit(); }), 3021);
    EXPECT_EQ(numeroDoErro([&] { postos->Delete(); }), 3021);
    postos->setIndex(QStringLiteral("CodigoDoPosto"));
    postos->Seek(QStringLiteral("="), {1});
    EXPECT_TRUE(postos->NoMatch());
    EXPECT_TRUE(postos->Eof());
}

TEST_F(Cursor, TheFirstRecordAddedToAnEmptyTableLeavesTheHandlePastTheEnd) {
    adicionaPosto(*postos, 7, QStringLiteral("Furnas"));
    EXPECT_FALSE(postos->Bof());
    EXPECT_TRUE(postos->Eof());
    postos->MovePrevious();
    EXPECT_EQ(inteiro(*postos, "CodigoDoPosto"), 7);
    EXPECT_FALSE(postos->Eof());
}

TEST_F(Cursor, AddNewAndUpdateKeepTheFormerCurrentRecord) {
    postos->setIndex(QStringLiteral("CodigoDoPosto"));
    for (const int codigo : {10, 20, 30}) {
        adicionaPosto(*postos, codigo, QStringLiteral("P%1").arg(codigo));
    }
    postos->Seek(QStringLiteral("="), {20});
    adicionaPosto(*postos, 15, QStringLiteral("P15"));
    adicionaPosto(*postos, 25, QStringLiteral("P25"));
    EXPECT_EQ(inteiro(*postos, "CodigoDoPosto"), 20);
    postos->MoveNext();
    EXPECT_EQ(inteiro(*postos, "CodigoDoPosto"), 25);  // the new records take their place in the order
    postos->MovePrevious();
    postos->MovePrevious();
    EXPECT_EQ(inteiro(*postos, "CodigoDoPosto"), 15);

    postos->Edit();
    postos->setCampo(QStringLiteral("CodigoDoPosto"), 35);
    postos->Update();
    EXPECT_EQ(inteiro(*postos, "CodigoDoPosto"), 35);  // the edited record stays current, at its new place
    postos->MovePrevious();
    EXPECT_EQ(inteiro(*postos, "CodigoDoPosto"), 30);
}

TEST_F(Cursor, MovingPastEitherEndSetsBofOrEofAndOneMoreMoveFails) {
    preencheVazoes();
    vazoes->MoveFirst();
    vazoes->MovePrevious();
    EXPECT_TRUE(vazoes->Bof());
    EXPECT_FALSE(vazoes->Eof());
    EXPECT_EQ(numeroDoErro([&] { vazoes->MovePrevious(); }), 3021);
    EXPECT_EQ(numeroDoErro([&] { vazoes->campo(QStringLiteral("Ano")); }), 3021);
    vazoes->MoveNext();
    EXPECT_EQ(inteiro(*vazoes, "Vazao"), 19801);

    vazoes->MoveLast();
    EXPECT_EQ(inteiro(*vazoes, "Vazao"), 29903);
    vazoes->MoveNext();
    EXPECT_TRUE(vazoes->Eof());
    EXPECT_FALSE(vazoes->Bof());
    EXPECT_EQ(numeroDoErro([&] { vazoes->MoveNext(); }), 3021);
    vazoes->MovePrevious();
    EXPECT_EQ(inteiro(*vazoes, "Vazao"), 29903);
}

TEST_F(Cursor, WalksFollowTheCurrentIndexBothWays) {
    preencheVazoes();
    const Ints emOrdem{19801, 19802, 19803, 19901, 19902, 29802, 29901, 29903};
    vazoes->MoveFirst();
    EXPECT_EQ(ateOFim(*vazoes, "Vazao"), emOrdem);
    vazoes->MoveLast();
    EXPECT_EQ(ateOFim(*vazoes, "Vazao", false), Ints(emOrdem.rbegin(), emOrdem.rend()));

    // Turning back in the middle of a walk.
    vazoes->MoveFirst();
    vazoes->MoveNext();
    vazoes->MoveNext();
    vazoes->MovePrevious();
    EXPECT_EQ(inteiro(*vazoes, "Vazao"), 19802);

    vazoes->setIndex({});
    vazoes->MoveFirst();
    EXPECT_EQ(ateOFim(*vazoes, "Vazao"), (Ints{29903, 19801, 29802, 19902, 19803, 29901, 19802, 19901}));
}

TEST_F(Cursor, AnotherIndexMakesItsFirstRecordCurrent) {
    for (const auto& [codigo, nome] : {std::pair{3, "Itaipu"}, {1, "Tucurui"}, {2, "Balbina"}}) {
        adicionaPosto(*postos, codigo, QString::fromUtf8(nome));
    }
    EXPECT_EQ(postos->Index(), "");
    postos->MoveLast();
    postos->setIndex(QStringLiteral("nomedoaproveitamento"));  // names ignore case
    EXPECT_EQ(postos->Index(), "NomeDoAproveitamento");
    EXPECT_EQ(inteiro(*postos, "CodigoDoPosto"), 2);
    postos->MoveNext();
    postos->setIndex(QStringLiteral("CodigoDoPosto"));
    EXPECT_EQ(inteiro(*postos, "CodigoDoPosto"), 1);
    EXPECT_EQ(numeroDoErro([&] { postos->setIndex(QStringLiteral("Nome")); }), 3800);
    EXPECT_EQ(postos->Index(), "CodigoDoPosto");
    postos->setIndex({});
    EXPECT_EQ(numeroDoErro([&] { postos->Seek(QStringLiteral("="), {1}); }), 3019);
}

TEST_F(Cursor, SeekFindsTheFirstRecordOverAPrefixOfTheKey) {
    preencheVazoes();
    const auto seek = [&](const char* comparacao, std::initializer_list<Valor> chave) -> std::int64_t {
        vazoes->Seek(QString::fromLatin1(comparacao), chave);
        return vazoes->NoMatch() ? -1 : inteiro(*vazoes, "Vazao");
    };
    EXPECT_EQ(seek("=", {2}), 29802);
    EXPECT_EQ(seek("=", {1, 1999}), 19901);
    EXPECT_EQ(seek("=", {2, 1999, 3}), 29903);
    EXPECT_EQ(seek(">=", {1, 1998, 4}), 19901);
    EXPECT_EQ(seek(">=", {1, 2000}), 29802);
    EXPECT_EQ(seek(">=", {0}), 19801);
    EXPECT_EQ(seek("=", {2, 1999, 2}), -1);
    EXPECT_TRUE(vazoes->Eof());
    EXPECT_EQ(seek(">=", {2, 1999, 4}), -1);
    EXPECT_TRUE(vazoes->Eof());
    EXPECT_EQ(numeroDoErro([&] { seek("=", {1, 1998, 1, 1}); }), 3001);
    EXPECT_EQ(numeroDoErro([&] { seek("<", {1}); }), 3001);

    // From a match the walk goes on past the equal keys, and back into the station before.
    seek("=", {1, 1999});
    EXPECT_EQ(ateOFim(*vazoes, "Vazao"), (Ints{19901, 19902, 29802, 29901, 29903}));
    seek("=", {2});
    EXPECT_EQ(ateOFim(*vazoes, "Vazao", false), (Ints{29802, 19902, 19901, 19803, 19802, 19801}));
}

TEST_F(Cursor, DuplicatesOfANonUniqueIndexKeepTheOrderOfInsertion) {
    for (const int codigo : {5, 3, 9}) {
        adicionaPosto(*postos, codigo, QStringLiteral("Furnas"));
    }
    adicionaPosto(*postos, 1, QStringLiteral("Emborcação"));
    adicionaPosto(*postos, 4, QStringLiteral("Furnas"));
    postos->setIndex(QStringLiteral("NomeDoAproveitamento"));
    EXPECT_EQ(ateOFim(*postos, "CodigoDoPosto"), (Ints{1, 5, 3, 9, 4}));
    postos->MoveLast();
    EXPECT_EQ(ateOFim(*postos, "CodigoDoPosto", false), (Ints{4, 9, 3, 5, 1}));
    postos->Seek(QStringLiteral("="), {QStringLiteral("Furnas")});
    EXPECT_EQ(ateOFim(*postos, "CodigoDoPosto"), (Ints{5, 3, 9, 4}));
}

TEST_F(Cursor, AfterDeleteTheMovesGoFromTheDeletedRecordsPlace) {
    preencheVazoes();
    vazoes->Seek(QStringLiteral("="), {1, 1998, 3});
    vazoes->Delete();
    EXPECT_EQ(numeroDoErro([&] { vazoes->campo(QStringLiteral("Vazao")); }), 3167);
    EXPECT_EQ(numeroDoErro([&] { vazoes->Bookmark(); }), 3167);
    EXPECT_FALSE(vazoes->Bof() || vazoes->Eof());
    vazoes->MoveNext();
    EXPECT_EQ(inteiro(*vazoes, "Vazao"), 19901);
    vazoes->Delete();
    vazoes->MovePrevious();
    EXPECT_EQ(inteiro(*vazoes, "Vazao"), 19802);

    // Deleting one station's rows as the history store does: seek, then delete and move on.
    vazoes->Seek(QStringLiteral(">="), {1});
    while (!vazoes->Eof() && inteiro(*vazoes, "CodigoDoPosto") == 1) {
        vazoes->Delete();
        vazoes->MoveNext();
    }
    EXPECT_EQ(inteiro(*vazoes, "Vazao"), 29802);
    vazoes->MoveFirst();
    EXPECT_EQ(ateOFim(*vazoes, "Vazao"), (Ints{29802, 29901, 29903}));
    vazoes->MoveLast();
    vazoes->Delete();
    vazoes->MoveNext();
    EXPECT_TRUE(vazoes->Eof());
}

TEST_F(Cursor, ABookmarkBringsBackItsRecordUnderAnyIndex) {
    preencheVazoes();
    vazoes->Seek(QStringLiteral("="), {2, 1998});
    const auto marca = vazoes->Bookmark();
    vazoes->setIndex(QStringLiteral("CodigoDoPosto"));
    vazoes->setBookmark(marca);
    EXPECT_EQ(inteiro(*vazoes, "Vazao"), 29802);
    vazoes->MoveNext();  // in the order of the new index: station 2 in insertion order
    EXPECT_EQ(inteiro(*vazoes, "Vazao"), 29901);
    vazoes->setBookmark(marca);
    vazoes->Delete();
    EXPECT_EQ(numeroDoErro([&] { vazoes->setBookmark(marca); }), 3159);
}

TEST_F(Cursor, MovingDropsAPendingEdit) {
    adicionaPosto(*postos, 1, QStringLiteral("Furnas"));
    postos->AddNew();
    postos->setCampo(QStringLiteral("CodigoDoPosto"), 2);
    postos->setCampo(QStringLiteral("NomeDoAproveitamento"), QStringLiteral("Itaipu"));
    postos->MoveFirst();
    EXPECT_EQ(numeroDoErro([&] { postos->Update(); }), 3020);
    postos->Edit();
    postos->setCampo(QStringLiteral("NomeDoAproveitamento"), QStringLiteral("Outro"));
    postos->setIndex(QStringLiteral("CodigoDoPosto"));
    EXPECT_EQ(numeroDoErro([&] { postos->Update(); }), 3020);
    EXPECT_EQ(contaLinhas(*postos), 1);
    postos->MoveFirst();
    EXPECT_EQ(postos->campo(QStringLiteral("NomeDoAproveitamento")).paraTexto(), "Furnas");
}

TEST_F(Cursor, NullKeysSortFirstAndDescendingKeysWalkDownwards) {
    bd->Append({QStringLiteral("Medidas"),
                {recordstore::CreateField(QStringLiteral("Ano"), recordstore::Tipo::Integer),
                 recordstore::CreateField(QStringLiteral("Ordem"), recordstore::Tipo::Long)},
                {{QStringLiteral("AnoDesc"), false, QStringLiteral("-Ano;+Ordem")},
                 {QStringLiteral("Ano"), false, QStringLiteral("Ano")}}});
    auto rs = bd->OpenRecordset(QStringLiteral("Medidas"));
    int ordem = 0;
    for (const Valor& ano : {Valor(1998), Valor(), Valor(2000), Valor(1998), Valor()}) {
        rs->AddNew();
        rs->setCampo(QStringLiteral("Ano"), ano);
        rs->setCampo(QStringLiteral("Ordem"), ++ordem);
        rs->Update();
    }
    // A move from a record reached by bookmark seeks afresh from its keys, Null ones included
    // (0: past the end).
    const auto vizinhos = [&](bool avanca) {
        std::vector<recordstore::Bookmark> marcas;
        for (rs->MoveFirst(); !rs->Eof(); rs->MoveNext()) {
            marcas.push_back(rs->Bookmark());
        }
        Ints lidos;
        for (const auto marca : marcas) {
            rs->setBookmark(marca);
            avanca ? rs->MoveNext() : rs->MovePrevious();
            lidos.push_back(rs->Bof() || rs->Eof() ? 0 : inteiro(*rs, "Ordem"));
        }
        return lidos;
    };
    rs->setIndex(QStringLiteral("Ano"));
    EXPECT_EQ(ateOFim(*rs, "Ordem"), (Ints{2, 5, 1, 4, 3}));
    rs->MoveLast();
    EXPECT_EQ(ateOFim(*rs, "Ordem", false), (Ints{3, 4, 1, 5, 2}));
    EXPECT_EQ(vizinhos(true), (Ints{5, 1, 4, 3, 0}));
    EXPECT_EQ(vizinhos(false), (Ints{0, 2, 5, 1, 4}));
    rs->setIndex(QStringLiteral("AnoDesc"));
    EXPECT_EQ(ateOFim(*rs, "Ordem"), (Ints{3, 1, 4, 2, 5}));
    rs->MoveLast();
    EXPECT_EQ(ateOFim(*rs, "Ordem", false), (Ints{5, 2, 4, 1, 3}));
    EXPECT_EQ(vizinhos(true), (Ints{1, 4, 2, 5, 0}));
    EXPECT_EQ(vizinhos(false), (Ints{0, 3, 1, 4, 2}));
    rs->Seek(QStringLiteral(">="), {1999});  // "follows" in the index's own, descending, order
    EXPECT_EQ(inteiro(*rs, "Ordem"), 1);
}

TEST_F(Cursor, ACloneWalksOnItsOwnAndSharesBookmarks) {
    adicionaPosto(*postos, 1, QStringLiteral("Tucuruí"));
    adicionaPosto(*postos, 2, QStringLiteral("Furnas"));
    adicionaPosto(*postos, 3, QStringLiteral("Itaipu"));
    postos->setIndex(QStringLiteral("NomeDoAproveitamento"));
    postos->MoveLast();

    auto clone = postos->Clone();
    EXPECT_EQ(clone->Index(), QStringLiteral("NomeDoAproveitamento"));
    EXPECT_EQ(clone->campo(QStringLiteral("CodigoDoPosto")).paraInteiro(), 2) << "a clone starts on the first record";
    clone->MoveNext();
    const recordstore::Bookmark itaipu = clone->Bookmark();
    EXPECT_EQ(postos->campo(QStringLiteral("CodigoDoPosto")).paraInteiro(), 1) << "the original did not move";

    postos->setBookmark(itaipu);
    EXPECT_EQ(postos->campo(QStringLiteral("NomeDoAproveitamento")).paraTexto(), QStringLiteral("Itaipu"));
    adicionaPosto(*postos, 4, QStringLiteral("Angra"));
    clone->MoveFirst();
    EXPECT_EQ(clone->campo(QStringLiteral("CodigoDoPosto")).paraInteiro(), 4) << "the clone sees the original's writes";
}
