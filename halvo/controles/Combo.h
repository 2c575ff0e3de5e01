#pragma once

#include "platform/recordstore/Recordstore.h"

#include <QComboBox>

namespace halvo {

// The record list: a combo box whose list shows the field Campo of the table Tabela in the order
// of its index Indice, one entry per record.
//
// - The list is read from a clone of Tabela, so the shared handle never moves. It is read again
//   whenever it is about to drop down, the control takes the focus or the wheel turns on it,
//   because another screen may have changed the table meanwhile; setTexto reads it when the text
//   is not on a choose-only list.
// - When the user picks an entry, with the mouse in the list or with the keyboard (arrows, page
//   keys, the first letters on a choose-only list) or the wheel, Selecionado gives the record's
//   bookmark, ready for Recordset::setBookmark on Tabela.
// - When the user types, Alterado gives the new text. Typing never selects a record, even when the
//   text matches an entry.
// - Nothing done from code (setTexto, the properties) emits Selecionado or Alterado.
// - With SomenteLista the user only chooses, and Texto is the chosen entry's text, or empty.
//   Otherwise Texto is whatever stands in the box, and the user types at most TamanhoMaximo
//   characters.
//
// Tabela must outlive the control, or be replaced first. A failure to read the list (a table
// closed under the control) is shown to the user and leaves the list empty.
class Combo : public QComboBox {
    Q_OBJECT

public:
    explicit Combo(QWidget* pai = nullptr);

    recordstore::Recordset* Tabela() const { return mTabela; }
    void setTabela(recordstore::Recordset& tabela) { mTabela = &tabela; }
    const QString& Campo() const { return mCampo; }
    void setCampo(const QString& campo) { mCampo = campo; }
    // The index that orders the list; empty keeps the order the table handle has.
    const QString& Indice() const { return mIndice; }
    void setIndice(const QString& indice) { mIndice = indice; }

    QString Texto() const { return currentText(); }
    void setTexto(const QString& texto);
    // The longest text the user may type; 0 for no limit.
    int TamanhoMaximo() const { return mTamanhoMaximo; }
    void setTamanhoMaximo(int tamanho);
    bool SomenteLista() const { return !isEditable(); }
    void setSomenteLista(bool somenteLista);
    bool Habilitado() const { return isEnabled(); }
    void setHabilitado(bool habilitado) { setEnabled(habilitado); }

    void showPopup() override;

signals:
    void Selecionado(recordstore::Bookmark marcador);
    void Alterado(const QString& texto);

protected:
    void focusInEvent(QFocusEvent* evento) override;
    void wheelEvent(QWheelEvent* evento) override;

private:
    void pPreparaEdicao();
    void pRecarrega(const QString& texto);
    void pMostraTexto(const QString& texto);
    void pEscolhido(int posicao);

    recordstore::Recordset* mTabela = nullptr;
    QString mCampo;
    QString mIndice;
    int mTamanhoMaximo = 0;
    // The combo box also "activates" an entry when typing ends on a text that matches it; only
    // the user's own choices count, so that case is told apart.
    bool mFimDaDigitacao = false;
};

}  // namespace halvo
