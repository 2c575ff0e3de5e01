#pragma once

// The current index and current record of a table handle, and the moves between records, kept
// as the old engine kept them.

#include "platform/recordstore/Caminhada.h"
#include "platform/recordstore/Tabela.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace recordstore {

class Cursor {
public:
    explicit Cursor(Tabela& tabela);  // on the first record, if there is one

    const QString& indice() const { return mIndice; }
    void setIndice(const QString& nome);  // 3800; the first record becomes current

    bool bof();
    bool eof();
    void primeiro();
    void ultimo();
    void proximo();
    void anterior();

    // Seek "=" (igual) or ">=" over the leading key fields of the current index.
    bool busca(bool igual, const std::vector<Valor>& chave);
    void vaiPara(std::int64_t rowid);  // 3159

    // The current record, read again if its table changed: 3021 without one, 3167 once deleted.
    const Linha& atual();
    void excluiu();  // after this handle deleted the current record

private:
    enum class Lugar { Antes, Depois, Sobre, Excluido };

    const MetaIndice* pIndice() const;
    std::vector<Valor> pChaveDe(const Linha& linha) const;
    void pCaminha(bool avanca, std::vector<Valor> chave, std::optional<std::int64_t> rowid,
                  bool soIguais = false);
    void pInicio(bool avanca);
    void pMove(bool avanca);
    bool pPasso();
    void pRenova();

    Tabela& mTabela;
    QString mIndice;
    Lugar mLugar = Lugar::Depois;
    Linha mLinha;
    std::uint64_t mVersaoLinha = 0;
    std::optional<Caminhada> mCaminhada;
};

}  // namespace recordstore
