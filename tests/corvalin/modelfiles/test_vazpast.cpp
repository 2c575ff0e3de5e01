#include "tests/corvalin/modelfiles/CasoModelo.h"

#include <QDir>
#include <QLocale>

namespace {

using corvalin::Posto;

// A Vazpast file: three header lines, then the station lines as given.
QByteArray vazpast(const QStringList& estacoes, const QStringList& cabecalho = {{}, {}, {}}) {
    return teste::CasoModelo::linhas(cabecalho + estacoes);
}

// A station line as the writer lays it out: the code in columns 1 to 5, the values from 21 on.
QString linhaDoPosto(const QString& codigo, const QStringList& valores) {
    QString linha = codigo.rightJustified(5).leftJustified(20);
    for (const QString& valor : valores) {
        linha += valor.leftJustified(10);
    }
    return linha;
}

class VazpastTeste : public teste::CasoModelo {
protected:
    void SetUp() override {
        CasoModelo::SetUp();
        posto = teste::SaoSimao();
        posto.VazpastSemana_1 = posto.VazpastSemana_2 = posto.VazpastSemana_3 = posto.VazpastSemana_4 = -1;
    }
    // Reads the Vazpast file of posto from the folder of a general data file "SSIMAO.arq".
    bool importa(const QByteArray& bytes, bool soValida = true) {
        caminho =
            QFileInfo(arquivo(posto.NomeArqVazpast, bytes)).absolutePath() + QStringLiteral("/SSIMAO.arq");
        return arq.importaVazpast(caminho, posto, postoBD, erros, soValida);
    }
    std::array<double, 4> valores() const {
        return {posto.VazpastSemana_1, posto.VazpastSemana_2, posto.VazpastSemana_3, posto.VazpastSemana_4};
    }

    Posto posto;
    QString caminho;
};

TEST_F(VazpastTeste, GeraODouradoELeDeVolta) {
    ASSERT_TRUE(arq.geraVazpast(pastaExecucao(), teste::SaoSimao()));
    const QString arquivoGerado = gerado(33, QStringLiteral("Vazpast.dat"));
    EXPECT_EQ(conteudo(arquivoGerado), dourado(QStringLiteral("sao_simao/Vazpast.dat")));
    EXPECT_EQ(conteudo(arquivoGerado).mid(6, 26), QByteArray("   33               1523.4"))
        << "values from column 21";

    grava(teste::SaoSimao(), teste::HistoricoSaoSimao());
    ASSERT_TRUE(importa(dourado(QStringLiteral("sao_simao/Vazpast.dat")), false));
    EXPECT_TRUE(caminho.endsWith(QStringLiteral("entrada/Vazpast.dat"))) << caminho.toStdString();
    EXPECT_EQ(valores(), (std::array<double, 4>{1523.4, 1498.25, 1400, 0.5}));
    Posto lido;
    ASSERT_TRUE(le(33, lido));
    EXPECT_TRUE(lido.FlafVazpast);
    EXPECT_EQ(lido.VazpastSemana_2, 1498.25);
    EXPECT_EQ(lido.VazpastSemana_4, 0.5);
}

TEST_F(VazpastTeste, ZeroEOitoCaracteresCabemNoveNao) {
    Posto escrito = teste::SaoSimao();
    escrito.VazpastSemana_1 = 0;
    escrito.VazpastSemana_2 = 12345.67;
    escrito.VazpastSemana_3 = 2.5;
    escrito.VazpastSemana_4 = 7;
    ASSERT_TRUE(arq.geraVazpast(pastaExecucao(), escrito));
    const QString arquivoGerado = gerado(33, QStringLiteral("Vazpast.dat"));
    const QByteArray bytes = conteudo(arquivoGerado);
    EXPECT_EQ(bytes.mid(6 + 20), QByteArray("0.00      12345.67  2.50      7.00      \r\n"));
    ASSERT_TRUE(importa(bytes));
    EXPECT_EQ(valores(), (std::array<double, 4>{0, 12345.67, 2.5, 7}));

    escrito.VazpastSemana_2 = 123456.78;
    ASSERT_TRUE(arq.geraVazpast(pastaExecucao(), escrito));
    posto.VazpastSemana_1 = -1;
    EXPECT_FALSE(importa(conteudo(arquivoGerado)));
    EXPECT_EQ(erros, QStringLiteral("Vazpasts"));
    EXPECT_EQ(posto.VazpastSemana_1, 0) << "the fields before the bad one stay read";
}

TEST_F(VazpastTeste, CabecalhoPorContagemEPrimeiraLinhaDoPosto) {
    const QStringList campos = {QStringLiteral("1.00"), QStringLiteral("2.00"), QStringLiteral("3.00"),
                                QStringLiteral("4.00")};
    // A station in the third line is header; a code with decimals never matches; the first of two
    // lines wins.
    const QByteArray bytes = vazpast({linhaDoPosto(QStringLiteral("33.4"), {"9", "9", "9", "9"}),
                                      linhaDoPosto(QStringLiteral("33"), campos),
                                      linhaDoPosto(QStringLiteral("33"), {"8", "8", "8", "8"})},
                                     {{}, {}, linhaDoPosto(QStringLiteral("33"), {"7", "7", "7", "7"})});
    ASSERT_TRUE(importa(bytes));
    EXPECT_EQ(valores(), (std::array<double, 4>{1, 2, 3, 4}));

    // A station that is not there keeps its values and is no error.
    posto.Codigo = 34;
    ASSERT_TRUE(importa(bytes));
    EXPECT_EQ(valores(), (std::array<double, 4>{1, 2, 3, 4}));
    EXPECT_TRUE(erros.isEmpty());

    // A six-digit code is written whole and the blanks behind it keep the values in column 21;
    // the reader sees its first five digits.
    posto.Codigo = 123456;
    ASSERT_TRUE(arq.geraVazpast(pastaExecucao(), posto));
    const QByteArray seis = conteudo(gerado(123456, QStringLiteral("Vazpast.dat")));
    EXPECT_EQ(seis.mid(6, 24), QByteArray("123456") + QByteArray(14, ' ') + "1.00");
    posto.Codigo = 12345;
    ASSERT_TRUE(importa(seis));
    EXPECT_EQ(valores(), (std::array<double, 4>{1, 2, 3, 4}));
}

TEST_F(VazpastTeste, QualquerSeparadorEmQualquerLocalidade) {
    const QByteArray bytes = vazpast({linhaDoPosto(QStringLiteral("33"), {"12,5", "1.25", "-3", " 0,75"})});
    const QLocale antes;
    for (const char* localidade : {"pt_BR", "en_US", "C"}) {
        QLocale::setDefault(QLocale(QString::fromLatin1(localidade)));
        ASSERT_TRUE(importa(bytes)) << localidade;
        EXPECT_EQ(valores(), (std::array<double, 4>{12.5, 1.25, -3, 0.75})) << localidade;
        // The writer's "." whatever the locale.
        ASSERT_TRUE(arq.geraVazpast(pastaExecucao(), posto));
        EXPECT_EQ(conteudo(gerado(33, QStringLiteral("Vazpast.dat"))).mid(6 + 20),
                  QByteArray("12.50     1.25      -3.00     0.75      \r\n"))
            << localidade;
    }
    QLocale::setDefault(antes);
}

TEST_F(VazpastTeste, FalhasEntramNaListaMesmoSemArquivo) {
    erros = QStringLiteral("Dados Gerais");
    caminho = host.caminho(QStringLiteral("nada/SSIMAO.arq"));
    EXPECT_FALSE(arq.importaVazpast(caminho, posto, postoBD, erros, true));
    EXPECT_EQ(erros, QStringLiteral("Dados Gerais, Vazpasts")) << "a missing Vazpast file is an error";
    EXPECT_EQ(caminho, host.caminho(QStringLiteral("nada/Vazpast.dat")));

    for (const QByteArray& defeituoso :
         {vazpast({linhaDoPosto(QStringLiteral("33"), {"1", "", "3", "4"})}),
          vazpast({linhaDoPosto(QStringLiteral("33"), {"1", "2", "3", "4 t/s"})}),
          vazpast({linhaDoPosto(QStringLiteral("33"), {"1", "1.234.5", "3", "4"})}),
          QByteArray("\r\n\r\n")}) {
        erros.clear();
        EXPECT_FALSE(importa(defeituoso, false));
        EXPECT_EQ(erros, QStringLiteral("Vazpasts"));
    }
    EXPECT_EQ(contaLinhas(QStringLiteral("DadosGeraisComplemento")), 0);
}

TEST_F(VazpastTeste, PastaAteOPrimeiroNomeDoArquivoEmQualquerCaixa) {
    // The general data file's name also stands in its folder: the path is cut there.
    const QString pasta = host.caminho(QStringLiteral("ssimao.arq.d"));
    QDir().mkpath(pasta);
    caminho = pasta + QStringLiteral("/SSIMAO.ARQ");
    erros.clear();
    EXPECT_FALSE(arq.importaVazpast(caminho, posto, postoBD, erros, true));
    EXPECT_EQ(caminho, host.caminho(QStringLiteral("Vazpast.dat")));
}

}  // namespace
