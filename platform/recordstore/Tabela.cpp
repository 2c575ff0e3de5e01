#include "platform/recordstore/Tabela.h"

#include "platform/recordstore/Campos.h"
#include "platform/recordstore/Erros.h"

#include <QStringList>

namespace recordstore {

Tabela::Tabela(std::shared_ptr<Conexao> conexao, const QString& nome)
    : mConexao(std::move(conexao)),
      mMeta(mConexao->tabela(nome)),
      mDono(mConexao->novoDono()),
      mPosicao(mConexao->posicaoDaTabela(mMeta->nome)),
      mEsquema(mConexao->esquema()) {}

Tabela::~Tabela() {
    fecha();
}

Conexao& Tabela::conexao() {
    if (!mAberta || !mConexao->aberta()) {
        throw erroBD(ErroObjetoInvalido);
    }
    if (mEsquema != mConexao->esquema()) {
        mMeta = mConexao->tabela(mMeta->nome);
        mEsquema = mConexao->esquema();
    }
    return *mConexao;
}

void Tabela::fecha() {
    if (mAberta && mConexao->aberta()) {
        mConexao->descartaComandos(mDono);
    }
    mAberta = false;
}

ChaveComando Tabela::chave(TipoComando tipo) const {
    return {mDono, static_cast<int>(tipo)};
}

QString Tabela::sqlSelecao() const {
    QStringList colunas{QStringLiteral("rowid")};
    for (const auto& campo : mMeta->campos) {
        colunas << sql::aspas(campo.Name);
    }
    return QStringLiteral("SELECT %1 FROM %2")
        .arg(colunas.join(QStringLiteral(", ")), sql::aspas(mMeta->nome));
}

void Tabela::leLinha(sqlite3_stmt* instrucao, Linha& linha) const {
    linha.rowid = sql::inteiro(instrucao, 0);
    linha.valores.resize(mMeta->campos.size());
    for (std::size_t i = 0; i < mMeta->campos.size(); ++i) {
        linha.valores[i] = campos::le(mMeta->campos[i], sql::coluna(instrucao, static_cast<int>(i) + 1));
    }
}

std::optional<Linha> Tabela::linhaPorRowid(std::int64_t rowid) {
    sqlite3_stmt* q = conexao().leitura(chave(TipoComando::PorRowid),
                                        [this] { return sqlSelecao() + QStringLiteral(" WHERE rowid = ?"); });
    sql::ligaInteiro(q, 1, rowid);
    std::optional<Linha> linha;
    if (sql::passo(q)) {
        leLinha(q, linha.emplace());
    }
    sql::reinicia(q);
    return linha;
}

bool Tabela::vazia() {
    if (!mVazia || mVersaoVazia != versao()) {
        sqlite3_stmt* q = conexao().leitura(chave(TipoComando::Vazia), [this] {
            return QStringLiteral("SELECT 1 FROM %1 LIMIT 1").arg(sql::aspas(mMeta->nome));
        });
        mVazia = !sql::passo(q);
        sql::reinicia(q);
        mVersaoVazia = versao();
    }
    return *mVazia;
}

}  // namespace recordstore
