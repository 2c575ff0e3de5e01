#include "corvalin/execution/ListaPostos.h"

#include "corvalin/stations/Posto.h"
#include "platform/runtime/ErroVB.h"
#include "platform/texto/Texto.h"

namespace corvalin {

const ListaPostosMemoria::Linha& ListaPostosMemoria::pLinha(int linha) const {
    if (linha < 0 || linha >= Quantidade()) {
        throw plataforma::ErroVB::padrao(plataforma::ErroChamadaInvalida);
    }
    return mLinhas[static_cast<std::size_t>(linha)];
}

QString ListaPostosMemoria::Texto(int linha) const { return pLinha(linha).texto; }

bool ListaPostosMemoria::Marcada(int linha) const { return pLinha(linha).marcada; }

void ListaPostosMemoria::setMarcada(int linha, bool marcada) {
    pLinha(linha);
    mLinhas[static_cast<std::size_t>(linha)].marcada = marcada;
}

QString TextoDaLinha(const Posto& posto) {
    return texto::Trim(texto::Str(posto.Codigo)) + QStringLiteral(" - ") + posto.Nome;
}

std::int32_t CodigoDaLinha(const QString& linha) {
    const qsizetype hifen = texto::InStr(linha, QStringLiteral("-"));
    return texto::CLng(texto::Val(texto::Left(linha, hifen - 2)));
}

}  // namespace corvalin
