#include "halvo/sdk/UtilitariosSistema.h"

#include <QDir>
#include <QProcess>

namespace halvo {

int ExecutaNoShell(const QString& arquivo) {
    QProcess processo;
#ifdef Q_OS_WIN
    processo.setProgram(QStringLiteral("cmd"));
    processo.setArguments({QStringLiteral("/c"), arquivo});
#else
    processo.setProgram(QStringLiteral("/bin/sh"));
    processo.setArguments({arquivo});
#endif
    processo.setWorkingDirectory(QDir::currentPath());
    processo.setStandardOutputFile(QProcess::nullDevice());
    processo.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    processo.start();
    if (!processo.waitForStarted(-1) || !processo.waitForFinished(-1) ||
        processo.exitStatus() != QProcess::NormalExit) {
        return -1;
    }
    return processo.exitCode();
}

}  // namespace halvo
