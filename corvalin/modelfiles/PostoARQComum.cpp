#include "corvalin/modelfiles/PostoARQComum.h"

#include "corvalin/modelfiles/PostoARQ.h"
#include "corvalin/stations/PostoBD.h"
#include "platform/recordstore/Recordstore.h"
#include "platform/texto/Texto.h"

#include <QDir>

#include <algorithm>

namespace corvalin {

namespace postoarq {

QString pPreencher(const QString& texto, qsizetype largura, bool aDireita) {
    const QString filler(std::max<qsizetype>(0, largura - texto.size() + 1), u' ');
    return aDireita ? filler + texto : texto + filler;
}

void pAdicionaErro(QString& erros, const QString& rotulo) {
    if (!texto::Trim(erros).isEmpty()) {
        erros += QStringLiteral(", ");
    }
    erros += rotulo;
}

QString pCaminhoDoPosto(const QString& pasta, std::int32_t codigo, const QString& nome) {
    return pasta + texto::Trim(texto::Str(codigo)) + QDir::separator() + nome;
}

void pGravaDadosGerais(const Posto& posto, PostoBD& postoBD) {
    recordstore::Transacao transacao(postoBD.BancoDeDados());
    postoBD.setDadosGerais(posto);
    transacao.Commit();
}

QString pExtensaoLimites(const QString& nome) {
    return texto::Left(nome, nome.size() - 3) + QStringLiteral("lim");
}

}  // namespace postoarq

QString PostoARQ::preparaFoat_10_2(QString& valor, bool usaPonto) {
    const QChar separador = usaPonto ? u'.' : u',';
    valor.replace(usaPonto ? u',' : u'.', separador);
    const qsizetype posicao = valor.indexOf(separador);
    // The decimals that a text with n of them still lacks: 2 - n, or 3 with no separator at all;
    // more than two decimals are left as they stand, unrounded.
    const qsizetype falta = posicao < 0 ? 3 : 3 - (valor.size() - posicao);
    switch (falta) {
        case 1:
            valor += QStringLiteral("0");
            break;
        case 2:
            valor += QStringLiteral("00");
            break;
        case 3:
            valor += separador + QStringLiteral("00");
            break;
        default:
            break;
    }
    return valor;
}

}  // namespace corvalin
