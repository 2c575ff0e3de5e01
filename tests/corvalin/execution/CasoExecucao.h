#pragma once

#include "corvalin/casedb/casoBD.h"
#include "corvalin/execution/AssistenteExecucao.h"
#include "corvalin/execution/ListaPostos.h"
#include "corvalin/execution/RegistroTexto.h"
#include "corvalin/options/OpcoesBD.h"
#include "corvalin/stations/Posto.h"
#include "corvalin/stations/PostoBD.h"
#include "halvo/sdk/NotificadorRegistro.h"
#include "tests/corvalin/execution/ArquivosTeste.h"
#include "tests/doubles/HostTeste.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <functional>
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
    void mudaOpcoes(const std::function<void(corvalin::Opcoes&)>& muda);
    // The run logic on this case, made at first use (the screen's opening does not load the list).
    corvalin::AssistenteExecucao& assistente();

    // The case folder, ending in the separator, and a station's folder in it, without.
    QString pastaCaso() const;
    QString pastaPosto(std::int32_t codigo) const;
    QString arquivoPosto(std::int32_t codigo, const QString& nome) const;
    // The files of a station's folder, in name order.
    QStringList arquivosDe(std::int32_t codigo) const;
    // What the test solver does for a station, and what it noted of its runs.
    void instrucoes(std::int32_t codigo, const QStringList& linhas) const;
    QStringList execucoes() const;
    // Rows of a station in a table.
    int conta(const QString& tabela, std::int32_t codigo) const;
    // The texts of the log, in order.
    QStringList textosDoRegistro() const;

    HostTeste host;
    std::shared_ptr<corvalin::casoBD> bd = std::make_shared<corvalin::casoBD>();
    std::shared_ptr<CasoTeste> caso;
    std::shared_ptr<halvo::NotificadorRegistro> notificador = std::make_shared<halvo::NotificadorRegistro>();
    corvalin::PostoBD postoBD;
    corvalin::OpcoesBD opcoesBD;
    corvalin::ListaPostosMemoria lista;
    corvalin::RegistroMemoria registro;
    QString pastaPlugin;

private:
    std::unique_ptr<corvalin::AssistenteExecucao> mAssistente;
};

}  // namespace teste
