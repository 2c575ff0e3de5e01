#include "tests/corvalin/stations/PostosTeste.h"

#include "corvalin/options/Opcoes.h"
#include "platform/runtime/ErroVB.h"

#include <optional>
#include <tuple>

namespace {

using namespace Qt::StringLiterals;
using corvalin::Posto;
using recordstore::Recordset;
using teste::PostosTeste;

const QString PorNome = u"NomeDoAproveitamento"_s;
const QString PorCodigo = u"CodigoDoPosto"_s;

// Every member that a store keeps, with values that no default shares.
Posto pCompleto(int codigo, const QString& nome) {
    return {.Arquivos = {.ArquivoRelatorio = u"rel.rel"_s,
                         .ArquivoVazoesSemanais = u"vaz.dat"_s,
                         .ArquivoPrevisoes = u"prev.prv"_s,
                         .ArquivoExcel = u"exc.exc"_s,
                         .ArquivoDadosGerais = u"dg.dat"_s,
                         .ApagarArquivoRelatorio = true,
                         .ApagarArquivoExcel = true,
                         .ApagarArquivoDadosGerais = true,
                         .CasoUsa53Semanas = 1},
            .Codigo = codigo,
            .Nome = nome,
            .Area = 1234.5f,
            .AnoInicial = 1931,
            .AnoFinal = 2020,
            .ImpressaoParametros = true,
            .Transformacao = 3,
            .MesInicial = 7,
            .IntervaloConfianca = 95,
            .SemanaInicialPrev = 12,
            .AnoInicialPrev = 2021,
            .FlafVazpast = true,
            .NomeArqVazpast = u"vazpast.dat"_s,
            .FlagLimite = 1,
            .NomeArqLimite = u"lim.lim"_s,
            .AnoFinalHistorico = 2019,
            .VazpastSemana_1 = 10.5,
            .VazpastSemana_2 = 20.25,
            .VazpastSemana_3 = 30,
            .VazpastSemana_4 = 40.125,
            .discretizacao = 2,
            .Magnitude = 4};
}

// What a store keeps of a station, for whole comparisons.
auto pGuardado(const Posto& p) {
    const corvalin::OpcoesArquivos& a = p.Arquivos;
    return std::tuple(p.Codigo, p.Nome, p.Area, p.AnoInicial, p.AnoFinal, p.ImpressaoParametros,
                      p.Transformacao, p.MesInicial, p.IntervaloConfianca, p.SemanaInicialPrev,
                      p.AnoInicialPrev, p.FlafVazpast, p.NomeArqVazpast, p.FlagLimite, p.NomeArqLimite,
                      p.AnoFinalHistorico, p.VazpastSemana_1, p.VazpastSemana_2, p.VazpastSemana_3,
                      p.VazpastSemana_4, p.discretizacao, p.Magnitude, a.ArquivoRelatorio,
                      a.ArquivoVazoesSemanais, a.ArquivoPrevisoes, a.ArquivoExcel, a.ArquivoDadosGerais,
                      a.ApagarArquivoRelatorio, a.ApagarArquivoVazoesSemanais, a.ApagarArquivoExcel,
                      a.ApagarArquivoDadosGerais, a.CasoUsa53Semanas);
}

// Codes run in another order than names: Emborcação (4), furnas (2), Itaipu (3), Tucuruí (1).
class CatalogoTeste : public PostosTeste {
protected:
    void adicionaQuatro() {
        adiciona(1, u"Tucuruí"_s);
        adiciona(2, u"furnas"_s);
        adiciona(3, u"Itaipu"_s);
        adiciona(4, u"Emborcação"_s);
    }
    // The code getPosto reads by a mode, 0 when it finds nothing.
    int busca(std::int16_t modo, int codigo = 0) const {
        Posto p;
        return postoBD.getPosto(p, modo, codigo, PorNome) ? p.Codigo : 0;
    }
    Posto le(int codigo) const {
        Posto p;
        EXPECT_TRUE(postoBD.getPosto(p, corvalin::BuscaPorCodigo, codigo, {}));
        return p;
    }
    Recordset& postos() const { return caso.bd->TabPostos(); }
};

TEST_F(CatalogoTeste, BuscaPorCodigoLeTudoEDeixaOIndiceDoChamadorNaLinhaAchada) {
    Posto p = pCompleto(77, u"Sobradinho"_s);
    ASSERT_TRUE(postoBD.setPosto(p));
    EXPECT_EQ(pGuardado(le(77)), pGuardado(pCompleto(77, u"Sobradinho"_s)));
    adicionaQuatro();
    EXPECT_EQ(busca(corvalin::BuscaPorCodigo, 3), 3);
    EXPECT_EQ(postos().Index(), PorNome);
    postos().MoveNext();
    EXPECT_EQ(busca(corvalin::BuscaAtual), 77) << "the row found, in name order";

    Posto anterior = pCompleto(9, u"antes"_s);
    EXPECT_FALSE(postoBD.getPosto(anterior, corvalin::BuscaPorCodigo, 99, {}));
    EXPECT_EQ(pGuardado(anterior), pGuardado(pCompleto(9, u"antes"_s))) << "not found: the object stays";
}

TEST_F(CatalogoTeste, NavegacaoAndaNaOrdemDoIndiceDadoEParaNasPontas) {
    EXPECT_EQ(busca(corvalin::BuscaPrimeiro), 0) << "an empty catalogue";
    EXPECT_EQ(busca(corvalin::BuscaAtual), 0);
    adicionaQuatro();
    EXPECT_EQ(busca(corvalin::BuscaPrimeiro), 4);
    EXPECT_EQ(busca(corvalin::BuscaProximo, 4), 2);
    EXPECT_EQ(busca(corvalin::BuscaProximo, 1), 1) << "next on the last stays there";
    EXPECT_EQ(busca(corvalin::BuscaAnterior, 3), 2);
    EXPECT_EQ(busca(corvalin::BuscaAnterior, 4), 4) << "previous on the first stays there";
    EXPECT_EQ(busca(corvalin::BuscaUltimo), 1);
    EXPECT_EQ(busca(42), 1) << "an unknown mode reads the current row";

    postoBD.delPosto(le(2));
    EXPECT_EQ(busca(corvalin::BuscaProximo, 2), 4) << "stepping from a deleted station starts from the first";

    postos().setIndex(PorCodigo);
    EXPECT_EQ(busca(corvalin::BuscaProximo, 4), 3) << "the order is the given index's";
    EXPECT_EQ(postos().Index(), PorCodigo) << "while the caller's index stays";
    postos().MoveLast();
    postos().MoveNext();
    EXPECT_EQ(busca(corvalin::BuscaAtual), 0) << "past the end stands on no station";
}

TEST_F(CatalogoTeste, ListaEmOrdemDeNomeComSuasTresDiferencas) {
    Posto semVazpast = pCompleto(1, u"B sem"_s);
    semVazpast.FlafVazpast = false;
    Posto curto = pCompleto(2, u"A curto"_s);
    curto.NomeArqVazpast = u"abc"_s;
    Posto comVazpast = pCompleto(3, u"C com"_s);
    for (Posto* p : {&semVazpast, &curto, &comVazpast}) {
        ASSERT_TRUE(postoBD.setPosto(*p));
    }
    plataforma::Vetor<Posto> todos;
    postoBD.getPostos(todos);
    ASSERT_EQ(todos.UBound(), 3);
    EXPECT_EQ(std::tuple(todos[1].Codigo, todos[2].Codigo, todos[3].Codigo), std::tuple(2, 1, 3));

    EXPECT_FALSE(le(1).FlafVazpast) << "the stored blank is no file";
    EXPECT_TRUE(todos[2].FlafVazpast) << "the list takes the blank for a file";
    EXPECT_EQ(todos[2].NomeArqVazpast, u" "_s);

    const Posto curtoLido = le(2);
    EXPECT_FALSE(curtoLido.FlafVazpast) << "three characters are no file name";
    EXPECT_EQ(curtoLido.VazpastSemana_4, 0.0) << "nor are its values read";
    EXPECT_TRUE(todos[1].FlafVazpast);
    EXPECT_EQ(todos[1].VazpastSemana_4, 40.125) << "the list reads the values whatever the name";

    EXPECT_EQ(le(3).FlagLimite, 1);
    comVazpast.FlagLimite = 0;
    EXPECT_EQ(pGuardado(todos[3]), pGuardado(comVazpast)) << "the list never reads FlagLimite";
}

// A save of the catalogue alone leaves the general data already stored.
TEST_F(CatalogoTeste, NomeDeOutroCodigoRecusaSemDistinguirCaixa) {
    Posto furnas = pCompleto(1, u"FURNAS"_s);
    ASSERT_TRUE(postoBD.setPosto(furnas));
    Posto outro = pCompleto(2, u"furnas"_s);
    postos().setIndex(PorCodigo);
    EXPECT_FALSE(postoBD.setPosto(outro));
    EXPECT_EQ(postos().Index(), PorNome);
    EXPECT_EQ(caso.linhas(u"Postos"_s, 2) + caso.linhas(u"DadosGerais"_s, 2), 0);

    outro.Nome = u"Furnás"_s;
    EXPECT_TRUE(postoBD.setPosto(outro)) << "accents tell names apart";

    Posto renomeado = adiciona(1, u"Furnas"_s);
    renomeado.SemanaInicialPrev = 30;  // the complement alone is no general data
    EXPECT_TRUE(postoBD.setPosto(renomeado)) << "the station's own name, in another case, is a save";
    const Posto lido = le(1);
    EXPECT_EQ(std::tuple(lido.Nome, lido.AnoInicial, lido.MesInicial, lido.SemanaInicialPrev),
              std::tuple(u"Furnas"_s, 0, 7, 12));
}

TEST_F(CatalogoTeste, ApagarTiraCatalogoDadosGeraisEHistoricoEMaisNada) {
    Posto p = pCompleto(4, u"Único"_s);
    ASSERT_TRUE(postoBD.setPosto(p));
    corvalin::Historico h(p.AnoFinal - p.AnoInicial + 1, p.getNumSemanas());
    h(1, 1) = 10;
    postoBD.setHistorico(p, h);
    plataforma::Vetor<float> um(1);
    postoBD.setVazoesPrevistas(4, um, um, um);
    postoBD.setLimitesPrevisao(4, 1, um, um);

    postoBD.delPosto(p);  // the only station: the tables are left empty without an error
    for (const char* tabela : {"Postos", "DadosGerais", "VazoesSemanais"}) {
        EXPECT_EQ(caso.linhas(QString::fromLatin1(tabela), 4), 0) << tabela;
    }
    EXPECT_EQ(caso.linhas(u"DadosGeraisComplemento"_s, 4), 1);
    EXPECT_EQ(caso.linhas(u"VazoesPrevistas"_s, 4), 1);
    EXPECT_EQ(caso.linhas(u"LimitesPrevisao"_s, 4, u"Codigo"_s), 1);
    EXPECT_EQ(postos().Index(), PorNome);
}

// The template's word opens the name and what stood before it is lost; one word only is replaced.
// An empty template keeps the station's own name. The erase flags are copied whatever their value.
TEST_F(CatalogoTeste, NomesPadraoSubstituemUmaMarcaEPerdemOQueVemAntes) {
    Posto p = adiciona(123456789, u"Tucuruí Grande"_s);
    p.Arquivos.ArquivoRelatorio = u"[Nome do Aproveitamento].rel"_s;
    p.Arquivos.ApagarArquivoRelatorio = true;
    corvalin::Opcoes padrao;
    padrao.Arquivos.ArquivoVazoesSemanais = u"[nome do aproveitamento].dat"_s;
    padrao.Arquivos.ArquivoPrevisoes = u"abc[Código do Posto]"_s;
    padrao.Arquivos.ArquivoExcel = u"[CÓDIGO DO POSTO][Nome do Aproveitamento]"_s;
    padrao.Arquivos.ArquivoDadosGerais = u"fixo.dat"_s;
    padrao.Arquivos.ApagarArquivoExcel = true;
    postoBD.setNomesPadrao(p, padrao);
    const corvalin::OpcoesArquivos a = le(p.Codigo).Arquivos;
    EXPECT_EQ(a.ArquivoRelatorio, u"Tucuruí .rel"_s) << "the name is cut to eight";
    EXPECT_EQ(a.ArquivoVazoesSemanais, u"Tucuruí .dat"_s) << "case ignored";
    EXPECT_EQ(a.ArquivoPrevisoes, u"12345678to]"_s) << "the code is cut to eight, part of the word stays";
    EXPECT_EQ(a.ArquivoExcel, u"12345678[Nome do Aproveitamento]"_s);
    EXPECT_EQ(a.ArquivoDadosGerais, u"fixo.dat"_s);
    EXPECT_EQ(std::pair(a.ApagarArquivoRelatorio, a.ApagarArquivoExcel), std::pair(false, true));
    EXPECT_EQ(p.Arquivos.ArquivoExcel, a.ArquivoExcel) << "the record and the caller's station agree";
}

// Each store closes the tables it opened when it ends, and only those: another store of the same
// case keeps them.
TEST(LojaDePostosTeste, CadaLojaFechaAsTabelasQueAbriu) {
    teste::CasoAberto caso;
    std::optional<corvalin::PostoBD> a(std::in_place);
    std::optional<corvalin::PostoBD> b(std::in_place);
    a->setCasoBD(caso.bd);
    b->setCasoBD(caso.bd);
    b->setCasoBD(caso.bd);  // a second call does not count twice
    b.reset();
    EXPECT_NO_THROW(caso.bd->TabPostos()) << "the other store still holds them";
    a.reset();
    EXPECT_THROW(caso.bd->TabPostos(), plataforma::ErroVB);
}

}  // namespace
