#pragma once

#include "corvalin/frame/Progresso.h"
#include "corvalin/modelfiles/PostoARQ.h"
#include "corvalin/options/OpcoesBD.h"
#include "corvalin/stations/Historico.h"
#include "corvalin/stations/Posto.h"
#include "corvalin/stations/PostoBD.h"
#include "tests/corvalin/options/CasoAberto.h"

#include <QByteArray>
#include <QStringList>

namespace teste {

// The two stations of the golden files: São Simão (52 weeks, 1995 to week 30 of 1997) and Três
// Marias (53 weeks, 2001 to week 20 of 2003).
corvalin::Posto SaoSimao();
corvalin::Historico HistoricoSaoSimao();
corvalin::Posto TresMarias();
corvalin::Historico HistoricoTresMarias();

// Same shape and the same values in every position.
::testing::AssertionResult MesmoHistorico(const corvalin::Historico& esperado,
                                          const corvalin::Historico& lido);

// A new case with its stores, and a folder for the files of the test.
class CasoModelo : public ::testing::Test {
public:
    // Lines as a model file holds them: Windows-1252, each ended by CR LF.
    static QByteArray linhas(const QStringList& texto);

protected:
    CasoModelo();
    // The path of a golden file under tests/data/modelfiles, and the bytes of any file.
    static QString dourado(const QString& relativo);
    static QByteArray conteudo(const QString& caminho);
    // Writes a file in the test's folder and answers its path.
    QString arquivo(const QString& nome, const QByteArray& bytes) const;
    // The writers' run folder, ending in the separator, and a station's file in it.
    QString pastaExecucao() const;
    QString gerado(std::int32_t codigo, const QString& nome) const;

    // Stores a station and its history as the station screen would.
    void grava(corvalin::Posto posto, const corvalin::Historico& vazoes);
    // The station of that code as the stores read it; false when there is none.
    bool le(std::int32_t codigo, corvalin::Posto& posto) const;
    corvalin::Historico historico(const corvalin::Posto& posto) const;

    CasoAberto caso;
    HostTeste& host = caso.host;
    corvalin::PostoBD postoBD;
    corvalin::OpcoesBD opcoesBD;
    const corvalin::PostoARQ arq{};
    corvalin::ProgressoNulo progresso;
    QString erros;
};

}  // namespace teste
