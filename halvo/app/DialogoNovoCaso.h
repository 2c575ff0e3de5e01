#pragma once

#include "halvo/app/EntradaCaso.h"

#include <QDialog>

class QComboBox;
class QLineEdit;
class QPushButton;

namespace halvo {

// Asks for a new case: its study (one of those listed, or a new one), its name, a description and
// its folder. Until the user picks a folder, the folder follows the study and the name under a
// base folder. OK is enabled once study, name and folder are filled.
class DialogoNovoCaso : public QDialog {
    Q_OBJECT

public:
    DialogoNovoCaso(const QStringList& estudos, QString pastaBase, QWidget* pai = nullptr);

    EntradaCaso Entrada() const;

private:
    void pSugerePasta();
    void pEscolhePasta();
    void pConfere();

    QString mPastaBase;
    QComboBox* mEstudo;
    QLineEdit* mNome;
    QLineEdit* mDescricao;
    QLineEdit* mPasta;
    QPushButton* mOk = nullptr;
    bool mPastaEscolhida = false;
};

}  // namespace halvo
