#include "platform/recordstore/Conversoes.h"

#include "platform/runtime/ErroVB.h"

#include <QRegularExpression>
#include <QTimeZone>

#include <cmath>

namespace recordstore::conversoes {

namespace {

// Dates carry no time zone in the store: UTC keeps daylight-saving gaps out of them.
QDateTime semFuso(QDate data, QTime hora) {
    return QDateTime(data, hora, QTimeZone::utc());
}

QDate dataZero() {
    return {1899, 12, 30};
}

constexpr double segundosPorDia = 86400.0;

QTime horaDeTexto(const QString& texto) {
    const QTime h = QTime::fromString(texto, QStringLiteral("HH:mm:ss"));
    return h.isValid() ? h : QTime::fromString(texto, QStringLiteral("HH:mm"));
}

}  // namespace

std::optional<double> numeroDeTexto(const QString& texto) {
    bool ok = false;
    const double v = texto.trimmed().toDouble(&ok);  // QString::toDouble is locale-free
    if (!ok) {
        return std::nullopt;
    }
    return v;
}

std::optional<QDateTime> dataDeTexto(const QString& texto) {
    const QString t = texto.trimmed();
    // Date and time are read apart: a whole local date-time could fall in a daylight-saving gap.
    const qsizetype separador = t.indexOf(QRegularExpression(QStringLiteral("[ T]")));
    const QDate data = QDate::fromString(separador < 0 ? t : t.left(separador), QStringLiteral("yyyy-MM-dd"));
    if (!data.isValid()) {
        const QTime hora = horaDeTexto(t);
        return hora.isValid() ? std::optional(semFuso(dataZero(), hora)) : std::nullopt;
    }
    if (separador < 0) {
        return semFuso(data, QTime(0, 0));
    }
    const QTime hora = horaDeTexto(t.mid(separador + 1));
    return hora.isValid() ? std::optional(semFuso(data, hora)) : std::nullopt;
}

QDateTime normalizaData(const QDateTime& data) {
    if (!data.isValid()) {
        throw plataforma::ErroVB::padrao(plataforma::ErroTiposIncompativeis);
    }
    const QTime hora = data.time();
    return semFuso(data.date(), QTime(hora.hour(), hora.minute(), hora.second()));
}

QString textoDeData(const QDateTime& data) {
    return data.date().toString(QStringLiteral("yyyy-MM-dd")) + QLatin1Char(' ') +
           data.time().toString(QStringLiteral("HH:mm:ss"));
}

double dataParaNumero(const QDateTime& data) {
    const auto dias = static_cast<double>(dataZero().daysTo(data.date()));
    const double fracao = data.time().msecsSinceStartOfDay() / 1000.0 / segundosPorDia;
    // Before the zero date the fraction still counts forward from midnight.
    return dias < 0 ? dias - fracao : dias + fracao;
}

QDateTime numeroParaData(double numero) {
    if (!std::isfinite(numero) || std::fabs(numero) > 3e6) {
        throw plataforma::ErroVB::padrao(plataforma::ErroEstouro);
    }
    const double dias = std::trunc(numero);
    const auto segundos = std::llround(std::fabs(numero - dias) * segundosPorDia);
    const QDate data = dataZero().addDays(static_cast<qint64>(dias));
    return semFuso(data, QTime(0, 0)).addSecs(segundos);
}

std::int64_t arredondaPar(double numero) {
    const double r = std::nearbyint(numero);  // the default rounding mode is to nearest, ties to even
    if (!std::isfinite(r) || r < -9.2233720368547758e18 || r >= 9.2233720368547758e18) {
        throw plataforma::ErroVB::padrao(plataforma::ErroEstouro);
    }
    return static_cast<std::int64_t>(r);
}

}  // namespace recordstore::conversoes
