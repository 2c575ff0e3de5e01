#pragma once

#include "corvalin/casedb/casoBD.h"
#include "corvalin/execution/AssistenteExecucao.h"
#include "corvalin/execution/ListaPostos.h"
#include "corvalin/execution/RegistroTexto.h"
#include "corvalin/stations/Posto.h"
#include "corvalin/stations/PostoBD.h"
#include "halvo/sdk/NotificadorRegistro.h"
#include "tests/corvalin/execution/ArquivosTeste.h"
#include "tests/doubles/HostTeste.h"

#include <QDir>
#include <QStringList>

#include <gtest/gtest.h>

#include <memory>

namespace teste {

// A station ready to run: general data whose files are named after its code ("C10.arq"...), and
// a history from 1981 of the given number of full years.
corvalin::Posto PostoPronto(std::int32_t codigo, const QString& nome, int anos = 20);

// An open case with its stores, the run's list and log, and a plug-in folder where the test
// solver stands as the solver.
class CasoExecucao : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    // Stores a station: catalogue, general data and history.
    void grava(const corvalin::Posto& posto);
    // The run logic on this case, made at first use (the screen's opening does not load the list).
    corvalin::AssistenteExecucao& assistente();

    // The case folder ends in the separator; a station's folder does not.
    QString pastaCaso() const { return caso->Item(QStringLiteral("Diretorio")); }
    QString pastaPosto(std::int32_t codigo) const { return pastaCaso() + QString::number(codigo); }
    QString arquivoPosto(std::int32_t codigo, const QString& nome) const {
        return pastaPosto(codigo) + QDir::separator() + nome;
    }
    QStringList arquivosDe(std::int32_t codigo) const {
        return QDir(pastaPosto(codigo)).entryList(QDir::Files, QDir::Name);
    }
    // What the test solver does for a station, and what it noted of its runs.
    void instrucoes(std::int32_t codigo, const QStringList& linhas) const {
        Grava(pastaCaso() + QStringLiteral("Instrucoes_%1.txt").arg(codigo), linhas);
    }
    QStringList execucoes() const { return LinhasDe(pastaCaso() + QStringLiteral("Execucoes.txt")); }
    QStringList textosDoRegistro() const;

    HostTeste host;
    std::shared_ptr<corvalin::casoBD> bd = std::make_shared<corvalin::casoBD>();
    std::shared_ptr<CasoTeste> caso;
    std::shared_ptr<halvo::NotificadorRegistro> notificador = std::make_shared<halvo::NotificadorRegistro>();
    corvalin::PostoBD postoBD;
    corvalin::ListaPostosMemoria lista;
    corvalin::RegistroMemoria registro;
    QString pastaPlugin;

private:
    std::unique_ptr<corvalin::AssistenteExecucao> mAssistente;
};

}  // namespace teste
