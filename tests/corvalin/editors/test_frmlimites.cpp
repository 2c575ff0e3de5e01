// The limits screen driven through its controls: the grid by grouping, the checks of an edited
// cell and of a save, the file name asked only by the prompt, the case's switch, a read-only case.

#include "corvalin/editors/FrmLimites.h"
#include "halvo/controles/Grid.h"
#include "tests/corvalin/editors/TelaTeste.h"

#include <QTableView>

using namespace Qt::StringLiterals;
using namespace teste;
using corvalin::Posto;
using corvalin::Tela;

namespace {

const QString Gravar = u"BotDadosGeraisGravar"_s;
const QString ForaDaFaixa = u"Atenção|O valor do limite deve ser preenchido entre 0,1 e 99,9."_s;
const QString ValoresRecusados = u"Atenção|Os valores do Limite devem estar entre 0,1 e 99,9."_s;

// A station with limits by month, 2i and 90 + i/2 for month i, and by quarter, 3i and 90 + i/2.
void adiciona(CasoDeTelas& caso, int codigo, const QString& nome) {
    Posto posto = caso.posto(codigo, nome);
    posto.FlagLimite = 1;
    posto.discretizacao = 2;
    posto.Magnitude = 3;
    posto.NomeArqLimite = nome.toUpper() + u".LIM"_s;
    caso.grava(posto);
    for (const std::uint8_t tipo : {2, 3}) {
        Limites l(tipo);
        for (int i = 1; i <= l.inferior.UBound(); ++i) {
            l.inferior[i] = static_cast<float>(i * tipo);
            l.superior[i] = 90.0F + static_cast<float>(i) / 2;
        }
        caso.postoBD->setLimitesPrevisao(codigo, tipo, l.inferior, l.superior);
    }
}

// A cell as the user's edit commits it.
void edita(const QWidget& tela, int linha, int coluna, const QString& texto) {
    QAbstractItemModel& modelo = *controle<QTableView>(controle<QWidget>(tela, "GrdLimites"), {}).model();
    QVERIFY(modelo.setData(modelo.index(linha - 1, coluna - 1), texto));
}

QStringList coluna(const QWidget& tela, int numero) {
    const auto& grade = controle<halvo::Grid>(tela, "GrdLimites");
    QStringList textos;
    for (int linha = 0; linha < grade.Linhas(); ++linha) {
        textos << grade.TextoMatriz(linha, numero);
    }
    return textos;
}

}  // namespace

class TesteFrmLimites : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil)); }

    // One row per period of the grouping, each grouping with its own stored limits; a grouping
    // whose limits were never saved shows -1 in every cell.
    void gradePorAgrupamento() {
        CasoDeTelas caso;
        adiciona(caso, 101, u"Alfa"_s);
        auto tela = carrega<corvalin::FrmLimites>(caso);
        QCOMPARE(
            valores(*tela, {"cmbLimite", "cmbDiscretizacao", "cmbMagnitude", "txtArqLimite", "ChkUsaLimite"}),
            (QStringList{"Modelo e Previsão", "Mensal", "3 Faixas", "ALFA.LIM", "x"}));
        QCOMPARE(coluna(*tela, 0).mid(0, 3), (QStringList{"Mes", "1", "2"}));
        QCOMPARE(coluna(*tela, 1).mid(12), QStringList{u"24"_s});
        QCOMPARE(coluna(*tela, 2).mid(0, 2), (QStringList{"Limite Superior %", "90,5"}));

        escolhe(*tela, "cmbDiscretizacao", 2);
        QCOMPARE(coluna(*tela, 0), (QStringList{"Trimestre", "1", "2", "3", "4"}));
        QCOMPARE(coluna(*tela, 1).at(4), u"12"_s);
        escolhe(*tela, "cmbDiscretizacao", 3);
        QCOMPARE(coluna(*tela, 1), (QStringList{"Limite Inferior %", "-1", "-1"}));
        QCOMPARE(tela->getEstado(), Tela::Alterado);
    }

    // A new kind of limits starts the grid anew. An edited cell outside 0,1 to 99,9, or empty, is
    // told and not taken; the save refuses a period left without a value. With all in range the
    // station and its limits are saved together.
    void edicaoEGravacao() {
        CasoDeTelas caso;
        adiciona(caso, 101, u"Alfa"_s);
        auto tela = carrega<corvalin::FrmLimites>(caso);
        escolhe(*tela, "cmbLimite", 2);
        QCOMPARE(coluna(*tela, 1).mid(1), QStringList(12, QString()));

        for (const auto& [texto, recusado] :
             {std::pair{"0,09", true}, std::pair{"0,1", false}, std::pair{"99,9", false},
              std::pair{"100", true}, std::pair{"", true}, std::pair{"5", false}}) {
            edita(*tela, 1, 1, QString::fromLatin1(texto));
            QCOMPARE(mensagens(caso.host.dialogo), recusado ? QStringList{ForaDaFaixa} : QStringList{});
        }
        for (int linha = 2; linha <= 12; ++linha) {
            edita(*tela, linha, 1, QString::number(linha));
            edita(*tela, linha - 1, 2, u"99,9"_s);
        }
        digita(*tela, "txtArqLimite", u"A.LIM"_s);
        clica(*tela, Gravar);
        QCOMPARE(mensagens(caso.host.dialogo), QStringList{ValoresRecusados});
        QCOMPARE(limite(caso, 101, 2, 12), std::pair(24.0F, 96.0F));

        edita(*tela, 12, 2, u"80"_s);
        clica(*tela, Gravar);
        QVERIFY(caso.host.dialogo.Mensagens().empty());
        QCOMPARE(caso.notificador->Eventos(), std::vector<std::int32_t>{halvo::EventoCasoAlterado});
        QCOMPARE(limite(caso, 101, 2, 1), std::pair(5.0F, 99.9F));
        QCOMPARE(limite(caso, 101, 2, 12), std::pair(12.0F, 80.0F));
        const Posto p = lePosto(caso, 101);
        QCOMPARE(std::tuple(p.FlagLimite, p.discretizacao, p.Magnitude, p.NomeArqLimite),
                 std::tuple(2, 2, 3, u"A.LIM"_s));
    }

    // Only the prompt asks for the .LIM extension: a wrong one or none keeps the user on the
    // screen, while the button saves any name of 5 to 13 characters.
    void nomeDoArquivoSoNoPrompt() {
        CasoDeTelas caso;
        adiciona(caso, 101, u"Alfa"_s);
        auto tela = carrega<corvalin::FrmLimites>(caso);
        digita(*tela, "txtArqLimite", u"ALFA.TXT"_s);
        QVERIFY(!tela->close());
        QCOMPARE(mensagens(caso.host.dialogo),
                 (QStringList{u"Confirmação|Deseja gravar as alterações realizadas?"_s,
                              u"Atenção|Favor utilizar o nome do arquivo com extensão .LIM."_s}));

        digita(*tela, "txtArqLimite", u"LIM"_s);
        QVERIFY(!tela->close());
        QCOMPARE(mensagens(caso.host.dialogo).at(1),
                 u"Atenção|Nome do arquivo de limite não informado ou informado incorretamente.\r\n"
                 u"Favor nomear o arquivo utilizando .LIM como extensão (ex: LIMITES.LIM)."_s);
        QCOMPARE(lePosto(caso, 101).NomeArqLimite, u"ALFA.LIM"_s);

        clica(*tela, Gravar);
        QCOMPARE(mensagens(caso.host.dialogo),
                 QStringList{u"Atenção|O nome do arquivo de limites deve ser preenchido."_s});
        digita(*tela, "txtArqLimite", u" A.TX "_s);
        clica(*tela, Gravar);
        QCOMPARE(lePosto(caso, 101).NomeArqLimite, u"A.TX"_s);
    }

    // The case's switch closes the way to other stations and all but itself and the write
    // buttons; it is saved, and the screen opens again with the way closed.
    void chaveDoCaso() {
        CasoDeTelas caso;
        adiciona(caso, 101, u"Alfa"_s);
        adiciona(caso, 202, u"Beta"_s);
        auto tela = carrega<corvalin::FrmLimites>(caso);
        clica(*tela, "BotDadosGeraisNavegacao_2");
        clica(*tela, "ChkUsaLimite");
        QCOMPARE(habilitados(*tela, {"TxtDadosGeraisCodigo", "CBDDadosGerais", "BotDadosGeraisNavegacao_0",
                                     "BotDadosGeraisNavegacao_3", "Frame2", "cmbLimite", "GrdLimites",
                                     "ChkUsaLimite", "BotDadosGeraisGravar"}),
                 (QStringList{"ChkUsaLimite", "BotDadosGeraisGravar"}));
        clica(*tela, Gravar);

        tela = carrega<corvalin::FrmLimites>(caso);
        QCOMPARE(valor(*tela, "ChkUsaLimite"), QString());
        QVERIFY(habilitados(*tela, {"CBDDadosGerais"}).isEmpty());
    }

    // A read-only case: the write buttons are off, changes are not kept, leaving asks nothing.
    void casoSomenteLeitura() {
        CasoDeTelas caso(true);
        adiciona(caso, 101, u"Alfa"_s);
        auto tela = carrega<corvalin::FrmLimites>(caso);
        QVERIFY(habilitados(*tela, {"BotDadosGeraisGravar", "BotDadosGeraisImportar"}).isEmpty());
        escolhe(*tela, "cmbMagnitude", 0);
        edita(*tela, 1, 1, u"50"_s);
        QCOMPARE(tela->getEstado(), Tela::Limpo);
        QVERIFY(tela->close());
        QVERIFY(caso.host.dialogo.Mensagens().empty());
    }
};

QTEST_MAIN(TesteFrmLimites)
#include "test_frmlimites.moc"
