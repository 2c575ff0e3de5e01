#pragma once

// Private helpers of PostoARQ, shared by the sources of its file kinds.

#include <QString>

#include <cstdint>

namespace corvalin {
class Posto;
class PostoBD;
}  // namespace corvalin

namespace corvalin::postoarq {

// A field of largura + 1 characters: texto and one blank for each count from its length up to
// largura, so that a text of exactly largura characters still gets one blank and a longer one
// comes out as it is. The callers' widths are one less than their fields on purpose.
QString pPreencher(const QString& texto, qsizetype largura, bool aDireita);

// Adds one failing file kind (its label, and a detail for the weekly flows file) to the error
// list that all importers share.
void pAdicionaErro(QString& erros, const QString& rotulo);

// A station's file in the run folder: the folder text as given, the code and the separator.
QString pCaminhoDoPosto(const QString& pasta, std::int32_t codigo, const QString& nome);

// Stores the general data of posto in a transaction of its own.
void pGravaDadosGerais(const Posto& posto, PostoBD& postoBD);

// The name with its last three characters replaced by "lim"; a name shorter than three is a
// run-time failure.
QString pExtensaoLimites(const QString& nome);

}  // namespace corvalin::postoarq
