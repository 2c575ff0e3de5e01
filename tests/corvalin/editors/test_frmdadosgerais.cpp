// The general data screen driven through its controls: what it shows and saves, its checks in
// their order, the week's bounds, the Vazpast switch, the keys it takes, the prompt, the import of
// a file, the accelerators and a read-only case.

#include "corvalin/editors/FrmDadosGerais.h"
#include "tests/corvalin/editors/TelaTeste.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QTabWidget>

using corvalin::Posto;
using corvalin::Tela;
using halvo::Icone;
using halvo::Resposta;
using teste::clica;
using teste::digita;
using teste::mensagens;
using teste::valor;
using teste::valores;

namespace {

const QString Gravar = QStringLiteral("BotDadosGeraisGravar");
const QString Proximo = QStringLiteral("BotDadosGeraisNavegacao_2");
const QString Prompt = QStringLiteral("Confirmação|Deseja gravar as alterações realizadas?");
const QString Maior = QStringLiteral(
    "|Atenção:\r\nA Semana Inicial de Previsão é maior do que o máximo possível. O Halvo irá ajustar para o "
    "máximo.");

// A station whose general data pass every check.
Posto posto(const teste::CasoDeTelas& caso, int codigo, const QString& nome) {
    Posto p = caso.posto(codigo, nome);
    p.AnoFinalHistorico = 2008;
    return p;
}

void adiciona(teste::CasoDeTelas& caso, int codigo, const QString& nome) {
    Posto p = posto(caso, codigo, nome);
    caso.grava(p);
}

halvo::Spin& semana(const QWidget& tela) {
    return teste::controle<halvo::Spin>(tela, QStringLiteral("SpnDadosGeraisSemanaInicialPrev"));
}

}  // namespace

class TesteFrmDadosGerais : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil)); }

    // A whole round: the station as stored, the user's changes saved, the same values when it is
    // shown again. An empty Vazpast box keeps the stored value.
    void mostraEGravaOPosto() {
        teste::CasoDeTelas caso;
        Posto alfa = posto(caso, 101, QStringLiteral("Alfa"));
        alfa.Transformacao = 2;
        alfa.Arquivos.ApagarArquivoRelatorio = true;
        alfa.FlafVazpast = true;
        alfa.NomeArqVazpast = QStringLiteral("Vazpast.dat");
        alfa.VazpastSemana_1 = 75.2;
        alfa.VazpastSemana_2 = 70.1;
        alfa.VazpastSemana_4 = 66.456;
        caso.grava(alfa);
        adiciona(caso, 202, QStringLiteral("Beta"));

        auto tela = teste::carrega<corvalin::FrmDadosGerais>(caso);
        QCOMPARE(
            valores(*tela, {"TxtDadosGeraisCodigo", "ChkDadosGeraisArquivosEntrada",
                            "TxtDadosGeraisArquivo_1", "TxtDadosGeraisArquivo_4", "TxtDadosGeraisArquivo_5",
                            "TxtDadosGeraisVazpast_0", "TxtDadosGeraisVazpast_2", "TxtDadosGeraisVazpast_3",
                            "OptDadosGeraisTransformacao_2", "ChkDadosGeraisExclusao_0",
                            "ChkDadosGeraisExclusao_2", "SpnDadosGeraisSemanaInicialPrev",
                            "TxtDadosGeraisAnoInicialPev", "TxtDadosGeraisIntervaloConfianca"}),
            (QStringList{"101", "x", "101.dat", "101.exc", "Vazpast.dat", "75,20", "", "66,456", "x", "", "x",
                         "3", "2009", "95"}));
        QCOMPARE(teste::habilitados(*tela, {"TxtDadosGeraisArquivo_5", "FmeDadosGeraisVazpast"}).size(), 2);

        digita(*tela, QStringLiteral("TxtDadosGeraisIntervaloConfianca"), QStringLiteral("90"));
        QCOMPARE(tela->getEstado(), Tela::Alterado);
        clica(*tela, QStringLiteral("OptDadosGeraisTransformacao_4"));
        clica(*tela, QStringLiteral("ChkDadosGeraisExclusao_0"));
        teste::controle<halvo::Spin>(*tela, QStringLiteral("SpnDadosGeraisMesInicial")).stepBy(1);
        digita(*tela, QStringLiteral("TxtDadosGeraisVazpast_1"), {});
        digita(*tela, QStringLiteral("TxtDadosGeraisVazpast_2"), QStringLiteral("80,5"));
        clica(*tela, Gravar);

        QVERIFY(caso.host.dialogo.Mensagens().empty());
        QCOMPARE(tela->getEstado(), Tela::Limpo);
        QCOMPARE(caso.notificador->Eventos(), std::vector<std::int32_t>{halvo::EventoCasoAlterado});
        const Posto gravado = teste::lePosto(caso, 101);
        QCOMPARE(gravado.IntervaloConfianca, 90);
        QCOMPARE(gravado.Transformacao, 4);
        QCOMPARE(gravado.MesInicial, 2);
        QVERIFY(gravado.Arquivos.ApagarArquivoDadosGerais && gravado.Arquivos.ApagarArquivoRelatorio);
        QCOMPARE(gravado.VazpastSemana_2, 70.1);
        QCOMPARE(gravado.VazpastSemana_3, 80.5);

        clica(*tela, Proximo);
        QCOMPARE(valores(*tela, {"TxtDadosGeraisCodigo", "TxtDadosGeraisArquivo_5"}),
                 (QStringList{"202", ""}));
        QVERIFY(teste::habilitados(*tela, {"FmeDadosGeraisVazpast"}).isEmpty());
        clica(*tela, QStringLiteral("BotDadosGeraisNavegacao_1"));
        QCOMPARE(valores(*tela, {"TxtDadosGeraisIntervaloConfianca", "TxtDadosGeraisVazpast_2",
                                 "OptDadosGeraisTransformacao_4"}),
                 (QStringList{"90", "80,50", "x"}));
    }

    // The checks come in their order, each with its message, on the first tab; nothing is stored
    // until all pass. Without the input names the first two are neither checked nor kept.
    void recusasNaOrdem() {
        teste::CasoDeTelas caso;
        adiciona(caso, 101, QStringLiteral("Alfa"));
        auto tela = teste::carrega<corvalin::FrmDadosGerais>(caso);
        auto& abas = teste::controle<QTabWidget>(*tela, QStringLiteral("GiiDadosGerais"));
        for (const auto& [nome, texto] : {std::pair{"TxtDadosGeraisArquivo_0", "dados gerais"},
                                          std::pair{"TxtDadosGeraisArquivo_2", "relatorio.rel"},
                                          std::pair{"SpnDadosGeraisMesInicial", "13"},
                                          std::pair{"TxtDadosGeraisIntervaloConfianca", "101"},
                                          std::pair{"TxtDadosGeraisAnoInicialPev", "1899"},
                                          std::pair{"TxtDadosGeraisAnoFinalHistorico", ""}}) {
            digita(*tela, QString::fromLatin1(nome), QString::fromLatin1(texto));
        }
        const auto recusa = [&](const QString& mensagem) {
            abas.setCurrentIndex(3);
            clica(*tela, Gravar);
            QCOMPARE(caso.host.dialogo.Mensagens().at(0).icone, Icone::Informacao);
            QCOMPARE(mensagens(caso.host.dialogo), QStringList{QStringLiteral("Informação|") + mensagem});
            QCOMPARE(abas.currentIndex(), 0);
        };
        recusa(QStringLiteral("Nome de arquivo inválido."));
        clica(*tela, QStringLiteral("ChkDadosGeraisArquivosEntrada"));
        QCOMPARE(valor(*tela, QStringLiteral("TxtDadosGeraisArquivo_0")), QString());
        QVERIFY(teste::habilitados(*tela, {"TxtDadosGeraisArquivo_1", "LblDadosGeraisArquivo_1"}).isEmpty());
        recusa(QStringLiteral("Nome de arquivo inválido."));
        digita(*tela, QStringLiteral("TxtDadosGeraisArquivo_2"), QStringLiteral("rel.txt"));
        recusa(QStringLiteral("Mês Inicial do Ano Hidrológico Inválido. Verifique."));
        digita(*tela, QStringLiteral("SpnDadosGeraisMesInicial"), QStringLiteral("12"));
        recusa(QStringLiteral("Número inválido."));
        digita(*tela, QStringLiteral("TxtDadosGeraisIntervaloConfianca"), QStringLiteral("100"));
        recusa(QStringLiteral("Ano Inicial da Previsão Inválido. Verifique."));
        digita(*tela, QStringLiteral("TxtDadosGeraisAnoInicialPev"), QStringLiteral("2200"));
        recusa(QStringLiteral("Ano Final do Histórico Inválido. Verifique."));
        QCOMPARE(tela->getEstado(), Tela::Alterado);
        QCOMPARE(teste::lePosto(caso, 101).MesInicial, 1);

        digita(*tela, QStringLiteral("TxtDadosGeraisAnoFinalHistorico"), QStringLiteral("1900"));
        clica(*tela, Gravar);
        QVERIFY(caso.host.dialogo.Mensagens().empty());
        const Posto gravado = teste::lePosto(caso, 101);
        QCOMPARE(gravado.MesInicial, 12);
        QCOMPARE(gravado.AnoFinalHistorico, 1900);
        QCOMPARE(gravado.Arquivos.ArquivoRelatorio, QStringLiteral("rel.txt"));
        QVERIFY(gravado.Arquivos.ArquivoDadosGerais.trimmed().isEmpty());
        QVERIFY(gravado.Arquivos.ArquivoVazoesSemanais.trimmed().isEmpty());
    }

    // The 53-week box bounds the week and is no change of its own. Showing a station, the button
    // and the box hold the week to its bounds, with a word; the prompt saves it as it stands.
    void semanaNosLimitesDoAno() {
        teste::CasoDeTelas caso;
        Posto alfa = posto(caso, 101, QStringLiteral("Alfa"));
        alfa.Arquivos.CasoUsa53Semanas = 1;
        alfa.SemanaInicialPrev = 53;
        caso.grava(alfa);
        Posto beta = posto(caso, 202, QStringLiteral("Beta"));
        beta.SemanaInicialPrev = 53;
        caso.grava(beta);

        auto tela = teste::carrega<corvalin::FrmDadosGerais>(caso);
        QCOMPARE(semana(*tela).Maximo(), 53);
        QVERIFY(caso.host.dialogo.Mensagens().empty());
        clica(*tela, Proximo);
        QCOMPARE(caso.host.dialogo.Mensagens().at(0).icone, Icone::Nenhum);
        QCOMPARE(mensagens(caso.host.dialogo), QStringList{Maior});
        QCOMPARE(semana(*tela).Texto(), QStringLiteral("52"));

        clica(*tela, QStringLiteral("BotDadosGeraisNavegacao_0"));
        clica(*tela, QStringLiteral("chkCasoUsa53Semanas"));
        QCOMPARE(mensagens(caso.host.dialogo), QStringList{Maior});
        QCOMPARE(semana(*tela).Maximo(), 52);
        QCOMPARE(tela->getEstado(), Tela::Limpo);
        clica(*tela, Gravar);
        QCOMPARE(teste::lePosto(caso, 101).Arquivos.CasoUsa53Semanas, 1);
        QVERIFY(caso.notificador->Eventos().empty());

        digita(*tela, QStringLiteral("SpnDadosGeraisSemanaInicialPrev"), {});
        clica(*tela, Gravar);
        QCOMPARE(
            mensagens(caso.host.dialogo),
            QStringList{QStringLiteral("|Atenção:\r\nA Semana Inicial de Previsão é menor do que o mínimo "
                                       "possível. O Halvo irá ajustar para o mínimo.")});
        QCOMPARE(teste::lePosto(caso, 101).SemanaInicialPrev, 1);
        QCOMPARE(teste::lePosto(caso, 101).Arquivos.CasoUsa53Semanas, 0);

        digita(*tela, QStringLiteral("SpnDadosGeraisSemanaInicialPrev"), QStringLiteral("60"));
        QVERIFY(tela->close());
        QCOMPARE(mensagens(caso.host.dialogo), QStringList{Prompt});
        QCOMPARE(teste::lePosto(caso, 101).SemanaInicialPrev, 60);
    }

    // Ticked, the Vazpast name starts from its default and the values open; unticked, the name
    // stays on the screen but is not saved. A value that is no number stops the save in its trap.
    void vazpastLigadoEDesligado() {
        teste::CasoDeTelas caso;
        adiciona(caso, 101, QStringLiteral("Alfa"));
        auto tela = teste::carrega<corvalin::FrmDadosGerais>(caso);
        const auto vazpast = {"TxtDadosGeraisArquivo_5", "FmeDadosGeraisVazpast"};
        QVERIFY(teste::habilitados(*tela, vazpast).isEmpty());
        clica(*tela, QStringLiteral("ChkDadosGeraisUsaVazpast"));
        QCOMPARE(valor(*tela, QStringLiteral("TxtDadosGeraisArquivo_5")), QStringLiteral("Vazpast.dat"));
        QCOMPARE(teste::habilitados(*tela, vazpast).size(), 2);

        // The keys cannot make a bad number; a paste can.
        QApplication::clipboard()->setText(QStringLiteral("7,2,5"));
        QTest::keyClick(&teste::controle<QLineEdit>(*tela, QStringLiteral("TxtDadosGeraisVazpast_1")),
                        Qt::Key_V, Qt::ControlModifier);
        clica(*tela, Gravar);
        const QStringList erro = mensagens(caso.host.dialogo);
        QCOMPARE(erro.size(), 1);
        QVERIFY(erro[0].startsWith(QStringLiteral("Atenção...|")) &&
                erro[0].contains(QStringLiteral("pGravar")));
        QVERIFY(!teste::lePosto(caso, 101).FlafVazpast);
        QCOMPARE(tela->getEstado(), Tela::Alterado);

        digita(*tela, QStringLiteral("TxtDadosGeraisVazpast_1"), QStringLiteral("7,25"));
        clica(*tela, Gravar);
        QCOMPARE(teste::lePosto(caso, 101).VazpastSemana_2, 7.25);
        QCOMPARE(teste::lePosto(caso, 101).NomeArqVazpast, QStringLiteral("Vazpast.dat"));

        clica(*tela, QStringLiteral("ChkDadosGeraisUsaVazpast"));
        QCOMPARE(valor(*tela, QStringLiteral("TxtDadosGeraisArquivo_5")), QStringLiteral("Vazpast.dat"));
        QCOMPARE(teste::habilitados(*tela, vazpast), QStringList{QStringLiteral("FmeDadosGeraisVazpast")});
        clica(*tela, Gravar);
        QVERIFY(!teste::lePosto(caso, 101).FlafVazpast);
    }

    // Years take digits only, the interval digits only, a Vazpast value one decimal comma that
    // neither starts nor fills it; the backspace always goes.
    void teclasDasCaixasNumericas() {
        teste::CasoDeTelas caso;
        auto tela = teste::carrega<corvalin::FrmDadosGerais>(caso);
        const auto caixas = {"TxtDadosGeraisAnoInicialPev", "TxtDadosGeraisAnoFinalHistorico",
                             "TxtDadosGeraisIntervaloConfianca", "TxtDadosGeraisVazpast_0",
                             "TxtDadosGeraisVazpast_1"};
        const QStringList digitados{"2a0,1-9", " 19.99", "9,5x", ",12,3,4.5", "123456789,"};
        int i = 0;
        for (const char* nome : caixas) {
            digita(*tela, QString::fromLatin1(nome), digitados[i++]);
        }
        QCOMPARE(valores(*tela, caixas), (QStringList{"2019", "1999", "95", "12,345", "123456789"}));
        QTest::keyClick(&teste::controle<QLineEdit>(*tela, QStringLiteral("TxtDadosGeraisAnoInicialPev")),
                        Qt::Key_Backspace);
        QCOMPARE(valor(*tela, QStringLiteral("TxtDadosGeraisAnoInicialPev")), QStringLiteral("201"));
    }

    // Cancel keeps the screen and its changes, No drops them, Yes saves, and a refused save keeps
    // the user where he was.
    void promptAoSairDoPosto() {
        teste::CasoDeTelas caso;
        adiciona(caso, 101, QStringLiteral("Alfa"));
        adiciona(caso, 202, QStringLiteral("Beta"));
        auto tela = teste::carrega<corvalin::FrmDadosGerais>(caso);
        digita(*tela, QStringLiteral("TxtDadosGeraisIntervaloConfianca"), QStringLiteral("80"));
        caso.host.dialogo.responde(Resposta::Cancelar);
        clica(*tela, Proximo);
        QCOMPARE(caso.host.dialogo.Mensagens().at(0).icone, Icone::Pergunta);
        QCOMPARE(valores(*tela, {"TxtDadosGeraisCodigo", "TxtDadosGeraisIntervaloConfianca"}),
                 (QStringList{"101", "80"}));
        caso.host.dialogo.responde(Resposta::Nao);
        clica(*tela, Proximo);
        QCOMPARE(valor(*tela, QStringLiteral("TxtDadosGeraisCodigo")), QStringLiteral("202"));
        QCOMPARE(teste::lePosto(caso, 101).IntervaloConfianca, 95);

        digita(*tela, QStringLiteral("TxtDadosGeraisAnoInicialPev"), QStringLiteral("1"));
        mensagens(caso.host.dialogo);
        caso.host.dialogo.responde(Resposta::Sim);
        QVERIFY(!tela->close());
        QCOMPARE(
            mensagens(caso.host.dialogo),
            (QStringList{Prompt, QStringLiteral("Informação|Ano Inicial da Previsão Inválido. Verifique.")}));
        digita(*tela, QStringLiteral("TxtDadosGeraisAnoInicialPev"), QStringLiteral("2015"));
        caso.host.dialogo.responde(Resposta::Sim);
        QVERIFY(tela->close());
        QCOMPARE(teste::lePosto(caso, 202).AnoInicialPrev, 2015);
    }

    // The file may name another station: that one is stored and shown, under the progress form.
    // Without a station there is nothing to import into; a file that does not read is told.
    void importaDadosGerais() {
        teste::CasoDeTelas caso;
        auto vazia = teste::carrega<corvalin::FrmDadosGerais>(caso);
        clica(*vazia, QStringLiteral("BotDadosGeraisImportar"));
        QCOMPARE(
            mensagens(caso.host.dialogo),
            QStringList{QStringLiteral("Informação|Para realizar esta operação é necessário primeiramente "
                                       "selecionar um posto.")});
        QVERIFY(caso.host.dialogo.FiltrosPedidos().empty());

        adiciona(caso, 101, QStringLiteral("Alfa"));
        adiciona(caso, 202, QStringLiteral("Beta"));
        const QString arquivo = QDir::toNativeSeparators(caso.host.caminho(QStringLiteral("202.arq")));
        QVERIFY(QFile::copy(QStringLiteral(CORVALIN_DADOS_TESTE "/execucao/202.arq"), arquivo));
        auto tela = teste::carrega<corvalin::FrmDadosGerais>(caso);
        caso.host.dialogo.respondeArquivo(arquivo);
        clica(*tela, QStringLiteral("BotDadosGeraisImportar"));
        QCOMPARE(caso.host.dialogo.FiltrosPedidos(), std::vector<QString>{QStringLiteral("*.*|*.*")});
        QVERIFY(caso.host.dialogo.Mensagens().empty());
        QCOMPARE(valores(*tela, {"TxtDadosGeraisCodigo", "TxtDadosGeraisAnoInicialPev"}),
                 (QStringList{"202", "2011"}));
        QCOMPARE(teste::lePosto(caso, 202).AnoInicialPrev, 2011);
        QCOMPARE(teste::lePosto(caso, 101).AnoInicialPrev, 2009);
        QCOMPARE(caso.host.sistema.Auxiliares.size(), 1u);
        for (const QWidget* janela : QApplication::topLevelWidgets()) {
            QVERIFY(janela->objectName() != QStringLiteral("FrmBarraDeProgresso"));
        }

        caso.host.dialogo.respondeArquivo(caso.host.caminho(QStringLiteral("nenhum.arq")));
        clica(*tela, QStringLiteral("BotDadosGeraisImportar"));
        QCOMPARE(caso.host.dialogo.Mensagens().at(0).icone, Icone::Erro);
        QCOMPARE(mensagens(caso.host.dialogo), QStringList{QStringLiteral("Erro|Erro ao ler o arquivo.")});
    }

    // A tab's accelerator takes the user into its first field, and a button's presses it.
    void aceleradores() {
        teste::CasoDeTelas caso;
        adiciona(caso, 101, QStringLiteral("Alfa"));
        auto tela = teste::carrega<corvalin::FrmDadosGerais>(caso);
        tela->show();
        QVERIFY(QTest::qWaitForWindowActive(tela.get()));
        QTest::keyClick(tela.get(), Qt::Key_2, Qt::AltModifier);
        QCOMPARE(teste::controle<QTabWidget>(*tela, QStringLiteral("GiiDadosGerais")).currentIndex(), 1);
        QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("OptDadosGeraisTransformacao_1"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        // A button's accelerator presses it as a click would, after a short show of its press.
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_G, Qt::AltModifier);
        QTRY_COMPARE(teste::lePosto(caso, 101).Transformacao, 2);
    }

    // A read-only case: the write buttons are off, typing changes nothing, leaving asks nothing.
    void casoSomenteLeitura() {
        teste::CasoDeTelas caso(true);
        adiciona(caso, 101, QStringLiteral("Alfa"));
        auto tela = teste::carrega<corvalin::FrmDadosGerais>(caso);
        QCOMPARE(teste::habilitados(*tela,
                                    {"BotDadosGeraisGravar", "BotDadosGeraisImportar", "BotDadosGeraisSair"}),
                 QStringList{QStringLiteral("BotDadosGeraisSair")});
        digita(*tela, QStringLiteral("TxtDadosGeraisIntervaloConfianca"), QStringLiteral("50"));
        clica(*tela, QStringLiteral("ChkDadosGeraisUsaVazpast"));
        QCOMPARE(tela->getEstado(), Tela::Limpo);
        QVERIFY(tela->close());
        QVERIFY(caso.host.dialogo.Mensagens().empty());
    }
};

QTEST_MAIN(TesteFrmDadosGerais)
#include "test_frmdadosgerais.moc"
