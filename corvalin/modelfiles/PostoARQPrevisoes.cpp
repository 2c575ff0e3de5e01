#include "corvalin/modelfiles/PostoARQ.h"
#include "corvalin/stations/Posto.h"
#include "corvalin/stations/PostoBD.h"
#include "halvo/sdk/UtilitariosArquivo.h"
#include "platform/recordstore/Recordstore.h"
#include "platform/runtime/ErroVB.h"
#include "platform/runtime/Vetor.h"
#include "platform/texto/ArquivoTexto.h"
#include "platform/texto/Texto.h"

#include <array>
#include <utility>

namespace corvalin {

namespace {

using namespace texto;

constexpr int SemanasPrevistas = 6;
constexpr int ColunaValores = 25;  // behind the label of each line

// The six values of one line of the forecast file.
void pLeSemanas(const QString& linha, plataforma::Vetor<float>& valores) {
    const QString resto = Mid(linha, ColunaValores);
    qsizetype posicao = 0;
    for (int semana = 1; semana <= SemanasPrevistas; ++semana) {
        // The field is as wide as eight columns and the week's number.
        const qsizetype largura = 8 + Trim(Str(semana)).size();
        valores[semana] = CSng(Val(Trim(Mid(resto, posicao + 1, largura))));
        posicao += largura;
    }
}

}  // namespace

bool PostoARQ::importaPRV(const QString& arquivo, const Posto& posto, PostoBD& postoBD) const {
    if (!halvo::UtilitariosArquivo().ArquivoExiste(arquivo)) {
        return false;
    }
    plataforma::Vetor<float> previsao(SemanasPrevistas);
    plataforma::Vetor<float> limiteInferior(SemanasPrevistas);
    plataforma::Vetor<float> limiteSuperior(SemanasPrevistas);
    try {
        // Only the last three lines count, with empty ones in front of a shorter file.
        ArquivoEntrada entrada(arquivo);
        std::array<QString, 3> linhas;
        while (!entrada.Eof()) {
            linhas[0] = std::move(linhas[1]);
            linhas[1] = std::move(linhas[2]);
            linhas[2] = entrada.LineInput();
        }
        pLeSemanas(linhas[0], previsao);
        pLeSemanas(linhas[1], limiteInferior);
        pLeSemanas(linhas[2], limiteSuperior);
        recordstore::Transacao transacao(postoBD.BancoDeDados());
        postoBD.setVazoesPrevistas(posto.Codigo, previsao, limiteInferior, limiteSuperior);
        transacao.Commit();
    } catch (const plataforma::ErroVB&) {
        return false;
    }
    return true;
}

}  // namespace corvalin
