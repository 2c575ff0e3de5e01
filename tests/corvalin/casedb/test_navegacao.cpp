#include "corvalin/casedb/casoBD.h"
#include "tests/doubles/HostTeste.h"

#include <gtest/gtest.h>

namespace {

using corvalin::casoBD;
using recordstore::Recordset;

enum class Passo { Primeiro, Anterior, Proximo, Ultimo };

// Stations in code order whose names run in another order, so that the two indexes differ.
class NavegacaoTeste : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(bd.Criar(host.caminho(QStringLiteral("caso"))));
        bd.Fechar();
        ASSERT_TRUE(bd.Abrir(teste::CasoTeste(host.caminho(QStringLiteral("caso"))), false, true));
        bd.TabPostosAbrir();
    }
    void TearDown() override {
        bd.TabPostosFechar();
        bd.Fechar();
    }

    void adiciona(int codigo, const char* nome) {
        Recordset& postos = bd.TabPostos();
        postos.AddNew();
        postos.setCampo(QStringLiteral("CodigoDoPosto"), codigo);
        postos.setCampo(QStringLiteral("NomeDoAproveitamento"), QString::fromUtf8(nome));
        postos.Update();
    }

    // Moves from the station of code chave and answers the code it stands on, 0 when on none.
    int passo(Passo p, int chave) {
        bool primeiro = p == Passo::Primeiro;
        bool anterior = p == Passo::Anterior;
        bool proximo = p == Passo::Proximo;
        bool ultimo = p == Passo::Ultimo;
        Recordset& postos = bd.TabPostos();
        const bool achou =
            bd.TabelaNavegacao(postos, QStringLiteral("NomeDoAproveitamento"), QStringLiteral("CodigoDoPosto"), chave,
                               primeiro, anterior, proximo, ultimo);
        return achou ? static_cast<int>(postos.campo(QStringLiteral("CodigoDoPosto")).paraInteiro()) : 0;
    }

    teste::HostTeste host;
    casoBD bd;
};

TEST_F(NavegacaoTeste, TabelaVaziaNaoAcha) {
    for (const Passo p : {Passo::Primeiro, Passo::Anterior, Passo::Proximo, Passo::Ultimo}) {
        EXPECT_EQ(passo(p, 1), 0);
    }
}

TEST_F(NavegacaoTeste, AndaNaOrdemDosNomesEParaNasPontas) {
    adiciona(1, "Tucuruí");
    adiciona(2, "furnas");
    adiciona(3, "Itaipu");
    adiciona(4, "Emborcação");
    // Name order: Emborcação (4), furnas (2), Itaipu (3), Tucuruí (1).
    EXPECT_EQ(passo(Passo::Primeiro, 0), 4);
    EXPECT_EQ(passo(Passo::Proximo, 4), 2);
    EXPECT_EQ(passo(Passo::Proximo, 2), 3);
    EXPECT_EQ(passo(Passo::Proximo, 3), 1);
    EXPECT_EQ(passo(Passo::Proximo, 1), 1) << "next on the last stays on the last";
    EXPECT_EQ(passo(Passo::Anterior, 4), 4) << "previous on the first stays on the first";
    EXPECT_EQ(passo(Passo::Anterior, 3), 2);
    EXPECT_EQ(passo(Passo::Ultimo, 0), 1);
    EXPECT_EQ(bd.TabPostos().Index(), QStringLiteral("NomeDoAproveitamento"));
}

TEST_F(NavegacaoTeste, ChaveQueSumiuVoltaAoPrimeiroEOIndiceDoChamadorFica) {
    adiciona(10, "B");
    adiciona(20, "A");
    Recordset& postos = bd.TabPostos();
    postos.setIndex(QStringLiteral("CodigoDoPosto"));
    EXPECT_EQ(passo(Passo::Proximo, 99), 20) << "a vanished station makes the step start from the first";
    EXPECT_EQ(postos.Index(), QStringLiteral("CodigoDoPosto")) << "the caller's index is kept";
    EXPECT_EQ(postos.campo(QStringLiteral("CodigoDoPosto")).paraInteiro(), 20)
        << "on the record found, under the caller's index";
    EXPECT_EQ(passo(Passo::Anterior, 10), 20);
    EXPECT_EQ(passo(Passo::Proximo, 20), 10);
}

}  // namespace
