#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>
#include <QtPlugin>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

class QObject;
class QTextStream;

namespace halvo {

class caso;
class Notificador;

// One entry of a model's list of screens.
struct EntradaTela {
    QString Titulo;
    std::int32_t Agrupamento = 0;
    bool Flag = false;  // true on the first entry of a run of related entries
};

// The one entry of a model. Integer results are 1 for success and 0 for failure.
class IModelo {
public:
    virtual ~IModelo() = default;

    virtual QString Modelo() const = 0;
    virtual QString Descricao() const = 0;
    virtual QString VersaoModelo() const = 0;
    virtual QString VersaoInterface() const = 0;
    virtual std::int32_t CodigoDoCaso() const = 0;
    virtual std::int32_t ModeloCodigo() const = 0;

    virtual std::int16_t AbrirCaso(std::shared_ptr<caso> c, std::shared_ptr<Notificador> n) = 0;
    virtual std::int16_t CriarCaso(const QString& pasta) = 0;
    // Both paths are replaced by their full form.
    virtual std::int16_t CopiarCaso(QString& origem, QString& destino) = 0;
    virtual std::int16_t FecharCaso() = 0;
    virtual std::int16_t ApagarCaso(const QString& pasta) = 0;

    // Opens a screen as a child of the host's work area given by contexto.
    virtual std::int16_t JanelaAbrir(std::int16_t item, std::int32_t grupo, QObject* contexto) = 0;
    // The screens of a group, at positions 1 to N (position 0 stays empty); no list at all for a
    // group the model does not have.
    virtual std::optional<std::vector<EntradaTela>> Telas(std::int32_t grupo) const = 0;
    // Runs the open case without a screen.
    virtual std::int16_t Executar(std::shared_ptr<Notificador> n) = 0;

    virtual std::int16_t Converter(const QVariant& argumento) = 0;
    virtual std::int16_t Importar(const QVariant& argumento) = 0;
    virtual std::int16_t Exportar(const QVariant& argumento) = 0;
};

// What a model may offer beside IModelo for headless work: commands of its own on the open case,
// which the host's command line lists with its own, and a stream that takes, line by line, what
// the screen of its run without a screen would have shown. The host finds it by dynamic_cast.
class ComandosDoModelo {
public:
    struct Comando {
        QString nome;
        QString uso;  // the arguments after the case folder
        QString descricao;
    };

    virtual ~ComandosDoModelo();

    virtual std::vector<Comando> Comandos() const = 0;
    // Runs a command on the open case with the arguments that follow the case folder; answers the
    // exit code: 0 success, 1 failure, 2 wrong use.
    virtual int Executa(const QString& nome, const QStringList& argumentos, QTextStream& saida,
                        QTextStream& erro) = 0;
    // Where Executar writes its log from now on; null for nowhere.
    virtual void setSaidaDaExecucao(QTextStream* saida) = 0;
};

// What a model's shared library offers the host through QPluginLoader.
class ModeloPlugin {
public:
    virtual ~ModeloPlugin() = default;
    virtual std::unique_ptr<IModelo> CriaModelo() = 0;
};

}  // namespace halvo

#define HALVO_MODELO_PLUGIN_IID "br.halvo.ModeloPlugin/3.0"
Q_DECLARE_INTERFACE(halvo::ModeloPlugin, HALVO_MODELO_PLUGIN_IID)
