#include "platform/recordstore/Cursor.h"

#include "platform/recordstore/Campos.h"
#include "platform/recordstore/Erros.h"

#include <limits>

namespace recordstore {

Cursor::Cursor(Tabela& tabela) : mTabela(tabela) {
    pInicio(true);
}

void Cursor::setIndice(const QString& nome) {
    const MetaIndice* novo = nome.isEmpty() ? nullptr : mTabela.meta().indice(nome);
    if (!nome.isEmpty() && !novo) {
        throw erroBD(ErroIndiceInexistente, nome);
    }
    if (novo == pIndice()) {
        return;
    }
    mIndice = novo ? novo->def.Name : QString();
    pInicio(true);
}

bool Cursor::bof() {
    return mLugar == Lugar::Antes || (mLugar == Lugar::Depois && mTabela.vazia());
}

bool Cursor::eof() {
    return mLugar == Lugar::Depois || (mLugar == Lugar::Antes && mTabela.vazia());
}

void Cursor::primeiro() {
    pCaminha(true, {}, std::nullopt);
    if (!pPasso()) {
        throw erroBD(ErroSemRegistroAtual);
    }
}

void Cursor::ultimo() {
    pCaminha(false, {}, std::nullopt);
    if (!pPasso()) {
        throw erroBD(ErroSemRegistroAtual);
    }
}

void Cursor::proximo() {
    pMove(true);
}

void Cursor::anterior() {
    pMove(false);
}

bool Cursor::busca(bool igual, const std::vector<Valor>& chave) {
    const MetaIndice* indice = pIndice();
    if (!indice) {
        throw erroBD(ErroSemIndiceAtual);
    }
    if (chave.empty() || chave.size() > indice->colunas.size()) {
        throw erroBD(ErroArgumentoInvalido);
    }
    std::vector<Valor> convertida;
    for (std::size_t i = 0; i < chave.size(); ++i) {
        // A key longer than its text field finds nothing, rather than failing as a write would.
        FieldDef campo = mTabela.meta().campos[static_cast<std::size_t>(indice->colunas[i].campo)];
        campo.Size = std::numeric_limits<int>::max();
        convertida.push_back(campos::converte(campo, chave[i]));
    }
    pCaminha(true, std::move(convertida), std::nullopt, igual);
    if (pPasso()) {
        mCaminhada->soltaIguais();  // MoveNext goes on past the equal keys
        return true;
    }
    mLugar = Lugar::Depois;
    return false;
}

void Cursor::vaiPara(std::int64_t rowid) {
    auto linha = mTabela.linhaPorRowid(rowid);
    if (!linha) {
        throw erroBD(ErroIndicadorInvalido);
    }
    mCaminhada.reset();
    mLinha = std::move(*linha);
    mVersaoLinha = mTabela.versao();
    mLugar = Lugar::Sobre;
}

const Linha& Cursor::atual() {
    pRenova();
    if (mLugar == Lugar::Excluido) {
        throw erroBD(ErroRegistroExcluido);
    }
    if (mLugar != Lugar::Sobre) {
        throw erroBD(ErroSemRegistroAtual);
    }
    return mLinha;
}

void Cursor::excluiu() {
    mCaminhada.reset();
    mLugar = Lugar::Excluido;  // the row's keys stay, to move on from its place
}

const MetaIndice* Cursor::pIndice() const {
    return mIndice.isEmpty() ? nullptr : mTabela.meta().indice(mIndice);
}

std::vector<Valor> Cursor::pChaveDe(const Linha& linha) const {
    std::vector<Valor> chave;
    if (const MetaIndice* indice = pIndice()) {
        for (const auto& coluna : indice->colunas) {
            chave.push_back(linha.valores[static_cast<std::size_t>(coluna.campo)]);
        }
    }
    return chave;
}

void Cursor::pCaminha(bool avanca, std::vector<Valor> chave, std::optional<std::int64_t> rowid,
                      bool soIguais) {
    const MetaIndice* indice = pIndice();
    const int posicao = indice ? static_cast<int>(indice - mTabela.meta().indices.data()) : -1;
    mCaminhada.reset();
    mCaminhada.emplace(mTabela, posicao, indice ? indice->colunas : std::vector<ColunaChave>{}, avanca,
                       std::move(chave), rowid, soIguais);
}

void Cursor::pInicio(bool avanca) {
    pCaminha(avanca, {}, std::nullopt);
    if (!pPasso()) {
        mLugar = avanca ? Lugar::Depois : Lugar::Antes;
    }
}

void Cursor::pMove(bool avanca) {
    if (avanca ? eof() : bof()) {
        throw erroBD(ErroSemRegistroAtual);
    }
    const bool continua = mCaminhada && mCaminhada->avanca() == avanca && mCaminhada->vigente();
    if (!continua) {
        if (mLugar == Lugar::Antes || mLugar == Lugar::Depois) {
            pCaminha(avanca, {}, std::nullopt);
        } else {
            pRenova();
            pCaminha(avanca, pChaveDe(mLinha), mLinha.rowid);
        }
    }
    if (!pPasso()) {
        mLugar = avanca ? Lugar::Depois : Lugar::Antes;
    }
}

bool Cursor::pPasso() {
    if (mCaminhada->proxima(mLinha)) {
        mLugar = Lugar::Sobre;
        mVersaoLinha = mTabela.versao();
        return true;
    }
    mCaminhada.reset();
    return false;
}

void Cursor::pRenova() {
    if (mLugar != Lugar::Sobre || mVersaoLinha == mTabela.versao()) {
        return;
    }
    if (auto linha = mTabela.linhaPorRowid(mLinha.rowid)) {
        mLinha = std::move(*linha);
        mVersaoLinha = mTabela.versao();
    } else {
        mLugar = Lugar::Excluido;  // by another handle
    }
}

}  // namespace recordstore
