#include "Apoio.h"

#include <QFile>

#include <stdexcept>

using recordstore::Transacao;

namespace {

class Transacoes : public BaseDeTeste {
protected:
    void SetUp() override {
        BaseDeTeste::SetUp();
        criaPostos();
        abrePostos();
    }

    void abrePostos() {
        postos = bd->OpenRecordset(u"Postos"_s);
        postos->setIndex(u"CodigoDoPosto"_s);
    }

    Inteiros codigos() { return todos(*postos, "CodigoDoPosto"); }

    std::unique_ptr<Recordset> postos;
};

}  // namespace

TEST_F(Transacoes, NestedTransactionsCommitOnlyAtTheOutermostAndAScopeRollsBackUnlessCommitted) {
    confere<int>({ERRO(bd->CommitTrans(), 3034), ERRO(bd->Rollback(), 3034)});
    bd->BeginTrans();
    adicionaPosto(*postos, 1, u"Um"_s);
    bd->BeginTrans();
    adicionaPosto(*postos, 2, u"Dois"_s);
    bd->BeginTrans();
    adicionaPosto(*postos, 3, u"Três"_s);
    bd->CommitTrans();
    bd->Rollback();  // takes the inner, committed one along
    EXPECT_EQ(codigos(), Inteiros{1});
    bd->BeginTrans();
    adicionaPosto(*postos, 4, u"Quatro"_s);
    bd->CommitTrans();
    bd->CommitTrans();
    postos.reset();
    bd = Database::OpenDatabase(caminho());
    abrePostos();
    EXPECT_EQ(codigos(), (Inteiros{1, 4}));

    // A scope left by an exception rolls back; one that commits leaves nothing open.
    EXPECT_THROW(
        {
            Transacao t(*bd);
            adicionaPosto(*postos, 2, u"Dois"_s);
            throw std::runtime_error("falhou no meio");
        },
        std::runtime_error);
    EXPECT_EQ(codigos(), (Inteiros{1, 4}));
    {
        Transacao t(*bd);
        adicionaPosto(*postos, 3, u"Três"_s);
        t.Commit();
    }
    EXPECT_EQ(codigos(), (Inteiros{1, 3, 4}));
    EXPECT_EQ(numeroDoErro([&] { bd->CommitTrans(); }), 3034);
}

TEST_F(Transacoes, RollbackRestoresRowsAndDropsPendingEdits) {
    for (const int codigo : {1, 2, 3}) {
        adicionaPosto(*postos, codigo, u"P%1"_s.arg(codigo));
    }
    auto outro = bd->OpenRecordset(u"Postos"_s);
    outro->MoveLast();
    bd->BeginTrans();
    postos->Seek(u"="_s, {2});
    postos->Delete();
    postos->MoveNext();
    postos->Edit();
    postos->setCampo(u"NomeDoAproveitamento"_s, u"Mudou"_s);
    postos->Update();
    outro->Edit();
    outro->setCampo(u"NomeDoAproveitamento"_s, u"Pendente"_s);
    bd->Rollback();
    EXPECT_EQ(numeroDoErro([&] { outro->Update(); }), 3020);
    EXPECT_EQ(texto(*postos, "NomeDoAproveitamento"), "P3");
    EXPECT_EQ(codigos(), (Inteiros{1, 2, 3}));
}

TEST_F(Transacoes, ClosingTheDatabaseInvalidatesItsHandles) {
    adicionaPosto(*postos, 1, u"Um"_s);
    bd->BeginTrans();
    adicionaPosto(*postos, 2, u"Dois"_s);
    postos->MoveFirst();
    bd->Close();                                         // rolls the open transaction back
    EXPECT_FALSE(QFile::exists(caminho() + u"-wal"_s));  // a closed file can be copied alone
    confere<int>({ERRO(postos->MoveNext(), 3420), ERRO(postos->campo(u"CodigoDoPosto"_s), 3420),
                  ERRO(postos->Close(), 3420), ERRO(bd->OpenRecordset(u"Postos"_s), 3420),
                  ERRO(bd->Close(), 3420)});
    bd.reset();
    postos.reset();  // outliving its database is harmless

    bd = Database::OpenDatabase(caminho());
    abrePostos();
    EXPECT_EQ(codigos(), Inteiros{1});
    postos->Close();
    EXPECT_EQ(numeroDoErro([&] { postos->MoveFirst(); }), 3420);
}

TEST_F(Transacoes, TwoHandlesOnOneTableSeeEachOthersWrites) {
    for (const int codigo : {10, 20, 30, 40}) {
        adicionaPosto(*postos, codigo, u"P%1"_s.arg(codigo));
    }
    auto outro = bd->OpenRecordset(u"Postos"_s);
    postos->MoveFirst();
    postos->MoveNext();  // stepping, on 20
    adicionaPosto(*outro, 25, u"P25"_s);
    postos->MoveNext();
    EXPECT_EQ(inteiro(*postos, "CodigoDoPosto"), 25);

    outro->setIndex(u"CodigoDoPosto"_s);
    outro->Seek(u"="_s, {25});
    outro->Edit();
    outro->setCampo(u"NomeDoAproveitamento"_s, u"Novo nome"_s);
    outro->Update();
    EXPECT_EQ(texto(*postos, "NomeDoAproveitamento"), "Novo nome");

    outro->Delete();
    EXPECT_EQ(numeroDoErro([&] { postos->campo(u"CodigoDoPosto"_s); }), 3167);
    postos->MoveNext();
    EXPECT_EQ(inteiro(*postos, "CodigoDoPosto"), 30);
}
