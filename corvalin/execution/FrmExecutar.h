#pragma once

#include "corvalin/execution/AssistenteExecucao.h"
#include "corvalin/execution/JanelaProgresso.h"
#include "corvalin/execution/ListaPostos.h"
#include "corvalin/execution/RegistroTexto.h"
#include "corvalin/frame/Tela.h"

#include <cstdint>
#include <functional>
#include <memory>

class QLabel;
class QListWidget;
class QPushButton;

namespace halvo {
class RichText;
}

namespace corvalin {

// "Assistente de Execução": the run of a case in three faces on one form. The user checks the
// stations in a list, sees them validated in a report, and runs them with the log in the same
// view. The step in force is what is visible: the list in step 1, the report in step 2. One
// showing of the form runs once; afterwards only "Fechar" is left.
class FrmExecutar : public Tela {
    Q_OBJECT

public:
    // pastaPlugin: the plug-in's folder, where the solver lies.
    explicit FrmExecutar(QString pastaPlugin, QWidget* pai = nullptr);

protected:
    void pCarregar() override;
    void pDescarregarProprios() override { mAssistente.reset(); }

private:
    // The list of the run, on the list widget: a check box on each row.
    class ListaDaTela : public ListaPostos {
    public:
        explicit ListaDaTela(QListWidget& lista) : mLista(lista) {}
        int Quantidade() const override;
        QString Texto(int linha) const override;
        bool Marcada(int linha) const override;
        void setMarcada(int linha, bool marcada) override;
        void Adiciona(const QString& texto) override;
        void setLinhaAtual(int linha) override;

    private:
        QListWidget& mLista;
    };

    // The report and the log, in the text view; each new one retitles the step.
    class RegistroDaTela : public RegistroTexto {
    public:
        RegistroDaTela(halvo::RichText& texto, std::function<void()> aoLimpar)
            : mTexto(texto), mAoLimpar(std::move(aoLimpar)) {}
        void Limpa() override;
        void AdicionaLinha(const QString& texto, int estilo, bool destaque, bool quebraLinha) override;

    private:
        halvo::RichText& mTexto;
        std::function<void()> mAoLimpar;
    };

    // The generation's progress, on the global progress form; hiding it unloads the form.
    class JanelaDaBarra : public JanelaProgresso {
    public:
        void setCaption(const QString& texto) override;
        void Mostra() override;
        void Esconde() override;
        Progresso& Barra() override;
    };

    void pMarcar(bool valor);
    void pMostrarPasso(std::uint8_t passo);
    void pAvancarHabilita();
    void pAvancar();
    void pVoltar();
    void pExecutar();

    QString mPastaPlugin;
    QLabel* mLblExecutar;
    QListWidget* mLstExecutar;
    QPushButton* mBotMarcar;
    QPushButton* mBotDesmarcar;
    halvo::RichText* mRtfExecutar;
    QLabel* mLblAlertas;
    QLabel* mLblProblemas;
    QPushButton* mBotVoltar;
    QPushButton* mBotAvancar;
    QPushButton* mBotCancela;
    ListaDaTela mLista;
    RegistroDaTela mRegistro;
    std::unique_ptr<AssistenteExecucao> mAssistente;
};

}  // namespace corvalin
