#include "tests/corvalin/modelfiles/CasoModelo.h"

#include <QDir>
#include <QLocale>

namespace {

using namespace Qt::StringLiterals;
using corvalin::Posto;
using corvalin::PostoARQ;
using Valores = std::array<double, 4>;

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

TEST(PreparaFoat, DuasCasasComOSeparadorEscolhido) {
    for (const auto& [entrada, usaPonto, saida] : {std::tuple{"12", true, "12.00"},
                                                   {"12,34", true, "12.34"},
                                                   {"12.345", true, "12.345"},
                                                   {".", true, ".00"},
                                                   {"-7", true, "-7.00"},
                                                   {"1,5", true, "1.50"},
                                                   {"", true, ".00"},
                                                   {"12.5", false, "12,50"},
                                                   {"7", false, "7,00"}}) {
        QString valor = QString::fromLatin1(entrada);
        EXPECT_EQ(PostoARQ::preparaFoat_10_2(valor, usaPonto), QString::fromLatin1(saida)) << entrada;
        EXPECT_EQ(valor, QString::fromLatin1(saida)) << "changed in place";
    }
}

class VazpastTeste : public teste::CasoModelo {
protected:
    VazpastTeste() {
        posto.VazpastSemana_1 = posto.VazpastSemana_2 = posto.VazpastSemana_3 = posto.VazpastSemana_4 = -1;
    }
    // Reads the Vazpast file of posto from the folder of a general data file "SSIMAO.arq".
    bool importa(const QByteArray& bytes, bool soValida = true) {
        caminho = QFileInfo(arquivo(posto.NomeArqVazpast, bytes)).absolutePath() + u"/SSIMAO.arq"_s;
        return arq.importaVazpast(caminho, posto, postoBD, erros, soValida);
    }
    Valores valores() const {
        return {posto.VazpastSemana_1, posto.VazpastSemana_2, posto.VazpastSemana_3, posto.VazpastSemana_4};
    }
    QByteArray escrito(const Posto& p) const {
        EXPECT_TRUE(arq.geraVazpast(pastaExecucao(), p));
        return conteudo(gerado(p.Codigo, u"Vazpast.dat"_s));
    }

    Posto posto = teste::SaoSimao();
    QString caminho;
};

TEST_F(VazpastTeste, GeraODouradoELeDeVolta) {
    const QByteArray bytes = escrito(teste::SaoSimao());
    EXPECT_EQ(bytes, conteudo(dourado(u"sao_simao/Vazpast.dat"_s)));
    grava(teste::SaoSimao(), teste::HistoricoSaoSimao());
    ASSERT_TRUE(importa(bytes, false));
    EXPECT_TRUE(caminho.endsWith(u"entrada/Vazpast.dat"_s)) << caminho.toStdString();
    EXPECT_EQ(valores(), (Valores{1523.4, 1498.25, 1400, 0.5}));
    Posto lido;
    ASSERT_TRUE(le(33, lido));
    EXPECT_TRUE(lido.FlafVazpast);
    EXPECT_EQ(lido.VazpastSemana_2, 1498.25);
    EXPECT_EQ(lido.VazpastSemana_4, 0.5);
}

TEST_F(VazpastTeste, ZeroEOitoCaracteresCabemNoveNao) {
    Posto escrever = teste::SaoSimao();
    escrever.VazpastSemana_1 = 0;
    escrever.VazpastSemana_2 = 12345.67;
    escrever.VazpastSemana_3 = 2.5;
    escrever.VazpastSemana_4 = 7;
    QByteArray bytes = escrito(escrever);
    EXPECT_EQ(bytes.mid(6 + 20), QByteArray("0.00      12345.67  2.50      7.00      \r\n"));
    ASSERT_TRUE(importa(bytes));
    EXPECT_EQ(valores(), (Valores{0, 12345.67, 2.5, 7}));

    escrever.VazpastSemana_2 = 123456.78;
    posto.VazpastSemana_1 = -1;
    EXPECT_FALSE(importa(escrito(escrever)));
    EXPECT_EQ(erros, u"Vazpasts"_s);
    EXPECT_EQ(posto.VazpastSemana_1, 0) << "the fields before the bad one stay read";
}

TEST_F(VazpastTeste, CabecalhoPorContagemEPrimeiraLinhaDoPosto) {
    // A station in the third line is header; a code with decimals never matches; the first of two
    // lines wins.
    const QByteArray bytes = vazpast({linhaDoPosto(u"33.4"_s, {u"9"_s, u"9"_s, u"9"_s, u"9"_s}),
                                      linhaDoPosto(u"33"_s, {u"1.00"_s, u"2.00"_s, u"3.00"_s, u"4.00"_s}),
                                      linhaDoPosto(u"33"_s, {u"8"_s, u"8"_s, u"8"_s, u"8"_s})},
                                     {{}, {}, linhaDoPosto(u"33"_s, {u"7"_s, u"7"_s, u"7"_s, u"7"_s})});
    ASSERT_TRUE(importa(bytes));
    EXPECT_EQ(valores(), (Valores{1, 2, 3, 4}));

    // A station that is not there keeps its values and is no error.
    posto.Codigo = 34;
    ASSERT_TRUE(importa(bytes));
    EXPECT_EQ(valores(), (Valores{1, 2, 3, 4}));
    EXPECT_TRUE(erros.isEmpty());

    // A six-digit code is written whole and the blanks behind it keep the values in column 21;
    // the reader sees its first five digits.
    posto.Codigo = 123456;
    const QByteArray seis = escrito(posto);
    EXPECT_EQ(seis.mid(6, 24), QByteArray("123456") + QByteArray(14, ' ') + "1.00");
    posto.Codigo = 12345;
    ASSERT_TRUE(importa(seis));
    EXPECT_EQ(valores(), (Valores{1, 2, 3, 4}));
}

TEST_F(VazpastTeste, QualquerSeparadorEmQualquerLocalidade) {
    const QByteArray bytes = vazpast({linhaDoPosto(u"33"_s, {u"12,5"_s, u"1.25"_s, u"-3"_s, u" 0,75"_s})});
    const QLocale antes;
    for (const char* localidade : {"pt_BR", "en_US", "C"}) {
        QLocale::setDefault(QLocale(QString::fromLatin1(localidade)));
        ASSERT_TRUE(importa(bytes)) << localidade;
        EXPECT_EQ(valores(), (Valores{12.5, 1.25, -3, 0.75})) << localidade;
        EXPECT_EQ(escrito(posto).mid(6 + 20), QByteArray("12.50     1.25      -3.00     0.75      \r\n"))
            << "the writer's \".\" whatever the locale: " << localidade;
    }
    QLocale::setDefault(antes);
}

TEST_F(VazpastTeste, FalhasEntramNaListaMesmoSemArquivo) {
    erros = u"Dados Gerais"_s;
    caminho = host.caminho(u"nada/SSIMAO.arq"_s);
    EXPECT_FALSE(arq.importaVazpast(caminho, posto, postoBD, erros, true));
    EXPECT_EQ(erros, u"Dados Gerais, Vazpasts"_s) << "a missing Vazpast file is an error";
    EXPECT_EQ(caminho, host.caminho(u"nada/Vazpast.dat"_s));

    // The general data file's name also stands in its folder: the path is cut there, in any case.
    QDir().mkpath(host.caminho(u"ssimao.arq.d"_s));
    caminho = host.caminho(u"ssimao.arq.d/SSIMAO.ARQ"_s);
    EXPECT_FALSE(arq.importaVazpast(caminho, posto, postoBD, erros, true));
    EXPECT_EQ(caminho, host.caminho(u"Vazpast.dat"_s));

    // An empty field, text behind a value, two points, a header cut short.
    for (const QByteArray& defeituoso :
         {vazpast({linhaDoPosto(u"33"_s, {u"1"_s, u""_s, u"3"_s, u"4"_s})}),
          vazpast({linhaDoPosto(u"33"_s, {u"1"_s, u"2"_s, u"3"_s, u"4 t/s"_s})}),
          vazpast({linhaDoPosto(u"33"_s, {u"1"_s, u"1.234.5"_s, u"3"_s, u"4"_s})}), QByteArray("\r\n\r\n")}) {
        erros.clear();
        EXPECT_FALSE(importa(defeituoso, false));
        EXPECT_EQ(erros, u"Vazpasts"_s);
    }
    EXPECT_EQ(caso.linhas(u"DadosGeraisComplemento"_s), 0);
}

}  // namespace
