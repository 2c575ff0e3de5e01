#include "platform/runtime/Vetor.h"
#include "tests/corvalin/modelfiles/CasoModelo.h"

namespace {

using namespace Qt::StringLiterals;
using plataforma::Vetor;

// Six weeks, base plus the week's number.
std::vector<float> seis(float base) {
    return {base + 1, base + 2, base + 3, base + 4, base + 5, base + 6};
}

// A forecast line: a 24-column label and six 9-column fields.
QString linhaPrevista(const QString& rotulo, float base) {
    QString linha = rotulo.leftJustified(24);
    for (const float valor : seis(base)) {
        linha += QString::number(valor, 'f', 2).rightJustified(9);
    }
    return linha;
}

class PrevisoesTeste : public teste::CasoModelo {
protected:
    using Previstas = std::array<std::vector<float>, 3>;  // forecast, lower and upper limits

    bool importa(const QStringList& texto) {
        return arq.importaPRV(arquivo(u"SSIMAO.prv"_s, linhas(texto)), teste::SaoSimao(), postoBD);
    }
    Previstas guardadas() const {
        Vetor<float> p, i, s;
        postoBD.getVazoesPrevistas(33, p, i, s);
        const auto semZero = [](const Vetor<float>& v) {
            return std::vector<float>(v.dados().begin() + 1, v.dados().end());
        };
        return {semZero(p), semZero(i), semZero(s)};
    }
    const std::vector<float> zeros = std::vector<float>(6, 0.f);
};

TEST_F(PrevisoesTeste, SoAsTresUltimasLinhasContam) {
    const QStringList texto = {u"Relatorio de previsao"_s, linhaPrevista(u"antiga"_s, 9000),
                               linhaPrevista(u"Previsao (m3/s)"_s, 1000),
                               linhaPrevista(u"Limite inferior"_s, 500),
                               linhaPrevista(u"Limite superior"_s, 2000)};
    ASSERT_TRUE(importa(texto));
    EXPECT_EQ(guardadas(), (Previstas{seis(1000), seis(500), seis(2000)}));

    // A trailing empty line is one of the three: everything moves up one array.
    ASSERT_TRUE(importa(texto + QStringList{QString()}));
    EXPECT_EQ(guardadas(), (Previstas{seis(500), seis(2000), zeros}));

    // Two lines fill the bounds; an empty file stores zeros.
    ASSERT_TRUE(importa(texto.mid(3)));
    EXPECT_EQ(guardadas(), (Previstas{zeros, seis(500), seis(2000)}));
    ASSERT_TRUE(importa({}));
    EXPECT_EQ(guardadas(), (Previstas{zeros, zeros, zeros}));
}

}  // namespace
