#include "corvalin/execution/FrmExecutar.h"

#include "corvalin/frame/Controle.h"
#include "corvalin/frame/FrmBarraDeProgresso.h"
#include "corvalin/frame/Mensagens.h"
#include "halvo/controles/RichText.h"

#include <QBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

namespace corvalin {

namespace {

QLabel* pRotulo(QWidget& pai, const QString& nome, const QColor& cor) {
    auto* rotulo = Controle<QLabel>(pai, nome);
    QPalette paleta = rotulo->palette();
    paleta.setColor(QPalette::WindowText, cor);
    rotulo->setPalette(paleta);
    rotulo->hide();
    return rotulo;
}

QListWidgetItem& pItem(const QListWidget& lista, int linha) {
    QListWidgetItem* item = lista.item(linha);
    if (item == nullptr) {
        throw plataforma::ErroVB::padrao(plataforma::ErroSubscrito);
    }
    return *item;
}

}  // namespace

FrmExecutar::FrmExecutar(QString pastaPlugin, QWidget* pai)
    : Tela(QStringLiteral("FrmExecutar"), QStringLiteral("Assistente de Execução"), pai),
      mPastaPlugin(std::move(pastaPlugin)),
      mLblExecutar(new QLabel(Mensagens::msgSelecionePostosExecucao, this)),
      mLstExecutar(new QListWidget(this)),
      mBotMarcar(
          Controle<QPushButton>(*this, QStringLiteral("BotExecutarMarcar"), QStringLiteral("&Marcar tudo"))),
      mBotDesmarcar(Controle<QPushButton>(*this, QStringLiteral("BotExecutarDesmarcar"),
                                          QStringLiteral("&Desmarcar tudo"))),
      mRtfExecutar(new halvo::RichText(this)),
      mLblAlertas(pRotulo(*this, QStringLiteral("LblExecutarAlertas"), Qt::blue)),
      mLblProblemas(pRotulo(*this, QStringLiteral("LblExecutarProblemas"), Qt::red)),
      mBotVoltar(
          Controle<QPushButton>(*this, QStringLiteral("BotExecutarVoltar"), QStringLiteral("< &Voltar"))),
      mBotAvancar(Controle<QPushButton>(*this, QStringLiteral("BotExecutarAvancar"),
                                        QStringLiteral("&") + Mensagens::msgAvancar + QStringLiteral(" >"))),
      mBotCancela(
          Controle<QPushButton>(*this, QStringLiteral("BotExecutarCancela"), QStringLiteral("&Cancela"))),
      mLista(*mLstExecutar),
      mRegistro(*mRtfExecutar, [this] { mLblExecutar->setText(mAssistente->getLblExecutar()); }) {
    mLblExecutar->setObjectName(QStringLiteral("LblExecutar"));
    mLstExecutar->setObjectName(QStringLiteral("LstExecutar"));
    mRtfExecutar->setObjectName(QStringLiteral("RtfExecutar"));
    mRtfExecutar->hide();
    mBotVoltar->hide();
    auto* executando = new QLabel(this);
    executando->setObjectName(QStringLiteral("LblExecutarExecutando"));
    executando->hide();

    auto* marcacao = new QHBoxLayout;
    marcacao->addWidget(mBotMarcar);
    marcacao->addWidget(mBotDesmarcar);
    marcacao->addStretch(1);
    marcacao->addWidget(mLblAlertas);
    marcacao->addSpacing(fontMetrics().averageCharWidth() * 3);
    marcacao->addWidget(mLblProblemas);
    auto* tela = new QVBoxLayout(this);
    tela->addWidget(mLblExecutar);
    tela->addWidget(mLstExecutar, 1);
    tela->addWidget(mRtfExecutar, 1);
    tela->addLayout(marcacao);
    AdicionaPassos(*tela, *mBotVoltar, *mBotAvancar, *mBotCancela);
    resize(560, 420);

    connect(mBotAvancar, &QPushButton::clicked, this,
            [this] { pArmadilha(QStringLiteral("BotExecutarAvancar_Click"), [this] { pAvancar(); }); });
    connect(mBotVoltar, &QPushButton::clicked, this,
            [this] { pArmadilha(QStringLiteral("BotExecutarVoltar_Click"), [this] { pVoltar(); }); });
    connect(mBotMarcar, &QPushButton::clicked, this, [this] { pMarcar(true); });
    connect(mBotDesmarcar, &QPushButton::clicked, this, [this] { pMarcar(false); });
    connect(mBotCancela, &QPushButton::clicked, this, &QWidget::close);
    connect(mLstExecutar, &QListWidget::itemChanged, this, &FrmExecutar::pAvancarHabilita);
}

void FrmExecutar::pCarregar() {
    mAssistente = std::make_unique<AssistenteExecucao>(getObjetos(), mPastaPlugin, mLista, mRegistro);
    if (!mAssistente->pCarregarPostos()) {
        mBotAvancar->setEnabled(false);
    }
}

void FrmExecutar::pMarcar(bool valor) {
    for (int linha = 0; linha < mLista.Quantidade(); ++linha) {
        mLista.setMarcada(linha, valor);
    }
    if (mLista.Quantidade() > 0) {
        mLista.setLinhaAtual(0);
    }
}

void FrmExecutar::pAvancarHabilita() {
    bool marcada = false;
    for (int linha = 0; linha < mLista.Quantidade() && !marcada; ++linha) {
        marcada = mLista.Marcada(linha);
    }
    mBotAvancar->setEnabled(marcada);
}

// The title of a step follows its report: the log's emptying retitles it.
void FrmExecutar::pMostrarPasso(std::uint8_t passo) {
    if (passo == 1) {
        mLblExecutar->setText(Mensagens::msgSelecionePostosExecucao);
        mBotAvancar->setEnabled(true);
        mBotAvancar->setText(QStringLiteral("&") + Mensagens::msgAvancar + QStringLiteral(" >"));
    } else if (passo == 2) {
        mBotAvancar->setEnabled(mAssistente->pValidar());
        mBotAvancar->setText(QStringLiteral("&") + Mensagens::msgExecutar);
        mLblAlertas->setText(mAssistente->getLblExecutarAlertas());
        mLblProblemas->setText(mAssistente->getLblExecutarProblemas());
    }
    for (QWidget* controle : {static_cast<QWidget*>(mLstExecutar), static_cast<QWidget*>(mBotMarcar),
                              static_cast<QWidget*>(mBotDesmarcar)}) {
        controle->setVisible(passo == 1);
    }
    for (QWidget* controle : {static_cast<QWidget*>(mRtfExecutar), static_cast<QWidget*>(mLblAlertas),
                              static_cast<QWidget*>(mLblProblemas)}) {
        controle->setVisible(passo == 2);
    }
    mBotVoltar->setVisible(passo > 1);
    if (mBotAvancar->isEnabled()) {
        mBotAvancar->setFocus();
    } else if (mBotVoltar->isVisibleTo(this)) {
        mBotVoltar->setFocus();
    }
}

void FrmExecutar::pAvancar() {
    if (mLstExecutar->isVisibleTo(this)) {
        pMostrarPasso(2);
    } else if (mRtfExecutar->isVisibleTo(this)) {
        JanelaDaBarra janela;
        mAssistente->pGerarArquivos(janela);
        pExecutar();
    }
}

void FrmExecutar::pVoltar() {
    pMostrarPasso(mRtfExecutar->isVisibleTo(this) ? 1 : 2);
}

// Whatever becomes of the run, the form is left with "Fechar" alone.
void FrmExecutar::pExecutar() {
    for (QPushButton* botao : {mBotVoltar, mBotAvancar, mBotCancela}) {
        botao->setEnabled(false);
    }
    mLblProblemas->hide();
    mLblAlertas->hide();
    mRtfExecutar->show();
    pArmadilha(QStringLiteral("pExecutar"), [this] { mAssistente->pExecutar(); });
    mBotCancela->show();
    mBotCancela->setText(Mensagens::msgFechar);
    mBotCancela->setEnabled(true);
}

int FrmExecutar::ListaDaTela::Quantidade() const {
    return mLista.count();
}

QString FrmExecutar::ListaDaTela::Texto(int linha) const {
    return pItem(mLista, linha).text();
}

bool FrmExecutar::ListaDaTela::Marcada(int linha) const {
    return pItem(mLista, linha).checkState() == Qt::Checked;
}

void FrmExecutar::ListaDaTela::setMarcada(int linha, bool marcada) {
    pItem(mLista, linha).setCheckState(marcada ? Qt::Checked : Qt::Unchecked);
}

void FrmExecutar::ListaDaTela::Adiciona(const QString& texto) {
    auto* item = new QListWidgetItem(texto, &mLista);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setCheckState(Qt::Unchecked);
}

void FrmExecutar::ListaDaTela::setLinhaAtual(int linha) {
    mLista.setCurrentRow(linha);
}

void FrmExecutar::RegistroDaTela::Limpa() {
    mTexto.Limpa();
    mAoLimpar();
}

void FrmExecutar::RegistroDaTela::AdicionaLinha(const QString& texto, int estilo, bool destaque,
                                                bool quebraLinha) {
    mTexto.AdicionaLinha(texto, estilo, destaque, quebraLinha);
}

void FrmExecutar::JanelaDaBarra::setCaption(const QString& texto) {
    FrmBarraDeProgresso::Instancia().setWindowTitle(texto);
}

void FrmExecutar::JanelaDaBarra::Mostra() {
    FrmBarraDeProgresso& formulario = FrmBarraDeProgresso::Instancia();
    formulario.show();
    formulario.Atualizar();
}

void FrmExecutar::JanelaDaBarra::Esconde() {
    FrmBarraDeProgresso::Descarregar();
}

Progresso& FrmExecutar::JanelaDaBarra::Barra() {
    return FrmBarraDeProgresso::Instancia().Barra();
}

}  // namespace corvalin
