// The forecast reader on any bytes: the last three lines are stored, or nothing is.

#include "corvalin/modelfiles/PostoARQ.h"
#include "tests/fuzz/AmbienteFuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dados, std::size_t tamanho) {
    auto& ambiente = fuzz::Ambiente::instancia();
    const QString caminho = ambiente.arquivo(QStringLiteral("SSIMAO.prv"), dados, tamanho);
    ambiente.executa([&] {
        return corvalin::PostoARQ().importaPRV(caminho, fuzz::Ambiente::SaoSimao(), ambiente.postoBD);
    });
    fuzz::Ambiente::exige(ambiente.host.dialogo.Mensagens().empty(), "no message box");
    return 0;
}
