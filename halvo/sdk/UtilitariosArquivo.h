#pragma once

#include <QString>

namespace halvo {

// The host's file utility. It holds no state: make one where it is needed. Paths use the native
// separator; a folder given "with separator" ends in it.
class UtilitariosArquivo {
public:
    // The file dialog of the host, through the dialog service; empty on cancel.
    QString SelecionaArquivo(const QString& filtro, const QString& caminho, const QString& titulo) const;

    bool ArquivoExiste(const QString& caminho) const;
    bool PastaExiste(const QString& caminho) const;
    // Makes the folder and any missing parent; true when it exists afterwards.
    bool CriaPasta(const QString& caminho) const;
    // Deletes the folder with all it holds; false when it does not exist or could not go whole.
    bool ApagaPasta(const QString& caminho, bool forcar) const;
    // The folder holds no file or folder, hidden ones included.
    bool PastaVazia(const QString& caminho) const;
    // Copies a file; false when the source is missing, or the target exists and sobrescreve is false.
    bool CopiaArquivo(const QString& origem, const QString& destino, bool sobrescreve) const;
    // Deletes a file; a missing file is no error.
    void ApagaArquivo(const QString& caminho) const;

    // The folder part of a path, with a trailing separator when comSeparador.
    QString SeparaCaminho(const QString& caminho, bool comSeparador) const;
    // The file name without its folder.
    QString NomeDoArquivo(const QString& caminho) const;

    // A short file name: a name of 1 to 8 characters, a point, an extension of 1 to 3 characters,
    // no blank and no special character (letters, digits and _ - $ ~ ! # % & ( ) @ ^ ' ` { } only).
    bool NomeArquivoValido(const QString& nome) const;
    // The name part alone (1 to 8 characters), and the extension alone (1 to 3), by the same rule.
    bool NomeValido(const QString& nome) const;
    bool ExtensaoValida(const QString& extensao) const;
};

}  // namespace halvo
