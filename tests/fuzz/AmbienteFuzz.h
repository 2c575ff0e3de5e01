#pragma once

#include "corvalin/options/OpcoesBD.h"
#include "corvalin/stations/Posto.h"
#include "corvalin/stations/PostoBD.h"
#include "tests/doubles/HostTeste.h"

#include <QString>
#include <QStringList>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

namespace fuzz {

// The case that all runs of a reader share, made once per process: São Simão (code 33) with a
// year of history, general data, a forecast and monthly limits, so that a failed import has rows
// to leave alone.
class Ambiente {
public:
    static Ambiente& instancia();

    // The station of the case, as a reader is given it.
    static corvalin::Posto SaoSimao();

    // Writes the input bytes as the named file in a folder of their own; its path.
    QString arquivo(const QString& nome, const std::uint8_t* dados, std::size_t tamanho) const;

    // Runs one import in a transaction that is always rolled back, so that every run starts from
    // the same case. A failed import must leave the station tables exactly as they were; the
    // answer is the import's.
    bool executa(const std::function<bool()>& importa);

    // Stops the run as a finding when the condition does not hold.
    static void exige(bool condicao, const char* oque);

    teste::HostTeste host;
    corvalin::PostoBD postoBD;
    corvalin::OpcoesBD opcoesBD;

private:
    Ambiente();
    QString pRetrato() const;

    std::vector<std::pair<QString, QStringList>> mTabelas;  // the station tables and their fields
    QString mRetrato;
};

}  // namespace fuzz
