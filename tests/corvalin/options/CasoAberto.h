#pragma once

#include "corvalin/casedb/casoBD.h"
#include "tests/doubles/HostTeste.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <ostream>

// Failures show the text itself rather than its UTF-16 units.
inline void PrintTo(const QString& s, std::ostream* os) {
    *os << '"' << s.toStdString() << '"';
}

namespace teste {

// A new case, created and opened for the life of a test, with the host's doubles installed.
// Stores declared after it end before it closes the case.
class CasoAberto {
public:
    CasoAberto() : bd(std::make_shared<corvalin::casoBD>()) {
        const QString pasta = host.caminho(QStringLiteral("caso"));
        EXPECT_TRUE(bd->Criar(pasta));
        bd->Fechar();
        EXPECT_TRUE(bd->Abrir(CasoTeste(pasta), true, true));
    }
    ~CasoAberto() { bd->Fechar(); }
    CasoAberto(const CasoAberto&) = delete;
    CasoAberto& operator=(const CasoAberto&) = delete;

    // Rows of a table, or of one station in it, counted on a handle of their own so that the
    // shared ones stay where they stand.
    int linhas(const QString& tabela, std::optional<int> codigo = {},
               const QString& campo = QStringLiteral("CodigoDoPosto")) const {
        const auto rs = bd->BancoDeDados().OpenRecordset(tabela);
        int n = 0;
        for (; !rs->Eof(); rs->MoveNext()) {
            n += !codigo || rs->campo(campo).paraInteiro() == *codigo ? 1 : 0;
        }
        return n;
    }

    HostTeste host;
    std::shared_ptr<corvalin::casoBD> bd;
};

}  // namespace teste
