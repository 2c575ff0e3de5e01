#pragma once

// The table a handle works on: its metadata, kept current with the file's schema, its version,
// and reading rows.

#include "platform/recordstore/Conexao.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace recordstore {

struct Linha {
    std::int64_t rowid = 0;
    std::vector<Valor> valores;  // in the fields' order and types
};

// Statement kinds of a handle, for the statement cache.
enum class TipoComando : int { Caminho, PorRowid, Vazia, Insere, InsereLote, Atualiza, Exclui };

class Tabela {
public:
    Tabela(std::shared_ptr<Conexao> conexao, const QString& nome);  // 3078, 3343
    ~Tabela();
    Tabela(const Tabela&) = delete;
    Tabela& operator=(const Tabela&) = delete;

    // 3420 once the file or the handle is closed; reads the metadata again after a change of schema.
    Conexao& conexao();
    // The open file, for another handle on the same table.
    std::shared_ptr<Conexao> conexaoCompartilhada() {
        conexao();
        return mConexao;
    }
    const MetaTabela& meta() const { return *mMeta; }
    bool aberta() const { return mAberta && mConexao->aberta(); }
    std::uint64_t epoca() const { return mConexao->epoca(); }
    std::uint64_t descartes() const { return mConexao->descartes(); }
    void fecha();

    ChaveComando chave(TipoComando tipo) const;
    std::uint64_t versao() const { return mConexao->versao(mPosicao); }
    void escreveu() { mConexao->escreveu(mPosicao); }

    QString sqlSelecao() const;  // rowid and every field, in that order
    void leLinha(sqlite3_stmt* instrucao, Linha& linha) const;
    std::optional<Linha> linhaPorRowid(std::int64_t rowid);
    bool vazia();

private:
    std::shared_ptr<Conexao> mConexao;
    std::shared_ptr<const MetaTabela> mMeta;
    int mDono = 0;
    int mPosicao = 0;
    std::uint64_t mEsquema = 0;
    bool mAberta = true;
    std::optional<bool> mVazia;
    std::uint64_t mVersaoVazia = 0;
};

}  // namespace recordstore
