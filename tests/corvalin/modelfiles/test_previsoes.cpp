#include "platform/runtime/Vetor.h"
#include "tests/corvalin/modelfiles/CasoModelo.h"

namespace {

using plataforma::Vetor;

// A forecast line: a 24-column label and six 9-column fields.
QString linhaPrevista(const QString& rotulo, const QStringList& campos) {
    QString linha = rotulo.leftJustified(24);
    for (const QString& campo : campos) {
        linha += campo.rightJustified(9);
    }
    return linha;
}

QStringList seis(double base) {
    QStringList campos;
    for (int semana = 1; semana <= 6; ++semana) {
        campos << QString::number(base + semana, 'f', 2);
    }
    return campos;
}

class PrevisoesTeste : public teste::CasoModelo {
protected:
    struct Previstas {
        std::vector<float> previsao, inferior, superior;
        friend bool operator==(const Previstas&, const Previstas&) = default;
    };

    bool importa(const QStringList& texto) {
        return arq.importaPRV(arquivo(QStringLiteral("SSIMAO.prv"), linhas(texto)), teste::SaoSimao(),
                              postoBD);
    }
    Previstas guardadas() const {
        Vetor<float> p, i, s;
        postoBD.getVazoesPrevistas(33, p, i, s);
        const auto semZero = [](const Vetor<float>& v) {
            return std::vector<float>(v.dados().begin() + 1, v.dados().end());
        };
        return {semZero(p), semZero(i), semZero(s)};
    }
    static std::vector<float> valores(double base) {
        std::vector<float> v;
        for (int semana = 1; semana <= 6; ++semana) {
            v.push_back(static_cast<float>(base + semana));
        }
        return v;
    }
    static const inline std::vector<float> zeros = std::vector<float>(6, 0.f);
};

TEST_F(PrevisoesTeste, SoAsTresUltimasLinhasContam) {
    const QStringList texto = {QStringLiteral("Relatorio de previsao"),
                               linhaPrevista(QStringLiteral("antiga"), seis(9000)),
                               linhaPrevista(QStringLiteral("Previsao (m3/s)"), seis(1000)),
                               linhaPrevista(QStringLiteral("Limite inferior"), seis(500)),
                               linhaPrevista(QStringLiteral("Limite superior"), seis(2000))};
    ASSERT_TRUE(importa(texto));
    EXPECT_EQ(guardadas(), (Previstas{valores(1000), valores(500), valores(2000)}));

    // A trailing empty line is one of the three: everything moves up one array.
    ASSERT_TRUE(importa(texto + QStringList{QString()}));
    EXPECT_EQ(guardadas(), (Previstas{valores(500), valores(2000), zeros}));

    // Two lines fill the bounds; an empty file stores zeros.
    ASSERT_TRUE(importa(texto.mid(3)));
    EXPECT_EQ(guardadas(), (Previstas{zeros, valores(500), valores(2000)}));
    ASSERT_TRUE(importa({}));
    EXPECT_EQ(guardadas(), (Previstas{zeros, zeros, zeros}));
}

TEST_F(PrevisoesTeste, CamposCurtosOuComTextoLemOQueTem) {
    ASSERT_TRUE(
        importa({linhaPrevista(QStringLiteral("P"), {"12.5m3", "-3", "1 5", "x7"}), QStringLiteral("curta"),
                 linhaPrevista(QStringLiteral("S"), {"1", "2"}).left(24 + 9 + 5)}));
    const Previstas lidas = guardadas();
    EXPECT_EQ(lidas.previsao, (std::vector<float>{12.5f, -3, 15, 0, 0, 0}));
    EXPECT_EQ(lidas.inferior, zeros);
    EXPECT_EQ(lidas.superior, (std::vector<float>{1, 0, 0, 0, 0, 0}))
        << "the second field is cut to its blanks";
}

TEST_F(PrevisoesTeste, FalhasNaoGuardamNada) {
    EXPECT_FALSE(arq.importaPRV(host.caminho(QStringLiteral("nada.prv")), teste::SaoSimao(), postoBD));
    EXPECT_FALSE(importa({linhaPrevista(QStringLiteral("P"), {"1", "9E+99"}), QString(), QString()}));
    EXPECT_EQ(contaLinhas(QStringLiteral("VazoesPrevistas")), 0);
    EXPECT_TRUE(host.dialogo.Mensagens().empty());
}

}  // namespace
