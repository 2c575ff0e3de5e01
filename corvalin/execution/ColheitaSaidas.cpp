#include "corvalin/execution/ColheitaSaidas.h"

#include "corvalin/frame/Mensagens.h"
#include "corvalin/modelfiles/PostoARQ.h"
#include "corvalin/options/Opcoes.h"
#include "corvalin/stations/Posto.h"
#include "halvo/sdk/Caso.h"
#include "halvo/sdk/UtilitariosArquivo.h"
#include "platform/texto/Texto.h"

#include <QDir>

#include <utility>

namespace corvalin {

namespace {

// The report's companion: its name up to the first dot, which stays, and the companion's
// extension; a name without a dot gives the extension alone.
QString pCompanheiro(const QString& nome) {
    return texto::Left(nome, texto::InStr(nome, QStringLiteral("."))) + Constantes::cteExtensaoRelatorio;
}

}  // namespace

QString PastaDoPosto(const halvo::caso& caso, std::int32_t codigo) {
    return caso.Item(QStringLiteral("Diretorio")) + texto::Trim(texto::Str(codigo)) + QDir::separator();
}

ColheitaSaidas::ColheitaSaidas(const halvo::caso& caso, PostoBD& postoBD) : mCaso(caso), mPostoBD(postoBD) {}

void ColheitaSaidas::TrazPrevisoes(const Posto& posto, const Opcoes& opcoes) const {
    const halvo::UtilitariosArquivo arquivos;
    const QString nome = posto.Arquivos.ArquivoPrevisoes;
    const QString local = PastaDoPosto(mCaso, posto.Codigo) + nome;
    // The shared folder, when set, ends in the separator.
    const QString compartilhado = opcoes.PastaPrevisoes() + nome;
    const bool temLocal = arquivos.ArquivoExiste(local);
    const bool temCompartilhado = arquivos.ArquivoExiste(compartilhado);
    if (!temLocal && !opcoes.PastaPrevisoes().isEmpty() && temCompartilhado) {
        arquivos.CopiaArquivo(compartilhado, local, false);
    }
}

void ColheitaSaidas::Colhe(const Posto& posto, const Opcoes& opcoes) const {
    const halvo::UtilitariosArquivo arquivos;
    const OpcoesArquivos& nomes = posto.Arquivos;
    const QString pasta = PastaDoPosto(mCaso, posto.Codigo);

    PostoARQ().importaPRV(pasta + nomes.ArquivoPrevisoes, posto, mPostoBD);
    if (!opcoes.PastaPrevisoes().isEmpty()) {
        arquivos.CopiaArquivo(pasta + nomes.ArquivoPrevisoes, opcoes.PastaPrevisoes() + nomes.ArquivoPrevisoes, true);
    }

    const std::pair<const QString&, bool> tipos[] = {
        {nomes.ArquivoDadosGerais, nomes.ApagarArquivoDadosGerais},
        {nomes.ArquivoVazoesSemanais, nomes.ApagarArquivoVazoesSemanais},
        {nomes.ArquivoRelatorio, nomes.ApagarArquivoRelatorio},
        {nomes.ArquivoExcel, nomes.ApagarArquivoExcel},
    };
    for (const auto& [nome, apagar] : tipos) {
        if (apagar) {
            arquivos.ApagaArquivo(pasta + nome);
        }
    }
    // Of the four kinds only the report has a companion.
    const QString companheiro = pasta + pCompanheiro(nomes.ArquivoRelatorio);
    if (nomes.ApagarArquivoRelatorio && arquivos.ArquivoExiste(companheiro)) {
        arquivos.ApagaArquivo(companheiro);
    }

    const QString semSeparador = arquivos.SeparaCaminho(pasta, false);
    if (arquivos.PastaVazia(semSeparador)) {
        arquivos.ApagaPasta(semSeparador, true);
    }
}

}  // namespace corvalin
