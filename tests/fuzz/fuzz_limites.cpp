// The limits reader on any bytes: stored (perhaps with its warning), refused with one of its two
// messages, or refused in silence.

#include "corvalin/modelfiles/PostoARQ.h"
#include "tests/fuzz/AmbienteFuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dados, std::size_t tamanho) {
    auto& ambiente = fuzz::Ambiente::instancia();
    const QString caminho = ambiente.arquivo(QStringLiteral("SSIMAO.lim"), dados, tamanho);
    QString mensagem;
    const bool importou = ambiente.executa([&] {
        corvalin::Posto posto = fuzz::Ambiente::SaoSimao();
        return corvalin::PostoARQ().importaLimites(caminho, posto, ambiente.postoBD, mensagem);
    });
    if (importou) {
        fuzz::Ambiente::exige(mensagem.isEmpty() || mensagem.startsWith(QStringLiteral("Alerta: ")),
                              "an import says nothing or warns");
    } else {
        fuzz::Ambiente::exige(mensagem.isEmpty() ||
                                  mensagem.startsWith(QStringLiteral("São Simão - 0:Valor ")) ||
                                  mensagem.startsWith(QStringLiteral("São Simão - 33:Valor ")),
                              "a refusal names the bad grouping or magnitude, or says nothing");
    }
    fuzz::Ambiente::exige(ambiente.host.dialogo.Mensagens().empty(), "no message box");
    return 0;
}
