#include "tests/corvalin/stations/PostosTeste.h"

#include "corvalin/options/Opcoes.h"

namespace {

using namespace Qt::StringLiterals;
using corvalin::Opcoes;
using corvalin::Posto;

class NomesPadraoTeste : public teste::PostosTeste {
protected:
    // The station's five names after setNomesPadrao, as stored: relatório, vazões, previsões,
    // excel, dados gerais.
    std::array<QString, 5> aplica(Posto& p, const Opcoes& padrao) {
        postoBD.setNomesPadrao(p, padrao);
        Posto lido;
        EXPECT_TRUE(postoBD.getPosto(lido, corvalin::BuscaPorCodigo, p.Codigo, {}));
        const corvalin::OpcoesArquivos& a = lido.Arquivos;
        EXPECT_EQ(a.ArquivoRelatorio, p.Arquivos.ArquivoRelatorio) << "the record and the case agree";
        return {a.ArquivoRelatorio, a.ArquivoVazoesSemanais, a.ArquivoPrevisoes, a.ArquivoExcel,
                a.ArquivoDadosGerais};
    }
};

TEST_F(NomesPadraoTeste, OPadraoAbreONomeEOQueVemAntesSePerde) {
    Posto p = adiciona(123456789, u"Tucuruí Grande"_s);
    Opcoes padrao;
    padrao.Arquivos.ArquivoRelatorio = u"[Código do Posto].rel"_s;
    padrao.Arquivos.ArquivoVazoesSemanais = u"[nome do aproveitamento].dat"_s;
    padrao.Arquivos.ArquivoPrevisoes = u"abc[Código do Posto]"_s;
    padrao.Arquivos.ArquivoExcel = u"[CÓDIGO DO POSTO][Nome do Aproveitamento]"_s;
    padrao.Arquivos.ArquivoDadosGerais = u"fixo.dat"_s;
    const auto nomes = aplica(p, padrao);
    EXPECT_EQ(nomes[0], u"12345678.rel"_s) << "the code is cut to eight";
    EXPECT_EQ(nomes[1], u"Tucuruí .dat"_s) << "the name is cut to eight, case ignored";
    EXPECT_EQ(nomes[2], u"12345678to]"_s) << "what stood before is lost, part of the word stays";
    EXPECT_EQ(nomes[3], u"12345678[Nome do Aproveitamento]"_s) << "one replacement only";
    EXPECT_EQ(nomes[4], u"fixo.dat"_s);
}

TEST_F(NomesPadraoTeste, PadraoVazioMantemONomeEAsMarcasVemTodas) {
    Posto p = adiciona(-7, u"Ita"_s);
    p.Arquivos.ArquivoRelatorio = u"proprio.rel"_s;
    p.Arquivos.ArquivoExcel = u"[Nome do Aproveitamento].exc"_s;
    p.Arquivos.ApagarArquivoRelatorio = true;
    p.Arquivos.ApagarArquivoExcel = true;
    Opcoes padrao;
    padrao.Arquivos.ArquivoPrevisoes = u"[Código do Posto].prv"_s;
    padrao.Arquivos.ApagarArquivoDadosGerais = true;
    const auto nomes = aplica(p, padrao);
    EXPECT_EQ(nomes[0], u"proprio.rel"_s);
    EXPECT_EQ(nomes[2], u"-7.prv"_s);
    EXPECT_EQ(nomes[3], u"Ita.exc"_s) << "a station's own word is replaced too";
    EXPECT_FALSE(p.Arquivos.ApagarArquivoRelatorio) << "the flags are copied whatever their value";
    EXPECT_FALSE(p.Arquivos.ApagarArquivoExcel);
    EXPECT_TRUE(p.Arquivos.ApagarArquivoDadosGerais);
}

}  // namespace
