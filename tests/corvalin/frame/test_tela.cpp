// The frame of the screens, through FrmPrevisoes for what every screen does and through a small
// editing screen for the prompt and the states; and the progress form.

#include "corvalin/frame/AberturaTelasGui.h"
#include "corvalin/frame/Corvalin.h"
#include "corvalin/frame/FrmBarraDeProgresso.h"
#include "corvalin/frame/TelaPostos.h"
#include "corvalin/results/FrmPrevisoes.h"
#include "halvo/controles/Combo.h"
#include "tests/corvalin/frame/CasoDeTelas.h"

#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QtTest>

using halvo::Ponteiro;
using halvo::Resposta;
using teste::controle;

namespace {

// An editing screen with one field; its save can be refused.
class FrmTeste : public corvalin::TelaPostos {
public:
    FrmTeste()
        : TelaPostos(QStringLiteral("FrmTeste"), QStringLiteral("Teste"), QStringLiteral("Teste"),
                     Gravacao::Com),
          mValor(new QLineEdit(this)) {
        mValor->setObjectName(QStringLiteral("TxtTesteValor"));
        connect(mValor, &QLineEdit::textEdited, this, [this] { pMarcaAlterado(); });
        pMontaTela(*mValor);
    }

    bool aceita = true;
    int gravacoes = 0;

protected:
    void pMostrar(const corvalin::Posto& posto) override { mValor->setText(posto.Nome.toUpper()); }
    void pLimpar() override { mValor->clear(); }
    bool pGravar() override {
        ++gravacoes;
        return aceita;
    }

private:
    QLineEdit* mValor;
};

QString codigo(const QWidget& tela, const QString& palavra) {
    return controle<QLineEdit>(tela, QStringLiteral("Txt%1Codigo").arg(palavra)).text();
}

void clica(const QWidget& tela, const QString& nome) {
    controle<QPushButton>(tela, nome).click();
}

void digita(const QWidget& tela, const QString& texto) {
    QTest::keyClicks(&controle<QLineEdit>(tela, QStringLiteral("TxtTesteValor")), texto);
}

}  // namespace

class TesteTela : public QObject {
    Q_OBJECT

private slots:
    // The host opens a screen by its group and item: a child of the work area, registered, shown
    // with the station, and gone when closed. Items that do not exist open nothing.
    void abreTelaPelaTabela() {
        teste::CasoDeTelas caso;
        caso.adiciona(10, QStringLiteral("Furnas"));
        corvalin::Corvalin modelo(std::make_unique<corvalin::AberturaTelasGui>());
        QCOMPARE(modelo.Telas(1)->size(), std::size_t{5});
        QVERIFY(!modelo.Telas(5).has_value());
        QCOMPARE(modelo.AbrirCaso(caso.caso, caso.notificador), std::int16_t{1});
        QCOMPARE(modelo.JanelaAbrir(1, 4, nullptr), std::int16_t{1});
        QCOMPARE(modelo.JanelaAbrir(5, 1, nullptr), std::int16_t{0});
        QCOMPARE(caso.host.sistema.Filhas.size(), std::size_t{1});
        QPointer<QWidget> tela = caso.host.sistema.Filhas.front();
        QCOMPARE(tela->objectName(), QStringLiteral("FrmPrevisoes"));
        QCOMPARE(caso.host.sistema.Registradas, caso.host.sistema.Filhas);
        QVERIFY(tela->isVisible());
        QCOMPARE(codigo(*tela, QStringLiteral("Previsoes")), QStringLiteral("10"));

        tela->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(tela.isNull());
        modelo.FecharCaso();
    }

    // Steps go by name, from the station on the screen, wherever the shared handle stands; a code
    // that is not a number starts again from the first, and so does a station deleted meanwhile.
    void passosEmOrdemDeNome() {
        teste::CasoDeTelas caso;
        caso.adiciona(30, QStringLiteral("Alfa"));
        caso.adiciona(10, QStringLiteral("Delta"));
        caso.adiciona(20, QStringLiteral("Bravo"));
        const corvalin::Posto charlie = caso.adiciona(40, QStringLiteral("Charlie"));
        auto tela = teste::carrega<corvalin::FrmPrevisoes>(caso);
        const QString palavra = QStringLiteral("Previsoes");
        auto passo = [&](int botao) {
            clica(*tela, QStringLiteral("BotPrevisoesNavegacao_%1").arg(botao));
            return codigo(*tela, palavra);
        };
        QCOMPARE(codigo(*tela, palavra), QStringLiteral("30"));
        QCOMPARE(passo(2), QStringLiteral("20"));
        caso.bd->TabPostos().MoveLast();
        QCOMPARE(passo(2), QStringLiteral("40"));
        QCOMPARE(passo(2), QStringLiteral("10"));
        QCOMPARE(passo(2), QStringLiteral("10"));
        QCOMPARE(passo(1), QStringLiteral("40"));
        QCOMPARE(passo(0), QStringLiteral("30"));
        QCOMPARE(passo(3), QStringLiteral("10"));

        controle<QLineEdit>(*tela, QStringLiteral("TxtPrevisoesCodigo")).setText(QStringLiteral("xyz"));
        QCOMPARE(passo(1), QStringLiteral("30"));

        QCOMPARE(passo(2), QStringLiteral("20"));
        QCOMPARE(passo(2), QStringLiteral("40"));
        caso.postoBD->delPosto(charlie);
        QCOMPARE(passo(2), QStringLiteral("30"));
        QCOMPARE(passo(3), QStringLiteral("10"));
    }

    // Enter moves on as Tab does; a choice in the record list, by keyboard, shows that station.
    void teclado() {
        teste::CasoDeTelas caso;
        caso.adiciona(30, QStringLiteral("Alfa"));
        caso.adiciona(20, QStringLiteral("Bravo"));
        auto tela = teste::carrega<corvalin::FrmPrevisoes>(caso);
        tela->show();
        QVERIFY(QTest::qWaitForWindowActive(tela.get()));
        auto& texto = controle<QLineEdit>(*tela, QStringLiteral("TxtPrevisoesCodigo"));
        auto& lista = controle<halvo::Combo>(*tela, QStringLiteral("CBDPrevisoes"));
        texto.setFocus();
        QTest::keyClick(&texto, Qt::Key_Return);
        QCOMPARE(QApplication::focusWidget(), &lista);
        QTest::keyClick(&lista, Qt::Key_Down);
        QCOMPARE(codigo(*tela, QStringLiteral("Previsoes")), QStringLiteral("20"));
        QCOMPARE(lista.Texto(), QStringLiteral("Bravo"));
    }

    // The prompt on every way out of changed data: Cancel stays, No drops the changes, Yes saves
    // (and a refused save stays); a save tells the host.
    void perguntaAntesDeSair() {
        teste::CasoDeTelas caso;
        caso.adiciona(30, QStringLiteral("Alfa"));
        caso.adiciona(20, QStringLiteral("Bravo"));
        auto tela = teste::carrega<FrmTeste>(caso);
        tela->show();
        const auto& dialogo = caso.host.dialogo;

        clica(*tela, QStringLiteral("BotTesteNavegacao_2"));
        QVERIFY(dialogo.Mensagens().empty());
        QCOMPARE(codigo(*tela, QStringLiteral("Teste")), QStringLiteral("20"));

        digita(*tela, QStringLiteral("x"));
        QCOMPARE(tela->getEstado(), corvalin::Tela::Alterado);
        caso.host.dialogo.responde(Resposta::Cancelar);
        clica(*tela, QStringLiteral("BotTesteNavegacao_0"));
        QCOMPARE(dialogo.Mensagens().size(), std::size_t{1});
        const auto& pergunta = dialogo.Mensagens().front();
        QCOMPARE(pergunta.texto, QStringLiteral("Deseja gravar as alterações realizadas?"));
        QCOMPARE(pergunta.titulo, QStringLiteral("Confirmação"));
        QCOMPARE(pergunta.botoes, halvo::Botoes::SimNaoCancelar);
        QCOMPARE(codigo(*tela, QStringLiteral("Teste")), QStringLiteral("20"));
        QCOMPARE(controle<QLineEdit>(*tela, QStringLiteral("TxtTesteValor")).text(),
                 QStringLiteral("BRAVOx"));

        // Cancel on a choice in the list puts the name of the station on the screen back.
        auto& lista = controle<halvo::Combo>(*tela, QStringLiteral("CBDTeste"));
        caso.host.dialogo.responde(Resposta::Cancelar);
        lista.setFocus();
        QTest::keyClick(&lista, Qt::Key_Up);
        QCOMPARE(lista.Texto(), QStringLiteral("Bravo"));
        QCOMPARE(codigo(*tela, QStringLiteral("Teste")), QStringLiteral("20"));

        tela->aceita = false;
        caso.host.dialogo.responde(Resposta::Sim);
        QVERIFY(!tela->close());
        QCOMPARE(tela->gravacoes, 1);
        QCOMPARE(tela->getEstado(), corvalin::Tela::Alterado);

        caso.host.dialogo.responde(Resposta::Nao);
        clica(*tela, QStringLiteral("BotTesteNavegacao_0"));
        QCOMPARE(codigo(*tela, QStringLiteral("Teste")), QStringLiteral("30"));
        QCOMPARE(tela->getEstado(), corvalin::Tela::Limpo);
        QCOMPARE(tela->gravacoes, 1);
        QVERIFY(caso.notificador->Eventos().empty());

        tela->aceita = true;
        digita(*tela, QStringLiteral("y"));
        clica(*tela, QStringLiteral("BotTesteGravar"));
        QCOMPARE(tela->gravacoes, 2);
        QCOMPARE(tela->getEstado(), corvalin::Tela::Limpo);
        QCOMPARE(caso.notificador->Eventos(), std::vector<std::int32_t>{3});

        digita(*tela, QStringLiteral("z"));
        caso.host.dialogo.responde(Resposta::Sim);
        const long usos = caso.bd.use_count();
        clica(*tela, QStringLiteral("BotTesteSair"));
        QVERIFY(!tela->isVisible());
        QCOMPARE(tela->gravacoes, 3);
        QCOMPARE(caso.notificador->Eventos().size(), std::size_t{2});
        QVERIFY(caso.bd.use_count() < usos);
        QCOMPARE(caso.caso.use_count(), 1L);
    }

    // One instance while loaded, the busy pointer for exactly that long, and a new one after.
    void barraDeProgresso() {
        teste::HostTeste host;
        auto& barra = corvalin::FrmBarraDeProgresso::Instancia();
        QPointer<QWidget> primeira = &barra;
        QCOMPARE(&corvalin::FrmBarraDeProgresso::Instancia(), &barra);
        QCOMPARE(host.dialogo.Ponteiros(), std::vector<Ponteiro>{Ponteiro::Ocupado});
        QCOMPARE(host.sistema.Auxiliares, std::vector<QWidget*>{&barra});

        barra.show();
        barra.Barra().setValue(42.4);
        QCOMPARE(barra.PrgBarraDeProgresso().value(), 42);
        barra.Barra().Esconde();
        QVERIFY(!barra.isVisible());

        corvalin::FrmBarraDeProgresso::Descarregar();
        QVERIFY(primeira.isNull());
        QCOMPARE(host.dialogo.Ponteiros(), (std::vector<Ponteiro>{Ponteiro::Ocupado, Ponteiro::Padrao}));

        QCOMPARE(corvalin::FrmBarraDeProgresso::Instancia().PrgBarraDeProgresso().value(), 0);
        corvalin::FrmBarraDeProgresso::Descarregar();
    }

    // A read-only case: write buttons off, nothing is ever a change, closing asks nothing.
    void casoSomenteLeitura() {
        teste::CasoDeTelas caso(true);
        caso.adiciona(30, QStringLiteral("Alfa"));
        auto tela = teste::carrega<FrmTeste>(caso);
        tela->show();
        QVERIFY(!controle<QPushButton>(*tela, QStringLiteral("BotTesteGravar")).isEnabled());
        digita(*tela, QStringLiteral("x"));
        QCOMPARE(tela->getEstado(), corvalin::Tela::Limpo);
        QVERIFY(tela->close());
        QVERIFY(caso.host.dialogo.Mensagens().empty());
    }

    // The frame's own controls follow the screen's fields in the tab order: code, record list,
    // fields, navigation, write and leave.
    void ordemDeTabulacao() {
        teste::CasoDeTelas caso;
        auto tela = teste::carrega<FrmTeste>(caso);
        QStringList ordem;
        QWidget* atual = &controle<QLineEdit>(*tela, QStringLiteral("TxtTesteCodigo"));
        for (int i = 0; i < 9; ++i) {
            ordem << atual->objectName();
            do {
                atual = atual->nextInFocusChain();
            } while (atual->focusPolicy() == Qt::NoFocus || atual->objectName().isEmpty());
        }
        QCOMPARE(ordem.join(u' '),
                 QStringLiteral("TxtTesteCodigo CBDTeste TxtTesteValor BotTesteNavegacao_0 "
                                "BotTesteNavegacao_1 BotTesteNavegacao_2 BotTesteNavegacao_3 "
                                "BotTesteGravar BotTesteSair"));

        // An empty case: every step leaves the screen blank and says nothing.
        for (int i : {0, 1, 2, 3}) {
            clica(*tela, QStringLiteral("BotTesteNavegacao_%1").arg(i));
            QVERIFY(codigo(*tela, QStringLiteral("Teste")).isEmpty());
        }
        QVERIFY(caso.host.dialogo.Mensagens().empty());
    }
};

QTEST_MAIN(TesteTela)
#include "test_tela.moc"
