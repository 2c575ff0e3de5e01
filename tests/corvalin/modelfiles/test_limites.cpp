#include "platform/runtime/Vetor.h"
#include "tests/corvalin/modelfiles/CasoModelo.h"

namespace {

using corvalin::Posto;
using plataforma::Vetor;

struct Limites {
    std::vector<float> inferior, superior;
    friend bool operator==(const Limites&, const Limites&) = default;
};

// The monthly limits of the golden file: 2.5 to 97.5, but 5.3 below in June and 99.9 above in
// December.
Limites limitesSaoSimao() {
    Limites l{std::vector<float>(13, 2.5f), std::vector<float>(13, 97.5f)};
    l.inferior[0] = l.superior[0] = 0;
    l.inferior[6] = 5.3f;
    l.superior[12] = 99.9f;
    return l;
}

class LimitesTeste : public teste::CasoModelo {
protected:
    void SetUp() override {
        CasoModelo::SetUp();
        posto = teste::SaoSimao();
        posto.NomeArqLimite = QStringLiteral("SSIMAO.LIM");
        posto.discretizacao = posto.Magnitude = 0;
        mensagem = QStringLiteral("antes");
    }
    bool importa(const QStringList& texto) {
        return arq.importaLimites(arquivo(QStringLiteral("SSIMAO.LIM"), linhas(texto)), posto, postoBD,
                                  mensagem);
    }
    Limites guardados(std::uint8_t tipo, int periodos) const {
        Vetor<std::int16_t> ordem(periodos);
        Vetor<float> inferior(periodos);
        Vetor<float> superior(periodos);
        postoBD.getLimitesPrevisao(33, tipo, ordem, inferior, superior);
        return {inferior.dados(), superior.dados()};
    }
    void esperaNadaGuardado() {
        EXPECT_EQ(contaLinhas(QStringLiteral("LimitesPrevisao")), 0);
        EXPECT_EQ(contaLinhas(QStringLiteral("DadosGeraisComplemento")), 0);
    }

    Posto posto;
    QString mensagem;
};

TEST_F(LimitesTeste, GeraODouradoEmF41) {
    const Limites l = limitesSaoSimao();
    Vetor<float> inferior(12);
    Vetor<float> superior(12);
    for (int mes = 1; mes <= 12; ++mes) {
        inferior[mes] = l.inferior[mes];
        superior[mes] = l.superior[mes];
    }
    postoBD.setLimitesPrevisao(33, 2, inferior, superior);
    grava(posto, teste::HistoricoSaoSimao());
    posto.discretizacao = 2;
    posto.Magnitude = 3;
    ASSERT_TRUE(arq.geraLimites(pastaExecucao(), posto, postoBD));
    EXPECT_EQ(posto.NomeArqLimite, QStringLiteral("SSIMAO.lim"));
    const QByteArray bytes = conteudo(gerado(33, QStringLiteral("SSIMAO.lim")));
    EXPECT_EQ(bytes, dourado(QStringLiteral("sao_simao/SSIMAO.lim")));
    EXPECT_TRUE(bytes.startsWith("2 \r\n3 \r\n1   2.5 97.5\r\n"));
    EXPECT_TRUE(bytes.endsWith("\r\n10  2.5 97.5\r\n11  2.5 97.5\r\n12  2.5 99.9\r\n"));
    Posto lido;
    ASSERT_TRUE(le(33, lido));
    EXPECT_EQ(lido.NomeArqLimite, QStringLiteral("SSIMAO.lim")) << "the new name is stored first";
}

TEST_F(LimitesTeste, LeODouradoEGuarda) {
    Posto catalogo;
    catalogo.Codigo = 33;
    catalogo.Nome = QStringLiteral("São Simão");
    ASSERT_TRUE(postoBD.setPosto(catalogo));
    ASSERT_TRUE(
        arq.importaLimites(caminhoDourado(QStringLiteral("sao_simao/SSIMAO.lim")), posto, postoBD, mensagem));
    EXPECT_EQ(mensagem, QStringLiteral("antes"));
    EXPECT_EQ(posto.discretizacao, 2);
    EXPECT_EQ(posto.Magnitude, 3);
    EXPECT_EQ(posto.NomeArqLimite, QStringLiteral("SSIMAO.lim"));
    EXPECT_EQ(guardados(2, 12), limitesSaoSimao());
    Posto lido;
    ASSERT_TRUE(le(33, lido));
    EXPECT_EQ(lido.discretizacao, 2);
    EXPECT_EQ(lido.NomeArqLimite, QStringLiteral("SSIMAO.lim"));

    // The last three characters go, whatever they are.
    posto.NomeArqLimite = QStringLiteral("LIMITES");
    ASSERT_TRUE(
        arq.importaLimites(caminhoDourado(QStringLiteral("sao_simao/SSIMAO.lim")), posto, postoBD, mensagem));
    EXPECT_EQ(posto.NomeArqLimite, QStringLiteral("LIMIlim"));
}

TEST_F(LimitesTeste, CodigosForaDe1A4TemSuasMensagens) {
    EXPECT_FALSE(importa({QStringLiteral("7"), QStringLiteral("1")}));
    EXPECT_EQ(mensagem,
              QStringLiteral("São Simão - 0:Valor inválido para o período de composição da distribuição "
                             "das variáveis ( 7)."));
    EXPECT_FALSE(importa({QStringLiteral("2 "), QStringLiteral("0")}));
    EXPECT_EQ(mensagem,
              QStringLiteral("São Simão - 33:Valor inválido para a divisão da magnitude de vazão ( 0)."));
    EXPECT_EQ(posto.discretizacao, 0);
    esperaNadaGuardado();
}

TEST_F(LimitesTeste, NumeroDoPeriodoDecideAPosicao) {
    // Quarterly: four lines are read whatever they say; the fifth never is.
    ASSERT_TRUE(importa({QStringLiteral("3"), QStringLiteral("1"), QStringLiteral("3  30.0 70.0"),
                         QStringLiteral("1  10.0 90.0"), QStringLiteral("0  99.9 99.9"),
                         QStringLiteral("3  33.0 77,0"), QStringLiteral("2  20.0 80.0")}));
    EXPECT_EQ(mensagem, QStringLiteral("antes"));
    EXPECT_EQ(guardados(3, 4), (Limites{{0, 10, 0, 33, 0}, {0, 90, 0, 77, 0}}));

    // Fewer lines than periods: a warning, and zeros stored for the rest.
    ASSERT_TRUE(importa({QStringLiteral("4"), QStringLiteral("1"), QStringLiteral("2   1.5 98.5")}));
    EXPECT_EQ(mensagem,
              QStringLiteral("Alerta: Alguns valores de limite da restrição não foram informados no "
                             "arquivo. Será adotado o valor padrão zero (0)."));
    EXPECT_EQ(guardados(4, 2), (Limites{{0, 0, 1.5f}, {0, 0, 98.5f}}));
    EXPECT_EQ(guardados(3, 4).inferior[1], 10) << "each grouping keeps its own rows";

    // A period beyond the grouping: nothing is stored and the message stays.
    mensagem = QStringLiteral("antes");
    EXPECT_FALSE(importa({QStringLiteral("4"), QStringLiteral("2"), QStringLiteral("3   1.0  2.0")}));
    EXPECT_EQ(mensagem, QStringLiteral("antes"));
    EXPECT_EQ(guardados(4, 2), (Limites{{0, 0, 1.5f}, {0, 0, 98.5f}}));
    EXPECT_EQ(posto.Magnitude, 1) << "the failed import changed nothing";
}

TEST_F(LimitesTeste, SemanasDaEstacaoDe53) {
    posto.Arquivos.CasoUsa53Semanas = 1;
    QStringList texto = {QStringLiteral("1"), QStringLiteral("4")};
    for (int semana = 1; semana <= 52; ++semana) {
        texto << QString::number(semana).leftJustified(2) + QStringLiteral("  5.0 95.0");
    }
    ASSERT_TRUE(importa(texto));
    EXPECT_TRUE(mensagem.startsWith(QStringLiteral("Alerta:"))) << "week 53 is missing";
    mensagem.clear();
    ASSERT_TRUE(importa(texto << QStringLiteral("53  6.0 94.0")));
    EXPECT_TRUE(mensagem.isEmpty());
    const Limites l = guardados(1, 53);
    EXPECT_EQ(l.inferior[53], 6.f);
    EXPECT_EQ(l.superior[52], 95.f);
}

TEST_F(LimitesTeste, FalhasSemMensagem) {
    EXPECT_FALSE(arq.importaLimites(host.caminho(QStringLiteral("nada.lim")), posto, postoBD, mensagem));
    for (const QStringList& defeituoso :
         {QStringList(), QStringList{QStringLiteral("300"), QStringLiteral("1")},
          QStringList{QStringLiteral("2"), QStringLiteral("1"), QStringLiteral("1  abc 90.0")},
          QStringList{QStringLiteral("2"), QStringLiteral("1"), QStringLiteral("-1  1.0 90.0")},
          QStringList{QStringLiteral("2"), QStringLiteral("1"), QStringLiteral("1  9E99 9.0")}}) {
        EXPECT_FALSE(importa(defeituoso)) << defeituoso.join(u'|').toStdString();
        EXPECT_EQ(mensagem, QStringLiteral("antes"));
    }
    esperaNadaGuardado();

    // The limits name is made after the file is read: a name shorter than three fails there.
    posto.NomeArqLimite = QStringLiteral("LM");
    EXPECT_FALSE(importa({QStringLiteral("4"), QStringLiteral("1"), QStringLiteral("1  1.0 9.0"),
                          QStringLiteral("2  1.0 9.0")}));
    EXPECT_EQ(mensagem, QStringLiteral("antes"));
    esperaNadaGuardado();
}

}  // namespace
