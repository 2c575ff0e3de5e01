// PostoBD: lifecycle and the reading of the catalogue.

#include "corvalin/stations/PostoBD.h"

#include "corvalin/stations/Posto.h"
#include "corvalin/stations/TabelasPosto.h"

#include <optional>

namespace corvalin {

using recordstore::Recordset;
using tabelas::inteiro;

namespace {

// getPostos reads the complement its own way; see pLeComplemento.
enum class Leitura { Posto, Lista };

void pLeCatalogo(const Recordset& postos, Posto& posto) {
    posto.Codigo = inteiro<std::int32_t>(postos, tabelas::CodigoDoPosto);
    posto.Nome = postos.campo(tabelas::NomeDoAproveitamento).paraTexto();
    posto.Area = static_cast<float>(postos.campo(QStringLiteral("AreaDeDrenagem")).paraDouble());
    posto.AnoInicial = inteiro<std::int16_t>(postos, QStringLiteral("AnoInicial"));
    posto.AnoFinal = inteiro<std::int16_t>(postos, QStringLiteral("AnoFinal"));
}

void pLeDadosGerais(Recordset& dados, Posto& posto) {
    dados.Seek(QStringLiteral("="), {posto.Codigo});
    if (dados.NoMatch()) {
        return;
    }
    posto.ImpressaoParametros = dados.campo(QStringLiteral("ImpressaoParametros")).paraBool();
    posto.Transformacao = inteiro<std::uint8_t>(dados, QStringLiteral("Transformacao"));
    posto.MesInicial = inteiro<std::uint8_t>(dados, QStringLiteral("MesInicial"));
    posto.IntervaloConfianca = inteiro<std::int16_t>(dados, QStringLiteral("IntervaloConfianca"));
    OpcoesArquivos& arquivos = posto.Arquivos;
    arquivos.ArquivoRelatorio = dados.campo(QStringLiteral("ArquivoRelatorio")).paraTexto();
    arquivos.ArquivoVazoesSemanais = dados.campo(QStringLiteral("ArquivoVazoesSemanais")).paraTexto();
    arquivos.ArquivoPrevisoes = dados.campo(QStringLiteral("ArquivoPrevisoes")).paraTexto();
    arquivos.ArquivoExcel = dados.campo(QStringLiteral("ArquivoExcel")).paraTexto();
    arquivos.ArquivoDadosGerais = dados.campo(QStringLiteral("ArquivoDadosGerais")).paraTexto();
    arquivos.ApagarArquivoRelatorio = dados.campo(QStringLiteral("ApagarArquivoRelatorio")).paraBool();
    arquivos.ApagarArquivoVazoesSemanais =
        dados.campo(QStringLiteral("ApagarArquivoVazoesSemanais")).paraBool();
    arquivos.ApagarArquivoExcel = dados.campo(QStringLiteral("ApagarArquivoExcel")).paraBool();
    arquivos.ApagarArquivoDadosGerais = dados.campo(QStringLiteral("ApagarArquivoDadosGerais")).paraBool();
    arquivos.CasoUsa53Semanas = inteiro<std::uint8_t>(dados, QStringLiteral("CasoUsa53Semanas"));
}

void pLeVazpast(const Recordset& complemento, Posto& posto) {
    posto.VazpastSemana_1 = complemento.campo(QStringLiteral("VazpastSemana_1")).paraDouble();
    posto.VazpastSemana_2 = complemento.campo(QStringLiteral("VazpastSemana_2")).paraDouble();
    posto.VazpastSemana_3 = complemento.campo(QStringLiteral("VazpastSemana_3")).paraDouble();
    posto.VazpastSemana_4 = complemento.campo(QStringLiteral("VazpastSemana_4")).paraDouble();
}

// The list reads the Vazpast file name without the length test, so that the stored blank of "no
// file" reads as a file in use; it reads the four values whatever the name; and it leaves
// FlagLimite at 0. Its users have always seen the list so.
void pLeComplemento(Recordset& complemento, Posto& posto, Leitura leitura) {
    complemento.Seek(QStringLiteral("="), {posto.Codigo});
    if (complemento.NoMatch()) {
        return;
    }
    const bool lista = leitura == Leitura::Lista;
    posto.SemanaInicialPrev = inteiro<std::int16_t>(complemento, QStringLiteral("SemanaInicialPrev"));
    posto.AnoInicialPrev = inteiro<std::int16_t>(complemento, QStringLiteral("AnoInicialPrev"));
    const recordstore::Valor arquivo = complemento.campo(QStringLiteral("ArqVazpast"));
    constexpr qsizetype MaiorNomeSemArquivo = 3;
    posto.FlafVazpast = !arquivo.nulo() && (lista || arquivo.paraTexto().size() > MaiorNomeSemArquivo);
    if (posto.FlafVazpast) {
        posto.NomeArqVazpast = arquivo.paraTexto();
    }
    if (posto.FlafVazpast || lista) {
        pLeVazpast(complemento, posto);
    }
    posto.AnoFinalHistorico = inteiro<std::int16_t>(complemento, QStringLiteral("AnoFinalHistorico"));
    if (!lista) {
        posto.FlagLimite = inteiro<std::uint8_t>(complemento, QStringLiteral("FlagLimite"));
    }
    posto.NomeArqLimite = complemento.campo(QStringLiteral("ArqLimite")).paraTexto();
    posto.discretizacao = inteiro<std::uint8_t>(complemento, QStringLiteral("Discretizacao"));
    posto.Magnitude = inteiro<std::uint8_t>(complemento, QStringLiteral("Magnitude"));
}

// The station the Postos handle stands on, with whatever its two general-data rows hold: a missing
// row leaves those members as the object had them.
void pLePosto(const casoBD& bd, Posto& posto, Leitura leitura) {
    pLeCatalogo(bd.TabPostos(), posto);
    pLeDadosGerais(bd.TabDadosGerais(), posto);
    pLeComplemento(bd.TabDadosGeraisComplemento(), posto, leitura);
}

// Finds a code while the handle's index, as its other users see it, stays what it was.
bool pBuscaPorCodigo(Recordset& postos, std::int32_t codigo) {
    const QString indice = postos.Index();
    const bool troca = indice != tabelas::CodigoDoPosto;
    if (troca) {
        postos.setIndex(tabelas::CodigoDoPosto);
    }
    postos.Seek(QStringLiteral("="), {codigo});
    const bool achou = !postos.NoMatch();
    if (troca) {
        const std::optional<recordstore::Bookmark> marcador =
            achou ? std::optional(postos.Bookmark()) : std::nullopt;
        postos.setIndex(indice);
        if (marcador) {
            postos.setBookmark(*marcador);
        }
    }
    return achou;
}

}  // namespace

PostoBD::~PostoBD() {
    if (mCasoBD) {
        mCasoBD->TabPostosFechar();
    }
}

void PostoBD::setCasoBD(std::shared_ptr<casoBD> bd) {
    tabelas::caso(bd).TabPostosAbrir();
    if (mCasoBD) {
        mCasoBD->TabPostosFechar();
    }
    mCasoBD = std::move(bd);
}

recordstore::Database& PostoBD::BancoDeDados() const {
    return tabelas::caso(mCasoBD).BancoDeDados();
}

void PostoBD::getPostos(plataforma::Vetor<Posto>& postos) const {
    const casoBD& bd = tabelas::caso(mCasoBD);
    Recordset& tabela = bd.TabPostos();
    postos.ReDim(0);
    if (!(tabela.Bof() && tabela.Eof())) {
        tabela.MoveFirst();
    }
    while (!tabela.Bof() && !tabela.Eof()) {
        const int n = postos.UBound() + 1;
        postos.ReDimPreserve(n);
        pLePosto(bd, postos[n], Leitura::Lista);
        tabela.MoveNext();
    }
}

bool PostoBD::getPosto(Posto& posto, std::int16_t Modo, std::int32_t Codigo, const QString& Indice) const {
    casoBD& bd = tabelas::caso(mCasoBD);
    Recordset& postos = bd.TabPostos();
    bool achou = false;
    if (Modo == BuscaPorCodigo) {
        achou = pBuscaPorCodigo(postos, Codigo);
    } else if (Modo >= BuscaPrimeiro && Modo <= BuscaUltimo) {
        bool primeiro = Modo == BuscaPrimeiro;
        bool anterior = Modo == BuscaAnterior;
        bool proximo = Modo == BuscaProximo;
        bool ultimo = Modo == BuscaUltimo;
        achou = bd.TabelaNavegacao(postos, Indice, tabelas::CodigoDoPosto, Codigo, primeiro, anterior,
                                   proximo, ultimo);
    } else {
        achou = !postos.Bof() && !postos.Eof();
    }
    if (achou) {
        pLePosto(bd, posto, Leitura::Posto);
    }
    return achou;
}

}  // namespace corvalin
