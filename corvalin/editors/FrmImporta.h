#pragma once

#include "corvalin/editors/ImportacaoPostos.h"
#include "corvalin/execution/RegistroTexto.h"
#include "corvalin/frame/Progresso.h"
#include "corvalin/frame/Tela.h"

#include <QStringList>

#include <cstdint>
#include <functional>
#include <memory>

class QLabel;
class QListWidget;
class QProgressBar;
class QPushButton;

namespace halvo {
class RichText;
}

namespace corvalin {

// "Assistente de Importação": whole stations loaded from the model's files in three pages. The
// user lists general data files, each naming its station's other files in its own folder; the
// second page checks them all, the third imports them one by one and reports. Going back keeps
// the list, and the check runs again each time the second page is entered; the third is final.
class FrmImporta : public Tela {
    Q_OBJECT

public:
    explicit FrmImporta(QWidget* pai = nullptr);

protected:
    void pCarregar() override;
    void pDescarregarProprios() override { mImportacao.reset(); }
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    // The report of the passes, in the text view.
    class RelatorioDaTela : public RegistroTexto {
    public:
        explicit RelatorioDaTela(halvo::RichText& texto) : mTexto(texto) {}
        void Limpa() override;
        void AdicionaLinha(const QString& texto, int estilo, bool destaque, bool quebraLinha) override;

    private:
        halvo::RichText& mTexto;
    };

    // The form's own progress bar, painted as the import moves.
    class BarraDaTela : public Progresso {
    public:
        explicit BarraDaTela(QProgressBar& barra) : mBarra(barra) {}
        void setValue(double valor) override;

    private:
        QProgressBar& mBarra;
    };

    // The path at work and its place in the list, painted at once.
    class StatusDaTela : public StatusImportacao {
    public:
        StatusDaTela(QLabel& nome, QLabel& numero) : mNome(nome), mNumero(numero) {}
        void setStatus(const QString& nome, const QString& numero) override;

    private:
        QLabel& mNome;
        QLabel& mNumero;
    };

    void pMudaPagina();
    void pPaginaVerificacao();
    void pPaginaImportacao();
    void pCaixaDialogo();
    QStringList pArquivos() const;
    // A button's event, reported as the form's when it fails.
    void pEvento(const char* rotina, const std::function<void()>& acao);

    std::uint8_t mPagina = 1;
    QLabel* mLblImporta;
    QListWidget* mLstImporta;
    QPushButton* mBotSelecionar;
    halvo::RichText* mTxtImporta;
    QLabel* mLblStatusNome;
    QLabel* mLblStatusNumero;
    QProgressBar* mPrgImporta;
    QPushButton* mBotVoltar;
    QPushButton* mBotAvancar;
    QPushButton* mBotCancela;
    RelatorioDaTela mRelatorio;
    BarraDaTela mBarra;
    StatusDaTela mStatus;
    std::unique_ptr<ImportacaoPostos> mImportacao;
};

}  // namespace corvalin
