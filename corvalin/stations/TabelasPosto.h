#pragma once

// What the sources of PostoBD share: the names of keys and indexes that several of them use, the
// gate to the casoBD, and the restoring of a shared handle's index.

#include "corvalin/casedb/casoBD.h"
#include "platform/recordstore/Recordstore.h"

#include <QString>

#include <initializer_list>
#include <memory>
#include <utility>

namespace corvalin::tabelas {

inline const QString CodigoDoPosto = QStringLiteral("CodigoDoPosto");
inline const QString NomeDoAproveitamento = QStringLiteral("NomeDoAproveitamento");
inline const QString Ano = QStringLiteral("Ano");
inline const QString Semana = QStringLiteral("Semana");
inline const QString Vazao = QStringLiteral("Vazao");
inline const QString LimiteInferior = QStringLiteral("LimiteInferior");
inline const QString LimiteSuperior = QStringLiteral("LimiteSuperior");

// The casoBD given to setCasoBD; before it, error 91, as an unset object reference raised.
casoBD& caso(const std::shared_ptr<casoBD>& bd);

// An integer field read into a member of the field's own width.
template <typename T>
T inteiro(const recordstore::Recordset& tabela, const QString& campo) {
    return static_cast<T>(tabela.campo(campo).paraInteiro());
}

// After a Seek "=" on a key: edits the row found, or adds a row with the key's fields.
void editaOuAdiciona(recordstore::Recordset& tabela,
                     std::initializer_list<std::pair<QString, recordstore::Valor>> chave);

// Puts a handle's index back when the scope ends, an error included: the handles are shared, and
// the next user expects the standing index.
class IndiceRestaurado {
public:
    IndiceRestaurado(recordstore::Recordset& tabela, QString indice);
    ~IndiceRestaurado();
    IndiceRestaurado(const IndiceRestaurado&) = delete;
    IndiceRestaurado& operator=(const IndiceRestaurado&) = delete;

private:
    recordstore::Recordset& mTabela;
    QString mIndice;
};

}  // namespace corvalin::tabelas
