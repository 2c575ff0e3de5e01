// The folder dialog: its subfolder option, the names it refuses, the folder it makes, Cancel, and
// a drive that cannot be read.

#include "corvalin/casedb/FrmDiretorio.h"
#include "tests/corvalin/frame/CasoDeTelas.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

using teste::controle;

class TesteFrmDiretorio : public QObject {
    Q_OBJECT

private slots:
    void subpastaRecusadaOuCriada() {
        teste::HostTeste host;
        corvalin::FrmDiretorio dialogo;
        QVERIFY(controle<QGroupBox>(dialogo, QStringLiteral("FmeDiretorio")).isHidden());
        dialogo.setOpcaoParaCriar(true);
        QVERIFY(!controle<QGroupBox>(dialogo, QStringLiteral("FmeDiretorio")).isHidden());
        auto& nome = controle<QLineEdit>(dialogo, QStringLiteral("TxtDiretorio"));
        auto& ok = controle<QPushButton>(dialogo, QStringLiteral("BotDiretorioOK"));
        QVERIFY(!nome.isEnabled());
        controle<QCheckBox>(dialogo, QStringLiteral("ChkDiretorio")).click();
        QVERIFY(nome.isEnabled());

        const QString base = QDir::toNativeSeparators(host.pasta.path());
        QVERIFY(QDir(base).mkdir(QStringLiteral("existe")));
        QFile noCaminho(host.caminho(QStringLiteral("arquivo")));
        QVERIFY(noCaminho.open(QIODevice::WriteOnly));
        noCaminho.close();
        dialogo.setCaminho(base);
        QCOMPARE(dialogo.Caminho(), base);
        const std::pair<const char*, QString> recusas[] = {
            {"a.b", QStringLiteral("Erro ao criar diretório.")},
            {"a/b", QStringLiteral("Erro ao criar diretório.")},
            {"a?", QStringLiteral("Erro ao criar diretório.")},
            {"existe", QStringLiteral("Diretório já existente.")},
            {"arquivo", QStringLiteral("Erro ao criar diretório.")},
        };
        for (const auto& [texto, mensagem] : recusas) {
            nome.setText(QLatin1String(texto));
            ok.click();
            const auto& ultima = host.dialogo.Mensagens().back();
            QCOMPARE(ultima.texto, mensagem);
            QCOMPARE(ultima.titulo, QStringLiteral("Erro"));
            QCOMPARE(ultima.icone, halvo::Icone::Erro);
            QCOMPARE(dialogo.result(), int{QDialog::Rejected});
        }
        QVERIFY(!QDir(base + QStringLiteral("/a")).exists());

        nome.setText(QStringLiteral("nova"));
        ok.click();
        QCOMPARE(dialogo.result(), int{QDialog::Accepted});
        QVERIFY(!dialogo.Cancelar());
        QVERIFY(QDir(base + QStringLiteral("/nova")).exists());
        QCOMPARE(dialogo.Caminho(), base + QDir::separator() + QStringLiteral("nova"));
    }

    // Cancel is told to the caller; a drive that cannot be read leaves the folder and its drive.
    void cancelaEDriveIndisponivel() {
        teste::HostTeste host;
        corvalin::FrmDiretorio dialogo;
        dialogo.setCaminho(host.pasta.path());
        auto& drives = controle<QComboBox>(dialogo, QStringLiteral("DrvDiretorio"));
        QVERIFY(QDir::fromNativeSeparators(dialogo.Caminho()).startsWith(drives.currentData().toString()));
        drives.addItem(QStringLiteral("X:"), QStringLiteral("/nao/existe/"));
        dialogo.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialogo));
        drives.setFocus();
        QTest::keyClick(&drives, Qt::Key_End);
        QCOMPARE(drives.currentIndex(), 0);
        QCOMPARE(dialogo.Caminho(), QDir::toNativeSeparators(host.pasta.path()));

        QTest::keyClick(&drives, Qt::Key_Return);
        QVERIFY(dialogo.isVisible());
        controle<QPushButton>(dialogo, QStringLiteral("BotDiretorioCancela")).click();
        QVERIFY(dialogo.Cancelar());
        QVERIFY(!dialogo.isVisible());
        QVERIFY(host.dialogo.Mensagens().empty());
    }
};

QTEST_MAIN(TesteFrmDiretorio)
#include "test_frmdiretorio.moc"
