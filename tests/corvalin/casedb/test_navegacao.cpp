#include "tests/corvalin/options/CasoAberto.h"

namespace {

using namespace Qt::StringLiterals;

enum Passo { Primeiro, Anterior, Proximo, Ultimo };

// Steps in name order from the station of code de, whatever the caller's index, which stays:
// Emborcação (4), furnas (2), Itaipu (3), Tucuruí (1).
TEST(NavegacaoTeste, AndaNaOrdemDosNomesEParaNasPontas) {
    teste::CasoAberto caso;
    caso.bd->TabPostosAbrir();
    recordstore::Recordset& postos = caso.bd->TabPostos();
    const auto passo = [&](Passo p, int de) {
        bool modos[] = {p == Primeiro, p == Anterior, p == Proximo, p == Ultimo};
        postos.setIndex(u"CodigoDoPosto"_s);
        const bool achou = caso.bd->TabelaNavegacao(postos, u"NomeDoAproveitamento"_s, u"CodigoDoPosto"_s, de,
                                                    modos[0], modos[1], modos[2], modos[3]);
        EXPECT_EQ(postos.Index(), u"CodigoDoPosto"_s) << "the caller's index is kept";
        return achou ? static_cast<int>(postos.campo(u"CodigoDoPosto"_s).paraInteiro()) : 0;
    };
    for (const Passo p : {Primeiro, Anterior, Proximo, Ultimo}) {
        EXPECT_EQ(passo(p, 1), 0) << "an empty table, step " << p;
    }
    for (const auto& [codigo, nome] :
         {std::pair(1, u"Tucuruí"_s), {2, u"furnas"_s}, {3, u"Itaipu"_s}, {4, u"Emborcação"_s}}) {
        postos.AddNew();
        postos.setCampo(u"CodigoDoPosto"_s, codigo);
        postos.setCampo(u"NomeDoAproveitamento"_s, nome);
        postos.Update();
    }
    const struct {
        Passo passo;
        int de, para;
        const char* porque;
    } casos[] = {{Primeiro, 0, 4, ""},
                 {Proximo, 4, 2, ""},
                 {Proximo, 3, 1, ""},
                 {Proximo, 1, 1, "next on the last stays on the last"},
                 {Anterior, 4, 4, "previous on the first stays on the first"},
                 {Anterior, 3, 2, ""},
                 {Ultimo, 0, 1, ""},
                 {Proximo, 99, 4, "a vanished station makes the step start from the first"}};
    for (const auto& c : casos) {
        EXPECT_EQ(passo(c.passo, c.de), c.para) << "step " << c.passo << " from " << c.de << ": " << c.porque;
    }
    caso.bd->TabPostosFechar();
}

}  // namespace
