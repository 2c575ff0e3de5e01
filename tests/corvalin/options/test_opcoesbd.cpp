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
    int linhas() const {
        auto rs = caso.bd->BancoDeDados().OpenRecordset(u"Opcoes"_s);
        int n = 0;
        for (; !rs->Eof(); rs->MoveNext()) {
            ++n;
        }
        return n;
    }

    teste::CasoAberto caso;
    OpcoesBD opcoesBD;
};

TEST_F(OpcoesBDTeste, CasoNovoLeTudoVazioSemCriarLinha) {
    Opcoes o;
    o.setFiltro(2, u"*.dat"_s);
    o.setPastaPrevisoes(u"velha"_s);
    o.Arquivos.ArquivoExcel = u"x.exc"_s;
    o.Arquivos.ApagarArquivoExcel = true;
    o.Arquivos.NaoUsaLimite = true;
    opcoesBD.getOpcoes(o);
    EXPECT_EQ(o.Filtro(2), QString());
    EXPECT_EQ(o.PastaPrevisoes(), QString());
    EXPECT_TRUE(o.Arquivos.Vazio());
    EXPECT_FALSE(o.Arquivos.ApagarArquivoExcel);
    EXPECT_FALSE(o.Arquivos.NaoUsaLimite);
    EXPECT_EQ(linhas(), 0);
}

TEST_F(OpcoesBDTeste, DuasGravacoesUmaLinhaEIdaEVolta) {
    Opcoes o;
    o.setFiltro(1, u"*.dat"_s);
    o.setFiltroDescricao(3, u"Previsões"_s);
    o.setPastaPrevisoes(u"/previsoes"_s);
    o.Arquivos.ArquivoRelatorio = u"[Código do Posto].rel"_s;
    o.Arquivos.ApagarArquivoVazoesSemanais = true;
    o.Arquivos.NaoUsaLimite = true;
    opcoesBD.setOpcoes(o);
    o.Arquivos.ArquivoDadosGerais = u"[Nome do Aproveitamento].dat"_s;
    opcoesBD.setOpcoes(o);
    EXPECT_EQ(linhas(), 1);

    Opcoes lido;
    opcoesBD.getOpcoes(lido);
    EXPECT_EQ(lido.Filtro(1), u"*.dat"_s);
    EXPECT_EQ(lido.Filtro(3), QString());
    EXPECT_EQ(lido.FiltroDescricao(3), u"Previsões"_s);
    EXPECT_EQ(lido.PastaPrevisoes(), u"/previsoes"_s + QDir::separator());
    EXPECT_EQ(lido.Arquivos.ArquivoRelatorio, u"[Código do Posto].rel"_s);
    EXPECT_EQ(lido.Arquivos.ArquivoDadosGerais, u"[Nome do Aproveitamento].dat"_s);
    EXPECT_TRUE(lido.Arquivos.ApagarArquivoVazoesSemanais);
    EXPECT_FALSE(lido.Arquivos.ApagarArquivoRelatorio);
    EXPECT_TRUE(lido.Arquivos.NaoUsaLimite);
    EXPECT_FALSE(lido.Arquivos.Vazio());

    o.setPastaPrevisoes({});
    o.Arquivos = {};
    opcoesBD.setOpcoes(o);
    opcoesBD.getOpcoes(lido);
    EXPECT_EQ(lido.PastaPrevisoes(), QString()) << "an empty folder gains no separator";
    EXPECT_TRUE(lido.Arquivos.Vazio());
}

TEST_F(OpcoesBDTeste, GravacaoQueFalhaDeixaALinhaComoEstava) {
    Opcoes o;
    o.setFiltro(1, u"*.dat"_s);
    opcoesBD.setOpcoes(o);
    o.setFiltro(1, u"*.txt"_s);
    o.setFiltro(2, QString(21, QLatin1Char('x')));  // beyond the field's 20 characters
    EXPECT_THROW(opcoesBD.setOpcoes(o), plataforma::ErroVB);
    Opcoes lido;
    opcoesBD.getOpcoes(lido);
    EXPECT_EQ(lido.Filtro(1), u"*.dat"_s);
    o.setFiltro(2, u"*.arq"_s);
    opcoesBD.setOpcoes(o);
    opcoesBD.getOpcoes(lido);
    EXPECT_EQ(lido.Filtro(2), u"*.arq"_s) << "the store goes on working";
    EXPECT_EQ(linhas(), 1);
}

TEST(OpcoesTeste, RegistroNormalizaAPastaEGuardaTresFiltros) {
    Opcoes o;
    o.setPastaPrevisoes(u"c"_s);
    EXPECT_EQ(o.PastaPrevisoes(), u"c"_s + QDir::separator());
    o.setPastaPrevisoes(o.PastaPrevisoes());
    EXPECT_EQ(o.PastaPrevisoes(), u"c"_s + QDir::separator()) << "one separator only";
    for (const std::int16_t fora : {0, 4}) {
        try {
            o.setFiltro(fora, u"*.x"_s);
            ADD_FAILURE() << fora;
        } catch (const plataforma::ErroVB& e) {
            EXPECT_EQ(e.Number(), 9);
        }
        EXPECT_THROW(o.FiltroDescricao(fora), plataforma::ErroVB);
    }
    corvalin::OpcoesArquivos a;
    EXPECT_TRUE(a.Vazio());
    a.ArquivoExcel = u"x"_s;
    EXPECT_FALSE(a.Vazio());
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
