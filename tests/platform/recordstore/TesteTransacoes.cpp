#include "Apoio.h"

#include <QFile>

#include <atomic>
#include <chrono>
#include <stdexcept>
#include <thread>

using recordstore::Database;
using recordstore::Transacao;

namespace {

class Transacoes : public BaseDeTeste {
protected:
    void SetUp() override {
        BaseDeTeste::SetUp();
        criaPostos();
        postos = bd->OpenRecordset(QStringLiteral("Postos"));
        postos->setIndex(QStringLiteral("CodigoDoPosto"));
    }

    std::vector<std::int64_t> codigos() {
        std::vector<std::int64_t> lidos;
        if (!(postos->Bof() && postos->Eof())) {
            postos->MoveFirst();
            lidos = ateOFim(*postos, "CodigoDoPosto");
        }
        return lidos;
    }

    std::unique_ptr<recordstore::Recordset> postos;
};

using Codigos = std::vector<std::int64_t>;

}  // namespace

TEST_F(Transacoes, NestedTransactionsCommitOnlyAtTheOutermost) {
    EXPECT_EQ(numeroDoErro([&] { bd->CommitTrans(); }), 3034);
    EXPECT_EQ(numeroDoErro([&] { bd->Rollback(); }), 3034);
    bd->BeginTrans();
    adicionaPosto(*postos, 1, QStringLiteral("Um"));
    bd->BeginTrans();
    adicionaPosto(*postos, 2, QStringLiteral("Dois"));
    bd->BeginTrans();
    adicionaPosto(*postos, 3, QStringLiteral("Três"));
    bd->CommitTrans();
    bd->Rollback();  // takes the inner, committed one along
    EXPECT_EQ(codigos(), Codigos{1});
    bd->BeginTrans();
    adicionaPosto(*postos, 4, QStringLiteral("Quatro"));
    bd->CommitTrans();
    bd->CommitTrans();
    postos.reset();
    bd.reset();
    bd = Database::OpenDatabase(caminho());
    postos = bd->OpenRecordset(QStringLiteral("Postos"));
    postos->setIndex(QStringLiteral("CodigoDoPosto"));
    EXPECT_EQ(codigos(), (Codigos{1, 4}));
}

TEST_F(Transacoes, RollbackRestoresRowsAndDropsPendingEdits) {
    for (const int codigo : {1, 2, 3}) {
        adicionaPosto(*postos, codigo, QStringLiteral("P%1").arg(codigo));
    }
    auto outro = bd->OpenRecordset(QStringLiteral("Postos"));
    outro->MoveLast();
    bd->BeginTrans();
    postos->Seek(QStringLiteral("="), {2});
    postos->Delete();
    postos->MoveNext();
    postos->Edit();
    postos->setCampo(QStringLiteral("NomeDoAproveitamento"), QStringLiteral("Mudou"));
    postos->Update();
    outro->Edit();
    outro->setCampo(QStringLiteral("NomeDoAproveitamento"), QStringLiteral("Pendente"));
    bd->Rollback();
    EXPECT_EQ(numeroDoErro([&] { outro->Update(); }), 3020);
    EXPECT_EQ(postos->campo(QStringLiteral("NomeDoAproveitamento")).paraTexto(), "P3");
    EXPECT_EQ(codigos(), (Codigos{1, 2, 3}));
}

TEST_F(Transacoes, AScopeLeftByAnExceptionRollsBack) {
    EXPECT_THROW(
        {
            Transacao t(*bd);
            adicionaPosto(*postos, 1, QStringLiteral("Um"));
            adicionaPosto(*postos, 2, QStringLiteral("Dois"));
            throw std::runtime_error("falhou no meio");
        },
        std::runtime_error);
    EXPECT_EQ(codigos(), Codigos{});
    {
        Transacao t(*bd);
        adicionaPosto(*postos, 3, QStringLiteral("Três"));
        t.Commit();
    }
    EXPECT_EQ(codigos(), Codigos{3});
    EXPECT_EQ(numeroDoErro([&] { bd->CommitTrans(); }), 3034);  // the scope left nothing open
}

TEST_F(Transacoes, ClosingTheDatabaseInvalidatesItsHandles) {
    adicionaPosto(*postos, 1, QStringLiteral("Um"));
    bd->BeginTrans();
    adicionaPosto(*postos, 2, QStringLiteral("Dois"));
    postos->MoveFirst();
    bd->Close();                                                      // rolls the open transaction back
    EXPECT_FALSE(QFile::exists(caminho() + QStringLiteral("-wal")));  // a closed file can be copied alone
    EXPECT_EQ(numeroDoErro([&] { postos->MoveNext(); }), 3420);
    EXPECT_EQ(numeroDoErro([&] { postos->campo(QStringLiteral("CodigoDoPosto")); }), 3420);
    EXPECT_EQ(numeroDoErro([&] { postos->Close(); }), 3420);
    EXPECT_EQ(numeroDoErro([&] { bd->OpenRecordset(QStringLiteral("Postos")); }), 3420);
    EXPECT_EQ(numeroDoErro([&] { bd->Close(); }), 3420);
    bd.reset();
    postos.reset();  // outliving its database is harmless

    bd = Database::OpenDatabase(caminho());
    postos = bd->OpenRecordset(QStringLiteral("Postos"));
    EXPECT_EQ(contaLinhas(*postos), 1);
    postos->Close();
    EXPECT_EQ(numeroDoErro([&] { postos->MoveFirst(); }), 3420);
}

TEST_F(Transacoes, TwoHandlesOnOneTableSeeEachOthersWrites) {
    for (const int codigo : {10, 20, 30, 40}) {
        adicionaPosto(*postos, codigo, QStringLiteral("P%1").arg(codigo));
    }
    auto outro = bd->OpenRecordset(QStringLiteral("Postos"));
    postos->MoveFirst();
    postos->MoveNext();  // stepping, on 20
    adicionaPosto(*outro, 25, QStringLiteral("P25"));
    postos->MoveNext();
    EXPECT_EQ(inteiro(*postos, "CodigoDoPosto"), 25);

    outro->setIndex(QStringLiteral("CodigoDoPosto"));
    outro->Seek(QStringLiteral("="), {25});
    outro->Edit();
    outro->setCampo(QStringLiteral("NomeDoAproveitamento"), QStringLiteral("Novo nome"));
    outro->Update();
    EXPECT_EQ(postos->campo(QStringLiteral("NomeDoAproveitamento")).paraTexto(), "Novo nome");

    outro->Delete();
    EXPECT_EQ(numeroDoErro([&] { postos->campo(QStringLiteral("CodigoDoPosto")); }), 3167);
    postos->MoveNext();
    EXPECT_EQ(inteiro(*postos, "CodigoDoPosto"), 30);

    // Another connection to the file: its reads may lag a commit by a moment, but a transaction
    // of its own always starts from the latest one.
    auto segundo = Database::OpenDatabase(caminho());
    auto dele = segundo->OpenRecordset(QStringLiteral("Postos"));
    EXPECT_EQ(contaLinhas(*dele), 4);
    {
        Transacao t(*bd);
        adicionaPosto(*outro, 50, QStringLiteral("P50"));
        t.Commit();
    }
    Transacao t(*segundo);
    EXPECT_EQ(contaLinhas(*dele), 5);
}

TEST_F(Transacoes, ASecondWriterWaitsForTheFirstRatherThanFailing) {
    auto segundo = Database::OpenDatabase(caminho());
    bd->BeginTrans();  // takes the write lock at once, before writing anything
    std::atomic<bool> entrou{false};
    int erro = -1;
    std::thread outro([&] {
        erro = numeroDoErro([&] {
            segundo->BeginTrans();
            entrou = true;
            auto rs = segundo->OpenRecordset(QStringLiteral("Postos"));
            adicionaPosto(*rs, 2, QStringLiteral("Dois"));
            segundo->CommitTrans();
        });
    });
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    EXPECT_FALSE(entrou);
    adicionaPosto(*postos, 1, QStringLiteral("Um"));
    bd->CommitTrans();
    outro.join();
    EXPECT_EQ(erro, 0);
    EXPECT_EQ(codigos(), (Codigos{1, 2}));
}
