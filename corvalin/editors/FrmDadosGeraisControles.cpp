// The controls of FrmDadosGerais and their places on the four tabs, made in reading order so
#include "corvalin/frame/Controle.h"
// that Tab walks them so.

#include "corvalin/editors/FrmDadosGerais.h"

#include "halvo/controles/Spin.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>

namespace corvalin {

namespace {

QLineEdit* pCaixa(QWidget& pai, const QString& nome, int tamanhoMaximo) {
    auto* caixa = Controle<QLineEdit>(pai, nome);
    caixa->setMaxLength(tamanhoMaximo);
    return caixa;
}

QString pElemento(const char* nome, std::size_t indice) {
    return QStringLiteral("%1_%2").arg(QLatin1String(nome)).arg(indice);
}

constexpr int TamanhoAno = 4;
constexpr int TamanhoIntervalo = 3;
constexpr int TamanhoNomeEntrada = 50;
constexpr int TamanhoVazpast = 10;
constexpr int SemanasDoAno = 52;

}  // namespace

QWidget* FrmDadosGerais::pMontaAbas() {
    mGiiDadosGerais = new QTabWidget(this);
    mGiiDadosGerais->setObjectName(QStringLiteral("GiiDadosGerais"));
    mGiiDadosGerais->addTab(pMontaParametros(), QStringLiteral("  &1 - Parâmetros Gerais  "));
    mGiiDadosGerais->addTab(pMontaTransformacao(), QStringLiteral("  &2 - Transformação  "));
    mGiiDadosGerais->addTab(pMontaExclusao(), QStringLiteral("  &3 - Exclusão de Arquivos  "));
    mGiiDadosGerais->addTab(pMontaVazpast(), QStringLiteral("  &4 - Vazpast  "));
    connect(mGiiDadosGerais, &QTabWidget::currentChanged, this, &FrmDadosGerais::pEntraNaAba);
    return mGiiDadosGerais;
}

// A tab chosen by its accelerator or the mouse takes the user to its first field (in a group of
// options, the one chosen, as Tab would); one walked to on the tab bar leaves him there.
void FrmDadosGerais::pEntraNaAba() {
    QWidget* pagina = mGiiDadosGerais->currentWidget();
    if (mGiiDadosGerais->tabBar()->hasFocus()) {
        return;
    }
    for (QWidget* controle = pagina->nextInFocusChain(); controle != pagina;
         controle = controle->nextInFocusChain()) {
        // Of a group of options only one is a stop for Tab at a time; the chosen one is meant.
        const auto* opcao = qobject_cast<const QRadioButton*>(controle);
        const bool parada =
            opcao != nullptr ? opcao->isChecked() : (controle->focusPolicy() & Qt::TabFocus) != 0;
        if (pagina->isAncestorOf(controle) && controle->isEnabled() && parada) {
            controle->setFocus(Qt::TabFocusReason);
            return;
        }
    }
}

QWidget* FrmDadosGerais::pMontaParametros() {
    auto* pagina = new QWidget;

    auto* parametros = new QFormLayout;
    const auto linha = [&](const char* rotulo, const QString& texto, QWidget* campo) {
        auto* lbl = Controle<QLabel>(*pagina, QString::fromLatin1(rotulo), texto);
        lbl->setBuddy(campo);
        parametros->addRow(lbl, campo);
    };
    mTxtIntervaloConfianca =
        pCaixa(*pagina, QStringLiteral("TxtDadosGeraisIntervaloConfianca"), TamanhoIntervalo);
    linha("LblDadosGeraisIntervaloConfianca", QStringLiteral("Intervalo de confiança (%):"),
          mTxtIntervaloConfianca);
    mSpnMesInicial = Controle<halvo::Spin>(*pagina, QStringLiteral("SpnDadosGeraisMesInicial"));
    linha("LblDadosGeraisMesInicial", QStringLiteral("Mês inicial do ano hidrológico:"), mSpnMesInicial);
    mSpnSemanaInicialPrev = Controle<halvo::Spin>(*pagina, QStringLiteral("SpnDadosGeraisSemanaInicialPrev"));
    mSpnSemanaInicialPrev->setMinimo(1);
    mSpnSemanaInicialPrev->setMaximo(SemanasDoAno);
    linha("LblDadosGeraisSemanaInicialPrev", QStringLiteral("Semana inicial das Previsões:"),
          mSpnSemanaInicialPrev);
    mTxtAnoInicialPev = pCaixa(*pagina, QStringLiteral("TxtDadosGeraisAnoInicialPev"), TamanhoAno);
    linha("LblDadosGeraisAnoInicialPev", QStringLiteral("Ano inicial das Previsões:"), mTxtAnoInicialPev);
    mTxtAnoFinalHistorico = pCaixa(*pagina, QStringLiteral("TxtDadosGeraisAnoFinalHistorico"), TamanhoAno);
    linha("LblDadosGeraisAnoFinalHistorico", QStringLiteral("Ano final do histórico a ser considerado:"),
          mTxtAnoFinalHistorico);
    mChkImpressao = Controle<QCheckBox>(*pagina, QStringLiteral("ChkDadosGeraisImpressao"),
                                        QStringLiteral("Impressão dos parâmetros do modelo"));
    parametros->addRow(mChkImpressao);
    mChkCasoUsa53Semanas =
        Controle<QCheckBox>(*pagina, QStringLiteral("chkCasoUsa53Semanas"),
                            QStringLiteral("Para este estudo este posto utiliza 53 semanas"));
    parametros->addRow(mChkCasoUsa53Semanas);

    // The input names: the two of the station's own files, then the Vazpast file, whose check box
    // stands where the others have their label.
    auto* entrada = Controle<QGroupBox>(*pagina, QStringLiteral("FmeDadosGeraisArquivosEntrada"));
    mChkArquivosEntrada = Controle<QCheckBox>(*entrada, QStringLiteral("ChkDadosGeraisArquivosEntrada"),
                                              QStringLiteral("Nome dos Arquivos de Entrada (sem path)"));
    auto* gradeEntrada = new QGridLayout(entrada);
    gradeEntrada->addWidget(mChkArquivosEntrada, 0, 0, 1, 2);
    const std::array<QString, 5> rotulos{
        QStringLiteral("Dados Gerais"), QStringLiteral("Histórico de Vazões Semanais"),
        QStringLiteral("Relatório"), QStringLiteral("Previsões das Vazões Semanais Futuras"),
        QStringLiteral("Estatística das Previsões (Excel)")};
    const auto arquivo = [&](QWidget& pai, QGridLayout& grade, std::size_t i, int tamanho) {
        mLblArquivo[i] = Controle<QLabel>(pai, pElemento("LblDadosGeraisArquivo", i), rotulos[i]);
        mTxtArquivo[i] = pCaixa(pai, pElemento("TxtDadosGeraisArquivo", i), tamanho);
        mLblArquivo[i]->setBuddy(mTxtArquivo[i]);
        grade.addWidget(mLblArquivo[i], grade.rowCount(), 0);
        grade.addWidget(mTxtArquivo[i], grade.rowCount() - 1, 1);
    };
    arquivo(*entrada, *gradeEntrada, 0, TamanhoNomeEntrada);
    arquivo(*entrada, *gradeEntrada, 1, TamanhoNomeEntrada);
    mChkUsaVazpast = Controle<QCheckBox>(*entrada, QStringLiteral("ChkDadosGeraisUsaVazpast"),
                                         QStringLiteral("Nome do Arquivo Vazpast"));
    mTxtArquivo[5] = pCaixa(*entrada, pElemento("TxtDadosGeraisArquivo", 5), TamanhoNomeCurto);
    gradeEntrada->addWidget(mChkUsaVazpast, gradeEntrada->rowCount(), 0);
    gradeEntrada->addWidget(mTxtArquivo[5], gradeEntrada->rowCount() - 1, 1);

    auto* saida = Controle<QGroupBox>(*pagina, QStringLiteral("FmeDadosGeraisArquivosSaida"));
    saida->setTitle(QStringLiteral("Nome dos Arquivos de Saída (sem path)"));
    auto* gradeSaida = new QGridLayout(saida);
    for (std::size_t i = 2; i <= 4; ++i) {
        arquivo(*saida, *gradeSaida, i, TamanhoNomeCurto);
    }

    auto* arquivos = new QVBoxLayout;
    arquivos->addWidget(entrada);
    arquivos->addWidget(saida);
    arquivos->addStretch(1);
    auto* leiaute = new QHBoxLayout(pagina);
    leiaute->addLayout(parametros);
    leiaute->addSpacing(fontMetrics().averageCharWidth() * 2);
    leiaute->addLayout(arquivos, 1);
    return pagina;
}

QWidget* FrmDadosGerais::pMontaTransformacao() {
    auto* pagina = new QWidget;
    auto* quadro = Controle<QGroupBox>(*pagina, QStringLiteral("FmeDadosGeraisTransformacao"));
    quadro->setTitle(QStringLiteral("Transformação das Vazões Históricas Semanais"));
    const std::array<QString, 6> textos{QStringLiteral("Não haverá transformação"),
                                        QStringLiteral("Transformação logarítmica / sem transformação"),
                                        QStringLiteral("Transformação Box-Cox / sem transformação"),
                                        QStringLiteral("Transformação logarítmica"),
                                        QStringLiteral("Transformação Box-Cox"),
                                        QStringLiteral("Transformação log. /  Box-Cox / sem transf.")};
    auto* opcoes = new QVBoxLayout(quadro);
    for (std::size_t i = 0; i < textos.size(); ++i) {
        mOptTransformacao[i] =
            Controle<QRadioButton>(*quadro, pElemento("OptDadosGeraisTransformacao", i), textos[i]);
        opcoes->addWidget(mOptTransformacao[i]);
    }
    auto* leiaute = new QVBoxLayout(pagina);
    leiaute->addWidget(quadro);
    leiaute->addStretch(1);
    return pagina;
}

QWidget* FrmDadosGerais::pMontaExclusao() {
    auto* pagina = new QWidget;
    auto* quadro = Controle<QGroupBox>(*pagina, QStringLiteral("FmeDadosGeraisExclusao"));
    quadro->setTitle(QStringLiteral("Excluir Arquivos Após Execução"));
    const std::array<QString, 4> textos{
        QStringLiteral("Dados Gerais"), QStringLiteral("Histórico de Vazões Semanais"),
        QStringLiteral("Relatório"), QStringLiteral("Estatística das Previsões (Excel)")};
    auto* caixas = new QVBoxLayout(quadro);
    for (std::size_t i = 0; i < textos.size(); ++i) {
        mChkExclusao[i] = Controle<QCheckBox>(*quadro, pElemento("ChkDadosGeraisExclusao", i), textos[i]);
        caixas->addWidget(mChkExclusao[i]);
    }
    auto* leiaute = new QVBoxLayout(pagina);
    leiaute->addWidget(quadro);
    leiaute->addStretch(1);
    return pagina;
}

QWidget* FrmDadosGerais::pMontaVazpast() {
    auto* pagina = new QWidget;
    mFmeVazpast = Controle<QGroupBox>(*pagina, QStringLiteral("FmeDadosGeraisVazpast"));
    mFmeVazpast->setTitle(QStringLiteral("Previsões do Vazpast "));
    auto* valores = new QFormLayout(mFmeVazpast);
    for (std::size_t i = 0; i < mTxtVazpast.size(); ++i) {
        mTxtVazpast[i] = pCaixa(*mFmeVazpast, pElemento("TxtDadosGeraisVazpast", i), TamanhoVazpast);
        auto* rotulo = Controle<QLabel>(*mFmeVazpast, pElemento("LblSemanasVazpast", i),
                                        QStringLiteral("%1º semana:").arg(i + 1));
        rotulo->setBuddy(mTxtVazpast[i]);
        valores->addRow(rotulo, mTxtVazpast[i]);
    }
    auto* leiaute = new QVBoxLayout(pagina);
    leiaute->addWidget(mFmeVazpast);
    leiaute->addStretch(1);
    return pagina;
}

}  // namespace corvalin
