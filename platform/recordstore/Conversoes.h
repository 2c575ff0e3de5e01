#pragma once

// Conversions shared by Valor and the field rules, as the old platform's variant made them.

#include <QDateTime>
#include <QString>

#include <cstdint>
#include <optional>

namespace recordstore::conversoes {

// The number a text holds, read without locale ("." as the decimal point), or nothing.
std::optional<double> numeroDeTexto(const QString& texto);

// An ISO date, date and time, or time of day (which falls on the zero date, 1899-12-30).
std::optional<QDateTime> dataDeTexto(const QString& texto);

// The date and time in whole seconds and without a time zone, as the store keeps it; 13 for an
// invalid one.
QDateTime normalizaData(const QDateTime& data);

// The stored form of a date and time: "yyyy-MM-dd HH:mm:ss".
QString textoDeData(const QDateTime& data);

// A date as the old platform counted it: days since 1899-12-30, the time as the fraction.
double dataParaNumero(const QDateTime& data);
QDateTime numeroParaData(double numero);

// Rounds half to even; beyond 64 bits (or not a number) is an overflow, error 6.
std::int64_t arredondaPar(double numero);

}  // namespace recordstore::conversoes
