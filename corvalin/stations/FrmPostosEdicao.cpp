// The editing rules of the station screen: the years, the checks and the save.

#include "corvalin/frame/Mensagens.h"
#include "corvalin/stations/FrmPostos.h"
#include "corvalin/stations/PostoBD.h"
#include "halvo/controles/Combo.h"
#include "halvo/controles/Grid.h"
#include "halvo/controles/Spin.h"
#include "halvo/sdk/ServicoDialogo.h"
#include "halvo/sdk/Servicos.h"
#include "platform/texto/Texto.h"

#include <QLineEdit>

namespace corvalin {

// The question comes once for each record shown; a span cut below the shortest history is refused
// without a word, even when the user has just agreed.
bool FrmPostos::pValidarAno(int indice, bool paraCima) {
    const QString inicial = mSpnAno[0]->Texto();
    const QString final = mSpnAno[1]->Texto();
    if (!texto::IsNumeric(inicial) || !texto::IsNumeric(final)) {
        return true;
    }
    const bool exclui = (indice == 0) == paraCima;
    if (!mAnoConfirmado) {
        const QString palavra = exclui ? Mensagens::msgExcluir : Mensagens::msgIncluir;
        if (halvo::Servicos::dialogo().Mensagem(Mensagens::msgDeseja + palavra + Mensagens::msgUmAnoHistorico,
                                                Mensagens::msgTituloConfirmacao, halvo::Icone::Pergunta,
                                                halvo::Botoes::SimNao) != halvo::Resposta::Sim) {
            return false;
        }
        mAnoConfirmado = true;
    }
    // Either spinner leaves the years from the first to the last, one fewer than now.
    return !exclui || texto::Val(final) - texto::Val(inicial) >= MinimoDeAnos;
}

// One step of a spinner adds or drops one row at that end of the grid.
void FrmPostos::pAjustarGrade(int indice) {
    const QString inicial = mSpnAno[0]->Texto();
    const QString final = mSpnAno[1]->Texto();
    if (!texto::IsNumeric(inicial) || !texto::IsNumeric(final)) {
        return;
    }
    if (indice == 0) {
        const double ano = texto::Val(inicial);
        if (texto::Val(mGrade->TextoMatriz(1, 0)) > ano) {
            mGrade->InsereLinha(1);
            mGrade->setTextoMatriz(1, 0, texto::Trim(texto::Str(ano)));
            mGrade->setLinha(1);
            mGrade->setColuna(1);
        } else {
            mGrade->RemoveLinha(1);
        }
    } else {
        const double ano = texto::Val(final);
        const int ultima = mGrade->Linhas() - 1;
        if (texto::Val(mGrade->TextoMatriz(ultima, 0)) < ano) {
            mGrade->InsereLinha(ultima + 1);
            mGrade->setTextoMatriz(ultima + 1, 0, texto::Trim(texto::Str(ano)));
            mGrade->setLinha(ultima + 1);
            mGrade->setColuna(1);
        } else {
            mGrade->RemoveLinha(ultima);
        }
    }
    pMarcarAlteracao(true);
    pMarcarAlteracao(false);
}

// Numbers are read with Val, which knows only ".": the regional text the screen shows loses its
// fraction where the separator is a comma.
bool FrmPostos::pGravar() {
    bool gravou = false;
    pArmadilha(QStringLiteral("pGravar"), [&] {
        if ((mPostoAlterado && !pValidarPosto()) || (mHistoricoAlterado && !pValidarVazoes())) {
            return;
        }
        setCodigoHabilitado(false);
        const std::int32_t codigo = texto::CLng(texto::Val(TxtCodigo().text()));
        // The station shown carries its general data along.
        Posto posto = codigo == mPosto.Codigo ? mPosto : Posto{};
        posto.Codigo = codigo;
        posto.Nome = CBD().Texto();
        posto.Area = texto::CSng(texto::Val(mTxtArea->text()));
        posto.AnoInicial = texto::CInt(texto::Val(mSpnAno[0]->Texto()));
        posto.AnoFinal = texto::CInt(texto::Val(mSpnAno[1]->Texto()));
        if (mPostoAlterado) {
            if (!postoBD().setPosto(posto)) {
                pInforma(Mensagens::msgPostoJaExiste);
                return;
            }
            mPostoAlterado = false;
        }
        if (mHistoricoAlterado) {
            Historico vazoes(mGrade->Linhas() - 1, mGrade->Colunas() - 1);
            for (int linha = 1; linha < mGrade->Linhas(); ++linha) {
                for (int coluna = 1; coluna < mGrade->Colunas(); ++coluna) {
                    vazoes(linha, coluna) = texto::CSng(texto::Val(mGrade->TextoMatriz(linha, coluna)));
                }
            }
            postoBD().setHistorico(posto, vazoes);
            mHistoricoAlterado = false;
        }
        gravou = true;
    });
    return gravou;
}

bool FrmPostos::pValidarPosto() {
    const auto recusa = [](QWidget& campo, const QString& texto) {
        pInforma(texto);
        campo.setFocus();
        return false;
    };
    const QString codigo = TxtCodigo().text();
    if (!texto::IsNumeric(codigo) || texto::Trim(codigo).isEmpty()) {
        return recusa(TxtCodigo(), QStringLiteral("Código do Posto Inválido. Verifique."));
    }
    if (texto::Trim(CBD().Texto()).isEmpty()) {
        return recusa(CBD(), QStringLiteral("Nome do Aproveitamento em Branco. Verifique."));
    }
    if (!texto::IsNumeric(mTxtArea->text())) {
        return recusa(*mTxtArea, QStringLiteral("Área de Drenagem Inválida. Verifique."));
    }
    return true;
}

// Only blanks are refused: every year but the last is whole, and the last starts at week 1 and
// may stop early, without holes.
bool FrmPostos::pValidarVazoes() {
    const int ultima = mGrade->Linhas() - 1;
    bool brancoNaUltima = false;
    for (int linha = 1; linha <= ultima; ++linha) {
        for (int coluna = 1; coluna < mGrade->Colunas(); ++coluna) {
            const bool branco = texto::Trim(mGrade->TextoMatriz(linha, coluna)).isEmpty();
            if (branco ? linha < ultima || coluna == 1 : brancoNaUltima) {
                pInforma(QStringLiteral("Valor Inválido para Vazão na linha ") + QString::number(linha) +
                         QStringLiteral(" coluna ") + QString::number(coluna) +
                         QStringLiteral(". Verifique."));
                mGrade->setLinha(linha);
                mGrade->setColuna(coluna);
                mGrade->setFocus();
                return false;
            }
            brancoNaUltima = brancoNaUltima || (branco && linha == ultima);
        }
    }
    return true;
}

}  // namespace corvalin
