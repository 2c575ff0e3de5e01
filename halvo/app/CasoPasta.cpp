#include "halvo/app/CasoPasta.h"

#include <QDir>

namespace halvo {

CasoPasta::CasoPasta(EntradaCaso entrada) : mEntrada(std::move(entrada)) {}

CasoPasta::CasoPasta(const QString& pasta) : mEntrada(EntradaCaso::DaPasta(pasta)) {}

bool CasoPasta::SomenteLeitura() const {
    return mEntrada.SomenteLeitura;
}

QString CasoPasta::Item(const QString& nome) const {
    const auto eh = [&nome](const char* item) {
        return nome.compare(QLatin1String(item), Qt::CaseInsensitive) == 0;
    };
    if (eh("Diretorio")) {
        return mEntrada.Pasta + QDir::separator();
    }
    if (eh("Nome")) {
        return mEntrada.Nome;
    }
    if (eh("estudo")) {
        return mEntrada.Estudo;
    }
    if (eh("Codigo")) {
        return QString::number(mEntrada.Codigo);
    }
    if (eh("Descricao")) {
        return mEntrada.Descricao;
    }
    if (eh("DataCriacao")) {
        return mEntrada.Criacao.date().toString(Qt::ISODate);
    }
    if (eh("HoraCriacao")) {
        return mEntrada.Criacao.time().toString(Qt::ISODate);
    }
    return {};
}

}  // namespace halvo
