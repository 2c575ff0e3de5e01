#pragma once

#include <QString>

#include <cstdint>
#include <vector>

namespace corvalin {

class Posto;

// The list of stations of a run, a check box on each row, rows counted from 0: the one input of
// the generation and of the run. The screen shows it in a list widget; the headless road keeps it
// in memory.
class ListaPostos {
public:
    virtual ~ListaPostos() = default;

    virtual int Quantidade() const = 0;
    virtual QString Texto(int linha) const = 0;
    virtual bool Marcada(int linha) const = 0;
    virtual void setMarcada(int linha, bool marcada) = 0;
    // Appends a row, not checked.
    virtual void Adiciona(const QString& texto) = 0;
    virtual void setLinhaAtual(int linha) = 0;
};

// The list of a run without a screen.
class ListaPostosMemoria : public ListaPostos {
public:
    int Quantidade() const override { return static_cast<int>(mLinhas.size()); }
    QString Texto(int linha) const override;
    bool Marcada(int linha) const override;
    void setMarcada(int linha, bool marcada) override;
    void Adiciona(const QString& texto) override { mLinhas.push_back({texto, false}); }
    void setLinhaAtual(int linha) override { mLinhaAtual = linha; }

    int LinhaAtual() const { return mLinhaAtual; }

private:
    struct Linha {
        QString texto;
        bool marcada;
    };
    const Linha& pLinha(int linha) const;

    std::vector<Linha> mLinhas;
    int mLinhaAtual = -1;
};

// The text of a station's row: the code, " - " and the name.
QString TextoDaLinha(const Posto& posto);

// The code of a row, from its text alone: what stands left of the first hyphen, less the blank in
// front of it, so that a hyphen in the name does no harm.
std::int32_t CodigoDaLinha(const QString& linha);

}  // namespace corvalin
