#pragma once

#include <QString>

#include <vector>

class QTextStream;

namespace corvalin {

// A log of lines in three styles, as the host's text view keeps them: the report of a validation,
// the log of a run, the report of an import. The screens implement it with the view itself.
class RegistroTexto {
public:
    enum Estilo : int { Normal = 1, Erro = 2, Aviso = 3 };

    virtual ~RegistroTexto() = default;
    virtual void Limpa() = 0;
    // destaque makes the text stand out; quebraLinha ends the line after it.
    virtual void AdicionaLinha(const QString& texto, int estilo, bool destaque, bool quebraLinha) = 0;
};

// Keeps the lines: the log of a run that nobody watches, and what tests read.
class RegistroMemoria : public RegistroTexto {
public:
    struct Linha {
        QString texto;
        int estilo;
        bool destaque;
        bool quebraLinha;
    };

    void Limpa() override { mLinhas.clear(); }
    void AdicionaLinha(const QString& texto, int estilo, bool destaque, bool quebraLinha) override {
        mLinhas.push_back({texto, estilo, destaque, quebraLinha});
    }
    const std::vector<Linha>& Linhas() const { return mLinhas; }

private:
    std::vector<Linha> mLinhas;
};

// Writes every line to a stream as it comes. A console has no colours, so errors and warnings
// carry a mark in front; emptying has nothing to take back. The log of a run gives its station
// headings the warning style: there that style marks nothing (setMarcaAvisos(false)).
class RegistroConsole : public RegistroTexto {
public:
    explicit RegistroConsole(QTextStream& saida) : mSaida(saida) {}

    void Limpa() override {}
    void AdicionaLinha(const QString& texto, int estilo, bool destaque, bool quebraLinha) override;
    void setMarcaAvisos(bool marca) { mMarcaAvisos = marca; }

private:
    QTextStream& mSaida;
    bool mInicioDeLinha = true;
    bool mMarcaAvisos = true;
};

}  // namespace corvalin
