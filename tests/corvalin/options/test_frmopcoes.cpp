// The options screen driven through its controls: a save seen again, the checks of a save, the
// offer to bring the stations into line, Enter across the tabs, the folder box and a read-only case.

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

using namespace Qt::StringLiterals;
using halvo::Resposta;
using teste::controle;

namespace {

struct Frm {
    explicit Frm(const teste::CasoDeTelas& caso) : tela(teste::carrega<corvalin::FrmOpcoes>(caso)) {}

    // A control by its kind and role: "CboArquivosNome", 2 is CboOpcoesArquivosNome_2.
    template <class T>
    T& c(const QString& nome, int i = -1) const {
        return controle<T>(
            *tela, u"%1Opcoes%2"_s.arg(nome.left(3), nome.mid(3)) + (i < 0 ? QString() : u"_%1"_s.arg(i)));
    }
    QComboBox& nome(int i) const { return c<QComboBox>(u"CboArquivosNome"_s, i); }
    QComboBox& extensao(int i) const { return c<QComboBox>(u"CboArquivosExtensao"_s, i); }
    QCheckBox& exclusao(int i) const { return c<QCheckBox>(u"ChkExclusao"_s, i); }
    QCheckBox& chkPasta() const { return c<QCheckBox>(u"ChkPastaPrevisoes"_s); }
    QLineEdit& pasta() const { return c<QLineEdit>(u"TxtPastaPrevisoes"_s); }
    QLineEdit& filtro(int i) const { return c<QLineEdit>(u"TxtFiltro"_s, i); }
    QTabWidget& abas() const { return controle<QTabWidget>(*tela, u"GuiOpcoes"_s); }
    void grava() const { c<QPushButton>(u"BotGrava"_s).click(); }
    void digita(int i, const QString& nomeDoArquivo, const QString& ext) const {
        nome(i).lineEdit()->clear();
        extensao(i).lineEdit()->clear();
        QTest::keyClicks(nome(i).lineEdit(), nomeDoArquivo);
        QTest::keyClicks(extensao(i).lineEdit(), ext);
    }

    std::unique_ptr<corvalin::FrmOpcoes> tela;
};

corvalin::Opcoes leOpcoes(const teste::CasoDeTelas& caso) {
    corvalin::OpcoesBD opcoesBD;
    opcoesBD.setCasoBD(caso.bd);
    corvalin::Opcoes opcoes;
    opcoesBD.getOpcoes(opcoes);
    return opcoes;
}

}  // namespace

class TesteFrmOpcoes : public QObject {
    Q_OBJECT

private slots:
    // A new case shows every row empty; what is chosen, typed and checked is stored and shown
    // again. With no station there is nothing to ask; unchecking the folder box takes the folder.
    void gravaEMostraDeNovo() {
        teste::CasoDeTelas caso;
        {
            const Frm t(caso);
            QVERIFY(t.nome(4).currentText().isEmpty() && t.extensao(4).currentIndex() == -1);
            QVERIFY(!t.pasta().isEnabled());
            t.nome(0).setCurrentIndex(0);
            t.extensao(0).setCurrentIndex(2);
            t.digita(2, u" relat "_s, u"rel"_s);
            t.digita(3, u"prev"_s, u"prv"_s);
            t.exclusao(1).click();
            t.exclusao(3).click();
            t.chkPasta().click();
            caso.host.dialogo.respondePasta(u"/tmp/prev"_s);
            t.c<QPushButton>(u"BotPastaPrevisoes"_s).click();
            QTest::keyClicks(&t.filtro(0), u" *.dat "_s);
            QTest::keyClicks(&t.c<QLineEdit>(u"TxtFiltroDescricao"_s, 0), u"Semanais"_s);
            QTest::keyClicks(&t.filtro(2), u"*.prv"_s);
            t.grava();
            QVERIFY(caso.host.dialogo.Mensagens().empty());
            QCOMPARE(caso.notificador->Eventos(), std::vector<std::int32_t>{3});
        }
        const corvalin::Opcoes opcoes = leOpcoes(caso);
        QCOMPARE(opcoes.Arquivos.ArquivoDadosGerais, u"[Código do Posto].arq"_s);
        QCOMPARE(opcoes.Arquivos.ArquivoRelatorio + opcoes.Arquivos.ArquivoPrevisoes, u"relat.relprev.prv"_s);
        QVERIFY(opcoes.Arquivos.ApagarArquivoExcel && opcoes.Arquivos.ApagarArquivoVazoesSemanais);
        QVERIFY(!opcoes.Arquivos.ApagarArquivoRelatorio && !opcoes.Arquivos.ApagarArquivoDadosGerais);
        QCOMPARE(opcoes.PastaPrevisoes(), QDir::toNativeSeparators(u"/tmp/prev/"_s));
        QCOMPARE(opcoes.Filtro(1) + opcoes.FiltroDescricao(1) + opcoes.Filtro(3), u"*.datSemanais*.prv"_s);

        const Frm t(caso);
        QCOMPARE(t.nome(0).currentIndex(), 0);
        QCOMPARE(t.extensao(0).currentText() + t.nome(2).currentText(), u"arqrelat"_s);
        QVERIFY(t.exclusao(3).isChecked() && !t.exclusao(2).isChecked());
        QVERIFY(t.chkPasta().isChecked() && t.pasta().isEnabled());
        QCOMPARE(t.filtro(0).text(), u"*.dat"_s);
        t.chkPasta().click();
        QVERIFY(t.pasta().text().isEmpty() && !t.pasta().isEnabled());
        t.grava();
        QVERIFY(leOpcoes(caso).PastaPrevisoes().isEmpty());
    }

    // The first problem is shown on its tab with the focus on its field, and nothing is stored;
    // the template words pass whatever their length. Yes at the prompt runs the same checks.
    void recusas() {
        teste::CasoDeTelas caso;
        const Frm t(caso);
        t.tela->show();
        QVERIFY(QTest::qWaitForWindowActive(t.tela.get()));
        QTest::keyClicks(&t.c<QLineEdit>(u"TxtFiltroDescricao"_s, 1), u"Sem filtro"_s);
        t.digita(3, u"abc"_s, {});
        t.digita(1, u"abcdefghi"_s, u"dat"_s);
        t.digita(4, u"[Nome do Aproveitamento]"_s, u"exc"_s);
        t.abas().setCurrentIndex(1);
        const auto recusa = [&](const QString& texto, int aba, const QWidget& foco) {
            t.grava();
            const auto& ultima = caso.host.dialogo.Mensagens().back();
            QCOMPARE(ultima.texto, texto);
            QCOMPARE(ultima.titulo, u"Informação"_s);
            QCOMPARE(ultima.icone, halvo::Icone::Informacao);
            QCOMPARE(t.abas().currentIndex(), aba);
            QVERIFY(foco.hasFocus());
        };
        recusa(QStringLiteral(
                   "Nome de arquivo inválido.\r\nCertifique-se que o tamanho do nome do arquivo não exceda "
                   "8 caracteres, a extensão não exceda 3 caracteres, e não contenha caracteres especiais."),
               0, t.nome(1));
        t.digita(1, u"abcdefgh"_s, u"dat"_s);
        recusa(QStringLiteral(
                   "Extensão de arquivo inválida.\r\nCertifique-se que o tamanho da extensão não exceda 3 "
                   "caracteres, e não contenha caracteres especiais."),
               0, t.extensao(3));
        t.digita(3, {}, {});
        recusa(u"Filtro não definido. Digite por exemplo: *.dat"_s, 2, t.filtro(1));
        QVERIFY(leOpcoes(caso).Arquivos.Vazio());
        caso.host.dialogo.responde(Resposta::Sim);
        QVERIFY(!t.tela->close());
        QCOMPARE(caso.host.dialogo.Mensagens().size(), std::size_t{5});
        QTest::keyClicks(&t.filtro(1), u"*"_s);
        t.grava();
        QCOMPARE(leOpcoes(caso).Arquivos.ArquivoExcel, u"[Nome do Aproveitamento].exc"_s);
    }

    // New names or erase choices are offered to the stations of the case; the answer decides.
    // A change of folder or filter only asks nothing.
    void propagacaoAosPostos() {
        teste::CasoDeTelas caso;
        caso.adiciona(10, u"Alfa"_s);
        caso.adiciona(20, u"Bravo"_s);
        const auto arquivo = [&](int codigo) {
            corvalin::Posto posto;
            caso.postoBD->getPosto(posto, corvalin::BuscaPorCodigo, codigo, {});
            return posto.Arquivos.ArquivoDadosGerais;
        };
        const Frm t(caso);
        t.nome(0).setCurrentIndex(1);
        t.extensao(0).setCurrentIndex(2);
        caso.host.dialogo.responde(Resposta::Nao);
        t.grava();
        QCOMPARE(caso.host.dialogo.Mensagens().back().texto,
                 u"Deseja alterar os Dados Gerais dos Postos já cadastrados?"_s);
        QCOMPARE(caso.host.dialogo.Mensagens().back().botoes, halvo::Botoes::SimNao);
        QCOMPARE(arquivo(10), u"10.arq"_s);
        QTest::keyClicks(&t.filtro(0), u"*.dat"_s);
        t.grava();
        QCOMPARE(caso.host.dialogo.Mensagens().size(), std::size_t{1});
        t.exclusao(0).click();
        t.grava();
        QCOMPARE(caso.host.dialogo.Mensagens().size(), std::size_t{2});
        QCOMPARE(arquivo(10) + arquivo(20), u"Alfa.arqBravo.arq"_s);
    }

    // Enter goes on to the next tab's first field, and from the last button back to the first
    // tab; F2 opens the folder dialog. A read-only case writes and asks nothing.
    void tecladoESomenteLeitura() {
        teste::CasoDeTelas caso(true);
        const Frm t(caso);
        t.tela->show();
        QVERIFY(QTest::qWaitForWindowActive(t.tela.get()));
        QVERIFY(!t.c<QPushButton>(u"BotGrava"_s).isEnabled());
        const auto enter = [](QWidget& de) {
            de.setFocus();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        };
        enter(t.extensao(4));
        QVERIFY(t.abas().currentIndex() == 1 && t.exclusao(0).hasFocus());
        enter(t.c<QPushButton>(u"BotSair"_s));
        QVERIFY(t.abas().currentIndex() == 0 && t.nome(0).hasFocus());

        t.chkPasta().click();
        caso.host.dialogo.respondePasta(u"/um"_s);
        QTest::keyClick(&t.pasta(), Qt::Key_F2);
        QCOMPARE(t.pasta().text(), u"/um"_s);
        t.digita(0, u"x"_s, u"y"_s);
        QVERIFY(t.tela->close());
        QVERIFY(caso.host.dialogo.Mensagens().empty());
    }
};

QTEST_MAIN(TesteFrmOpcoes)
#include "test_frmopcoes.moc"
