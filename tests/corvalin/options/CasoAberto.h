#pragma once

#include "corvalin/casedb/casoBD.h"
#include "tests/doubles/HostTeste.h"

#include <gtest/gtest.h>

#include <memory>

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

    HostTeste host;
    std::shared_ptr<corvalin::casoBD> bd;
};

}  // namespace teste
