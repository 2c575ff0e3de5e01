#include "halvo/controles/Combo.h"

#include "halvo/sdk/ServicoDialogo.h"
#include "halvo/sdk/Servicos.h"
#include "platform/runtime/ErroVB.h"

#include <QFocusEvent>
#include <QLineEdit>

namespace halvo {

namespace {

// A line edit's own limit when it has none set.
constexpr int SemLimite = 32767;

}  // namespace

Combo::Combo(QWidget* pai) : QComboBox(pai) {
    // Room for a site's name even before the list is first read.
    setMinimumContentsLength(20);
    setInsertPolicy(QComboBox::NoInsert);
    pPreparaEdicao();
    connect(this, &QComboBox::activated, this, &Combo::pEscolhido);
}

void Combo::setTexto(const QString& texto) {
    pMostraTexto(texto);
    if (SomenteLista() && currentIndex() < 0 && !texto.isEmpty()) {
        pRecarrega(texto);
    }
}

void Combo::setTamanhoMaximo(int tamanho) {
    mTamanhoMaximo = tamanho;
    if (lineEdit() != nullptr) {
        lineEdit()->setMaxLength(tamanho > 0 ? tamanho : SemLimite);
    }
}

void Combo::setSomenteLista(bool somenteLista) {
    if (somenteLista == SomenteLista()) {
        return;
    }
    const QString texto = Texto();
    if (somenteLista) {
        setEditable(false);
    } else {
        pPreparaEdicao();
    }
    pMostraTexto(texto);
}

void Combo::showPopup() {
    pRecarrega(Texto());
    QComboBox::showPopup();
}

void Combo::focusInEvent(QFocusEvent* evento) {
    // The focus comes back from our own list when it closes: nothing to read again then.
    if (evento->reason() != Qt::PopupFocusReason) {
        pRecarrega(Texto());
    }
    QComboBox::focusInEvent(evento);
}

void Combo::wheelEvent(QWheelEvent* evento) {
    pRecarrega(Texto());
    QComboBox::wheelEvent(evento);
}

// Our own line edit, so that our handler of the end of typing runs before the combo box's.
void Combo::pPreparaEdicao() {
    setEditable(true);
    auto* edicao = new QLineEdit(this);
    connect(edicao, &QLineEdit::editingFinished, this, [this] { mFimDaDigitacao = true; });
    setLineEdit(edicao);
    connect(edicao, &QLineEdit::editingFinished, this, [this] { mFimDaDigitacao = false; });
    connect(edicao, &QLineEdit::textEdited, this, &Combo::Alterado);
    setCompleter(nullptr);
    setTamanhoMaximo(mTamanhoMaximo);
}

void Combo::pRecarrega(const QString& texto) {
    clear();
    if (mTabela != nullptr && !mCampo.isEmpty()) {
        try {
            const auto copia = mTabela->Clone();
            if (!mIndice.isEmpty()) {
                copia->setIndex(mIndice);
            }
            for (; !copia->Eof(); copia->MoveNext()) {
                addItem(copia->campo(mCampo).paraTexto(), QVariant::fromValue<qint64>(copia->Bookmark()));
            }
        } catch (const plataforma::ErroVB& erro) {
            clear();
            Servicos::dialogo().Mensagem(
                QStringLiteral("Erro %1: %2").arg(erro.Number()).arg(erro.Description()), {}, Icone::Erro);
        }
    }
    pMostraTexto(texto);
}

void Combo::pMostraTexto(const QString& texto) {
    setCurrentIndex(texto.isEmpty() ? -1 : findText(texto, Qt::MatchFixedString));
    if (isEditable()) {
        setEditText(texto);
    }
}

void Combo::pEscolhido(int posicao) {
    if (mFimDaDigitacao || posicao < 0) {
        return;
    }
    emit Selecionado(itemData(posicao).value<qint64>());
}

}  // namespace halvo
