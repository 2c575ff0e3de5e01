// The general data screen driven through its controls: what it shows and saves, its checks in
// their order, the week's bounds, the Vazpast switch, the keys it takes, the prompt, the import of
// a file and a read-only case.

#include "corvalin/editors/FrmDadosGerais.h"
#include "halvo/controles/Spin.h"
#include "tests/corvalin/editors/TelaTeste.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

using corvalin::Posto;
using halvo::Icone;
using halvo::Resposta;
using teste::clica;
using teste::controle;
using teste::digita;
using teste::textoDe;

namespace {

const QString Gravar = QStringLiteral("BotDadosGeraisGravar");

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

bool marcado(const QWidget& tela, const QString& nome) {
    return controle<QAbstractButton>(tela, nome).isChecked();
}

bool habilitado(const QWidget& tela, const QString& nome) {
    return controle<QWidget>(tela, nome).isEnabled();
}

halvo::Spin& semana(const QWidget& tela) {
    return controle<halvo::Spin>(tela, QStringLiteral("SpnDadosGeraisSemanaInicialPrev"));
}

}  // namespace

class TesteFrmDadosGerais : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil)); }

    void cleanup() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    // A whole round: the station as stored, the user's changes saved, and the same values when the
    // station is shown again. An empty Vazpast box keeps the stored value.
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
        caso.adiciona(202, QStringLiteral("Beta"));

        auto tela = teste::carrega<corvalin::FrmDadosGerais>(caso);
        QCOMPARE(tela->windowTitle(), QStringLiteral("Dados Gerais"));
        QCOMPARE(textoDe(*tela, QStringLiteral("TxtDadosGeraisCodigo")), QStringLiteral("101"));
        QVERIFY(marcado(*tela, QStringLiteral("ChkDadosGeraisArquivosEntrada")));
        QCOMPARE(textoDe(*tela, QStringLiteral("TxtDadosGeraisArquivo_1")), QStringLiteral("101.dat"));
        QCOMPARE(textoDe(*tela, QStringLiteral("TxtDadosGeraisArquivo_4")), QStringLiteral("101.exc"));
        QCOMPARE(textoDe(*tela, QStringLiteral("TxtDadosGeraisArquivo_5")), QStringLiteral("Vazpast.dat"));
        QVERIFY(habilitado(*tela, QStringLiteral("TxtDadosGeraisArquivo_5")));
        QVERIFY(habilitado(*tela, QStringLiteral("FmeDadosGeraisVazpast")));
        QCOMPARE(textoDe(*tela, QStringLiteral("TxtDadosGeraisVazpast_0")), QStringLiteral("75,20"));
        QCOMPARE(textoDe(*tela, QStringLiteral("TxtDadosGeraisVazpast_2")), QString());
        QCOMPARE(textoDe(*tela, QStringLiteral("TxtDadosGeraisVazpast_3")), QStringLiteral("66,456"));
        QVERIFY(marcado(*tela, QStringLiteral("OptDadosGeraisTransformacao_2")));
        QVERIFY(marcado(*tela, QStringLiteral("ChkDadosGeraisExclusao_2")));
        QVERIFY(!marcado(*tela, QStringLiteral("ChkDadosGeraisExclusao_0")));
        QCOMPARE(semana(*tela).Texto(), QStringLiteral("3"));
        QCOMPARE(semana(*tela).Maximo(), 52);
        QCOMPARE(textoDe(*tela, QStringLiteral("TxtDadosGeraisAnoInicialPev")), QStringLiteral("2009"));
        QCOMPARE(textoDe(*tela, QStringLiteral("TxtDadosGeraisIntervaloConfianca")), QStringLiteral("95"));
        QCOMPARE(tela->getEstado(), corvalin::Tela::Limpo);

        digita(*tela, QStringLiteral("TxtDadosGeraisIntervaloConfianca"), QStringLiteral("90"));
        QCOMPARE(tela->getEstado(), corvalin::Tela::Alterado);
        clica(*tela, QStringLiteral("OptDadosGeraisTransformacao_4"));
        clica(*tela, QStringLiteral("ChkDadosGeraisExclusao_0"));
        controle<halvo::Spin>(*tela, QStringLiteral("SpnDadosGeraisMesInicial")).stepBy(1);
        digita(*tela, QStringLiteral("TxtDadosGeraisVazpast_1"), {});
        digita(*tela, QStringLiteral("TxtDadosGeraisVazpast_2"), QStringLiteral("80,5"));
        clica(*tela, Gravar);

        QVERIFY(caso.host.dialogo.Mensagens().empty());
        QCOMPARE(tela->getEstado(), corvalin::Tela::Limpo);
        QCOMPARE(caso.notificador->Eventos(), std::vector<std::int32_t>{halvo::EventoCasoAlterado});
        const Posto gravado = teste::lePosto(caso, 101);
        QCOMPARE(gravado.IntervaloConfianca, 90);
        QCOMPARE(gravado.Transformacao, 4);
        QCOMPARE(gravado.MesInicial, 2);
        QVERIFY(gravado.Arquivos.ApagarArquivoDadosGerais);
        QVERIFY(gravado.Arquivos.ApagarArquivoRelatorio);
        QCOMPARE(gravado.VazpastSemana_1, 75.2);
        QCOMPARE(gravado.VazpastSemana_2, 70.1);
        QCOMPARE(gravado.VazpastSemana_3, 80.5);
        QVERIFY(gravado.FlafVazpast);

        clica(*tela, QStringLiteral("BotDadosGeraisNavegacao_2"));
        QCOMPARE(textoDe(*tela, QStringLiteral("TxtDadosGeraisCodigo")), QStringLiteral("202"));
        QCOMPARE(textoDe(*tela, QStringLiteral("TxtDadosGeraisArquivo_5")), QString());
        QVERIFY(!habilitado(*tela, QStringLiteral("FmeDadosGeraisVazpast")));
        clica(*tela, QStringLiteral("BotDadosGeraisNavegacao_1"));
        QCOMPARE(textoDe(*tela, QStringLiteral("TxtDadosGeraisIntervaloConfianca")), QStringLiteral("90"));
        QCOMPARE(textoDe(*tela, QStringLiteral("TxtDadosGeraisVazpast_2")), QStringLiteral("80,50"));
        QVERIFY(marcado(*tela, QStringLiteral("OptDadosGeraisTransformacao_4")));
    }

    // The checks come in their order, each with its message; nothing is stored until all pass.
    // Without the input names the first two are neither checked nor kept.
    void recusasNaOrdem() {
        teste::CasoDeTelas caso;
        adiciona(caso, 101, QStringLiteral("Alfa"));
        auto tela = teste::carrega<corvalin::FrmDadosGerais>(caso);
        auto& abas = controle<QTabWidget>(*tela, QStringLiteral("GiiDadosGerais"));

        digita(*tela, QStringLiteral("TxtDadosGeraisArquivo_0"), QStringLiteral("dados gerais"));
        digita(*tela, QStringLiteral("TxtDadosGeraisArquivo_2"), QStringLiteral("relatorio.rel"));
        digita(*tela, QStringLiteral("SpnDadosGeraisMesInicial"), QStringLiteral("13"));
        digita(*tela, QStringLiteral("TxtDadosGeraisIntervaloConfianca"), QStringLiteral("101"));
        digita(*tela, QStringLiteral("TxtDadosGeraisAnoInicialPev"), QStringLiteral("1899"));
        digita(*tela, QStringLiteral("TxtDadosGeraisAnoFinalHistorico"), {});

        const auto recusa = [&](const QString& mensagem) {
            caso.host.dialogo.limpa();
            abas.setCurrentIndex(3);
            clica(*tela, Gravar);
            QCOMPARE(caso.host.dialogo.Mensagens().size(), 1u);
            const auto& dita = caso.host.dialogo.Mensagens()[0];
            QCOMPARE(dita.texto, mensagem);
            QCOMPARE(dita.titulo, QStringLiteral("Informação"));
            QCOMPARE(dita.icone, Icone::Informacao);
            QCOMPARE(abas.currentIndex(), 0);
            QCOMPARE(tela->getEstado(), corvalin::Tela::Alterado);
        };
        recusa(QStringLiteral("Nome de arquivo inválido."));
        clica(*tela, QStringLiteral("ChkDadosGeraisArquivosEntrada"));
        QCOMPARE(textoDe(*tela, QStringLiteral("TxtDadosGeraisArquivo_0")), QString());
        QVERIFY(!habilitado(*tela, QStringLiteral("TxtDadosGeraisArquivo_1")));
        QVERIFY(!habilitado(*tela, QStringLiteral("LblDadosGeraisArquivo_1")));
        recusa(QStringLiteral("Nome de arquivo inválido."));
        digita(*tela, QStringLiteral("TxtDadosGeraisArquivo_2"), QStringLiteral("rel.txt"));
        recusa(QStringLiteral("Mês Inicial do Ano Hidrológico Inválido. Verifique."));
        digita(*tela, QStringLiteral("SpnDadosGeraisMesInicial"), QStringLiteral("12"));
        recusa(QStringLiteral("Número inválido."));
        digita(*tela, QStringLiteral("TxtDadosGeraisIntervaloConfianca"), QStringLiteral("100"));
        recusa(QStringLiteral("Ano Inicial da Previsão Inválido. Verifique."));
        digita(*tela, QStringLiteral("TxtDadosGeraisAnoInicialPev"), QStringLiteral("2200"));
        recusa(QStringLiteral("Ano Final do Histórico Inválido. Verifique."));
        QVERIFY(caso.notificador->Eventos().empty());
        QCOMPARE(teste::lePosto(caso, 101).MesInicial, 1);

        digita(*tela, QStringLiteral("TxtDadosGeraisAnoFinalHistorico"), QStringLiteral("1900"));
        caso.host.dialogo.limpa();
        clica(*tela, Gravar);
        QVERIFY(caso.host.dialogo.Mensagens().empty());
        const Posto gravado = teste::lePosto(caso, 101);
        QCOMPARE(gravado.MesInicial, 12);
        QCOMPARE(gravado.IntervaloConfianca, 100);
        QCOMPARE(gravado.AnoInicialPrev, 2200);
        QCOMPARE(gravado.AnoFinalHistorico, 1900);
        QCOMPARE(gravado.Arquivos.ArquivoRelatorio, QStringLiteral("rel.txt"));
        QVERIFY(gravado.Arquivos.ArquivoDadosGerais.trimmed().isEmpty());
        QVERIFY(gravado.Arquivos.ArquivoVazoesSemanais.trimmed().isEmpty());
    }

    // The 53-week box bounds the week and is no change of its own; the button holds the week to
    // its bounds before saving, the prompt saves it as it stands.
    void semanaNosLimitesDoAno() {
        teste::CasoDeTelas caso;
        Posto alfa = posto(caso, 101, QStringLiteral("Alfa"));
        alfa.Arquivos.CasoUsa53Semanas = 1;
        alfa.SemanaInicialPrev = 53;
        caso.grava(alfa);
        Posto beta = posto(caso, 202, QStringLiteral("Beta"));
        beta.SemanaInicialPrev = 53;
        caso.grava(beta);
        const QString maior = QStringLiteral(
            "Atenção:\r\nA Semana Inicial de Previsão é maior do que o máximo possível. O Halvo irá ajustar "
            "para o máximo.");

        auto tela = teste::carrega<corvalin::FrmDadosGerais>(caso);
        QVERIFY(marcado(*tela, QStringLiteral("chkCasoUsa53Semanas")));
        QCOMPARE(semana(*tela).Maximo(), 53);
        QVERIFY(caso.host.dialogo.Mensagens().empty());

        // Beta's 53 does not fit its 52 weeks: showing it says so and shows 52.
        clica(*tela, QStringLiteral("BotDadosGeraisNavegacao_2"));
        QCOMPARE(teste::mensagens(caso.host.dialogo), QStringList{u'|' + maior});
        QCOMPARE(caso.host.dialogo.Mensagens()[0].icone, Icone::Nenhum);
        QCOMPARE(semana(*tela).Texto(), QStringLiteral("52"));
        QCOMPARE(tela->getEstado(), corvalin::Tela::Limpo);

        clica(*tela, QStringLiteral("BotDadosGeraisNavegacao_0"));
        caso.host.dialogo.limpa();
        clica(*tela, QStringLiteral("chkCasoUsa53Semanas"));
        QCOMPARE(semana(*tela).Maximo(), 52);
        QCOMPARE(semana(*tela).Texto(), QStringLiteral("52"));
        QCOMPARE(teste::mensagens(caso.host.dialogo), QStringList{u'|' + maior});
        QCOMPARE(tela->getEstado(), corvalin::Tela::Limpo);
        clica(*tela, Gravar);
        QCOMPARE(teste::lePosto(caso, 101).Arquivos.CasoUsa53Semanas, 1);
        QVERIFY(caso.notificador->Eventos().empty());

        caso.host.dialogo.limpa();
        digita(*tela, QStringLiteral("SpnDadosGeraisSemanaInicialPrev"), {});
        clica(*tela, Gravar);
        QCOMPARE(
            teste::mensagens(caso.host.dialogo),
            QStringList{QStringLiteral("|Atenção:\r\nA Semana Inicial de Previsão é menor do que o mínimo "
                                       "possível. O Halvo irá ajustar para o mínimo.")});
        Posto gravado = teste::lePosto(caso, 101);
        QCOMPARE(gravado.SemanaInicialPrev, 1);
        QCOMPARE(gravado.Arquivos.CasoUsa53Semanas, 0);

        caso.host.dialogo.limpa();
        digita(*tela, QStringLiteral("SpnDadosGeraisSemanaInicialPrev"), QStringLiteral("60"));
        caso.host.dialogo.responde(Resposta::Sim);
        QVERIFY(tela->close());
        QCOMPARE(teste::mensagens(caso.host.dialogo),
                 QStringList{QStringLiteral("Confirmação|Deseja gravar as alterações realizadas?")});
        QCOMPARE(teste::lePosto(caso, 101).SemanaInicialPrev, 60);
    }

    // Ticked, the Vazpast name starts from its default and the values open; unticked, the name
    // stays on the screen but is not saved. A value that is no number stops the save in its trap.
    void vazpastLigadoEDesligado() {
        teste::CasoDeTelas caso;
        adiciona(caso, 101, QStringLiteral("Alfa"));
        auto tela = teste::carrega<corvalin::FrmDadosGerais>(caso);
        QVERIFY(!habilitado(*tela, QStringLiteral("TxtDadosGeraisArquivo_5")));
        QVERIFY(!habilitado(*tela, QStringLiteral("FmeDadosGeraisVazpast")));

        clica(*tela, QStringLiteral("ChkDadosGeraisUsaVazpast"));
        QCOMPARE(textoDe(*tela, QStringLiteral("TxtDadosGeraisArquivo_5")), QStringLiteral("Vazpast.dat"));
        QVERIFY(habilitado(*tela, QStringLiteral("TxtDadosGeraisArquivo_5")));
        QVERIFY(habilitado(*tela, QStringLiteral("FmeDadosGeraisVazpast")));
        QCOMPARE(tela->getEstado(), corvalin::Tela::Alterado);

        // The keys cannot make a bad number; a paste can.
        QApplication::clipboard()->setText(QStringLiteral("7,2,5"));
        QTest::keyClick(&controle<QLineEdit>(*tela, QStringLiteral("TxtDadosGeraisVazpast_1")), Qt::Key_V,
                        Qt::ControlModifier);
        QCOMPARE(textoDe(*tela, QStringLiteral("TxtDadosGeraisVazpast_1")), QStringLiteral("7,2,5"));
        clica(*tela, Gravar);
        QCOMPARE(caso.host.dialogo.Mensagens().size(), 1u);
        QCOMPARE(caso.host.dialogo.Mensagens()[0].titulo, QStringLiteral("Atenção..."));
        QVERIFY(caso.host.dialogo.Mensagens()[0].texto.contains(QStringLiteral("Rotina.: pGravar")));
        QVERIFY(!teste::lePosto(caso, 101).FlafVazpast);
        QCOMPARE(tela->getEstado(), corvalin::Tela::Alterado);

        caso.host.dialogo.limpa();
        digita(*tela, QStringLiteral("TxtDadosGeraisVazpast_1"), QStringLiteral("7,25"));
        clica(*tela, Gravar);
        QVERIFY(caso.host.dialogo.Mensagens().empty());
        Posto gravado = teste::lePosto(caso, 101);
        QVERIFY(gravado.FlafVazpast);
        QCOMPARE(gravado.NomeArqVazpast, QStringLiteral("Vazpast.dat"));
        QCOMPARE(gravado.VazpastSemana_1, 0.0);
        QCOMPARE(gravado.VazpastSemana_2, 7.25);

        clica(*tela, QStringLiteral("ChkDadosGeraisUsaVazpast"));
        QCOMPARE(textoDe(*tela, QStringLiteral("TxtDadosGeraisArquivo_5")), QStringLiteral("Vazpast.dat"));
        QVERIFY(!habilitado(*tela, QStringLiteral("TxtDadosGeraisArquivo_5")));
        clica(*tela, Gravar);
        gravado = teste::lePosto(caso, 101);
        QVERIFY(!gravado.FlafVazpast);
        QVERIFY(gravado.NomeArqVazpast.trimmed().isEmpty());
    }

    // Years take digits only, the interval digits only, a Vazpast value one decimal comma that
    // neither starts nor fills it.
    void teclasDasCaixasNumericas() {
        teste::CasoDeTelas caso;
        auto tela = teste::carrega<corvalin::FrmDadosGerais>(caso);
        for (const auto& [nome, digitado, esperado] :
             {std::tuple{"TxtDadosGeraisAnoInicialPev", "2a0,1-9", "2019"},
              std::tuple{"TxtDadosGeraisAnoFinalHistorico", " 19.99", "1999"},
              std::tuple{"TxtDadosGeraisIntervaloConfianca", "9,5x", "95"},
              std::tuple{"TxtDadosGeraisVazpast_0", ",12,3,4.5", "12,345"},
              std::tuple{"TxtDadosGeraisVazpast_1", "123456789,", "123456789"}}) {
            digita(*tela, QString::fromLatin1(nome), QString::fromLatin1(digitado));
            QCOMPARE(textoDe(*tela, QString::fromLatin1(nome)), QString::fromLatin1(esperado));
        }
        QTest::keyClick(&controle<QLineEdit>(*tela, QStringLiteral("TxtDadosGeraisAnoInicialPev")),
                        Qt::Key_Backspace);
        QCOMPARE(textoDe(*tela, QStringLiteral("TxtDadosGeraisAnoInicialPev")), QStringLiteral("201"));
    }

    // Cancel keeps the screen and its changes, No drops them, Yes saves, and a refused save
    // keeps the user where he was.
    void promptAoSairDoPosto() {
        teste::CasoDeTelas caso;
        adiciona(caso, 101, QStringLiteral("Alfa"));
        adiciona(caso, 202, QStringLiteral("Beta"));
        auto tela = teste::carrega<corvalin::FrmDadosGerais>(caso);
        const QString proximo = QStringLiteral("BotDadosGeraisNavegacao_2");

        digita(*tela, QStringLiteral("TxtDadosGeraisIntervaloConfianca"), QStringLiteral("80"));
        caso.host.dialogo.responde(Resposta::Cancelar);
        clica(*tela, proximo);
        QCOMPARE(textoDe(*tela, QStringLiteral("TxtDadosGeraisCodigo")), QStringLiteral("101"));
        QCOMPARE(textoDe(*tela, QStringLiteral("TxtDadosGeraisIntervaloConfianca")), QStringLiteral("80"));
        QCOMPARE(caso.host.dialogo.Mensagens().back().icone, Icone::Pergunta);

        caso.host.dialogo.responde(Resposta::Nao);
        clica(*tela, proximo);
        QCOMPARE(textoDe(*tela, QStringLiteral("TxtDadosGeraisCodigo")), QStringLiteral("202"));
        QCOMPARE(teste::lePosto(caso, 101).IntervaloConfianca, 95);

        digita(*tela, QStringLiteral("TxtDadosGeraisAnoInicialPev"), QStringLiteral("1"));
        caso.host.dialogo.limpa();
        caso.host.dialogo.responde(Resposta::Sim);
        QVERIFY(!tela->close());
        QCOMPARE(teste::mensagens(caso.host.dialogo),
                 (QStringList{QStringLiteral("Confirmação|Deseja gravar as alterações realizadas?"),
                              QStringLiteral("Informação|Ano Inicial da Previsão Inválido. Verifique.")}));
        digita(*tela, QStringLiteral("TxtDadosGeraisAnoInicialPev"), QStringLiteral("2015"));
        caso.host.dialogo.responde(Resposta::Sim);
        QVERIFY(tela->close());
        QCOMPARE(teste::lePosto(caso, 202).AnoInicialPrev, 2015);
    }

    // The file may name another station: that one is stored and shown. Without a station there is
    // nothing to import into, and a file that does not read is said to be so.
    void importaDadosGerais() {
        teste::CasoDeTelas caso;
        auto vazia = teste::carrega<corvalin::FrmDadosGerais>(caso);
        clica(*vazia, QStringLiteral("BotDadosGeraisImportar"));
        QCOMPARE(
            teste::mensagens(caso.host.dialogo),
            QStringList{QStringLiteral("Informação|Para realizar esta operação é necessário primeiramente "
                                       "selecionar um posto.")});
        QVERIFY(caso.host.dialogo.FiltrosPedidos().empty());
        vazia.reset();

        adiciona(caso, 101, QStringLiteral("Alfa"));
        adiciona(caso, 202, QStringLiteral("Beta"));
        const QString arquivo = caso.host.caminho(QStringLiteral("202.arq"));
        QVERIFY(QFile::copy(QStringLiteral(CORVALIN_DADOS_TESTE "/execucao/202.arq"), arquivo));
        auto tela = teste::carrega<corvalin::FrmDadosGerais>(caso);
        caso.host.dialogo.limpa();
        caso.host.dialogo.respondeArquivo(QDir::toNativeSeparators(arquivo));
        clica(*tela, QStringLiteral("BotDadosGeraisImportar"));

        QCOMPARE(caso.host.dialogo.FiltrosPedidos(), std::vector<QString>{QStringLiteral("*.*|*.*")});
        QVERIFY(caso.host.dialogo.Mensagens().empty());
        QCOMPARE(textoDe(*tela, QStringLiteral("TxtDadosGeraisCodigo")), QStringLiteral("202"));
        QCOMPARE(textoDe(*tela, QStringLiteral("TxtDadosGeraisAnoInicialPev")), QStringLiteral("2011"));
        QCOMPARE(teste::lePosto(caso, 202).AnoInicialPrev, 2011);
        QCOMPARE(teste::lePosto(caso, 202).SemanaInicialPrev, 1);
        QCOMPARE(teste::lePosto(caso, 101).AnoInicialPrev, 2009);
        QCOMPARE(caso.host.sistema.Auxiliares.size(), 1u);
        for (QWidget* janela : QApplication::topLevelWidgets()) {
            QVERIFY(janela->objectName() != QStringLiteral("FrmBarraDeProgresso"));
        }

        caso.host.dialogo.respondeArquivo(caso.host.caminho(QStringLiteral("nenhum.arq")));
        clica(*tela, QStringLiteral("BotDadosGeraisImportar"));
        QCOMPARE(caso.host.dialogo.Mensagens().size(), 1u);
        QCOMPARE(caso.host.dialogo.Mensagens()[0].texto, QStringLiteral("Erro ao ler o arquivo."));
        QCOMPARE(caso.host.dialogo.Mensagens()[0].titulo, QStringLiteral("Erro"));
        QCOMPARE(caso.host.dialogo.Mensagens()[0].icone, Icone::Erro);
    }

    // By keyboard alone: Tab walks the screen in reading order, the tabs and the buttons answer
    // to the accelerators of their captions.
    void peloTeclado() {
        teste::CasoDeTelas caso;
        adiciona(caso, 101, QStringLiteral("Alfa"));
        auto tela = teste::carrega<corvalin::FrmDadosGerais>(caso);
        tela->show();
        QVERIFY(QTest::qWaitForWindowActive(tela.get()));
        controle<QWidget>(*tela, QStringLiteral("TxtDadosGeraisCodigo")).setFocus();
        QStringList ordem;
        for (int i = 0; i < 40; ++i) {
            ordem << QApplication::focusWidget()->objectName();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        const QStringList esperada{"TxtDadosGeraisCodigo",
                                   "CBDDadosGerais",
                                   "TxtDadosGeraisIntervaloConfianca",
                                   "SpnDadosGeraisMesInicial",
                                   "SpnDadosGeraisSemanaInicialPrev",
                                   "TxtDadosGeraisAnoInicialPev",
                                   "TxtDadosGeraisAnoFinalHistorico",
                                   "ChkDadosGeraisImpressao",
                                   "chkCasoUsa53Semanas",
                                   "ChkDadosGeraisArquivosEntrada",
                                   "TxtDadosGeraisArquivo_0",
                                   "TxtDadosGeraisArquivo_1",
                                   "ChkDadosGeraisUsaVazpast",
                                   "TxtDadosGeraisArquivo_2",
                                   "TxtDadosGeraisArquivo_4",
                                   "BotDadosGeraisNavegacao_0",
                                   "BotDadosGeraisNavegacao_3",
                                   "BotDadosGeraisImportar",
                                   Gravar,
                                   "BotDadosGeraisSair"};
        qsizetype anterior = -1;
        for (const QString& nome : esperada) {
            const qsizetype posicao = ordem.indexOf(nome);
            QVERIFY2(posicao > anterior, qPrintable(nome));
            anterior = posicao;
        }
        QVERIFY(!ordem.contains(QStringLiteral("TxtDadosGeraisArquivo_5")));

        auto& abas = controle<QTabWidget>(*tela, QStringLiteral("GiiDadosGerais"));
        QTest::keyClick(tela.get(), Qt::Key_2, Qt::AltModifier);
        QCOMPARE(abas.currentIndex(), 1);
        QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("OptDadosGeraisTransformacao_1"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        QCOMPARE(tela->getEstado(), corvalin::Tela::Alterado);
        // A button's accelerator presses it as a click would, after a short show of its press.
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_G, Qt::AltModifier);
        QTRY_COMPARE(tela->getEstado(), corvalin::Tela::Limpo);
        QCOMPARE(teste::lePosto(caso, 101).Transformacao, 2);
    }

    // A read-only case: the write buttons are off, typing changes nothing, leaving asks nothing.
    void casoSomenteLeitura() {
        teste::CasoDeTelas caso(true);
        adiciona(caso, 101, QStringLiteral("Alfa"));
        auto tela = teste::carrega<corvalin::FrmDadosGerais>(caso);
        QVERIFY(!habilitado(*tela, Gravar));
        QVERIFY(!habilitado(*tela, QStringLiteral("BotDadosGeraisImportar")));
        QVERIFY(habilitado(*tela, QStringLiteral("BotDadosGeraisSair")));
        digita(*tela, QStringLiteral("TxtDadosGeraisIntervaloConfianca"), QStringLiteral("50"));
        clica(*tela, QStringLiteral("ChkDadosGeraisUsaVazpast"));
        QCOMPARE(tela->getEstado(), corvalin::Tela::Limpo);
        QVERIFY(tela->close());
        QVERIFY(caso.host.dialogo.Mensagens().empty());
        QCOMPARE(teste::lePosto(caso, 101).IntervaloConfianca, 95);
    }
};

QTEST_MAIN(TesteFrmDadosGerais)
#include "test_frmdadosgerais.moc"
