#include "corvalin/frame/Geral.h"

#include "corvalin/frame/Versao.h"
#include "halvo/sdk/ServicoDialogo.h"
#include "halvo/sdk/Servicos.h"
#include "halvo/sdk/UtilitariosArquivo.h"
#include "platform/runtime/ErroVB.h"
#include "platform/texto/Texto.h"

#include <QFileInfo>
#include <QLocale>
#include <QSettings>

namespace corvalin {

namespace {

constexpr int TamanhoBufferIni = 100;  // the reader's fixed buffer, terminator included

void pMostraErro(std::int32_t numero, const QString& descricao, const QString& rotina, const QString& modulo,
                 const QString& observacao) {
    auto& dialogo = halvo::Servicos::dialogo();
    dialogo.MousePointer(halvo::Ponteiro::Seta);
    const QChar cr(u'\r');
    QString texto = QStringLiteral("Durante a execução do programa ocorreu o seguinte erro:") + cr + cr +
                    QStringLiteral("Erro.: ") + QString::number(numero) + cr + QStringLiteral("Descrição.: ") +
                    descricao + cr + QStringLiteral("Rotina.: ") + rotina + cr + QStringLiteral("Módulo.: ") +
                    modulo;
    if (!texto::Trim(observacao).isEmpty()) {
        texto += QString(3, cr) + QStringLiteral("Observação.: ") + observacao;
    }
    dialogo.Mensagem(texto, QStringLiteral("Atenção..."), halvo::Icone::Erro);
}

}  // namespace

PonteiroOcupado::PonteiroOcupado() { halvo::Servicos::dialogo().MousePointer(halvo::Ponteiro::Ocupado); }

PonteiroOcupado::~PonteiroOcupado() { halvo::Servicos::dialogo().MousePointer(halvo::Ponteiro::Padrao); }

QString VersaoInterface() {
    return QStringLiteral("3.%1.%2.%3").arg(VersaoMaior).arg(VersaoMenor).arg(VersaoRevisao);
}

void MsgErro(std::int32_t numero, const QString& descricao, const QString& rotina, const QString& modulo,
             const QString& observacao) {
    try {
        pMostraErro(numero, descricao, rotina, modulo, observacao);
    } catch (const plataforma::ErroVB& e) {
        try {
            pMostraErro(e.Number(), e.Description(), QStringLiteral("MsgErro"), QStringLiteral("Gerais"), {});
        } catch (...) {
            // The reporter of last resort has nobody left to report to.
        }
    } catch (...) {
    }
}

std::unique_ptr<texto::ArquivoSaida> AbreArquivoGravacao(const QString& caminho) {
    const halvo::UtilitariosArquivo arquivos;
    const QString pasta = arquivos.SeparaCaminho(caminho, false);
    if (!pasta.isEmpty() && !arquivos.PastaExiste(pasta) && !arquivos.CriaPasta(pasta)) {
        return nullptr;
    }
    try {
        return std::make_unique<texto::ArquivoSaida>(caminho);
    } catch (const plataforma::ErroVB&) {
        return nullptr;
    }
}

void DimensionaLimites(std::uint8_t discretizacao, plataforma::Vetor<std::int16_t>& periodos,
                       plataforma::Vetor<float>& limiteInferior, plataforma::Vetor<float>& limiteSuperior,
                       std::uint8_t usa53Semanas) {
    int limite = 0;
    switch (discretizacao) {
        case 1:
            limite = 52 + usa53Semanas;
            break;
        case 2:
            limite = 12;
            break;
        case 3:
            limite = 4;
            break;
        case 4:
            limite = 2;
            break;
        default:
            break;
    }
    periodos.ReDim(limite);
    limiteInferior.ReDim(limite);
    limiteSuperior.ReDim(limite);
}

QString LeStringIni(const QString& arquivo, const QString& secao, const QString& chave) {
    QString valor;
    if (QFileInfo(arquivo).isFile()) {
        const QSettings ini(arquivo, QSettings::IniFormat);
        valor = ini.value(secao + QLatin1Char('/') + chave, QStringLiteral("*")).toString();
    } else if (arquivo.compare(QStringLiteral("WIN.INI"), Qt::CaseInsensitive) == 0 &&
               secao.compare(QStringLiteral("intl"), Qt::CaseInsensitive) == 0 &&
               chave.compare(QStringLiteral("sDecimal"), Qt::CaseInsensitive) == 0) {
        valor = QLocale().decimalPoint();
    } else {
        valor = QStringLiteral("*");
    }
    return valor.left(TamanhoBufferIni - 1);
}

}  // namespace corvalin
