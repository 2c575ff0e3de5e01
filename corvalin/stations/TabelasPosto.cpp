#include "corvalin/stations/TabelasPosto.h"

#include "platform/runtime/ErroVB.h"

#include <utility>

namespace corvalin::tabelas {

casoBD& caso(const std::shared_ptr<casoBD>& bd) {
    if (!bd) {
        throw plataforma::ErroVB::padrao(plataforma::ErroObjetoNaoDefinido);
    }
    return *bd;
}

void editaOuAdiciona(recordstore::Recordset& tabela,
                     std::initializer_list<std::pair<QString, recordstore::Valor>> chave) {
    if (!tabela.NoMatch()) {
        tabela.Edit();
        return;
    }
    tabela.AddNew();
    for (const auto& [campo, valor] : chave) {
        tabela.setCampo(campo, valor);
    }
}

IndiceRestaurado::IndiceRestaurado(recordstore::Recordset& tabela, QString indice)
    : mTabela(tabela), mIndice(std::move(indice)) {}

IndiceRestaurado::~IndiceRestaurado() {
    try {
        if (mTabela.Index() != mIndice) {
            mTabela.setIndex(mIndice);
        }
    } catch (const plataforma::ErroVB&) {
        // Only a handle that is no longer usable fails here; the error that ended the scope, if
        // any, is the one worth reporting.
    }
}

}  // namespace corvalin::tabelas
