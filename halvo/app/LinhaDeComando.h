#pragma once

#include <QStringList>
#include <QTextStream>

#include <functional>
#include <map>

namespace halvo {

class IModelo;
class Modelos;

// The host's commands for headless work: each takes the same road as the model's own operations,
// prints what it did, and answers an exit code (0 success, 1 failure, 2 wrong use).
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
    int pFalha(const QString& mensagem);
    std::unique_ptr<IModelo> pModelo();

    const Modelos& mModelos;
    QTextStream& mSaida;
    QTextStream& mErro;
    std::map<QString, Comando> mComandos;
};

}  // namespace halvo
