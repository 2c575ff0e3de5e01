#include "corvalin/results/FrmPrevisoes.h"

#include "corvalin/frame/Mensagens.h"
#include "corvalin/results/TabelaPrevisoes.h"
#include "halvo/controles/Grid.h"

namespace corvalin {

namespace {

constexpr int LinhasDaGrade = 4;
constexpr int ColunasDaGrade = 7;
constexpr int CentroNoTopo = 3;

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
    const std::vector<QStringList> tabela = TabelaPrevisoes(postoBD(), posto);
    for (std::size_t linha = 0; linha < tabela.size(); ++linha) {
        for (qsizetype coluna = 0; coluna < tabela[linha].size(); ++coluna) {
            mGrade->setTextoMatriz(static_cast<int>(linha), static_cast<int>(coluna), tabela[linha][coluna]);
        }
    }
}

}  // namespace corvalin
