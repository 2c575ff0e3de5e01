#pragma once

#include <QStringList>
#include <QTextStream>

#include <functional>
#include <map>
#include <memory>

namespace halvo {

class IModelo;
class Modelos;

// The host's commands for headless work: each takes the same road as the model's own operations,
// prints what it did, and answers an exit code (0 success, 1 failure, 2 wrong use). A model that
// offers commands of its own has them listed and run here too, each on the case of its folder.
class LinhaDeComando {
public:
    LinhaDeComando(const Modelos& modelos, QTextStream& saida, QTextStream& erro);

    int Executa(const QStringList& argumentos);

private:
    struct Comando {
        QString uso;
        QString descricao;
        int argumentos;  // exact count; -1 for one or more
        std::function<int(const QStringList&)> executa;
    };

    int pAjuda();
    int pInfo();
    int pCriar(const QString& pasta);
    int pAbrir(const QString& pasta);
    int pCopiar(const QString& origem, const QString& destino);
    int pApagar(const QString& pasta);
    int pExecutar(const QString& pasta);
    // A command of the model: the case of the first argument is opened, the command runs with
    // the others, and the case is closed. -1 when the model has no such command.
    int pComandoDoModelo(const QString& nome, const QStringList& argumentos);
    // Runs acao on the case of the folder, opened for it; 1 when the case does not open.
    int pNoCaso(IModelo& modelo, const QString& pasta, const std::function<int()>& acao);
    int pFalha(const QString& mensagem);
    std::unique_ptr<IModelo> pModelo();

    const Modelos& mModelos;
    QTextStream& mSaida;
    QTextStream& mErro;
    std::map<QString, Comando> mComandos;
};

}  // namespace halvo
