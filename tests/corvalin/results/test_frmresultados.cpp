// The report viewer: which file each choice reads, where, and what shows when it is missing.

#include "corvalin/options/Opcoes.h"
#include "corvalin/options/OpcoesBD.h"
#include "corvalin/results/FrmResultados.h"
#include "halvo/controles/RichText.h"
#include "tests/corvalin/frame/CasoDeTelas.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

using teste::controle;

namespace {

void escreve(const QString& caminho, const QByteArray& texto) {
    QDir().mkpath(QFileInfo(caminho).path());
    QFile arquivo(caminho);
    QVERIFY(arquivo.open(QIODevice::WriteOnly));
    arquivo.write(texto + "\r\n");
}

QString visto(const QWidget& tela) {
    return controle<halvo::RichText>(tela, QStringLiteral("RtfResultados")).Texto().trimmed();
}

void escolhe(const QWidget& tela, int indice) {
    controle<QComboBox>(tela, QStringLiteral("CboResultadosArquivo")).setCurrentIndex(indice);
}

}  // namespace

class TesteFrmResultados : public QObject {
    Q_OBJECT

private slots:
    // Without a station there is nothing to read, whichever file is chosen.
    void catalogoVazio() {
        teste::CasoDeTelas caso;
        auto tela = teste::carrega<corvalin::FrmResultados>(caso);
        QCOMPARE(controle<QComboBox>(*tela, QStringLiteral("CboResultadosArquivo")).count(), 4);
        for (int arquivo = 0; arquivo < 4; ++arquivo) {
            escolhe(*tela, arquivo);
            QVERIFY2(visto(*tela).isEmpty(), qPrintable(QString::number(arquivo)));
        }
    }

    // The choice of file stays from station to station; a file that is not there says so.
    void arquivosDoPosto() {
        teste::CasoDeTelas caso;
        caso.adiciona(1, QStringLiteral("A"));
        caso.adiciona(2, QStringLiteral("B"));
        const QString pasta = caso.pasta();
        escreve(pasta + QStringLiteral("1/1.rel"), "relatorio A");
        escreve(pasta + QStringLiteral("1/1.bcx"), "boxcox A");
        escreve(pasta + QStringLiteral("1/1.prv"), "previsao A");
        escreve(pasta + QStringLiteral("2/2.rel"), "relatorio B");
        escreve(pasta + QStringLiteral("2/2.exc"), "excel B");
        escreve(pasta + QStringLiteral("2/2.prv"), "previsao B");

        auto tela = teste::carrega<corvalin::FrmResultados>(caso);
        QCOMPARE(visto(*tela), QStringLiteral("relatorio A"));
        QCOMPARE(caso.host.dialogo.Ponteiros().back(), halvo::Ponteiro::Padrao);
        escolhe(*tela, 3);
        QCOMPARE(visto(*tela), QStringLiteral("boxcox A"));
        escolhe(*tela, 2);
        QCOMPARE(visto(*tela), QStringLiteral("Arquivo inexistente."));
        escolhe(*tela, 1);
        QCOMPARE(visto(*tela), QStringLiteral("previsao A"));

        // With a folder of forecasts, only that folder counts.
        corvalin::OpcoesBD opcoesBD;
        opcoesBD.setCasoBD(caso.bd);
        corvalin::Opcoes opcoes;
        opcoes.setPastaPrevisoes(caso.host.caminho(QStringLiteral("previsoes")));
        opcoesBD.setOpcoes(opcoes);
        escreve(caso.host.caminho(QStringLiteral("previsoes/2.prv")), "previsao central B");
        auto& proximo = controle<QPushButton>(*tela, QStringLiteral("BotResultadosNavegacao_2"));
        proximo.click();
        QCOMPARE(controle<QLineEdit>(*tela, QStringLiteral("TxtResultadosCodigo")).text(),
                 QStringLiteral("2"));
        QCOMPARE(visto(*tela), QStringLiteral("previsao central B"));
        controle<QPushButton>(*tela, QStringLiteral("BotResultadosNavegacao_0")).click();
        QCOMPARE(visto(*tela), QStringLiteral("Arquivo inexistente."));

        proximo.click();
        escolhe(*tela, 2);
        QCOMPARE(visto(*tela), QStringLiteral("excel B"));
        proximo.click();
        QCOMPARE(visto(*tela), QStringLiteral("excel B"));
        escolhe(*tela, 3);
        QCOMPARE(visto(*tela), QStringLiteral("Arquivo inexistente."));
        QVERIFY(caso.host.dialogo.Mensagens().empty());
    }
};

QTEST_MAIN(TesteFrmResultados)
#include "test_frmresultados.moc"
