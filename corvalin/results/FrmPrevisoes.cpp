#include "corvalin/results/FrmPrevisoes.h"

#include "corvalin/frame/Mensagens.h"
#include "corvalin/stations/Posto.h"
#include "corvalin/stations/PostoBD.h"
#include "halvo/controles/Grid.h"
#include "platform/texto/Texto.h"

namespace corvalin {

namespace {

constexpr int LinhasDaGrade = 4;
constexpr int ColunasDaGrade = 7;
constexpr int CentroNoTopo = 3;

// One decimal of the number a 32-bit value reads as (its seven digits), not of its binary
// expansion: 123.45 shows as 123,5 although the float holds 123.4499969.
QString pFormata(float valor) {
    return texto::FormatNumber(texto::Val(texto::Str(valor)), 1);
}

}  // namespace

FrmPrevisoes::FrmPrevisoes(QWidget* pai)
    : TelaPostos(QStringLiteral("FrmPrevisoes"), QStringLiteral("Previsoes"), Mensagens::msgPrevisoes,
                 Gravacao::Sem, pai),
      mGrade(new halvo::Grid(this)) {
    mGrade->setObjectName(QStringLiteral("GrdPrevisoes"));
    mGrade->setEditavel(false);
    pMontaTela(*mGrade);
    resize(640, 260);
}

void FrmPrevisoes::pAjustarGrade() {
    mGrade->setLinhas(LinhasDaGrade);
    mGrade->setColunas(ColunasDaGrade);
    for (int coluna = 1; coluna < ColunasDaGrade; ++coluna) {
        mGrade->setAlinhamentoColuna(coluna, CentroNoTopo);
    }
}

void FrmPrevisoes::pLimpar() {
    mGrade->Limpa(true);
}

void FrmPrevisoes::pPreencherGrade(const Posto& posto) {
    mGrade->Limpa(true);
    plataforma::Vetor<float> previsao;
    plataforma::Vetor<float> limiteInferior;
    plataforma::Vetor<float> limiteSuperior;
    postoBD().getVazoesPrevistas(posto.Codigo, previsao, limiteInferior, limiteSuperior);
    if (previsao.UBound() <= 0) {
        return;
    }
    mGrade->setTextoMatriz(1, 0, Mensagens::msgPrevisao);
    mGrade->setTextoMatriz(2, 0, Mensagens::msgLInf);
    mGrade->setTextoMatriz(3, 0, Mensagens::msgLSup);
    const int semanas = posto.getNumSemanas();
    int semana = postoBD().getUltimaSemana(posto) + 1;
    if (semana > semanas) {
        semana = 1;
    }
    for (int i = 1; i <= previsao.UBound(); ++i) {
        mGrade->setTextoMatriz(0, i, Mensagens::msgSem + QLatin1Char(' ') + texto::Trim(texto::Str(semana)));
        mGrade->setTextoMatriz(1, i, pFormata(previsao[i]));
        mGrade->setTextoMatriz(2, i, pFormata(limiteInferior[i]));
        mGrade->setTextoMatriz(3, i, pFormata(limiteSuperior[i]));
        semana = semana % semanas + 1;
    }
}

}  // namespace corvalin
