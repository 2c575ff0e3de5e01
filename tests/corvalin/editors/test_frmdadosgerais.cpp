// The general data screen driven through its controls: its checks in their order, the week's
// bounds, the Vazpast switch, the prompt, the import, the keyboard and a read-only case.

#include "corvalin/editors/FrmDadosGerais.h"
#include "halvo/controles/Spin.h"
#include "tests/corvalin/editors/TelaTeste.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTabWidget>

using namespace Qt::StringLiterals;
using namespace teste;
using corvalin::Posto;
using corvalin::Tela;
using halvo::Resposta;

namespace {

const QString Gravar = u"BotDadosGeraisGravar"_s;
const QString Proximo = u"BotDadosGeraisNavegacao_2"_s;
const QString Prompt = u"Confirmação|Deseja gravar as alterações realizadas?"_s;
const QString Aviso =
    u"|Atenção:\r\nA Semana Inicial de Previsão é %1 do que o %2 possível. O Halvo irá ajustar "
    u"para o %2."_s;

// A station whose general data pass every check, stored.
Posto adiciona(CasoDeTelas& caso, int codigo, const QString& nome) {
    Posto p = caso.posto(codigo, nome);
    p.AnoFinalHistorico = 2008;
    caso.grava(p);
    return p;
}

}  // namespace

class TesteFrmDadosGerais : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil)); }

    // The checks come in their order, each with its message, on the first tab; nothing is stored
    // until all pass. Without the input names the first two are neither checked nor kept.
    void recusasNaOrdem() {
        CasoDeTelas caso;
        adiciona(caso, 101, u"Alfa"_s);
        auto tela = carrega<corvalin::FrmDadosGerais>(caso);
        auto& abas = controle<QTabWidget>(*tela, "GiiDadosGerais");
        for (const auto& [nome, texto] : {std::pair{"TxtDadosGeraisArquivo_0", "dados gerais"},
                                          {"TxtDadosGeraisArquivo_2", "relatorio.rel"},
                                          {"SpnDadosGeraisMesInicial", "13"},
                                          {"TxtDadosGeraisIntervaloConfianca", "101"},
                                          {"TxtDadosGeraisAnoInicialPev", "1899"},
                                          {"TxtDadosGeraisAnoFinalHistorico", ""}}) {
            digita(*tela, nome, texto);
        }
        // Each refusal, then what the user corrects (a null text: the box he unticks).
        const struct {
            const char* mensagem;
            const char* campo;
            const char* correcao;
        } passos[] = {
            {"Nome de arquivo inválido.", "ChkDadosGeraisArquivosEntrada", nullptr},
            {"Nome de arquivo inválido.", "TxtDadosGeraisArquivo_2", "rel.txt"},
            {"Mês Inicial do Ano Hidrológico Inválido. Verifique.", "SpnDadosGeraisMesInicial", "12"},
            {"Número inválido.", "TxtDadosGeraisIntervaloConfianca", "100"},
            {"Ano Inicial da Previsão Inválido. Verifique.", "TxtDadosGeraisAnoInicialPev", "2200"},
            {"Ano Final do Histórico Inválido. Verifique.", "TxtDadosGeraisAnoFinalHistorico", "1900"}};
        for (const auto& passo : passos) {
            abas.setCurrentIndex(3);
            clica(*tela, Gravar);
            QCOMPARE(mensagens(caso.host.dialogo),
                     QStringList{u"Informação|"_s + QString::fromUtf8(passo.mensagem)});
            QCOMPARE(abas.currentIndex(), 0);
            QCOMPARE(lePosto(caso, 101).MesInicial, 1);
            passo.correcao ? digita(*tela, passo.campo, passo.correcao) : clica(*tela, passo.campo);
        }
        QCOMPARE(valor(*tela, "TxtDadosGeraisArquivo_0"), QString());
        QVERIFY(habilitados(*tela, {"TxtDadosGeraisArquivo_1", "LblDadosGeraisArquivo_1"}).isEmpty());

        clica(*tela, Gravar);
        QVERIFY(caso.host.dialogo.Mensagens().empty());
        const Posto gravado = lePosto(caso, 101);
        QCOMPARE(std::tuple(gravado.MesInicial, gravado.AnoFinalHistorico, gravado.Arquivos.ArquivoRelatorio),
                 std::tuple(12, 1900, u"rel.txt"_s));
        QVERIFY(gravado.Arquivos.ArquivoDadosGerais.trimmed().isEmpty());
        QVERIFY(gravado.Arquivos.ArquivoVazoesSemanais.trimmed().isEmpty());
    }

    // The 53-week box bounds the week and is no change of its own. Showing a station, the button
    // and the box hold the week to its bounds, with a word; the prompt saves it as it stands.
    void semanaNosLimitesDoAno() {
        CasoDeTelas caso;
        for (const int codigo : {101, 202}) {
            Posto p = adiciona(caso, codigo, QString::number(codigo));
            p.Arquivos.CasoUsa53Semanas = codigo == 101;
            p.SemanaInicialPrev = 53;
            caso.grava(p);
        }
        const QString maior = Aviso.arg(u"maior"_s, u"máximo"_s);

        auto tela = carrega<corvalin::FrmDadosGerais>(caso);
        const auto& semana = controle<halvo::Spin>(*tela, "SpnDadosGeraisSemanaInicialPrev");
        QCOMPARE(semana.Maximo(), 53);
        QVERIFY(caso.host.dialogo.Mensagens().empty());
        clica(*tela, Proximo);
        QCOMPARE(mensagens(caso.host.dialogo), QStringList{maior});
        QCOMPARE(semana.Texto(), u"52"_s);

        clica(*tela, "BotDadosGeraisNavegacao_0");
        clica(*tela, "chkCasoUsa53Semanas");
        QCOMPARE(mensagens(caso.host.dialogo), QStringList{maior});
        QCOMPARE(semana.Maximo(), 52);
        QCOMPARE(tela->getEstado(), Tela::Limpo);
        clica(*tela, Gravar);
        QCOMPARE(lePosto(caso, 101).Arquivos.CasoUsa53Semanas, 1);
        QVERIFY(caso.notificador->Eventos().empty());

        digita(*tela, "SpnDadosGeraisSemanaInicialPrev", {});
        clica(*tela, Gravar);
        QCOMPARE(mensagens(caso.host.dialogo), QStringList{Aviso.arg(u"menor"_s, u"mínimo"_s)});
        QCOMPARE(lePosto(caso, 101).SemanaInicialPrev, 1);
        QCOMPARE(lePosto(caso, 101).Arquivos.CasoUsa53Semanas, 0);

        digita(*tela, "SpnDadosGeraisSemanaInicialPrev", "60");
        QVERIFY(tela->close());
        QCOMPARE(mensagens(caso.host.dialogo), QStringList{Prompt});
        QCOMPARE(lePosto(caso, 101).SemanaInicialPrev, 60);
    }

    // Ticked, the Vazpast name starts from its default and the values open, saved and shown again;
    // unticked, the name stays on the screen but is not saved.
    void vazpastLigadoEDesligado() {
        CasoDeTelas caso;
        adiciona(caso, 101, u"Alfa"_s);
        auto tela = carrega<corvalin::FrmDadosGerais>(caso);
        const Nomes vazpast = {"TxtDadosGeraisArquivo_5", "FmeDadosGeraisVazpast"};
        QVERIFY(habilitados(*tela, vazpast).isEmpty());
        clica(*tela, "ChkDadosGeraisUsaVazpast");
        QCOMPARE(valor(*tela, "TxtDadosGeraisArquivo_5"), u"Vazpast.dat"_s);
        QCOMPARE(habilitados(*tela, vazpast).size(), 2);

        digita(*tela, "TxtDadosGeraisVazpast_1", "7,25");
        clica(*tela, Gravar);
        QCOMPARE(std::pair(lePosto(caso, 101).VazpastSemana_2, lePosto(caso, 101).NomeArqVazpast),
                 std::pair(7.25, u"Vazpast.dat"_s));
        tela = carrega<corvalin::FrmDadosGerais>(caso);
        QCOMPARE(valores(*tela, {"TxtDadosGeraisVazpast_0", "TxtDadosGeraisVazpast_1"}),
                 (QStringList{"", "7,25"}));

        clica(*tela, "ChkDadosGeraisUsaVazpast");
        QCOMPARE(valor(*tela, "TxtDadosGeraisArquivo_5"), u"Vazpast.dat"_s);
        QCOMPARE(habilitados(*tela, vazpast), QStringList{u"FmeDadosGeraisVazpast"_s});
        clica(*tela, Gravar);
        QVERIFY(!lePosto(caso, 101).FlafVazpast);
    }

    // Cancel keeps the screen and its changes, No drops them, Yes saves, and a refused save keeps
    // the user where he was.
    void promptAoSairDoPosto() {
        CasoDeTelas caso;
        adiciona(caso, 101, u"Alfa"_s);
        adiciona(caso, 202, u"Beta"_s);
        auto tela = carrega<corvalin::FrmDadosGerais>(caso);
        digita(*tela, "TxtDadosGeraisIntervaloConfianca", "80");
        caso.host.dialogo.responde(Resposta::Cancelar);
        clica(*tela, Proximo);
        QCOMPARE(valores(*tela, {"TxtDadosGeraisCodigo", "TxtDadosGeraisIntervaloConfianca"}),
                 (QStringList{"101", "80"}));
        caso.host.dialogo.responde(Resposta::Nao);
        clica(*tela, Proximo);
        QCOMPARE(valor(*tela, "TxtDadosGeraisCodigo"), u"202"_s);
        QCOMPARE(lePosto(caso, 101).IntervaloConfianca, 95);

        digita(*tela, "TxtDadosGeraisAnoInicialPev", "1");
        mensagens(caso.host.dialogo);
        caso.host.dialogo.responde(Resposta::Sim);
        QVERIFY(!tela->close());
        QCOMPARE(mensagens(caso.host.dialogo),
                 (QStringList{Prompt, u"Informação|Ano Inicial da Previsão Inválido. Verifique."_s}));
        digita(*tela, "TxtDadosGeraisAnoInicialPev", "2015");
        caso.host.dialogo.responde(Resposta::Sim);
        QVERIFY(tela->close());
        QCOMPARE(lePosto(caso, 202).AnoInicialPrev, 2015);
    }

    // The file may name another station: that one is stored and shown.
    // Without a station there is nothing to import into; a file that does not read is told.
    void importaDadosGerais() {
        CasoDeTelas caso;
        auto vazia = carrega<corvalin::FrmDadosGerais>(caso);
        clica(*vazia, "BotDadosGeraisImportar");
        QCOMPARE(
            mensagens(caso.host.dialogo),
            QStringList{u"Informação|Para realizar esta operação é necessário primeiramente selecionar um "
                        u"posto."_s});

        adiciona(caso, 101, u"Alfa"_s);
        adiciona(caso, 202, u"Beta"_s);
        const QString arquivo = QDir::toNativeSeparators(caso.host.caminho(u"202.arq"_s));
        QVERIFY(QFile::copy(QStringLiteral(CORVALIN_DADOS_TESTE "/execucao/202.arq"), arquivo));
        auto tela = carrega<corvalin::FrmDadosGerais>(caso);
        caso.host.dialogo.respondeArquivo(arquivo);
        clica(*tela, "BotDadosGeraisImportar");
        QVERIFY(caso.host.dialogo.Mensagens().empty());
        QCOMPARE(valores(*tela, {"TxtDadosGeraisCodigo", "TxtDadosGeraisAnoInicialPev"}),
                 (QStringList{"202", "2011"}));
        QCOMPARE(std::tuple(lePosto(caso, 202).AnoInicialPrev, lePosto(caso, 101).AnoInicialPrev),
                 std::tuple(2011, 2009));
        caso.host.dialogo.respondeArquivo(caso.host.caminho(u"nenhum.arq"_s));
        clica(*tela, "BotDadosGeraisImportar");
        QCOMPARE(mensagens(caso.host.dialogo), QStringList{u"Erro|Erro ao ler o arquivo."_s});
    }

    // By keyboard alone: a tab's accelerator takes the user into its first field, and a button's
    // presses it.
    void aceleradores() {
        CasoDeTelas caso;
        adiciona(caso, 101, u"Alfa"_s);
        auto tela = carrega<corvalin::FrmDadosGerais>(caso);
        tela->show();
        QVERIFY(QTest::qWaitForWindowActive(tela.get()));
        QTest::keyClick(tela.get(), Qt::Key_2, Qt::AltModifier);
        QCOMPARE(controle<QTabWidget>(*tela, u"GiiDadosGerais"_s).currentIndex(), 1);
        QCOMPARE(QApplication::focusWidget()->objectName(), u"OptDadosGeraisTransformacao_1"_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_G, Qt::AltModifier);
        QTRY_COMPARE(lePosto(caso, 101).Transformacao, 2);
    }

    // A read-only case: the write buttons are off, typing changes nothing, leaving asks nothing.
    void casoSomenteLeitura() {
        CasoDeTelas caso(true);
        adiciona(caso, 101, u"Alfa"_s);
        auto tela = carrega<corvalin::FrmDadosGerais>(caso);
        QCOMPARE(habilitados(*tela, {"BotDadosGeraisGravar", "BotDadosGeraisImportar", "BotDadosGeraisSair"}),
                 QStringList{u"BotDadosGeraisSair"_s});
        digita(*tela, "TxtDadosGeraisIntervaloConfianca", "50");
        clica(*tela, "ChkDadosGeraisUsaVazpast");
        QCOMPARE(tela->getEstado(), Tela::Limpo);
        QVERIFY(tela->close());
        QVERIFY(caso.host.dialogo.Mensagens().empty());
    }
};

QTEST_MAIN(TesteFrmDadosGerais)
#include "test_frmdadosgerais.moc"
