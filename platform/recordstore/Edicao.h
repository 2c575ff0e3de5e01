#pragma once

// The edit buffer of a table handle (AddNew, Edit, Update) and its other write, Delete.

#include "platform/recordstore/Tabela.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace recordstore {

class Edicao {
public:
    explicit Edicao(Tabela& tabela) : mTabela(tabela) {}

    // A pending AddNew or Edit; a rollback or a change of schema drops it.
    bool pendente() const;

    void adiciona();                 // the fields' defaults
    void edita(const Linha& atual);  // the current record's values
    const Valor& valor(int campo) const;
    void setValor(int campo, const Valor& valor);  // 3020, and the field rules
    void grava();                                  // 3020, 3315, 3022, 3167
    void cancela();                                // 3020 when nothing is pending
    void descarta() { mAtiva = false; }

    void exclui(std::int64_t rowid);
    void insereLinhas(const std::vector<std::vector<Valor>>& linhas);  // 3001, the field rules, 3022

private:
    void pInicia(bool nova, std::int64_t rowid, std::vector<Valor> valores);

    Tabela& mTabela;
    bool mAtiva = false;
    bool mNova = false;
    std::int64_t mRowid = 0;
    std::vector<Valor> mValores;
    std::uint64_t mDescartes = 0;
};

}  // namespace recordstore
