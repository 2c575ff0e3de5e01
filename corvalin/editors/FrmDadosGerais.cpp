#include "corvalin/editors/FrmDadosGerais.h"

#include "corvalin/frame/FrmBarraDeProgresso.h"
#include "corvalin/frame/GeralTelas.h"
#include "corvalin/frame/Mensagens.h"
#include "corvalin/modelfiles/PostoARQ.h"
#include "corvalin/stations/Posto.h"
#include "corvalin/stations/PostoBD.h"
#include "halvo/controles/Spin.h"
#include "halvo/sdk/ServicoDialogo.h"
#include "halvo/sdk/Servicos.h"
#include "halvo/sdk/UtilitariosArquivo.h"
#include "platform/texto/Texto.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

namespace corvalin {

namespace {

using namespace Mensagens;

constexpr int MesesDoAno = 12;
constexpr int FormatoSpin = 4;
constexpr double AnoMinimo = 1900;
constexpr double AnoMaximo = 2200;
constexpr double IntervaloMaximo = 100;

// A number that 0 leaves unset shows as nothing.
QString pTextoOuVazio(std::int32_t valor) {
    return valor == 0 ? QString() : QString::number(valor);
}

// The implicit conversion of a text box to a number: in the user's locale, error 13 when it is none.
std::int16_t pInteiro(const QString& texto) {
    return texto::CInt(texto::CDbl(texto));
}

void pAvisa(const QString& texto) {
    halvo::Servicos::dialogo().Mensagem(QStringLiteral("Atenção:\r\n") + texto);
}

}  // namespace

FrmDadosGerais::FrmDadosGerais(QWidget* pai)
    : TelaPostos(QStringLiteral("FrmDadosGerais"), QStringLiteral("DadosGerais"), msgDadosGerais,
                 Gravacao::Com, pai) {
    QWidget* abas = pMontaAbas();
    mBotImportar = new QPushButton(QStringLiteral("&Importar..."), this);
    mBotImportar->setObjectName(QStringLiteral("BotDadosGeraisImportar"));
    pRegistraGravacao(*mBotImportar);
    pMontaTela(*abas, {mBotImportar});
    pLigaAlteracoes();
    resize(760, 440);
}

void FrmDadosGerais::pPrepararControles() {
    mTxtArquivo[5]->setEnabled(false);
    mSpnMesInicial->setFormato(FormatoSpin);
    mSpnMesInicial->setMinimo(1);
    mSpnMesInicial->setMaximo(MesesDoAno);
    mSpnSemanaInicialPrev->setFormato(FormatoSpin);
}

void FrmDadosGerais::pMostrarPrimeiro() {
    Posto posto;
    pExibir(postoBD().getPosto(posto, BuscaPrimeiro, 0, IndiceNome), posto);
    mSpnSemanaInicialPrev->setMaximo(posto.getNumSemanas());
    mGiiDadosGerais->setCurrentIndex(ObtemPrimeiraTab(*mGiiDadosGerais));
}

void FrmDadosGerais::pMostrar(const Posto& posto) {
    pArmadilha(QStringLiteral("pMostrar"), [&] {
        const PonteiroOcupado ponteiro;
        setEstado(Preenchendo);
        const OpcoesArquivos& arquivos = posto.Arquivos;
        mChkArquivosEntrada->setChecked(!texto::Trim(arquivos.ArquivoDadosGerais).isEmpty() ||
                                        !texto::Trim(arquivos.ArquivoVazoesSemanais).isEmpty());
        pHabilitaArquivosEntrada();
        const std::array<QString, 5> nomes{arquivos.ArquivoDadosGerais, arquivos.ArquivoVazoesSemanais,
                                           arquivos.ArquivoRelatorio, arquivos.ArquivoPrevisoes,
                                           arquivos.ArquivoExcel};
        for (std::size_t i = 0; i < nomes.size(); ++i) {
            mTxtArquivo[i]->setText(nomes[i]);
        }
        mChkImpressao->setChecked(posto.ImpressaoParametros);
        if (posto.Transformacao >= mOptTransformacao.size()) {
            throw plataforma::ErroVB::padrao(plataforma::ErroSubscrito);
        }
        mOptTransformacao[posto.Transformacao]->setChecked(true);
        const std::array apagar{arquivos.ApagarArquivoDadosGerais, arquivos.ApagarArquivoVazoesSemanais,
                                arquivos.ApagarArquivoRelatorio, arquivos.ApagarArquivoExcel};
        for (std::size_t i = 0; i < apagar.size(); ++i) {
            mChkExclusao[i]->setChecked(apagar[i]);
        }
        mSpnMesInicial->setTexto(QString::number(posto.MesInicial));
        mTxtIntervaloConfianca->setText(QString::number(posto.IntervaloConfianca));
        mSpnSemanaInicialPrev->setTexto(pTextoOuVazio(posto.SemanaInicialPrev));
        mTxtAnoInicialPev->setText(pTextoOuVazio(posto.AnoInicialPrev));
        mTxtAnoFinalHistorico->setText(pTextoOuVazio(posto.AnoFinalHistorico));
        pPreencheVazpast(posto);
        mChkCasoUsa53Semanas->setChecked(arquivos.CasoUsa53Semanas == 1);
        setEstado(Limpo);
    });
}

void FrmDadosGerais::pPreencheVazpast(const Posto& posto) {
    mChkUsaVazpast->setChecked(posto.FlafVazpast);
    mTxtArquivo[5]->setEnabled(posto.FlafVazpast);
    mFmeVazpast->setEnabled(posto.FlafVazpast);
    if (!posto.FlafVazpast) {
        // The values stay as they were: only the name goes.
        mTxtArquivo[5]->clear();
        return;
    }
    mTxtArquivo[5]->setText(texto::Trim(texto::Left(posto.NomeArqVazpast, TamanhoNomeCurto)));
    const std::array valores{posto.VazpastSemana_1, posto.VazpastSemana_2, posto.VazpastSemana_3,
                             posto.VazpastSemana_4};
    for (std::size_t i = 0; i < valores.size(); ++i) {
        QString valor = texto::TextoRegional(valores[i]);
        mTxtVazpast[i]->setText(valores[i] == 0 ? QString() : PostoARQ::preparaFoat_10_2(valor, false));
    }
}

// The week, years, Vazpast values and the 53-week box keep what they showed.
void FrmDadosGerais::pLimpar() {
    mChkArquivosEntrada->setChecked(false);
    pHabilitaArquivosEntrada();
    for (std::size_t i = 2; i <= 4; ++i) {
        mTxtArquivo[i]->clear();
    }
    mOptTransformacao[0]->setChecked(true);
    for (QCheckBox* caixa : mChkExclusao) {
        caixa->setChecked(false);
    }
    mChkImpressao->setChecked(true);
    mSpnMesInicial->setTexto({});
    mTxtIntervaloConfianca->clear();
    setEstado(Limpo);
}

void FrmDadosGerais::pHabilitaArquivosEntrada() {
    const bool marcado = mChkArquivosEntrada->isChecked();
    for (std::size_t i = 0; i <= 1; ++i) {
        mLblArquivo[i]->setEnabled(marcado);
        mTxtArquivo[i]->setEnabled(marcado);
        if (!marcado) {
            mTxtArquivo[i]->clear();
        }
    }
}

// Unticked, the name stays where it was, out of reach; ticked, it starts again from the default.
void FrmDadosGerais::pUsaVazpastClicado() {
    pMarcaAlterado();
    const bool marcado = mChkUsaVazpast->isChecked();
    mTxtArquivo[5]->setEnabled(marcado);
    if (marcado) {
        mTxtArquivo[5]->setText(QStringLiteral("Vazpast.dat"));
        mFmeVazpast->setEnabled(true);
    }
}

void FrmDadosGerais::pCasoUsa53SemanasClicado() {
    mSpnSemanaInicialPrev->setMaximo(mChkCasoUsa53Semanas->isChecked() ? 53 : 52);
    pAplicaRegraSemana();
}

void FrmDadosGerais::pAplicaRegraSemana() {
    halvo::Spin& semana = *mSpnSemanaInicialPrev;
    const double valor = texto::Val(semana.Texto());
    if (valor < semana.Minimo()) {
        pAvisa(
            QStringLiteral("A Semana Inicial de Previsão é menor do que o mínimo possível. "
                           "O Halvo irá ajustar para o mínimo."));
        semana.setTexto(QString::number(semana.Minimo()));
    } else if (valor > semana.Maximo()) {
        pAvisa(
            QStringLiteral("A Semana Inicial de Previsão é maior do que o máximo possível. "
                           "O Halvo irá ajustar para o máximo."));
        semana.setTexto(QString::number(semana.Maximo()));
    }
}

// The prompt saves without the week rule: only the button holds the week to the spinner's bounds.
void FrmDadosGerais::pGravarClicado() {
    pAplicaRegraSemana();
    Gravar();
}

bool FrmDadosGerais::pValida() {
    const halvo::UtilitariosArquivo arquivos;
    const std::size_t primeiro = mChkArquivosEntrada->isChecked() ? 0 : 2;
    const std::size_t ultimo = mChkUsaVazpast->isChecked() ? 5 : 4;
    for (std::size_t i = primeiro; i <= ultimo; ++i) {
        if (!arquivos.NomeArquivoValido(mTxtArquivo[i]->text())) {
            return pRecusa(msgNomeArquivoInvalido, *mTxtArquivo[i]);
        }
    }
    const QString mes = mSpnMesInicial->Texto();
    if (!texto::IsNumeric(mes) || texto::Val(mes) < 1 || texto::Val(mes) > MesesDoAno) {
        return pRecusa(QStringLiteral("Mês Inicial do Ano Hidrológico Inválido. Verifique."),
                       *mSpnMesInicial);
    }
    const QString intervalo = mTxtIntervaloConfianca->text();
    if (!texto::IsNumeric(intervalo) || texto::Val(intervalo) < 0 ||
        texto::Val(intervalo) > IntervaloMaximo) {
        return pRecusa(msgNumeroInvalido, *mTxtIntervaloConfianca);
    }
    const auto anoValido = [](const QLineEdit& caixa) {
        const double ano = texto::Val(caixa.text());
        return ano >= AnoMinimo && ano <= AnoMaximo;
    };
    if (!anoValido(*mTxtAnoInicialPev)) {
        return pRecusa(QStringLiteral("Ano Inicial da Previsão Inválido. Verifique."), *mTxtAnoInicialPev);
    }
    if (!anoValido(*mTxtAnoFinalHistorico)) {
        return pRecusa(QStringLiteral("Ano Final do Histórico Inválido. Verifique."), *mTxtAnoFinalHistorico);
    }
    return true;
}

// Every value checked lives on the first tab, which is brought forward so that the focus shows.
bool FrmDadosGerais::pRecusa(const QString& mensagem, QWidget& controle) {
    halvo::Servicos::dialogo().Mensagem(mensagem, msgTituloInformacao, halvo::Icone::Informacao);
    mGiiDadosGerais->setCurrentIndex(0);
    controle.setFocus();
    return false;
}

bool FrmDadosGerais::pGravar() {
    bool gravou = false;
    pArmadilha(QStringLiteral("pGravar"), [&] {
        Posto posto;
        if (!pObtemPosto(posto) || !pValida()) {
            return;
        }
        pLeTela(posto);
        postoBD().setDadosGerais(posto);
        gravou = true;
    });
    return gravou;
}

void FrmDadosGerais::pLeTela(Posto& posto) const {
    OpcoesArquivos& arquivos = posto.Arquivos;
    arquivos.ArquivoDadosGerais = mTxtArquivo[0]->text();
    arquivos.ArquivoVazoesSemanais = mTxtArquivo[1]->text();
    arquivos.ArquivoRelatorio = mTxtArquivo[2]->text();
    arquivos.ArquivoPrevisoes = mTxtArquivo[3]->text();
    arquivos.ArquivoExcel = mTxtArquivo[4]->text();
    arquivos.ApagarArquivoDadosGerais = mChkExclusao[0]->isChecked();
    arquivos.ApagarArquivoVazoesSemanais = mChkExclusao[1]->isChecked();
    arquivos.ApagarArquivoRelatorio = mChkExclusao[2]->isChecked();
    arquivos.ApagarArquivoExcel = mChkExclusao[3]->isChecked();
    arquivos.CasoUsa53Semanas = mChkCasoUsa53Semanas->isChecked() ? 1 : 0;
    posto.ImpressaoParametros = mChkImpressao->isChecked();
    posto.MesInicial = texto::CByte(texto::Val(mSpnMesInicial->Texto()));
    posto.IntervaloConfianca = pInteiro(mTxtIntervaloConfianca->text());
    posto.SemanaInicialPrev = pInteiro(mSpnSemanaInicialPrev->Texto());
    posto.AnoInicialPrev = pInteiro(mTxtAnoInicialPev->text());
    posto.AnoFinalHistorico = pInteiro(mTxtAnoFinalHistorico->text());
    const QString nomeVazpast = mTxtArquivo[5]->text();
    posto.FlafVazpast = mChkUsaVazpast->isChecked() && !nomeVazpast.isEmpty();
    posto.NomeArqVazpast = mChkUsaVazpast->isChecked() ? nomeVazpast : QString();
    if (posto.FlafVazpast) {
        // An empty box keeps the value the station had.
        const std::array valores{&posto.VazpastSemana_1, &posto.VazpastSemana_2, &posto.VazpastSemana_3,
                                 &posto.VazpastSemana_4};
        for (std::size_t i = 0; i < valores.size(); ++i) {
            const QString valor = texto::Trim(mTxtVazpast[i]->text());
            if (!valor.isEmpty()) {
                *valores[i] = texto::CDbl(valor);
            }
        }
    }
    for (std::size_t i = 0; i < mOptTransformacao.size(); ++i) {
        if (mOptTransformacao[i]->isChecked()) {
            posto.Transformacao = static_cast<std::uint8_t>(i);
        }
    }
}

// The file may name another station than the one shown: that one is stored, and shown.
void FrmDadosGerais::pImportar() {
    Posto posto;
    if (!pObtemPosto(posto)) {
        return;
    }
    const QString caminho = halvo::UtilitariosArquivo().SelecionaArquivo(QStringLiteral("*.*|*.*"), {}, {});
    if (caminho.isEmpty()) {
        return;
    }
    bool importou = false;
    {
        const ProgressoDaOperacao barra(msgImportandoArquivo);
        QString erros;
        importou = PostoARQ().importaDadosGerais(caminho, posto, postoBD(), erros, barra.Barra(), false);
    }
    if (importou) {
        pExibir(true, posto);
    } else {
        halvo::Servicos::dialogo().Mensagem(msgErroLerArquivo, msgTituloErro, halvo::Icone::Erro);
    }
}

}  // namespace corvalin
