#include "corvalin/casedb/casoBD.h"
#include "platform/recordstore/Recordstore.h"
#include "tests/doubles/HostTeste.h"
#include "tests/e2e/Instalacao.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QThread>

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <random>

namespace teste {
namespace {

constexpr int Postos = 50;
constexpr int Interrupcoes = 100;
constexpr int PrimeiroCodigo = 1000;
// The history of every station: 24 full years and 30 weeks of the last.
constexpr int LinhasDeHistorico = 24 * 52 + 30;

// Fifty stations from the files of one in the tests' data, each with its own code and name.
QStringList pGeraArquivos(const QString& pasta) {
    const QStringList dadosGerais = LinhasDe(DadoDeTeste("execucao/101.arq"));
    const QStringList vazoes = LinhasDe(DadoDeTeste("execucao/101.dat"));
    QStringList arquivos;
    for (int codigo = PrimeiroCodigo; codigo < PrimeiroCodigo + Postos; ++codigo) {
        const QString base = QString::number(codigo);
        QStringList dg = dadosGerais;
        dg[0] = base + ".rel";
        dg[2] = base + ".dat";
        dg[5] = base + ".prv";
        dg[6] = base + ".exc";
        dg[13] = base;
        QStringList vz = vazoes;
        vz[0] = base.rightJustified(8) + u' ' + QString("Posto %1").arg(codigo).leftJustified(60);
        Grava(pasta + u'/' + base + ".dat", vz);
        arquivos << pasta + u'/' + base + ".arq";
        Grava(arquivos.last(), dg);
    }
    return arquivos;
}

// Opens the case as the plug-in does and checks that every station in it is whole: catalogue,
// both general data rows and the whole history, or nothing at all. Answers how many are whole.
int pPostosInteiros(const QString& caso) {
    auto bd = std::make_shared<corvalin::casoBD>();
    EXPECT_TRUE(bd->Abrir(CasoTeste(caso), true, true)) << caso.toStdString();
    const char* tabelas[] = {"Postos", "DadosGerais", "DadosGeraisComplemento", "VazoesSemanais"};
    std::map<int, std::array<int, 4>> linhas;  // of each station in each table
    for (std::size_t t = 0; t < std::size(tabelas); ++t) {
        const auto rs = bd->BancoDeDados().OpenRecordset(QString::fromLatin1(tabelas[t]));
        for (; !rs->Eof(); rs->MoveNext()) {
            ++linhas[static_cast<int>(rs->campo("CodigoDoPosto").paraInteiro())][t];
        }
    }
    for (const auto& [codigo, n] : linhas) {
        EXPECT_EQ(n, (std::array<int, 4>{1, 1, 1, LinhasDeHistorico}))
            << "station " << codigo << " is not whole";
    }
    bd->Fechar();
    return static_cast<int>(linhas.size());
}

class Interrupcao : public ::testing::Test {
protected:
    void SetUp() override {
        QDir().mkpath(host.caminho("arquivos"));
        arquivos = pGeraArquivos(host.caminho("arquivos"));
        // An empty case, copied for every import.
        modelo = host.caminho("modelo");
        ASSERT_EQ(Executa(Instalacao::teste().halvo(), {"criar", modelo}).codigo, 0);
    }

    QString novoCaso(int n) const {
        const QString caso = host.caminho(QString("caso%1").arg(n));
        QDir().mkpath(caso);
        QFile::copy(modelo + "/Corvalin.mdb", caso + "/Corvalin.mdb");
        return caso;
    }

    void inicia(QProcess& processo, const QString& caso) const {
        processo.start(Instalacao::teste().halvo(), QStringList{"importar", caso} + arquivos);
        ASSERT_TRUE(processo.waitForStarted());
    }

    HostTeste host;
    QStringList arquivos;
    QString modelo;
};

TEST_F(Interrupcao, AKilledImportLeavesEveryStationWholeOrAbsent) {
    // A whole import, to know how long one takes.
    QElapsedTimer relogio;
    relogio.start();
    ASSERT_EQ(Executa(Instalacao::teste().halvo(), QStringList{"importar", novoCaso(0)} + arquivos).codigo,
              0);
    const qint64 duracao = relogio.elapsed();

    std::mt19937 sorteio(20261122);
    std::uniform_int_distribution<qint64> momento(0, duracao);
    int parciais = 0;
    for (int n = 1; n <= Interrupcoes; ++n) {
        const QString caso = novoCaso(n);
        QProcess processo;
        inicia(processo, caso);
        QThread::msleep(static_cast<unsigned long>(momento(sorteio)));
        processo.kill();  // SIGKILL
        processo.waitForFinished();
        const int postos = pPostosInteiros(caso);
        parciais += postos != 0 && postos != Postos;
        QDir(caso).removeRecursively();
    }
    EXPECT_GE(parciais, Interrupcoes / 10) << "the kills should fall inside the import";
}

TEST_F(Interrupcao, AReaderWaitsForTheImportRatherThanFailing) {
    const QString caso = novoCaso(1);
    QProcess importacao;
    inicia(importacao, caso);
    // Until the import is under way.
    QByteArray lido;
    while (!lido.contains("Arquivo 5 de") && importacao.waitForReadyRead(30000)) {
        lido += importacao.readAllStandardOutput();
    }
    const Saida leitura = Executa(Instalacao::teste().halvo(), {"previsoes", caso});
    EXPECT_EQ(leitura.codigo, 0) << leitura.erro.toStdString();
    EXPECT_TRUE(leitura.saida.startsWith("Posto 1000 - Posto 1000")) << leitura.saida.toStdString();
    ASSERT_TRUE(importacao.waitForFinished(120000));
    EXPECT_EQ(importacao.exitCode(), 0);
    EXPECT_EQ(pPostosInteiros(caso), Postos);
}

}  // namespace
}  // namespace teste
