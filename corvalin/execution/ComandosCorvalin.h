#pragma once

#include "corvalin/frame/AberturaTelas.h"
#include "halvo/sdk/IModelo.h"

#include <QString>
#include <QStringList>

#include <vector>

class QTextStream;

namespace corvalin {

class ListaPostos;

// The model's commands for the host's command line, on the open case: each takes the road of the
// screen it stands for, with the log and the reports printed as they come.
class ComandosCorvalin {
public:
    ComandosCorvalin(ObjetosCaso objetos, QString pastaPlugin, QTextStream& saida, QTextStream& erro);

    static std::vector<halvo::ComandosDoModelo::Comando> Comandos();
    // The exit code: 0 success, 1 failure, 2 wrong use (and, for the assistant, errors found by
    // the validation).
    int Executa(const QString& nome, const QStringList& argumentos);

private:
    int pImportar(const QStringList& nomes);
    // The validation of the stations given; with executa, the assistant's run after it.
    int pValidarEExecutar(const QStringList& codigos, bool executa);
    int pPrevisoes();
    // Leaves checked the rows of the codes given, or every row when none is given; false, with a
    // word on the error stream, for a code that is not a number or has no station.
    bool pMarcaCodigos(ListaPostos& lista, const QStringList& codigos);
    void pLinha(const QString& texto);

    ObjetosCaso mObjetos;
    QString mPastaPlugin;
    QTextStream& mSaida;
    QTextStream& mErro;
};

}  // namespace corvalin
