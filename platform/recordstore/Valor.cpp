#include "platform/recordstore/Valor.h"

#include "platform/recordstore/Conversoes.h"
#include "platform/runtime/ErroVB.h"

namespace recordstore {

namespace {

template <class... F>
struct Sobrecarga : F... {
    using F::operator()...;
};
template <class... F>
Sobrecarga(F...) -> Sobrecarga<F...>;

// The old platform's true is all bits set.
constexpr std::int64_t verdadeiro = -1;

}  // namespace

bool Valor::paraBool() const {
    return std::visit(Sobrecarga{
                          [](std::monostate) { return false; },
                          [](bool v) { return v; },
                          [](std::int64_t v) { return v != 0; },
                          [](double v) { return v != 0.0; },
                          [](const QString& v) {
                              const QString t = v.trimmed();
                              for (const auto* sim : {"true", "verdadeiro"}) {
                                  if (t.compare(QLatin1String(sim), Qt::CaseInsensitive) == 0) {
                                      return true;
                                  }
                              }
                              for (const auto* nao : {"false", "falso"}) {
                                  if (t.compare(QLatin1String(nao), Qt::CaseInsensitive) == 0) {
                                      return false;
                                  }
                              }
                              const auto n = conversoes::numeroDeTexto(t);
                              if (!n) {
                                  throw plataforma::ErroVB::padrao(plataforma::ErroTiposIncompativeis);
                              }
                              return *n != 0.0;
                          },
                          [](const QDateTime& v) { return conversoes::dataParaNumero(v) != 0.0; },
                      },
                      m);
}

double Valor::paraDouble() const {
    return std::visit(Sobrecarga{
                          [](std::monostate) { return 0.0; },
                          [](bool v) { return v ? static_cast<double>(verdadeiro) : 0.0; },
                          [](std::int64_t v) { return static_cast<double>(v); },
                          [](double v) { return v; },
                          [](const QString& v) { return conversoes::numeroDeTexto(v).value_or(0.0); },
                          [](const QDateTime& v) { return conversoes::dataParaNumero(v); },
                      },
                      m);
}

std::int64_t Valor::paraInteiro() const {
    if (const auto* v = std::get_if<std::int64_t>(&m)) {
        return *v;  // exact beyond the 53 bits of a double
    }
    return conversoes::arredondaPar(paraDouble());
}

QString Valor::paraTexto() const {
    return std::visit(Sobrecarga{
                          [](std::monostate) { return QString(); },
                          [](bool v) { return v ? QStringLiteral("Verdadeiro") : QStringLiteral("Falso"); },
                          [](std::int64_t v) { return QString::number(v); },
                          [](double v) { return QString::number(v, 'g', 15); },
                          [](const QString& v) { return v; },
                          [](const QDateTime& v) {
                              // As the old platform printed dates: no midnight, no zero date.
                              const QString completo = conversoes::textoDeData(v);
                              if (v.date() == QDate(1899, 12, 30)) {
                                  return completo.mid(11);
                              }
                              return v.time() == QTime(0, 0) ? completo.left(10) : completo;
                          },
                      },
                      m);
}

QDateTime Valor::paraDataHora() const {
    if (const auto* v = std::get_if<QDateTime>(&m)) {
        return *v;
    }
    if (const auto* v = std::get_if<QString>(&m)) {
        const auto data = conversoes::dataDeTexto(*v);
        if (!data) {
            throw plataforma::ErroVB::padrao(plataforma::ErroTiposIncompativeis);
        }
        return *data;
    }
    return conversoes::numeroParaData(paraDouble());
}

}  // namespace recordstore
