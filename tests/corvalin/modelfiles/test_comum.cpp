#include "corvalin/modelfiles/PostoARQ.h"

#include <gtest/gtest.h>

namespace {

using corvalin::PostoARQ;

TEST(PreparaFoat, DuasCasasComOSeparadorEscolhido) {
    const std::pair<const char*, const char*> comPonto[] = {
        {"12", "12.00"}, {"12.3", "12.30"}, {"12,34", "12.34"}, {"12.345", "12.345"},
        {".", ".00"},    {"-7", "-7.00"},   {"1,5", "1.50"},    {"", ".00"}};
    for (const auto& [entrada, saida] : comPonto) {
        QString valor = QString::fromLatin1(entrada);
        EXPECT_EQ(PostoARQ::preparaFoat_10_2(valor, true), QString::fromLatin1(saida)) << entrada;
        EXPECT_EQ(valor, QString::fromLatin1(saida)) << "changed in place";
    }
    QString virgula = QStringLiteral("12.5");
    EXPECT_EQ(PostoARQ::preparaFoat_10_2(virgula, false), QStringLiteral("12,50"));
    virgula = QStringLiteral("7");
    EXPECT_EQ(PostoARQ::preparaFoat_10_2(virgula, false), QStringLiteral("7,00"));
}

}  // namespace
