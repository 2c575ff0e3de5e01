#include "platform/recordstore/Sqlite.h"

#include "platform/recordstore/Erros.h"

#include <sqlite3.h>

namespace recordstore {

void FinalizaInstrucao::operator()(sqlite3_stmt* instrucao) const {
    sqlite3_finalize(instrucao);
}

namespace sql {

QString aspas(const QString& identificador) {
    QString t = identificador;
    return QLatin1Char('"') + t.replace(QLatin1Char('"'), QLatin1String("\"\"")) + QLatin1Char('"');
}

QString literal(const ValorSql& valor) {
    if (const auto* i = std::get_if<std::int64_t>(&valor)) {
        return QString::number(*i);
    }
    if (const auto* d = std::get_if<double>(&valor)) {
        return QString::number(*d, 'g', 17);  // enough digits to read back the same double
    }
    if (const auto* t = std::get_if<QString>(&valor)) {
        QString s = *t;
        return QLatin1Char('\'') + s.replace(QLatin1Char('\''), QLatin1String("''")) + QLatin1Char('\'');
    }
    return QStringLiteral("NULL");
}

void falha(sqlite3* bd, int codigo) {
    const char* arquivo = bd ? sqlite3_db_filename(bd, "main") : nullptr;
    throw erroDoSqlite(codigo, arquivo ? QString::fromUtf8(arquivo) : QString());
}

Instrucao prepara(sqlite3* bd, const QString& texto, bool persistente, QString* resto) {
    const QByteArray utf8 = texto.toUtf8();
    sqlite3_stmt* instrucao = nullptr;
    const char* fim = nullptr;
    const int rc = sqlite3_prepare_v3(bd, utf8.constData(), static_cast<int>(utf8.size()),
                                      persistente ? SQLITE_PREPARE_PERSISTENT : 0, &instrucao, &fim);
    Instrucao dono(instrucao);
    if (rc != SQLITE_OK) {
        falha(bd, sqlite3_extended_errcode(bd));
    }
    if (resto) {
        *resto = QString::fromUtf8(fim, utf8.constData() + utf8.size() - fim);
    }
    return dono;
}

void executa(sqlite3* bd, const QString& texto) {
    const Instrucao instrucao = prepara(bd, texto);
    while (instrucao && passo(instrucao.get())) {
    }
}

void liga(sqlite3_stmt* instrucao, int posicao, const ValorSql& valor) {
    if (const auto* i = std::get_if<std::int64_t>(&valor)) {
        ligaInteiro(instrucao, posicao, *i);
    } else if (const auto* d = std::get_if<double>(&valor)) {
        sqlite3_bind_double(instrucao, posicao, *d);
    } else if (const auto* t = std::get_if<QString>(&valor)) {
        ligaTexto(instrucao, posicao, *t);
    } else {
        sqlite3_bind_null(instrucao, posicao);
    }
}

void ligaInteiro(sqlite3_stmt* instrucao, int posicao, std::int64_t valor) {
    sqlite3_bind_int64(instrucao, posicao, valor);
}

void ligaTexto(sqlite3_stmt* instrucao, int posicao, const QString& valor) {
    sqlite3_bind_text16(instrucao, posicao, valor.utf16(), static_cast<int>(valor.size() * 2),
                        SQLITE_TRANSIENT);
}

bool passo(sqlite3_stmt* instrucao) {
    const int rc = sqlite3_step(instrucao);
    if (rc == SQLITE_ROW) {
        return true;
    }
    if (rc == SQLITE_DONE) {
        return false;
    }
    sqlite3_reset(instrucao);
    falha(sqlite3_db_handle(instrucao), rc);
}

void reinicia(sqlite3_stmt* instrucao) {
    sqlite3_reset(instrucao);  // its code repeats the last step's, already reported
}

ValorSql coluna(sqlite3_stmt* instrucao, int posicao) {
    switch (sqlite3_column_type(instrucao, posicao)) {
        case SQLITE_INTEGER:
            return inteiro(instrucao, posicao);
        case SQLITE_FLOAT:
            return sqlite3_column_double(instrucao, posicao);
        case SQLITE_NULL:
            return {};
        default:
            return texto(instrucao, posicao);
    }
}

std::int64_t inteiro(sqlite3_stmt* instrucao, int posicao) {
    return sqlite3_column_int64(instrucao, posicao);
}

QString texto(sqlite3_stmt* instrucao, int posicao) {
    const void* dados = sqlite3_column_text16(instrucao, posicao);
    const int bytes = sqlite3_column_bytes16(instrucao, posicao);
    return QString(static_cast<const QChar*>(dados), bytes / 2);
}

}  // namespace sql
}  // namespace recordstore
