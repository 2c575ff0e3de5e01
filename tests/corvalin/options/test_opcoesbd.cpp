#include "corvalin/options/Opcoes.h"
#include "corvalin/options/OpcoesBD.h"
#include "platform/runtime/ErroVB.h"
#include "tests/corvalin/options/CasoAberto.h"

#include <QDir>

#include <optional>

namespace {

using namespace Qt::StringLiterals;
using corvalin::Opcoes;
using corvalin::OpcoesBD;

class OpcoesBDTeste : public ::testing::Test {
protected:
    OpcoesBDTeste() { opcoesBD.setCasoBD(caso.bd); }
    Opcoes le() const {
        Opcoes o;
        opcoesBD.getOpcoes(o);
        return o;
    }
    int linhas() const { return caso.linhas(u"Opcoes"_s); }

    teste::CasoAberto caso;
    OpcoesBD opcoesBD;
};

// A new case reads all empty over whatever the object held, and reading makes no row; two saves
// make one row. The screen's test reads back the fields it shows; here are those it does not.
TEST_F(OpcoesBDTeste, LeituraVaziaEIdaEVoltaNumaLinha) {
    Opcoes o;
    o.setFiltro(2, u"*.dat"_s);
    o.setPastaPrevisoes(u"velha"_s);
    o.Arquivos.ArquivoExcel = u"x.exc"_s;
    o.Arquivos.ApagarArquivoExcel = o.Arquivos.NaoUsaLimite = true;
    opcoesBD.getOpcoes(o);
    EXPECT_EQ(o.Filtro(2) + o.PastaPrevisoes(), QString());
    EXPECT_TRUE(o.Arquivos.Vazio());
    EXPECT_FALSE(o.Arquivos.ApagarArquivoExcel || o.Arquivos.NaoUsaLimite);
    EXPECT_EQ(linhas(), 0);

    o.setFiltroDescricao(3, u"Previsões"_s);
    o.Arquivos.ApagarArquivoVazoesSemanais = o.Arquivos.NaoUsaLimite = true;
    opcoesBD.setOpcoes(o);
    o.Arquivos.ArquivoPrevisoes = u"[Código do Posto].prv"_s;
    opcoesBD.setOpcoes(o);
    EXPECT_EQ(linhas(), 1);
    const Opcoes lido = le();
    EXPECT_EQ(lido.FiltroDescricao(3) + lido.Arquivos.ArquivoPrevisoes, u"Previsões[Código do Posto].prv"_s);
    EXPECT_TRUE(lido.Arquivos.ApagarArquivoVazoesSemanais && lido.Arquivos.NaoUsaLimite);
    EXPECT_FALSE(lido.Arquivos.ApagarArquivoRelatorio || lido.Arquivos.Vazio());
}

TEST_F(OpcoesBDTeste, GravacaoQueFalhaDeixaALinhaComoEstava) {
    Opcoes o;
    o.setFiltro(1, u"*.dat"_s);
    opcoesBD.setOpcoes(o);
    o.setFiltro(1, u"*.txt"_s);
    o.setFiltro(2, QString(21, u'x'));  // beyond the field's 20 characters
    EXPECT_THROW(opcoesBD.setOpcoes(o), plataforma::ErroVB);
    EXPECT_EQ(le().Filtro(1), u"*.dat"_s);
    o.setFiltro(2, u"*.arq"_s);
    opcoesBD.setOpcoes(o);
    EXPECT_EQ(le().Filtro(2), u"*.arq"_s) << "the store goes on working";
    EXPECT_EQ(linhas(), 1);
}

TEST(OpcoesTeste, RegistroNormalizaAPastaEGuardaTresFiltros) {
    Opcoes o;
    o.setPastaPrevisoes(u"c"_s);
    o.setPastaPrevisoes(o.PastaPrevisoes());
    EXPECT_EQ(o.PastaPrevisoes(), u"c"_s + QDir::separator()) << "one separator only";
    for (const std::int16_t fora : {0, 4}) {
        EXPECT_THROW(o.setFiltro(fora, u"*.x"_s), plataforma::ErroVB) << fora;
        EXPECT_THROW(o.FiltroDescricao(fora), plataforma::ErroVB) << fora;
    }
}

TEST(LojaDeOpcoesTeste, AUltimaLojaFechaATabela) {
    teste::CasoAberto caso;
    std::optional<OpcoesBD> a(std::in_place);
    std::optional<OpcoesBD> b(std::in_place);
    a->setCasoBD(caso.bd);
    b->setCasoBD(caso.bd);
    a.reset();
    EXPECT_NO_THROW(caso.bd->TabOpcoes());
    b.reset();
    EXPECT_THROW(caso.bd->TabOpcoes(), plataforma::ErroVB);
}

}  // namespace
