#pragma once

#include "tests/platform/runtime/Casos.h"

#include <QLocale>

using namespace Qt::StringLiterals;

// The user's number format for a scope; the former one comes back at its end.
class EmLocal {
public:
    explicit EmLocal(const QLocale& local) { QLocale::setDefault(local); }
    ~EmLocal() { QLocale::setDefault(mAnterior); }
    EmLocal(const EmLocal&) = delete;
    EmLocal& operator=(const EmLocal&) = delete;

private:
    QLocale mAnterior;
};

// Comma as separator, point for groups.
inline const QLocale Portugues(QLocale::Portuguese, QLocale::Brazil);
