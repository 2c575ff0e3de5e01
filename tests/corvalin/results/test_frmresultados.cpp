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

using namespace Qt::StringLiterals;
using teste::controle;

namespace {

void escreve(const QString& caminho, const QByteArray& texto) {
    QDir().mkpath(QFileInfo(caminho).path());
    QFile arquivo(caminho);
    QVERIFY(arquivo.open(QIODevice::WriteOnly));
    arquivo.write(texto + "\r\n");
}

QString visto(const QWidget& tela) {
    return controle<halvo::RichText>(tela, u"RtfResultados"_s).Texto().trimmed();
}

void escolhe(const QWidget& tela, int indice) {
    controle<QComboBox>(tela, u"CboResultadosArquivo"_s).setCurrentIndex(indice);
}

}  // namespace

class TesteFrmResultados : public QObject {
    Q_OBJECT

private slots:
    // Without a station there is nothing to read, whichever file is chosen.
    void catalogoVazio() {
        teste::CasoDeTelas caso;
        auto tela = teste::carrega<corvalin::FrmResultados>(caso);
        for (int arquivo = 0; arquivo < 4; ++arquivo) {
            escolhe(*tela, arquivo);
            QVERIFY2(visto(*tela).isEmpty(), qPrintable(QString::number(arquivo)));
        }
    }

    // The choice of file stays from station to station; a file that is not there says so.
    void arquivosDoPosto() {
        teste::CasoDeTelas caso;
        caso.adiciona(1, u"A"_s);
        caso.adiciona(2, u"B"_s);
        const QString pasta = caso.pasta();
        for (const char* arquivo : {"1/1.rel", "1/1.bcx", "1/1.prv", "2/2.rel", "2/2.exc", "2/2.prv"}) {
            escreve(pasta + QString::fromLatin1(arquivo), arquivo);
        }

        auto tela = teste::carrega<corvalin::FrmResultados>(caso);
        QCOMPARE(visto(*tela), u"1/1.rel"_s);
        QCOMPARE(caso.host.dialogo.Ponteiros().back(), halvo::Ponteiro::Padrao);
        escolhe(*tela, 3);
        QCOMPARE(visto(*tela), u"1/1.bcx"_s);
        escolhe(*tela, 2);
        QCOMPARE(visto(*tela), u"Arquivo inexistente."_s);
        escolhe(*tela, 1);
        QCOMPARE(visto(*tela), u"1/1.prv"_s);

        // With a folder of forecasts, only that folder counts.
        corvalin::OpcoesBD opcoesBD;
        opcoesBD.setCasoBD(caso.bd);
        corvalin::Opcoes opcoes;
        opcoes.setPastaPrevisoes(caso.host.caminho(u"previsoes"_s));
        opcoesBD.setOpcoes(opcoes);
        escreve(caso.host.caminho(u"previsoes/2.prv"_s), "previsao central B");
        auto& proximo = controle<QPushButton>(*tela, u"BotResultadosNavegacao_2"_s);
        proximo.click();
        QCOMPARE(controle<QLineEdit>(*tela, u"TxtResultadosCodigo"_s).text(), u"2"_s);
        QCOMPARE(visto(*tela), u"previsao central B"_s);
        controle<QPushButton>(*tela, u"BotResultadosNavegacao_0"_s).click();
        QCOMPARE(visto(*tela), u"Arquivo inexistente."_s);

        proximo.click();
        escolhe(*tela, 2);
        QCOMPARE(visto(*tela), u"2/2.exc"_s);
        proximo.click();
        QCOMPARE(visto(*tela), u"2/2.exc"_s);
        escolhe(*tela, 3);
        QCOMPARE(visto(*tela), u"Arquivo inexistente."_s);
        QVERIFY(caso.host.dialogo.Mensagens().empty());
    }
};

QTEST_MAIN(TesteFrmResultados)
#include "test_frmresultados.moc"
