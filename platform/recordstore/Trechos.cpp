#include "platform/recordstore/Trechos.h"

#include "platform/recordstore/Sqlite.h"

#include <QStringList>

namespace recordstore::trechos {

namespace {

bool nulo(const Trecho& trecho, int posicao) {
    return (trecho.nulos >> posicao) & 1U;
}

// Whether the walk meets the column's values in ascending order (Nulls first).
bool crescente(const ColunaChave& coluna, const Trecho& trecho) {
    return trecho.avanca != coluna.descendente;
}

QString expressao(const MetaTabela& tabela, const ColunaChave& coluna) {
    const QString nome = sql::aspas(tabela.campos[static_cast<std::size_t>(coluna.campo)].Name);
    // Written even where the column declares it, so that files made without it compare alike.
    return coluna.texto ? nome + QStringLiteral(" COLLATE GERAL") : nome;
}

QString alem(const QString& coluna, bool crescenteNaCaminhada, bool limiteNulo) {
    if (crescenteNaCaminhada) {
        return limiteNulo ? coluna + QStringLiteral(" IS NOT NULL") : coluna + QStringLiteral(" > ?");
    }
    return QStringLiteral("(%1 < ? OR %1 IS NULL)").arg(coluna);
}

}  // namespace

bool semLinhas(const std::vector<ColunaChave>& colunas, const Trecho& trecho) {
    return trecho.nivel < trecho.chaves && nulo(trecho, trecho.nivel) &&
           !crescente(colunas[static_cast<std::size_t>(trecho.nivel)], trecho);
}

QString sql(const QString& selecao, const MetaTabela& tabela, const std::vector<ColunaChave>& colunas,
            const Trecho& trecho) {
    QStringList condicoes;
    for (int i = 0; i < trecho.nivel; ++i) {
        const QString c = expressao(tabela, colunas[static_cast<std::size_t>(i)]);
        condicoes << (nulo(trecho, i) ? c + QStringLiteral(" IS NULL") : c + QStringLiteral(" = ?"));
    }
    if (trecho.nivel < trecho.chaves) {
        const auto& coluna = colunas[static_cast<std::size_t>(trecho.nivel)];
        condicoes << alem(expressao(tabela, coluna), crescente(coluna, trecho), nulo(trecho, trecho.nivel));
    } else if (trecho.comRowid) {
        condicoes << (trecho.avanca ? QStringLiteral("rowid > ?") : QStringLiteral("rowid < ?"));
    }
    QStringList ordem;
    for (std::size_t i = static_cast<std::size_t>(trecho.nivel); i < colunas.size(); ++i) {
        ordem << expressao(tabela, colunas[i]) +
                     (crescente(colunas[i], trecho) ? QStringLiteral(" ASC") : QStringLiteral(" DESC"));
    }
    ordem << (trecho.avanca ? QStringLiteral("rowid ASC") : QStringLiteral("rowid DESC"));
    QString texto = selecao;
    if (!condicoes.isEmpty()) {
        texto += QStringLiteral(" WHERE ") + condicoes.join(QStringLiteral(" AND "));
    }
    return texto + QStringLiteral(" ORDER BY ") + ordem.join(QStringLiteral(", "));
}

}  // namespace recordstore::trechos
