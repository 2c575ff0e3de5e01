#pragma once

#include "corvalin/frame/AberturaTelas.h"
#include "corvalin/options/OpcoesBD.h"
#include "corvalin/stations/PostoBD.h"

#include <QString>

namespace corvalin {

class JanelaProgresso;
class ListaPostos;
class RegistroTexto;

// The title of the run's step, over its log.
inline const QString TituloExecucao = QStringLiteral("Execução do Caso:");

// The run of a case apart from its screen: the list of stations, their validation, the
// generation of their files and the run of the solver, with the texts of the screen's labels as
// plain outputs. The assistant's screen drives it with its list and its log; the host's run
// without a screen drives it with a list in memory.
class AssistenteExecucao {
public:
    // pastaPlugin: the plug-in's folder, without a trailing separator, where the solver stands.
    AssistenteExecucao(ObjetosCaso objetos, QString pastaPlugin, ListaPostos& lista, RegistroTexto& registro);

    // Appends a checked row for every station of the catalogue, in its order, without emptying
    // the list first; false when the catalogue is empty (nothing to go forward with).
    bool pCarregarPostos();
    // Validates the checked rows into the log and sets the two count labels; true without errors.
    bool pValidar();
    void pGerarArquivos(JanelaProgresso& janela);
    void pGerarArquivosDireto();
    // Runs the checked rows; the case's notifier hears the outcome.
    void pExecutar();
    // The host's run of the whole case: the catalogue loaded again behind what the list holds,
    // every row checked, the files written without the assistant's extras, and the run.
    void ExecutarCorvalin();

    const QString& getLblExecutar() const { return mLblExecutar; }
    const QString& getLblExecutarAlertas() const { return mLblExecutarAlertas; }
    const QString& getLblExecutarProblemas() const { return mLblExecutarProblemas; }

private:
    ObjetosCaso mObjetos;
    QString mPastaPlugin;
    ListaPostos& mLista;
    RegistroTexto& mRegistro;
    PostoBD mPostoBD;
    OpcoesBD mOpcoesBD;
    QString mLblExecutar;
    QString mLblExecutarAlertas;
    QString mLblExecutarProblemas;
};

}  // namespace corvalin
