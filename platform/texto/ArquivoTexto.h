#pragma once

// Sequential text files of the model: Windows-1252 bytes, one character per byte. Lines are
// written with CR LF; a line is read up to CR or CR LF, which is dropped (a lone LF is text).

#include <QString>

#include <QByteArray>
#include <memory>

namespace texto {

// Windows-1252 <-> Unicode. The five bytes that the code page leaves undefined map to the control
// characters of the same value; a character outside the code page is written as "?".
QString DeCp1252(const QByteArray& bytes);
QByteArray ParaCp1252(const QString& s);

// A file opened for input (Open ... For Input): a missing file raises error 53, one that cannot
// be read error 75. The file is closed when the object ends, or by Close.
class ArquivoEntrada {
public:
    explicit ArquivoEntrada(const QString& caminho);
    ~ArquivoEntrada();
    ArquivoEntrada(const ArquivoEntrada&) = delete;
    ArquivoEntrada& operator=(const ArquivoEntrada&) = delete;

    // EOF(n): no byte is left to read.
    bool Eof() const;
    // Line Input: the next line without its terminator; past the end raises error 62.
    QString LineInput();
    void Close();

private:
    struct Estado;
    std::unique_ptr<Estado> m;
};

// A file opened for output (Open ... For Output), which empties an existing file. A file that
// cannot be made raises error 76 (missing folder) or 75.
class ArquivoSaida {
public:
    explicit ArquivoSaida(const QString& caminho);
    ~ArquivoSaida();
    ArquivoSaida(const ArquivoSaida&) = delete;
    ArquivoSaida& operator=(const ArquivoSaida&) = delete;

    // Print #n, linha: the text and CR LF.
    void Print(const QString& linha);
    // Flushes and closes; a failure to write raises error 75 here, so no short file goes unnoticed.
    void Close();

private:
    struct Estado;
    std::unique_ptr<Estado> m;
};

}  // namespace texto
