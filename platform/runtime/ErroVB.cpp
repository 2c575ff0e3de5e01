#include "platform/runtime/ErroVB.h"

namespace plataforma {

ErroVB::ErroVB(std::int32_t numero, const QString& descricao)
    : std::runtime_error(QStringLiteral("%1: %2").arg(numero).arg(descricao).toStdString()),
      mNumero(numero),
      mDescricao(descricao) {}

ErroVB ErroVB::padrao(std::int32_t numero) {
    switch (numero) {
        case ErroChamadaInvalida:
            return {numero, QStringLiteral("Chamada de procedimento ou argumento inválido")};
        case ErroEstouro:
            return {numero, QStringLiteral("Estouro")};
        case ErroSubscrito:
            return {numero, QStringLiteral("Subscrito fora do intervalo")};
        case ErroTiposIncompativeis:
            return {numero, QStringLiteral("Tipos incompatíveis")};
        case ErroArquivoNaoEncontrado:
            return {numero, QStringLiteral("Arquivo não encontrado")};
        case ErroFimDeArquivo:
            return {numero, QStringLiteral("Entrada após o final do arquivo")};
        case ErroPermissaoNegada:
            return {numero, QStringLiteral("Permissão negada")};
        case ErroAcessoCaminho:
            return {numero, QStringLiteral("Erro de acesso ao caminho/arquivo")};
        case ErroCaminhoNaoEncontrado:
            return {numero, QStringLiteral("Caminho não encontrado")};
        case ErroObjetoNaoDefinido:
            return {numero, QStringLiteral("A variável do objeto ou a variável do bloco With não foi definida")};
        default:
            return {numero, QStringLiteral("Erro definido pelo aplicativo ou pelo objeto")};
    }
}

}  // namespace plataforma
