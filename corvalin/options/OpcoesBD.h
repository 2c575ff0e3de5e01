#pragma once

#include <memory>

namespace corvalin {

class casoBD;
class Opcoes;

// Moves the options of a case to and from the one row of table Opcoes.
class OpcoesBD {
public:
    OpcoesBD() = default;
    // Balances setCasoBD: the last user of the options table closes it.
    ~OpcoesBD();
    OpcoesBD(const OpcoesBD&) = delete;
    OpcoesBD& operator=(const OpcoesBD&) = delete;

    void setCasoBD(std::shared_ptr<casoBD> bd);
    // A case without options reads as all empty and false.
    void getOpcoes(Opcoes& opcoes) const;
    // Writes the one row (made by the first call), in one transaction.
    void setOpcoes(const Opcoes& opcoes);

private:
    std::shared_ptr<casoBD> mCasoBD;
};

}  // namespace corvalin
