#include "corvalin/frame/Geral.h"
#include "corvalin/frame/Mensagens.h"
#include "corvalin/modelfiles/PostoARQ.h"
#include "corvalin/modelfiles/PostoARQComum.h"
#include "corvalin/stations/Posto.h"
#include "corvalin/stations/PostoBD.h"
#include "halvo/sdk/UtilitariosArquivo.h"
#include "platform/runtime/ErroVB.h"
#include "platform/texto/ArquivoTexto.h"
#include "platform/texto/Texto.h"

#include <array>

namespace corvalin {

namespace {

using namespace texto;
using postoarq::pPreencher;

constexpr int LinhasCabecalho = 3;
// The reader's fields stand two columns to the left of the written ones (21, 31, 41, 51): a
// left-aligned value of up to 8 characters still reads whole.
constexpr std::array<int, 4> ColunasLidas = {19, 29, 39, 49};
constexpr int LarguraLida = 10;

// A strict decimal number with either separator, whatever the locale; an empty field or any other
// text is a type mismatch.
double pNumeroEstrito(const QString& campo) {
    const QString valor = Trim(campo);
    if (valor.isEmpty()) {
        throw plataforma::ErroVB::padrao(plataforma::ErroTiposIncompativeis);
    }
    return LeNumero(valor);
}

}  // namespace

bool PostoARQ::importaVazpast(QString& arquivo, Posto& posto, PostoBD& postoBD, QString& erros,
                              bool soValida) const {
    // The folder is what stands before the first occurrence of the given file's name, in any case.
    const halvo::UtilitariosArquivo utilitarios;
    const qsizetype nome = InStr(arquivo, utilitarios.NomeDoArquivo(arquivo), true);
    arquivo = Left(arquivo, nome - 1) + posto.NomeArqVazpast;
    if (!utilitarios.ArquivoExiste(arquivo)) {
        postoarq::pAdicionaErro(erros, Mensagens::msgVazpasts);
        return false;
    }
    try {
        ArquivoEntrada entrada(arquivo);
        for (int i = 0; i < LinhasCabecalho; ++i) {
            entrada.LineInput();
        }
        // The first line of the station wins; a station not in the file keeps its values.
        while (!entrada.Eof()) {
            const QString linha = entrada.LineInput();
            if (Val(Trim(Left(linha, 5))) == posto.Codigo) {
                double* const valores[] = {&posto.VazpastSemana_1, &posto.VazpastSemana_2,
                                           &posto.VazpastSemana_3, &posto.VazpastSemana_4};
                for (std::size_t i = 0; i < ColunasLidas.size(); ++i) {
                    *valores[i] = pNumeroEstrito(Mid(linha, ColunasLidas[i], LarguraLida));
                }
                break;
            }
        }
        if (!soValida) {
            postoarq::pGravaDadosGerais(posto, postoBD);
        }
    } catch (const plataforma::ErroVB&) {
        postoarq::pAdicionaErro(erros, Mensagens::msgVazpasts);
        return false;
    }
    return true;
}

bool PostoARQ::geraVazpast(const QString& pasta, const Posto& posto) const {
    const auto saida =
        AbreArquivoGravacao(postoarq::pCaminhoDoPosto(pasta, posto.Codigo, posto.NomeArqVazpast));
    if (!saida) {
        return false;
    }
    for (int i = 0; i < LinhasCabecalho; ++i) {
        saida->Print({});
    }
    QString linha = pPreencher(pPreencher(Trim(Str(posto.Codigo)), 4, true), 19, false);
    for (const double valor :
         {posto.VazpastSemana_1, posto.VazpastSemana_2, posto.VazpastSemana_3, posto.VazpastSemana_4}) {
        QString numero = TextoRegional(valor);
        linha += pPreencher(preparaFoat_10_2(numero, true), 9, false);
    }
    saida->Print(linha);
    saida->Close();
    return true;
}

}  // namespace corvalin
