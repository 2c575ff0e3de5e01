// The limits screen driven through its controls: the grid by grouping, the check of an edited
// cell, the checks of a save, the file name asked only by the prompt, the case's switch, and a
// read-only case.

#include "corvalin/editors/FrmLimites.h"
#include "corvalin/frame/Geral.h"
#include "corvalin/options/OpcoesBD.h"
#include "halvo/controles/Grid.h"
#include "tests/corvalin/editors/TelaTeste.h"

#include <QTableView>

using corvalin::Posto;
using corvalin::Tela;
using halvo::Icone;
using halvo::Resposta;
using teste::clica;
using teste::escolhe;
using teste::mensagens;

namespace {

const QString Gravar = QStringLiteral("BotDadosGeraisGravar");
const QString ForaDaFaixa = QStringLiteral("Atenção|O valor do limite deve ser preenchido entre 0,1 e 99,9.");
const QString ValoresRecusados = QStringLiteral("Atenção|Os valores do Limite devem estar entre 0,1 e 99,9.");

// A station with limits by month, 2i and 90 + i/2 for month i, and by quarter, 3i and 90 + i/2.
void adiciona(teste::CasoDeTelas& caso, int codigo, const QString& nome) {
    Posto posto = caso.posto(codigo, nome);
    posto.FlagLimite = 1;
    posto.discretizacao = 2;
    posto.Magnitude = 3;
    posto.NomeArqLimite = nome.toUpper() + QStringLiteral(".LIM");
    caso.grava(posto);
    for (const std::uint8_t tipo : {2, 3}) {
        plataforma::Vetor<std::int16_t> ordem;
        plataforma::Vetor<float> inferior;
        plataforma::Vetor<float> superior;
        corvalin::DimensionaLimites(tipo, ordem, inferior, superior, 0);
        for (int i = 1; i <= inferior.UBound(); ++i) {
            inferior[i] = static_cast<float>(i * tipo);
            superior[i] = 90.0F + static_cast<float>(i) / 2;
        }
        caso.postoBD->setLimitesPrevisao(codigo, tipo, inferior, superior);
    }
}

// The stored limits of one period, lower and upper.
std::pair<float, float> limite(const teste::CasoDeTelas& caso, int codigo, std::uint8_t tipo, int periodo) {
    plataforma::Vetor<std::int16_t> ordem;
    plataforma::Vetor<float> inferior;
    plataforma::Vetor<float> superior;
    corvalin::DimensionaLimites(tipo, ordem, inferior, superior, 0);
    caso.postoBD->getLimitesPrevisao(codigo, tipo, ordem, inferior, superior);
    return {inferior[periodo], superior[periodo]};
}

halvo::Grid& grade(const QWidget& tela) {
    return teste::controle<halvo::Grid>(tela, QStringLiteral("GrdLimites"));
}

// A cell as the user's edit commits it.
void edita(const QWidget& tela, int linha, int coluna, const QString& texto) {
    QAbstractItemModel& modelo = *teste::controle<QTableView>(grade(tela), {}).model();
    QVERIFY(modelo.setData(modelo.index(linha - 1, coluna - 1), texto));
}

QStringList coluna(const QWidget& tela, int numero) {
    QStringList textos;
    for (int linha = 0; linha < grade(tela).Linhas(); ++linha) {
        textos << grade(tela).TextoMatriz(linha, numero);
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
        QCOMPARE(teste::valores(*tela, {"cmbLimite", "cmbDiscretizacao", "cmbMagnitude", "txtArqLimite",
                                        "ChkUsaLimite"}),
                 (QStringList{"Modelo e Previsão", "Mensal", "3 Faixas", "ALFA.LIM", "x"}));
        QCOMPARE(coluna(*tela, 0).mid(0, 3), (QStringList{"Mes", "1", "2"}));
        QCOMPARE(coluna(*tela, 1).size(), 13);
        QCOMPARE(coluna(*tela, 1).at(12), QStringLiteral("24"));
        QCOMPARE(coluna(*tela, 2).mid(0, 2), (QStringList{"Limite Superior %", "90,5"}));

        escolhe(*tela, QStringLiteral("cmbDiscretizacao"), 2);
        QCOMPARE(coluna(*tela, 0), (QStringList{"Trimestre", "1", "2", "3", "4"}));
        QCOMPARE(coluna(*tela, 1).at(4), QStringLiteral("12"));
        escolhe(*tela, QStringLiteral("cmbDiscretizacao"), 3);
        QCOMPARE(coluna(*tela, 1), (QStringList{"Limite Inferior %", "-1", "-1"}));
        escolhe(*tela, QStringLiteral("cmbDiscretizacao"), 1);
        QCOMPARE(coluna(*tela, 1).at(12), QStringLiteral("24"));
        QCOMPARE(tela->getEstado(), Tela::Alterado);

        caso.host.dialogo.responde(Resposta::Nao);
        clica(*tela, QStringLiteral("BotDadosGeraisNavegacao_2"));
        mensagens(caso.host.dialogo);
        QCOMPARE(coluna(*tela, 0).size(), 54);
        QCOMPARE(coluna(*tela, 0).at(0), QStringLiteral("Semana"));
        QCOMPARE(coluna(*tela, 2).mid(1), QStringList(53, QStringLiteral("-1")));
        escolhe(*tela, QStringLiteral("cmbMagnitude"), 3);
        clica(*tela, Gravar);
        QCOMPARE(caso.host.dialogo.Mensagens().at(0).icone, Icone::Exclamacao);
        QCOMPARE(mensagens(caso.host.dialogo), QStringList{ValoresRecusados});
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
            edita(*tela, 1, 1, QString::fromLatin1(texto));
            QCOMPARE(mensagens(caso.host.dialogo), recusado ? QStringList{ForaDaFaixa} : QStringList{});
        }
        for (int linha = 2; linha <= 12; ++linha) {
            edita(*tela, linha, 1, QString::number(linha));
            edita(*tela, linha - 1, 2, QStringLiteral("99,9"));
        }
        teste::digita(*tela, QStringLiteral("txtArqLimite"), QStringLiteral("A.LIM"));
        clica(*tela, Gravar);
        QCOMPARE(mensagens(caso.host.dialogo), QStringList{ValoresRecusados});
        edita(*tela, 12, 2, QStringLiteral("0"));
        mensagens(caso.host.dialogo);
        clica(*tela, Gravar);
        QCOMPARE(mensagens(caso.host.dialogo), QStringList{ValoresRecusados});
        QCOMPARE(limite(caso, 101, 2, 12), std::pair(24.0F, 96.0F));

        edita(*tela, 12, 2, QStringLiteral("80"));
        clica(*tela, Gravar);
        QVERIFY(caso.host.dialogo.Mensagens().empty());
        QCOMPARE(caso.notificador->Eventos(), std::vector<std::int32_t>{halvo::EventoCasoAlterado});
        QCOMPARE(limite(caso, 101, 2, 1), std::pair(5.0F, 99.9F));
        QCOMPARE(limite(caso, 101, 2, 12), std::pair(12.0F, 80.0F));
        const Posto gravado = teste::lePosto(caso, 101);
        QCOMPARE(gravado.FlagLimite, 2);
        QCOMPARE(gravado.discretizacao, 2);
        QCOMPARE(gravado.Magnitude, 3);
        QCOMPARE(gravado.NomeArqLimite, QStringLiteral("A.LIM"));

        // "Não Usar" shuts the grouping, the division, the grid and the name, which are then not
        // checked; the arrays of the grouping are stored all the same, emptied.
        teste::digita(*tela, QStringLiteral("txtArqLimite"), QStringLiteral("X"));
        escolhe(*tela, QStringLiteral("cmbLimite"), 0);
        QCOMPARE(teste::habilitados(
                     *tela, {"cmbLimite", "cmbDiscretizacao", "cmbMagnitude", "GrdLimites", "txtArqLimite"}),
                 QStringList{QStringLiteral("cmbLimite")});
        clica(*tela, Gravar);
        QVERIFY(caso.host.dialogo.Mensagens().empty());
        QCOMPARE(teste::lePosto(caso, 101).FlagLimite, 0);
        QCOMPARE(limite(caso, 101, 2, 1), std::pair(-1.0F, -1.0F));
    }

    // Only the prompt asks for the .LIM extension: a wrong one or none keeps the user on the
    // screen, while the button saves any name of 5 to 13 characters.
    void nomeDoArquivoSoNoPrompt() {
        teste::CasoDeTelas caso;
        adiciona(caso, 101, QStringLiteral("Alfa"));
        auto tela = teste::carrega<corvalin::FrmLimites>(caso);
        teste::digita(*tela, QStringLiteral("txtArqLimite"), QStringLiteral("ALFA.TXT"));
        QVERIFY(!tela->close());
        QCOMPARE(caso.host.dialogo.Mensagens().at(1).icone, Icone::Informacao);
        QCOMPARE(
            mensagens(caso.host.dialogo),
            (QStringList{QStringLiteral("Confirmação|Deseja gravar as alterações realizadas?"),
                         QStringLiteral("Atenção|Favor utilizar o nome do arquivo com extensão .LIM.")}));

        teste::digita(*tela, QStringLiteral("txtArqLimite"), QStringLiteral("LIM"));
        QVERIFY(!tela->close());
        QCOMPARE(caso.host.dialogo.Mensagens().at(1).icone, Icone::Erro);
        QCOMPARE(
            mensagens(caso.host.dialogo).at(1),
            QStringLiteral("Atenção|Nome do arquivo de limite não informado ou informado incorretamente.\r\n"
                           "Favor nomear o arquivo utilizando .LIM como extensão (ex: LIMITES.LIM)."));
        QCOMPARE(teste::lePosto(caso, 101).NomeArqLimite, QStringLiteral("ALFA.LIM"));

        clica(*tela, Gravar);
        QCOMPARE(mensagens(caso.host.dialogo),
                 QStringList{QStringLiteral("Atenção|O nome do arquivo de limites deve ser preenchido.")});
        teste::digita(*tela, QStringLiteral("txtArqLimite"), QStringLiteral(" A.TX "));
        clica(*tela, Gravar);
        QCOMPARE(teste::lePosto(caso, 101).NomeArqLimite, QStringLiteral("A.TX"));

        teste::digita(*tela, QStringLiteral("txtArqLimite"), QStringLiteral("X"));
        caso.host.dialogo.responde(Resposta::Nao);
        QVERIFY(tela->close());
        QCOMPARE(teste::lePosto(caso, 101).NomeArqLimite, QStringLiteral("A.TX"));
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
        QCOMPARE(
            teste::habilitados(*tela, {"TxtDadosGeraisCodigo", "CBDDadosGerais", "BotDadosGeraisNavegacao_0",
                                       "BotDadosGeraisNavegacao_3", "Frame2", "cmbLimite", "GrdLimites",
                                       "ChkUsaLimite", "BotDadosGeraisGravar"}),
            (QStringList{"ChkUsaLimite", "BotDadosGeraisGravar"}));
        clica(*tela, Gravar);
        corvalin::Opcoes opcoes;
        {
            corvalin::OpcoesBD opcoesBD;
            opcoesBD.setCasoBD(caso.bd);
            opcoesBD.getOpcoes(opcoes);
        }
        QVERIFY(opcoes.Arquivos.NaoUsaLimite);

        tela = teste::carrega<corvalin::FrmLimites>(caso);
        QCOMPARE(teste::valor(*tela, QStringLiteral("ChkUsaLimite")), QString());
        QVERIFY(teste::habilitados(*tela, {"CBDDadosGerais"}).isEmpty());
        clica(*tela, QStringLiteral("ChkUsaLimite"));
        QCOMPARE(teste::habilitados(*tela, {"CBDDadosGerais"}).size(), 1);
        QCOMPARE(teste::valor(*tela, QStringLiteral("TxtDadosGeraisCodigo")), QStringLiteral("101"));
        QCOMPARE(tela->getEstado(), Tela::Alterado);
    }

    // A read-only case: the write buttons are off, changes are not kept, leaving asks nothing.
    void casoSomenteLeitura() {
        teste::CasoDeTelas caso(true);
        adiciona(caso, 101, QStringLiteral("Alfa"));
        auto tela = teste::carrega<corvalin::FrmLimites>(caso);
        QVERIFY(teste::habilitados(*tela, {"BotDadosGeraisGravar", "BotDadosGeraisImportar"}).isEmpty());
        escolhe(*tela, QStringLiteral("cmbMagnitude"), 0);
        edita(*tela, 1, 1, QStringLiteral("50"));
        QCOMPARE(tela->getEstado(), Tela::Limpo);
        QVERIFY(tela->close());
        QVERIFY(caso.host.dialogo.Mensagens().empty());
    }

    // Unlike the other screens', its checks of the objects are titled.
    void objetosAusentesComTitulo() {
        teste::HostTeste host;
        corvalin::FrmLimites tela;
        QVERIFY_THROWS_EXCEPTION(plataforma::ErroVB, tela.Carregar());
        QCOMPARE(mensagens(host.dialogo),
                 (QStringList{"Atenção|objeto casoBD indeterminado.", "Atenção|objeto caso indeterminado.",
                              "Atenção|objeto notificador indeterminado."}));
    }
};

QTEST_MAIN(TesteFrmLimites)
#include "test_frmlimites.moc"
