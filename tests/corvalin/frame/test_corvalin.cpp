#include "corvalin/casedb/casoBD.h"
#include "corvalin/frame/Corvalin.h"
#include "corvalin/frame/Geral.h"
#include "halvo/sdk/NotificadorRegistro.h"
#include "tests/doubles/HostTeste.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

namespace {

using corvalin::Corvalin;

TEST(MsgErro, MontaOTextoComRetornosDeCarroEObservacaoSoQuandoHa) {
    teste::HostTeste host;
    corvalin::MsgErro(13, QStringLiteral("Tipos incompatíveis"), QStringLiteral("pGravar"),
                      QStringLiteral("FrmPostos"), QStringLiteral("   "));
    corvalin::MsgErro(6, QStringLiteral("Estouro"), QStringLiteral("Form_Load"), QStringLiteral("FrmOpcoes"),
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

TEST(Corvalin, CopiaSoComCasoAbertoEUmaVezPorAbertura) {
    teste::HostTeste host;
    Corvalin modelo;
    const QString origem = host.caminho(QStringLiteral("origem"));
    ASSERT_EQ(modelo.CriarCaso(origem), 1);
    QFile extra(origem + QStringLiteral("/notas.txt"));
    ASSERT_TRUE(extra.open(QIODevice::WriteOnly));
    extra.close();
    ASSERT_TRUE(QDir(origem).mkdir(QStringLiteral("1234")));

    QString de = origem;
    QString para = host.caminho(QStringLiteral("destino"));
    EXPECT_EQ(modelo.CopiarCaso(de, para), 0) << "no database is open";

    ASSERT_EQ(modelo.AbrirCaso(std::make_shared<teste::CasoTeste>(origem),
                               std::make_shared<halvo::NotificadorRegistro>()),
              1);
    EXPECT_EQ(modelo.CopiarCaso(de, para), 1);
    const QStringList copiados = QDir(para).entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name);
    EXPECT_EQ(copiados, (QStringList{QStringLiteral("Corvalin.mdb"), QStringLiteral("notas.txt")}))
        << "files only: station folders stay behind";
    EXPECT_EQ(modelo.CopiarCaso(de, para), 0) << "the copy closed the database";
    modelo.FecharCaso();

    // The copy is a case of its own.
    Corvalin outro;
    ASSERT_EQ(outro.AbrirCaso(std::make_shared<teste::CasoTeste>(para),
                              std::make_shared<halvo::NotificadorRegistro>()),
              1);
    outro.FecharCaso();
}

TEST(Corvalin, ApagaPastaDoCaso) {
    teste::HostTeste host;
    Corvalin modelo;
    const QString pasta = host.caminho(QStringLiteral("c"));
    ASSERT_EQ(modelo.CriarCaso(pasta), 1);
    EXPECT_EQ(modelo.ApagarCaso(pasta), 1);
    EXPECT_FALSE(QDir(pasta).exists());
    EXPECT_EQ(modelo.ApagarCaso(pasta), 0);
    EXPECT_TRUE(host.dialogo.Mensagens().empty());
    EXPECT_EQ(host.dialogo.Ponteiros().back(), halvo::Ponteiro::Padrao);
}

}  // namespace
