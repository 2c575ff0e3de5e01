// The general data screen driven through its controls: what it shows and saves, its checks in
// their order, the week's bounds, the Vazpast switch, the prompt, the import of
// a file and a read-only case.

#include "corvalin/editors/FrmDadosGerais.h"
#include "tests/corvalin/editors/TelaTeste.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QTabWidget>

using namespace Qt::StringLiterals;
using corvalin::Posto;
using corvalin::Tela;
using halvo::Icone;
using halvo::Resposta;
using teste::clica;
using teste::digita;
using teste::habilitados;
using teste::lePosto;
using teste::mensagens;
using teste::valor;
using teste::valores;

namespace {

const QString Gravar = u"BotDadosGeraisGravar"_s;
const QString Proximo = u"BotDadosGeraisNavegacao_2"_s;
const QString Prompt = u"Confirmação|Deseja gravar as alterações realizadas?"_s;
const QString Aviso =
    u"|Atenção:\r\nA Semana Inicial de Previsão é %1 do que o %2 possível. O Halvo irá ajustar "
    u"para o %2."_s;

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
    return teste::controle<halvo::Spin>(tela, u"SpnDadosGeraisSemanaInicialPrev"_s);
}

}  // namespace

class TesteFrmDadosGerais : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil)); }

    // A whole round: the station as stored, the user's changes saved, the next station shown
    // afresh. An empty Vazpast box keeps the stored value.
    void mostraEGravaOPosto() {
        teste::CasoDeTelas caso;
        Posto alfa = posto(caso, 101, u"Alfa"_s);
        alfa.Transformacao = 2;
        alfa.Arquivos.ApagarArquivoRelatorio = true;
        alfa.FlafVazpast = true;
        alfa.NomeArqVazpast = u"Vazpast.dat"_s;
        alfa.VazpastSemana_1 = 75.2;
        alfa.VazpastSemana_2 = 70.1;
        alfa.VazpastSemana_4 = 66.456;
        caso.grava(alfa);
        adiciona(caso, 202, u"Beta"_s);

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
        QCOMPARE(habilitados(*tela, {"TxtDadosGeraisArquivo_5", "FmeDadosGeraisVazpast"}).size(), 2);

        digita(*tela, "TxtDadosGeraisIntervaloConfianca", "90");
        QCOMPARE(tela->getEstado(), Tela::Alterado);
        clica(*tela, "OptDadosGeraisTransformacao_4");
        clica(*tela, "ChkDadosGeraisExclusao_0");
        teste::controle<halvo::Spin>(*tela, "SpnDadosGeraisMesInicial").stepBy(1);
        digita(*tela, "TxtDadosGeraisVazpast_1", {});
        digita(*tela, "TxtDadosGeraisVazpast_2", "80,5");
        clica(*tela, Gravar);

        QVERIFY(caso.host.dialogo.Mensagens().empty());
        QCOMPARE(tela->getEstado(), Tela::Limpo);
        QCOMPARE(caso.notificador->Eventos(), std::vector<std::int32_t>{halvo::EventoCasoAlterado});
        const Posto gravado = lePosto(caso, 101);
        QCOMPARE(std::tuple(gravado.IntervaloConfianca, gravado.Transformacao, gravado.MesInicial),
                 std::tuple(90, 4, 2));
        QVERIFY(gravado.Arquivos.ApagarArquivoDadosGerais && gravado.Arquivos.ApagarArquivoRelatorio);
        QCOMPARE(std::pair(gravado.VazpastSemana_2, gravado.VazpastSemana_3), std::pair(70.1, 80.5));

        clica(*tela, Proximo);
        QCOMPARE(valores(*tela, {"TxtDadosGeraisCodigo", "TxtDadosGeraisArquivo_5"}),
                 (QStringList{"202", ""}));
        QVERIFY(habilitados(*tela, {"FmeDadosGeraisVazpast"}).isEmpty());
    }

    // The checks come in their order, each with its message, on the first tab; nothing is stored
    // until all pass. Without the input names the first two are neither checked nor kept.
    void recusasNaOrdem() {
        teste::CasoDeTelas caso;
        adiciona(caso, 101, u"Alfa"_s);
        auto tela = teste::carrega<corvalin::FrmDadosGerais>(caso);
        auto& abas = teste::controle<QTabWidget>(*tela, "GiiDadosGerais");
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
            QCOMPARE(caso.host.dialogo.Mensagens().at(0).icone, Icone::Informacao);
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
        teste::CasoDeTelas caso;
        for (const int codigo : {101, 202}) {
            Posto p = posto(caso, codigo, QString::number(codigo));
            p.Arquivos.CasoUsa53Semanas = codigo == 101;
            p.SemanaInicialPrev = 53;
            caso.grava(p);
        }
        const QString maior = Aviso.arg(u"maior"_s, u"máximo"_s);

        auto tela = teste::carrega<corvalin::FrmDadosGerais>(caso);
        QCOMPARE(semana(*tela).Maximo(), 53);
        QVERIFY(caso.host.dialogo.Mensagens().empty());
        clica(*tela, Proximo);
        QCOMPARE(caso.host.dialogo.Mensagens().at(0).icone, Icone::Nenhum);
        QCOMPARE(mensagens(caso.host.dialogo), QStringList{maior});
        QCOMPARE(semana(*tela).Texto(), u"52"_s);

        clica(*tela, "BotDadosGeraisNavegacao_0");
        clica(*tela, "chkCasoUsa53Semanas");
        QCOMPARE(mensagens(caso.host.dialogo), QStringList{maior});
        QCOMPARE(semana(*tela).Maximo(), 52);
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

    // Ticked, the Vazpast name starts from its default and the values open; unticked, the name
    // stays on the screen but is not saved. A value that is no number stops the save in its trap.
    void vazpastLigadoEDesligado() {
        teste::CasoDeTelas caso;
        adiciona(caso, 101, u"Alfa"_s);
        auto tela = teste::carrega<corvalin::FrmDadosGerais>(caso);
        const teste::Nomes vazpast = {"TxtDadosGeraisArquivo_5", "FmeDadosGeraisVazpast"};
        QVERIFY(habilitados(*tela, vazpast).isEmpty());
        clica(*tela, "ChkDadosGeraisUsaVazpast");
        QCOMPARE(valor(*tela, "TxtDadosGeraisArquivo_5"), u"Vazpast.dat"_s);
        QCOMPARE(habilitados(*tela, vazpast).size(), 2);

        // The keys cannot make a bad number; a paste can.
        QApplication::clipboard()->setText(u"7,2,5"_s);
        QTest::keyClick(&teste::controle<QLineEdit>(*tela, "TxtDadosGeraisVazpast_1"), Qt::Key_V,
                        Qt::ControlModifier);
        clica(*tela, Gravar);
        const QStringList erro = mensagens(caso.host.dialogo);
        QCOMPARE(erro.size(), 1);
        QVERIFY(erro[0].startsWith(u"Atenção...|"_s) && erro[0].contains(u"pGravar"_s));
        QVERIFY(!lePosto(caso, 101).FlafVazpast);
        QCOMPARE(tela->getEstado(), Tela::Alterado);

        digita(*tela, "TxtDadosGeraisVazpast_1", "7,25");
        clica(*tela, Gravar);
        QCOMPARE(std::pair(lePosto(caso, 101).VazpastSemana_2, lePosto(caso, 101).NomeArqVazpast),
                 std::pair(7.25, u"Vazpast.dat"_s));

        clica(*tela, "ChkDadosGeraisUsaVazpast");
        QCOMPARE(valor(*tela, "TxtDadosGeraisArquivo_5"), u"Vazpast.dat"_s);
        QCOMPARE(habilitados(*tela, vazpast), QStringList{u"FmeDadosGeraisVazpast"_s});
        clica(*tela, Gravar);
        QVERIFY(!lePosto(caso, 101).FlafVazpast);
    }

    // Cancel keeps the screen and its changes, No drops them, Yes saves, and a refused save keeps
    // the user where he was.
    void promptAoSairDoPosto() {
        teste::CasoDeTelas caso;
        adiciona(caso, 101, u"Alfa"_s);
        adiciona(caso, 202, u"Beta"_s);
        auto tela = teste::carrega<corvalin::FrmDadosGerais>(caso);
        digita(*tela, "TxtDadosGeraisIntervaloConfianca", "80");
        caso.host.dialogo.responde(Resposta::Cancelar);
        clica(*tela, Proximo);
        QCOMPARE(caso.host.dialogo.Mensagens().at(0).icone, Icone::Pergunta);
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
        teste::CasoDeTelas caso;
        auto vazia = teste::carrega<corvalin::FrmDadosGerais>(caso);
        clica(*vazia, "BotDadosGeraisImportar");
        QCOMPARE(
            mensagens(caso.host.dialogo),
            QStringList{u"Informação|Para realizar esta operação é necessário primeiramente selecionar um "
                        u"posto."_s});
        QVERIFY(caso.host.dialogo.FiltrosPedidos().empty());

        adiciona(caso, 101, u"Alfa"_s);
        adiciona(caso, 202, u"Beta"_s);
        const QString arquivo = QDir::toNativeSeparators(caso.host.caminho(u"202.arq"_s));
        QVERIFY(QFile::copy(QStringLiteral(CORVALIN_DADOS_TESTE "/execucao/202.arq"), arquivo));
        auto tela = teste::carrega<corvalin::FrmDadosGerais>(caso);
        caso.host.dialogo.respondeArquivo(arquivo);
        clica(*tela, "BotDadosGeraisImportar");
        QCOMPARE(caso.host.dialogo.FiltrosPedidos(), std::vector<QString>{u"*.*|*.*"_s});
        QVERIFY(caso.host.dialogo.Mensagens().empty());
        QCOMPARE(valores(*tela, {"TxtDadosGeraisCodigo", "TxtDadosGeraisAnoInicialPev"}),
                 (QStringList{"202", "2011"}));
        QCOMPARE(std::tuple(lePosto(caso, 202).AnoInicialPrev, lePosto(caso, 101).AnoInicialPrev),
                 std::tuple(2011, 2009));
        caso.host.dialogo.respondeArquivo(caso.host.caminho(u"nenhum.arq"_s));
        clica(*tela, "BotDadosGeraisImportar");
        QCOMPARE(caso.host.dialogo.Mensagens().at(0).icone, Icone::Erro);
        QCOMPARE(mensagens(caso.host.dialogo), QStringList{u"Erro|Erro ao ler o arquivo."_s});
    }

    // By keyboard alone: a tab's accelerator takes the user into its first field, and a button's
    // presses it.
    void aceleradores() {
        teste::CasoDeTelas caso;
        adiciona(caso, 101, u"Alfa"_s);
        auto tela = teste::carrega<corvalin::FrmDadosGerais>(caso);
        tela->show();
        QVERIFY(QTest::qWaitForWindowActive(tela.get()));
        QTest::keyClick(tela.get(), Qt::Key_2, Qt::AltModifier);
        QCOMPARE(teste::controle<QTabWidget>(*tela, u"GiiDadosGerais"_s).currentIndex(), 1);
        QCOMPARE(QApplication::focusWidget()->objectName(), u"OptDadosGeraisTransformacao_1"_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_G, Qt::AltModifier);
        QTRY_COMPARE(lePosto(caso, 101).Transformacao, 2);
    }

    // A read-only case: the write buttons are off, typing changes nothing, leaving asks nothing.
    void casoSomenteLeitura() {
        teste::CasoDeTelas caso(true);
        adiciona(caso, 101, u"Alfa"_s);
        auto tela = teste::carrega<corvalin::FrmDadosGerais>(caso);
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
