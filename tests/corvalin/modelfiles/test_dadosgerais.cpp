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
    EXPECT_EQ(progresso.Valores.back(), 100);

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
    texto[8] = u"4 7"_s;
    texto[9] = u"19991"_s;
    texto[13] = u"12345"_s;  // four
    texto[16] = u"1 semana a mais"_s;
    Posto p;
    ASSERT_TRUE(importaLinhas(texto, p));
    EXPECT_EQ(std::tuple(p.Arquivos.ArquivoRelatorio, p.Transformacao, p.MesInicial, p.IntervaloConfianca,
                         p.SemanaInicialPrev, p.AnoInicialPrev, p.Codigo, p.Arquivos.CasoUsa53Semanas),
              std::tuple(u"RELATORIO1"_s, 1, 12, 95, 4, 1999, 1234, 1));

    for (const auto& [impressao, esperado] : {std::pair{u"s"_s, true}, std::pair{u"Sim"_s, true},
                                              std::pair{u"n"_s, false}, std::pair{u" S"_s, false}}) {
        texto[1] = impressao;
        ASSERT_TRUE(importaLinhas(texto, p));
        EXPECT_EQ(p.ImpressaoParametros, esperado) << impressao.toStdString();
    }

    // Switch 1: no past-flows file, and the name on the next line is not taken.
    texto[10] = u"1"_s;
    texto[11] = u"OUTRO.dat"_s;
    p.NomeArqVazpast = u"ANTES.dat"_s;
    ASSERT_TRUE(importaLinhas(texto, p));
    EXPECT_FALSE(p.FlafVazpast);
    EXPECT_EQ(p.NomeArqVazpast, u"ANTES.dat"_s);
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

// Fifteen lines with a zero switch end cleanly; sixteen leave the 53-week switch alone.
TEST_F(DadosGeraisTeste, FimDoArquivoNasLinhasOpcionais) {
    QStringList texto = LinhasSaoSimao;
    texto[14] = u"0"_s;
    Posto p;
    p.Arquivos.CasoUsa53Semanas = 1;
    p.NomeArqLimite = u"ANTES.lim"_s;
    ASSERT_TRUE(importaLinhas(texto.mid(0, 15), p));
    EXPECT_EQ(std::pair(p.NomeArqLimite, p.Arquivos.CasoUsa53Semanas),
              std::pair(u"ANTES.lim"_s, std::uint8_t{1}));
    EXPECT_EQ(progresso.Valores.back(), 100);
    ASSERT_TRUE(importaLinhas(texto.mid(0, 16), p));
    EXPECT_EQ(std::pair(p.NomeArqLimite, p.Arquivos.CasoUsa53Semanas), std::pair(u"0"_s, std::uint8_t{1}));
    ASSERT_TRUE(importaLinhas(texto, p));
    EXPECT_EQ(p.Arquivos.CasoUsa53Semanas, 0);
}

TEST_F(DadosGeraisTeste, FalhasNaoGuardamNadaEDeixamOQueFoiLido) {
    Posto posto;
    EXPECT_FALSE(importa(host.caminho(u"nada.arq"_s), posto, false));
    EXPECT_TRUE(erros.isEmpty()) << "a missing file is no entry";
    EXPECT_TRUE(posto.Arquivos.ArquivoDadosGerais.isEmpty());

    QStringList intervalo = LinhasSaoSimao;
    intervalo[7] = u"40000"_s;
    QStringList mes = LinhasSaoSimao;
    mes[4] = u"-1"_s;
    // Too short; a nonzero limits switch without its name line; values beyond their types; empty.
    for (const QStringList& defeituoso :
         {LinhasSaoSimao.mid(0, 13), LinhasSaoSimao.mid(0, 15), intervalo, mes, QStringList()}) {
        erros = u"Vazões Semanais"_s;
        posto = Posto();
        EXPECT_FALSE(importaLinhas(defeituoso, posto, false)) << defeituoso.size();
        EXPECT_EQ(erros, u"Vazões Semanais, Dados Gerais"_s);
        EXPECT_EQ(posto.Arquivos.ArquivoDadosGerais, u"DG.arq"_s);
    }
    EXPECT_FALSE(importaLinhas(intervalo, posto, false));
    EXPECT_EQ(posto.Arquivos.ArquivoExcel, u"SSIMAO.exc"_s) << "what was read stays";
    EXPECT_EQ(caso.linhas(u"DadosGerais"_s) + caso.linhas(u"DadosGeraisComplemento"_s), 0);
}

}  // namespace
