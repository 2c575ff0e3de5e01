#pragma once

#include "halvo/sdk/Caso.h"
#include "halvo/sdk/Servicos.h"
#include "halvo/sdk/ServicosHalvo.h"
#include "halvo/sdk/UtilitariosSistema.h"
#include "tests/doubles/DialogoRoteirizado.h"

#include <QMap>
#include <QTemporaryDir>

#include <vector>

namespace teste {

// A case object with the items a test gives it.
class CasoTeste : public halvo::caso {
public:
    explicit CasoTeste(const QString& diretorio = {}, bool somenteLeitura = false);

    bool SomenteLeitura() const override { return mSomenteLeitura; }
    QString Item(const QString& nome) const override { return mItens.value(nome); }

    void setItem(const QString& nome, const QString& valor) { mItens[nome] = valor; }
    void setSomenteLeitura(bool valor) { mSomenteLeitura = valor; }

private:
    QMap<QString, QString> mItens;
    bool mSomenteLeitura;
};

// Records the window calls and the programs started; programs run for real.
class SistemaGravador : public halvo::UtilitariosSistema {
public:
    void ExecutaPrograma(const QString& arquivo, std::int16_t, const QString&, std::int32_t, bool) override;
    void JanelaFilha(QWidget* janela, QObject*) override { Filhas.push_back(janela); }
    void JanelaRegistra(QWidget* janela, const QString&, const QString&, std::int32_t, std::int16_t) override {
        Registradas.push_back(janela);
    }
    void JanelaAuxiliar(QWidget* janela) override { Auxiliares.push_back(janela); }

    std::vector<QString> Programas;  // file started, with the current folder when it started
    std::vector<QString> PastasCorrentes;
    std::vector<QWidget*> Filhas;
    std::vector<QWidget*> Registradas;
    std::vector<QWidget*> Auxiliares;
};

// Records the model code; a folder reference is its absolute path.
class ServicosHalvoGravador : public halvo::ServicosHalvo {
public:
    void ModeloAtual(std::int16_t codigo) override { Modelos.push_back(codigo); }
    QString CaminhoParaApagar(const QString& referencia) override;
    QString CaminhoCompleto(const QString& referencia) override;

    std::vector<std::int16_t> Modelos;
};

// The doubles of the host's services, installed for the life of a test, and a fresh folder.
class HostTeste {
public:
    HostTeste();

    DialogoRoteirizado dialogo;
    SistemaGravador sistema;
    ServicosHalvoGravador halvo;
    QTemporaryDir pasta;

    // A path inside the test's folder.
    QString caminho(const QString& relativo) const { return pasta.filePath(relativo); }

private:
    halvo::InstalacaoServicos mInstalacao;
};

}  // namespace teste
