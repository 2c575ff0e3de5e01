#pragma once

#include "corvalin/frame/AberturaTelas.h"
#include "corvalin/options/OpcoesBD.h"
#include "corvalin/stations/PostoBD.h"
#include "platform/runtime/Vetor.h"

#include <QString>
#include <QStringList>

#include <cstdint>

namespace corvalin {

class Progresso;
class RegistroTexto;

// The two status labels of the import: the path at work and its place, "Arquivo 1 de 5".
class StatusImportacao {
public:
    virtual ~StatusImportacao() = default;
    virtual void setStatus(const QString& nome, const QString& numero) = 0;
};

// The import assistant's passes apart from its screen, on a list of general data files: each
// names the station's other files, which lie in the same folder. The check pass finds every
// station's weekly flows file and reads its heading; the import pass loads the stations one by
// one. Both report into a log, a message with the highlight and the path it concerns without.
class ImportacaoPostos {
public:
    ImportacaoPostos(ObjetosCaso objetos, RegistroTexto& relatorio, Progresso& barra, StatusImportacao& status);

    // The check pass; true when every file was found and its weekly flows file reads.
    bool pVerificaArquivos(const QStringList& linhas);
    // The import pass over the lines that the check pass last looked at; true when all went well.
    // Each station is loaded in one transaction, so that a process that dies leaves it whole or
    // absent. The case's notifier hears 1 at the end, or 0 when the limits gave a message.
    bool pImportaArquivos(const QStringList& linhas);

    // The path of the station's weekly flows file in the folder of its general data file, or
    // the empty text when that file is bad or the other one is missing.
    QString pArquivoVazoes(const QString& arquivo);
    // Whether the weekly flows file's heading reads; codigo takes the station's code.
    bool pValidaVazoes(const QString& arquivo, std::int32_t& codigo);

private:
    struct Arquivo {
        std::int32_t Codigo = 0;
        QString ArquivoVazoes;
    };

    void pRelata(const QString& mensagem, const QString& caminho);
    // One line of the list; erros gets the failing file kinds, mensagem the limits' warning.
    void pImportaPosto(const QString& linha, const Arquivo& arquivo, QString& erros, QString& mensagem);

    ObjetosCaso mObjetos;
    RegistroTexto& mRelatorio;
    Progresso& mBarra;
    StatusImportacao& mStatus;
    PostoBD mPostoBD;
    OpcoesBD mOpcoesBD;
    plataforma::Vetor<Arquivo> mArquivos;  // by line, from 1
    QString mPastaArquivos;
};

}  // namespace corvalin
