#include "solver/Execucao.h"

#include "solver/Previsao.h"
#include "solver/Saidas.h"
#include "solver/Texto.h"

#include <exception>

namespace solver {

void gravaEstado(const std::filesystem::path& pasta, CodigoEstado codigo, const std::string& motivo) {
    std::vector<std::string> linhas = {std::to_string(static_cast<int>(codigo))};
    if (codigo != CodigoEstado::sucesso) {
        linhas.push_back(motivo);
    }
    gravaLinhas(pasta / "RUNSTATE.DAT", linhas);
}

namespace {

void pRemove(const std::filesystem::path& arquivo) {
    std::error_code ignorado;
    std::filesystem::remove(arquivo, ignorado);
}

// The report's companion keeps the report's name up to its first dot.
std::filesystem::path pCompanheiroBoxCox(const std::filesystem::path& pasta, const std::string& relatorio) {
    return pasta / (relatorio.substr(0, relatorio.find('.')) + ".bcx");
}

void pGravaSaidas(const std::filesystem::path& pasta, const EntradaEstacao& e, const PrevisaoEstacao& p) {
    gravaLinhas(pasta / e.dados.arquivoRelatorio, textoRelatorio(e, p));
    gravaLinhas(pCompanheiroBoxCox(pasta, e.dados.arquivoRelatorio), textoBoxCox(e, p));
    gravaLinhas(pasta / e.dados.arquivoPlanilha, textoPlanilha(e, p));
    if (const auto aviso = textoAviso(e, p); !aviso.empty()) {
        gravaLinhas(pasta / "Aviso.txt", aviso);
    }
    // The forecast goes last of the outputs: its presence means the run went through.
    gravaLinhas(pasta / e.dados.arquivoPrevisoes, textoPrevisao(e, p));
}

}  // namespace

CodigoEstado executaEstacao(const std::filesystem::path& pasta) {
    std::filesystem::path previsao;
    const auto falha = [&](CodigoEstado codigo, const std::string& motivo) {
        // No forecast of an earlier run may pass for this one's.
        if (!previsao.empty()) {
            pRemove(previsao);
        }
        try {
            gravaEstado(pasta, codigo, motivo);
        } catch (const std::exception&) {
            // Nowhere left to report to: the plug-in reads a missing verdict as a failure.
        }
        return codigo;
    };
    try {
        // A run that dies half-way must not leave the verdict of the run before it.
        gravaEstado(pasta, CodigoEstado::erroInterno, "A execução do modelo não terminou.");
        pRemove(pasta / "Aviso.txt");
        DadosGerais dados = leCaso(pasta);
        previsao = pasta / dados.arquivoPrevisoes;
        pRemove(previsao);
        const EntradaEstacao entrada = leEntrada(pasta, std::move(dados));
        const PrevisaoEstacao resultado = calculaPrevisao(entrada);
        pGravaSaidas(pasta, entrada, resultado);
        gravaEstado(pasta, CodigoEstado::sucesso, {});
        return CodigoEstado::sucesso;
    } catch (const FalhaExecucao& f) {
        return falha(f.getCodigo(), f.what());
    } catch (const std::exception& x) {
        return falha(CodigoEstado::erroInterno, std::string("Erro interno do modelo: ") + x.what());
    }
}

}  // namespace solver
