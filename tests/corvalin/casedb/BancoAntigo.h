#pragma once

#include <QProcess>
#include <QString>

// Runs SQL with the sqlite3 command line, as a file of an older version was made by hand.
inline bool executaSqlite3(const QString& arquivo, const QString& sql) {
    QProcess sqlite;
    sqlite.start(QStringLiteral("sqlite3"), {arquivo});
    if (!sqlite.waitForStarted()) {
        return false;
    }
    sqlite.write(sql.toUtf8());
    sqlite.closeWriteChannel();
    return sqlite.waitForFinished() && sqlite.exitCode() == 0;
}

// The five core tables of the first version, with a station in them.
inline QString sqlCincoTabelas() {
    return QStringLiteral(R"(
CREATE TABLE CasoCORVALIN (Titulo TEXT(100), Autor TEXT(50), Comentarios TEXT(200), Data DATETIME, Hora DATETIME,
                           Versao TEXT(10));
CREATE TABLE Opcoes (ArquivoRelatorio TEXT(50), ArquivoVazoesSemanais TEXT(50), ArquivoPrevisoes TEXT(50),
                     ArquivoExcel TEXT(50), ArquivoDadosGerais TEXT(50), PastaPrevisoes TEXT(255),
                     ApagarArquivoRelatorio BOOLEAN, ApagarArquivoVazoesSemanais BOOLEAN, ApagarArquivoExcel BOOLEAN,
                     ApagarArquivoDadosGerais BOOLEAN, Filtro1 TEXT(20), FiltroDescricao1 TEXT(50), Filtro2 TEXT(20),
                     FiltroDescricao2 TEXT(50), Filtro3 TEXT(20), FiltroDescricao3 TEXT(50));
CREATE TABLE Postos (CodigoDoPosto LONG, NomeDoAproveitamento TEXT(60), AreaDeDrenagem SINGLE DEFAULT 0,
                     AnoInicial INTEGER DEFAULT 0, AnoFinal INTEGER DEFAULT 0);
CREATE UNIQUE INDEX "Postos.CodigoDoPosto" ON Postos (CodigoDoPosto);
CREATE INDEX "Postos.NomeDoAproveitamento" ON Postos (NomeDoAproveitamento);
CREATE TABLE DadosGerais (CodigoDoPosto LONG, ArquivoRelatorio TEXT(50), ArquivoVazoesSemanais TEXT(50),
                          ArquivoPrevisoes TEXT(50), ArquivoExcel TEXT(50), ArquivoDadosGerais TEXT(50),
                          ImpressaoParametros BOOLEAN, Transformacao BYTE, MesInicial BYTE,
                          ApagarArquivoRelatorio BOOLEAN, ApagarArquivoVazoesSemanais BOOLEAN,
                          ApagarArquivoExcel BOOLEAN, ApagarArquivoDadosGerais BOOLEAN);
CREATE UNIQUE INDEX "DadosGerais.CodigoDoPosto" ON DadosGerais (CodigoDoPosto);
CREATE TABLE VazoesSemanais (CodigoDoPosto LONG, Ano INTEGER, Semana BYTE, Vazao SINGLE);
CREATE UNIQUE INDEX "VazoesSemanais.CodigoDoPostoAnoSemana" ON VazoesSemanais (CodigoDoPosto, Ano, Semana);
CREATE INDEX "VazoesSemanais.CodigoDoPosto" ON VazoesSemanais (CodigoDoPosto);
INSERT INTO Postos VALUES (1234, 'FURNAS', 15.5, 1990, 2010);
INSERT INTO DadosGerais VALUES (1234, '1234.rel', '1234.dat', '1234.prv', '1234.exc', '1234.arq', 1, 5, 1, 0, 0, 0, 0);
INSERT INTO VazoesSemanais VALUES (1234, 1990, 1, 100.5);
)");
}
