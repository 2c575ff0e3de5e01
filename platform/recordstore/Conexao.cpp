#include "platform/recordstore/Conexao.h"

#include "platform/recordstore/Colacao.h"
#include "platform/recordstore/Erros.h"

#include <sqlite3.h>

namespace recordstore {

namespace {

// A second process waits this long for the write lock rather than failing.
constexpr int esperaPorBloqueioMs = 5 * 60 * 1000;

// How late a read may see what another process committed.
constexpr std::chrono::milliseconds validadeDaLeitura{100};

QString pontoDeSalvamento(int profundidade) {
    return QStringLiteral("nivel%1").arg(profundidade);
}

}  // namespace

std::shared_ptr<Conexao> Conexao::abre(const QString& caminho, bool cria) {
    sqlite3* bd = nullptr;
    // One thread uses a connection: SQLite's own locking of every call is not needed.
    const int modo = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | (cria ? SQLITE_OPEN_CREATE : 0);
    const int rc = sqlite3_open_v2(caminho.toUtf8().constData(), &bd, modo, nullptr);
    std::shared_ptr<Conexao> conexao(new Conexao(bd, caminho));
    if (rc != SQLITE_OK) {
        throw erroDoSqlite(rc, caminho);
    }
    sqlite3_extended_result_codes(bd, 1);
    sqlite3_busy_timeout(bd, esperaPorBloqueioMs);
    registraColacaoGeral(bd);
    // A file that is not a database refuses these too; it is reported at the first table opened.
    // Checkpoints every 40 MB of log rather than every 4 MB: an import of many stations then
    // syncs the file a tenth as often, and the log stays small beside a case.
    const int pragmas = sqlite3_exec(bd,
                                     "PRAGMA journal_mode=WAL; PRAGMA synchronous=NORMAL; "
                                     "PRAGMA cache_size=-32768; PRAGMA wal_autocheckpoint=10000;",
                                     nullptr, nullptr, nullptr);
    if (pragmas != SQLITE_OK && (pragmas & 0xff) != SQLITE_NOTADB) {
        sql::falha(bd, pragmas);
    }
    return conexao;
}

Conexao::Conexao(sqlite3* bd, const QString& caminho) : mBd(bd), mCaminho(caminho) {}

Conexao::~Conexao() {
    fecha();
}

sqlite3* Conexao::bd() const {
    if (!mBd) {
        throw erroBD(ErroObjetoInvalido);
    }
    return mBd;
}

void Conexao::fecha() {
    if (!mBd) {
        return;
    }
    // Handles left open hold no statement of their own: all of them live in the cache.
    mComandos.limpa();
    mAncora = nullptr;
    sqlite3_close_v2(mBd);  // an open transaction is rolled back
    mBd = nullptr;
    mProfundidade = 0;
}

std::shared_ptr<const MetaTabela> Conexao::tabela(const QString& nome) {
    auto meta = mCatalogo.tabela(bd(), nome);
    if (!meta) {
        throw erroBD(ErroTabelaInexistente, nome);
    }
    return meta;
}

bool Conexao::existeTabela(const QString& nome) {
    return mCatalogo.tabela(bd(), nome) != nullptr;
}

std::vector<QString> Conexao::nomesDasTabelas() const {
    return mCatalogo.nomes(bd());
}

int Conexao::posicaoDaTabela(const QString& nome) {
    const QString chave = nome.toLower();
    if (const auto it = mPosicoes.constFind(chave); it != mPosicoes.constEnd()) {
        return *it;
    }
    mVersoes.push_back(0);
    const int posicao = static_cast<int>(mVersoes.size()) - 1;
    mPosicoes.insert(chave, posicao);
    return posicao;
}

void Conexao::pMantemLeitura() {
    const auto agora = std::chrono::steady_clock::now();
    if (mProfundidade > 0 || (mAncora && agora - mInicioAncora < validadeDaLeitura)) {
        return;
    }
    if (mAncora) {
        sql::reinicia(mAncora);
    }
    mAncora = comando(ChaveComando{}, [] { return QStringLiteral("SELECT 1 FROM sqlite_schema"); });
    mInicioAncora = agora;
    if (!sql::passo(mAncora)) {
        mAncora = nullptr;  // an empty file: nothing to hold
    }
}

void Conexao::antesDeEscrever() {
    if (mProfundidade == 0) {
        pLiberaLeitores();
    }
}

void Conexao::antesDeMudarEsquema() {
    bd();
    pInvalida();
}

void Conexao::iniciaTransacao() {
    sqlite3* b = bd();
    if (mProfundidade == 0) {
        pLiberaLeitores();  // the write lock must come with a fresh snapshot
        sql::executa(b, QStringLiteral("BEGIN IMMEDIATE"));
    } else {
        sql::executa(b, QStringLiteral("SAVEPOINT ") + pontoDeSalvamento(mProfundidade + 1));
    }
    ++mProfundidade;
}

void Conexao::confirmaTransacao() {
    sqlite3* b = bd();
    if (mProfundidade == 0) {
        throw erroBD(ErroSemTransacao);
    }
    sql::executa(b, mProfundidade == 1 ? QStringLiteral("COMMIT")
                                       : QStringLiteral("RELEASE ") + pontoDeSalvamento(mProfundidade));
    --mProfundidade;
}

void Conexao::reverteTransacao() {
    sqlite3* b = bd();
    if (mProfundidade == 0) {
        throw erroBD(ErroSemTransacao);
    }
    // A rollback may undo rows and schema alike: everything read before it goes.
    pInvalida();
    if (mProfundidade == 1) {
        sql::executa(b, QStringLiteral("ROLLBACK"));
    } else {
        sql::executa(b, QStringLiteral("ROLLBACK TO ") + pontoDeSalvamento(mProfundidade));
        sql::executa(b, QStringLiteral("RELEASE ") + pontoDeSalvamento(mProfundidade));
    }
    --mProfundidade;
}

void Conexao::pLiberaLeitores() {
    for (sqlite3_stmt* s = sqlite3_next_stmt(mBd, nullptr); s; s = sqlite3_next_stmt(mBd, s)) {
        if (sqlite3_stmt_busy(s)) {
            sqlite3_reset(s);
        }
    }
    mAncora = nullptr;
    ++mEpoca;
}

void Conexao::pInvalida() {
    pLiberaLeitores();
    mComandos.limpa();
    mCatalogo.esquece();
    ++mGeral;
    ++mEsquema;
    ++mDescartes;
}

}  // namespace recordstore
