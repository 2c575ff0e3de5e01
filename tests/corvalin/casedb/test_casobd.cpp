#include "corvalin/casedb/casoBD.h"
#include "platform/runtime/ErroVB.h"
#include "tests/corvalin/casedb/BancoAntigo.h"
#include "tests/corvalin/options/CasoAberto.h"

#include <QFile>

#include <gtest/gtest.h>

#include <tuple>

namespace {

using namespace Qt::StringLiterals;
using corvalin::casoBD;
using recordstore::Database;

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
    for (const QString& nome :
         {u"CasoCORVALIN"_s, u"Opcoes"_s, u"Postos"_s, u"DadosGerais"_s, u"DadosGeraisComplemento"_s,
          u"VazoesSemanais"_s, u"VazoesPrevistas"_s, u"LimitesPrevisao"_s}) {
        const auto tabela = bd.BancoDeDados().OpenRecordset(nome);
        EXPECT_TRUE(tabela->Bof() && tabela->Eof()) << nome.toStdString() << " exists and starts empty";
    }
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
    EXPECT_EQ(banco.Fields(u"Opcoes"_s).back().Name, u"NaoUsaLimite"_s);

    bd.TabPostosAbrir();
    EXPECT_EQ(bd.TabDadosGerais().FieldCount(), 15);
    auto& dadosGerais = bd.TabDadosGerais();
    dadosGerais.Seek(u"="_s, {1234});
    ASSERT_FALSE(dadosGerais.NoMatch());
    EXPECT_EQ(dadosGerais.campo(u"Transformacao"_s).paraInteiro(), 5);
    EXPECT_TRUE(dadosGerais.campo(u"IntervaloConfianca"_s).nulo())
        << "new fields hold no value in existing rows";
    bd.TabPostosFechar();
    bd.Fechar();
}

enum Passo { Primeiro, Anterior, Proximo, Ultimo };

// Steps in name order from the station of code de, whatever the caller's index, which stays:
// Emborcação (4), furnas (2), Itaipu (3), Tucuruí (1).
TEST(NavegacaoTeste, AndaNaOrdemDosNomesEParaNasPontas) {
    teste::CasoAberto caso;
    caso.bd->TabPostosAbrir();
    recordstore::Recordset& postos = caso.bd->TabPostos();
    const auto passo = [&](Passo p, int de) {
        bool modos[] = {p == Primeiro, p == Anterior, p == Proximo, p == Ultimo};
        postos.setIndex(u"CodigoDoPosto"_s);
        const bool achou = caso.bd->TabelaNavegacao(postos, u"NomeDoAproveitamento"_s, u"CodigoDoPosto"_s, de,
                                                    modos[0], modos[1], modos[2], modos[3]);
        EXPECT_EQ(postos.Index(), u"CodigoDoPosto"_s) << "the caller's index is kept";
        return achou ? static_cast<int>(postos.campo(u"CodigoDoPosto"_s).paraInteiro()) : 0;
    };
    for (const Passo p : {Primeiro, Anterior, Proximo, Ultimo}) {
        EXPECT_EQ(passo(p, 1), 0) << "an empty table, step " << p;
    }
    for (const auto& [codigo, nome] :
         {std::pair(1, u"Tucuruí"_s), {2, u"furnas"_s}, {3, u"Itaipu"_s}, {4, u"Emborcação"_s}}) {
        postos.AddNew();
        postos.setCampo(u"CodigoDoPosto"_s, codigo);
        postos.setCampo(u"NomeDoAproveitamento"_s, nome);
        postos.Update();
    }
    // Next on the last and previous on the first stay; a vanished station starts from the first.
    const std::tuple<Passo, int, int> casos[] = {{Primeiro, 0, 4}, {Proximo, 4, 2},  {Proximo, 3, 1},
                                                 {Proximo, 1, 1},  {Anterior, 4, 4}, {Anterior, 3, 2},
                                                 {Ultimo, 0, 1},   {Proximo, 99, 4}};
    for (const auto& [p, de, para] : casos) {
        EXPECT_EQ(passo(p, de), para) << "step " << p << " from " << de;
    }
    caso.bd->TabPostosFechar();
}

}  // namespace
