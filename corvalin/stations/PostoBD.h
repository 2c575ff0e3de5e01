#pragma once

#include "corvalin/stations/Historico.h"
#include "platform/runtime/Vetor.h"

#include <QString>

#include <cstdint>
#include <memory>

namespace recordstore {
class Database;
}

namespace corvalin {

class casoBD;
class Opcoes;
class Posto;

// How getPosto finds a station.
enum ModoBusca : std::int16_t {
    BuscaPorCodigo = 0,
    BuscaPrimeiro = 1,
    BuscaAnterior = 2,
    BuscaProximo = 3,
    BuscaUltimo = 4,
    BuscaAtual = 5,  // the row the Postos handle stands on; any other value acts so too
};

// The one way to the station tables, on the table handles that casoBD shares among all its
// users. Every write is one transaction: a failure half-way leaves the case as it was.
class PostoBD {
public:
    PostoBD() = default;
    // Balances setCasoBD: the last user of the station tables closes them.
    ~PostoBD();
    PostoBD(const PostoBD&) = delete;
    PostoBD& operator=(const PostoBD&) = delete;

    void setCasoBD(std::shared_ptr<casoBD> bd);

    // Catalogue.
    void getPostos(plataforma::Vetor<Posto>& postos) const;
    bool getPosto(Posto& posto, std::int16_t Modo, std::int32_t Codigo, const QString& Indice) const;
    bool setPosto(Posto& posto);  // false (Gravou) when the name belongs to another code
    void setDadosGerais(const Posto& posto);
    void delPosto(const Posto& posto);
    void setNomesPadrao(Posto& posto, const Opcoes& Padrao);

    // Flow history.
    bool getHistorico(const Posto& posto, Historico& vazoes) const;
    void setHistorico(const Posto& posto, const Historico& vazoes);
    std::uint8_t getUltimaSemana(const Posto& posto) const;

    // Forecasts and limits.
    void setVazoesPrevistas(std::int32_t Codigo, const plataforma::Vetor<float>& Previsao,
                            const plataforma::Vetor<float>& LimiteInferior,
                            const plataforma::Vetor<float>& LimiteSuperior);
    void getVazoesPrevistas(std::int32_t Codigo, plataforma::Vetor<float>& Previsao,
                            plataforma::Vetor<float>& LimiteInferior, plataforma::Vetor<float>& LimiteSuperior) const;
    bool getVazoesAnteriores(const Posto& posto, plataforma::Vetor<float>& Vazoes) const;
    void setLimitesPrevisao(std::int32_t Codigo, std::uint8_t Tipo, const plataforma::Vetor<float>& LimiteInferior,
                            const plataforma::Vetor<float>& LimiteSuperior);
    void getLimitesPrevisao(std::int32_t Codigo, std::uint8_t Tipo, plataforma::Vetor<std::int16_t>& Ordem,
                            plataforma::Vetor<float>& LimiteInferior, plataforma::Vetor<float>& LimiteSuperior) const;

    // The database of the stores, for an operation that spans several writes in one transaction
    // (the import of a file).
    recordstore::Database& BancoDeDados() const;

private:
    void pApagarHistorico(std::int32_t Codigo);

    std::shared_ptr<casoBD> mCasoBD;
};

}  // namespace corvalin
