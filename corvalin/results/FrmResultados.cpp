#include "corvalin/results/FrmResultados.h"

#include "corvalin/frame/Mensagens.h"
#include "corvalin/options/Opcoes.h"
#include "corvalin/options/OpcoesBD.h"
#include "corvalin/stations/Posto.h"
#include "corvalin/stations/PostoBD.h"
#include "halvo/controles/RichText.h"
#include "halvo/sdk/Caso.h"
#include "halvo/sdk/Servicos.h"
#include "halvo/sdk/ServicosHalvo.h"
#include "halvo/sdk/UtilitariosArquivo.h"
#include "platform/texto/Texto.h"

#include <QComboBox>
#include <QDir>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

namespace corvalin {

namespace {

// The items of the file list, by their index.
enum ArquivoMostrado { Relatorio = 0, Previsoes = 1, Excel = 2, BoxCox = 3 };

}  // namespace

FrmResultados::FrmResultados(QWidget* pai)
    : TelaPostos(QStringLiteral("FrmResultados"), QStringLiteral("Resultados"), QStringLiteral("Resultados"),
                 Gravacao::Sem, pai) {
    auto* corpo = new QWidget(this);
    auto* rotulo = new QLabel(Mensagens::msgArquivo, corpo);
    rotulo->setObjectName(QStringLiteral("LblResultadosArquivo"));
    mArquivo = new QComboBox(corpo);
    mArquivo->setObjectName(QStringLiteral("CboResultadosArquivo"));
    mArquivo->addItems(
        {Mensagens::msgRelatorio, Mensagens::msgPrevisoes, Mensagens::msgExcel, Constantes::cteBoxCox});
    mArquivo->setCurrentIndex(-1);
    rotulo->setBuddy(mArquivo);
    mTexto = new halvo::RichText(corpo);
    mTexto->setObjectName(QStringLiteral("RtfResultados"));

    auto* layout = new QGridLayout(corpo);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(rotulo, 0, 0);
    layout->addWidget(mArquivo, 0, 1);
    layout->setColumnStretch(2, 1);
    layout->addWidget(mTexto, 1, 0, 1, 3);
    pMontaTela(*corpo);
    resize(760, 520);

    connect(mArquivo, &QComboBox::currentIndexChanged, this, [this] {
        pArmadilha(QStringLiteral("CboResultadosArquivo_Click"), [this] { pArquivoEscolhido(); });
    });
}

// The first choice of a file loads it, once the first station stands on the screen.
void FrmResultados::pMostrarPrimeiro() {
    TelaPostos::pMostrarPrimeiro();
    mArquivo->setCurrentIndex(Relatorio);
}

void FrmResultados::pLimpar() {
    mTexto->Limpa();
}

void FrmResultados::pArquivoEscolhido() {
    Posto posto;
    if (postoBD().getPosto(posto, BuscaPorCodigo, texto::CLng(texto::Val(TxtCodigo().text())), IndiceNome)) {
        pMostrarArquivo(posto);
    } else {
        pExibir(false, posto);
    }
}

QString FrmResultados::pCaminhoDoArquivo(const Posto& posto) {
    const OpcoesArquivos& arquivos = posto.Arquivos;
    const QString pastaDoPosto = getCaso().Item(QStringLiteral("Diretorio")) +
                                 texto::Trim(texto::Str(posto.Codigo)) + QDir::separator();
    switch (mArquivo->currentIndex()) {
        case Previsoes: {
            Opcoes opcoes;
            opcoesBD().getOpcoes(opcoes);
            const QString pasta = opcoes.PastaPrevisoes().isEmpty() ? pastaDoPosto : opcoes.PastaPrevisoes();
            return pasta + arquivos.ArquivoPrevisoes;
        }
        case Excel:
            return pastaDoPosto + arquivos.ArquivoExcel;
        case BoxCox: {
            const QString& relatorio = arquivos.ArquivoRelatorio;
            return pastaDoPosto + texto::Left(relatorio, relatorio.indexOf(QLatin1Char('.')) + 1) +
                   Constantes::cteExtensaoRelatorio;
        }
        default:
            return pastaDoPosto + arquivos.ArquivoRelatorio;
    }
}

void FrmResultados::pMostrarArquivo(const Posto& posto) {
    const QString caminho = pCaminhoDoArquivo(posto);
    const PonteiroOcupado ponteiro;
    mTexto->Limpa();
    if (halvo::UtilitariosArquivo().ArquivoExiste(caminho)) {
        mTexto->CarregaArquivo(halvo::Servicos::halvo().CaminhoCompleto(caminho));
    } else {
        mTexto->setTexto(Mensagens::msgArquivoInexistente);
    }
}

}  // namespace corvalin
