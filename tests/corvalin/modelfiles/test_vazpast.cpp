#include "tests/corvalin/modelfiles/CasoModelo.h"

#include <QFileInfo>
#include <QLocale>

namespace {

using namespace Qt::StringLiterals;
using corvalin::Posto;
using Valores = std::array<double, 4>;

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

// Under a locale with the decimal comma: the file keeps its points both ways.
TEST_F(VazpastTeste, GeraODouradoELeDeVolta) {
    const QLocale antes;
    QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil));
    const QByteArray bytes = escrito(teste::SaoSimao());
    EXPECT_EQ(bytes, conteudo(dourado(u"sao_simao/Vazpast.dat"_s)));
    grava(teste::SaoSimao(), teste::HistoricoSaoSimao());
    ASSERT_TRUE(importa(bytes, false));
    QLocale::setDefault(antes);
    EXPECT_TRUE(caminho.endsWith(u"entrada/Vazpast.dat"_s)) << caminho.toStdString();
    EXPECT_EQ(valores(), (Valores{1523.4, 1498.25, 1400, 0.5}));
    Posto lido;
    ASSERT_TRUE(le(33, lido));
    EXPECT_TRUE(lido.FlafVazpast);
    EXPECT_EQ(lido.VazpastSemana_2, 1498.25);
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

// A station in the third line is header; the first of two station lines wins; either separator reads.
TEST_F(VazpastTeste, CabecalhoPorContagemEPrimeiraLinhaDoPosto) {
    const QByteArray bytes =
        linhas({QString(), QString(), linhaDoPosto(u"33"_s, {u"7"_s, u"7"_s, u"7"_s, u"7"_s}),
                linhaDoPosto(u"33"_s, {u"1,5"_s, u"2.00"_s, u"-3"_s, u" 4,25"_s}),
                linhaDoPosto(u"33"_s, {u"8"_s, u"8"_s, u"8"_s, u"8"_s})});
    ASSERT_TRUE(importa(bytes));
    EXPECT_EQ(valores(), (Valores{1.5, 2, -3, 4.25}));

    // A station that is not there keeps its values and is no error.
    posto.Codigo = 34;
    posto.VazpastSemana_1 = -1;
    ASSERT_TRUE(importa(bytes));
    EXPECT_EQ(posto.VazpastSemana_1, -1);
    EXPECT_TRUE(erros.isEmpty());
}

}  // namespace
