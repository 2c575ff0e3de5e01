#include "corvalin/stations/FrmPostos.h"

#include "corvalin/frame/Controle.h"
#include "corvalin/frame/FrmBarraDeProgresso.h"
#include "corvalin/frame/Mensagens.h"
#include "corvalin/modelfiles/PostoARQ.h"
#include "corvalin/stations/PostoBD.h"
#include "halvo/controles/Combo.h"
#include "halvo/controles/Grid.h"
#include "halvo/controles/Spin.h"
#include "halvo/sdk/Notificador.h"
#include "halvo/sdk/ServicoDialogo.h"
#include "halvo/sdk/Servicos.h"
#include "halvo/sdk/UtilitariosArquivo.h"
#include "halvo/sdk/UtilitariosTexto.h"
#include "platform/texto/Texto.h"

#include <QBoxLayout>
#include <QDate>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopedValueRollback>

#include <algorithm>

namespace corvalin {

namespace {

// The grid as loading sets it up: the year column and 53 weeks.
constexpr int ColunasDaGrade = 54;
constexpr int AnoMinimo = 1;
constexpr int AnoMaximo = 2200;
constexpr int FormatoDoAno = 4;
constexpr int LarguraDaSemana = 900;  // twips
constexpr int LarguraDoAno = 750;

const QString Titulo = QStringLiteral("Histórico de Vazões Semanais");

// Painting stops while the grid fills, and comes back however the filling ends.
class GradeSemDesenho {
public:
    explicit GradeSemDesenho(halvo::Grid& grade) : mGrade(grade) { mGrade.setRedesenho(false); }
    ~GradeSemDesenho() { mGrade.setRedesenho(true); }
    GradeSemDesenho(const GradeSemDesenho&) = delete;
    GradeSemDesenho& operator=(const GradeSemDesenho&) = delete;

private:
    halvo::Grid& mGrade;
};

// "Área de Drenagem (km  )" with its exponent, a label of its own, over the gap left for it.
QLabel* pRotuloDaArea(QWidget& pai) {
    const QString texto = QStringLiteral("Área de Drenagem (km  )");
    auto* rotulo = new QLabel(texto, &pai);
    rotulo->setObjectName(QStringLiteral("LblPostosArea_0"));
    rotulo->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    rotulo->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    auto* expoente = new QLabel(QStringLiteral("2"), rotulo);
    expoente->setObjectName(QStringLiteral("LblPostosArea_1"));
    QFont fonte = expoente->font();
    fonte.setPointSizeF(fonte.pointSizeF() * 0.7);
    expoente->setFont(fonte);
    expoente->adjustSize();
    expoente->move(rotulo->fontMetrics().horizontalAdvance(texto.left(texto.size() - 3)) +
                       rotulo->fontMetrics().horizontalAdvance(QLatin1Char(' ')) / 2,
                   0);
    return rotulo;
}

}  // namespace

FrmPostos::FrmPostos(QWidget* pai)
    : TelaPostos(QStringLiteral("FrmPostos"), QStringLiteral("Postos"), Titulo, Gravacao::Com, pai),
      mTxtArea(new QLineEdit(this)),
      mSpnAno{new halvo::Spin(this), new halvo::Spin(this)},
      mGrade(new halvo::Grid(this)) {
    auto* corpo = new QWidget(this);
    QLabel* rotuloDaArea = pRotuloDaArea(*corpo);
    mTxtArea->setParent(corpo);
    mTxtArea->setObjectName(QStringLiteral("TxtPostosArea"));
    mTxtArea->setMaximumWidth(fontMetrics().horizontalAdvance(QLatin1Char('0')) * 14);
    rotuloDaArea->setBuddy(mTxtArea);
    auto* linhaDaArea = new QHBoxLayout;
    linhaDaArea->addWidget(rotuloDaArea, 0, Qt::AlignVCenter);
    linhaDaArea->addWidget(mTxtArea);
    linhaDaArea->addStretch(1);

    auto* moldura = new QGroupBox(Mensagens::msgVazoesSemanais, corpo);
    moldura->setObjectName(QStringLiteral("FmePostos"));
    auto* anos = new QHBoxLayout;
    const std::array<QString, 2> rotulosDosAnos{QStringLiteral("Ano Inicial"), QStringLiteral("Ano Final")};
    for (int i = 0; i < 2; ++i) {
        halvo::Spin* spin = mSpnAno[static_cast<std::size_t>(i)];
        auto* rotulo = new QLabel(rotulosDosAnos[static_cast<std::size_t>(i)], moldura);
        rotulo->setObjectName(QStringLiteral("LblPostosAno_%1").arg(i));
        rotulo->setBuddy(spin);
        spin->setParent(moldura);
        spin->setObjectName(QStringLiteral("SpnPostosAno_%1").arg(i));
        // The grid follows the spinners a year at a time, so the year is stepped, never typed.
        if (auto* edicao = spin->findChild<QLineEdit*>()) {
            edicao->setReadOnly(true);
        }
        anos->addWidget(rotulo);
        anos->addWidget(spin);
        anos->addSpacing(fontMetrics().averageCharWidth() * 3);
        connect(spin, &halvo::Spin::AntesDeMudar, this, [this, i](bool paraCima, bool& cancela) {
            pArmadilha(QStringLiteral("SpnPostosAno_BeforeChange"),
                       [&] { cancela = !pValidarAno(i, paraCima); });
        });
        connect(spin, &halvo::Spin::Alterado, this, [this, i] {
            if (getEstado() != Preenchendo) {
                pArmadilha(QStringLiteral("SpnPostosAno_Change"), [&] { pAjustarGrade(i); });
            }
        });
    }
    anos->addStretch(1);
    mGrade->setParent(moldura);
    mGrade->setObjectName(QStringLiteral("GrdPostos"));
    auto* leiauteDaMoldura = new QVBoxLayout(moldura);
    leiauteDaMoldura->addLayout(anos);
    leiauteDaMoldura->addWidget(mGrade, 1);

    auto* leiauteDoCorpo = new QVBoxLayout(corpo);
    leiauteDoCorpo->setContentsMargins(0, 0, 0, 0);
    leiauteDoCorpo->addLayout(linhaDaArea);
    leiauteDoCorpo->addWidget(moldura, 1);

    QPushButton* novo =
        Controle<QPushButton>(*this, QStringLiteral("BotPostosNovo"), QStringLiteral("&Novo"));
    QPushButton* apagar =
        Controle<QPushButton>(*this, QStringLiteral("BotPostosApagar"), QStringLiteral("A&pagar"));
    QPushButton* importar =
        Controle<QPushButton>(*this, QStringLiteral("BotPostosImportar"), QStringLiteral("&Importar..."));
    for (QPushButton* botao : {novo, apagar, importar}) {
        pRegistraGravacao(*botao);
    }
    pMontaTela(*corpo, {novo, apagar, importar});
    resize(980, 560);

    connect(novo, &QPushButton::clicked, this, [this] {
        pArmadilha(QStringLiteral("BotPostosNovo_Click"), [this] {
            if (pConfirma()) {
                pNovo();
            }
        });
    });
    connect(apagar, &QPushButton::clicked, this,
            [this] { pArmadilha(QStringLiteral("BotPostosApagar_Click"), [this] { pExcluir(); }); });
    connect(importar, &QPushButton::clicked, this,
            [this] { pArmadilha(QStringLiteral("pImportar"), [this] { pImportar(); }); });
    connect(&CBD(), &halvo::Combo::Alterado, this, [this] { pMarcarAlteracao(true); });
    connect(mTxtArea, &QLineEdit::textEdited, this, [this] { pMarcarAlteracao(true); });
    connect(mGrade, &halvo::Grid::CelulaAlterada, this, [this] { pMarcarAlteracao(false); });
    TxtCodigo().installEventFilter(this);
    mTxtArea->installEventFilter(this);
}

void FrmPostos::pPrepararControles() {
    TxtCodigo().setMaxLength(8);
    mGrade->setColunas(ColunasDaGrade);
    mGrade->setTextoMatriz(0, 0, Mensagens::msgAno);
    mGrade->setLarguraColuna(0, LarguraDoAno);
    for (int coluna = 1; coluna < ColunasDaGrade; ++coluna) {
        mGrade->setTextoMatriz(0, coluna, Mensagens::msgSem + QLatin1Char(' ') + QString::number(coluna));
        mGrade->setLarguraColuna(coluna, LarguraDaSemana);
    }
    for (halvo::Spin* spin : mSpnAno) {
        spin->setFormato(FormatoDoAno);
        spin->setMinimo(AnoMinimo);
        spin->setMaximo(AnoMaximo);
        spin->setPasso(true);
    }
}

void FrmPostos::pMostrarPrimeiro() {
    const QScopedValueRollback abrindo(mAbrindo, true);
    Posto posto;
    const bool achou = postoBD().getPosto(posto, BuscaPrimeiro, 0, IndiceNome);
    mGrade->setColunas(posto.getNumSemanas() + 1);
    if (achou) {
        pExibir(true, posto);
    } else {
        pNovo();
    }
    mPosto = posto;
}

// The frame has put the code and the name on the screen.
void FrmPostos::pMostrar(const Posto& posto) {
    pArmadilha(QStringLiteral("pMostrar"), [&] {
        const PonteiroOcupado ponteiro;
        setEstado(Preenchendo);
        setCodigoHabilitado(false);
        mTxtArea->setText(texto::TextoRegional(posto.Area));
        pMostrarVazoes(posto);
        mPostoAlterado = false;
        mHistoricoAlterado = false;
        mAnoConfirmado = false;
        setEstado(Limpo);
        mPosto = posto;
    });
}

void FrmPostos::pMostrarVazoes(const Posto& posto) {
    const GradeSemDesenho semDesenho(*mGrade);
    mGrade->setLinhas(posto.AnoFinal - posto.AnoInicial + 2);
    mGrade->Limpa(false);
    Historico vazoes;
    postoBD().getHistorico(posto, vazoes);
    const int semanas = posto.getNumSemanas();
    int ultimaSemana = 0;
    for (int ano = posto.AnoInicial; ano <= posto.AnoFinal; ++ano) {
        const int linha = ano - posto.AnoInicial + 1;
        mGrade->setTextoMatriz(linha, 0, QString::number(ano));
        for (int semana = 1; semana <= semanas; ++semana) {
            const float valor = vazoes(linha, semana);
            if (valor != 0) {
                mGrade->setTextoMatriz(linha, semana, texto::TextoRegional(valor));
                ultimaSemana = semana;
            }
        }
    }
    mSpnAno[0]->setTexto(QString::number(posto.AnoInicial));
    mSpnAno[1]->setTexto(QString::number(posto.AnoFinal));
    // Where typing goes on: behind the last value, in the last year.
    mGrade->setLinha(mGrade->Linhas() - 1);
    mGrade->setColuna(ultimaSemana == 0 ? 1 : std::min(ultimaSemana + 1, semanas));
    if (!mAbrindo) {
        mGrade->setFocus();
    }
}

void FrmPostos::pNovo() {
    setCodigoHabilitado(true);
    pExibir(false, Posto{});
    if (!mAbrindo) {
        CBD().setFocus();
    }
    setEstado(Novo);
    mPostoAlterado = true;
    mHistoricoAlterado = true;
    mAnoConfirmado = false;
}

// A new station starts with the shortest history there may be, up to this year.
void FrmPostos::pLimpar() {
    setEstado(Preenchendo);
    mTxtArea->clear();
    const int anoFinal = QDate::currentDate().year();
    const int anoInicial = anoFinal - (MinimoDeAnos - 1);
    mSpnAno[0]->setTexto(QString::number(anoInicial));
    mSpnAno[1]->setTexto(QString::number(anoFinal));
    mGrade->setLinhas(MinimoDeAnos + 1);
    mGrade->Limpa(false);
    for (int linha = 1; linha <= MinimoDeAnos; ++linha) {
        mGrade->setTextoMatriz(linha, 0, QString::number(anoInicial + linha - 1));
    }
    mGrade->setLinha(1);
    mGrade->setColuna(1);
    setEstado(Limpo);
}

bool FrmPostos::pHaAlteracoes() const {
    return getEstado() == Alterado || (getEstado() == Novo && (mPostoAlterado || mHistoricoAlterado));
}

void FrmPostos::pEsquecerAlteracoes() {
    mPostoAlterado = false;
    mHistoricoAlterado = false;
}

void FrmPostos::pMarcarAlteracao(bool cadastro) {
    if (pMarcaAlterado()) {
        (cadastro ? mPostoAlterado : mHistoricoAlterado) = true;
    }
}

void FrmPostos::pExcluir() {
    if (TxtCodigo().isEnabled()) {
        pInforma(Mensagens::msgSemRegistroExcluir);
        return;
    }
    if (halvo::Servicos::dialogo().Mensagem(Mensagens::msgConfirmaExclusao, Mensagens::msgTituloConfirmacao,
                                            halvo::Icone::Pergunta,
                                            halvo::Botoes::SimNao) == halvo::Resposta::Sim) {
        {
            const PonteiroOcupado ponteiro;
            Posto posto;
            posto.Codigo = texto::CLng(texto::Val(TxtCodigo().text()));
            postoBD().delPosto(posto);
        }
        Notifica(halvo::EventoCasoAlterado);
    }
    Posto primeiro;
    if (postoBD().getPosto(primeiro, BuscaPrimeiro, 0, IndiceNome)) {
        pExibir(true, primeiro);
    } else {
        pNovo();
    }
}

// The import saves the station itself; what the screen held unsaved is left behind.
void FrmPostos::pImportar() {
    const QString arquivo = halvo::UtilitariosArquivo().SelecionaArquivo(Constantes::cteFiltroTodos, {}, {});
    if (arquivo.isEmpty()) {
        return;
    }
    QString erros;
    Posto posto;
    bool importou = false;
    {
        const ProgressoDaOperacao barra(Mensagens::msgImportandoArquivo);
        importou = PostoARQ().importaVazoesSemanais(arquivo, erros, barra.Barra(), posto, postoBD(),
                                                    opcoesBD(), false, false);
    }
    if (importou) {
        pExibir(true, posto);
    } else {
        halvo::Servicos::dialogo().Mensagem(Mensagens::msgErroLerArquivo + QStringLiteral("\r\n\r\n") + erros,
                                            Mensagens::msgTituloErro, halvo::Icone::Erro);
    }
}

void FrmPostos::pInforma(const QString& texto) {
    halvo::Servicos::dialogo().Mensagem(texto, Mensagens::msgTituloInformacao, halvo::Icone::Informacao);
}

// The keys of the code and of the area: digits only.
bool FrmPostos::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() == QEvent::KeyPress && (objeto == &TxtCodigo() || objeto == mTxtArea)) {
        const auto* tecla = static_cast<const QKeyEvent*>(evento);
        const QString texto = tecla->text();
        if (texto.size() == 1 && texto.front().isPrint() &&
            !(tecla->modifiers() & (Qt::ControlModifier | Qt::AltModifier))) {
            const auto* caixa = static_cast<const QLineEdit*>(objeto);
            return !halvo::UtilitariosTexto().AceitaTecla(texto.front(), caixa->text(),
                                                          caixa->cursorPosition(), false);
        }
    }
    return TelaPostos::eventFilter(objeto, evento);
}

}  // namespace corvalin
