#include "platform/runtime/Vetor.h"
#include "tests/corvalin/modelfiles/CasoModelo.h"

namespace {

using namespace Qt::StringLiterals;
using corvalin::Posto;
using plataforma::Vetor;

struct Limites {
    std::vector<float> inferior, superior;
    friend bool operator==(const Limites&, const Limites&) = default;
};

class LimitesTeste : public teste::CasoModelo {
protected:
    LimitesTeste() {
        posto.NomeArqLimite = u"SSIMAO.LIM"_s;
        posto.discretizacao = posto.Magnitude = 0;
    }
    bool importa(const QStringList& texto) {
        return arq.importaLimites(arquivo(u"SSIMAO.LIM"_s, linhas(texto)), posto, postoBD, mensagem);
    }
    Limites guardados(std::uint8_t tipo, int periodos) const {
        Vetor<std::int16_t> ordem(periodos);
        Vetor<float> inferior(periodos);
        Vetor<float> superior(periodos);
        postoBD.getLimitesPrevisao(33, tipo, ordem, inferior, superior);
        return {inferior.dados(), superior.dados()};
    }

    Posto posto = teste::SaoSimao();
    QString mensagem = u"antes"_s;
};

// The monthly limits of the golden file: 2.5 to 97.5, but 5.3 below in June and 99.9 above in
// December.
TEST_F(LimitesTeste, GeraODouradoELeDeVolta) {
    Vetor<float> inferior(12);
    Vetor<float> superior(12);
    for (int mes = 1; mes <= 12; ++mes) {
        inferior[mes] = mes == 6 ? 5.3f : 2.5f;
        superior[mes] = mes == 12 ? 99.9f : 97.5f;
    }
    postoBD.setLimitesPrevisao(33, 2, inferior, superior);
    grava(posto, teste::HistoricoSaoSimao());
    posto.discretizacao = 2;
    posto.Magnitude = 3;
    ASSERT_TRUE(arq.geraLimites(pastaExecucao(), posto, postoBD));
    EXPECT_EQ(conteudo(gerado(33, u"SSIMAO.lim"_s)), conteudo(dourado(u"sao_simao/SSIMAO.lim"_s)));
    Posto lido;
    ASSERT_TRUE(le(33, lido));
    EXPECT_EQ(lido.NomeArqLimite, u"SSIMAO.lim"_s) << "the new name is stored first";

    postoBD.setLimitesPrevisao(33, 2, Vetor<float>(12), Vetor<float>(12));
    posto.discretizacao = posto.Magnitude = 0;
    posto.NomeArqLimite = u"LIMITES"_s;
    ASSERT_TRUE(arq.importaLimites(dourado(u"sao_simao/SSIMAO.lim"_s), posto, postoBD, mensagem));
    EXPECT_EQ(mensagem, u"antes"_s);
    EXPECT_EQ(posto.discretizacao * 10 + posto.Magnitude, 23);
    EXPECT_EQ(posto.NomeArqLimite, u"LIMIlim"_s) << "the last three characters go, whatever they are";
    EXPECT_EQ(guardados(2, 12), (Limites{inferior.dados(), superior.dados()}));
    ASSERT_TRUE(le(33, lido));
    EXPECT_EQ(lido.NomeArqLimite, u"LIMIlim"_s);
}

TEST_F(LimitesTeste, CodigosForaDe1A4TemSuasMensagens) {
    EXPECT_FALSE(importa({u"7"_s, u"1"_s}));
    EXPECT_EQ(mensagem,
              u"São Simão - 0:Valor inválido para o período de composição da distribuição das "
              u"variáveis ( 7)."_s);
    EXPECT_FALSE(importa({u"2 "_s, u"0"_s}));
    EXPECT_EQ(mensagem, u"São Simão - 33:Valor inválido para a divisão da magnitude de vazão ( 0)."_s);
    EXPECT_EQ(posto.discretizacao, 0);
    EXPECT_EQ(caso.linhas(u"LimitesPrevisao"_s) + caso.linhas(u"DadosGeraisComplemento"_s), 0);
}

TEST_F(LimitesTeste, NumeroDoPeriodoDecideAPosicao) {
    // Quarterly: four lines are read whatever they say; the fifth never is.
    ASSERT_TRUE(importa({u"3"_s, u"1"_s, u"3  30.0 70.0"_s, u"1  10.0 90.0"_s, u"0  99.9 99.9"_s,
                         u"3  33.0 77,0"_s, u"2  20.0 80.0"_s}));
    EXPECT_EQ(mensagem, u"antes"_s);
    EXPECT_EQ(guardados(3, 4), (Limites{{0, 10, 0, 33, 0}, {0, 90, 0, 77, 0}}));

    // Fewer lines than periods: a warning, and zeros stored for the rest.
    ASSERT_TRUE(importa({u"4"_s, u"1"_s, u"2   1.5 98.5"_s}));
    EXPECT_EQ(mensagem,
              u"Alerta: Alguns valores de limite da restrição não foram informados no arquivo. "
              u"Será adotado o valor padrão zero (0)."_s);
    EXPECT_EQ(guardados(4, 2), (Limites{{0, 0, 1.5f}, {0, 0, 98.5f}}));

    // A period beyond the grouping: nothing is stored and the message stays.
    mensagem = u"antes"_s;
    EXPECT_FALSE(importa({u"4"_s, u"2"_s, u"3   1.0  2.0"_s}));
    EXPECT_EQ(mensagem, u"antes"_s);
    EXPECT_EQ(guardados(4, 2), (Limites{{0, 0, 1.5f}, {0, 0, 98.5f}}));
}

}  // namespace
