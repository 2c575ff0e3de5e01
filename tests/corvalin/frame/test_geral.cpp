#include "corvalin/frame/Geral.h"
#include "platform/runtime/ErroVB.h"
#include "tests/doubles/HostTeste.h"

#include <QFile>
#include <QLocale>

#include <gtest/gtest.h>

namespace {

using corvalin::MsgErro;

TEST(MsgErro, MontaOTextoComRetornosDeCarroEObservacaoSoQuandoHa) {
    teste::HostTeste host;
    MsgErro(13, QStringLiteral("Tipos incompatíveis"), QStringLiteral("pGravar"), QStringLiteral("FrmPostos"),
            QStringLiteral("   "));
    MsgErro(6, QStringLiteral("Estouro"), QStringLiteral("Form_Load"), QStringLiteral("FrmOpcoes"),
            QStringLiteral(" ver linha 3 "));
    ASSERT_EQ(host.dialogo.Mensagens().size(), 2u);
    const auto& primeira = host.dialogo.Mensagens()[0];
    EXPECT_EQ(
        primeira.texto,
        QStringLiteral("Durante a execução do programa ocorreu o seguinte erro:\r\rErro.: 13\rDescrição.: "
                       "Tipos incompatíveis\rRotina.: pGravar\rMódulo.: FrmPostos"));
    EXPECT_EQ(primeira.titulo, QStringLiteral("Atenção..."));
    EXPECT_EQ(primeira.icone, halvo::Icone::Erro);
    EXPECT_TRUE(host.dialogo.Mensagens()[1].texto.endsWith(
        QStringLiteral("Módulo.: FrmOpcoes\r\r\rObservação.:  ver linha 3 ")))
        << "the remark goes untrimmed";
    ASSERT_FALSE(host.dialogo.Ponteiros().empty());
    EXPECT_EQ(host.dialogo.Ponteiros().front(), halvo::Ponteiro::Seta)
        << "a busy pointer must not survive an error";
}

TEST(DimensionaLimites, LimitesPorAgrupamento) {
    plataforma::Vetor<std::int16_t> periodos;
    plataforma::Vetor<float> inferior;
    plataforma::Vetor<float> superior;
    const struct {
        std::uint8_t codigo;
        std::uint8_t usa53;
        int limite;
    } casos[] = {{1, 0, 52}, {1, 1, 53}, {2, 1, 12}, {3, 0, 4}, {4, 0, 2}, {0, 0, 0}, {5, 1, 0}};
    for (const auto& c : casos) {
        inferior.ReDim(3);
        inferior[3] = 9.0F;
        corvalin::DimensionaLimites(c.codigo, periodos, inferior, superior, c.usa53);
        EXPECT_EQ(periodos.UBound(), c.limite) << int(c.codigo);
        EXPECT_EQ(inferior.UBound(), c.limite);
        EXPECT_EQ(superior.UBound(), c.limite);
        if (c.limite >= 3) {
            EXPECT_EQ(inferior[3], 0.0F) << "sizing does not keep the contents";
        }
    }
}

TEST(LeStringIni, SeparadorDoUsuarioEAsteriscoQuandoFalta) {
    const QLocale anterior;
    QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil));
    EXPECT_EQ(
        corvalin::LeStringIni(QStringLiteral("WIN.INI"), QStringLiteral("intl"), QStringLiteral("sDecimal")),
        QStringLiteral(","));
    QLocale::setDefault(QLocale::c());
    EXPECT_EQ(
        corvalin::LeStringIni(QStringLiteral("WIN.INI"), QStringLiteral("intl"), QStringLiteral("sDecimal")),
        QStringLiteral("."));
    QLocale::setDefault(anterior);
    EXPECT_EQ(
        corvalin::LeStringIni(QStringLiteral("WIN.INI"), QStringLiteral("intl"), QStringLiteral("sLista")),
        QStringLiteral("*"));

    QTemporaryDir dir;
    const QString ini = dir.filePath(QStringLiteral("teste.ini"));
    QFile arquivo(ini);
    ASSERT_TRUE(arquivo.open(QIODevice::WriteOnly));
    arquivo.write("[secao]\nchave=" + QByteArray(150, 'x') + "\n");
    arquivo.close();
    EXPECT_EQ(corvalin::LeStringIni(ini, QStringLiteral("secao"), QStringLiteral("chave")), QString(99, u'x'))
        << "the reader's buffer holds 100 characters with its terminator";
    EXPECT_EQ(corvalin::LeStringIni(ini, QStringLiteral("secao"), QStringLiteral("outra")),
              QStringLiteral("*"));
}

TEST(AbreArquivoGravacao, FazAPastaOuFalhaSemMensagem) {
    teste::HostTeste host;
    const QString caminho = host.caminho(QStringLiteral("1234/sub/Caso.dat"));
    {
        auto arquivo = corvalin::AbreArquivoGravacao(caminho);
        ASSERT_NE(arquivo, nullptr);
        arquivo->Print(QStringLiteral("1234.arq"));
    }
    QFile lido(caminho);
    ASSERT_TRUE(lido.open(QIODevice::ReadOnly));
    EXPECT_EQ(lido.readAll(), "1234.arq\r\n");

    QFile bloqueio(host.caminho(QStringLiteral("arquivo")));
    ASSERT_TRUE(bloqueio.open(QIODevice::WriteOnly));
    bloqueio.close();
    EXPECT_EQ(corvalin::AbreArquivoGravacao(host.caminho(QStringLiteral("arquivo/x.dat"))), nullptr)
        << "a file where the folder should be";
    EXPECT_TRUE(host.dialogo.Mensagens().empty());
}

}  // namespace
