// The Vazpast reader on any bytes, for the station of code 33: stored, or one entry of the list.

#include "corvalin/modelfiles/PostoARQ.h"
#include "tests/fuzz/AmbienteFuzz.h"

#include <QDir>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dados, std::size_t tamanho) {
    auto& ambiente = fuzz::Ambiente::instancia();
    const QString vazpast = ambiente.arquivo(QStringLiteral("Vazpast.dat"), dados, tamanho);
    QString erros;
    const bool importou = ambiente.executa([&] {
        corvalin::Posto posto = fuzz::Ambiente::SaoSimao();
        QString caminho =
            QFileInfo(vazpast).absolutePath() + QDir::separator() + QStringLiteral("SSIMAO.arq");
        return corvalin::PostoARQ().importaVazpast(caminho, posto, ambiente.postoBD, erros, false);
    });
    fuzz::Ambiente::exige(erros == (importou ? QString() : QStringLiteral("Vazpasts")),
                          "a failure is one entry of the list");
    return 0;
}
