// What the controls of FrmDadosGerais do when the user changes them, and the keys their numeric
// boxes take.

#include "corvalin/editors/FrmDadosGerais.h"

#include "corvalin/frame/GeralTelas.h"
#include "halvo/controles/Spin.h"
#include "halvo/sdk/UtilitariosTexto.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace corvalin {

void FrmDadosGerais::pLigaAlteracoes() {
    const auto marca = [this] { pMarcaAlterado(); };
    for (QLineEdit* caixa : {mTxtIntervaloConfianca, mTxtAnoInicialPev, mTxtAnoFinalHistorico}) {
        connect(caixa, &QLineEdit::textEdited, this, marca);
    }
    for (QLineEdit* caixa : mTxtArquivo) {
        connect(caixa, &QLineEdit::textEdited, this, marca);
    }
    for (QLineEdit* caixa : mTxtVazpast) {
        connect(caixa, &QLineEdit::textEdited, this, marca);
        pFiltra(*caixa, [this, caixa](char16_t& tecla) {
            pArmadilha(QStringLiteral("TxtDadosGeraisVazpast_KeyPress"),
                       [&] { FiltraTeclaNumerica(*caixa, tecla, {}, true); });
        });
    }
    for (halvo::Spin* spin : {mSpnMesInicial, mSpnSemanaInicialPrev}) {
        connect(spin, &halvo::Spin::Alterado, this, marca);
    }
    connect(mChkImpressao, &QCheckBox::clicked, this, marca);
    for (QCheckBox* caixa : mChkExclusao) {
        connect(caixa, &QCheckBox::clicked, this, marca);
    }
    for (QRadioButton* opcao : mOptTransformacao) {
        connect(opcao, &QRadioButton::clicked, this, marca);
    }
    connect(mChkArquivosEntrada, &QCheckBox::clicked, this, [this] {
        pMarcaAlterado();
        pHabilitaArquivosEntrada();
    });
    connect(mChkUsaVazpast, &QCheckBox::clicked, this, &FrmDadosGerais::pUsaVazpastClicado);
    // Also when the screen sets it: the spinner's bound follows the box whoever moves it.
    connect(mChkCasoUsa53Semanas, &QCheckBox::toggled, this, [this] {
        pArmadilha(QStringLiteral("chkCasoUsa53Semanas_Click"), [this] { pCasoUsa53SemanasClicado(); });
    });
    connect(mBotImportar, &QPushButton::clicked, this,
            [this] { pArmadilha(QStringLiteral("pImportar"), [this] { pImportar(); }); });

    for (const auto& [caixa, rotina] :
         {std::pair{mTxtAnoFinalHistorico, "TxtDadosGeraisAnoFinalHistorico_KeyPress"},
          std::pair{mTxtAnoInicialPev, "TxtDadosGeraisAnoInicialPev_KeyPress"}}) {
        pFiltra(*caixa, [this, caixa = caixa, rotina = QString::fromLatin1(rotina)](char16_t& tecla) {
            pArmadilha(rotina, [&] { FiltraTeclaNumerica(*caixa, tecla, {}, false); });
        });
    }
    pFiltra(*mTxtIntervaloConfianca, [this](char16_t& tecla) {
        if (!halvo::UtilitariosTexto().AceitaTecla(QChar(tecla), mTxtIntervaloConfianca->text(),
                                                   mTxtIntervaloConfianca->cursorPosition(), false)) {
            tecla = 0;
        }
    });
}

void FrmDadosGerais::pFiltra(QLineEdit& caixa, std::function<void(char16_t&)> filtro) {
    caixa.installEventFilter(this);
    mFiltros.emplace_back(&caixa, std::move(filtro));
}

// The characters typed into a filtered box pass its filter first; keys that type nothing, control
// characters but the backspace, and shortcuts (select all, copy, paste) go by.
bool FrmDadosGerais::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() != QEvent::KeyPress) {
        return TelaPostos::eventFilter(objeto, evento);
    }
    constexpr char16_t Retrocesso = 8;
    const auto* tecla = static_cast<const QKeyEvent*>(evento);
    const QString texto = tecla->text();
    if (texto.size() != 1 || (!texto[0].isPrint() && texto[0] != QChar(Retrocesso)) ||
        (tecla->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))) {
        return TelaPostos::eventFilter(objeto, evento);
    }
    for (const auto& [caixa, filtro] : mFiltros) {
        if (caixa == objeto) {
            char16_t caractere = texto[0].unicode();
            filtro(caractere);
            return caractere == 0;
        }
    }
    return TelaPostos::eventFilter(objeto, evento);
}

}  // namespace corvalin
