#pragma once

#include "corvalin/frame/TelaPostos.h"

class QComboBox;

namespace halvo {
class RichText;
}

namespace corvalin {

// "Resultados": the files that a run left for one station, one at a time, read from the files
// themselves. The kind of file chosen stays when the station changes.
class FrmResultados : public TelaPostos {
    Q_OBJECT

public:
    explicit FrmResultados(QWidget* pai = nullptr);

protected:
    void pMostrarPrimeiro() override;
    void pMostrar(const Posto&) override {}
    void pLimpar() override;
    void pNavegou(const Posto& posto) override { pMostrarArquivo(posto); }

private:
    void pArquivoEscolhido();
    void pMostrarArquivo(const Posto& posto);
    QString pCaminhoDoArquivo(const Posto& posto);

    QComboBox* mArquivo;
    halvo::RichText* mTexto;
};

}  // namespace corvalin
