#include "corvalin/casedb/casoBD.h"

#include "corvalin/frame/Geral.h"
#include "corvalin/frame/Mensagens.h"
#include "halvo/sdk/Caso.h"
#include "halvo/sdk/ServicoDialogo.h"
#include "halvo/sdk/Servicos.h"
#include "halvo/sdk/UtilitariosArquivo.h"
#include "platform/runtime/ErroVB.h"

#include <QDir>
#include <QLocale>

#include <algorithm>
#include <optional>

namespace corvalin {

using recordstore::Recordset;
using recordstore::Valor;

namespace {

// The locale string and option with which the old engine made every case: its sort order and
// its encryption flag. Kept for the record store, which ignores both.
const QString LocalidadeBanco = QStringLiteral(";LANGID=0x0409;CP=1252;COUNTRY=0");
constexpr int OpcaoBancoCriptografado = 2;

void pMostraErro(const QString& texto) {
    halvo::Servicos::dialogo().Mensagem(texto, Mensagens::msgTituloErro, halvo::Icone::Erro);
}

Recordset& pTabela(const std::unique_ptr<Recordset>& tabela) {
    if (!tabela) {
        throw plataforma::ErroVB::padrao(plataforma::ErroObjetoNaoDefinido);
    }
    return *tabela;
}

// A date or a time item of the host as the date field takes it; an item that is no date is
// left without a value rather than keep the case from opening.
Valor pDataHora(const QString& item) {
    const QString texto = item.trimmed();
    QDateTime valor = QDateTime::fromString(texto, Qt::ISODate);
    if (!valor.isValid()) {
        if (const QDate data = QDate::fromString(texto, Qt::ISODate); data.isValid()) {
            valor = QDateTime(data, QTime(0, 0));
        } else if (const QTime hora = QTime::fromString(texto, Qt::ISODate); hora.isValid()) {
            valor = QDateTime(QDate(1899, 12, 30), hora);  // the old engine's day of a time alone
        } else if (const QDate local = QLocale().toDate(texto, QLocale::ShortFormat); local.isValid()) {
            valor = QDateTime(local, QTime(0, 0));
        }
    }
    return valor.isValid() ? Valor(valor) : Valor();
}

}  // namespace

casoBD::casoBD() = default;

casoBD::~casoBD() = default;

Recordset& casoBD::TabPostos() const { return pTabela(mTabPostos); }
Recordset& casoBD::TabDadosGerais() const { return pTabela(mTabDadosGerais); }
Recordset& casoBD::TabDadosGeraisComplemento() const { return pTabela(mTabDadosGeraisComplemento); }
Recordset& casoBD::TabVazoesSemanais() const { return pTabela(mTabVazoesSemanais); }
Recordset& casoBD::TabVazoesPrevistas() const { return pTabela(mTabVazoesPrevistas); }
Recordset& casoBD::TabOpcoes() const { return pTabela(mTabOpcoes); }
Recordset& casoBD::TabLimitesPrevisao() const { return pTabela(mTabLimitesPrevisao); }

recordstore::Database& casoBD::BancoDeDados() const {
    if (!mBancoDeDados) {
        throw plataforma::ErroVB::padrao(plataforma::ErroObjetoNaoDefinido);
    }
    return *mBancoDeDados;
}

bool casoBD::Criar(const QString& pasta) {
    const PonteiroOcupado ponteiro;
    if (!halvo::UtilitariosArquivo().CriaPasta(pasta)) {
        pMostraErro(Mensagens::msgErroCriarDiretorio);
        return false;
    }
    if (!pCriaBanco(pasta + QDir::separator() + Constantes::cteArquivoBanco)) {
        pMostraErro(Mensagens::msgErroCriarBanco);
        return false;
    }
    TabCasoAbrir();
    return true;
}

bool casoBD::pCriaBanco(const QString& caminho) {
    try {
        mBancoDeDados = recordstore::Database::CreateDatabase(caminho, LocalidadeBanco, OpcaoBancoCriptografado);
    } catch (const plataforma::ErroVB&) {
        return false;
    }
    pCriaTabelaCaso();
    pCriaTabelaOpcoes();
    pCriaTabelaPostos();
    pCriaTabelaDadosGerais();
    pCriaTabelaDadosGeraisComplemento();
    pCriaTabelaVazoesSemanais();
    pCriaTabelaVazoesPrevistas();
    pCriaTabelaLimitesPrevisao();
    return true;
}

bool casoBD::Abrir(const halvo::caso& c, bool silencioso, bool) {
    const PonteiroOcupado ponteiro;
    const QString caminho = c.Item(QStringLiteral("Diretorio")) + Constantes::cteArquivoBanco;
    if (!halvo::UtilitariosArquivo().ArquivoExiste(caminho)) {
        if (!silencioso) {
            pMostraErro(Mensagens::msgCasoInexistente);
        }
        return false;
    }
    mBancoDeDados = recordstore::Database::OpenDatabase(caminho);
    if (pValidaBanco()) {
        TabCasoAbrir();
        setCaso(c);
        return true;
    }
    if (!silencioso) {
        pMostraErro(Mensagens::msgBancoDanificado);
    }
    mBancoDeDados->Close();
    mBancoDeDados.reset();
    return false;
}

// A file with the five core tables is a case of this model. What later versions added is added
// here, in one transaction, so that an interrupted upgrade leaves the file as it was.
bool casoBD::pValidaBanco() {
    for (const char* tabela : {"CasoCORVALIN", "Opcoes", "Postos", "DadosGerais", "VazoesSemanais"}) {
        if (!pTabelaAbre(QString::fromLatin1(tabela))) {
            return false;
        }
    }
    auto& bd = *mBancoDeDados;
    const auto temCampo = [&bd](const QString& tabela, const QString& campo) {
        const auto campos = bd.Fields(tabela);
        return std::any_of(campos.cbegin(), campos.cend(), [&campo](const recordstore::FieldDef& f) {
            return f.Name.compare(campo, Qt::CaseInsensitive) == 0;
        });
    };
    recordstore::Transacao transacao(bd);
    if (!temCampo(QStringLiteral("DadosGerais"), QStringLiteral("IntervaloConfianca"))) {
        bd.AppendField(QStringLiteral("DadosGerais"),
                       recordstore::CreateField(QStringLiteral("IntervaloConfianca"), recordstore::Tipo::Integer));
    }
    if (!bd.ExisteTabela(QStringLiteral("DadosGeraisComplemento"))) {
        pCriaTabelaDadosGeraisComplemento();
    }
    const QString complemento = QStringLiteral("DadosGeraisComplemento");
    if (!temCampo(complemento, QStringLiteral("FlagLimite")) && !temCampo(complemento, QStringLiteral("ArqLimite")) &&
        !temCampo(complemento, QStringLiteral("Discretizacao")) && !temCampo(complemento, QStringLiteral("Magnitude"))) {
        bd.AppendField(complemento, recordstore::CreateField(QStringLiteral("FlagLimite"), recordstore::Tipo::Byte));
        bd.AppendField(complemento, recordstore::CreateField(QStringLiteral("ArqLimite"), recordstore::Tipo::Texto, 12));
        bd.AppendField(complemento,
                       recordstore::CreateField(QStringLiteral("Discretizacao"), recordstore::Tipo::Byte));
        bd.AppendField(complemento, recordstore::CreateField(QStringLiteral("Magnitude"), recordstore::Tipo::Byte));
    }
    if (!temCampo(QStringLiteral("Opcoes"), QStringLiteral("NaoUsaLimite"))) {
        bd.AppendField(QStringLiteral("Opcoes"),
                       recordstore::CreateField(QStringLiteral("NaoUsaLimite"), recordstore::Tipo::Boolean));
    }
    if (!bd.ExisteTabela(QStringLiteral("VazoesPrevistas"))) {
        pCriaTabelaVazoesPrevistas();
    }
    if (!bd.ExisteTabela(QStringLiteral("LimitesPrevisao"))) {
        pCriaTabelaLimitesPrevisao();
    }
    transacao.Commit();
    return true;
}

bool casoBD::pTabelaAbre(const QString& tabela) {
    try {
        mBancoDeDados->OpenRecordset(tabela)->Close();
        return true;
    } catch (const plataforma::ErroVB&) {
        return false;
    }
}

void casoBD::setCaso(const halvo::caso& c) {
    Recordset& tabela = pTabela(mTabCaso);
    if (tabela.Bof() && tabela.Eof()) {
        tabela.AddNew();
    } else {
        tabela.Edit();
    }
    tabela.setCampo(QStringLiteral("Titulo"), c.Item(QStringLiteral("Nome")));
    tabela.setCampo(QStringLiteral("Autor"), Constantes::cteAutorCaso);
    tabela.setCampo(QStringLiteral("Comentarios"), c.Item(QStringLiteral("Descricao")));
    tabela.setCampo(QStringLiteral("Data"), pDataHora(c.Item(QStringLiteral("DataCriacao"))));
    tabela.setCampo(QStringLiteral("Hora"), pDataHora(c.Item(QStringLiteral("HoraCriacao"))));
    tabela.setCampo(QStringLiteral("Versao"), VersaoInterface());
    tabela.Update();
    if (tabela.Eof()) {
        tabela.MovePrevious();
    }
}

void casoBD::Fechar() {
    const PonteiroOcupado ponteiro;
    TabCasoFechar();
    if (mBancoDeDados) {
        mBancoDeDados->Close();
        mBancoDeDados.reset();
    }
}

void casoBD::DadosFecha() {
    BancoDeDados().Close();
    mBancoDeDados.reset();
}

std::unique_ptr<Recordset> casoBD::pAbreTabela(const QString& tabela, const QString& indice) {
    auto handle = BancoDeDados().OpenRecordset(tabela);
    handle->setIndex(indice);
    return handle;
}

void casoBD::TabCasoAbrir() {
    if (++mContaCaso == 1) {
        mTabCaso = BancoDeDados().OpenRecordset(QStringLiteral("CasoCORVALIN"));
    }
}

void casoBD::TabCasoFechar() {
    if (mContaCaso-- == 1) {
        mTabCaso.reset();
    }
}

void casoBD::TabOpcoesAbrir() {
    if (++mContaOpcoes == 1) {
        mTabOpcoes = BancoDeDados().OpenRecordset(QStringLiteral("Opcoes"));
    }
}

void casoBD::TabOpcoesFechar() {
    if (mContaOpcoes-- == 1) {
        mTabOpcoes.reset();
    }
}

void casoBD::TabPostosAbrir() {
    if (++mContaPostos != 1) {
        return;
    }
    mTabPostos = pAbreTabela(QStringLiteral("Postos"), QStringLiteral("NomeDoAproveitamento"));
    mTabDadosGerais = BancoDeDados().OpenRecordset(QStringLiteral("DadosGerais"));
    constexpr int CamposDadosGerais = 15;
    if (mTabDadosGerais->FieldCount() < CamposDadosGerais) {
        // The 53-week flag came after the other upgrades; a failure here is left to the reads.
        mTabDadosGerais.reset();
        try {
            BancoDeDados().Execute(QStringLiteral("alter table DadosGerais add column CasoUsa53Semanas byte;"));
        } catch (const plataforma::ErroVB&) {
        }
        mTabDadosGerais = BancoDeDados().OpenRecordset(QStringLiteral("DadosGerais"));
    }
    mTabDadosGerais->setIndex(QStringLiteral("CodigoDoPosto"));
    mTabVazoesSemanais = pAbreTabela(QStringLiteral("VazoesSemanais"), QStringLiteral("CodigoDoPostoAnoSemana"));
    mTabVazoesPrevistas = pAbreTabela(QStringLiteral("VazoesPrevistas"), QStringLiteral("CodigoDoPostoSemana"));
    try {
        mTabDadosGeraisComplemento =
            pAbreTabela(QStringLiteral("DadosGeraisComplemento"), QStringLiteral("CodigoDoPosto"));
        mTabLimitesPrevisao = pAbreTabela(QStringLiteral("LimitesPrevisao"), QStringLiteral("CodigoTipoOrdem"));
    } catch (const plataforma::ErroVB&) {
        auto& bd = BancoDeDados();
        if (!bd.ExisteTabela(QStringLiteral("DadosGeraisComplemento"))) {
            pCriaTabelaDadosGeraisComplemento();
        }
        if (!bd.ExisteTabela(QStringLiteral("LimitesPrevisao"))) {
            pCriaTabelaLimitesPrevisao();
        }
        mTabDadosGeraisComplemento =
            pAbreTabela(QStringLiteral("DadosGeraisComplemento"), QStringLiteral("CodigoDoPosto"));
        mTabVazoesSemanais = pAbreTabela(QStringLiteral("VazoesSemanais"), QStringLiteral("CodigoDoPostoAnoSemana"));
        mTabVazoesPrevistas = pAbreTabela(QStringLiteral("VazoesPrevistas"), QStringLiteral("CodigoDoPostoSemana"));
        mTabLimitesPrevisao = pAbreTabela(QStringLiteral("LimitesPrevisao"), QStringLiteral("CodigoTipoOrdem"));
    }
}

void casoBD::TabPostosFechar() {
    if (mContaPostos-- != 1) {
        return;
    }
    mTabPostos.reset();
    mTabDadosGerais.reset();
    mTabDadosGeraisComplemento.reset();
    mTabVazoesSemanais.reset();
    mTabVazoesPrevistas.reset();
    mTabLimitesPrevisao.reset();
}

bool casoBD::TabelaNavegacao(Recordset& tabela, const QString& indiceNavegacao, const QString& indiceChave,
                             const Valor& chave, bool& primeiro, bool& anterior, bool& proximo, bool& ultimo) {
    const QString indiceSalvo = tabela.Index();
    if (tabela.Bof() && tabela.Eof()) {
        return false;
    }
    std::optional<recordstore::Bookmark> marcador;
    if (anterior || proximo) {
        if (tabela.Index() != indiceChave) {
            tabela.setIndex(indiceChave);
        }
        tabela.Seek(QStringLiteral("="), {chave});
        if (tabela.NoMatch()) {
            // The record stepped from has gone: start again from the first.
            anterior = false;
            proximo = false;
            primeiro = true;
        } else {
            marcador = tabela.Bookmark();
        }
    }
    if (tabela.Index() != indiceNavegacao) {
        tabela.setIndex(indiceNavegacao);
        if (marcador) {
            tabela.setBookmark(*marcador);
        }
    }
    if (primeiro) {
        tabela.MoveFirst();
        if (!tabela.Eof() && tabela.Bof()) {
            tabela.MoveNext();
        }
    } else if (ultimo) {
        tabela.MoveLast();
        if (tabela.Eof() && !tabela.Bof()) {
            tabela.MovePrevious();
        }
    } else if (anterior) {
        tabela.MovePrevious();
        if (tabela.Bof()) {
            tabela.MoveNext();
        }
    } else if (proximo) {
        tabela.MoveNext();
        if (tabela.Eof()) {
            tabela.MovePrevious();
        }
    }
    if (tabela.Bof() && tabela.Eof()) {
        if (indiceSalvo != tabela.Index()) {
            tabela.setIndex(indiceSalvo);
        }
        return false;
    }
    if (indiceSalvo != tabela.Index()) {
        const recordstore::Bookmark atual = tabela.Bookmark();
        tabela.setIndex(indiceSalvo);
        tabela.setBookmark(atual);
    }
    return true;
}

}  // namespace corvalin
