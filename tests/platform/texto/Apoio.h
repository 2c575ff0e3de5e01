#pragma once

#include "tests/platform/runtime/NumeroDoErro.h"

#include <QLocale>
#include <QString>

#include <gtest/gtest.h>

#include <ostream>

// Failures show the text itself rather than its UTF-16 units.
inline void PrintTo(const QString& s, std::ostream* os) {
    *os << '"' << s.toStdString() << '"';
}

// Runs a test under a given number format and puts the former one back.
template <QLocale::Language Lingua, QLocale::Territory Territorio>
class EmLocal : public ::testing::Test {
protected:
    void SetUp() override { QLocale::setDefault(QLocale(Lingua, Territorio)); }
    void TearDown() override { QLocale::setDefault(mAnterior); }

private:
    QLocale mAnterior;
};

// Comma as separator, point for groups.
using EmPortugues = EmLocal<QLocale::Portuguese, QLocale::Brazil>;
// Point as separator, no groups.
using EmC = EmLocal<QLocale::C, QLocale::AnyTerritory>;
