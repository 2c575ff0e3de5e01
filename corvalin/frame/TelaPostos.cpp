#include "corvalin/frame/TelaPostos.h"

#include "corvalin/casedb/casoBD.h"
#include "corvalin/frame/Controle.h"
#include "corvalin/frame/Mensagens.h"
#include "corvalin/stations/Posto.h"
#include "corvalin/stations/PostoBD.h"
#include "halvo/controles/Combo.h"
#include "halvo/sdk/ServicoDialogo.h"
#include "halvo/sdk/Servicos.h"
#include "platform/texto/Texto.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>

namespace corvalin {

namespace {

constexpr int TamanhoMaximoNome = 60;

// The four steps in the order of their buttons, and the icons that show them.
constexpr std::array<ModoBusca, 4> ModosNavegacao{BuscaPrimeiro, BuscaAnterior, BuscaProximo, BuscaUltimo};
constexpr std::array<QStyle::StandardPixmap, 4> IconesNavegacao{
    QStyle::SP_MediaSkipBackward, QStyle::SP_ArrowLeft, QStyle::SP_ArrowRight, QStyle::SP_MediaSkipForward};

}  // namespace

const QString TelaPostos::IndiceNome = QStringLiteral("NomeDoAproveitamento");

TelaPostos::TelaPostos(const QString& nome, const QString& palavra, const QString& titulo, Gravacao gravacao,
                       QWidget* pai)
    : Tela(nome, titulo, pai),
      mPalavra(palavra),
      mGravacao(gravacao),
      mLblCodigo(new QLabel(QStringLiteral("Código do Posto"), this)),
      mTxtCodigo(new QLineEdit(this)),
      mLblNome(new QLabel(QStringLiteral("Nome do Aproveitamento"), this)),
      mCBD(new halvo::Combo(this)) {
    mLblCodigo->setObjectName(QStringLiteral("Lbl%1Codigo").arg(palavra));
    mTxtCodigo->setObjectName(QStringLiteral("Txt%1Codigo").arg(palavra));
    mLblNome->setObjectName(QStringLiteral("Lbl%1Nome").arg(palavra));
    mCBD->setObjectName(QStringLiteral("CBD%1").arg(palavra));
    mLblCodigo->setBuddy(mTxtCodigo);
    mLblNome->setBuddy(mCBD);
    const int largura = fontMetrics().horizontalAdvance(QLatin1Char('0'));
    mTxtCodigo->setMinimumWidth(largura * 8);
    mTxtCodigo->setMaximumWidth(largura * 12);
    connect(mCBD, &halvo::Combo::Selecionado, this, &TelaPostos::pEscolhido);
    connect(mCBD, &halvo::Combo::Alterado, this, [this](const QString& texto) { mNomeNaTela = texto; });
}

void TelaPostos::pMontaTela(QWidget& corpo, std::initializer_list<QPushButton*> botoesProprios) {
    auto* cabecalho = new QHBoxLayout;
    cabecalho->addWidget(mLblCodigo);
    cabecalho->addWidget(mTxtCodigo);
    cabecalho->addSpacing(fontMetrics().averageCharWidth() * 2);
    cabecalho->addWidget(mLblNome);
    cabecalho->addWidget(mCBD, 1);

    // Made after the screen's own part, so that Tab reaches them last; the screen's own buttons
    // join them in the order they stand.
    auto* rodape = new QHBoxLayout;
    QWidget* anterior = nullptr;
    for (std::size_t i = 0; i < ModosNavegacao.size(); ++i) {
        QPushButton* botao =
            Controle<QPushButton>(*this, QStringLiteral("Bot%1Navegacao_%2").arg(mPalavra).arg(i), {});
        botao->setIcon(style()->standardIcon(IconesNavegacao[i]));
        connect(botao, &QPushButton::clicked, this, [this, i] { pNavegacao(static_cast<int>(i)); });
        rodape->addWidget(botao);
        anterior = botao;
    }
    rodape->addStretch(1);
    for (QPushButton* botao : botoesProprios) {
        rodape->addWidget(botao);
        QWidget::setTabOrder(anterior, botao);
        anterior = botao;
    }
    if (mGravacao == Gravacao::Com) {
        QPushButton* gravar = Controle<QPushButton>(*this, QStringLiteral("Bot%1Gravar").arg(mPalavra),
                                                    QStringLiteral("&Gravar"));
        pRegistraGravacao(*gravar);
        connect(gravar, &QPushButton::clicked, this, [this] {
            pArmadilha(QStringLiteral("Bot%1Gravar_Click").arg(mPalavra), [this] { pGravarClicado(); });
        });
        rodape->addWidget(gravar);
    }
    QPushButton* sair = Controle<QPushButton>(*this, QStringLiteral("Bot%1Sair").arg(mPalavra),
                                              QStringLiteral("&") + Mensagens::msgFechar);
    connect(sair, &QPushButton::clicked, this, &QWidget::close);
    rodape->addWidget(sair);

    auto* tela = new QVBoxLayout(this);
    tela->addLayout(cabecalho);
    tela->addWidget(&corpo, 1);
    tela->addLayout(rodape);
}

void TelaPostos::pCarregar() {
    mCBD->setTabela(getCasoBD().TabPostos());
    mCBD->setCampo(IndiceNome);
    mCBD->setIndice(IndiceNome);
    mCBD->setTamanhoMaximo(TamanhoMaximoNome);
    mCBD->setSomenteLista(pSomenteLista());
    pPrepararControles();
    pMostrarPrimeiro();
}

void TelaPostos::pMostrarPrimeiro() {
    Posto posto;
    const bool achou = postoBD().getPosto(posto, BuscaPrimeiro, 0, IndiceNome);
    pExibir(achou, posto);
}

std::int32_t TelaPostos::pCodigoNaTela() const {
    const QString codigo = mTxtCodigo->text();
    return texto::IsNumeric(codigo) ? texto::CLng(texto::Val(codigo)) : 0;
}

void TelaPostos::setCodigoHabilitado(bool habilitado) {
    mLblCodigo->setEnabled(habilitado);
    mTxtCodigo->setEnabled(habilitado);
}

void TelaPostos::setNavegacaoHabilitada(bool habilitada) {
    for (std::size_t i = 0; i < ModosNavegacao.size(); ++i) {
        if (auto* botao = findChild<QPushButton*>(QStringLiteral("Bot%1Navegacao_%2").arg(mPalavra).arg(i))) {
            botao->setEnabled(habilitada);
        }
    }
}

bool TelaPostos::pObtemPosto(Posto& posto) {
    if (!texto::Trim(mTxtCodigo->text()).isEmpty() &&
        postoBD().getPosto(posto, BuscaPorCodigo, pCodigoNaTela(), {})) {
        return true;
    }
    halvo::Servicos::dialogo().Mensagem(Mensagens::msgSelecionePosto, Mensagens::msgTituloInformacao,
                                        halvo::Icone::Informacao);
    return false;
}

void TelaPostos::pExibir(bool achou, const Posto& posto) {
    if (achou) {
        mTxtCodigo->setText(QString::number(posto.Codigo));
        mNomeNaTela = posto.Nome;
        mCBD->setTexto(posto.Nome);
        pMostrar(posto);
    } else {
        mTxtCodigo->clear();
        mNomeNaTela.clear();
        mCBD->setTexto({});
        pLimpar();
    }
}

void TelaPostos::pNavegacao(int indice) {
    pArmadilha(QStringLiteral("Bot%1Navegacao_Click").arg(mPalavra), [&] {
        if (!pConfirma()) {
            return;
        }
        const ModoBusca modo = ModosNavegacao[static_cast<std::size_t>(indice)];
        const std::int32_t codigo = pCodigoNaTela();
        Posto posto;
        const bool achou = postoBD().getPosto(
            posto, modo, modo == BuscaAnterior || modo == BuscaProximo ? codigo : 0, IndiceNome);
        pExibir(achou, posto);
        if (achou) {
            pNavegou(posto);
        }
    });
}

void TelaPostos::pEscolhido(recordstore::Bookmark marcador) {
    pArmadilha(QStringLiteral("CBD%1_Click").arg(mPalavra), [&] {
        if (!pConfirma()) {
            mCBD->setTexto(mNomeNaTela);
            return;
        }
        getCasoBD().TabPostos().setBookmark(marcador);
        Posto posto;
        const bool achou = postoBD().getPosto(posto, BuscaAtual, 0, IndiceNome);
        pExibir(achou, posto);
        if (achou) {
            pNavegou(posto);
        }
    });
}

}  // namespace corvalin
