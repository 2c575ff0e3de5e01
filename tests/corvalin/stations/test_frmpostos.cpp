// The station screen driven through its controls: a save seen again, the checks of a save and a
// delete, the prompt on leaving, a read-only case and the keyboard.

#include "corvalin/stations/FrmPostos.h"
#include "halvo/controles/Combo.h"
#include "halvo/controles/Grid.h"
#include "halvo/controles/Spin.h"
#include "tests/corvalin/frame/CasoDeTelas.h"

#include <QApplication>
#include <QDate>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QtTest>

using namespace Qt::StringLiterals;
using halvo::Icone;
using halvo::Resposta;
using teste::controle;

namespace {

const QString Informacao = u"Informação"_s;

struct Frm {
    explicit Frm(const teste::CasoDeTelas& caso) : tela(teste::carrega<corvalin::FrmPostos>(caso)) {}

    QLineEdit& codigo() const { return controle<QLineEdit>(*tela, u"TxtPostosCodigo"_s); }
    halvo::Combo& nome() const { return controle<halvo::Combo>(*tela, u"CBDPostos"_s); }
    QLineEdit& area() const { return controle<QLineEdit>(*tela, u"TxtPostosArea"_s); }
    halvo::Spin& ano(int i) const { return controle<halvo::Spin>(*tela, u"SpnPostosAno_%1"_s.arg(i)); }
    halvo::Grid& grade() const { return controle<halvo::Grid>(*tela, u"GrdPostos"_s); }
    QString celula(int linha, int coluna) const { return grade().TextoMatriz(linha, coluna); }
    void clica(const char* botao) const {
        controle<QPushButton>(*tela, u"BotPostos"_s + QLatin1String(botao)).click();
    }
    void digitaArea(const QString& texto) const {
        area().selectAll();
        QTest::keyClicks(&area(), texto);
    }
    // A cell edited as the user's editor commits it.
    void edita(int linha, int coluna, const QString& texto) const {
        auto* modelo = grade().findChild<QTableView*>()->model();
        QVERIFY(modelo->setData(modelo->index(linha - 1, coluna - 1), texto));
    }
    // Weeks 1 to ate of rows 1 to linhas, week w of row r as r * 100 + w.
    void preenche(int linhas, int ate) const {
        for (int linha = 1; linha <= linhas; ++linha) {
            for (int coluna = 1; coluna <= ate; ++coluna) {
                edita(linha, coluna, QString::number(linha * 100 + coluna));
            }
        }
    }

    std::unique_ptr<corvalin::FrmPostos> tela;
};

// A case whose first station, Alfa (code 10), has twenty years, the last ending in week ultima.
struct CasoComAlfa : teste::CasoDeTelas {
    explicit CasoComAlfa(int ultima = 52, bool somenteLeitura = false) : CasoDeTelas(somenteLeitura) {
        corvalin::Posto alfa = adiciona(10, u"Alfa"_s);
        historico(alfa, 1990, 2009, ultima);
    }

    corvalin::Posto le(int codigo) const {
        corvalin::Posto posto;
        posto.Codigo = postoBD->getPosto(posto, corvalin::BuscaPorCodigo, codigo, {}) ? posto.Codigo : -1;
        return posto;
    }
    corvalin::Historico vazoes(int codigo) const {
        corvalin::Historico vazoes;
        postoBD->getHistorico(le(codigo), vazoes);
        return vazoes;
    }
    const auto& ultima() const { return host.dialogo.Mensagens().back(); }
    std::size_t mensagens() const { return host.dialogo.Mensagens().size(); }
    void confere(const QString& texto, const QString& titulo, Icone icone) const {
        QCOMPARE(ultima().texto, texto);
        QCOMPARE(ultima().titulo, titulo);
        QCOMPARE(ultima().icone, icone);
    }
};

}  // namespace

class TesteFrmPostos : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil)); }

    // A station typed by hand, saved, and seen again on a new screen. Numbers are read with "."
    // only, so a comma fraction is lost; a typed 0 and a text read as 0 are saved as missing.
    void postoNovoGravadoEReaberto() {
        CasoComAlfa caso;
        caso.postoBD->delPosto(caso.le(10));
        const int esteAno = QDate::currentDate().year();
        {
            const Frm t(caso);
            QVERIFY(t.codigo().isEnabled());
            QTest::keyClicks(&t.codigo(), u"12a3"_s);
            QTest::keyClicks(t.nome().lineEdit(), u"Novo Posto"_s);
            QTest::keyClicks(&t.area(), u"2,5x"_s);
            QCOMPARE(t.codigo().text() + t.area().text(), u"12325"_s);
            t.preenche(19, 52);
            t.edita(20, 1, u"2001"_s);
            t.edita(20, 2, u"2002"_s);
            t.edita(1, 1, u"12,5"_s);
            t.edita(2, 5, u"0"_s);
            t.edita(3, 7, u"abc"_s);
            t.clica("Gravar");
            QVERIFY(caso.host.dialogo.Mensagens().empty());
            QVERIFY(!t.codigo().isEnabled());
            QCOMPARE(caso.notificador->Eventos(), std::vector<std::int32_t>{3});
        }
        const corvalin::Posto posto = caso.le(123);
        QCOMPARE(posto.Nome, u"Novo Posto"_s);
        QCOMPARE(posto.Area, 25.0F);
        QCOMPARE(posto.AnoInicial * 10000 + posto.AnoFinal, (esteAno - 19) * 10000 + esteAno);
        const corvalin::Historico vazoes = caso.vazoes(123);
        QCOMPARE(vazoes(1, 1), 12.0F);
        QCOMPARE(vazoes(19, 52), 1952.0F);
        QCOMPARE(vazoes(20, 2), 2002.0F);
        QCOMPARE(vazoes(2, 5) + vazoes(3, 7) + vazoes(20, 3), 0.0F);

        const Frm t(caso);
        QCOMPARE(t.codigo().text(), u"123"_s);
        QCOMPARE(t.nome().Texto(), u"Novo Posto"_s);
        QCOMPARE(t.celula(1, 1) + t.celula(19, 52), u"121952"_s);
        QVERIFY(t.celula(2, 5).isEmpty() && t.celula(3, 7).isEmpty());
    }

    // Leaving changed data asks: Cancel stays with the changes, No drops them, Yes saves. In a
    // read-only case nothing can be written and nothing is asked.
    void perguntaAoSairESomenteLeitura() {
        {
            CasoComAlfa caso;
            caso.adiciona(20, u"Bravo"_s);
            const Frm t(caso);
            t.digitaArea(u"777"_s);
            caso.host.dialogo.responde(Resposta::Cancelar);
            t.clica("Navegacao_2");
            caso.confere(u"Deseja gravar as alterações realizadas?"_s, u"Confirmação"_s, Icone::Pergunta);
            QCOMPARE(caso.ultima().botoes, halvo::Botoes::SimNaoCancelar);
            QCOMPARE(t.codigo().text() + t.area().text(), u"10777"_s);

            caso.host.dialogo.responde(Resposta::Nao);
            t.clica("Navegacao_2");
            QCOMPARE(t.codigo().text(), u"20"_s);
            QCOMPARE(caso.le(10).Area, 0.0F);

            t.clica("Navegacao_0");
            t.digitaArea(u"555"_s);
            caso.host.dialogo.responde(Resposta::Sim);
            QVERIFY(t.tela->close());
            QCOMPARE(caso.le(10).Area, 555.0F);
            QCOMPARE(caso.mensagens(), std::size_t{3});
        }
        CasoComAlfa caso(52, true);
        const Frm t(caso);
        for (const char* botao : {"Novo", "Apagar", "Gravar", "Importar"}) {
            QVERIFY(!controle<QPushButton>(*t.tela, u"BotPostos"_s + QLatin1String(botao)).isEnabled());
        }
        t.digitaArea(u"9"_s);
        t.edita(1, 1, u"1"_s);
        QVERIFY(t.tela->close());
        QVERIFY(caso.host.dialogo.Mensagens().empty());
    }

    // Every year but the last is whole; the last starts at week 1 and may end early, without holes.
    void lacunasDoHistorico() {
        CasoComAlfa caso(10);
        const Frm t(caso);
        const auto recusa = [&](int linha, int coluna, int falhaLinha, int falhaColuna) {
            const QString antes = t.celula(linha, coluna);
            t.edita(linha, coluna, u" "_s);
            t.clica("Gravar");
            QCOMPARE(caso.ultima().texto,
                     u"Valor Inválido para Vazão na linha %1 coluna %2. Verifique."_s.arg(falhaLinha)
                         .arg(falhaColuna));
            QCOMPARE(t.grade().Linha() * 100 + t.grade().Coluna(), falhaLinha * 100 + falhaColuna);
            t.edita(linha, coluna, antes);
        };
        recusa(20, 5, 20, 6);
        recusa(20, 1, 20, 1);
        recusa(3, 7, 3, 7);
    }

    // Delete asks first and shows the first station afterwards, or a new record when none is left;
    // a new station cannot take a name that another code holds, whatever its case.
    void exclusaoEConflitoDeNome() {
        CasoComAlfa caso;
        const Frm t(caso);
        t.clica("Novo");
        t.clica("Apagar");
        caso.confere(u"Não há um registro para ser excluído."_s, Informacao, Icone::Informacao);

        QTest::keyClicks(&t.codigo(), u"99"_s);
        QTest::keyClicks(t.nome().lineEdit(), u"ALFA"_s);
        QTest::keyClicks(&t.area(), u"1"_s);
        t.preenche(20, 52);
        t.clica("Gravar");
        caso.confere(u"Este Posto já existe."_s, Informacao, Icone::Informacao);
        QCOMPARE(caso.le(99).Codigo, -1);
        QCOMPARE(t.tela->getEstado(), corvalin::Tela::Novo);

        caso.host.dialogo.responde(Resposta::Nao);
        t.clica("Navegacao_0");
        caso.host.dialogo.responde(Resposta::Nao);
        t.clica("Apagar");
        caso.confere(u"Tem certeza que deseja excluir este registro?"_s, u"Confirmação"_s, Icone::Pergunta);
        QCOMPARE(caso.le(10).Codigo, 10);
        t.clica("Apagar");
        QCOMPARE(caso.le(10).Codigo, -1);
        QCOMPARE(caso.notificador->Eventos(), std::vector<std::int32_t>{3});
        QVERIFY(t.codigo().isEnabled() && t.codigo().text().isEmpty());
        QCOMPARE(t.tela->getEstado(), corvalin::Tela::Novo);
    }

    // By keyboard alone: Tab follows the fields in reading order, Enter leaves the grid as Tab
    // would, and a button's accelerator clicks it on the next turns of the event loop.
    void teclado() {
        CasoComAlfa caso;
        const Frm t(caso);
        t.tela->show();
        QVERIFY(QTest::qWaitForWindowActive(t.tela.get()));
        const auto temFoco = [](const QWidget& controle) {
            QWidget* foco = QApplication::focusWidget();
            return foco == &controle || controle.isAncestorOf(foco);
        };
        t.nome().setFocus();
        QWidget* tabela = t.grade().findChild<QTableView*>();
        for (const QWidget* esperado :
             std::initializer_list<const QWidget*>{&t.area(), &t.ano(0), &t.ano(1), tabela}) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QVERIFY(temFoco(*esperado));
        }
        QTest::keyClick(tabela, Qt::Key_Return);
        QCOMPARE(QApplication::focusWidget()->objectName(), u"BotPostosNavegacao_0"_s);

        QTest::keyClick(t.tela.get(), Qt::Key_N, Qt::AltModifier);
        QTRY_VERIFY(t.codigo().isEnabled());
        QVERIFY(temFoco(t.nome()));
        QTest::keyClick(t.tela.get(), Qt::Key_P, Qt::AltModifier);
        QTRY_COMPARE(caso.mensagens(), std::size_t{1});
        QCOMPARE(caso.ultima().texto, u"Não há um registro para ser excluído."_s);
    }
};

QTEST_MAIN(TesteFrmPostos)
#include "test_frmpostos.moc"
