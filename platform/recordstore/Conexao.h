#pragma once

// The open file, shared by the database object and every handle opened on it. Besides the SQLite
// connection it keeps the statements and the metadata for reuse, the transaction depth, and the
// counters by which a handle learns that what it holds is out of date.

#include "platform/recordstore/CacheComandos.h"
#include "platform/recordstore/Catalogo.h"

#include <QHash>
#include <QString>

#include <chrono>
#include <cstdint>
#include <memory>
#include <vector>

struct sqlite3;

namespace recordstore {

struct Conexao {
public:
    // Opens (or creates) the file with the settings every connection needs: WAL journal, normal
    // synchronisation, a long busy timeout and the collation GERAL.
    static std::shared_ptr<Conexao> abre(const QString& caminho, bool cria);
    ~Conexao();
    Conexao(const Conexao&) = delete;
    Conexao& operator=(const Conexao&) = delete;

    const QString& caminho() const { return mCaminho; }
    bool aberta() const { return mBd != nullptr; }
    sqlite3* bd() const;  // 3420 once closed
    void fecha();

    template <class GeraSql>
    sqlite3_stmt* comando(const ChaveComando& chave, GeraSql&& sql) {
        return mComandos.obtem(bd(), chave, sql);
    }
    // A statement that reads. Outside a transaction, reads share one snapshot for a moment:
    // beginning a read transaction takes file locks, which would cost more than a Seek.
    template <class GeraSql>
    sqlite3_stmt* leitura(const ChaveComando& chave, GeraSql&& sql) {
        pMantemLeitura();
        return comando(chave, sql);
    }
    int novoDono() { return ++mDonos; }
    void descartaComandos(int dono) { mComandos.descarta(dono); }

    std::shared_ptr<const MetaTabela> tabela(const QString& nome);  // 3078 when absent
    bool existeTabela(const QString& nome);
    std::vector<QString> nomesDasTabelas() const;

    // Versions: a table's grows with every write to it, and all grow at a change of schema or a
    // rollback; a cached row or an open walk is good while the version it was read at holds.
    int posicaoDaTabela(const QString& nome);
    std::uint64_t versao(int posicao) const { return mGeral + mVersoes[static_cast<std::size_t>(posicao)]; }
    void escreveu(int posicao) { ++mVersoes[static_cast<std::size_t>(posicao)]; }
    // Grows whenever the connection resets its statements: a walk must not step one after that.
    std::uint64_t epoca() const { return mEpoca; }
    // Grows at a change of schema: metadata must be read again.
    std::uint64_t esquema() const { return mEsquema; }
    // Grows at a change of schema or a rollback: pending edit buffers are dropped.
    std::uint64_t descartes() const { return mDescartes; }

    // Called before every write. Outside a transaction, readers left open would pin an old
    // snapshot and make the write fail at once when another process has written since.
    void antesDeEscrever();
    // Called before DDL: SQLite refuses schema changes under active readers, and every cache
    // built on the old schema goes.
    void antesDeMudarEsquema();

    void iniciaTransacao();
    void confirmaTransacao();
    void reverteTransacao();

private:
    Conexao(sqlite3* bd, const QString& caminho);
    void pMantemLeitura();
    void pLiberaLeitores();
    void pInvalida();

    sqlite3* mBd = nullptr;
    QString mCaminho;
    CacheComandos mComandos;
    Catalogo mCatalogo;
    QHash<QString, int> mPosicoes;
    std::vector<std::uint64_t> mVersoes;
    std::uint64_t mGeral = 0;
    std::uint64_t mEpoca = 0;
    std::uint64_t mEsquema = 0;
    std::uint64_t mDescartes = 0;
    int mDonos = 0;
    int mProfundidade = 0;
    sqlite3_stmt* mAncora = nullptr;  // a pending read that holds the snapshot; lives in the cache
    std::chrono::steady_clock::time_point mInicioAncora;
};

}  // namespace recordstore
