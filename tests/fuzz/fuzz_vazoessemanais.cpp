// The weekly flows reader on any bytes: it ends in its message box, in the error list, or in a
// stored station, and never half way.

#include "corvalin/frame/Progresso.h"
#include "corvalin/modelfiles/PostoARQ.h"
#include "tests/fuzz/AmbienteFuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dados, std::size_t tamanho) {
    auto& ambiente = fuzz::Ambiente::instancia();
    const QString caminho = ambiente.arquivo(QStringLiteral("SSIMAO.dat"), dados, tamanho);
    QString erros;
    const bool importou = ambiente.executa([&] {
        corvalin::Posto posto;
        corvalin::ProgressoNulo progresso;
        return corvalin::PostoARQ().importaVazoesSemanais(caminho, erros, progresso, posto, ambiente.postoBD,
                                                          ambiente.opcoesBD, false, false);
    });
    const auto mensagens = ambiente.host.dialogo.Mensagens().size();
    if (importou) {
        fuzz::Ambiente::exige(erros.isEmpty() && mensagens == 0, "an import says nothing");
    } else {
        fuzz::Ambiente::exige((mensagens == 1 && erros.isEmpty()) ||
                                  (mensagens == 0 && erros.startsWith(QStringLiteral("Vazões Semanais"))),
                              "a failure is one message box or one entry of the list");
    }
    return 0;
}
