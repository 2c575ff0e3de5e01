#include "halvo/app/JanelaPrincipal.h"

#include "halvo/app/DialogoNovoCaso.h"
#include "halvo/app/Grupos.h"
#include "halvo/app/NotificadorMensagem.h"
#include "halvo/app/PainelCasos.h"
#include "halvo/app/UtilitariosSistemaGui.h"
#include "halvo/sdk/IModelo.h"
#include "halvo/sdk/ServicoDialogo.h"
#include "halvo/sdk/Servicos.h"

#include <QCloseEvent>
#include <QDir>
#include <QDockWidget>
#include <QFileInfo>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPointer>
#include <QStandardPaths>
#include <QStatusBar>

namespace halvo {

JanelaPrincipal::JanelaPrincipal(IModelo& modelo, ListaDeCasos& lista, QWidget* pai)
    : QMainWindow(pai),
      mModelo(modelo),
      mNotificador(std::make_shared<NotificadorMensagem>(
          // The model keeps the notifier as long as it likes; the status bar may be gone by then.
          [barra = QPointer<QStatusBar>(statusBar())](const QString& frase) {
              if (barra != nullptr) {
                  barra->showMessage(frase);
              }
          })),
      mGerente(modelo, lista, mNotificador),
      mArea(new QMdiArea(this)),
      mPainel(new PainelCasos(this)) {
    setObjectName(QStringLiteral("JanelaPrincipal"));
    mArea->setObjectName(QStringLiteral("AreaDeTrabalho"));
    mArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    mArea->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setCentralWidget(mArea);

    auto* doca = new QDockWidget(QStringLiteral("Estudos e casos"), this);
    doca->setObjectName(QStringLiteral("DocaCasos"));
    doca->setWidget(mPainel);
    addDockWidget(Qt::LeftDockWidgetArea, doca);

    pCriaMenuCaso();
    pCriaMenusDeTelas();
    pCriaMenuJanela(*doca);
    pCriaMenuAjuda();
    connect(mPainel, &QTreeWidget::itemSelectionChanged, this, &JanelaPrincipal::pAtualiza);
    // Queued: opening rebuilds the tree, which must not happen inside its own click.
    connect(
        mPainel, &PainelCasos::Ativado, this,
        [this](std::int32_t codigo) {
            mPainel->Seleciona(codigo);
            pAbrir();
        },
        Qt::QueuedConnection);

    resize(1100, 720);
    pMostraCasos();
}

// The screens let go of the case before the model closes it.
JanelaPrincipal::~JanelaPrincipal() {
    qDeleteAll(mArea->subWindowList());
}

bool JanelaPrincipal::AbrePasta(const QString& pasta) {
    if (!pFechaTelasDoAberto()) {
        return false;
    }
    const bool aberto = mGerente.AbrePasta(pasta);
    pMostraCasos();
    if (aberto) {
        mPainel->Seleciona(*mGerente.Aberto());
    }
    return aberto;
}

void JanelaPrincipal::closeEvent(QCloseEvent* evento) {
    mArea->closeAllSubWindows();
    if (!mArea->subWindowList().isEmpty()) {
        evento->ignore();
        return;
    }
    mGerente.Fecha();
    evento->accept();
}

void JanelaPrincipal::pCriaMenuCaso() {
    QMenu* menu = menuBar()->addMenu(QStringLiteral("&Caso"));
    menu->setObjectName(QStringLiteral("menuCaso"));
    QAction* novo = pAcao(QStringLiteral("acaoNovo"), QStringLiteral("&Novo..."));
    mAbrir = pAcao(QStringLiteral("acaoAbrir"), QStringLiteral("&Abrir"));
    mFechar = pAcao(QStringLiteral("acaoFechar"), QStringLiteral("&Fechar"));
    mCopiar = pAcao(QStringLiteral("acaoCopiar"), QStringLiteral("&Copiar..."));
    mApagar = pAcao(QStringLiteral("acaoApagar"), QStringLiteral("A&pagar"));
    mSomenteLeitura = pAcao(QStringLiteral("acaoSomenteLeitura"), QStringLiteral("&Somente leitura"));
    mSomenteLeitura->setCheckable(true);
    mExecutar = pAcao(QStringLiteral("acaoExecutar"), QStringLiteral("&Executar caso"));
    QAction* sair = pAcao(QStringLiteral("acaoSair"), QStringLiteral("Sai&r"));
    sair->setShortcut(QKeySequence::Quit);
    menu->addActions({novo, mAbrir, mFechar});
    menu->addSeparator();
    menu->addActions({mCopiar, mApagar, mSomenteLeitura});
    menu->addSeparator();
    menu->addAction(mExecutar);
    menu->addSeparator();
    menu->addAction(sair);

    connect(novo, &QAction::triggered, this, &JanelaPrincipal::pNovo);
    connect(mAbrir, &QAction::triggered, this, &JanelaPrincipal::pAbrir);
    connect(mFechar, &QAction::triggered, this, &JanelaPrincipal::pFechar);
    connect(mCopiar, &QAction::triggered, this, &JanelaPrincipal::pCopiar);
    connect(mApagar, &QAction::triggered, this, &JanelaPrincipal::pApagar);
    connect(mSomenteLeitura, &QAction::triggered, this, &JanelaPrincipal::pSomenteLeitura);
    connect(mExecutar, &QAction::triggered, this, &JanelaPrincipal::pExecutar);
    connect(sair, &QAction::triggered, this, &QWidget::close);
}

// One menu per group the model has; a flagged entry starts a run of related entries.
void JanelaPrincipal::pCriaMenusDeTelas() {
    for (std::int32_t grupo = 1; grupo <= static_cast<std::int32_t>(MenusDosGrupos.size()); ++grupo) {
        const auto telas = mModelo.Telas(grupo);
        if (!telas) {
            continue;
        }
        QMenu* menu = menuBar()->addMenu(MenuDoGrupo(grupo));
        menu->setObjectName(QStringLiteral("menuGrupo_%1").arg(grupo));
        for (std::size_t item = 1; item < telas->size(); ++item) {
            const EntradaTela& tela = (*telas)[item];
            if (tela.Flag && item > 1) {
                menu->addSeparator();
            }
            QString titulo = tela.Titulo;
            QAction* acao = pAcao(QStringLiteral("acaoTela_%1_%2").arg(grupo).arg(item),
                                  titulo.replace(u'&', QStringLiteral("&&")));
            menu->addAction(acao);
            const auto codigoItem = static_cast<std::int16_t>(item);
            connect(acao, &QAction::triggered, this,
                    [this, codigoItem, grupo] { pAbreTela(codigoItem, grupo); });
            mTelas.push_back(acao);
        }
    }
}

void JanelaPrincipal::pCriaMenuJanela(QDockWidget& doca) {
    QMenu* menu = menuBar()->addMenu(QStringLiteral("&Janela"));
    menu->setObjectName(QStringLiteral("menuJanela"));
    connect(menu->addAction(QStringLiteral("&Cascata")), &QAction::triggered, mArea,
            &QMdiArea::cascadeSubWindows);
    connect(menu->addAction(QStringLiteral("&Lado a lado")), &QAction::triggered, mArea,
            &QMdiArea::tileSubWindows);
    connect(menu->addAction(QStringLiteral("&Fechar todas")), &QAction::triggered, mArea,
            &QMdiArea::closeAllSubWindows);
    menu->addSeparator();
    menu->addAction(doca.toggleViewAction());
}

void JanelaPrincipal::pCriaMenuAjuda() {
    QMenu* menu = menuBar()->addMenu(QStringLiteral("Aj&uda"));
    menu->setObjectName(QStringLiteral("menuAjuda"));
    QAction* sobre = pAcao(QStringLiteral("acaoSobre"), QStringLiteral("&Sobre..."));
    menu->addAction(sobre);
    connect(sobre, &QAction::triggered, this, &JanelaPrincipal::pSobre);
}

QAction* JanelaPrincipal::pAcao(const QString& nome, const QString& texto) {
    auto* acao = new QAction(texto, this);
    acao->setObjectName(nome);
    return acao;
}

void JanelaPrincipal::pNovo() {
    QStringList estudos;
    for (const EntradaCaso& entrada : mGerente.Lista().Casos()) {
        if (!estudos.contains(entrada.Estudo)) {
            estudos << entrada.Estudo;
        }
    }
    estudos.sort(Qt::CaseInsensitive);
    const QString base = QDir(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation))
                             .filePath(QStringLiteral("Halvo"));
    DialogoNovoCaso dialogo(estudos, base, this);
    if (dialogo.exec() != QDialog::Accepted) {
        return;
    }
    const EntradaCaso entrada = dialogo.Entrada();
    if (const auto codigo = mGerente.Cria(entrada)) {
        pMostraCasos();
        mPainel->Seleciona(*codigo);
        statusBar()->showMessage(
            QStringLiteral("Caso \"%1\" criado em %2.").arg(entrada.Nome, entrada.Pasta));
    }
}

void JanelaPrincipal::pAbrir() {
    const EntradaCaso* selecionado = pSelecionado();
    if (selecionado == nullptr) {
        return;
    }
    const QString nome = selecionado->Nome;
    const std::int32_t codigo = selecionado->Codigo;
    if (!pFechaTelasDoAberto()) {
        return;
    }
    if (mGerente.Abre(codigo)) {
        statusBar()->showMessage(QStringLiteral("Caso \"%1\" aberto.").arg(nome));
    }
    pMostraCasos();
}

void JanelaPrincipal::pFechar() {
    if (!pFechaTelasDoAberto()) {
        return;
    }
    mGerente.Fecha();
    statusBar()->showMessage(QStringLiteral("Caso fechado."));
    pMostraCasos();
}

void JanelaPrincipal::pCopiar() {
    const EntradaCaso* selecionado = pSelecionado();
    if (selecionado == nullptr) {
        return;
    }
    const EntradaCaso origem = *selecionado;
    ServicoDialogo& dialogo = Servicos::dialogo();
    const QString destino = dialogo.SelecionaPasta(QFileInfo(origem.Pasta).absolutePath(),
                                                   QStringLiteral("Pasta da cópia do caso"));
    if (destino.isEmpty()) {
        return;
    }
    // The copy writes over files of the same name: it goes only to a new or empty folder.
    if (!QDir(destino).isEmpty(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System)) {
        dialogo.Mensagem(
            QStringLiteral("A pasta %1 não está vazia. Escolha uma pasta nova ou vazia para a cópia.")
                .arg(destino),
            QStringLiteral("Informação"), Icone::Informacao);
        return;
    }
    const auto copia = mGerente.Copia(origem.Codigo, destino);
    pMostraCasos();
    if (!copia) {
        dialogo.Mensagem(
            QStringLiteral("Não foi possível copiar o caso \"%1\" para %2.").arg(origem.Nome, destino),
            QStringLiteral("Erro"), Icone::Erro);
        return;
    }
    mPainel->Seleciona(*copia);
    statusBar()->showMessage(QStringLiteral("Caso \"%1\" copiado para %2.").arg(origem.Nome, destino));
}

void JanelaPrincipal::pApagar() {
    const EntradaCaso* selecionado = pSelecionado();
    if (selecionado == nullptr) {
        return;
    }
    const EntradaCaso caso = *selecionado;
    ServicoDialogo& dialogo = Servicos::dialogo();
    const QString pergunta = QStringLiteral(
                                 "Deseja apagar o caso \"%1\" do estudo \"%2\"?\rA pasta %3 será apagada com "
                                 "tudo o que ela contém.")
                                 .arg(caso.Nome, caso.Estudo, caso.Pasta);
    if (dialogo.Mensagem(pergunta, QStringLiteral("Confirmação"), Icone::Pergunta, Botoes::SimNao) !=
            Resposta::Sim ||
        !pFechaTelasDoCaso(caso)) {
        return;
    }
    if (!mGerente.Apaga(caso.Codigo)) {
        dialogo.Mensagem(QStringLiteral("Não foi possível apagar o caso \"%1\".").arg(caso.Nome),
                         QStringLiteral("Erro"), Icone::Erro);
    } else {
        statusBar()->showMessage(QStringLiteral("Caso \"%1\" apagado.").arg(caso.Nome));
    }
    pMostraCasos();
}

void JanelaPrincipal::pSomenteLeitura(bool somenteLeitura) {
    if (const EntradaCaso* selecionado = pSelecionado()) {
        mGerente.setSomenteLeitura(selecionado->Codigo, somenteLeitura);
    }
    pMostraCasos();
}

void JanelaPrincipal::pExecutar() {
    mGerente.Executa();
}

void JanelaPrincipal::pSobre() {
    Servicos::dialogo().Mensagem(
        QStringLiteral("Halvo\r\rModelo: %1\r%2\rVersão do modelo: %3\rVersão da interface: %4")
            .arg(mModelo.Modelo(), mModelo.Descricao(), mModelo.VersaoModelo(), mModelo.VersaoInterface()),
        QStringLiteral("Sobre o Halvo"), Icone::Informacao);
}

void JanelaPrincipal::pAbreTela(std::int16_t item, std::int32_t grupo) {
    if (mModelo.JanelaAbrir(item, grupo, mArea) != 1) {
        statusBar()->showMessage(QStringLiteral("A tela não pôde ser aberta."));
    }
}

// Screens that refuse to close (a question about unsaved changes answered with Cancel) keep the
// case from being deleted.
bool JanelaPrincipal::pFechaTelasDoCaso(const EntradaCaso& entrada) {
    const QString codigo = QString::number(entrada.Codigo);
    for (QMdiSubWindow* subjanela : mArea->subWindowList()) {
        const auto registro =
            subjanela->widget() ? UtilitariosSistemaGui::RegistroDe(*subjanela->widget()) : std::nullopt;
        if (registro && registro->estudo == entrada.Estudo && registro->caso == codigo &&
            !subjanela->close()) {
            return false;
        }
    }
    return true;
}

// The model's tables are counted per case database: a screen left open on a closed case would
// keep the next case's tables from opening. So the open case's screens go with it.
bool JanelaPrincipal::pFechaTelasDoAberto() {
    const std::optional<std::int32_t> aberto = mGerente.Aberto();
    const EntradaCaso* entrada = aberto ? mGerente.Lista().Procura(*aberto) : nullptr;
    return entrada == nullptr || pFechaTelasDoCaso(*entrada);
}

void JanelaPrincipal::pMostraCasos() {
    mPainel->Mostra(mGerente.Lista(), mGerente.Aberto());
    pAtualiza();
}

void JanelaPrincipal::pAtualiza() {
    const EntradaCaso* selecionado = pSelecionado();
    const std::optional<std::int32_t> aberto = mGerente.Aberto();
    mAbrir->setEnabled(selecionado != nullptr && selecionado->Codigo != aberto);
    mCopiar->setEnabled(selecionado != nullptr);
    mApagar->setEnabled(selecionado != nullptr);
    mSomenteLeitura->setEnabled(selecionado != nullptr);
    mSomenteLeitura->setChecked(selecionado != nullptr && selecionado->SomenteLeitura);
    mFechar->setEnabled(aberto.has_value());
    mExecutar->setEnabled(aberto.has_value());
    for (QAction* tela : mTelas) {
        tela->setEnabled(aberto.has_value());
    }
    const EntradaCaso* caso = aberto ? mGerente.Lista().Procura(*aberto) : nullptr;
    setWindowTitle(caso != nullptr ? QStringLiteral("Halvo - %1 / %2").arg(caso->Estudo, caso->Nome)
                                   : QStringLiteral("Halvo"));
}

const EntradaCaso* JanelaPrincipal::pSelecionado() const {
    const auto codigo = mPainel->Selecionado();
    return codigo ? mGerente.Lista().Procura(*codigo) : nullptr;
}

}  // namespace halvo
