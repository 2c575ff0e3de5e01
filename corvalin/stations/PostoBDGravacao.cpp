// PostoBD: the writes of the catalogue and of the general data.

#include "corvalin/options/Opcoes.h"
#include "corvalin/stations/Posto.h"
#include "corvalin/stations/PostoBD.h"
#include "corvalin/stations/TabelasPosto.h"
#include "platform/texto/Texto.h"

#include <array>
#include <utility>

namespace corvalin {

using recordstore::Recordset;

namespace {

// The engine refuses a zero-length text in the complement's file names: a blank stands for none.
const QString SemArquivo = QStringLiteral(" ");

// Puts the handle on the row of the code, or on a new row of it.
void pEditaOuAdiciona(Recordset& tabela, std::int32_t codigo) {
    tabela.Seek(QStringLiteral("="), {codigo});
    tabelas::editaOuAdiciona(tabela, {{tabelas::CodigoDoPosto, codigo}});
}

// Deletes the row of the code, if there is one, and leaves the handle on a row when one is left.
void pApagaLinha(Recordset& tabela, std::int32_t codigo) {
    tabela.Seek(QStringLiteral("="), {codigo});
    if (tabela.NoMatch()) {
        return;
    }
    tabela.Delete();
    tabela.MoveNext();  // off the deleted row, the handle can tell whether the table is empty
    if (!(tabela.Bof() && tabela.Eof())) {
        tabela.MoveFirst();
    }
}

void pEscreveDadosGerais(Recordset& dados, const Posto& posto) {
    dados.setCampo(QStringLiteral("ImpressaoParametros"), posto.ImpressaoParametros);
    dados.setCampo(QStringLiteral("Transformacao"), posto.Transformacao);
    dados.setCampo(QStringLiteral("MesInicial"), posto.MesInicial);
    dados.setCampo(QStringLiteral("IntervaloConfianca"), posto.IntervaloConfianca);
    const OpcoesArquivos& arquivos = posto.Arquivos;
    dados.setCampo(QStringLiteral("ArquivoRelatorio"), arquivos.ArquivoRelatorio);
    dados.setCampo(QStringLiteral("ArquivoVazoesSemanais"), arquivos.ArquivoVazoesSemanais);
    dados.setCampo(QStringLiteral("ArquivoPrevisoes"), arquivos.ArquivoPrevisoes);
    dados.setCampo(QStringLiteral("ArquivoExcel"), arquivos.ArquivoExcel);
    dados.setCampo(QStringLiteral("ArquivoDadosGerais"), arquivos.ArquivoDadosGerais);
    dados.setCampo(QStringLiteral("ApagarArquivoRelatorio"), arquivos.ApagarArquivoRelatorio);
    dados.setCampo(QStringLiteral("ApagarArquivoVazoesSemanais"), arquivos.ApagarArquivoVazoesSemanais);
    dados.setCampo(QStringLiteral("ApagarArquivoExcel"), arquivos.ApagarArquivoExcel);
    dados.setCampo(QStringLiteral("ApagarArquivoDadosGerais"), arquivos.ApagarArquivoDadosGerais);
    dados.setCampo(QStringLiteral("CasoUsa53Semanas"), arquivos.CasoUsa53Semanas);
}

void pEscreveComplemento(Recordset& complemento, const Posto& posto) {
    complemento.setCampo(QStringLiteral("SemanaInicialPrev"), posto.SemanaInicialPrev);
    complemento.setCampo(QStringLiteral("AnoInicialPrev"), posto.AnoInicialPrev);
    complemento.setCampo(QStringLiteral("AnoFinalHistorico"), posto.AnoFinalHistorico);
    const bool usaVazpast = posto.FlafVazpast && !posto.NomeArqVazpast.isEmpty();
    complemento.setCampo(QStringLiteral("ArqVazpast"), usaVazpast ? posto.NomeArqVazpast : SemArquivo);
    complemento.setCampo(QStringLiteral("VazpastSemana_1"), usaVazpast ? posto.VazpastSemana_1 : 0.0);
    complemento.setCampo(QStringLiteral("VazpastSemana_2"), usaVazpast ? posto.VazpastSemana_2 : 0.0);
    complemento.setCampo(QStringLiteral("VazpastSemana_3"), usaVazpast ? posto.VazpastSemana_3 : 0.0);
    complemento.setCampo(QStringLiteral("VazpastSemana_4"), usaVazpast ? posto.VazpastSemana_4 : 0.0);
    complemento.setCampo(QStringLiteral("FlagLimite"), posto.FlagLimite);
    complemento.setCampo(QStringLiteral("ArqLimite"),
                         posto.NomeArqLimite.isEmpty() ? SemArquivo : posto.NomeArqLimite);
    complemento.setCampo(QStringLiteral("Discretizacao"), posto.discretizacao);
    complemento.setCampo(QStringLiteral("Magnitude"), posto.Magnitude);
}

// A default name takes one template word, which is meant to open it: the value becomes the word's
// text followed by as many of the value's last characters as the word leaves over, so that
// whatever stood before the word is lost.
void pSubstituiPadrao(QString& valor, const QString& textoCodigo, const QString& textoNome) {
    static const QString PadraoCodigo = QStringLiteral("[Código do Posto]");
    static const QString PadraoNome = QStringLiteral("[Nome do Aproveitamento]");
    for (const auto& [padrao, texto] :
         {std::pair{&PadraoCodigo, &textoCodigo}, std::pair{&PadraoNome, &textoNome}}) {
        if (texto::InStr(valor, *padrao, true) > 0) {
            valor = *texto + texto::Right(valor, valor.size() - padrao->size());
            return;
        }
    }
}

}  // namespace

bool PostoBD::setPosto(Posto& posto) {
    const casoBD& bd = tabelas::caso(mCasoBD);
    Recordset& postos = bd.TabPostos();
    recordstore::Transacao transacao(bd.BancoDeDados());
    const tabelas::IndiceRestaurado indice(postos, tabelas::NomeDoAproveitamento);
    postos.setIndex(tabelas::NomeDoAproveitamento);
    postos.Seek(QStringLiteral("="), {posto.Nome});
    const bool recusado =
        !postos.NoMatch() && tabelas::inteiro<std::int32_t>(postos, tabelas::CodigoDoPosto) != posto.Codigo;
    postos.setIndex(tabelas::CodigoDoPosto);
    if (!recusado) {
        pEditaOuAdiciona(postos, posto.Codigo);
        postos.setCampo(tabelas::NomeDoAproveitamento, posto.Nome);
        postos.setCampo(QStringLiteral("AreaDeDrenagem"), posto.Area);
        postos.setCampo(QStringLiteral("AnoInicial"), posto.AnoInicial);
        postos.setCampo(QStringLiteral("AnoFinal"), posto.AnoFinal);
        postos.Update();
        if (!posto.DadosGeraisVazios()) {
            setDadosGerais(posto);
        }
    }
    transacao.Commit();
    return !recusado;
}

void PostoBD::setDadosGerais(const Posto& posto) {
    const casoBD& bd = tabelas::caso(mCasoBD);
    recordstore::Transacao transacao(bd.BancoDeDados());
    Recordset& dados = bd.TabDadosGerais();
    Recordset& complemento = bd.TabDadosGeraisComplemento();
    pEditaOuAdiciona(dados, posto.Codigo);
    pEscreveDadosGerais(dados, posto);
    pEditaOuAdiciona(complemento, posto.Codigo);
    pEscreveComplemento(complemento, posto);
    dados.Update();
    complemento.Update();
    transacao.Commit();
}

// The complement, the forecasts and the limits stay: a station added again under the same code
// finds them.
void PostoBD::delPosto(const Posto& posto) {
    const casoBD& bd = tabelas::caso(mCasoBD);
    Recordset& postos = bd.TabPostos();
    recordstore::Transacao transacao(bd.BancoDeDados());
    {
        const tabelas::IndiceRestaurado indice(postos, tabelas::NomeDoAproveitamento);
        postos.setIndex(tabelas::CodigoDoPosto);
        pApagaLinha(postos, posto.Codigo);
    }
    pApagaLinha(bd.TabDadosGerais(), posto.Codigo);
    pApagarHistorico(posto.Codigo);
    transacao.Commit();
}

void PostoBD::setNomesPadrao(Posto& posto, const Opcoes& Padrao) {
    constexpr qsizetype TamanhoMaximo = 8;
    const QString textoCodigo = texto::Left(texto::Trim(texto::Str(posto.Codigo)), TamanhoMaximo);
    const QString textoNome = texto::Left(posto.Nome, TamanhoMaximo);
    OpcoesArquivos& arquivos = posto.Arquivos;
    const OpcoesArquivos& padrao = Padrao.Arquivos;
    const std::array<std::pair<QString*, const QString*>, 5> nomes{{
        {&arquivos.ArquivoDadosGerais, &padrao.ArquivoDadosGerais},
        {&arquivos.ArquivoVazoesSemanais, &padrao.ArquivoVazoesSemanais},
        {&arquivos.ArquivoRelatorio, &padrao.ArquivoRelatorio},
        {&arquivos.ArquivoPrevisoes, &padrao.ArquivoPrevisoes},
        {&arquivos.ArquivoExcel, &padrao.ArquivoExcel},
    }};
    for (const auto& [nome, nomePadrao] : nomes) {
        if (!nomePadrao->isEmpty()) {
            *nome = *nomePadrao;
        }
    }
    arquivos.ApagarArquivoDadosGerais = padrao.ApagarArquivoDadosGerais;
    arquivos.ApagarArquivoVazoesSemanais = padrao.ApagarArquivoVazoesSemanais;
    arquivos.ApagarArquivoRelatorio = padrao.ApagarArquivoRelatorio;
    arquivos.ApagarArquivoExcel = padrao.ApagarArquivoExcel;
    for (const auto& nome : nomes) {
        pSubstituiPadrao(*nome.first, textoCodigo, textoNome);
    }
    setDadosGerais(posto);
}

}  // namespace corvalin
