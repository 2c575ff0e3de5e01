#include "corvalin/options/FrmOpcoes.h"

#include "corvalin/frame/Controle.h"
#include "corvalin/frame/GeralTelas.h"
#include "corvalin/frame/Mensagens.h"
#include "corvalin/options/Opcoes.h"
#include "corvalin/options/OpcoesBD.h"
#include "corvalin/stations/Posto.h"
#include "corvalin/stations/PostoBD.h"
#include "halvo/sdk/ServicoDialogo.h"
#include "halvo/sdk/Servicos.h"
#include "halvo/sdk/UtilitariosArquivo.h"
#include "platform/texto/Texto.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

#include <algorithm>

namespace corvalin {

namespace {

// A row of the first tab: the file it names, the extension its list adds to "dat" and "txt", and
// its erase box, if any. The erase boxes skip the forecasts, which have none.
struct LinhaDeArquivo {
    QString rotulo;
    QString OpcoesArquivos::*arquivo;
    QString extensaoExtra;
    int exclusao;
    bool OpcoesArquivos::*apagar;
};

const std::array<LinhaDeArquivo, 5>& pLinhas() {
    static const std::array<LinhaDeArquivo, 5> linhas{{
        {Mensagens::msgDadosGerais, &OpcoesArquivos::ArquivoDadosGerais, Constantes::cteExtensaoDadosGerais,
         0, &OpcoesArquivos::ApagarArquivoDadosGerais},
        {QStringLiteral("Histórico de Vazões Semanais"),
         &OpcoesArquivos::ArquivoVazoesSemanais,
         {},
         1,
         &OpcoesArquivos::ApagarArquivoVazoesSemanais},
        {Mensagens::msgRelatorio, &OpcoesArquivos::ArquivoRelatorio, Constantes::cteExtensaoArq, 2,
         &OpcoesArquivos::ApagarArquivoRelatorio},
        {QStringLiteral("Previsões das Vazões Semanais Futuras"), &OpcoesArquivos::ArquivoPrevisoes,
         Constantes::cteExtensaoPrevisoes, -1, nullptr},
        {QStringLiteral("Estatística das Previsões (Excel)"), &OpcoesArquivos::ArquivoExcel,
         Constantes::cteExtensaoExcel, 3, &OpcoesArquivos::ApagarArquivoExcel},
    }};
    return linhas;
}

const QString QuebraDeLinha = QStringLiteral("\r\n");

QComboBox* pLista(QWidget& pai, const QString& nome) {
    auto* lista = Controle<QComboBox>(pai, nome);
    lista->setEditable(true);
    lista->setInsertPolicy(QComboBox::NoInsert);
    // Typing keeps what was typed: no completion from the list.
    lista->setCompleter(nullptr);
    return lista;
}

// Shows a text in an editable list, selecting its entry when it has one.
void pMostraNaLista(QComboBox& lista, const QString& texto) {
    lista.setCurrentIndex(lista.findText(texto));
    lista.setEditText(texto);
}

}  // namespace

FrmOpcoes::FrmOpcoes(QWidget* pai)
    : Tela(QStringLiteral("FrmOpcoes"), QStringLiteral("Opções para os Arquivos"), pai),
      mGuiOpcoes(Controle<QTabWidget>(*this, QStringLiteral("GuiOpcoes"))) {
    mGuiOpcoes->addTab(pAbaNomes(), QStringLiteral("   &1 - Nomes Padrão   "));
    mGuiOpcoes->addTab(pAbaExclusao(), QStringLiteral("   &2 - Exclusão   "));
    mGuiOpcoes->addTab(pAbaDiversos(), QStringLiteral("   &3 - Diversos   "));

    auto* gravar = new QPushButton(QStringLiteral("&Gravar"), this);
    gravar->setObjectName(QStringLiteral("BotOpcoesGrava"));
    pRegistraGravacao(*gravar);
    auto* sair = new QPushButton(QStringLiteral("&") + Mensagens::msgFechar, this);
    sair->setObjectName(QStringLiteral("BotOpcoesSair"));
    mOrdem.push_back(gravar);
    mOrdem.push_back(sair);
    for (std::size_t i = 1; i < mOrdem.size(); ++i) {
        QWidget::setTabOrder(mOrdem[i - 1], mOrdem[i]);
    }

    auto* botoes = new QHBoxLayout;
    botoes->addStretch(1);
    botoes->addWidget(gravar);
    botoes->addWidget(sair);
    auto* tela = new QVBoxLayout(this);
    tela->addWidget(mGuiOpcoes, 1);
    tela->addLayout(botoes);
    resize(620, 330);

    connect(gravar, &QPushButton::clicked, this,
            [this] { pArmadilha(QStringLiteral("BotOpcoesGrava_Click"), [this] { Gravar(); }); });
    connect(sair, &QPushButton::clicked, this, &QWidget::close);
}

QWidget* FrmOpcoes::pAbaNomes() {
    auto* aba = new QWidget;
    auto* grade = new QGridLayout(aba);
    for (std::size_t i = 0; i < Arquivos; ++i) {
        const int linha = static_cast<int>(i);
        auto* rotulo = new QLabel(pLinhas()[i].rotulo, aba);
        rotulo->setObjectName(QStringLiteral("LblOpcoesArquivos_%1").arg(i));
        mNome[i] = pLista(*aba, QStringLiteral("CboOpcoesArquivosNome_%1").arg(i));
        auto* ponto = new QLabel(QStringLiteral("."), aba);
        ponto->setObjectName(QStringLiteral("LblOpcoesArquivosPonto_%1").arg(i));
        mExtensao[i] = pLista(*aba, QStringLiteral("CboOpcoesArquivosExtensao_%1").arg(i));
        mExtensao[i]->setMinimumContentsLength(4);
        rotulo->setBuddy(mNome[i]);
        grade->addWidget(rotulo, linha, 0);
        grade->addWidget(mNome[i], linha, 1);
        grade->addWidget(ponto, linha, 2);
        grade->addWidget(mExtensao[i], linha, 3);
        mOrdem.push_back(mNome[i]);
        mOrdem.push_back(mExtensao[i]);
        for (QComboBox* lista : {mNome[i], mExtensao[i]}) {
            connect(lista, &QComboBox::editTextChanged, this, [this] { pMarcar(Alteracao::Nomes); });
        }
    }
    grade->setColumnStretch(1, 1);
    grade->setRowStretch(static_cast<int>(Arquivos), 1);
    return aba;
}

QWidget* FrmOpcoes::pAbaExclusao() {
    auto* aba = new QWidget;
    auto* moldura = Controle<QGroupBox>(*aba, QStringLiteral("FmeOpcoesExclusao"));
    moldura->setTitle(QStringLiteral("Após a execução excluir os arquivos:"));
    auto* caixas = new QVBoxLayout(moldura);
    for (const LinhaDeArquivo& linha : pLinhas()) {
        if (linha.exclusao < 0) {
            continue;
        }
        const auto i = static_cast<std::size_t>(linha.exclusao);
        mExclusao[i] = Controle<QCheckBox>(*moldura, QStringLiteral("ChkOpcoesExclusao_%1").arg(i));
        mExclusao[i]->setText(linha.rotulo);
        caixas->addWidget(mExclusao[i]);
        mOrdem.push_back(mExclusao[i]);
        connect(mExclusao[i], &QCheckBox::clicked, this, [this] { pMarcar(Alteracao::Exclusao); });
    }
    auto* leiaute = new QVBoxLayout(aba);
    leiaute->addWidget(moldura);
    leiaute->addStretch(1);
    return aba;
}

QWidget* FrmOpcoes::pAbaDiversos() {
    auto* aba = new QWidget;
    auto* filtros = Controle<QGroupBox>(*aba, QStringLiteral("FmeOpcoesFiltros"));
    filtros->setTitle(QStringLiteral("Filtros para Seleção de Arquivos na Importação"));
    auto* grade = new QGridLayout(filtros);
    for (std::size_t i = 0; i < Filtros; ++i) {
        const int linha = static_cast<int>(i);
        auto* rotulo = new QLabel(QStringLiteral("Filtro"), filtros);
        rotulo->setObjectName(QStringLiteral("LblOpcoesFiltro_%1").arg(i));
        mFiltro[i] = Controle<QLineEdit>(*filtros, QStringLiteral("TxtOpcoesFiltro_%1").arg(i));
        auto* rotuloDescricao = new QLabel(QStringLiteral("Descrição"), filtros);
        rotuloDescricao->setObjectName(QStringLiteral("LblOpcoesFiltroDescricao_%1").arg(i));
        mDescricao[i] = Controle<QLineEdit>(*filtros, QStringLiteral("TxtOpcoesFiltroDescricao_%1").arg(i));
        rotulo->setBuddy(mFiltro[i]);
        rotuloDescricao->setBuddy(mDescricao[i]);
        grade->addWidget(rotulo, linha, 0);
        grade->addWidget(mFiltro[i], linha, 1);
        grade->addWidget(rotuloDescricao, linha, 2);
        grade->addWidget(mDescricao[i], linha, 3);
        mOrdem.push_back(mFiltro[i]);
        mOrdem.push_back(mDescricao[i]);
        for (QLineEdit* caixa : {mFiltro[i], mDescricao[i]}) {
            connect(caixa, &QLineEdit::textChanged, this, [this] { pMarcar(Alteracao::Outra); });
        }
    }
    grade->setColumnStretch(1, 1);
    grade->setColumnStretch(3, 2);

    auto* pasta = Controle<QGroupBox>(*aba, QStringLiteral("FmeOpcoesPastaPrevisoes"));
    mChkPasta = Controle<QCheckBox>(*pasta, QStringLiteral("ChkOpcoesPastaPrevisoes"));
    mChkPasta->setText(QStringLiteral("Manter todos arquivos de Previsões na pasta:"));
    mTxtPasta = Controle<QLineEdit>(*pasta, QStringLiteral("TxtOpcoesPastaPrevisoes"));
    mBotPasta = Controle<QPushButton>(*pasta, QStringLiteral("BotOpcoesPastaPrevisoes"));
    mBotPasta->setText(QStringLiteral("..."));
    mTxtPasta->installEventFilter(this);
    auto* linhaDaPasta = new QHBoxLayout;
    linhaDaPasta->addWidget(mTxtPasta, 1);
    linhaDaPasta->addWidget(mBotPasta);
    auto* leiauteDaPasta = new QVBoxLayout(pasta);
    leiauteDaPasta->addWidget(mChkPasta);
    leiauteDaPasta->addLayout(linhaDaPasta);
    mOrdem.push_back(mChkPasta);
    mOrdem.push_back(mTxtPasta);
    mOrdem.push_back(mBotPasta);
    connect(mChkPasta, &QCheckBox::clicked, this, [this] {
        if (getEstado() != Preenchendo) {
            pHabilitaPasta();
        }
    });
    connect(mTxtPasta, &QLineEdit::textChanged, this, [this] { pMarcar(Alteracao::Outra); });
    connect(mBotPasta, &QPushButton::clicked, this, &FrmOpcoes::pEscolhePasta);

    auto* leiaute = new QVBoxLayout(aba);
    leiaute->addWidget(filtros);
    leiaute->addWidget(pasta);
    leiaute->addStretch(1);
    return aba;
}

void FrmOpcoes::pCarregar() {
    // Filling the lists is the screen's own doing, not a change.
    setEstado(Preenchendo);
    for (std::size_t i = 0; i < Arquivos; ++i) {
        mNome[i]->addItems({Constantes::cteNomeCodigoPosto, Constantes::cteNomeAproveitamento});
        mExtensao[i]->addItems({Constantes::cteExtensaoVazoes, Constantes::cteExtensaoTxt});
        if (!pLinhas()[i].extensaoExtra.isEmpty()) {
            mExtensao[i]->addItem(pLinhas()[i].extensaoExtra);
        }
    }
    setEstado(Limpo);
    Opcoes opcoes;
    opcoesBD().getOpcoes(opcoes);
    pMostrar(opcoes);
    mGuiOpcoes->setCurrentIndex(ObtemPrimeiraTab(*mGuiOpcoes));
}

void FrmOpcoes::pMostrar(const Opcoes& opcoes) {
    const PonteiroOcupado ponteiro;
    setEstado(Preenchendo);
    for (std::size_t i = 0; i < Arquivos; ++i) {
        const LinhaDeArquivo& linha = pLinhas()[i];
        const QString& arquivo = opcoes.Arquivos.*linha.arquivo;
        const qsizetype ponto = arquivo.indexOf(QLatin1Char('.'));
        pMostraNaLista(*mNome[i], ponto < 0 ? arquivo : arquivo.left(ponto));
        pMostraNaLista(*mExtensao[i], ponto < 0 ? QString() : arquivo.mid(ponto + 1));
        if (linha.apagar != nullptr) {
            mExclusao[static_cast<std::size_t>(linha.exclusao)]->setChecked(opcoes.Arquivos.*linha.apagar);
        }
    }
    mChkPasta->setChecked(!opcoes.PastaPrevisoes().isEmpty());
    mTxtPasta->setText(opcoes.PastaPrevisoes());
    pHabilitaPasta();
    for (std::size_t i = 0; i < Filtros; ++i) {
        const auto indice = static_cast<std::int16_t>(i + 1);
        mFiltro[i]->setText(opcoes.Filtro(indice));
        mDescricao[i]->setText(opcoes.FiltroDescricao(indice));
    }
    setEstado(Limpo);
}

// Stops at the first problem, on its tab, with the focus on the field at fault.
bool FrmOpcoes::pValida() {
    const halvo::UtilitariosArquivo arquivos;
    const auto vazia = [this](std::size_t i) {
        return texto::Trim(mNome[i]->currentText()).isEmpty() &&
               texto::Trim(mExtensao[i]->currentText()).isEmpty();
    };
    for (std::size_t i = 0; i < Arquivos; ++i) {
        const QString nome = texto::Trim(mNome[i]->currentText());
        if (!vazia(i) && nome != Constantes::cteNomeCodigoPosto &&
            nome != Constantes::cteNomeAproveitamento && !arquivos.NomeValido(nome)) {
            return pRecusa(
                0, *mNome[i],
                Mensagens::msgNomeArquivoInvalido + QuebraDeLinha +
                    QStringLiteral("Certifique-se que o tamanho do nome do arquivo não exceda 8 "
                                   "caracteres, a extensão não exceda 3 caracteres, e não contenha "
                                   "caracteres especiais."));
        }
    }
    for (std::size_t i = 0; i < Arquivos; ++i) {
        if (!vazia(i) && !arquivos.ExtensaoValida(texto::Trim(mExtensao[i]->currentText()))) {
            return pRecusa(
                0, *mExtensao[i],
                Mensagens::msgExtensaoInvalida + QuebraDeLinha +
                    QStringLiteral("Certifique-se que o tamanho da extensão não exceda 3 caracteres, e "
                                   "não contenha caracteres especiais."));
        }
    }
    for (std::size_t i = 0; i < Filtros; ++i) {
        if (texto::Trim(mFiltro[i]->text()).isEmpty() && !texto::Trim(mDescricao[i]->text()).isEmpty()) {
            return pRecusa(2, *mFiltro[i], Mensagens::msgFiltroNaoDefinido);
        }
    }
    return true;
}

bool FrmOpcoes::pRecusa(int aba, QWidget& controle, const QString& texto) {
    mGuiOpcoes->setCurrentIndex(aba);
    controle.setFocus();
    halvo::Servicos::dialogo().Mensagem(texto, Mensagens::msgTituloInformacao, halvo::Icone::Informacao);
    return false;
}

bool FrmOpcoes::pGravar() {
    if (!pValida()) {
        return false;
    }
    // What the screen does not show stays as stored.
    Opcoes opcoes;
    opcoesBD().getOpcoes(opcoes);
    for (std::size_t i = 0; i < Arquivos; ++i) {
        const LinhaDeArquivo& linha = pLinhas()[i];
        const QString nome = texto::Trim(mNome[i]->currentText());
        const QString extensao = texto::Trim(mExtensao[i]->currentText());
        opcoes.Arquivos.*linha.arquivo =
            nome.isEmpty() || extensao.isEmpty() ? QString() : nome + QLatin1Char('.') + extensao;
        if (linha.apagar != nullptr) {
            opcoes.Arquivos.*linha.apagar = mExclusao[static_cast<std::size_t>(linha.exclusao)]->isChecked();
        }
    }
    opcoes.setPastaPrevisoes(mTxtPasta->text());
    for (std::size_t i = 0; i < Filtros; ++i) {
        const auto indice = static_cast<std::int16_t>(i + 1);
        opcoes.setFiltro(indice, texto::Trim(mFiltro[i]->text()));
        opcoes.setFiltroDescricao(indice, texto::Trim(mDescricao[i]->text()));
    }
    opcoesBD().setOpcoes(opcoes);
    pPropagar(opcoes);
    return true;
}

// Offers the stations already in the case the new standard names and erase choices. Names that
// are all empty give nothing to take over.
void FrmOpcoes::pPropagar(const Opcoes& opcoes) {
    if (!(mNomesAlterados && !opcoes.Arquivos.Vazio()) && !mExclusaoAlterada) {
        return;
    }
    plataforma::Vetor<Posto> postos;
    postoBD().getPostos(postos);
    if (postos.UBound() < 1 || halvo::Servicos::dialogo().Mensagem(
                                   Mensagens::msgAlterarDadosGerais, Mensagens::msgTituloConfirmacao,
                                   halvo::Icone::Pergunta, halvo::Botoes::SimNao) != halvo::Resposta::Sim) {
        return;
    }
    const PonteiroOcupado ponteiro;
    for (int i = 1; i <= postos.UBound(); ++i) {
        postoBD().setNomesPadrao(postos[i], opcoes);
    }
}

void FrmOpcoes::pMarcar(Alteracao alteracao) {
    if (!pMarcaAlterado()) {
        return;
    }
    if (alteracao == Alteracao::Nomes) {
        mNomesAlterados = true;
    } else if (alteracao == Alteracao::Exclusao) {
        mExclusaoAlterada = true;
    }
}

void FrmOpcoes::pEsquecerAlteracoes() {
    mNomesAlterados = false;
    mExclusaoAlterada = false;
}

// Without the box there is no folder: the text goes with it.
void FrmOpcoes::pHabilitaPasta() {
    const bool marcada = mChkPasta->isChecked();
    mTxtPasta->setEnabled(marcada);
    mBotPasta->setEnabled(marcada);
    if (!marcada) {
        mTxtPasta->clear();
    }
}

void FrmOpcoes::pEscolhePasta() {
    mTxtPasta->setText(halvo::Servicos::dialogo().SelecionaPasta({}, QStringLiteral("Pasta para arquivos")));
}

// The folder box also opens the folder dialog on a double click and on F2.
bool FrmOpcoes::eventFilter(QObject* objeto, QEvent* evento) {
    if (objeto == mTxtPasta && (evento->type() == QEvent::MouseButtonDblClick ||
                                (evento->type() == QEvent::KeyRelease &&
                                 static_cast<const QKeyEvent*>(evento)->key() == Qt::Key_F2))) {
        pEscolhePasta();
        return true;
    }
    return Tela::eventFilter(objeto, evento);
}

void FrmOpcoes::pTeclaEnter() {
    QWidget* atual = focusWidget();
    auto posicao = mOrdem.end();
    for (; atual != nullptr && posicao == mOrdem.end(); atual = atual->parentWidget()) {
        posicao = std::find(mOrdem.begin(), mOrdem.end(), atual);
    }
    if (posicao == mOrdem.end()) {
        focusNextChild();
        return;
    }
    for (std::size_t passo = 1; passo < mOrdem.size(); ++passo) {
        const auto indice = static_cast<std::size_t>(posicao - mOrdem.begin()) + passo;
        QWidget* proximo = mOrdem[indice % mOrdem.size()];
        if (!proximo->isEnabled()) {
            continue;
        }
        for (int aba = 0; aba < mGuiOpcoes->count(); ++aba) {
            if (mGuiOpcoes->widget(aba)->isAncestorOf(proximo)) {
                mGuiOpcoes->setCurrentIndex(aba);
            }
        }
        proximo->setFocus(Qt::TabFocusReason);
        return;
    }
}

}  // namespace corvalin
