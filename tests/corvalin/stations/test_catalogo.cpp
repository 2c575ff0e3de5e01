#include "tests/corvalin/stations/PostosTeste.h"

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

TEST_F(CatalogoTeste, UmPostoCompletoVoltaComoFoiGravado) {
    Posto p = pCompleto(77, u"Sobradinho"_s);
    ASSERT_TRUE(postoBD.setPosto(p));
    EXPECT_EQ(pGuardado(le(77)), pGuardado(pCompleto(77, u"Sobradinho"_s)));
}

TEST_F(CatalogoTeste, BuscaPorCodigoDeixaOIndiceDoChamadorNaLinhaAchada) {
    adicionaQuatro();
    EXPECT_EQ(busca(corvalin::BuscaPorCodigo, 3), 3);
    EXPECT_EQ(postos().Index(), PorNome);
    postos().MoveNext();
    EXPECT_EQ(busca(corvalin::BuscaAtual), 1) << "the row found, in name order";

    postos().setIndex(PorCodigo);
    EXPECT_EQ(busca(corvalin::BuscaPorCodigo, 2), 2);
    EXPECT_EQ(postos().Index(), PorCodigo);

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

// A missing general-data row leaves its members as the object held them, in either table.
TEST_F(CatalogoTeste, LinhaDeDadosGeraisAusenteDeixaOQueOObjetoTinha) {
    Posto completo = pCompleto(5, u"Cheio"_s);
    ASSERT_TRUE(postoBD.setPosto(completo));
    adiciona(6, u"Vazio"_s);
    Posto p = le(5);
    ASSERT_TRUE(postoBD.getPosto(p, corvalin::BuscaPorCodigo, 6, {}));
    EXPECT_EQ(p.Nome, u"Vazio"_s);
    EXPECT_EQ(p.MesInicial, 7) << "the previous station's general data";
    EXPECT_EQ(p.SemanaInicialPrev, 12);

    // Deleting keeps the complement: the station added again reads it, with defaults beside it.
    postoBD.delPosto(completo);
    adiciona(5, u"De novo"_s);
    plataforma::Vetor<Posto> todos;
    postoBD.getPostos(todos);
    ASSERT_EQ(todos[1].Codigo, 5);
    for (const Posto& novo : {le(5), todos[1]}) {
        EXPECT_EQ(novo.MesInicial, 0);
        EXPECT_EQ(novo.Arquivos.ArquivoRelatorio, QString());
        EXPECT_EQ(novo.SemanaInicialPrev, 12);
        EXPECT_EQ(novo.discretizacao, 2);
    }
}

TEST_F(CatalogoTeste, ListaEmOrdemDeNomeComSuasTresDiferencas) {
    plataforma::Vetor<Posto> todos;
    postoBD.getPostos(todos);
    EXPECT_EQ(todos.UBound(), 0);

    Posto semVazpast = pCompleto(1, u"B sem"_s);
    semVazpast.FlafVazpast = false;
    Posto curto = pCompleto(2, u"A curto"_s);
    curto.NomeArqVazpast = u"abc"_s;
    Posto comVazpast = pCompleto(3, u"C com"_s);
    for (Posto* p : {&semVazpast, &curto, &comVazpast}) {
        ASSERT_TRUE(postoBD.setPosto(*p));
    }
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

TEST_F(CatalogoTeste, NomeDeOutroCodigoRecusaSemDistinguirCaixa) {
    adiciona(1, u"FURNAS"_s);
    Posto outro = pCompleto(2, u"furnas"_s);
    postos().setIndex(PorCodigo);
    EXPECT_FALSE(postoBD.setPosto(outro));
    EXPECT_EQ(postos().Index(), PorNome);
    EXPECT_EQ(caso.linhas(u"Postos"_s, 2) + caso.linhas(u"DadosGerais"_s, 2), 0);

    outro.Nome = u"Furnás"_s;
    EXPECT_TRUE(postoBD.setPosto(outro)) << "accents tell names apart";

    Posto renomeado = adiciona(1, u"Furnas"_s);
    renomeado.Area = 5.5f;
    EXPECT_TRUE(postoBD.setPosto(renomeado)) << "the station's own name is a save, in another case too";
    EXPECT_EQ(le(1).Nome, u"Furnas"_s);
    EXPECT_EQ(le(1).Area, 5.5f);
    EXPECT_EQ(caso.linhas(u"Postos"_s, 1), 1);
    EXPECT_EQ(caso.linhas(u"DadosGerais"_s, 1), 0) << "empty general data write no row";
}

TEST_F(CatalogoTeste, DadosGeraisVaziosNaoTocamALinhaExistente) {
    Posto p = pCompleto(8, u"Xingó"_s);
    ASSERT_TRUE(postoBD.setPosto(p));
    Posto soCatalogo = adiciona(8, u"XINGÓ"_s);
    soCatalogo.SemanaInicialPrev = 30;
    ASSERT_TRUE(soCatalogo.DadosGeraisVazios()) << "the complement alone is no general data";
    ASSERT_TRUE(postoBD.setPosto(soCatalogo));
    EXPECT_EQ(le(8).MesInicial, 7);
    EXPECT_EQ(le(8).SemanaInicialPrev, 12);
    EXPECT_EQ(le(8).AnoInicial, 0) << "the catalogue row was saved";
    EXPECT_EQ(le(8).Nome, u"XINGÓ"_s);
}

TEST_F(CatalogoTeste, SetDadosGeraisFazAsDuasLinhasEGravaBrancoSemArquivo) {
    Posto p;
    p.Codigo = 12;
    p.FlafVazpast = true;
    p.VazpastSemana_1 = 3;
    postoBD.setDadosGerais(p);
    EXPECT_EQ(caso.linhas(u"DadosGerais"_s, 12), 1);
    Recordset& complemento = caso.bd->TabDadosGeraisComplemento();
    complemento.Seek(u"="_s, {12});
    ASSERT_FALSE(complemento.NoMatch());
    EXPECT_EQ(complemento.campo(u"ArqVazpast"_s).paraTexto(), u" "_s) << "in use without a name is no file";
    EXPECT_EQ(complemento.campo(u"ArqLimite"_s).paraTexto(), u" "_s);
    EXPECT_EQ(complemento.campo(u"VazpastSemana_1"_s).paraDouble(), 0.0);
}

TEST_F(CatalogoTeste, FalhaNoMeioNaoGravaNadaEDevolveOIndice) {
    Posto p = pCompleto(3, u"Três Marias"_s);
    p.NomeArqLimite = u"nome-longo-demais.lim"_s;  // beyond the field's 12 characters
    postos().setIndex(PorCodigo);
    try {
        postoBD.setPosto(p);
        ADD_FAILURE() << "a text longer than its field must fail";
    } catch (const plataforma::ErroVB& e) {
        EXPECT_EQ(e.Number(), 3163);
    }
    EXPECT_EQ(postos().Index(), PorNome);
    EXPECT_EQ(caso.linhas(u"Postos"_s, 3) + caso.linhas(u"DadosGerais"_s, 3), 0)
        << "the catalogue row went too";
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
