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
    int guardadas() const {
        return caso.linhas(u"LimitesPrevisao"_s) + caso.linhas(u"DadosGeraisComplemento"_s);
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
    EXPECT_EQ(guardadas(), 0);
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
    EXPECT_EQ(guardados(3, 4).inferior[1], 10) << "each grouping keeps its own rows";

    // A period beyond the grouping: nothing is stored and the message stays.
    mensagem = u"antes"_s;
    EXPECT_FALSE(importa({u"4"_s, u"2"_s, u"3   1.0  2.0"_s}));
    EXPECT_EQ(mensagem, u"antes"_s);
    EXPECT_EQ(guardados(4, 2), (Limites{{0, 0, 1.5f}, {0, 0, 98.5f}}));
    EXPECT_EQ(posto.Magnitude, 1) << "the failed import changed nothing";
}

TEST_F(LimitesTeste, SemanasDaEstacaoDe53) {
    posto.Arquivos.CasoUsa53Semanas = 1;
    QStringList texto = {u"1"_s, u"4"_s};
    for (int semana = 1; semana <= 52; ++semana) {
        texto << QString::number(semana).leftJustified(2) + u"  5.0 95.0"_s;
    }
    ASSERT_TRUE(importa(texto));
    EXPECT_TRUE(mensagem.startsWith(u"Alerta:"_s)) << "week 53 is missing";
    mensagem.clear();
    ASSERT_TRUE(importa(texto << u"53  6.0 94.0"_s));
    EXPECT_TRUE(mensagem.isEmpty());
    const Limites l = guardados(1, 53);
    EXPECT_EQ(l.inferior[53], 6.f);
    EXPECT_EQ(l.superior[52], 95.f);
}

TEST_F(LimitesTeste, FalhasSemMensagem) {
    EXPECT_FALSE(arq.importaLimites(host.caminho(u"nada.lim"_s), posto, postoBD, mensagem));
    // Empty, a code beyond a byte, a value that is no number, a negative period, a value beyond a float.
    for (const QStringList& defeituoso :
         {QStringList(), QStringList{u"300"_s, u"1"_s}, QStringList{u"2"_s, u"1"_s, u"1  abc 90.0"_s},
          QStringList{u"2"_s, u"1"_s, u"-1  1.0 90.0"_s}, QStringList{u"2"_s, u"1"_s, u"1  9E99 9.0"_s}}) {
        EXPECT_FALSE(importa(defeituoso)) << defeituoso.join(u'|').toStdString();
        EXPECT_EQ(mensagem, u"antes"_s);
    }
    // The limits name is made after the file is read: a name shorter than three fails there.
    posto.NomeArqLimite = u"LM"_s;
    EXPECT_FALSE(importa({u"4"_s, u"1"_s, u"1  1.0 9.0"_s, u"2  1.0 9.0"_s}));
    EXPECT_EQ(mensagem, u"antes"_s);
    EXPECT_EQ(guardadas(), 0);
}

}  // namespace
