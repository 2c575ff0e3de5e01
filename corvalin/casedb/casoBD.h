#pragma once

#include "platform/recordstore/Recordstore.h"

#include <QString>

#include <cstdint>
#include <memory>

namespace halvo {
class caso;
}

namespace corvalin {

// The gate to the database of one case: creates the file, opens it, recognises it as a case of
// this model and upgrades it in place, keeps the table handles that every store shares, counts
// their users, and moves a handle through the navigation of the screens.
class casoBD {
public:
    casoBD();
    ~casoBD();
    casoBD(const casoBD&) = delete;
    casoBD& operator=(const casoBD&) = delete;

    // The shared table handles (error 91 while a handle is not open).
    recordstore::Recordset& TabPostos() const;
    recordstore::Recordset& TabDadosGerais() const;
    recordstore::Recordset& TabDadosGeraisComplemento() const;
    recordstore::Recordset& TabVazoesSemanais() const;
    recordstore::Recordset& TabVazoesPrevistas() const;
    recordstore::Recordset& TabOpcoes() const;
    recordstore::Recordset& TabLimitesPrevisao() const;
    // The open database (error 91 when none is open), for the stores' transactions.
    recordstore::Database& BancoDeDados() const;

    bool Criar(const QString& pasta);
    bool Abrir(const halvo::caso& c, bool silencioso, bool ignorado);
    void Fechar();
    void DadosFecha();
    void setCaso(const halvo::caso& c);

    void TabCasoAbrir();
    void TabCasoFechar();
    void TabOpcoesAbrir();
    void TabOpcoesFechar();
    void TabPostosAbrir();
    void TabPostosFechar();

    // Moves the handle by exactly one of the four flags, in the order of the navigation index,
    // from the record whose key (in the key index) is chave; may change the flags. The handle's
    // index stays what it was. True when it stands on a record.
    bool TabelaNavegacao(recordstore::Recordset& tabela, const QString& indiceNavegacao,
                         const QString& indiceChave, const recordstore::Valor& chave, bool& primeiro,
                         bool& anterior, bool& proximo, bool& ultimo);

private:
    bool pCriaBanco(const QString& caminho);
    bool pValidaBanco();
    bool pTabelaAbre(const QString& tabela);
    void pCriaTabelaCaso();
    void pCriaTabelaOpcoes();
    void pCriaTabelaPostos();
    void pCriaTabelaDadosGerais();
    void pCriaTabelaDadosGeraisComplemento();
    void pCriaTabelaVazoesSemanais();
    void pCriaTabelaVazoesPrevistas();
    void pCriaTabelaLimitesPrevisao();
    std::unique_ptr<recordstore::Recordset> pAbreTabela(const QString& tabela, const QString& indice);

    std::unique_ptr<recordstore::Recordset> mTabPostos;
    std::unique_ptr<recordstore::Recordset> mTabDadosGerais;
    std::unique_ptr<recordstore::Recordset> mTabDadosGeraisComplemento;
    std::unique_ptr<recordstore::Recordset> mTabVazoesSemanais;
    std::unique_ptr<recordstore::Recordset> mTabVazoesPrevistas;
    std::unique_ptr<recordstore::Recordset> mTabOpcoes;
    std::unique_ptr<recordstore::Recordset> mTabLimitesPrevisao;
    std::unique_ptr<recordstore::Database> mBancoDeDados;
    std::unique_ptr<recordstore::Recordset> mTabCaso;
    std::int16_t mContaCaso = 0;
    std::int16_t mContaOpcoes = 0;
    std::int16_t mContaPostos = 0;
};

}  // namespace corvalin
