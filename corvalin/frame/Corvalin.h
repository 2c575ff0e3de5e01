#pragma once

#include "corvalin/frame/AberturaTelas.h"
#include "halvo/sdk/IModelo.h"

#include <memory>

namespace corvalin {

// The one object that the host makes of this plug-in: who the model is, the life of its cases,
// its screens and the run of a case. It holds the case's objects and hands them to every screen.
// For headless work it offers the host its own commands on the open case.
class Corvalin : public halvo::IModelo, public halvo::ComandosDoModelo {
public:
    explicit Corvalin(std::unique_ptr<AberturaTelas> telas = nullptr);
    ~Corvalin() override;

    QString Modelo() const override;
    QString Descricao() const override;
    QString VersaoModelo() const override;
    QString VersaoInterface() const override;
    std::int32_t CodigoDoCaso() const override;
    std::int32_t ModeloCodigo() const override;

    std::int16_t AbrirCaso(std::shared_ptr<halvo::caso> c, std::shared_ptr<halvo::Notificador> n) override;
    std::int16_t CriarCaso(const QString& pasta) override;
    std::int16_t CopiarCaso(QString& origem, QString& destino) override;
    std::int16_t FecharCaso() override;
    std::int16_t ApagarCaso(const QString& pasta) override;

    std::int16_t JanelaAbrir(std::int16_t item, std::int32_t grupo, QObject* contexto) override;
    std::optional<std::vector<halvo::EntradaTela>> Telas(std::int32_t grupo) const override;
    std::int16_t Executar(std::shared_ptr<halvo::Notificador> n) override;

    std::int16_t Converter(const QVariant& argumento) override;
    std::int16_t Importar(const QVariant& argumento) override;
    std::int16_t Exportar(const QVariant& argumento) override;

    std::vector<Comando> Comandos() const override;
    int Executa(const QString& nome, const QStringList& argumentos, QTextStream& saida, QTextStream& erro) override;
    void setSaidaDaExecucao(QTextStream* saida) override { mSaidaDaExecucao = saida; }

    // The objects of the open case, as every screen and run receives them.
    ObjetosCaso Objetos() const;
    // The folder of the plug-in's library, without a trailing separator: the solver lies in it.
    const QString& PastaPlugin() const { return mPastaPlugin; }

private:
    ObjetosCaso mObjetos;
    std::unique_ptr<AberturaTelas> mTelas;
    QString mVersaoInterface;
    QString mPastaPlugin;
    QTextStream* mSaidaDaExecucao = nullptr;
};

}  // namespace corvalin
