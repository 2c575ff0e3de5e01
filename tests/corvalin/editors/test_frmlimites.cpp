// The limits screen driven through its controls: the grid by grouping, the check of an edited
// cell, the checks of a save, the file name asked only by the prompt, the case's switch, and a
// read-only case.

#include "corvalin/editors/FrmLimites.h"
#include "corvalin/frame/Geral.h"
#include "corvalin/options/OpcoesBD.h"
#include "halvo/controles/Combo.h"
#include "halvo/controles/Grid.h"
#include "tests/corvalin/editors/TelaTeste.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>
#include <QTableView>

using corvalin::Posto;
using halvo::Icone;
using halvo::Resposta;
using teste::clica;
using teste::controle;
using teste::escolhe;

namespace {

const QString Gravar = QStringLiteral("BotDadosGeraisGravar");
const QString ForaDaFaixa = QStringLiteral("Atenção|O valor do limite deve ser preenchido entre 0,1 e 99,9.");

// A station with limits by month, lower i and upper 90 + i / 2 for month i, and other values by quarter.
void adiciona(teste::CasoDeTelas& caso, int codigo, const QString& nome, std::uint8_t usa53 = 0) {
    Posto posto = caso.posto(codigo, nome);
    posto.FlagLimite = 1;
    posto.discretizacao = 2;
    posto.Magnitude = 3;
    posto.NomeArqLimite = nome.toUpper() + QStringLiteral(".LIM");
    posto.Arquivos.CasoUsa53Semanas = usa53;
    caso.grava(posto);
    for (const int tipo : {2, 3}) {
        plataforma::Vetor<std::int16_t> ordem;
        plataforma::Vetor<float> inferior;
        plataforma::Vetor<float> superior;
        corvalin::DimensionaLimites(static_cast<std::uint8_t>(tipo), ordem, inferior, superior, 0);
        for (int i = 1; i <= inferior.UBound(); ++i) {
            inferior[i] = static_cast<float>(i * tipo);
            superior[i] = 90.0F + static_cast<float>(i) / 2;
        }
        caso.postoBD->setLimitesPrevisao(codigo, static_cast<std::uint8_t>(tipo), inferior, superior);
    }
}

plataforma::Vetor<float> limites(const teste::CasoDeTelas& caso, int codigo, std::uint8_t tipo,
                                 bool superior) {
    plataforma::Vetor<std::int16_t> ordem;
    plataforma::Vetor<float> inferiores;
    plataforma::Vetor<float> superiores;
    corvalin::DimensionaLimites(tipo, ordem, inferiores, superiores, 0);
    caso.postoBD->getLimitesPrevisao(codigo, tipo, ordem, inferiores, superiores);
    return superior ? superiores : inferiores;
}

halvo::Grid& grade(const QWidget& tela) {
    return controle<halvo::Grid>(tela, QStringLiteral("GrdLimites"));
}

// A cell as the user's edit commits it.
void edita(const QWidget& tela, int linha, int coluna, const QString& texto) {
    QAbstractItemModel& modelo = *controle<QTableView>(grade(tela), {}).model();
    QVERIFY(modelo.setData(modelo.index(linha - 1, coluna - 1), texto));
}

QStringList coluna(const QWidget& tela, int numero) {
    QStringList textos;
    for (int linha = 0; linha < grade(tela).Linhas(); ++linha) {
        textos << grade(tela).TextoMatriz(linha, numero);
    }
    return textos;
}

QStringList itens(const QWidget& tela, const QString& nome) {
    QStringList textos;
    const auto& lista = controle<QComboBox>(tela, nome);
    for (int i = 0; i < lista.count(); ++i) {
        textos << lista.itemText(i);
    }
    return textos;
}

}  // namespace

class TesteFrmLimites : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil)); }

    // One row per period of the grouping; a station whose limits were never saved shows -1 in every
    // cell and cannot be saved with limits on. Each grouping brings back its own limits.
    void gradePorAgrupamento() {
        teste::CasoDeTelas caso;
        adiciona(caso, 101, QStringLiteral("Alfa"));
        Posto beta = caso.posto(202, QStringLiteral("Beta"));
        beta.FlagLimite = 2;
        beta.discretizacao = 1;
        beta.Magnitude = 1;
        beta.NomeArqLimite = QStringLiteral("B.LIM");
        beta.Arquivos.CasoUsa53Semanas = 1;
        caso.grava(beta);

        auto tela = teste::carrega<corvalin::FrmLimites>(caso);
        QCOMPARE(itens(*tela, QStringLiteral("cmbLimite")),
                 (QStringList{QStringLiteral("Não Usar"), QStringLiteral("Modelo e Previsão"),
                              QStringLiteral("Previsão")}));
        QCOMPARE(itens(*tela, QStringLiteral("cmbDiscretizacao")).size(), 4);
        QCOMPARE(itens(*tela, QStringLiteral("cmbMagnitude")).at(3), QStringLiteral("4 Faixas"));
        QCOMPARE(controle<QComboBox>(*tela, QStringLiteral("cmbMagnitude")).currentIndex(), 2);
        QCOMPARE(teste::textoDe(*tela, QStringLiteral("txtArqLimite")), QStringLiteral("ALFA.LIM"));
        QCOMPARE(grade(*tela).Linhas(), 13);
        QCOMPARE(grade(*tela).TextoMatriz(0, 1), QStringLiteral("Limite Inferior %"));
        QCOMPARE(coluna(*tela, 0).mid(0, 3),
                 (QStringList{QStringLiteral("Mes"), QStringLiteral("1"), QStringLiteral("2")}));
        QCOMPARE(coluna(*tela, 1).at(12), QStringLiteral("24"));
        QCOMPARE(coluna(*tela, 2).at(1), QStringLiteral("90,5"));
        QVERIFY(controle<QCheckBox>(*tela, QStringLiteral("ChkUsaLimite")).isChecked());

        escolhe(*tela, QStringLiteral("cmbDiscretizacao"), 2);
        QCOMPARE(coluna(*tela, 0),
                 (QStringList{QStringLiteral("Trimestre"), QStringLiteral("1"), QStringLiteral("2"),
                              QStringLiteral("3"), QStringLiteral("4")}));
        QCOMPARE(coluna(*tela, 1).at(4), QStringLiteral("12"));
        escolhe(*tela, QStringLiteral("cmbDiscretizacao"), 3);
        QCOMPARE(coluna(*tela, 1), (QStringList{QStringLiteral("Limite Inferior %"), QStringLiteral("-1"),
                                                QStringLiteral("-1")}));
        escolhe(*tela, QStringLiteral("cmbDiscretizacao"), 1);
        QCOMPARE(coluna(*tela, 1).at(12), QStringLiteral("24"));
        QCOMPARE(tela->getEstado(), corvalin::Tela::Alterado);

        caso.host.dialogo.responde(Resposta::Nao);
        clica(*tela, QStringLiteral("BotDadosGeraisNavegacao_2"));
        QCOMPARE(grade(*tela).Linhas(), 54);
        QCOMPARE(grade(*tela).TextoMatriz(0, 0), QStringLiteral("Semana"));
        QCOMPARE(coluna(*tela, 2).mid(1), QStringList(53, QStringLiteral("-1")));
        escolhe(*tela, QStringLiteral("cmbMagnitude"), 3);
        caso.host.dialogo.limpa();
        clica(*tela, Gravar);
        QCOMPARE(teste::mensagens(caso.host.dialogo),
                 QStringList{QStringLiteral("Atenção|Os valores do Limite devem estar entre 0,1 e 99,9.")});
        QCOMPARE(caso.host.dialogo.Mensagens()[0].icone, Icone::Exclamacao);
        QCOMPARE(teste::lePosto(caso, 202).Magnitude, 1);
    }

    // A new kind of limits starts the grid anew. An edited cell outside 0,1 to 99,9, or empty, is
    // told and kept, and the save refuses it, as it refuses a period left without a value. With
    // all in range the station, its limits and the case's switch are saved together.
    void edicaoEGravacao() {
        teste::CasoDeTelas caso;
        adiciona(caso, 101, QStringLiteral("Alfa"));
        auto tela = teste::carrega<corvalin::FrmLimites>(caso);
        escolhe(*tela, QStringLiteral("cmbLimite"), 2);
        QCOMPARE(coluna(*tela, 1).mid(1), QStringList(12, QString()));

        for (const auto& [texto, recusado] :
             {std::pair{"0,09", true}, std::pair{"0,1", false}, std::pair{"99,9", false},
              std::pair{"100", true}, std::pair{"", true}, std::pair{"5", false}}) {
            caso.host.dialogo.limpa();
            edita(*tela, 1, 1, QString::fromLatin1(texto));
            QCOMPARE(teste::mensagens(caso.host.dialogo),
                     recusado ? QStringList{ForaDaFaixa} : QStringList{});
        }
        for (int linha = 2; linha <= 12; ++linha) {
            edita(*tela, linha, 1, QString::number(linha));
        }
        for (int linha = 1; linha <= 11; ++linha) {
            edita(*tela, linha, 2, QStringLiteral("99,9"));
        }
        caso.host.dialogo.limpa();
        teste::digita(*tela, QStringLiteral("txtArqLimite"), QStringLiteral("A.LIM"));
        clica(*tela, Gravar);
        QCOMPARE(teste::mensagens(caso.host.dialogo),
                 QStringList{QStringLiteral("Atenção|Os valores do Limite devem estar entre 0,1 e 99,9.")});
        edita(*tela, 12, 2, QStringLiteral("0"));
        caso.host.dialogo.limpa();
        clica(*tela, Gravar);
        QCOMPARE(caso.host.dialogo.Mensagens().size(), 1u);
        QCOMPARE(limites(caso, 101, 2, true)[12], 96.0F);

        edita(*tela, 12, 2, QStringLiteral("80"));
        caso.host.dialogo.limpa();
        clica(*tela, Gravar);
        QVERIFY(caso.host.dialogo.Mensagens().empty());
        QCOMPARE(caso.notificador->Eventos(), std::vector<std::int32_t>{halvo::EventoCasoAlterado});
        QCOMPARE(limites(caso, 101, 2, false)[1], 5.0F);
        QCOMPARE(limites(caso, 101, 2, true)[11], 99.9F);
        QCOMPARE(limites(caso, 101, 2, true)[12], 80.0F);
        const Posto gravado = teste::lePosto(caso, 101);
        QCOMPARE(gravado.FlagLimite, 2);
        QCOMPARE(gravado.discretizacao, 2);
        QCOMPARE(gravado.Magnitude, 3);
        QCOMPARE(gravado.NomeArqLimite, QStringLiteral("A.LIM"));
    }

    // Only the prompt asks for the .LIM extension: a wrong one or none keeps the user on the
    // screen, while the button saves whatever name has the length.
    void nomeDoArquivoSoNoPrompt() {
        teste::CasoDeTelas caso;
        adiciona(caso, 101, QStringLiteral("Alfa"));
        auto tela = teste::carrega<corvalin::FrmLimites>(caso);

        teste::digita(*tela, QStringLiteral("txtArqLimite"), QStringLiteral("ALFA.TXT"));
        QVERIFY(!tela->close());
        QCOMPARE(
            teste::mensagens(caso.host.dialogo),
            (QStringList{QStringLiteral("Confirmação|Deseja gravar as alterações realizadas?"),
                         QStringLiteral("Atenção|Favor utilizar o nome do arquivo com extensão .LIM.")}));
        QCOMPARE(caso.host.dialogo.Mensagens()[1].icone, Icone::Informacao);

        teste::digita(*tela, QStringLiteral("txtArqLimite"), QStringLiteral("LIM"));
        caso.host.dialogo.limpa();
        QVERIFY(!tela->close());
        QCOMPARE(caso.host.dialogo.Mensagens().size(), 2u);
        QCOMPARE(
            caso.host.dialogo.Mensagens()[1].texto,
            QStringLiteral("Nome do arquivo de limite não informado ou informado incorretamente.\r\nFavor "
                           "nomear o arquivo utilizando .LIM como extensão (ex: LIMITES.LIM)."));
        QCOMPARE(caso.host.dialogo.Mensagens()[1].icone, Icone::Erro);
        QCOMPARE(teste::lePosto(caso, 101).NomeArqLimite, QStringLiteral("ALFA.LIM"));

        // A name of 4 characters is refused by the save's own check, one of 5 passes.
        caso.host.dialogo.limpa();
        clica(*tela, Gravar);
        QCOMPARE(teste::mensagens(caso.host.dialogo),
                 QStringList{QStringLiteral("Atenção|O nome do arquivo de limites deve ser preenchido.")});
        teste::digita(*tela, QStringLiteral("txtArqLimite"), QStringLiteral(" A.TX "));
        QCOMPARE(teste::textoDe(*tela, QStringLiteral("txtArqLimite")), QStringLiteral(" A.TX "));
        clica(*tela, Gravar);
        QCOMPARE(teste::lePosto(caso, 101).NomeArqLimite, QStringLiteral("A.TX"));

        teste::digita(*tela, QStringLiteral("txtArqLimite"), QStringLiteral("X"));
        caso.host.dialogo.responde(Resposta::Nao);
        QVERIFY(tela->close());
        QCOMPARE(teste::lePosto(caso, 101).NomeArqLimite, QStringLiteral("A.TX"));
    }

    // "Não Usar" shuts the grouping, the division, the grid and the name, which are then not
    // checked; the arrays of the grouping are stored all the same.
    void semLimitesNadaSeConfere() {
        teste::CasoDeTelas caso;
        adiciona(caso, 101, QStringLiteral("Alfa"));
        auto tela = teste::carrega<corvalin::FrmLimites>(caso);
        teste::digita(*tela, QStringLiteral("txtArqLimite"), QStringLiteral("X"));
        escolhe(*tela, QStringLiteral("cmbLimite"), 0);
        for (const char* nome : {"cmbDiscretizacao", "cmbMagnitude", "GrdLimites", "txtArqLimite"}) {
            QVERIFY(!controle<QWidget>(*tela, QString::fromLatin1(nome)).isEnabled());
        }
        QCOMPARE(coluna(*tela, 1).at(1), QString());
        clica(*tela, Gravar);
        QVERIFY(caso.host.dialogo.Mensagens().empty());
        QCOMPARE(teste::lePosto(caso, 101).FlagLimite, 0);
        QCOMPARE(limites(caso, 101, 2, false)[1], -1.0F);
    }

    // The case's switch closes the way to other stations and all but itself and the write
    // buttons; it is saved with the station shown, and opening the switch again shows the first.
    void chaveDoCaso() {
        teste::CasoDeTelas caso;
        adiciona(caso, 101, QStringLiteral("Alfa"));
        adiciona(caso, 202, QStringLiteral("Beta"));
        auto tela = teste::carrega<corvalin::FrmLimites>(caso);
        clica(*tela, QStringLiteral("BotDadosGeraisNavegacao_2"));
        clica(*tela, QStringLiteral("ChkUsaLimite"));
        for (const char* nome : {"TxtDadosGeraisCodigo", "CBDDadosGerais", "BotDadosGeraisNavegacao_0",
                                 "BotDadosGeraisNavegacao_3", "Frame2", "cmbLimite", "GrdLimites"}) {
            QVERIFY2(!controle<QWidget>(*tela, QString::fromLatin1(nome)).isEnabled(), nome);
        }
        QVERIFY(controle<QWidget>(*tela, Gravar).isEnabled());
        QVERIFY(controle<QWidget>(*tela, QStringLiteral("ChkUsaLimite")).isEnabled());
        clica(*tela, Gravar);
        corvalin::Opcoes opcoes;
        {
            corvalin::OpcoesBD opcoesBD;
            opcoesBD.setCasoBD(caso.bd);
            opcoesBD.getOpcoes(opcoes);
        }
        QVERIFY(opcoes.Arquivos.NaoUsaLimite);
        tela.reset();

        tela = teste::carrega<corvalin::FrmLimites>(caso);
        QVERIFY(!controle<QCheckBox>(*tela, QStringLiteral("ChkUsaLimite")).isChecked());
        QVERIFY(!controle<halvo::Combo>(*tela, QStringLiteral("CBDDadosGerais")).isEnabled());
        clica(*tela, QStringLiteral("ChkUsaLimite"));
        QVERIFY(controle<halvo::Combo>(*tela, QStringLiteral("CBDDadosGerais")).isEnabled());
        QCOMPARE(teste::textoDe(*tela, QStringLiteral("TxtDadosGeraisCodigo")), QStringLiteral("101"));
        QCOMPARE(tela->getEstado(), corvalin::Tela::Alterado);
    }

    // A read-only case: the write buttons are off, changes are not kept, leaving asks nothing.
    void casoSomenteLeitura() {
        teste::CasoDeTelas caso(true);
        adiciona(caso, 101, QStringLiteral("Alfa"));
        auto tela = teste::carrega<corvalin::FrmLimites>(caso);
        QVERIFY(!controle<QWidget>(*tela, Gravar).isEnabled());
        QVERIFY(!controle<QWidget>(*tela, QStringLiteral("BotDadosGeraisImportar")).isEnabled());
        escolhe(*tela, QStringLiteral("cmbMagnitude"), 0);
        edita(*tela, 1, 1, QStringLiteral("50"));
        QCOMPARE(tela->getEstado(), corvalin::Tela::Limpo);
        QVERIFY(tela->close());
        QVERIFY(caso.host.dialogo.Mensagens().empty());
    }

    // Unlike the other screens, the checks of the objects are titled.
    void objetosAusentesComTitulo() {
        teste::HostTeste host;
        corvalin::FrmLimites tela;
        QVERIFY_THROWS_EXCEPTION(plataforma::ErroVB, tela.Carregar());
        QCOMPARE(host.dialogo.Mensagens().size(), 3u);
        for (const auto& mensagem : host.dialogo.Mensagens()) {
            QCOMPARE(mensagem.titulo, QStringLiteral("Atenção"));
        }
    }
};

QTEST_MAIN(TesteFrmLimites)
#include "test_frmlimites.moc"
