#include "tests/corvalin/stations/PostosTeste.h"

#include "corvalin/options/Opcoes.h"

namespace {

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
    Posto p = adiciona(123456789, QStringLiteral("Tucuruí Grande"));
    Opcoes padrao;
    padrao.Arquivos.ArquivoRelatorio = QStringLiteral("[Código do Posto].rel");
    padrao.Arquivos.ArquivoVazoesSemanais = QStringLiteral("[nome do aproveitamento].dat");
    padrao.Arquivos.ArquivoPrevisoes = QStringLiteral("abc[Código do Posto]");
    padrao.Arquivos.ArquivoExcel = QStringLiteral("[CÓDIGO DO POSTO][Nome do Aproveitamento]");
    padrao.Arquivos.ArquivoDadosGerais = QStringLiteral("fixo.dat");
    const auto nomes = aplica(p, padrao);
    EXPECT_EQ(nomes[0], QStringLiteral("12345678.rel")) << "the code is cut to eight";
    EXPECT_EQ(nomes[1], QStringLiteral("Tucuruí .dat")) << "the name is cut to eight, case ignored";
    EXPECT_EQ(nomes[2], QStringLiteral("12345678to]")) << "what stood before is lost, part of the word stays";
    EXPECT_EQ(nomes[3], QStringLiteral("12345678[Nome do Aproveitamento]")) << "one replacement only";
    EXPECT_EQ(nomes[4], QStringLiteral("fixo.dat"));
}

TEST_F(NomesPadraoTeste, PadraoVazioMantemONomeEAsMarcasVemTodas) {
    Posto p = adiciona(-7, QStringLiteral("Ita"));
    p.Arquivos.ArquivoRelatorio = QStringLiteral("proprio.rel");
    p.Arquivos.ArquivoExcel = QStringLiteral("[Nome do Aproveitamento].exc");
    p.Arquivos.ApagarArquivoRelatorio = true;
    p.Arquivos.ApagarArquivoExcel = true;
    Opcoes padrao;
    padrao.Arquivos.ArquivoPrevisoes = QStringLiteral("[Código do Posto].prv");
    padrao.Arquivos.ApagarArquivoDadosGerais = true;
    const auto nomes = aplica(p, padrao);
    EXPECT_EQ(nomes[0], QStringLiteral("proprio.rel"));
    EXPECT_EQ(nomes[2], QStringLiteral("-7.prv"));
    EXPECT_EQ(nomes[3], QStringLiteral("Ita.exc")) << "a station's own word is replaced too";
    EXPECT_FALSE(p.Arquivos.ApagarArquivoRelatorio) << "the flags are copied whatever their value";
    EXPECT_FALSE(p.Arquivos.ApagarArquivoExcel);
    EXPECT_TRUE(p.Arquivos.ApagarArquivoDadosGerais);
}

}  // namespace
