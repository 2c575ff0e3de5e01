#include "halvo/app/UtilitariosSistemaGui.h"

#include <QApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QVariant>

namespace halvo {

namespace {

const char* const PropriedadeEstudo = "halvo.estudo";
const char* const PropriedadeCaso = "halvo.caso";
const char* const PropriedadeGrupo = "halvo.grupo";
const char* const PropriedadeItem = "halvo.item";

class PonteiroOcupado {
public:
    PonteiroOcupado() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~PonteiroOcupado() { QApplication::restoreOverrideCursor(); }
    PonteiroOcupado(const PonteiroOcupado&) = delete;
    PonteiroOcupado& operator=(const PonteiroOcupado&) = delete;
};

}  // namespace

std::optional<UtilitariosSistemaGui::Registro> UtilitariosSistemaGui::RegistroDe(const QWidget& janela) {
    const QVariant caso = janela.property(PropriedadeCaso);
    if (!caso.isValid()) {
        return std::nullopt;
    }
    return Registro{janela.property(PropriedadeEstudo).toString(), caso.toString(),
                    janela.property(PropriedadeGrupo).toInt(),
                    static_cast<std::int16_t>(janela.property(PropriedadeItem).toInt())};
}

void UtilitariosSistemaGui::ExecutaPrograma(const QString& arquivo, std::int16_t, const QString&,
                                            std::int32_t, bool) {
    const PonteiroOcupado ponteiro;
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    ExecutaNoShell(arquivo);
}

void UtilitariosSistemaGui::JanelaFilha(QWidget* janela, QObject* contexto) {
    auto* area = qobject_cast<QMdiArea*>(contexto);
    if (janela == nullptr || area == nullptr) {
        return;
    }
    QMdiSubWindow* subjanela = area->addSubWindow(janela);
    subjanela->setAttribute(Qt::WA_DeleteOnClose);
    // A screen that closes itself takes its subwindow along.
    janela->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(janela, &QObject::destroyed, subjanela, &QObject::deleteLater);
}

void UtilitariosSistemaGui::JanelaRegistra(QWidget* janela, const QString& estudo, const QString& caso,
                                           std::int32_t grupo, std::int16_t item) {
    if (janela == nullptr) {
        return;
    }
    janela->setProperty(PropriedadeEstudo, estudo);
    janela->setProperty(PropriedadeCaso, caso);
    janela->setProperty(PropriedadeGrupo, grupo);
    janela->setProperty(PropriedadeItem, item);
}

void UtilitariosSistemaGui::JanelaAuxiliar(QWidget* janela) {
    if (janela == nullptr || mPrincipal == nullptr || janela == mPrincipal) {
        return;
    }
    const bool visivel = janela->isVisible();
    janela->setParent(mPrincipal, (janela->windowFlags() & ~Qt::WindowType_Mask) | Qt::Tool);
    if (visivel) {
        janela->show();
    }
}

}  // namespace halvo
