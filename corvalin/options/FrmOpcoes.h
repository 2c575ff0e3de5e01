#pragma once

#include "corvalin/frame/Tela.h"

#include <array>
#include <vector>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;
class QTabWidget;

namespace corvalin {

class Opcoes;

// "Opções para os Arquivos": for the whole case, the standard names of a station's five files,
// which of them a run erases, the folder that keeps every forecast, and the filters of the import
// dialogs. A save may bring the stations already in the case into line with the new names.
class FrmOpcoes : public Tela {
    Q_OBJECT

public:
    explicit FrmOpcoes(QWidget* pai = nullptr);

protected:
    void pCarregar() override;
    bool pGravar() override;
    void pEsquecerAlteracoes() override;
    // Enter walks the fields of the three tabs in one sequence, and the tab follows the focus.
    void pTeclaEnter() override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    static constexpr std::size_t Arquivos = 5;
    static constexpr std::size_t Exclusoes = 4;
    static constexpr std::size_t Filtros = 3;

    enum class Alteracao { Nomes, Exclusao, Outra };

    QWidget* pAbaNomes();
    QWidget* pAbaExclusao();
    QWidget* pAbaDiversos();
    void pMostrar(const Opcoes& opcoes);
    void pMarcar(Alteracao alteracao);
    void pHabilitaPasta();
    void pEscolhePasta();
    bool pValida();
    bool pRecusa(int aba, QWidget& controle, const QString& texto);
    void pPropagar(const Opcoes& opcoes);

    QTabWidget* mGuiOpcoes;
    std::array<QComboBox*, Arquivos> mNome{};
    std::array<QComboBox*, Arquivos> mExtensao{};
    std::array<QCheckBox*, Exclusoes> mExclusao{};
    QCheckBox* mChkPasta = nullptr;
    QLineEdit* mTxtPasta = nullptr;
    QPushButton* mBotPasta = nullptr;
    std::array<QLineEdit*, Filtros> mFiltro{};
    std::array<QLineEdit*, Filtros> mDescricao{};
    // The fields in the order Enter walks them, across the tabs.
    std::vector<QWidget*> mOrdem;

    bool mNomesAlterados = false;
    bool mExclusaoAlterada = false;
};

}  // namespace corvalin
