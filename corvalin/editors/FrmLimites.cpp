#include "corvalin/editors/FrmLimites.h"

#include "corvalin/frame/Geral.h"
#include "corvalin/options/OpcoesBD.h"
#include "corvalin/stations/PostoBD.h"
#include "halvo/controles/Combo.h"
#include "halvo/controles/Grid.h"
#include "halvo/sdk/Servicos.h"
#include "platform/recordstore/Recordstore.h"
#include "platform/texto/Texto.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>

#include <algorithm>
#include <array>
#include <functional>
#include <tuple>

namespace corvalin {

namespace {

const QString TituloAtencao = QStringLiteral("Atenção");
constexpr int TamanhoNomeArquivo = 13;
constexpr int NomeMinimo = 5;
constexpr int ColunaInferior = 1;
constexpr int ColunaSuperior = 2;
constexpr int TamanhoLimite = 4;
constexpr std::array LargurasGrade{1000, 1300, 1300};
constexpr int TwipsPorPixel = 15;
constexpr float SemValor = -1.0F;

QComboBox* pLista(QWidget& pai, const QString& nome, const QStringList& itens) {
    auto* lista = new QComboBox(&pai);
    lista->setObjectName(nome);
    lista->addItems(itens);
    return lista;
}

// A limit as the user reads it: the float's own decimal text, so that 99.9 held in a float is
// 99.9 and not a hair above it.
bool pLimiteValido(float valor) {
    const double lido = texto::Val(texto::TextoRegional(valor).replace(u',', u'.'));
    return lido >= 0.1 && lido <= 99.9;
}

// A cell's text in the user's notation; what does not read as a number reads as 0.
float pValorDaCelula(QString texto) {
    return texto::CSng(texto::Val(texto.replace(QLocale().decimalPoint(), QStringLiteral("."))));
}

}  // namespace

FrmLimites::FrmLimites(QWidget* pai)
    : TelaPostos(QStringLiteral("FrmLimites"), QStringLiteral("DadosGerais"), QStringLiteral("Limites"),
                 Gravacao::Com, pai) {
    setTituloVerificacao(TituloAtencao);
    QWidget* corpo = pMontaControles();
    // Kept beside the save as on the general data screen; limits are imported with their station.
    auto* importar = new QPushButton(QStringLiteral("&Importar..."), this);
    importar->setObjectName(QStringLiteral("BotDadosGeraisImportar"));
    pRegistraGravacao(*importar);
    pMontaTela(*corpo, {importar});
    pLigaEventos();
    resize(620, 520);
}

QWidget* FrmLimites::pMontaControles() {
    auto* corpo = new QWidget(this);
    mChkUsaLimite = new QCheckBox(QStringLiteral("Usa Limite"), corpo);
    mChkUsaLimite->setObjectName(QStringLiteral("ChkUsaLimite"));
    mFrame2 = new QGroupBox(corpo);
    mFrame2->setObjectName(QStringLiteral("Frame2"));
    mCmbLimite =
        pLista(*mFrame2, QStringLiteral("cmbLimite"),
               {QStringLiteral("Não Usar"), QStringLiteral("Modelo e Previsão"), QStringLiteral("Previsão")});
    mCmbDiscretizacao = pLista(*mFrame2, QStringLiteral("cmbDiscretizacao"),
                               {QStringLiteral("Semanal"), QStringLiteral("Mensal"),
                                QStringLiteral("Trimestral"), QStringLiteral("Semestral")});
    mCmbMagnitude = pLista(*mFrame2, QStringLiteral("cmbMagnitude"),
                           {QStringLiteral("Sem Divisão"), QStringLiteral("2 Faixas"),
                            QStringLiteral("3 Faixas"), QStringLiteral("4 Faixas")});
    mCmbMagnitude->setToolTip(QStringLiteral("Divisão da magnitude da vazão"));
    mTxtArqLimite = new QLineEdit(mFrame2);
    mTxtArqLimite->setObjectName(QStringLiteral("txtArqLimite"));
    mTxtArqLimite->setMaxLength(TamanhoNomeArquivo);
    mTxtArqLimite->setToolTip(QStringLiteral("Nome do arquivo de limites (utilizar extensão .LIM)"));
    auto* campos = new QFormLayout(mFrame2);
    for (const auto& [nome, texto, campo] :
         {std::tuple{"lblLimite", "Tipo Limite:", static_cast<QWidget*>(mCmbLimite)},
          std::tuple{"lblDiscretizacao", "Agrupamento:", static_cast<QWidget*>(mCmbDiscretizacao)},
          std::tuple{"lblMagnitude", "Faixa da vazão:", static_cast<QWidget*>(mCmbMagnitude)},
          std::tuple{"lblArqLimite", "Nome Arquivo:", static_cast<QWidget*>(mTxtArqLimite)}}) {
        auto* rotulo = new QLabel(QString::fromUtf8(texto), mFrame2);
        rotulo->setObjectName(QString::fromLatin1(nome));
        rotulo->setToolTip(campo->toolTip());
        rotulo->setBuddy(campo);
        campos->addRow(rotulo, campo);
    }
    mGrdLimites = new halvo::Grid(corpo);
    mGrdLimites->setObjectName(QStringLiteral("GrdLimites"));

    auto* esquerda = new QVBoxLayout;
    esquerda->addWidget(mChkUsaLimite);
    esquerda->addWidget(mFrame2);
    esquerda->addStretch(1);
    auto* leiaute = new QHBoxLayout(corpo);
    leiaute->setContentsMargins(0, 0, 0, 0);
    leiaute->addLayout(esquerda);
    leiaute->addWidget(mGrdLimites, 1);
    return corpo;
}

// Every event stands still while the screen fills itself.
void FrmLimites::pLigaEventos() {
    const auto evento = [this](const char* rotina, std::function<void()> acao) {
        return [this, rotina, acao = std::move(acao)] {
            if (!pPreenchendo()) {
                pArmadilha(QString::fromLatin1(rotina), acao);
            }
        };
    };
    connect(mCmbDiscretizacao, &QComboBox::activated, this, evento("cmbDiscretizacao_Click", [this] {
                pMostrarNovamente();
                pMarcaAlterado();
            }));
    connect(mCmbLimite, &QComboBox::activated, this, evento("cmbLimite_Click", [this] {
                pPreparaGrade();
                pMarcaAlterado();
            }));
    connect(mCmbMagnitude, &QComboBox::activated, this,
            evento("cmbMagnitude_Click", [this] { pMarcaAlterado(); }));
    connect(mTxtArqLimite, &QLineEdit::textEdited, this,
            evento("txtArqLimite_Change", [this] { pMarcaAlterado(); }));
    connect(mTxtArqLimite, &QLineEdit::editingFinished, this,
            [this] { mTxtArqLimite->setText(texto::Trim(mTxtArqLimite->text())); });
    connect(mChkUsaLimite, &QCheckBox::clicked, this,
            evento("ChkUsaLimite_Click", [this] { pUsaLimiteClicado(); }));
    connect(mGrdLimites, &halvo::Grid::FimDeEdicao, this, [evento, this](int linha, int coluna) {
        evento("GrdLimites_FimDeEdicao", [this, linha, coluna] { pCelulaEditada(linha, coluna); })();
    });
}

void FrmLimites::pPrepararControles() {
    setEstado(Preenchendo);
    opcoesBD().getOpcoes(mOpcoes);
    mCmbLimite->setCurrentIndex(0);
    mCmbDiscretizacao->setCurrentIndex(0);
    mCmbMagnitude->setCurrentIndex(1);

    halvo::Grid& grade = *mGrdLimites;
    grade.Limpa(true);
    grade.setColunas(static_cast<int>(LargurasGrade.size()));
    grade.setLinhas(1);
    grade.setLinhasFixas(1);
    grade.setColunasFixas(1);
    grade.setTextoMatriz(0, 0, QStringLiteral("Ordem"));
    grade.setTextoMatriz(0, ColunaInferior, QStringLiteral("Limite Inferior %"));
    grade.setTextoMatriz(0, ColunaSuperior, QStringLiteral("Limite Superior %"));
    // The widths were meant for the titles; where the font makes a title wider, the column follows.
    for (std::size_t coluna = 0; coluna < LargurasGrade.size(); ++coluna) {
        const int titulo = grade.fontMetrics().horizontalAdvance(
            grade.TextoMatriz(0, static_cast<int>(coluna)) + QStringLiteral("MM"));
        grade.setLarguraColuna(static_cast<int>(coluna),
                               std::max(LargurasGrade[coluna], titulo * TwipsPorPixel));
    }
    grade.ColunaNumerica(ColunaInferior, TamanhoLimite);
    grade.ColunaNumerica(ColunaSuperior, TamanhoLimite);
}

// The first station in the order the table keeps, not by name.
void FrmLimites::pMostrarPrimeiro() {
    Posto posto;
    pExibir(postoBD().getPosto(posto, BuscaPrimeiro, 0, {}), posto);
    setEstado(Limpo);
}

void FrmLimites::pMostrar(const Posto& posto) {
    const PonteiroOcupado ponteiro;
    setEstado(Preenchendo);
    mPosto = posto;
    mCmbLimite->setCurrentIndex(posto.FlagLimite);
    mCmbDiscretizacao->setCurrentIndex(posto.discretizacao - 1);
    mCmbMagnitude->setCurrentIndex(posto.Magnitude - 1);
    mTxtArqLimite->setText(posto.NomeArqLimite);
    pPreparaGrade();
    postoBD().getLimitesPrevisao(posto.Codigo, posto.discretizacao, mOrdem, mLimiteInferior, mLimiteSuperior);
    pTituloGrade();
    pMostrarLimites();
    mChkUsaLimite->setChecked(!mOpcoes.Arquivos.NaoUsaLimite);
    pHabilita(mChkUsaLimite->isChecked());
    setEstado(Limpo);
}

void FrmLimites::pPreparaGrade() {
    const bool usaLimite = mCmbLimite->currentIndex() != 0;
    for (QWidget* controle :
         std::initializer_list<QWidget*>{mCmbDiscretizacao, mCmbMagnitude, mGrdLimites, mTxtArqLimite}) {
        controle->setEnabled(usaLimite);
    }
    mGrdLimites->setLinhas(1);
    DimensionaLimites(texto::CByte(mCmbDiscretizacao->currentIndex() + 1), mOrdem, mLimiteInferior,
                      mLimiteSuperior, mPosto.Arquivos.CasoUsa53Semanas);
    const int periodos = mOrdem.UBound();
    if (periodos == 0) {
        return;
    }
    mGrdLimites->setLinhas(periodos + 1);
    for (int i = 0; i <= periodos; ++i) {
        mOrdem[i] = -1;
        mLimiteInferior[i] = SemValor;
        mLimiteSuperior[i] = SemValor;
    }
    for (int i = 1; i <= periodos; ++i) {
        mGrdLimites->setTextoMatriz(i, 0, QString::number(i));
    }
}

void FrmLimites::pTituloGrade() {
    static const std::array<QString, 4> Titulos{QStringLiteral("Semana"), QStringLiteral("Mes"),
                                                QStringLiteral("Trimestre"), QStringLiteral("Semestre")};
    const int indice = mCmbDiscretizacao->currentIndex();
    if (indice >= 0 && indice < static_cast<int>(Titulos.size())) {
        mGrdLimites->setTextoMatriz(0, 0, Titulos[static_cast<std::size_t>(indice)]);
    }
}

// A period without a value shows its -1.
void FrmLimites::pMostrarLimites() {
    for (int i = 1; i <= mOrdem.UBound(); ++i) {
        mGrdLimites->setTextoMatriz(i, ColunaInferior, texto::TextoRegional(mLimiteInferior[i]));
        mGrdLimites->setTextoMatriz(i, ColunaSuperior, texto::TextoRegional(mLimiteSuperior[i]));
    }
}

void FrmLimites::pMostrarNovamente() {
    const PonteiroOcupado ponteiro;
    pPreparaGrade();
    postoBD().getLimitesPrevisao(pCodigoNaTela(), texto::CByte(mCmbDiscretizacao->currentIndex() + 1), mOrdem,
                                 mLimiteInferior, mLimiteSuperior);
    pTituloGrade();
    pMostrarLimites();
}

// The switch itself and the write buttons stay open, so that the switch can be saved.
void FrmLimites::pHabilita(bool habilitado) {
    setCodigoHabilitado(habilitado);
    CBD().setHabilitado(habilitado);
    setNavegacaoHabilitada(habilitado);
    for (QWidget* controle : std::initializer_list<QWidget*>{mCmbLimite, mTxtArqLimite, mCmbDiscretizacao,
                                                             mCmbMagnitude, mGrdLimites, mFrame2}) {
        controle->setEnabled(habilitado);
    }
}

void FrmLimites::pUsaLimiteClicado() {
    const bool usa = mChkUsaLimite->isChecked();
    mOpcoes.Arquivos.NaoUsaLimite = !usa;
    pHabilita(usa);
    if (usa) {
        pMostrarPrimeiro();
    }
    pMarcaAlterado();
}

// A value out of range is said, and kept all the same: the save refuses it.
void FrmLimites::pCelulaEditada(int linha, int coluna) {
    const QString texto = mGrdLimites->TextoMatriz(linha, coluna);
    const float valor = pValorDaCelula(texto);
    if (texto.isEmpty() || !pLimiteValido(valor)) {
        halvo::Servicos::dialogo().Mensagem(
            QStringLiteral("O valor do limite deve ser preenchido entre 0,1 e 99,9."), TituloAtencao);
    }
    if (coluna == ColunaInferior) {
        mLimiteInferior[linha] = valor;
    } else if (coluna == ColunaSuperior) {
        mLimiteSuperior[linha] = valor;
    }
    pMarcaAlterado();
}

bool FrmLimites::pValida() {
    if (mCmbLimite->currentIndex() >= 1) {
        for (int i = 1; i <= mOrdem.UBound(); ++i) {
            if (!pLimiteValido(mLimiteInferior[i]) || !pLimiteValido(mLimiteSuperior[i]) ||
                mGrdLimites->TextoMatriz(i, ColunaInferior).isEmpty() ||
                mGrdLimites->TextoMatriz(i, ColunaSuperior).isEmpty()) {
                return pRecusa(QStringLiteral("Os valores do Limite devem estar entre 0,1 e 99,9."),
                               halvo::Icone::Exclamacao, *mGrdLimites);
            }
        }
    }
    const qsizetype tamanho = mTxtArqLimite->text().size();
    if (mTxtArqLimite->isEnabled() && (tamanho < NomeMinimo || tamanho > TamanhoNomeArquivo)) {
        return pRecusa(QStringLiteral("O nome do arquivo de limites deve ser preenchido."),
                       halvo::Icone::Exclamacao, *mTxtArqLimite);
    }
    return true;
}

bool FrmLimites::pValidaNomeArquivo() {
    const QString nome = mTxtArqLimite->text();
    const bool temExtensao = nome.size() >= 4 && nome[nome.size() - 4] == u'.';
    if (!temExtensao) {
        return pRecusa(
            QStringLiteral("Nome do arquivo de limite não informado ou informado incorretamente.\r\n"
                           "Favor nomear o arquivo utilizando .LIM como extensão (ex: LIMITES.LIM)."),
            halvo::Icone::Erro, *mTxtArqLimite);
    }
    if (texto::LCase(texto::Right(nome, 4)) == QStringLiteral(".lim")) {
        return true;
    }
    return pRecusa(QStringLiteral("Favor utilizar o nome do arquivo com extensão .LIM."),
                   halvo::Icone::Informacao, *mTxtArqLimite);
}

bool FrmLimites::pRecusa(const QString& mensagem, halvo::Icone icone, QWidget& controle) {
    halvo::Servicos::dialogo().Mensagem(mensagem, TituloAtencao, icone);
    if (!controle.hasFocus() && controle.isEnabled() && controle.isVisible()) {
        controle.setFocus();
    }
    return false;
}

// The station, its limits and the case's switch go together or not at all.
bool FrmLimites::pGravar() {
    if (!pObtemPosto(mPosto) || !pValida()) {
        return false;
    }
    mPosto.FlagLimite = texto::CByte(mCmbLimite->currentIndex());
    mPosto.discretizacao = texto::CByte(mCmbDiscretizacao->currentIndex() + 1);
    mPosto.Magnitude = texto::CByte(mCmbMagnitude->currentIndex() + 1);
    mPosto.NomeArqLimite = texto::Trim(mTxtArqLimite->text());
    recordstore::Transacao transacao(postoBD().BancoDeDados());
    postoBD().setDadosGerais(mPosto);
    postoBD().setLimitesPrevisao(mPosto.Codigo, mPosto.discretizacao, mLimiteInferior, mLimiteSuperior);
    opcoesBD().setOpcoes(mOpcoes);
    transacao.Commit();
    return true;
}

}  // namespace corvalin
