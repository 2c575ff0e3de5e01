#include "corvalin/results/TabelaPrevisoes.h"

#include "corvalin/frame/Mensagens.h"
#include "corvalin/stations/Posto.h"
#include "corvalin/stations/PostoBD.h"
#include "platform/runtime/Vetor.h"
#include "platform/texto/Texto.h"

namespace corvalin {

namespace {

// One decimal of the number that a 32-bit value reads as, not of its binary expansion: 123.45
// shows as 123,5 (under a decimal comma) although the float holds 123.4499969.
QString pFormata(float valor) { return texto::FormatNumber(texto::Val(texto::Str(valor)), 1); }

}  // namespace

std::vector<QStringList> TabelaPrevisoes(const PostoBD& postoBD, const Posto& posto) {
    plataforma::Vetor<float> series[3];
    postoBD.getVazoesPrevistas(posto.Codigo, series[0], series[1], series[2]);
    if (series[0].UBound() <= 0) {
        return {};
    }
    std::vector<QStringList> tabela = {
        {QString()}, {Mensagens::msgPrevisao}, {Mensagens::msgLInf}, {Mensagens::msgLSup}};
    const int semanas = posto.getNumSemanas();
    int semana = postoBD.getUltimaSemana(posto) + 1;
    if (semana > semanas) {
        semana = 1;
    }
    for (int i = 1; i <= series[0].UBound(); ++i) {
        tabela[0] << Mensagens::msgSem + u' ' + texto::Trim(texto::Str(semana));
        for (int serie = 0; serie < 3; ++serie) {
            tabela[static_cast<std::size_t>(serie) + 1] << pFormata(series[serie][i]);
        }
        semana = semana % semanas + 1;
    }
    return tabela;
}

}  // namespace corvalin
