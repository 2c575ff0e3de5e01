#include "corvalin/casedb/FrmDiretorio.h"

#include "corvalin/frame/Controle.h"
#include "corvalin/frame/Geral.h"
#include "corvalin/frame/Mensagens.h"
#include "halvo/sdk/ServicoDialogo.h"
#include "halvo/sdk/Servicos.h"
#include "halvo/sdk/UtilitariosArquivo.h"
#include "platform/texto/Texto.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileSystemModel>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeView>

#include <algorithm>

namespace corvalin {

namespace {

// The folder list's height without the subfolder option, and with it, in twips.
constexpr int AlturaSemOpcao = 3240;
constexpr int AlturaComOpcao = 2160;
constexpr int TwipsPorPixel = 15;

// Characters that would make the new name a path or a pattern rather than one folder.
const QString CaracteresRecusados = QStringLiteral("./\\?*");

void pErro(const QString& texto) {
    halvo::Servicos::dialogo().Mensagem(texto, Mensagens::msgTituloErro, halvo::Icone::Erro);
}

}  // namespace

FrmDiretorio::FrmDiretorio(QWidget* pai)
    : QDialog(pai),
      mDrvDiretorio(Controle<QComboBox>(*this, QStringLiteral("DrvDiretorio"))),
      mPastas(new QFileSystemModel(this)),
      mDirDiretorio(Controle<QTreeView>(*this, QStringLiteral("DirDiretorio"))),
      mFmeDiretorio(Controle<QGroupBox>(*this, QStringLiteral("FmeDiretorio"))),
      mChkDiretorio(Controle<QCheckBox>(*mFmeDiretorio, QStringLiteral("ChkDiretorio"))),
      mTxtDiretorio(Controle<QLineEdit>(*mFmeDiretorio, QStringLiteral("TxtDiretorio"))) {
    const PonteiroOcupado ponteiro;
    setObjectName(QStringLiteral("FrmDiretorio"));
    setWindowTitle(QStringLiteral("Diretório"));

    for (const QFileInfo& drive : QDir::drives()) {
        mDrvDiretorio->addItem(QDir::toNativeSeparators(drive.absolutePath()), drive.absolutePath());
    }
    mPastas->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot | QDir::Drives);
    mPastas->setRootPath({});
    mDirDiretorio->setModel(mPastas);
    mDirDiretorio->setHeaderHidden(true);
    mDirDiretorio->setSortingEnabled(true);
    mDirDiretorio->sortByColumn(0, Qt::AscendingOrder);
    for (int coluna = 1; coluna < mPastas->columnCount(); ++coluna) {
        mDirDiretorio->hideColumn(coluna);
    }
    mChkDiretorio->setText(QStringLiteral("Criar subpasta"));
    mTxtDiretorio->setEnabled(false);

    auto* botaoOK = Controle<QPushButton>(*this, QStringLiteral("BotDiretorioOK"));
    botaoOK->setText(QStringLiteral("OK"));
    auto* botaoCancela = Controle<QPushButton>(*this, QStringLiteral("BotDiretorioCancela"));
    botaoCancela->setText(QStringLiteral("Cancelar"));
    // Enter moves on here as on every screen; the buttons answer to Space and their clicks.
    for (QPushButton* botao : {botaoOK, botaoCancela}) {
        botao->setAutoDefault(false);
    }

    auto* subpasta = new QVBoxLayout(mFmeDiretorio);
    subpasta->addWidget(mChkDiretorio);
    subpasta->addWidget(mTxtDiretorio);
    auto* botoes = new QHBoxLayout;
    botoes->addStretch(1);
    botoes->addWidget(botaoOK);
    botoes->addWidget(botaoCancela);
    auto* leiaute = new QVBoxLayout(this);
    leiaute->addWidget(mDrvDiretorio);
    leiaute->addWidget(mDirDiretorio, 1);
    leiaute->addWidget(mFmeDiretorio);
    leiaute->addLayout(botoes);

    connect(mDrvDiretorio, &QComboBox::activated, this, &FrmDiretorio::pDriveEscolhido);
    connect(mDirDiretorio->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &FrmDiretorio::pMostraDrive);
    connect(mChkDiretorio, &QCheckBox::toggled, mTxtDiretorio, &QWidget::setEnabled);
    connect(botaoOK, &QPushButton::clicked, this, &FrmDiretorio::pOK);
    connect(botaoCancela, &QPushButton::clicked, this, &FrmDiretorio::reject);

    setOpcaoParaCriar(false);
    setCaminho(QDir::currentPath());
}

void FrmDiretorio::setOpcaoParaCriar(bool opcao) {
    mFmeDiretorio->setVisible(opcao);
    mDirDiretorio->setMinimumHeight((opcao ? AlturaComOpcao : AlturaSemOpcao) / TwipsPorPixel);
}

QString FrmDiretorio::Caminho() const {
    const QModelIndex atual = mDirDiretorio->currentIndex();
    const QString caminho =
        atual.isValid() ? mPastas->filePath(atual) : mDrvDiretorio->currentData().toString();
    return QDir::toNativeSeparators(caminho);
}

// As the folder lists of old: the chain down to the folder, and its subfolders.
void FrmDiretorio::setCaminho(const QString& caminho) {
    const QModelIndex indice = mPastas->index(QDir::fromNativeSeparators(caminho));
    mDirDiretorio->collapseAll();
    mDirDiretorio->setCurrentIndex(indice);
    mDirDiretorio->expand(indice);
    mDirDiretorio->scrollTo(indice);
    pMostraDrive();
}

// The drive list follows the folder: the drive whose root the folder's path starts with.
void FrmDiretorio::pMostraDrive() {
    const QString caminho = QDir::fromNativeSeparators(Caminho());
    for (int i = 0; i < mDrvDiretorio->count(); ++i) {
        if (caminho.startsWith(mDrvDiretorio->itemData(i).toString(), Qt::CaseInsensitive)) {
            mDrvDiretorio->setCurrentIndex(i);
            return;
        }
    }
}

// A drive that cannot be read (one that is not ready) leaves the folder where it was.
void FrmDiretorio::pDriveEscolhido() {
    const QString drive = mDrvDiretorio->currentData().toString();
    if (halvo::UtilitariosArquivo().PastaExiste(drive)) {
        setCaminho(drive);
    } else {
        pMostraDrive();
    }
}

void FrmDiretorio::pOK() {
    const QString nome = mTxtDiretorio->text();
    if (mChkDiretorio->isChecked() && !texto::Trim(nome).isEmpty()) {
        if (std::any_of(nome.cbegin(), nome.cend(),
                        [](QChar c) { return CaracteresRecusados.contains(c); })) {
            pErro(Mensagens::msgErroCriarDiretorio);
            return;
        }
        QString base = Caminho();
        if (!base.endsWith(QDir::separator())) {
            base += QDir::separator();
        }
        const halvo::UtilitariosArquivo arquivos;
        if (arquivos.PastaExiste(base + nome)) {
            pErro(Mensagens::msgDiretorioJaExistente);
            return;
        }
        if (!arquivos.CriaPasta(base + nome)) {
            pErro(Mensagens::msgErroCriarDiretorio);
            return;
        }
        setCaminho(base + nome);
    }
    mCancelar = false;
    accept();
}

void FrmDiretorio::reject() {
    mCancelar = true;
    QDialog::reject();
}

void FrmDiretorio::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter) {
        evento->accept();
        focusNextChild();
        return;
    }
    QDialog::keyPressEvent(evento);
}

}  // namespace corvalin
