#pragma once

#include <QString>

#include <cstdint>

namespace corvalin {

class ListaPostos;
class Posto;
class PostoBD;
class RegistroTexto;

// The check of the stations before a run from the assistant: each checked row is read again from
// the case and its findings go to the log, by station. An error blocks the run; a warning informs.
class ValidacaoExecucao {
public:
    ValidacaoExecucao(const PostoBD& postoBD, RegistroTexto& registro);

    // Empties the log and validates every checked row, from row 0; true when no error was found.
    bool pValidar(const ListaPostos& lista);

    // The rules of one row on the station as it was read (null when it is gone), with the last
    // week of its history; adds the lines and counts them.
    void ValidaPosto(const QString& linha, const Posto* posto, std::uint8_t ultimaSemana);

    std::int16_t Erros() const { return mErros; }
    std::int16_t Avisos() const { return mAvisos; }
    // The texts of the two count labels: "0 avisos", "1 aviso", "2 erros".
    QString TextoAlertas() const;
    QString TextoProblemas() const;

private:
    void pLinha(const QString& texto, int estilo);
    // Adds the line of a rule that failed; answers whether it failed.
    bool pFalha(bool passa, const QString& texto, int estilo);
    void pRegrasDoPosto(const Posto& posto, std::uint8_t ultimaSemana, bool& temErro);

    const PostoBD& mPostoBD;
    RegistroTexto& mRegistro;
    std::int16_t mErros = 0;
    std::int16_t mAvisos = 0;
};

}  // namespace corvalin
