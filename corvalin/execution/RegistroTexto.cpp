#include "corvalin/execution/RegistroTexto.h"

#include <QTextStream>

namespace corvalin {

void RegistroConsole::AdicionaLinha(const QString& texto, int estilo, bool, bool quebraLinha) {
    if (mInicioDeLinha) {
        if (estilo == Erro) {
            mSaida << QStringLiteral("ERRO: ");
        } else if (estilo == Aviso && mMarcaAvisos) {
            mSaida << QStringLiteral("AVISO: ");
        }
    }
    mSaida << texto;
    mInicioDeLinha = quebraLinha;
    if (quebraLinha) {
        mSaida << Qt::endl;
    } else {
        mSaida.flush();
    }
}

}  // namespace corvalin
