#include "corvalin/frame/FrmBarraDeProgresso.h"

#include "halvo/sdk/Servicos.h"
#include "halvo/sdk/UtilitariosSistema.h"

#include <QCoreApplication>
#include <QProgressBar>
#include <QVBoxLayout>

#include <cmath>

namespace corvalin {

namespace {

std::unique_ptr<FrmBarraDeProgresso>& pInstancia() {
    static std::unique_ptr<FrmBarraDeProgresso> instancia;
    return instancia;
}

}  // namespace

FrmBarraDeProgresso::FrmBarraDeProgresso()
    : QWidget(nullptr, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      mBarra(new QProgressBar(this)) {
    setObjectName(QStringLiteral("FrmBarraDeProgresso"));
    mBarra->setObjectName(QStringLiteral("PrgBarraDeProgresso"));
    mBarra->setRange(0, 100);
    mBarra->setValue(0);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(mBarra);
    setMinimumWidth(mBarra->fontMetrics().averageCharWidth() * 50);
}

// A host that adopted the form may delete it with its own window; the instance is then gone.
FrmBarraDeProgresso::~FrmBarraDeProgresso() {
    if (pInstancia().get() == this) {
        static_cast<void>(pInstancia().release());
    }
}

FrmBarraDeProgresso& FrmBarraDeProgresso::Instancia() {
    auto& instancia = pInstancia();
    if (!instancia) {
        instancia.reset(new FrmBarraDeProgresso);
        halvo::Servicos::sistema().JanelaAuxiliar(instancia.get());
    }
    return *instancia;
}

void FrmBarraDeProgresso::Descarregar() {
    pInstancia().reset();
}

void FrmBarraDeProgresso::Atualizar() {
    repaint();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void FrmBarraDeProgresso::ProgressoDaBarra::setValue(double valor) {
    mFormulario.mBarra->setValue(static_cast<int>(std::lround(valor)));
}

ProgressoDaOperacao::ProgressoDaOperacao(const QString& legenda) {
    FrmBarraDeProgresso& formulario = FrmBarraDeProgresso::Instancia();
    formulario.setWindowTitle(legenda);
    formulario.show();
    formulario.Atualizar();
}

ProgressoDaOperacao::~ProgressoDaOperacao() { FrmBarraDeProgresso::Descarregar(); }

}  // namespace corvalin
