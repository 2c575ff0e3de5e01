#include "halvo/app/NotificadorMensagem.h"

namespace halvo {

QString NotificadorMensagem::Frase(std::int32_t evento) {
    switch (evento) {
        case EventoImportacaoComProblemas:
            return QStringLiteral("Importação terminada com problemas.");
        case EventoImportacaoConcluida:
            return QStringLiteral("Importação concluída.");
        case EventoCasoAlterado:
            return QStringLiteral("Alterações gravadas.");
        case EventoExecucaoComErro:
            return QStringLiteral("Execução terminada com erros.");
        case EventoExecucaoSemErro:
            return QStringLiteral("Execução concluída com sucesso.");
        default:
            return QStringLiteral("Evento %1.").arg(evento);
    }
}

}  // namespace halvo
