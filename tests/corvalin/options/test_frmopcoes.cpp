// The options screen driven through its controls: its lists, the checks of a save, the offer to
// bring the stations into line, the folder box, Enter across the tabs and a read-only case.

#include "corvalin/options/FrmOpcoes.h"
#include "corvalin/options/Opcoes.h"
#include "corvalin/options/OpcoesBD.h"
#include "tests/corvalin/frame/CasoDeTelas.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QtTest>

using halvo::Resposta;
using teste::controle;

namespace {

struct Frm {
    explicit Frm(const teste::CasoDeTelas& caso) : tela(teste::carrega<corvalin::FrmOpcoes>(caso)) {}

    QComboBox& nome(int i) const {
        return controle<QComboBox>(*tela, QStringLiteral("CboOpcoesArquivosNome_%1").arg(i));
    }
    QComboBox& extensao(int i) const {
        return controle<QComboBox>(*tela, QStringLiteral("CboOpcoesArquivosExtensao_%1").arg(i));
    }
    QCheckBox& exclusao(int i) const {
        return controle<QCheckBox>(*tela, QStringLiteral("ChkOpcoesExclusao_%1").arg(i));
    }
    QCheckBox& chkPasta() const {
        return controle<QCheckBox>(*tela, QStringLiteral("ChkOpcoesPastaPrevisoes"));
    }
    QLineEdit& pasta() const { return controle<QLineEdit>(*tela, QStringLiteral("TxtOpcoesPastaPrevisoes")); }
    QLineEdit& filtro(int i) const {
        return controle<QLineEdit>(*tela, QStringLiteral("TxtOpcoesFiltro_%1").arg(i));
    }
    QLineEdit& descricao(int i) const {
        return controle<QLineEdit>(*tela, QStringLiteral("TxtOpcoesFiltroDescricao_%1").arg(i));
    }
    QTabWidget& abas() const { return controle<QTabWidget>(*tela, QStringLiteral("GuiOpcoes")); }
    QPushButton& botao(const QString& nome) const {
        return controle<QPushButton>(*tela, QStringLiteral("BotOpcoes") + nome);
    }
    void grava() const { botao(QStringLiteral("Grava")).click(); }
    // The row's two parts as the user types them.
    void digita(int i, const QString& nomeDoArquivo, const QString& ext) const {
        nome(i).lineEdit()->clear();
        extensao(i).lineEdit()->clear();
        QTest::keyClicks(nome(i).lineEdit(), nomeDoArquivo);
        QTest::keyClicks(extensao(i).lineEdit(), ext);
    }

    std::unique_ptr<corvalin::FrmOpcoes> tela;
};

QStringList itens(const QComboBox& lista) {
    QStringList textos;
    for (int i = 0; i < lista.count(); ++i) {
        textos << lista.itemText(i);
    }
    return textos;
}

corvalin::Opcoes leOpcoes(const teste::CasoDeTelas& caso) {
    corvalin::OpcoesBD opcoesBD;
    opcoesBD.setCasoBD(caso.bd);
    corvalin::Opcoes opcoes;
    opcoesBD.getOpcoes(opcoes);
    return opcoes;
}

const struct teste::DialogoRoteirizado::Mensagem& ultima(const teste::CasoDeTelas& caso) {
    return caso.host.dialogo.Mensagens().back();
}

}  // namespace

class TesteFrmOpcoes : public QObject {
    Q_OBJECT

private slots:
    // A new case shows every row empty with nothing chosen; what is chosen, typed and checked is
    // stored and shown again. With no station there is nothing to ask.
    void gravaEMostraDeNovo() {
        teste::CasoDeTelas caso;
        {
            const Frm t(caso);
            QCOMPARE(t.tela->windowTitle(), QStringLiteral("Opções para os Arquivos"));
            QCOMPARE(t.abas().tabText(0), QStringLiteral("   &1 - Nomes Padrão   "));
            QCOMPARE(t.abas().tabText(2), QStringLiteral("   &3 - Diversos   "));
            QCOMPARE(t.abas().currentIndex(), 0);
            QCOMPARE(itens(t.nome(4)), (QStringList{QStringLiteral("[Código do Posto]"),
                                                    QStringLiteral("[Nome do Aproveitamento]")}));
            const QStringList extensoes{QStringLiteral("dat"), QStringLiteral("txt")};
            QCOMPARE(itens(t.extensao(0)), extensoes + QStringList{QStringLiteral("arq")});
            QCOMPARE(itens(t.extensao(1)), extensoes);
            QCOMPARE(itens(t.extensao(3)), extensoes + QStringList{QStringLiteral("prv")});
            QCOMPARE(itens(t.extensao(4)), extensoes + QStringList{QStringLiteral("exc")});
            QCOMPARE(t.exclusao(3).text(), QStringLiteral("Estatística das Previsões (Excel)"));
            for (int i = 0; i < 5; ++i) {
                QVERIFY(t.nome(i).currentText().isEmpty());
                QCOMPARE(t.extensao(i).currentIndex(), -1);
            }
            QVERIFY(!t.pasta().isEnabled());
            QVERIFY(!t.botao(QStringLiteral("PastaPrevisoes")).isEnabled());
            t.grava();
            QVERIFY(caso.notificador->Eventos().empty());

            t.nome(0).setCurrentIndex(0);
            t.extensao(0).setCurrentIndex(2);
            t.digita(2, QStringLiteral(" relat "), QStringLiteral("rel"));
            t.exclusao(3).click();
            t.chkPasta().click();
            caso.host.dialogo.respondePasta(QStringLiteral("/tmp/prev"));
            t.botao(QStringLiteral("PastaPrevisoes")).click();
            QTest::keyClicks(&t.filtro(0), QStringLiteral(" *.dat "));
            QTest::keyClicks(&t.descricao(0), QStringLiteral("Semanais"));
            QTest::keyClicks(&t.filtro(1), QStringLiteral("*.arq"));
            t.grava();
            QVERIFY(caso.host.dialogo.Mensagens().empty());
            QCOMPARE(caso.notificador->Eventos(), std::vector<std::int32_t>{3});
            QVERIFY(t.tela->close());
        }
        const corvalin::Opcoes opcoes = leOpcoes(caso);
        QCOMPARE(opcoes.Arquivos.ArquivoDadosGerais, QStringLiteral("[Código do Posto].arq"));
        QCOMPARE(opcoes.Arquivos.ArquivoRelatorio, QStringLiteral("relat.rel"));
        QVERIFY(opcoes.Arquivos.ArquivoVazoesSemanais.isEmpty());
        QVERIFY(opcoes.Arquivos.ApagarArquivoExcel);
        QVERIFY(!opcoes.Arquivos.ApagarArquivoRelatorio);
        QCOMPARE(opcoes.PastaPrevisoes(), QDir::toNativeSeparators(QStringLiteral("/tmp/prev/")));
        QCOMPARE(opcoes.Filtro(1), QStringLiteral("*.dat"));
        QCOMPARE(opcoes.FiltroDescricao(1), QStringLiteral("Semanais"));
        QCOMPARE(opcoes.Filtro(2), QStringLiteral("*.arq"));

        const Frm t(caso);
        QCOMPARE(t.nome(0).currentIndex(), 0);
        QCOMPARE(t.extensao(0).currentText(), QStringLiteral("arq"));
        QCOMPARE(t.nome(2).currentText(), QStringLiteral("relat"));
        QVERIFY(t.exclusao(3).isChecked());
        QVERIFY(!t.exclusao(2).isChecked());
        QVERIFY(t.chkPasta().isChecked());
        QVERIFY(t.pasta().isEnabled());
        QCOMPARE(t.filtro(1).text(), QStringLiteral("*.arq"));

        // Unchecking the box takes the folder away.
        t.chkPasta().click();
        QVERIFY(t.pasta().text().isEmpty());
        QVERIFY(!t.pasta().isEnabled());
        t.grava();
        QVERIFY(leOpcoes(caso).PastaPrevisoes().isEmpty());
    }

    // The first problem is shown on its tab with the focus on its field, and nothing is stored;
    // the template words pass whatever their length.
    void recusas() {
        teste::CasoDeTelas caso;
        const Frm t(caso);
        t.tela->show();
        QVERIFY(QTest::qWaitForWindowActive(t.tela.get()));
        const QString nomeInvalido = QStringLiteral(
            "Nome de arquivo inválido.\r\nCertifique-se que o tamanho do nome do arquivo não exceda 8 "
            "caracteres, "
            "a extensão não exceda 3 caracteres, e não contenha caracteres especiais.");
        const QString extensaoInvalida = QStringLiteral(
            "Extensão de arquivo inválida.\r\nCertifique-se que o tamanho da extensão não exceda 3 "
            "caracteres, e não "
            "contenha caracteres especiais.");
        QTest::keyClicks(&t.descricao(1), QStringLiteral("Sem filtro"));
        t.digita(3, QStringLiteral("abc"), {});
        t.digita(1, QStringLiteral("abcdefghi"), QStringLiteral("dat"));
        t.digita(4, QStringLiteral("[Nome do Aproveitamento]"), QStringLiteral("exc"));
        t.abas().setCurrentIndex(1);
        t.grava();
        QCOMPARE(ultima(caso).texto, nomeInvalido);
        QCOMPARE(ultima(caso).titulo, QStringLiteral("Informação"));
        QCOMPARE(ultima(caso).icone, halvo::Icone::Informacao);
        QCOMPARE(t.abas().currentIndex(), 0);
        QVERIFY(t.nome(1).hasFocus());

        t.digita(1, QStringLiteral("abcdefgh"), QStringLiteral("dat"));
        t.grava();
        QCOMPARE(ultima(caso).texto, extensaoInvalida);
        QVERIFY(t.extensao(3).hasFocus());

        t.digita(3, {}, {});
        t.grava();
        QCOMPARE(ultima(caso).texto, QStringLiteral("Filtro não definido. Digite por exemplo: *.dat"));
        QCOMPARE(t.abas().currentIndex(), 2);
        QVERIFY(t.filtro(1).hasFocus());
        QVERIFY(leOpcoes(caso).Arquivos.Vazio());

        // Yes at the prompt runs the same checks, and a refusal keeps the window open.
        caso.host.dialogo.responde(Resposta::Sim);
        QVERIFY(!t.tela->close());
        QCOMPARE(caso.host.dialogo.Mensagens().size(), std::size_t{5});
        QTest::keyClicks(&t.filtro(1), QStringLiteral("*"));
        t.grava();
        QCOMPARE(leOpcoes(caso).Arquivos.ArquivoExcel, QStringLiteral("[Nome do Aproveitamento].exc"));
    }

    // New names or erase choices are offered to the stations of the case; the answer decides.
    // A change of folder or filter only asks nothing.
    void propagacaoAosPostos() {
        teste::CasoDeTelas caso;
        caso.adiciona(10, QStringLiteral("Alfa"));
        caso.adiciona(20, QStringLiteral("Bravo"));
        const auto arquivoDadosGerais = [&](int codigo) {
            corvalin::Posto posto;
            caso.postoBD->getPosto(posto, corvalin::BuscaPorCodigo, codigo, {});
            return posto.Arquivos.ArquivoDadosGerais;
        };
        const Frm t(caso);
        t.nome(0).setCurrentIndex(1);
        t.extensao(0).setCurrentIndex(2);
        caso.host.dialogo.responde(Resposta::Nao);
        t.grava();
        QCOMPARE(ultima(caso).texto,
                 QStringLiteral("Deseja alterar os Dados Gerais dos Postos já cadastrados?"));
        QCOMPARE(ultima(caso).titulo, QStringLiteral("Confirmação"));
        QCOMPARE(ultima(caso).botoes, halvo::Botoes::SimNao);
        QCOMPARE(arquivoDadosGerais(10), QStringLiteral("10.arq"));

        QTest::keyClicks(&t.filtro(0), QStringLiteral("*.dat"));
        t.grava();
        QCOMPARE(caso.host.dialogo.Mensagens().size(), std::size_t{1});

        t.exclusao(0).click();
        t.grava();
        QCOMPARE(caso.host.dialogo.Mensagens().size(), std::size_t{2});
        QCOMPARE(arquivoDadosGerais(10), QStringLiteral("Alfa.arq"));
        QCOMPARE(arquivoDadosGerais(20), QStringLiteral("Bravo.arq"));
    }

    // Enter walks every field of the three tabs and the tab follows; the folder box opens the
    // folder dialog on F2 and on a double click. A read-only case writes nothing and asks nothing.
    void tecladoESomenteLeitura() {
        teste::CasoDeTelas caso(true);
        const Frm t(caso);
        t.tela->show();
        QVERIFY(QTest::qWaitForWindowActive(t.tela.get()));
        QVERIFY(!t.botao(QStringLiteral("Grava")).isEnabled());
        t.extensao(4).setFocus();
        const auto enter = [] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); };
        enter();
        QCOMPARE(t.abas().currentIndex(), 1);
        QVERIFY(t.exclusao(0).hasFocus());
        t.exclusao(3).setFocus();
        enter();
        QCOMPARE(t.abas().currentIndex(), 2);
        QVERIFY(t.filtro(0).hasFocus());
        t.chkPasta().setFocus();
        enter();
        QVERIFY(t.botao(QStringLiteral("Sair")).hasFocus());
        enter();
        QCOMPARE(t.abas().currentIndex(), 0);
        QVERIFY(t.nome(0).hasFocus());

        t.chkPasta().click();
        caso.host.dialogo.respondePasta(QStringLiteral("/um"));
        QTest::keyClick(&t.pasta(), Qt::Key_F2);
        QCOMPARE(t.pasta().text(), QStringLiteral("/um"));
        caso.host.dialogo.respondePasta(QStringLiteral("/dois"));
        QTest::mouseDClick(&t.pasta(), Qt::LeftButton);
        QCOMPARE(t.pasta().text(), QStringLiteral("/dois"));
        t.digita(0, QStringLiteral("x"), QStringLiteral("y"));
        QVERIFY(t.tela->close());
        QVERIFY(caso.host.dialogo.Mensagens().empty());
    }
};

QTEST_MAIN(TesteFrmOpcoes)
#include "test_frmopcoes.moc"
