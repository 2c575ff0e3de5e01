#include "halvo/app/EntradaCaso.h"

#include <QDir>
#include <QFileInfo>

namespace halvo {

EntradaCaso EntradaCaso::DaPasta(const QString& pasta) {
    EntradaCaso entrada;
    entrada.Pasta = PastaNormal(pasta);
    const QFileInfo info(QDir::fromNativeSeparators(entrada.Pasta));
    entrada.Nome = info.fileName();
    entrada.Estudo = info.dir().dirName();
    entrada.Criacao = QDateTime::currentDateTime();
    return entrada;
}

QString EntradaCaso::PastaNormal(const QString& pasta) {
    return QDir::toNativeSeparators(QDir::cleanPath(QFileInfo(pasta).absoluteFilePath()));
}

}  // namespace halvo
