#include "halvo/app/ServicoDialogoGui.h"
#include "halvo/app/UtilitariosSistemaGui.h"

#include <QApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QTimer>

namespace {

class TesteServicosGui : public QObject {
    Q_OBJECT

private slots:
    void textoEFiltros();
    void caixaDeMensagem();
    void ponteiroEUmValorSo();
    void telaFilhaSaiComASubjanela();
    void janelaAuxiliarFicaSobreAPrincipal();
};

void TesteServicosGui::textoEFiltros() {
    QCOMPARE(halvo::TextoDaMensagem(QStringLiteral("Erro 53\rna rotina X\r\n\r\nfim")),
             QStringLiteral("Erro 53\nna rotina X\n\nfim"));
    QCOMPARE(halvo::FiltroDoQt(QStringLiteral("Todos os arquivos (*.*)|*.*")),
             QStringLiteral("Todos os arquivos (*.*)"));
    QCOMPARE(halvo::FiltroDoQt(QStringLiteral("Vazões semanais|*.arq; *.txt|Limites (*.lim)|*.lim|")),
             QStringLiteral("Vazões semanais (*.arq *.txt);;Limites (*.lim)"));
    QCOMPARE(halvo::FiltroDoQt(QStringLiteral("Qualquer")), QStringLiteral("Qualquer (*)"));
    QCOMPARE(halvo::FiltroDoQt(QString()), QString());
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

void TesteServicosGui::caixaDeMensagem() {
    halvo::ServicoDialogoGui dialogo;
    Caixa vista;
    respondeComTecla(vista, Qt::Key_Escape);
    QCOMPARE(dialogo.Mensagem(QStringLiteral("Deseja gravar?\rSim ou não."), {}, halvo::Icone::Pergunta,
                              halvo::Botoes::SimNao),
             halvo::Resposta::Nao);
    QCOMPARE(vista.titulo, QStringLiteral("Halvo"));
    QCOMPARE(vista.texto, QStringLiteral("Deseja gravar?\nSim ou não."));
    QCOMPARE(vista.icone, QMessageBox::Question);

    respondeComTecla(vista, Qt::Key_Return);
    QCOMPARE(dialogo.Mensagem(QStringLiteral("Gravar?"), QStringLiteral("Confirmação"),
                              halvo::Icone::Pergunta, halvo::Botoes::SimNaoCancelar),
             halvo::Resposta::Sim);
    QCOMPARE(vista.titulo, QStringLiteral("Confirmação"));

    respondeComTecla(vista, Qt::Key_Escape);
    QCOMPARE(dialogo.Mensagem(QStringLiteral("Falhou."), QStringLiteral("Erro"), halvo::Icone::Erro,
                              halvo::Botoes::Ok),
             halvo::Resposta::Ok);
    QCOMPARE(vista.icone, QMessageBox::Critical);
}

void TesteServicosGui::ponteiroEUmValorSo() {
    halvo::ServicoDialogoGui dialogo;
    dialogo.MousePointer(halvo::Ponteiro::Ocupado);
    dialogo.MousePointer(halvo::Ponteiro::Ocupado);
    QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    dialogo.MousePointer(halvo::Ponteiro::Seta);
    QCOMPARE(QApplication::overrideCursor()->shape(), Qt::ArrowCursor);
    QApplication::restoreOverrideCursor();
    QVERIFY(QApplication::overrideCursor() == nullptr);

    dialogo.MousePointer(halvo::Ponteiro::Ocupado);
    dialogo.MousePointer(halvo::Ponteiro::Padrao);
    QVERIFY(QApplication::overrideCursor() == nullptr);
}

void TesteServicosGui::telaFilhaSaiComASubjanela() {
    halvo::UtilitariosSistemaGui sistema;
    QMdiArea area;
    QPointer<QWidget> tela = new QWidget;
    sistema.JanelaFilha(tela, &area);
    QCOMPARE(area.subWindowList().size(), 1);
    QPointer<QMdiSubWindow> subjanela = area.subWindowList()[0];
    QCOMPARE(subjanela->widget(), tela.data());

    // The screen closes itself, as its own "Fechar" button does.
    tela->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(tela.isNull());
    QVERIFY(subjanela.isNull());

    QPointer<QWidget> outra = new QWidget;
    sistema.JanelaFilha(outra, &area);
    area.closeAllSubWindows();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(outra.isNull());
}

void TesteServicosGui::janelaAuxiliarFicaSobreAPrincipal() {
    halvo::UtilitariosSistemaGui sistema;
    QWidget principal;
    QWidget progresso;
    progresso.show();
    sistema.JanelaAuxiliar(&progresso);
    QVERIFY(progresso.isVisible());

    sistema.setPrincipal(&principal);
    sistema.JanelaAuxiliar(&progresso);
    QCOMPARE(progresso.parentWidget(), &principal);
    QVERIFY(progresso.isWindow());
    QCOMPARE(progresso.windowType(), Qt::Tool);
    QVERIFY(progresso.isVisible());
}

}  // namespace

QTEST_MAIN(TesteServicosGui)
#include "test_servicos_gui.moc"
