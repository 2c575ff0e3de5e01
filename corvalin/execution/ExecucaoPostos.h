#pragma once

#include <QString>

namespace halvo {
class caso;
class Notificador;
}  // namespace halvo

namespace corvalin {

class ListaPostos;
class Opcoes;
class OpcoesBD;
class PostoBD;
class RegistroTexto;

// The run of the solver, one checked station after the other, in the order of the rows: the
// station folder is prepared, the solver started in it and waited for, the folder cleaned and the
// forecast harvested, and the verdict logged. The host hears the outcome of the whole run.
class ExecucaoPostos {
public:
    // pastaPlugin is the plug-in's folder, without a trailing separator: the solver stands in it.
    ExecucaoPostos(halvo::caso& caso, PostoBD& postoBD, OpcoesBD& opcoesBD, RegistroTexto& registro,
                   QString pastaPlugin);

    // Runs every checked row; the host gets event 5 when any station failed, else 6.
    void pExecutar(const ListaPostos& lista, halvo::Notificador& notificador);
    // The verdict that the solver left in the station folder pasta (given without separator): the
    // first line of its state file reads as the number 0. A file that cannot be opened fails.
    static bool pExecutouSemErro(const QString& pasta);

private:
    // One station; true when it ended without error.
    bool pExecutarPosto(const QString& linha, const Opcoes& opcoes);
    void pMostraAviso(const QString& pasta) const;

    halvo::caso& mCaso;
    PostoBD& mPostoBD;
    OpcoesBD& mOpcoesBD;
    RegistroTexto& mRegistro;
    QString mPastaPlugin;
};

}  // namespace corvalin
