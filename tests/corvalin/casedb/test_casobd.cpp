#include "corvalin/casedb/casoBD.h"
#include "platform/runtime/ErroVB.h"
#include "tests/corvalin/casedb/BancoAntigo.h"
#include "tests/doubles/HostTeste.h"

#include <QFile>

#include <gtest/gtest.h>

namespace {

using corvalin::casoBD;
using recordstore::Database;

QStringList nomesDosCampos(const Database& bd, const QString& tabela) {
    QStringList nomes;
    for (const auto& campo : bd.Fields(tabela)) {
        nomes << campo.Name;
    }
    return nomes;
}

class CasoBDTeste : public ::testing::Test {
protected:
    QString pasta() const { return host.caminho(QStringLiteral("caso")); }
    QString arquivo() const { return pasta() + QStringLiteral("/Corvalin.mdb"); }
    teste::CasoTeste caso() const { return teste::CasoTeste(pasta()); }

    teste::HostTeste host;
};

TEST_F(CasoBDTeste, CriarFazOitoTabelasVaziasEAbrirEscreveAIdentificacao) {
    {
        casoBD bd;
        ASSERT_TRUE(bd.Criar(pasta()));
        const auto tabelas = bd.BancoDeDados().NomesDasTabelas();
        EXPECT_EQ(tabelas.size(), 8u);
        for (const char* nome : {"CasoCORVALIN", "Opcoes", "Postos", "DadosGerais", "DadosGeraisComplemento",
                                 "VazoesSemanais", "VazoesPrevistas", "LimitesPrevisao"}) {
            EXPECT_TRUE(bd.BancoDeDados().ExisteTabela(QString::fromLatin1(nome))) << nome;
            auto tabela = bd.BancoDeDados().OpenRecordset(QString::fromLatin1(nome));
            EXPECT_TRUE(tabela->Bof() && tabela->Eof()) << nome << " starts empty";
        }
        EXPECT_EQ(bd.BancoDeDados().Fields(QStringLiteral("DadosGerais")).size(), 15u);
        bd.Fechar();
    }
    teste::CasoTeste c = caso();
    for (const char* nome : {"Primeiro", "Segundo"}) {
        c.setItem(QStringLiteral("Nome"), QString::fromLatin1(nome));
        casoBD bd;
        ASSERT_TRUE(bd.Abrir(c, false, true));
        bd.Fechar();
    }
    auto bd = Database::OpenDatabase(arquivo());
    auto tabela = bd->OpenRecordset(QStringLiteral("CasoCORVALIN"));
    ASSERT_FALSE(tabela->Eof());
    EXPECT_EQ(tabela->campo(QStringLiteral("Titulo")).paraTexto(), QStringLiteral("Segundo"))
        << "the identification is rewritten at every opening";
    EXPECT_EQ(tabela->campo(QStringLiteral("Autor")).paraTexto(), QStringLiteral("Halvo"));
    EXPECT_EQ(tabela->campo(QStringLiteral("Comentarios")).paraTexto(), QStringLiteral("Teste"));
    EXPECT_EQ(tabela->campo(QStringLiteral("Data")).paraDataHora().date(), QDate(2026, 11, 22));
    EXPECT_EQ(tabela->campo(QStringLiteral("Hora")).paraDataHora().time(), QTime(10, 30));
    EXPECT_TRUE(tabela->campo(QStringLiteral("Versao")).paraTexto().startsWith(QStringLiteral("3.")));
    tabela->MoveNext();
    EXPECT_TRUE(tabela->Eof()) << "one identification row";
    EXPECT_TRUE(host.dialogo.Mensagens().empty());
}

TEST_F(CasoBDTeste, FalhasDeCriacaoEAberturaComSuasMensagens) {
    casoBD bd;
    ASSERT_TRUE(bd.Criar(pasta()));
    bd.Fechar();
    EXPECT_FALSE(bd.Criar(pasta())) << "a folder that holds a case already";
    ASSERT_EQ(host.dialogo.Mensagens().size(), 1u);
    EXPECT_EQ(host.dialogo.Mensagens()[0].texto, QStringLiteral("Erro ao criar banco de dados."));
    EXPECT_EQ(host.dialogo.Mensagens()[0].titulo, QStringLiteral("Erro"));
    EXPECT_EQ(host.dialogo.Mensagens()[0].icone, halvo::Icone::Erro);

    QFile(host.caminho(QStringLiteral("bloqueio"))).open(QIODevice::WriteOnly);
    EXPECT_FALSE(bd.Criar(host.caminho(QStringLiteral("bloqueio/caso"))));
    EXPECT_EQ(host.dialogo.Mensagens().back().texto, QStringLiteral("Erro ao criar diretório."));

    const teste::CasoTeste vazio(host.caminho(QStringLiteral("nada")));
    EXPECT_FALSE(bd.Abrir(vazio, true, true));
    EXPECT_EQ(host.dialogo.Mensagens().size(), 2u) << "silent";
    EXPECT_FALSE(bd.Abrir(vazio, false, true));
    EXPECT_EQ(host.dialogo.Mensagens().back().texto, QStringLiteral("Caso inexistente."));
    EXPECT_EQ(host.dialogo.Ponteiros().back(), halvo::Ponteiro::Padrao);
}

TEST_F(CasoBDTeste, ArquivoQueNaoECasoEstaDanificado) {
    ASSERT_TRUE(QDir().mkpath(pasta()));
    {
        QFile lixo(arquivo());
        ASSERT_TRUE(lixo.open(QIODevice::WriteOnly));
        lixo.write(QByteArray(4096, 'x'));
    }
    casoBD bd;
    EXPECT_FALSE(bd.Abrir(caso(), false, true));
    ASSERT_EQ(host.dialogo.Mensagens().size(), 1u);
    EXPECT_EQ(host.dialogo.Mensagens()[0].texto,
              QStringLiteral("O banco de dados referente a esse Caso está danificado ou não é de um Caso Corvalinh."));

    // A database that lacks one of the five core tables is foreign too.
    QFile::remove(arquivo());
    ASSERT_TRUE(executaSqlite3(arquivo(), sqlCincoTabelas() + QStringLiteral("DROP TABLE Opcoes;")));
    EXPECT_FALSE(bd.Abrir(caso(), true, true));
    EXPECT_THROW(bd.BancoDeDados(), plataforma::ErroVB) << "the database is closed again";
}

TEST_F(CasoBDTeste, VersaoAntigaGanhaOQueFaltaEGuardaSuasLinhas) {
    ASSERT_TRUE(QDir().mkpath(pasta()));
    ASSERT_TRUE(executaSqlite3(arquivo(), sqlCincoTabelas()));
    casoBD bd;
    ASSERT_TRUE(bd.Abrir(caso(), false, true));
    auto& banco = bd.BancoDeDados();
    for (const char* nova : {"DadosGeraisComplemento", "VazoesPrevistas", "LimitesPrevisao"}) {
        EXPECT_TRUE(banco.ExisteTabela(QString::fromLatin1(nova))) << nova;
    }
    EXPECT_TRUE(nomesDosCampos(banco, QStringLiteral("DadosGerais")).contains(QStringLiteral("IntervaloConfianca")));
    EXPECT_FALSE(nomesDosCampos(banco, QStringLiteral("DadosGerais")).contains(QStringLiteral("CasoUsa53Semanas")))
        << "the 53-week flag comes with the station tables, not with the opening";
    EXPECT_TRUE(nomesDosCampos(banco, QStringLiteral("Opcoes")).contains(QStringLiteral("NaoUsaLimite")));

    bd.TabPostosAbrir();
    EXPECT_EQ(bd.TabDadosGerais().FieldCount(), 15);
    EXPECT_EQ(bd.TabDadosGerais().Index(), QStringLiteral("CodigoDoPosto"));
    auto& postos = bd.TabPostos();
    ASSERT_FALSE(postos.Eof());
    EXPECT_EQ(postos.campo(QStringLiteral("NomeDoAproveitamento")).paraTexto(), QStringLiteral("FURNAS"));
    bd.TabDadosGerais().Seek(QStringLiteral("="), {1234});
    ASSERT_FALSE(bd.TabDadosGerais().NoMatch());
    EXPECT_EQ(bd.TabDadosGerais().campo(QStringLiteral("Transformacao")).paraInteiro(), 5);
    EXPECT_TRUE(bd.TabDadosGerais().campo(QStringLiteral("IntervaloConfianca")).nulo())
        << "new fields hold no value in existing rows";
    bd.TabVazoesSemanais().Seek(QStringLiteral("="), {1234, 1990, 1});
    ASSERT_FALSE(bd.TabVazoesSemanais().NoMatch());
    EXPECT_FLOAT_EQ(static_cast<float>(bd.TabVazoesSemanais().campo(QStringLiteral("Vazao")).paraDouble()), 100.5F);
    bd.TabPostosFechar();
    bd.Fechar();
}

TEST_F(CasoBDTeste, CamposDeLimiteSoEntramQuandoNenhumExiste) {
    ASSERT_TRUE(QDir().mkpath(pasta()));
    ASSERT_TRUE(executaSqlite3(
        arquivo(), sqlCincoTabelas() + QStringLiteral("CREATE TABLE DadosGeraisComplemento (CodigoDoPosto LONG, "
                                                      "SemanaInicialPrev INTEGER, Magnitude BYTE);")));
    casoBD bd;
    ASSERT_TRUE(bd.Abrir(caso(), false, true));
    EXPECT_EQ(nomesDosCampos(bd.BancoDeDados(), QStringLiteral("DadosGeraisComplemento")),
              (QStringList{QStringLiteral("CodigoDoPosto"), QStringLiteral("SemanaInicialPrev"),
                           QStringLiteral("Magnitude")}));
    bd.Fechar();
}

TEST_F(CasoBDTeste, ContagemAbreAsTabelasUmaVezEFechaNoUltimo) {
    casoBD bd;
    ASSERT_TRUE(bd.Criar(pasta()));
    bd.Fechar();
    ASSERT_TRUE(bd.Abrir(caso(), false, true));
    EXPECT_THROW(bd.TabPostos(), plataforma::ErroVB);
    bd.TabPostosAbrir();
    recordstore::Recordset* primeiro = &bd.TabPostos();
    bd.TabPostosAbrir();
    EXPECT_EQ(&bd.TabPostos(), primeiro) << "the second user shares the handles";
    EXPECT_EQ(bd.TabPostos().Index(), QStringLiteral("NomeDoAproveitamento"));
    EXPECT_EQ(bd.TabVazoesSemanais().Index(), QStringLiteral("CodigoDoPostoAnoSemana"));
    EXPECT_EQ(bd.TabVazoesPrevistas().Index(), QStringLiteral("CodigoDoPostoSemana"));
    EXPECT_EQ(bd.TabLimitesPrevisao().Index(), QStringLiteral("CodigoTipoOrdem"));
    EXPECT_EQ(bd.TabDadosGeraisComplemento().Index(), QStringLiteral("CodigoDoPosto"));
    bd.TabPostosFechar();
    EXPECT_NO_THROW(bd.TabPostos());
    bd.TabPostosFechar();
    EXPECT_THROW(bd.TabPostos(), plataforma::ErroVB);

    bd.TabOpcoesAbrir();
    bd.TabOpcoesAbrir();
    bd.TabOpcoesFechar();
    EXPECT_NO_THROW(bd.TabOpcoes());
    bd.TabOpcoesFechar();
    EXPECT_THROW(bd.TabOpcoes(), plataforma::ErroVB);
    bd.Fechar();
    EXPECT_THROW(bd.DadosFecha(), plataforma::ErroVB) << "nothing left to close";
}

}  // namespace
