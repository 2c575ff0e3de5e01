// The folder dialog: the subfolder names it refuses and the folder it makes.

#include "corvalin/casedb/FrmDiretorio.h"
#include "tests/corvalin/frame/CasoDeTelas.h"

#include <QCheckBox>
#include <QDir>
#include <QFile>
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
        dialogo.setOpcaoParaCriar(true);
        auto& nome = controle<QLineEdit>(dialogo, QStringLiteral("TxtDiretorio"));
        auto& ok = controle<QPushButton>(dialogo, QStringLiteral("BotDiretorioOK"));
        controle<QCheckBox>(dialogo, QStringLiteral("ChkDiretorio")).click();

        const QString base = QDir::toNativeSeparators(host.pasta.path());
        QVERIFY(QDir(base).mkdir(QStringLiteral("existe")));
        QFile noCaminho(host.caminho(QStringLiteral("arquivo")));
        QVERIFY(noCaminho.open(QIODevice::WriteOnly));
        noCaminho.close();
        dialogo.setCaminho(base);
        const std::pair<const char*, QString> recusas[] = {
            {"a.b", QStringLiteral("Erro ao criar diretório.")},
            {"a/b", QStringLiteral("Erro ao criar diretório.")},
            {"a?", QStringLiteral("Erro ao criar diretório.")},
            {"existe", QStringLiteral("Diretório já existente.")},
            {"arquivo", QStringLiteral("Erro ao criar diretório.")},
        };
        for (std::size_t i = 0; const auto& [texto, mensagem] : recusas) {
            nome.setText(QLatin1String(texto));
            ok.click();
            const auto& ultima = host.dialogo.Mensagens().at(i++);  // one message for each refusal
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
};

QTEST_MAIN(TesteFrmDiretorio)
#include "test_frmdiretorio.moc"
