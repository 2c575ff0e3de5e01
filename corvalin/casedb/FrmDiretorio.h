#pragma once

#include <QDialog>

class QCheckBox;
class QComboBox;
class QFileSystemModel;
class QGroupBox;
class QLineEdit;
class QTreeView;

namespace corvalin {

// Asks for a folder: a drive (a root of the file system), a folder on it and, when the caller
// offers it, a new subfolder to be made there. The caller shows it modally, then reads the folder
// from Caminho and whether the user gave up from Cancelar.
class FrmDiretorio : public QDialog {
    Q_OBJECT

public:
    explicit FrmDiretorio(QWidget* pai = nullptr);

    // Offers to make a subfolder of the chosen folder; not offered unless set.
    void setOpcaoParaCriar(bool opcao);
    bool Cancelar() const { return mCancelar; }

    // The folder of DirDiretorio: the one chosen, or the drive's root when none is.
    QString Caminho() const;
    void setCaminho(const QString& caminho);

    // Escape, the window's close and BotDiretorioCancela.
    void reject() override;

protected:
    // Enter moves on, as Tab does.
    void keyPressEvent(QKeyEvent* evento) override;

private:
    void pDriveEscolhido();
    void pMostraDrive();
    void pOK();

    QComboBox* mDrvDiretorio;
    QFileSystemModel* mPastas;
    QTreeView* mDirDiretorio;
    QGroupBox* mFmeDiretorio;
    QCheckBox* mChkDiretorio;
    QLineEdit* mTxtDiretorio;
    bool mCancelar = false;
};

}  // namespace corvalin
