#include "platform/recordstore/Caminhada.h"

#include "platform/recordstore/Campos.h"

namespace recordstore {

Caminhada::Caminhada(Tabela& tabela, int posicaoIndice, std::vector<ColunaChave> colunas, bool avanca,
                     std::vector<Valor> chave, std::optional<std::int64_t> rowid, bool soIguais)
    : mTabela(tabela),
      mIndice(posicaoIndice),
      mColunas(std::move(colunas)),
      mAvanca(avanca),
      mChave(std::move(chave)),
      mRowid(rowid),
      mNivel(static_cast<int>(mChave.size())),
      mPiso(soIguais ? mNivel : 0),
      mVersao(tabela.versao()) {}

Caminhada::~Caminhada() {
    pFechaNivel();
}

bool Caminhada::vigente() const {
    return mTabela.aberta() && (!mAtual || mTabela.epoca() == mEpoca) && mTabela.versao() == mVersao;
}

bool Caminhada::proxima(Linha& linha) {
    while (mNivel >= mPiso) {
        if (!mAtual && !pAbreNivel()) {
            --mNivel;
            continue;
        }
        if (sql::passo(mAtual)) {
            mTabela.leLinha(mAtual, linha);
            mVersao = mTabela.versao();
            return true;
        }
        pFechaNivel();
        --mNivel;
    }
    return false;
}

bool Caminhada::pAbreNivel() {
    Trecho trecho{mAvanca, mNivel, static_cast<int>(mChave.size()), mRowid.has_value(), 0};
    for (std::size_t i = 0; i < mChave.size(); ++i) {
        trecho.nulos |= (mChave[i].nulo() ? 1U : 0U) << i;
    }
    if (trechos::semLinhas(mColunas, trecho)) {
        return false;
    }
    Conexao& conexao = mTabela.conexao();
    ChaveComando chave = mTabela.chave(TipoComando::Caminho);
    chave.indice = mIndice;
    chave.nivel = trecho.nivel;
    chave.chaves = trecho.chaves;
    chave.variante = trecho.variante();
    mAtual = conexao.leitura(
        chave, [&] { return trechos::sql(mTabela.sqlSelecao(), mTabela.meta(), mColunas, trecho); });
    mEpoca = conexao.epoca();

    const auto& campos = mTabela.meta().campos;
    int parametro = 0;
    const auto liga = [&](std::size_t i) {
        if (!mChave[i].nulo()) {
            const auto& campo = campos[static_cast<std::size_t>(mColunas[i].campo)];
            sql::liga(mAtual, ++parametro, campos::paraSql(campo, mChave[i]));
        }
    };
    for (std::size_t i = 0; i < static_cast<std::size_t>(mNivel); ++i) {
        liga(i);
    }
    if (mNivel < trecho.chaves) {
        liga(static_cast<std::size_t>(mNivel));
    } else if (mRowid) {
        sql::ligaInteiro(mAtual, ++parametro, *mRowid);
    }
    return true;
}

void Caminhada::pFechaNivel() {
    // After a reset of the connection's statements this one may be gone; then it is not touched.
    if (mAtual && mTabela.aberta() && mTabela.epoca() == mEpoca) {
        sql::reinicia(mAtual);
    }
    mAtual = nullptr;
}

}  // namespace recordstore
