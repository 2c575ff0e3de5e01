#pragma once

#include "corvalin/casedb/casoBD.h"
#include "corvalin/frame/AberturaTelas.h"
#include "corvalin/stations/Posto.h"
#include "corvalin/stations/PostoBD.h"
#include "halvo/sdk/NotificadorRegistro.h"
#include "tests/doubles/HostTeste.h"

#include <QWidget>

#include <initializer_list>
#include <memory>

namespace teste {

// A case made for the screens, open for the life of a test, with the host's doubles installed,
// the four objects every screen receives and a station store of the test's own.
class CasoDeTelas {
public:
    explicit CasoDeTelas(bool somenteLeitura = false);
    ~CasoDeTelas();
    CasoDeTelas(const CasoDeTelas&) = delete;
    CasoDeTelas& operator=(const CasoDeTelas&) = delete;

    corvalin::ObjetosCaso objetos() const { return {camada, bd, caso, notificador}; }
    QString pasta() const { return caso->Item(QStringLiteral("Diretorio")); }

    // A station with general data that validate: a forecast from week semanaInicialPrev of
    // anoInicialPrev, file names from the code.
    corvalin::Posto posto(int codigo, const QString& nome, int semanaInicialPrev = 3,
                          int anoInicialPrev = 2009) const;
    corvalin::Posto adiciona(int codigo, const QString& nome, int semanaInicialPrev = 3,
                             int anoInicialPrev = 2009);
    void grava(corvalin::Posto& p);
    // A history from anoInicial whose last year ends in ultimaSemana; week w of year y flows
    // y * 0.01 + w.
    void historico(corvalin::Posto& p, int anoInicial, int anoFinal, int ultimaSemana);
    // A stored forecast of the given values, limits at 90% and 110%.
    void previsao(int codigo, std::initializer_list<float> valores);

    HostTeste host;
    std::shared_ptr<CasoTeste> caso;
    std::shared_ptr<corvalin::casoBD> bd;
    std::shared_ptr<halvo::NotificadorRegistro> notificador;
    std::shared_ptr<halvo::CamadaAcesso> camada;
    std::unique_ptr<corvalin::PostoBD> postoBD;
};

// A control of a screen by its name; a missing control ends the test program.
template <class T>
T& controle(const QWidget& tela, const QString& nome) {
    T* filho = tela.findChild<T*>(nome);
    if (filho == nullptr) {
        qFatal("no control %s", qPrintable(nome));
    }
    return *filho;
}

// Loads a screen of type T on the case's objects.
template <class T>
std::unique_ptr<T> carrega(const CasoDeTelas& caso) {
    auto tela = std::make_unique<T>();
    tela->setObjetos(caso.objetos());
    tela->Carregar();
    return tela;
}

}  // namespace teste
