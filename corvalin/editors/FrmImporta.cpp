#include "corvalin/editors/FrmImporta.h"

#include "corvalin/frame/Controle.h"
#include "corvalin/frame/Mensagens.h"
#include "halvo/controles/RichText.h"
#include "halvo/sdk/ServicoDialogo.h"
#include "halvo/sdk/Servicos.h"

#include <QBoxLayout>
#include <QDir>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>

#include <cmath>

namespace corvalin {

namespace {

using namespace Mensagens;

enum Pagina : std::uint8_t { Selecao = 1, Verificacao = 2, Importacao = 3 };

const QString CaptionAvancar = QStringLiteral("&") + msgAvancar + QStringLiteral(" >");

}  // namespace

FrmImporta::FrmImporta(QWidget* pai)
    : Tela(QStringLiteral("FrmImporta"), QStringLiteral("Assistente de Importação"), pai),
      mLblImporta(Controle<QLabel>(*this, QStringLiteral("LblImporta"))),
      mLstImporta(Controle<QListWidget>(*this, QStringLiteral("LstImporta"))),
      mBotSelecionar(Controle<QPushButton>(*this, QStringLiteral("BotImportaSelecionar"),
                                           QStringLiteral("&Selecionar..."))),
      mTxtImporta(Controle<halvo::RichText>(*this, QStringLiteral("TxtImporta"))),
      mLblStatusNome(Controle<QLabel>(*this, QStringLiteral("LblImportaStatusNome"))),
      mLblStatusNumero(Controle<QLabel>(*this, QStringLiteral("LblImportaStatusNumero"))),
      mPrgImporta(Controle<QProgressBar>(*this, QStringLiteral("PrgImporta"))),
      mBotVoltar(
          Controle<QPushButton>(*this, QStringLiteral("BotImportaVoltar"), QStringLiteral("< &Voltar"))),
      mBotAvancar(Controle<QPushButton>(*this, QStringLiteral("BotImportaAvancar"), CaptionAvancar)),
      mBotCancela(
          Controle<QPushButton>(*this, QStringLiteral("BotImportaCancela"), QStringLiteral("&Cancela"))),
      mRelatorio(*mTxtImporta),
      mBarra(*mPrgImporta),
      mStatus(*mLblStatusNome, *mLblStatusNumero) {
    mLblImporta->setWordWrap(true);
    mLstImporta->installEventFilter(this);
    mPrgImporta->setRange(0, 100);
    for (QWidget* controle : {static_cast<QWidget*>(mTxtImporta), static_cast<QWidget*>(mLblStatusNome),
                              static_cast<QWidget*>(mLblStatusNumero), static_cast<QWidget*>(mPrgImporta)}) {
        controle->hide();
    }

    auto* lista = new QHBoxLayout;
    lista->addWidget(mLstImporta, 1);
    auto* selecao = new QVBoxLayout;
    selecao->addWidget(mBotSelecionar);
    selecao->addStretch(1);
    lista->addLayout(selecao);
    auto* tela = new QVBoxLayout(this);
    tela->addWidget(mLblImporta);
    tela->addLayout(lista, 1);
    tela->addWidget(mTxtImporta, 1);
    tela->addWidget(mLblStatusNome);
    tela->addWidget(mLblStatusNumero);
    tela->addWidget(mPrgImporta);
    AdicionaPassos(*tela, *mBotVoltar, *mBotAvancar, *mBotCancela);
    resize(600, 400);

    connect(mBotAvancar, &QPushButton::clicked, this, [this] {
        pEvento("BotImportaAvancar_Click", [this] {
            ++mPagina;
            pMudaPagina();
        });
    });
    connect(mBotVoltar, &QPushButton::clicked, this, [this] {
        pEvento("BotImportaVoltar_Click", [this] {
            --mPagina;
            pMudaPagina();
        });
    });
    connect(mBotSelecionar, &QPushButton::clicked, this,
            [this] { pEvento("BotImportaSelecionar_Click", [this] { pCaixaDialogo(); }); });
    connect(mBotCancela, &QPushButton::clicked, this, &QWidget::close);
}

void FrmImporta::pCarregar() {
    mImportacao = std::make_unique<ImportacaoPostos>(getObjetos(), mRelatorio, mBarra, mStatus);
    mPagina = Selecao;
    pMudaPagina();
}

void FrmImporta::pEvento(const char* rotina, const std::function<void()>& acao) {
    pArmadilha(QString::fromLatin1(rotina), acao);
}

void FrmImporta::pMudaPagina() {
    switch (mPagina) {
        case Selecao:
            mLblImporta->setText(msgSelecioneArquivosImportar);
            mLstImporta->show();
            mBotSelecionar->show();
            mTxtImporta->hide();
            mBotVoltar->hide();
            mBotAvancar->setText(CaptionAvancar);
            mBotAvancar->setEnabled(true);
            mLstImporta->setFocus();
            break;
        case Verificacao:
            pPaginaVerificacao();
            break;
        case Importacao:
            pPaginaImportacao();
            break;
        default:
            break;
    }
}

// With problems only the way back is open.
void FrmImporta::pPaginaVerificacao() {
    const bool tudoBem = mImportacao->pVerificaArquivos(pArquivos());
    mLblImporta->setText(tudoBem ? msgArquivosEncontrados : msgProblemasArquivos);
    mTxtImporta->setVisible(!tudoBem);
    mBotAvancar->setEnabled(tudoBem);
    mLstImporta->hide();
    mBotSelecionar->hide();
    mBotVoltar->show();
    mBotAvancar->setText(QStringLiteral("&") + msgIniciar);
    (tudoBem ? mBotAvancar : mBotVoltar)->setFocus();
}

// The import holds the event loop: what it shows is painted by hand.
void FrmImporta::pPaginaImportacao() {
    mBotVoltar->hide();
    mBotAvancar->hide();
    mBotCancela->setEnabled(false);
    mBotCancela->setText(QStringLiteral("&") + msgFechar);
    mLblImporta->setText(msgImportando);
    mTxtImporta->hide();
    for (QWidget* controle : {static_cast<QWidget*>(mLblStatusNome), static_cast<QWidget*>(mLblStatusNumero),
                              static_cast<QWidget*>(mPrgImporta)}) {
        controle->show();
    }
    layout()->activate();
    repaint();

    const bool tudoBem = mImportacao->pImportaArquivos(pArquivos());
    mLblImporta->setText(tudoBem ? msgImportacaoConcluida : msgProblemasImportacao);
    mTxtImporta->setVisible(!tudoBem);
    for (QWidget* controle : {static_cast<QWidget*>(mLblStatusNome), static_cast<QWidget*>(mLblStatusNumero),
                              static_cast<QWidget*>(mPrgImporta)}) {
        controle->hide();
    }
    mBotCancela->setEnabled(true);
    mBotCancela->setFocus();
}

// A cancelled dialog adds nothing; a path already listed is not listed twice.
void FrmImporta::pCaixaDialogo() {
    QStringList listados = pArquivos();
    for (const QString& escolhido : halvo::Servicos::dialogo().SelecionaArquivos()) {
        const QString caminho = QDir::toNativeSeparators(escolhido);
        if (!listados.contains(caminho)) {
            listados << caminho;
            mLstImporta->addItem(caminho);
        }
    }
}

QStringList FrmImporta::pArquivos() const {
    QStringList arquivos;
    for (int i = 0; i < mLstImporta->count(); ++i) {
        arquivos << mLstImporta->item(i)->text();
    }
    return arquivos;
}

// Delete in the list takes out the line selected.
bool FrmImporta::eventFilter(QObject* objeto, QEvent* evento) {
    if (objeto == mLstImporta && evento->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(evento)->key() == Qt::Key_Delete) {
        QListWidgetItem* item = mLstImporta->currentItem();
        if (item != nullptr && item->isSelected()) {
            delete mLstImporta->takeItem(mLstImporta->row(item));
        }
        return true;
    }
    return Tela::eventFilter(objeto, evento);
}

void FrmImporta::RelatorioDaTela::Limpa() {
    mTexto.Limpa();
}

void FrmImporta::RelatorioDaTela::AdicionaLinha(const QString& texto, int estilo, bool destaque,
                                                bool quebraLinha) {
    mTexto.AdicionaLinha(texto, estilo, destaque, quebraLinha);
}

void FrmImporta::BarraDaTela::setValue(double valor) {
    mBarra.setValue(static_cast<int>(std::lround(valor)));
}

void FrmImporta::StatusDaTela::setStatus(const QString& nome, const QString& numero) {
    mNome.setText(nome);
    mNumero.setText(numero);
    mNome.repaint();
    mNumero.repaint();
}

}  // namespace corvalin
