#pragma once

#include <QDateTime>
#include <QString>

#include <concepts>
#include <cstdint>
#include <variant>

namespace recordstore {

// The field types of the store, with the old engine's type codes.
enum class Tipo : int {
    Boolean = 1,
    Byte = 2,
    Integer = 3,  // 16-bit signed
    Long = 4,     // 32-bit signed
    Single = 6,
    Double = 7,
    DataHora = 8,
    Texto = 10,
};

// A field value as the old platform's variant carried it: Null, or a boolean, an integer, a
// real, a text or a date and time. Reading converts as that platform did; a Null reads as 0,
// false or the empty text.
class Valor {
public:
    Valor() = default;  // Null
    Valor(bool v) : m(v) {}
    template <std::integral T>
        requires(!std::same_as<T, bool>)
    Valor(T v) : m(static_cast<std::int64_t>(v)) {}
    Valor(float v) : m(static_cast<double>(v)) {}
    Valor(double v) : m(v) {}
    Valor(const QString& v) : m(v) {}
    Valor(const char* v) : m(QString::fromUtf8(v)) {}  // never a bool
    Valor(const QDateTime& v) : m(v) {}

    bool nulo() const noexcept { return std::holds_alternative<std::monostate>(m); }
    bool ehTexto() const noexcept { return std::holds_alternative<QString>(m); }

    bool paraBool() const;          // nonzero number or true
    double paraDouble() const;      // a text is read as the locale-free number it holds, else 0
    std::int64_t paraInteiro() const;  // rounds half to even
    QString paraTexto() const;
    QDateTime paraDataHora() const;

    friend bool operator==(const Valor&, const Valor&) = default;

private:
    std::variant<std::monostate, bool, std::int64_t, double, QString, QDateTime> m;
};

}  // namespace recordstore
