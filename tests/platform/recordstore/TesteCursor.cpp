#include "Apoio.h"

namespace {

class Cursor : public BaseDeTeste {
protected:
    void SetUp() override {
        BaseDeTeste::SetUp();
        criaPostos();
        criaVazoes();
        postos = bd->OpenRecordset(u"Postos"_s);
        vazoes = bd->OpenRecordset(u"VazoesSemanais"_s);
    }

    // Station 1: 1998 weeks 1-3, 1999 weeks 1-2; station 2: 1998 week 2, 1999 weeks 1 and 3; written
    // out of key order, so that physical order and index order differ. The flow spells the key.
    void preencheVazoes() {
        for (const int vazao : {29903, 19801, 29802, 19902, 19803, 29901, 19802, 19901}) {
            adicionaVazao(*vazoes, vazao / 10000, 1900 + vazao / 100 % 100, vazao % 100, vazao);
        }
        vazoes->setIndex(u"CodigoDoPostoAnoSemana"_s);
    }

    std::unique_ptr<Recordset> postos;
    std::unique_ptr<Recordset> vazoes;
};

}  // namespace

TEST_F(Cursor, AnEmptyTableStandsAtBothEndsAndRefusesEveryMove) {
    EXPECT_TRUE(postos->Bof() && postos->Eof());
    confere<int>({ERRO(postos->MoveFirst(), 3021), ERRO(postos->MoveLast(), 3021),
                  ERRO(postos->MoveNext(), 3021), ERRO(postos->MovePrevious(), 3021),
                  ERRO(postos->campo(u"CodigoDoPosto"_s), 3021), ERRO(postos->Bookmark(), 3021),
                  ERRO(postos->Edit(), 3021), ERRO(postos->Delete(), 3021)});
    postos->setIndex(u"CodigoDoPosto"_s);
    postos->Seek(u"="_s, {1});
    EXPECT_TRUE(postos->NoMatch() && postos->Eof());

    // The first record added leaves the handle past the end.
    adicionaPosto(*postos, 7, u"Furnas"_s);
    EXPECT_TRUE(!postos->Bof() && postos->Eof());
    postos->MovePrevious();
    EXPECT_EQ(inteiro(*postos, "CodigoDoPosto"), 7);
    EXPECT_FALSE(postos->Eof());
}

TEST_F(Cursor, AddNewKeepsTheFormerCurrentRecordAndEditTheEditedOne) {
    postos->setIndex(u"CodigoDoPosto"_s);
    for (const int codigo : {10, 20, 30}) {
        adicionaPosto(*postos, codigo, u"P%1"_s.arg(codigo));
    }
    postos->Seek(u"="_s, {20});
    adicionaPosto(*postos, 15, u"P15"_s);
    adicionaPosto(*postos, 25, u"P25"_s);
    EXPECT_EQ(inteiro(*postos, "CodigoDoPosto"), 20);
    postos->MoveNext();
    EXPECT_EQ(inteiro(*postos, "CodigoDoPosto"), 25);  // the new records take their place in the order
    postos->MovePrevious();
    postos->MovePrevious();
    EXPECT_EQ(inteiro(*postos, "CodigoDoPosto"), 15);

    postos->Edit();
    postos->setCampo(u"CodigoDoPosto"_s, 35);
    postos->Update();
    EXPECT_EQ(inteiro(*postos, "CodigoDoPosto"), 35);  // the edited record stays current, at its new place
    postos->MovePrevious();
    EXPECT_EQ(inteiro(*postos, "CodigoDoPosto"), 30);
}

TEST_F(Cursor, WalksFollowTheCurrentIndexBothWaysAndStopPastEitherEnd) {
    preencheVazoes();
    const Inteiros emOrdem{19801, 19802, 19803, 19901, 19902, 29802, 29901, 29903};
    EXPECT_EQ(todos(*vazoes, "Vazao"), emOrdem);
    EXPECT_TRUE(vazoes->Eof() && !vazoes->Bof());
    EXPECT_EQ(numeroDoErro([&] { vazoes->MoveNext(); }), 3021);
    vazoes->MoveLast();
    EXPECT_EQ(ateOFim(*vazoes, "Vazao", false), Inteiros(emOrdem.rbegin(), emOrdem.rend()));
    EXPECT_TRUE(vazoes->Bof() && !vazoes->Eof());
    confere<int>({ERRO(vazoes->MovePrevious(), 3021), ERRO(vazoes->campo(u"Ano"_s), 3021)});
    vazoes->MoveNext();
    EXPECT_EQ(inteiro(*vazoes, "Vazao"), 19801);

    // Turning back in the middle of a walk, or from past the end.
    vazoes->MoveNext();
    vazoes->MoveNext();
    vazoes->MovePrevious();
    EXPECT_EQ(inteiro(*vazoes, "Vazao"), 19802);
    vazoes->MoveLast();
    vazoes->MoveNext();
    vazoes->MovePrevious();
    EXPECT_EQ(inteiro(*vazoes, "Vazao"), 29903);

    vazoes->setIndex({});
    EXPECT_EQ(todos(*vazoes, "Vazao"), (Inteiros{29903, 19801, 29802, 19902, 19803, 29901, 19802, 19901}));
}

TEST_F(Cursor, AnotherIndexMakesItsFirstRecordCurrent) {
    for (const auto& [codigo, nome] : {std::pair{3, "Itaipu"}, {1, "Tucurui"}, {2, "Balbina"}}) {
        adicionaPosto(*postos, codigo, QString::fromUtf8(nome));
    }
    EXPECT_EQ(postos->Index(), "");
    postos->MoveLast();
    postos->setIndex(u"nomedoaproveitamento"_s);  // names ignore case
    EXPECT_EQ(postos->Index(), "NomeDoAproveitamento");
    EXPECT_EQ(inteiro(*postos, "CodigoDoPosto"), 2);
    postos->MoveNext();
    postos->setIndex(u"CodigoDoPosto"_s);
    EXPECT_EQ(inteiro(*postos, "CodigoDoPosto"), 1);
    EXPECT_EQ(numeroDoErro([&] { postos->setIndex(u"Nome"_s); }), 3800);
    EXPECT_EQ(postos->Index(), "CodigoDoPosto");
    postos->setIndex({});
    EXPECT_EQ(numeroDoErro([&] { postos->Seek(u"="_s, {1}); }), 3019);
}

TEST_F(Cursor, SeekFindsTheFirstRecordOverAPrefixOfTheKey) {
    preencheVazoes();
    // The flow found, -1 for no match (the handle then stands past the end).
    const auto seek = [&](const char* comparacao, std::initializer_list<Valor> chave) -> std::int64_t {
        vazoes->Seek(QString::fromLatin1(comparacao), chave);
        EXPECT_EQ(vazoes->NoMatch(), vazoes->Eof());
        return vazoes->NoMatch() ? -1 : inteiro(*vazoes, "Vazao");
    };
    confere<std::int64_t>({CASO(seek("=", {2}), 29802), CASO(seek("=", {1, 1999}), 19901),
                           CASO(seek("=", {2, 1999, 3}), 29903), CASO(seek(">=", {1, 1998, 4}), 19901),
                           CASO(seek(">=", {1, 2000}), 29802), CASO(seek(">=", {0}), 19801),
                           CASO(seek("=", {2, 1999, 2}), -1), CASO(seek(">=", {2, 1999, 4}), -1)});
    confere<int>({ERRO(seek("=", {1, 1998, 1, 1}), 3001), ERRO(seek("<", {1}), 3001)});

    // From a match the walk goes on past the equal keys, and back into the station before.
    seek("=", {1, 1999});
    EXPECT_EQ(ateOFim(*vazoes, "Vazao"), (Inteiros{19901, 19902, 29802, 29901, 29903}));
    seek("=", {2});
    EXPECT_EQ(ateOFim(*vazoes, "Vazao", false), (Inteiros{29802, 19902, 19901, 19803, 19802, 19801}));
}

TEST_F(Cursor, TextSortsAndSeeksIgnoringCaseButNotAccentsAndTiesKeepTheOrderOfInsertion) {
    int codigo = 0;
    for (const char* nome :
         {"São Simão", "furnas", "Sao Simao", "Água Vermelha", "FURNAS", "Agua Limpa", "Balbina", "furnas"}) {
        adicionaPosto(*postos, ++codigo, QString::fromUtf8(nome));
    }
    postos->setIndex(u"NomeDoAproveitamento"_s);
    const Inteiros emOrdem{6, 4, 7, 2, 5, 8, 3, 1};  // an accent sorts after its plain letter
    EXPECT_EQ(todos(*postos, "CodigoDoPosto"), emOrdem);
    postos->MoveLast();
    EXPECT_EQ(ateOFim(*postos, "CodigoDoPosto", false), Inteiros(emOrdem.rbegin(), emOrdem.rend()));

    const auto seek = [&](const char* comparacao, const char* nome) -> std::int64_t {
        postos->Seek(QString::fromLatin1(comparacao), {QString::fromUtf8(nome)});
        return postos->NoMatch() ? -1 : inteiro(*postos, "CodigoDoPosto");
    };
    confere<std::int64_t>({CASO(seek("=", "SÃO SIMÃO"), 1), CASO(seek("=", "Agua Vermelha"), -1),
                           CASO(seek(">=", "agua m"), 4), CASO(seek(">=", "sao simao"), 3),
                           CASO(seek("=", std::string(80, 'x').c_str()), -1)});  // longer than the field
    seek("=", "Furnas");
    EXPECT_EQ(ateOFim(*postos, "CodigoDoPosto"), (Inteiros{2, 5, 8, 3, 1}));
}

TEST_F(Cursor, AUniqueTextKeyRefusesTheSameTextInAnotherCase) {
    bd->Append({u"Siglas"_s, {CreateField(u"Sigla"_s, Tipo::Texto, 10)}, {{u"Sigla"_s, true, u"Sigla"_s}}});
    auto siglas = bd->OpenRecordset(u"Siglas"_s);
    adiciona(*siglas, {{"Sigla", u"São"_s}});
    adiciona(*siglas, {{"Sigla", u"Sao"_s}});  // another accent is another text
    EXPECT_EQ(numeroDoErro([&] { adiciona(*siglas, {{"Sigla", u"SÃO"_s}}); }), 3022);
}

TEST_F(Cursor, AfterDeleteTheMovesGoFromTheDeletedRecordsPlace) {
    preencheVazoes();
    vazoes->Seek(u"="_s, {1, 1998, 3});
    vazoes->Delete();
    confere<int>({ERRO(vazoes->campo(u"Vazao"_s), 3167), ERRO(vazoes->Bookmark(), 3167)});
    EXPECT_FALSE(vazoes->Bof() || vazoes->Eof());
    vazoes->MoveNext();
    EXPECT_EQ(inteiro(*vazoes, "Vazao"), 19901);
    vazoes->Delete();
    vazoes->MovePrevious();
    EXPECT_EQ(inteiro(*vazoes, "Vazao"), 19802);

    // Deleting one station's rows as the history store does: seek, then delete and move on.
    vazoes->Seek(u">="_s, {1});
    while (!vazoes->Eof() && inteiro(*vazoes, "CodigoDoPosto") == 1) {
        vazoes->Delete();
        vazoes->MoveNext();
    }
    EXPECT_EQ(inteiro(*vazoes, "Vazao"), 29802);
    EXPECT_EQ(todos(*vazoes, "Vazao"), (Inteiros{29802, 29901, 29903}));
    vazoes->MoveLast();
    vazoes->Delete();
    vazoes->MoveNext();
    EXPECT_TRUE(vazoes->Eof());
}

TEST_F(Cursor, ABookmarkBringsBackItsRecordUnderAnyIndex) {
    preencheVazoes();
    vazoes->Seek(u"="_s, {2, 1998});
    const auto marca = vazoes->Bookmark();
    vazoes->setIndex(u"CodigoDoPosto"_s);
    vazoes->setBookmark(marca);
    EXPECT_EQ(inteiro(*vazoes, "Vazao"), 29802);
    vazoes->MoveNext();  // in the order of the new index: station 2 in insertion order
    EXPECT_EQ(inteiro(*vazoes, "Vazao"), 29901);
    vazoes->setBookmark(marca);
    vazoes->Delete();
    EXPECT_EQ(numeroDoErro([&] { vazoes->setBookmark(marca); }), 3159);
}

TEST_F(Cursor, UpdateNeedsAnAddNewOrEditThatNoMoveOrCancelDropped) {
    confere<int>({ERRO(postos->Update(), 3020), ERRO(postos->setCampo(u"NomeDoAproveitamento"_s, "a"), 3020),
                  ERRO(postos->CancelUpdate(), 3020)});
    adicionaPosto(*postos, 1, u"Furnas"_s);
    postos->AddNew();
    postos->setCampo(u"CodigoDoPosto"_s, 2);
    postos->setCampo(u"NomeDoAproveitamento"_s, u"Itaipu"_s);
    postos->MoveFirst();
    EXPECT_EQ(numeroDoErro([&] { postos->Update(); }), 3020);
    postos->Edit();
    postos->setCampo(u"NomeDoAproveitamento"_s, u"Outro"_s);
    postos->setIndex(u"CodigoDoPosto"_s);
    EXPECT_EQ(numeroDoErro([&] { postos->Update(); }), 3020);
    postos->AddNew();
    postos->setCampo(u"CodigoDoPosto"_s, 3);
    postos->CancelUpdate();
    EXPECT_EQ(numeroDoErro([&] { postos->Update(); }), 3020);
    EXPECT_EQ(todos(*postos, "CodigoDoPosto"), Inteiros{1});
    postos->MoveFirst();
    EXPECT_EQ(texto(*postos, "NomeDoAproveitamento"), "Furnas");
}
