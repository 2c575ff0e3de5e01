#include "corvalin/options/OpcoesBD.h"

#include "corvalin/casedb/casoBD.h"
#include "corvalin/options/Opcoes.h"
#include "platform/runtime/ErroVB.h"

namespace corvalin {

using recordstore::Recordset;

namespace {

constexpr std::int16_t Filtros = 3;

// Before setCasoBD, error 91, as an unset object reference raised.
casoBD& pCaso(const std::shared_ptr<casoBD>& bd) {
    if (!bd) {
        throw plataforma::ErroVB::padrao(plataforma::ErroObjetoNaoDefinido);
    }
    return *bd;
}

QString pCampoFiltro(const char* prefixo, std::int16_t indice) {
    return QLatin1String(prefixo) + QString::number(indice);
}

}  // namespace

OpcoesBD::~OpcoesBD() {
    if (mCasoBD) {
        mCasoBD->TabOpcoesFechar();
    }
}

void OpcoesBD::setCasoBD(std::shared_ptr<casoBD> bd) {
    pCaso(bd).TabOpcoesAbrir();
    if (mCasoBD) {
        mCasoBD->TabOpcoesFechar();
    }
    mCasoBD = std::move(bd);
}

void OpcoesBD::getOpcoes(Opcoes& opcoes) const {
    const Recordset& tabela = pCaso(mCasoBD).TabOpcoes();
    OpcoesArquivos& arquivos = opcoes.Arquivos;
    if (tabela.Bof() && tabela.Eof()) {
        for (std::int16_t i = 1; i <= Filtros; ++i) {
            opcoes.setFiltro(i, {});
            opcoes.setFiltroDescricao(i, {});
        }
        opcoes.setPastaPrevisoes({});
        // The station-only 53-week flag is none of the options' business: it stays.
        const std::uint8_t casoUsa53Semanas = arquivos.CasoUsa53Semanas;
        arquivos = OpcoesArquivos{};
        arquivos.CasoUsa53Semanas = casoUsa53Semanas;
        return;
    }
    for (std::int16_t i = 1; i <= Filtros; ++i) {
        opcoes.setFiltro(i, tabela.campo(pCampoFiltro("Filtro", i)).paraTexto());
        opcoes.setFiltroDescricao(i, tabela.campo(pCampoFiltro("FiltroDescricao", i)).paraTexto());
    }
    opcoes.setPastaPrevisoes(tabela.campo(QStringLiteral("PastaPrevisoes")).paraTexto());
    arquivos.ArquivoRelatorio = tabela.campo(QStringLiteral("ArquivoRelatorio")).paraTexto();
    arquivos.ArquivoVazoesSemanais = tabela.campo(QStringLiteral("ArquivoVazoesSemanais")).paraTexto();
    arquivos.ArquivoPrevisoes = tabela.campo(QStringLiteral("ArquivoPrevisoes")).paraTexto();
    arquivos.ArquivoExcel = tabela.campo(QStringLiteral("ArquivoExcel")).paraTexto();
    arquivos.ArquivoDadosGerais = tabela.campo(QStringLiteral("ArquivoDadosGerais")).paraTexto();
    arquivos.ApagarArquivoRelatorio = tabela.campo(QStringLiteral("ApagarArquivoRelatorio")).paraBool();
    arquivos.ApagarArquivoVazoesSemanais =
        tabela.campo(QStringLiteral("ApagarArquivoVazoesSemanais")).paraBool();
    arquivos.ApagarArquivoExcel = tabela.campo(QStringLiteral("ApagarArquivoExcel")).paraBool();
    arquivos.ApagarArquivoDadosGerais = tabela.campo(QStringLiteral("ApagarArquivoDadosGerais")).paraBool();
    arquivos.NaoUsaLimite = tabela.campo(QStringLiteral("NaoUsaLimite")).paraBool();
}

void OpcoesBD::setOpcoes(const Opcoes& opcoes) {
    const casoBD& bd = pCaso(mCasoBD);
    Recordset& tabela = bd.TabOpcoes();
    recordstore::Transacao transacao(bd.BancoDeDados());
    if (tabela.Bof() && tabela.Eof()) {
        tabela.AddNew();
    } else {
        if (tabela.Bof() || tabela.Eof()) {
            tabela.MoveFirst();  // the one row, wherever a failed write left the handle
        }
        tabela.Edit();
    }
    for (std::int16_t i = 1; i <= Filtros; ++i) {
        tabela.setCampo(pCampoFiltro("Filtro", i), opcoes.Filtro(i));
        tabela.setCampo(pCampoFiltro("FiltroDescricao", i), opcoes.FiltroDescricao(i));
    }
    const OpcoesArquivos& arquivos = opcoes.Arquivos;
    tabela.setCampo(QStringLiteral("PastaPrevisoes"), opcoes.PastaPrevisoes());
    tabela.setCampo(QStringLiteral("ArquivoRelatorio"), arquivos.ArquivoRelatorio);
    tabela.setCampo(QStringLiteral("ArquivoVazoesSemanais"), arquivos.ArquivoVazoesSemanais);
    tabela.setCampo(QStringLiteral("ArquivoPrevisoes"), arquivos.ArquivoPrevisoes);
    tabela.setCampo(QStringLiteral("ArquivoExcel"), arquivos.ArquivoExcel);
    tabela.setCampo(QStringLiteral("ArquivoDadosGerais"), arquivos.ArquivoDadosGerais);
    tabela.setCampo(QStringLiteral("ApagarArquivoRelatorio"), arquivos.ApagarArquivoRelatorio);
    tabela.setCampo(QStringLiteral("ApagarArquivoVazoesSemanais"), arquivos.ApagarArquivoVazoesSemanais);
    tabela.setCampo(QStringLiteral("ApagarArquivoExcel"), arquivos.ApagarArquivoExcel);
    tabela.setCampo(QStringLiteral("ApagarArquivoDadosGerais"), arquivos.ApagarArquivoDadosGerais);
    tabela.setCampo(QStringLiteral("NaoUsaLimite"), arquivos.NaoUsaLimite);
    tabela.Update();
    if (tabela.Eof()) {
        tabela.MovePrevious();
    }
    transacao.Commit();
}

}  // namespace corvalin
