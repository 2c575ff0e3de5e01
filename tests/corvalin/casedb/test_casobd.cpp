#include "corvalin/casedb/casoBD.h"
#include "platform/runtime/ErroVB.h"
#include "tests/corvalin/casedb/BancoAntigo.h"
#include "tests/doubles/HostTeste.h"

#include <QFile>

#include <gtest/gtest.h>

namespace {

using namespace Qt::StringLiterals;
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
    QString pasta() const { return host.caminho(u"caso"_s); }
    QString arquivo() const { return pasta() + u"/Corvalin.mdb"_s; }
    teste::CasoTeste caso() const { return teste::CasoTeste(pasta()); }
    // A file of an older version, made by hand: the five core tables and what sqlExtra adds.
    void antigo(const QString& sqlExtra = {}) {
        ASSERT_TRUE(QDir().mkpath(pasta()));
        ASSERT_TRUE(executaSqlite3(arquivo(), sqlCincoTabelas() + sqlExtra));
    }

    teste::HostTeste host;
    casoBD bd;
};

TEST_F(CasoBDTeste, CriarFazOitoTabelasVaziasEAbrirEscreveAIdentificacao) {
    ASSERT_TRUE(bd.Criar(pasta()));
    EXPECT_EQ(bd.BancoDeDados().NomesDasTabelas().size(), 8u);
    for (const QString& nome :
         {u"CasoCORVALIN"_s, u"Opcoes"_s, u"Postos"_s, u"DadosGerais"_s, u"DadosGeraisComplemento"_s,
          u"VazoesSemanais"_s, u"VazoesPrevistas"_s, u"LimitesPrevisao"_s}) {
        const auto tabela = bd.BancoDeDados().OpenRecordset(nome);
        EXPECT_TRUE(tabela->Bof() && tabela->Eof()) << nome.toStdString() << " exists and starts empty";
    }
    EXPECT_EQ(bd.BancoDeDados().Fields(u"DadosGerais"_s).size(), 15u);
    bd.Fechar();
    teste::CasoTeste c = caso();
    for (const QString& nome : {u"Primeiro"_s, u"Segundo"_s}) {
        c.setItem(u"Nome"_s, nome);
        ASSERT_TRUE(bd.Abrir(c, false, true));
        bd.Fechar();
    }
    const auto banco = Database::OpenDatabase(arquivo());
    const auto tabela = banco->OpenRecordset(u"CasoCORVALIN"_s);
    ASSERT_FALSE(tabela->Eof());
    const auto campo = [&](const QString& nome) { return tabela->campo(nome); };
    EXPECT_EQ(
        campo(u"Titulo"_s).paraTexto() + campo(u"Autor"_s).paraTexto() + campo(u"Comentarios"_s).paraTexto(),
        u"SegundoHalvoTeste"_s)
        << "the identification is rewritten at every opening";
    EXPECT_EQ(QDateTime(campo(u"Data"_s).paraDataHora().date(), campo(u"Hora"_s).paraDataHora().time()),
              QDateTime(QDate(2026, 11, 22), QTime(10, 30)));
    EXPECT_TRUE(campo(u"Versao"_s).paraTexto().startsWith(u"3."_s));
    tabela->MoveNext();
    EXPECT_TRUE(tabela->Eof()) << "one identification row";
    EXPECT_TRUE(host.dialogo.Mensagens().empty());
}

// Each failure has its message, or none when opening silently; a file that is no case, or
// lacks a core table, is damaged and left closed.
TEST_F(CasoBDTeste, FalhasDeCriacaoEAberturaComSuasMensagens) {
    ASSERT_TRUE(bd.Criar(pasta()));
    bd.Fechar();
    EXPECT_FALSE(bd.Criar(pasta())) << "a folder that holds a case already";
    QFile(host.caminho(u"bloqueio"_s)).open(QIODevice::WriteOnly);
    EXPECT_FALSE(bd.Criar(host.caminho(u"bloqueio/caso"_s)));
    const teste::CasoTeste vazio(host.caminho(u"nada"_s));
    EXPECT_FALSE(bd.Abrir(vazio, true, true));
    EXPECT_FALSE(bd.Abrir(vazio, false, true));
    QFile lixo(arquivo());
    ASSERT_TRUE(lixo.open(QIODevice::WriteOnly | QIODevice::Truncate));
    lixo.write(QByteArray(4096, 'x'));
    lixo.close();
    EXPECT_FALSE(bd.Abrir(caso(), false, true));
    QFile::remove(arquivo());
    antigo(u"DROP TABLE Opcoes;"_s);
    EXPECT_FALSE(bd.Abrir(caso(), true, true));
    EXPECT_THROW(bd.BancoDeDados(), plataforma::ErroVB) << "the database is closed again";

    QStringList textos;
    for (const auto& m : host.dialogo.Mensagens()) {
        textos << m.texto;
        EXPECT_EQ(m.icone, halvo::Icone::Erro);
    }
    EXPECT_EQ(textos, (QStringList{u"Erro ao criar banco de dados."_s, u"Erro ao criar diretório."_s,
                                   u"Caso inexistente."_s,
                                   u"O banco de dados referente a esse Caso está danificado ou não é de um "
                                   u"Caso Corvalinh."_s}));
    EXPECT_EQ(host.dialogo.Mensagens().front().titulo, u"Erro"_s);
    EXPECT_EQ(host.dialogo.Ponteiros().back(), halvo::Ponteiro::Padrao);
}

TEST_F(CasoBDTeste, VersaoAntigaGanhaOQueFaltaEGuardaSuasLinhas) {
    antigo();
    ASSERT_TRUE(bd.Abrir(caso(), false, true));
    auto& banco = bd.BancoDeDados();
    for (const QString& nova : {u"DadosGeraisComplemento"_s, u"VazoesPrevistas"_s, u"LimitesPrevisao"_s}) {
        EXPECT_TRUE(banco.ExisteTabela(nova)) << nova.toStdString();
    }
    EXPECT_TRUE(nomesDosCampos(banco, u"DadosGerais"_s).contains(u"IntervaloConfianca"_s));
    EXPECT_FALSE(nomesDosCampos(banco, u"DadosGerais"_s).contains(u"CasoUsa53Semanas"_s))
        << "the 53-week flag comes with the station tables, not with the opening";
    EXPECT_TRUE(nomesDosCampos(banco, u"Opcoes"_s).contains(u"NaoUsaLimite"_s));

    bd.TabPostosAbrir();
    EXPECT_EQ(bd.TabDadosGerais().FieldCount(), 15);
    EXPECT_EQ(bd.TabPostos().campo(u"NomeDoAproveitamento"_s).paraTexto(), u"FURNAS"_s);
    auto& dadosGerais = bd.TabDadosGerais();
    dadosGerais.Seek(u"="_s, {1234});
    ASSERT_FALSE(dadosGerais.NoMatch());
    EXPECT_EQ(dadosGerais.campo(u"Transformacao"_s).paraInteiro(), 5);
    EXPECT_TRUE(dadosGerais.campo(u"IntervaloConfianca"_s).nulo())
        << "new fields hold no value in existing rows";
    bd.TabVazoesSemanais().Seek(u"="_s, {1234, 1990, 1});
    ASSERT_FALSE(bd.TabVazoesSemanais().NoMatch());
    EXPECT_EQ(bd.TabVazoesSemanais().campo(u"Vazao"_s).paraDouble(), 100.5);
    bd.TabPostosFechar();
    bd.Fechar();

    // The limit fields come only into a complement that has none of them.
    QFile::remove(arquivo());
    antigo(
        u"CREATE TABLE DadosGeraisComplemento (CodigoDoPosto LONG, SemanaInicialPrev INTEGER, Magnitude BYTE);"_s);
    ASSERT_TRUE(bd.Abrir(caso(), false, true));
    EXPECT_EQ(nomesDosCampos(bd.BancoDeDados(), u"DadosGeraisComplemento"_s),
              (QStringList{u"CodigoDoPosto"_s, u"SemanaInicialPrev"_s, u"Magnitude"_s}));
    bd.Fechar();
}

TEST_F(CasoBDTeste, ContagemAbreAsTabelasUmaVezEFechaNoUltimo) {
    ASSERT_TRUE(bd.Criar(pasta()));
    EXPECT_THROW(bd.TabPostos(), plataforma::ErroVB);
    bd.TabPostosAbrir();
    recordstore::Recordset* primeiro = &bd.TabPostos();
    bd.TabPostosAbrir();
    EXPECT_EQ(&bd.TabPostos(), primeiro) << "the second user shares the handles";
    EXPECT_EQ(bd.TabPostos().Index(), u"NomeDoAproveitamento"_s);
    bd.TabOpcoesAbrir();
    bd.TabOpcoesAbrir();
    bd.TabPostosFechar();
    bd.TabOpcoesFechar();
    EXPECT_NO_THROW(bd.TabPostos());
    EXPECT_NO_THROW(bd.TabOpcoes()) << "one user is left";
    bd.TabPostosFechar();
    bd.TabOpcoesFechar();
    EXPECT_THROW(bd.TabPostos(), plataforma::ErroVB);
    EXPECT_THROW(bd.TabOpcoes(), plataforma::ErroVB);
    bd.Fechar();
    EXPECT_THROW(bd.DadosFecha(), plataforma::ErroVB) << "nothing left to close";
}

}  // namespace
