#include "tests/corvalin/modelfiles/CasoModelo.h"

namespace {

using corvalin::Posto;

// The general data file of São Simão, line by line.
QStringList linhasSaoSimao() {
    return {QStringLiteral("SSIMAO.rel"), QStringLiteral("S"),  QStringLiteral("SSIMAO.dat"),
            QStringLiteral("5"),          QStringLiteral("1"),  QStringLiteral("SSIMAO.prv"),
            QStringLiteral("SSIMAO.exc"), QStringLiteral("95"), QStringLiteral("31"),
            QStringLiteral("1997"),       QStringLiteral("0"),  QStringLiteral("Vazpast.dat"),
            QStringLiteral("1997"),       QStringLiteral("33"), QStringLiteral("1"),
            QStringLiteral("SSIMAO.lim"), QStringLiteral("0")};
}

class DadosGeraisTeste : public teste::CasoModelo {
protected:
    bool importa(const QString& caminho, Posto& posto, bool soValida = false) {
        return arq.importaDadosGerais(caminho, posto, postoBD, erros, progresso, soValida);
    }
    // Writes the lines as a general data file and reads it into posto.
    bool importaLinhas(const QStringList& texto, Posto& posto, bool soValida = true) {
        return importa(arquivo(QStringLiteral("DG.arq"), linhas(texto)), posto, soValida);
    }
    // Writes posto with the general data writer and reads it back into a new record.
    Posto idaEVolta(const Posto& posto) {
        EXPECT_TRUE(arq.geraDadosGerais(pastaExecucao(), posto, progresso));
        Posto lido;
        EXPECT_TRUE(importa(gerado(posto.Codigo, posto.Arquivos.ArquivoDadosGerais), lido, true));
        return lido;
    }
};

TEST_F(DadosGeraisTeste, GeraODouradoComPassosDeUmOitavo) {
    ASSERT_TRUE(arq.geraDadosGerais(pastaExecucao(), teste::SaoSimao(), progresso));
    EXPECT_EQ(conteudo(gerado(33, QStringLiteral("SSIMAO.arq"))),
              dourado(QStringLiteral("sao_simao/SSIMAO.arq")));
    EXPECT_EQ(dourado(QStringLiteral("sao_simao/SSIMAO.arq")), linhas(linhasSaoSimao()));
    const std::vector<double> passos = {0,     12.5, 25,    31.25, 37.5,   43.75, 50,     56.25, 62.5,
                                        68.75, 75,   81.25, 87.5,  90.625, 93.75, 96.875, 100,   100};
    EXPECT_EQ(progresso.Valores, passos);
}

TEST_F(DadosGeraisTeste, LeODouradoEGuardaSoQuandoNaoEValidacao) {
    Posto posto;
    posto.Codigo = 33;
    posto.Nome = QStringLiteral("São Simão");
    ASSERT_TRUE(postoBD.setPosto(posto));
    posto = Posto();
    ASSERT_TRUE(importa(caminhoDourado(QStringLiteral("sao_simao/SSIMAO.arq")), posto, true));
    EXPECT_EQ(contaLinhas(QStringLiteral("DadosGerais")), 0) << "validation stores nothing";
    const std::vector<double> passos = {0,  12.5,   25,    37.5, 50, 62.5,  68.75,
                                        75, 78.125, 81.25, 87.5, 90, 93.75, 100};
    EXPECT_EQ(progresso.Valores, passos);

    posto = Posto();
    ASSERT_TRUE(importa(caminhoDourado(QStringLiteral("sao_simao/SSIMAO.arq")), posto));
    EXPECT_TRUE(erros.isEmpty());
    Posto lido;
    ASSERT_TRUE(le(33, lido));
    const Posto esperado = teste::SaoSimao();
    EXPECT_EQ(lido.Arquivos.ArquivoRelatorio, esperado.Arquivos.ArquivoRelatorio);
    EXPECT_EQ(lido.Arquivos.ArquivoVazoesSemanais, esperado.Arquivos.ArquivoVazoesSemanais);
    EXPECT_EQ(lido.Arquivos.ArquivoPrevisoes, esperado.Arquivos.ArquivoPrevisoes);
    EXPECT_EQ(lido.Arquivos.ArquivoExcel, esperado.Arquivos.ArquivoExcel);
    EXPECT_EQ(lido.Arquivos.ArquivoDadosGerais, QStringLiteral("SSIMAO.arq")) << "the name of the file read";
    EXPECT_EQ(lido.Arquivos.CasoUsa53Semanas, 0);
    EXPECT_TRUE(lido.ImpressaoParametros);
    EXPECT_EQ(lido.Transformacao, 5);
    EXPECT_EQ(lido.MesInicial, 1);
    EXPECT_EQ(lido.IntervaloConfianca, 95);
    EXPECT_EQ(lido.SemanaInicialPrev, 31);
    EXPECT_EQ(lido.AnoInicialPrev, 1997);
    EXPECT_TRUE(lido.FlafVazpast);
    EXPECT_EQ(lido.NomeArqVazpast, QStringLiteral("Vazpast.dat"));
    EXPECT_EQ(lido.AnoFinalHistorico, 1997);
    EXPECT_EQ(lido.FlagLimite, 1);
    EXPECT_EQ(lido.NomeArqLimite, QStringLiteral("SSIMAO.lim"));
}

TEST_F(DadosGeraisTeste, ColunasLidasDeCadaLinha) {
    QStringList texto = linhasSaoSimao();
    texto[0] = QStringLiteral("  RELATORIO123.rel  ");  // 12 columns, then trimmed
    texto[3] = QStringLiteral("10");                    // one column
    texto[4] = QStringLiteral("123");                   // two columns
    texto[7] = QStringLiteral("  95 %");
    texto[8] = QStringLiteral("4 7");
    texto[9] = QStringLiteral("19991");
    texto[13] = QStringLiteral("12345");  // four columns
    texto[16] = QStringLiteral("1 semana a mais");
    Posto posto;
    ASSERT_TRUE(importaLinhas(texto, posto));
    EXPECT_EQ(posto.Arquivos.ArquivoRelatorio, QStringLiteral("RELATORIO1"));
    EXPECT_EQ(posto.Transformacao, 1);
    EXPECT_EQ(posto.MesInicial, 12);
    EXPECT_EQ(posto.IntervaloConfianca, 95);
    EXPECT_EQ(posto.SemanaInicialPrev, 4);
    EXPECT_EQ(posto.AnoInicialPrev, 1999);
    EXPECT_EQ(posto.Codigo, 1234);
    EXPECT_EQ(posto.Arquivos.CasoUsa53Semanas, 1);

    for (const auto& [impressao, esperado] :
         {std::pair{QStringLiteral("s"), true}, std::pair{QStringLiteral("Sim"), true},
          std::pair{QStringLiteral("N"), false}, std::pair{QStringLiteral("n"), false},
          std::pair{QStringLiteral(" S"), false}, std::pair{QString(), false}}) {
        texto[1] = impressao;
        ASSERT_TRUE(importaLinhas(texto, posto));
        EXPECT_EQ(posto.ImpressaoParametros, esperado) << impressao.toStdString();
    }

    // Switch 1: no past-flows file, and the name on the next line is not taken.
    texto[10] = QStringLiteral("1");
    texto[11] = QStringLiteral("OUTRO.dat");
    posto.NomeArqVazpast = QStringLiteral("ANTES.dat");
    ASSERT_TRUE(importaLinhas(texto, posto));
    EXPECT_FALSE(posto.FlafVazpast);
    EXPECT_EQ(posto.NomeArqVazpast, QStringLiteral("ANTES.dat"));
}

TEST_F(DadosGeraisTeste, IdaEVoltaPerdeOQueOFormatoNaoGuarda) {
    Posto posto = teste::SaoSimao();
    Posto lido = idaEVolta(posto);
    EXPECT_EQ(lido.Codigo, 33);
    EXPECT_EQ(lido.NomeArqLimite, QStringLiteral("SSIMAO.lim"));

    // The code is read from four columns only.
    posto.Codigo = 12345;
    EXPECT_EQ(idaEVolta(posto).Codigo, 1234);

    // Without limits, or with a zero switch, the switch line itself becomes the limits file name.
    posto = teste::SaoSimao();
    posto.Arquivos.NaoUsaLimite = true;
    lido = idaEVolta(posto);
    EXPECT_EQ(lido.FlagLimite, 0);
    EXPECT_EQ(lido.NomeArqLimite, QStringLiteral("0"));
    EXPECT_EQ(conteudo(gerado(33, QStringLiteral("SSIMAO.arq"))).split('\n').mid(14, 2),
              (QList<QByteArray>{" 0 \r", "\r"}));
    posto.Arquivos.NaoUsaLimite = false;
    posto.FlagLimite = 0;
    EXPECT_EQ(idaEVolta(posto).NomeArqLimite, QStringLiteral("0"));
}

TEST_F(DadosGeraisTeste, FimDoArquivoNasLinhasOpcionais) {
    QStringList texto = linhasSaoSimao();
    texto[14] = QStringLiteral("0");
    Posto posto;
    posto.NomeArqLimite = QStringLiteral("ANTES.lim");
    posto.Arquivos.CasoUsa53Semanas = 1;

    // Fifteen lines with a zero switch end cleanly; sixteen leave the 53-week switch alone.
    ASSERT_TRUE(importaLinhas(texto.mid(0, 15), posto));
    EXPECT_EQ(posto.NomeArqLimite, QStringLiteral("ANTES.lim"));
    EXPECT_EQ(posto.Arquivos.CasoUsa53Semanas, 1);
    EXPECT_EQ(progresso.Valores.back(), 100);
    ASSERT_TRUE(importaLinhas(texto.mid(0, 16), posto));
    EXPECT_EQ(posto.NomeArqLimite, QStringLiteral("0"));
    EXPECT_EQ(posto.Arquivos.CasoUsa53Semanas, 1);
    ASSERT_TRUE(importaLinhas(texto, posto));
    EXPECT_EQ(posto.Arquivos.CasoUsa53Semanas, 0);
    EXPECT_TRUE(erros.isEmpty());
}

TEST_F(DadosGeraisTeste, FalhasNaoGuardamNadaEDeixamOQueFoiLido) {
    Posto posto;
    EXPECT_FALSE(importa(host.caminho(QStringLiteral("nada.arq")), posto));
    EXPECT_TRUE(erros.isEmpty());
    EXPECT_TRUE(posto.Arquivos.ArquivoDadosGerais.isEmpty());

    const QStringList texto = linhasSaoSimao();
    QStringList semLimites = texto.mid(0, 15);  // a nonzero switch needs its name line
    QStringList intervalo = texto;
    intervalo[7] = QStringLiteral("40000");
    QStringList mes = texto;
    mes[4] = QStringLiteral("-1");
    for (const QStringList& defeituoso : {texto.mid(0, 13), semLimites, intervalo, mes, QStringList()}) {
        erros = QStringLiteral("Vazões Semanais");
        posto = Posto();
        EXPECT_FALSE(importaLinhas(defeituoso, posto, false)) << defeituoso.size();
        EXPECT_EQ(erros, QStringLiteral("Vazões Semanais, Dados Gerais"));
        EXPECT_EQ(posto.Arquivos.ArquivoDadosGerais, QStringLiteral("DG.arq"));
    }
    EXPECT_EQ(posto.Arquivos.ArquivoRelatorio, QString()) << "an empty file reads nothing";
    posto = Posto();
    EXPECT_FALSE(importaLinhas(intervalo, posto, false));
    EXPECT_EQ(posto.Arquivos.ArquivoExcel, QStringLiteral("SSIMAO.exc")) << "what was read stays";
    EXPECT_EQ(contaLinhas(QStringLiteral("DadosGerais")), 0);
    EXPECT_EQ(contaLinhas(QStringLiteral("DadosGeraisComplemento")), 0);
}

}  // namespace
