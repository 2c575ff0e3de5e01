#include "halvo/app/ServicoDialogoGui.h"

#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

class TesteServicosGui : public QObject {
    Q_OBJECT

private slots:
    void messageTextAndFileFiltersTakeQtsForm();
    void messageBoxShowsTitleTextAndIconAndAnswersWithTheKeyPressed();
};

void TesteServicosGui::messageTextAndFileFiltersTakeQtsForm() {
    QCOMPARE(halvo::TextoDaMensagem(u"Erro 53\rna rotina X\r\n\r\nfim"_s), u"Erro 53\nna rotina X\n\nfim"_s);
    QCOMPARE(halvo::FiltroDoQt(u"Todos os arquivos (*.*)|*.*"_s), u"Todos os arquivos (*.*)"_s);
    QCOMPARE(halvo::FiltroDoQt(u"Vazões semanais|*.arq; *.txt|Limites (*.lim)|*.lim|"_s),
             u"Vazões semanais (*.arq *.txt);;Limites (*.lim)"_s);
}

// Answers the next message box with a key, after noting what it showed.
struct Caixa {
    QString titulo;
    QString texto;
    QMessageBox::Icon icone = QMessageBox::NoIcon;
};

void respondeComTecla(Caixa& vista, Qt::Key tecla) {
    QTimer::singleShot(0, [&vista, tecla] {
        auto* caixa = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        QVERIFY(caixa != nullptr);
        vista = {caixa->windowTitle(), caixa->text(), caixa->icon()};
        QTest::keyClick(caixa, tecla);
    });
}

void TesteServicosGui::messageBoxShowsTitleTextAndIconAndAnswersWithTheKeyPressed() {
    halvo::ServicoDialogoGui dialogo;
    Caixa vista;
    respondeComTecla(vista, Qt::Key_Escape);
    QCOMPARE(
        dialogo.Mensagem(u"Deseja gravar?\rSim ou não."_s, {}, halvo::Icone::Pergunta, halvo::Botoes::SimNao),
        halvo::Resposta::Nao);
    QCOMPARE(vista.texto, u"Deseja gravar?\nSim ou não."_s);
    QCOMPARE(vista.icone, QMessageBox::Question);

    respondeComTecla(vista, Qt::Key_Return);
    QCOMPARE(dialogo.Mensagem(u"Gravar?"_s, u"Confirmação"_s, halvo::Icone::Pergunta,
                              halvo::Botoes::SimNaoCancelar),
             halvo::Resposta::Sim);
    QCOMPARE(vista.titulo, u"Confirmação"_s);
}

}  // namespace

QTEST_MAIN(TesteServicosGui)
#include "test_servicos_gui.moc"
