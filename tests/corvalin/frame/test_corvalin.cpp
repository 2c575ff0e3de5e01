#include "corvalin/casedb/casoBD.h"
#include "corvalin/frame/Corvalin.h"
#include "halvo/sdk/NotificadorRegistro.h"
#include "platform/runtime/ErroVB.h"
#include "tests/doubles/HostTeste.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

namespace {

using corvalin::Corvalin;

// Records which screen was asked for, instead of making one.
class AberturaGravadora : public corvalin::AberturaTelas {
public:
    explicit AberturaGravadora(std::vector<QString>& abertas) : mAbertas(abertas) {}
    bool Abrir(const QString& tela, const corvalin::ObjetosCaso& objetos, std::int16_t, std::int32_t,
               QObject*) override {
        EXPECT_TRUE(objetos.casoBD && objetos.CamadaAcesso) << "every screen gets the case's objects";
        mAbertas.push_back(tela);
        return true;
    }

private:
    std::vector<QString>& mAbertas;
};

// Construction tells the host its model; the interface version is "3." and the project's three parts.
TEST(Corvalin, RegistraOModeloNoHost) {
    teste::HostTeste host;
    Corvalin modelo;
    EXPECT_EQ(host.halvo.Modelos, std::vector<std::int16_t>{6});
    EXPECT_TRUE(modelo.VersaoInterface().startsWith(QStringLiteral("3.")));
    EXPECT_EQ(modelo.VersaoInterface().count(u'.'), 3);
}

TEST(Corvalin, TabelaDeTelasPorGrupo) {
    teste::HostTeste host;
    std::vector<QString> abertas;
    Corvalin modelo(std::make_unique<AberturaGravadora>(abertas));
    ASSERT_EQ(modelo.Telas(1)->size(), 5u) << "position 0 stays empty";
    EXPECT_TRUE((*modelo.Telas(1))[0].Titulo.isEmpty());
    EXPECT_FALSE(modelo.Telas(5).has_value());
    EXPECT_FALSE(modelo.Telas(0).has_value());

    EXPECT_EQ(modelo.JanelaAbrir(5, 1, nullptr), 0);
    EXPECT_EQ(modelo.JanelaAbrir(1, 5, nullptr), 0);
    EXPECT_TRUE(abertas.empty());
    EXPECT_EQ(modelo.JanelaAbrir(3, 1, nullptr), 1);
    EXPECT_EQ(modelo.JanelaAbrir(2, 4, nullptr), 1);
    EXPECT_EQ(abertas, (std::vector<QString>{QStringLiteral("FrmPostos"), QStringLiteral("FrmGrafico")}));
}

TEST(Corvalin, CodigoDoCasoSemGuarda) {
    teste::HostTeste host;
    Corvalin modelo;
    ASSERT_EQ(modelo.CriarCaso(host.caminho(QStringLiteral("c"))), 1);
    auto caso = std::make_shared<teste::CasoTeste>(host.caminho(QStringLiteral("c")));
    ASSERT_EQ(modelo.AbrirCaso(caso, std::make_shared<halvo::NotificadorRegistro>()), 1);
    EXPECT_EQ(modelo.CodigoDoCaso(), 7);
    caso->setItem(QStringLiteral("Codigo"), QStringLiteral("sete"));
    EXPECT_THROW(modelo.CodigoDoCaso(), plataforma::ErroVB);
    EXPECT_EQ(modelo.FecharCaso(), 1);
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
    EXPECT_TRUE(de.endsWith(QDir::separator()));
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
