#include "corvalin/options/Opcoes.h"

#include "platform/runtime/ErroVB.h"

#include <QDir>

namespace corvalin {

namespace {

std::size_t pPosicao(std::int16_t indice) {
    if (indice < 1 || indice > 3) {
        throw plataforma::ErroVB::padrao(plataforma::ErroSubscrito);
    }
    return static_cast<std::size_t>(indice - 1);
}

}  // namespace

void Opcoes::setPastaPrevisoes(const QString& pasta) {
    mPastaPrevisoes = pasta.isEmpty() || pasta.endsWith(QDir::separator()) ? pasta : pasta + QDir::separator();
}

const QString& Opcoes::Filtro(std::int16_t indice) const { return mFiltro[pPosicao(indice)]; }

void Opcoes::setFiltro(std::int16_t indice, const QString& filtro) { mFiltro[pPosicao(indice)] = filtro; }

const QString& Opcoes::FiltroDescricao(std::int16_t indice) const { return mFiltroDescricao[pPosicao(indice)]; }

void Opcoes::setFiltroDescricao(std::int16_t indice, const QString& descricao) {
    mFiltroDescricao[pPosicao(indice)] = descricao;
}

}  // namespace corvalin
