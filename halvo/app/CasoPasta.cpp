#include "halvo/app/CasoPasta.h"

#include <QDir>
#include <QFileInfo>

namespace halvo {

CasoPasta::CasoPasta(const QString& pasta, bool somenteLeitura)
    : mCriacao(QDateTime::currentDateTime()),
      mSomenteLeitura(somenteLeitura) {
    const QFileInfo info(pasta);
    mDiretorio = QDir::toNativeSeparators(QDir::cleanPath(info.absoluteFilePath())) + QDir::separator();
    mNome = QDir(info.absoluteFilePath()).dirName();
    mEstudo = QFileInfo(QDir::cleanPath(info.absoluteFilePath())).dir().dirName();
}

bool CasoPasta::SomenteLeitura() const { return mSomenteLeitura; }

QString CasoPasta::Item(const QString& nome) const {
    const auto eh = [&nome](const char* item) { return nome.compare(QLatin1String(item), Qt::CaseInsensitive) == 0; };
    if (eh("Diretorio")) {
        return mDiretorio;
    }
    if (eh("Nome")) {
        return mNome;
    }
    if (eh("estudo")) {
        return mEstudo;
    }
    if (eh("Codigo")) {
        return QStringLiteral("0");
    }
    if (eh("DataCriacao")) {
        return mCriacao.date().toString(Qt::ISODate);
    }
    if (eh("HoraCriacao")) {
        return mCriacao.time().toString(Qt::ISODate);
    }
    return {};
}

}  // namespace halvo
