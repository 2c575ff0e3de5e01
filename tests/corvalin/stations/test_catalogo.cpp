#include "tests/corvalin/stations/PostosTeste.h"

#include "platform/runtime/ErroVB.h"

#include <optional>

namespace {

using corvalin::Posto;
using recordstore::Recordset;
using teste::PostosTeste;

const QString PorNome = QStringLiteral("NomeDoAproveitamento");
const QString PorCodigo = QStringLiteral("CodigoDoPosto");

// Every member that a store keeps, with values that no default shares.
Posto pCompleto(int codigo, const QString& nome) {
    Posto p;
    p.Codigo = codigo;
    p.Nome = nome;
    p.Area = 1234.5f;
    p.AnoInicial = 1931;
    p.AnoFinal = 2020;
    p.ImpressaoParametros = true;
    p.Transformacao = 3;
    p.MesInicial = 7;
    p.IntervaloConfianca = 95;
    p.SemanaInicialPrev = 12;
    p.AnoInicialPrev = 2021;
    p.FlafVazpast = true;
    p.NomeArqVazpast = QStringLiteral("vazpast.dat");
    p.FlagLimite = 1;
    p.NomeArqLimite = QStringLiteral("lim.lim");
    p.AnoFinalHistorico = 2019;
    p.VazpastSemana_1 = 10.5;
    p.VazpastSemana_2 = 20.25;
    p.VazpastSemana_3 = 30;
    p.VazpastSemana_4 = 40.125;
    p.discretizacao = 2;
    p.Magnitude = 4;
    p.Arquivos.ArquivoRelatorio = QStringLiteral("rel.rel");
    p.Arquivos.ArquivoVazoesSemanais = QStringLiteral("vaz.dat");
    p.Arquivos.ArquivoPrevisoes = QStringLiteral("prev.prv");
    p.Arquivos.ArquivoExcel = QStringLiteral("exc.exc");
    p.Arquivos.ArquivoDadosGerais = QStringLiteral("dg.dat");
    p.Arquivos.ApagarArquivoRelatorio = true;
    p.Arquivos.ApagarArquivoVazoesSemanais = false;
    p.Arquivos.ApagarArquivoExcel = true;
    p.Arquivos.ApagarArquivoDadosGerais = true;
    p.Arquivos.CasoUsa53Semanas = 1;
    return p;
}

void pEsperaIguais(const Posto& a, const Posto& b) {
    EXPECT_EQ(a.Codigo, b.Codigo);
    EXPECT_EQ(a.Nome, b.Nome);
    EXPECT_EQ(a.Area, b.Area);
    EXPECT_EQ(a.AnoInicial, b.AnoInicial);
    EXPECT_EQ(a.AnoFinal, b.AnoFinal);
    EXPECT_EQ(a.ImpressaoParametros, b.ImpressaoParametros);
    EXPECT_EQ(a.Transformacao, b.Transformacao);
    EXPECT_EQ(a.MesInicial, b.MesInicial);
    EXPECT_EQ(a.IntervaloConfianca, b.IntervaloConfianca);
    EXPECT_EQ(a.SemanaInicialPrev, b.SemanaInicialPrev);
    EXPECT_EQ(a.AnoInicialPrev, b.AnoInicialPrev);
    EXPECT_EQ(a.FlafVazpast, b.FlafVazpast);
    EXPECT_EQ(a.NomeArqVazpast, b.NomeArqVazpast);
    EXPECT_EQ(a.FlagLimite, b.FlagLimite);
    EXPECT_EQ(a.NomeArqLimite, b.NomeArqLimite);
    EXPECT_EQ(a.AnoFinalHistorico, b.AnoFinalHistorico);
    EXPECT_EQ(a.VazpastSemana_1, b.VazpastSemana_1);
    EXPECT_EQ(a.VazpastSemana_2, b.VazpastSemana_2);
    EXPECT_EQ(a.VazpastSemana_3, b.VazpastSemana_3);
    EXPECT_EQ(a.VazpastSemana_4, b.VazpastSemana_4);
    EXPECT_EQ(a.discretizacao, b.discretizacao);
    EXPECT_EQ(a.Magnitude, b.Magnitude);
    EXPECT_EQ(a.Arquivos.ArquivoRelatorio, b.Arquivos.ArquivoRelatorio);
    EXPECT_EQ(a.Arquivos.ArquivoVazoesSemanais, b.Arquivos.ArquivoVazoesSemanais);
    EXPECT_EQ(a.Arquivos.ArquivoPrevisoes, b.Arquivos.ArquivoPrevisoes);
    EXPECT_EQ(a.Arquivos.ArquivoExcel, b.Arquivos.ArquivoExcel);
    EXPECT_EQ(a.Arquivos.ArquivoDadosGerais, b.Arquivos.ArquivoDadosGerais);
    EXPECT_EQ(a.Arquivos.ApagarArquivoRelatorio, b.Arquivos.ApagarArquivoRelatorio);
    EXPECT_EQ(a.Arquivos.ApagarArquivoVazoesSemanais, b.Arquivos.ApagarArquivoVazoesSemanais);
    EXPECT_EQ(a.Arquivos.ApagarArquivoExcel, b.Arquivos.ApagarArquivoExcel);
    EXPECT_EQ(a.Arquivos.ApagarArquivoDadosGerais, b.Arquivos.ApagarArquivoDadosGerais);
    EXPECT_EQ(a.Arquivos.CasoUsa53Semanas, b.Arquivos.CasoUsa53Semanas);
}

// Codes run in another order than names: name order is Emborcação (4), furnas (2), Itaipu (3),
// Tucuruí (1).
class CatalogoTeste : public PostosTeste {
protected:
    void adicionaQuatro() {
        adiciona(1, QStringLiteral("Tucuruí"));
        adiciona(2, QStringLiteral("furnas"));
        adiciona(3, QStringLiteral("Itaipu"));
        adiciona(4, QStringLiteral("Emborcação"));
    }
    // The code getPosto reads by a mode, 0 when it finds nothing.
    int busca(std::int16_t modo, int codigo = 0) const {
        Posto p;
        return postoBD.getPosto(p, modo, codigo, PorNome) ? p.Codigo : 0;
    }
    Recordset& postos() const { return caso.bd->TabPostos(); }
};

TEST_F(CatalogoTeste, UmPostoCompletoVoltaComoFoiGravado) {
    const Posto gravado = pCompleto(77, QStringLiteral("Sobradinho"));
    Posto copia = gravado;
    ASSERT_TRUE(postoBD.setPosto(copia));
    Posto lido;
    ASSERT_TRUE(postoBD.getPosto(lido, corvalin::BuscaPorCodigo, 77, {}));
    pEsperaIguais(lido, gravado);
    EXPECT_EQ(linhas(QStringLiteral("DadosGerais"), 77), 1);
    EXPECT_EQ(linhas(QStringLiteral("DadosGeraisComplemento"), 77), 1);
}

TEST_F(CatalogoTeste, BuscaPorCodigoDeixaOIndiceDoChamadorNaLinhaAchada) {
    adicionaQuatro();
    EXPECT_EQ(busca(corvalin::BuscaPorCodigo, 3), 3);
    EXPECT_EQ(postos().Index(), PorNome);
    EXPECT_EQ(busca(corvalin::BuscaAtual), 3) << "the standing index stands on the row found";
    postos().MoveNext();
    EXPECT_EQ(busca(corvalin::BuscaAtual), 1) << "and moves on in name order from it";

    postos().setIndex(PorCodigo);
    EXPECT_EQ(busca(corvalin::BuscaPorCodigo, 2), 2);
    EXPECT_EQ(postos().Index(), PorCodigo);
    postos().setIndex(PorNome);

    Posto anterior = pCompleto(9, QStringLiteral("antes"));
    EXPECT_FALSE(postoBD.getPosto(anterior, corvalin::BuscaPorCodigo, 99, {}));
    pEsperaIguais(anterior, pCompleto(9, QStringLiteral("antes")));
    EXPECT_EQ(postos().Index(), PorNome);
}

TEST_F(CatalogoTeste, NavegacaoAndaNaOrdemDoIndiceDadoEParaNasPontas) {
    EXPECT_EQ(busca(corvalin::BuscaPrimeiro), 0) << "an empty catalogue";
    EXPECT_EQ(busca(corvalin::BuscaAtual), 0);
    adicionaQuatro();
    EXPECT_EQ(busca(corvalin::BuscaPrimeiro), 4);
    EXPECT_EQ(busca(corvalin::BuscaProximo, 4), 2);
    EXPECT_EQ(busca(corvalin::BuscaProximo, 3), 1);
    EXPECT_EQ(busca(corvalin::BuscaProximo, 1), 1) << "next on the last stays there";
    EXPECT_EQ(busca(corvalin::BuscaAnterior, 3), 2);
    EXPECT_EQ(busca(corvalin::BuscaAnterior, 4), 4) << "previous on the first stays there";
    EXPECT_EQ(busca(corvalin::BuscaUltimo), 1);
    EXPECT_EQ(busca(corvalin::BuscaAtual), 1);
    EXPECT_EQ(busca(42), 1) << "an unknown mode reads the current row";

    Posto furnas;
    furnas.Codigo = 2;
    postoBD.delPosto(furnas);
    EXPECT_EQ(busca(corvalin::BuscaProximo, 2), 4) << "stepping from a deleted station starts from the first";

    postos().setIndex(PorCodigo);
    EXPECT_EQ(busca(corvalin::BuscaUltimo), 1) << "the order is the given index's";
    EXPECT_EQ(postos().Index(), PorCodigo) << "while the caller's index stays";
    postos().MoveLast();
    postos().MoveNext();
    EXPECT_EQ(busca(corvalin::BuscaAtual), 0) << "past the end stands on no station";
}

// A missing general-data row leaves its members as the object held them, in either table.
TEST_F(CatalogoTeste, LinhaDeDadosGeraisAusenteDeixaOQueOObjetoTinha) {
    Posto completo = pCompleto(5, QStringLiteral("Cheio"));
    ASSERT_TRUE(postoBD.setPosto(completo));
    adiciona(6, QStringLiteral("Vazio"));

    Posto p;
    ASSERT_TRUE(postoBD.getPosto(p, corvalin::BuscaPorCodigo, 5, {}));
    ASSERT_TRUE(postoBD.getPosto(p, corvalin::BuscaPorCodigo, 6, {}));
    EXPECT_EQ(p.Nome, QStringLiteral("Vazio"));
    EXPECT_EQ(p.AnoInicial, 0);
    EXPECT_EQ(p.MesInicial, 7) << "the previous station's general data";
    EXPECT_EQ(p.SemanaInicialPrev, 12);
    EXPECT_EQ(p.Arquivos.ArquivoRelatorio, QStringLiteral("rel.rel"));

    // Deleting keeps the complement: the station added again reads it with defaults beside it.
    postoBD.delPosto(completo);
    adiciona(5, QStringLiteral("De novo"));
    for (const bool lista : {false, true}) {
        Posto novo;
        if (lista) {
            plataforma::Vetor<Posto> todos;
            postoBD.getPostos(todos);
            novo = todos[1];  // "De novo" comes before "Vazio"
            ASSERT_EQ(novo.Codigo, 5);
        } else {
            ASSERT_TRUE(postoBD.getPosto(novo, corvalin::BuscaPorCodigo, 5, {}));
        }
        EXPECT_EQ(novo.MesInicial, 0) << lista;
        EXPECT_EQ(novo.Arquivos.ArquivoRelatorio, QString()) << lista;
        EXPECT_EQ(novo.SemanaInicialPrev, 12) << lista;
        EXPECT_EQ(novo.discretizacao, 2) << lista;
    }
}

TEST_F(CatalogoTeste, ListaEmOrdemDeNomeComSuasTresDiferencas) {
    plataforma::Vetor<Posto> todos;
    postoBD.getPostos(todos);
    EXPECT_EQ(todos.UBound(), 0);

    Posto semVazpast = pCompleto(1, QStringLiteral("B sem"));
    semVazpast.FlafVazpast = false;
    Posto curto = pCompleto(2, QStringLiteral("A curto"));
    curto.NomeArqVazpast = QStringLiteral("abc");
    Posto comVazpast = pCompleto(3, QStringLiteral("C com"));
    for (Posto* p : {&semVazpast, &curto, &comVazpast}) {
        ASSERT_TRUE(postoBD.setPosto(*p));
    }
    postoBD.getPostos(todos);
    ASSERT_EQ(todos.UBound(), 3);
    EXPECT_EQ(todos[1].Codigo, 2);
    EXPECT_EQ(todos[2].Codigo, 1);
    EXPECT_EQ(todos[3].Codigo, 3);

    Posto lido;
    ASSERT_TRUE(postoBD.getPosto(lido, corvalin::BuscaPorCodigo, 1, {}));
    EXPECT_FALSE(lido.FlafVazpast) << "the stored blank is no file";
    EXPECT_TRUE(todos[2].FlafVazpast) << "the list takes the blank for a file";
    EXPECT_EQ(todos[2].NomeArqVazpast, QStringLiteral(" "));
    EXPECT_EQ(todos[2].VazpastSemana_1, 0.0);

    Posto curtoLido;
    ASSERT_TRUE(postoBD.getPosto(curtoLido, corvalin::BuscaPorCodigo, 2, {}));
    EXPECT_FALSE(curtoLido.FlafVazpast) << "three characters are no file name";
    EXPECT_EQ(curtoLido.NomeArqVazpast, QString());
    EXPECT_EQ(curtoLido.VazpastSemana_1, 0.0) << "nor are its values read";
    EXPECT_TRUE(todos[1].FlafVazpast);
    EXPECT_EQ(todos[1].NomeArqVazpast, QStringLiteral("abc"));
    EXPECT_EQ(todos[1].VazpastSemana_4, 40.125) << "the list reads the values whatever the name";

    EXPECT_EQ(lido.FlagLimite, 1);
    for (int i = 1; i <= 3; ++i) {
        EXPECT_EQ(todos[i].FlagLimite, 0) << "the list never reads FlagLimite";
        EXPECT_EQ(todos[i].discretizacao, 2);
    }
    pEsperaIguais(todos[3], [&] {
        Posto esperado = comVazpast;
        esperado.FlagLimite = 0;
        return esperado;
    }());
}

TEST_F(CatalogoTeste, NomeDeOutroCodigoRecusaSemDistinguirCaixa) {
    adiciona(1, QStringLiteral("FURNAS"));
    Posto outro = pCompleto(2, QStringLiteral("furnas"));
    postos().setIndex(PorCodigo);
    EXPECT_FALSE(postoBD.setPosto(outro));
    EXPECT_EQ(postos().Index(), PorNome);
    EXPECT_EQ(linhas(QStringLiteral("Postos"), 2), 0);
    EXPECT_EQ(linhas(QStringLiteral("DadosGerais"), 2), 0);

    outro.Nome = QStringLiteral("Furnás");
    EXPECT_TRUE(postoBD.setPosto(outro)) << "accents tell names apart";

    Posto renomeado;
    renomeado.Codigo = 1;
    renomeado.Nome = QStringLiteral("Furnas");
    renomeado.Area = 5.5f;
    EXPECT_TRUE(postoBD.setPosto(renomeado)) << "the station's own name in another case is a save";
    Posto lido;
    ASSERT_TRUE(postoBD.getPosto(lido, corvalin::BuscaPorCodigo, 1, {}));
    EXPECT_EQ(lido.Nome, QStringLiteral("Furnas"));
    EXPECT_EQ(lido.Area, 5.5f);
    EXPECT_EQ(linhas(QStringLiteral("Postos"), 1), 1);
    EXPECT_EQ(linhas(QStringLiteral("DadosGerais"), 1), 0) << "empty general data write no row";
}

TEST_F(CatalogoTeste, DadosGeraisVaziosNaoTocamALinhaExistente) {
    Posto p = pCompleto(8, QStringLiteral("Xingó"));
    ASSERT_TRUE(postoBD.setPosto(p));
    Posto soCatalogo;
    soCatalogo.Codigo = 8;
    soCatalogo.Nome = QStringLiteral("Xingó");
    soCatalogo.SemanaInicialPrev = 30;  // the complement alone does not count as general data
    ASSERT_TRUE(soCatalogo.DadosGeraisVazios());
    ASSERT_TRUE(postoBD.setPosto(soCatalogo));
    Posto lido;
    ASSERT_TRUE(postoBD.getPosto(lido, corvalin::BuscaPorCodigo, 8, {}));
    EXPECT_EQ(lido.MesInicial, 7);
    EXPECT_EQ(lido.SemanaInicialPrev, 12);
    EXPECT_EQ(lido.AnoInicial, 0) << "the catalogue row was saved";
}

TEST_F(CatalogoTeste, SetDadosGeraisFazAsDuasLinhasEGravaBrancoSemArquivo) {
    Posto p;
    p.Codigo = 12;
    p.FlafVazpast = true;  // in use but without a name: no file
    p.VazpastSemana_1 = 3;
    postoBD.setDadosGerais(p);
    EXPECT_EQ(linhas(QStringLiteral("DadosGerais"), 12), 1);
    EXPECT_EQ(linhas(QStringLiteral("DadosGeraisComplemento"), 12), 1);
    Recordset& complemento = caso.bd->TabDadosGeraisComplemento();
    complemento.Seek(QStringLiteral("="), {12});
    EXPECT_EQ(complemento.campo(QStringLiteral("ArqVazpast")).paraTexto(), QStringLiteral(" "));
    EXPECT_EQ(complemento.campo(QStringLiteral("ArqLimite")).paraTexto(), QStringLiteral(" "));
    EXPECT_EQ(complemento.campo(QStringLiteral("VazpastSemana_1")).paraDouble(), 0.0);
}

TEST_F(CatalogoTeste, FalhaNoMeioNaoGravaNadaEDevolveOIndice) {
    Posto p = pCompleto(3, QStringLiteral("Três Marias"));
    p.NomeArqLimite = QStringLiteral("nome-longo-demais.lim");  // beyond the field's 12 characters
    postos().setIndex(PorCodigo);
    try {
        postoBD.setPosto(p);
        ADD_FAILURE() << "a text longer than its field must fail";
    } catch (const plataforma::ErroVB& e) {
        EXPECT_EQ(e.Number(), 3163);
    }
    EXPECT_EQ(postos().Index(), PorNome);
    EXPECT_EQ(linhas(QStringLiteral("Postos"), 3), 0) << "the catalogue row went with the failure";
    EXPECT_EQ(linhas(QStringLiteral("DadosGerais"), 3), 0);
}

TEST_F(CatalogoTeste, ApagarTiraCatalogoDadosGeraisEHistoricoEMaisNada) {
    Posto p = pCompleto(4, QStringLiteral("Único"));
    ASSERT_TRUE(postoBD.setPosto(p));
    corvalin::Historico h(p.AnoFinal - p.AnoInicial + 1, p.getNumSemanas());
    h(1, 1) = 10;
    postoBD.setHistorico(p, h);
    plataforma::Vetor<float> um(1);
    um[1] = 1;
    postoBD.setVazoesPrevistas(4, um, um, um);
    postoBD.setLimitesPrevisao(4, 1, um, um);

    postoBD.delPosto(p);  // the only station: the handles are left on no row without an error
    EXPECT_EQ(linhas(QStringLiteral("Postos"), 4), 0);
    EXPECT_EQ(linhas(QStringLiteral("DadosGerais"), 4), 0);
    EXPECT_EQ(linhas(QStringLiteral("VazoesSemanais"), 4), 0);
    EXPECT_EQ(linhas(QStringLiteral("DadosGeraisComplemento"), 4), 1);
    EXPECT_EQ(linhas(QStringLiteral("VazoesPrevistas"), 4), 1);
    EXPECT_EQ(linhas(QStringLiteral("LimitesPrevisao"), 4, QStringLiteral("Codigo")), 1);
    EXPECT_EQ(postos().Index(), PorNome);
}

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
