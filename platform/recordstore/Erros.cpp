#include "platform/recordstore/Erros.h"

#include <sqlite3.h>

namespace recordstore {

namespace {

QString descricao(std::int32_t numero) {
    switch (numero) {
        case ErroArgumentoInvalido:
            return QStringLiteral("Argumento inválido.");
        case ErroTabelaExiste:
            return QStringLiteral("A tabela '%1' já existe.");
        case ErroSemIndiceAtual:
            return QStringLiteral("Operação inválida sem um índice atual.");
        case ErroSemAddNewOuEdit:
            return QStringLiteral("Update ou CancelUpdate sem AddNew ou Edit.");
        case ErroSemRegistroAtual:
            return QStringLiteral("Nenhum registro atual.");
        case ErroDuplicado:
            return QStringLiteral(
                "As alterações solicitadas na tabela não foram bem-sucedidas porque criariam valores "
                "duplicados no índice, chave primária ou relacionamento. Altere os dados no campo ou nos "
                "campos que contêm dados duplicados, remova o índice ou redefina o índice para permitir "
                "entradas duplicadas e tente novamente.");
        case ErroArquivoInexistente:
            return QStringLiteral("Não foi possível encontrar o arquivo '%1'.");
        case ErroSomenteLeitura:
            return QStringLiteral(
                "Não é possível atualizar. O banco de dados ou o objeto é somente leitura.");
        case ErroSemTransacao:
            return QStringLiteral(
                "Você tentou confirmar ou reverter uma transação sem antes iniciar uma transação.");
        case ErroDisco:
            return QStringLiteral("Erro de disco ou de rede.");
        case ErroCaminhoInvalido:
            return QStringLiteral(
                "'%1' não é um caminho válido. Certifique-se de que o nome do caminho esteja digitado "
                "corretamente e de que você esteja conectado ao servidor no qual o arquivo reside.");
        case ErroTabelaInexistente:
            return QStringLiteral(
                "O mecanismo de banco de dados não encontrou a tabela ou consulta de entrada '%1'. "
                "Certifique-se de que ela exista e de que seu nome esteja digitado corretamente.");
        case ErroTextoAposInstrucao:
            return QStringLiteral("Caracteres encontrados após o final da instrução SQL.");
        case ErroIndicadorInvalido:
            return QStringLiteral("Não é um indicador válido.");
        case ErroCampoPequeno:
            return QStringLiteral(
                "O campo é pequeno demais para aceitar a quantidade de dados que você tentou adicionar. "
                "Tente inserir ou colar menos dados.");
        case ErroRegistroExcluido:
            return QStringLiteral("O registro foi excluído.");
        case ErroCampoRepetido:
            return QStringLiteral("Não é possível definir o campo mais de uma vez.");
        case ErroBancoExiste:
            return QStringLiteral("O banco de dados já existe.");
        case ErroBloqueado:
            return QStringLiteral("Não foi possível atualizar; bloqueado no momento.");
        case ErroSemCampos:
            return QStringLiteral("Nenhum campo definido - não é possível acrescentar TableDef ou Index.");
        case ErroItemInexistente:
            return QStringLiteral("Item não encontrado nesta coleção.");
        case ErroComprimentoZero:
            return QStringLiteral(
                "O campo '%1' não pode ser uma seqüência de caracteres de comprimento zero.");
        case ErroFormatoBanco:
            return QStringLiteral("Formato de banco de dados '%1' não reconhecido.");
        case ErroObjetoInvalido:
            return QStringLiteral("Objeto inválido ou não mais definido.");
        case ErroIndiceInexistente:
            return QStringLiteral("'%1' não é um índice nesta tabela.");
        default:
            return QStringLiteral("Erro reservado (%1); não há mensagem para este erro.");
    }
}

}  // namespace

plataforma::ErroVB erroBD(std::int32_t numero, const QString& argumento) {
    QString texto = descricao(numero);
    if (texto.contains(QLatin1String("%1"))) {
        texto = texto.arg(argumento);
    }
    return {numero, texto};
}

plataforma::ErroVB erroDoSqlite(int codigo, const QString& caminho) {
    switch (codigo) {
        case SQLITE_CONSTRAINT_UNIQUE:
        case SQLITE_CONSTRAINT_PRIMARYKEY:
            return erroBD(ErroDuplicado);
        default:
            break;
    }
    switch (codigo & 0xff) {
        case SQLITE_NOTADB:
        case SQLITE_CORRUPT:
            return erroBD(ErroFormatoBanco, caminho);
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            return erroBD(ErroBloqueado);
        case SQLITE_READONLY:
            return erroBD(ErroSomenteLeitura);
        case SQLITE_IOERR:
        case SQLITE_FULL:
            return erroBD(ErroDisco);
        case SQLITE_CANTOPEN:
            return erroBD(ErroCaminhoInvalido, caminho);
        default:
            return erroBD(ErroReservado, QString::number(codigo));
    }
}

}  // namespace recordstore
