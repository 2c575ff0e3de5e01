#include "tests/corvalin/modelfiles/CasoModelo.h"

#include <tuple>

namespace {

using namespace Qt::StringLiterals;
using corvalin::Posto;

// The general data file of São Simão, line by line.
const QStringList LinhasSaoSimao = {
    u"SSIMAO.rel"_s, u"S"_s,  u"SSIMAO.dat"_s, u"5"_s,          u"1"_s, u"SSIMAO.prv"_s,
    u"SSIMAO.exc"_s, u"95"_s, u"31"_s,         u"1997"_s,       u"0"_s, u"Vazpast.dat"_s,
    u"1997"_s,       u"33"_s, u"1"_s,          u"SSIMAO.lim"_s, u"0"_s};

// What the general data file holds of a station.
auto pNoArquivo(const Posto& p) {
    const corvalin::OpcoesArquivos& a = p.Arquivos;
    return std::tuple(a.ArquivoRelatorio, p.ImpressaoParametros, a.ArquivoVazoesSemanais, p.Transformacao,
                      p.MesInicial, a.ArquivoPrevisoes, a.ArquivoExcel, p.IntervaloConfianca,
                      p.SemanaInicialPrev, p.AnoInicialPrev, p.FlafVazpast, p.NomeArqVazpast,
                      p.AnoFinalHistorico, p.Codigo, p.FlagLimite, p.NomeArqLimite, a.CasoUsa53Semanas,
                      a.ArquivoDadosGerais);
}

class DadosGeraisTeste : public teste::CasoModelo {
protected:
    bool importa(const QString& caminho, Posto& posto, bool soValida = true) {
        return arq.importaDadosGerais(caminho, posto, postoBD, erros, progresso, soValida);
    }
    bool importaLinhas(const QStringList& texto, Posto& posto, bool soValida = true) {
        return importa(arquivo(u"DG.arq"_s, linhas(texto)), posto, soValida);
    }
    // Writes posto with the general data writer and reads it back into a new record.
    Posto idaEVolta(const Posto& posto) {
        EXPECT_TRUE(arq.geraDadosGerais(pastaExecucao(), posto, progresso));
        Posto lido;
        EXPECT_TRUE(importa(gerado(posto.Codigo, posto.Arquivos.ArquivoDadosGerais), lido));
        return lido;
    }
};

// The golden file, written and read back; read again, it is stored only when not validating.
TEST_F(DadosGeraisTeste, GeraODouradoEVoltaIgualEGuardaSoQuandoNaoEValidacao) {
    EXPECT_EQ(pNoArquivo(idaEVolta(teste::SaoSimao())), pNoArquivo(teste::SaoSimao()));
    EXPECT_EQ(conteudo(gerado(33, u"SSIMAO.arq"_s)), conteudo(dourado(u"sao_simao/SSIMAO.arq"_s)));

    Posto posto;
    posto.Codigo = 33;
    posto.Nome = u"São Simão"_s;
    ASSERT_TRUE(postoBD.setPosto(posto));
    ASSERT_TRUE(importa(dourado(u"sao_simao/SSIMAO.arq"_s), posto));
    EXPECT_EQ(caso.linhas(u"DadosGerais"_s), 0) << "validation stores nothing";

    ASSERT_TRUE(importa(dourado(u"sao_simao/SSIMAO.arq"_s), posto, false));
    EXPECT_TRUE(erros.isEmpty());
    Posto lido;
    ASSERT_TRUE(le(33, lido));
    EXPECT_EQ(pNoArquivo(lido), pNoArquivo(teste::SaoSimao()));
}

TEST_F(DadosGeraisTeste, ColunasLidasDeCadaLinha) {
    QStringList texto = LinhasSaoSimao;
    texto[0] = u"  RELATORIO123.rel  "_s;  // 12 columns, then trimmed
    texto[3] = u"10"_s;                    // one column
    texto[4] = u"123"_s;                   // two
    texto[7] = u"  95 %"_s;
    texto[9] = u"19991"_s;
    texto[13] = u"12345"_s;  // four
    texto[16] = u"1 semana a mais"_s;
    Posto p;
    ASSERT_TRUE(importaLinhas(texto, p));
    EXPECT_EQ(std::tuple(p.Arquivos.ArquivoRelatorio, p.Transformacao, p.MesInicial, p.IntervaloConfianca,
                         p.AnoInicialPrev, p.Codigo, p.Arquivos.CasoUsa53Semanas),
              std::tuple(u"RELATORIO1"_s, 1, 12, 95, 1999, 1234, 1));
}

TEST_F(DadosGeraisTeste, IdaEVoltaPerdeOQueOFormatoNaoGuarda) {
    Posto posto = teste::SaoSimao();
    posto.Codigo = 12345;
    EXPECT_EQ(idaEVolta(posto).Codigo, 1234) << "the code is read from four columns only";

    // Without limits, or with a zero switch, the switch line itself becomes the limits file name.
    posto = teste::SaoSimao();
    posto.Arquivos.NaoUsaLimite = true;
    const Posto lido = idaEVolta(posto);
    EXPECT_EQ(lido.FlagLimite, 0);
    EXPECT_EQ(lido.NomeArqLimite, u"0"_s);
    EXPECT_EQ(conteudo(gerado(33, u"SSIMAO.arq"_s)).split('\n').mid(14, 2),
              (QList<QByteArray>{" 0 \r", "\r"}));
    posto.Arquivos.NaoUsaLimite = false;
    posto.FlagLimite = 0;
    EXPECT_EQ(idaEVolta(posto).NomeArqLimite, u"0"_s);
}

}  // namespace
