#pragma once

#include <QString>

namespace corvalin {

class OpcoesBD;
class Posto;
class PostoBD;
class Progresso;

// The model's fixed-column text files, read into a station and the case database and written
// back for the solver. It holds no state. Readers report through their result and the shared
// error list erros (each failing file kind adds its label); a failing import writes nothing to the
// case. Writers build the path as the folder text, the station code, the separator and the name.
class PostoARQ {
public:
    // Weekly flows file.
    bool importaVazoesSemanais(const QString& arquivo, QString& erros, Progresso& progresso, Posto& posto,
                               PostoBD& postoBD, OpcoesBD& opcoesBD, bool semNomesPadrao, bool soCabecalho) const;
    bool geraVazoesSemanais(const QString& pasta, const Posto& posto, PostoBD& postoBD, Progresso& progresso) const;

    // General data file; the name part of arquivo becomes the station's general data file name.
    bool importaDadosGerais(const QString& arquivo, Posto& posto, PostoBD& postoBD, QString& erros,
                            Progresso& progresso, bool soValida) const;
    bool geraDadosGerais(const QString& pasta, const Posto& posto, Progresso& progresso) const;

    // Vazpast file: arquivo names the folder (normally the general data file's path) and returns
    // the path actually read.
    bool importaVazpast(QString& arquivo, Posto& posto, PostoBD& postoBD, QString& erros, bool soValida) const;
    bool geraVazpast(const QString& pasta, const Posto& posto) const;

    // The solver's forecast file: its last three lines go to the stored forecast.
    bool importaPRV(const QString& arquivo, const Posto& posto, PostoBD& postoBD) const;

    // Limits file; mensagem receives a text for the user when there is one, whatever the result.
    bool importaLimites(const QString& arquivo, Posto& posto, PostoBD& postoBD, QString& mensagem) const;
    bool geraLimites(const QString& pasta, Posto& posto, PostoBD& postoBD) const;

    // Normalises a number's text to two decimals with the chosen separator; changes valor too.
    static QString preparaFoat_10_2(QString& valor, bool usaPonto);
};

}  // namespace corvalin
