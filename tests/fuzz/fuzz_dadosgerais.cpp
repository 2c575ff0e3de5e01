// The general data reader on any bytes: stored, or one entry of the error list.

#include "corvalin/frame/Progresso.h"
#include "corvalin/modelfiles/PostoARQ.h"
#include "tests/fuzz/AmbienteFuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dados, std::size_t tamanho) {
    auto& ambiente = fuzz::Ambiente::instancia();
    const QString caminho = ambiente.arquivo(QStringLiteral("SSIMAO.arq"), dados, tamanho);
    QString erros;
    const bool importou = ambiente.executa([&] {
        corvalin::Posto posto = fuzz::Ambiente::SaoSimao();
        corvalin::ProgressoNulo progresso;
        return corvalin::PostoARQ().importaDadosGerais(caminho, posto, ambiente.postoBD, erros, progresso,
                                                       false);
    });
    fuzz::Ambiente::exige(erros == (importou ? QString() : QStringLiteral("Dados Gerais")),
                          "a failure is one entry of the list");
    fuzz::Ambiente::exige(ambiente.host.dialogo.Mensagens().empty(), "no message box");
    return 0;
}
