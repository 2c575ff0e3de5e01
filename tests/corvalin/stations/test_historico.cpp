#include "tests/corvalin/stations/PostosTeste.h"

#include "platform/runtime/ErroVB.h"

#include <array>
#include <vector>

namespace {

using namespace Qt::StringLiterals;
using corvalin::Historico;
using corvalin::Posto;
using plataforma::Vetor;

class HistoricoTeste : public teste::PostosTeste {
protected:
    Posto posto(int codigo, int anoInicial, int anoFinal, bool semanas53 = false) {
        Posto p = adiciona(codigo, u"Posto %1"_s.arg(codigo), anoInicial, anoFinal);
        p.Arquivos.CasoUsa53Semanas = semanas53 ? 1 : 0;
        return p;
    }
    // A history of the station's shape holding a recognisable value in every week.
    static Historico cheio(const Posto& p) {
        Historico h(p.AnoFinal - p.AnoInicial + 1, p.getNumSemanas());
        for (int a = 1; a <= h.UBound1(); ++a) {
            for (int s = 1; s <= h.UBound2(); ++s) {
                h(a, s) = static_cast<float>(a * 100 + s) + 0.25f;
            }
        }
        return h;
    }
    static void esperaIgual(const Historico& a, const Historico& b) {
        ASSERT_EQ(a.UBound1(), b.UBound1());
        ASSERT_EQ(a.UBound2(), b.UBound2());
        for (int i = 0; i <= a.UBound1(); ++i) {
            for (int j = 0; j <= a.UBound2(); ++j) {
                ASSERT_EQ(a(i, j), b(i, j)) << i << "," << j;
            }
        }
    }
};

// A missing week has no row, and a new history replaces the old one whole.
TEST_F(HistoricoTeste, IdaEVoltaEm52E53SemanasComLacunasSemLinha) {
    for (const bool semanas53 : {false, true}) {
        const Posto p = posto(semanas53 ? 53 : 52, 1990, 1992, semanas53);
        Historico gravado = cheio(p);
        gravado(1, 1) = gravado(2, 30) = gravado(3, p.getNumSemanas()) = 0;
        postoBD.setHistorico(p, gravado);
        EXPECT_EQ(caso.linhas(u"VazoesSemanais"_s, p.Codigo), 3 * p.getNumSemanas() - 3);
        Historico lido(7, 7);
        EXPECT_TRUE(postoBD.getHistorico(p, lido));
        esperaIgual(lido, gravado);

        Historico novo(3, p.getNumSemanas());
        novo(2, 5) = -1.5f;  // negative flows are values too
        postoBD.setHistorico(p, novo);
        postoBD.getHistorico(p, lido);
        esperaIgual(lido, novo);
        EXPECT_EQ(caso.linhas(u"VazoesSemanais"_s, p.Codigo), 1);
    }
}

// True needs a further row behind the station's last one: the station whose single row is the
// table's last reads false, value included.
TEST_F(HistoricoTeste, ResultadoFalsoParaLinhaUnicaNoFimDaTabela) {
    const Posto primeiro = posto(1, 2000, 2000);
    const Posto ultimo = posto(2, 2000, 2000);
    Historico um(1, 52);
    um(1, 10) = 7;
    postoBD.setHistorico(ultimo, um);
    Historico lido;
    EXPECT_FALSE(postoBD.getHistorico(ultimo, lido));
    EXPECT_EQ(lido(1, 10), 7.0f);
    postoBD.setHistorico(primeiro, um);
    EXPECT_TRUE(postoBD.getHistorico(primeiro, lido)) << "the next station's row follows it";
    EXPECT_EQ(lido(1, 10), 7.0f);
    um(1, 11) = 8;
    postoBD.setHistorico(ultimo, um);
    EXPECT_TRUE(postoBD.getHistorico(ultimo, lido)) << "two rows, the first with one behind it";
}

TEST_F(HistoricoTeste, FalhaNoMeioDaGravacaoDeixaOHistoricoAntigo) {
    Posto p = posto(1, 1990, 1991);
    const Historico antigo = cheio(p);
    postoBD.setHistorico(p, antigo);
    const Posto outro = posto(2, 1990, 1990);
    postoBD.setHistorico(outro, cheio(outro));

    Historico novo = antigo;
    novo(1, 1) = 999;
    p.AnoFinal = 1995;  // years beyond the array: error 9 once the old rows and two new years went
    try {
        postoBD.setHistorico(p, novo);
        ADD_FAILURE() << "a history shorter than the station's years must fail";
    } catch (const plataforma::ErroVB& e) {
        EXPECT_EQ(e.Number(), 9);
    }
    p.AnoFinal = 1991;
    Historico lido;
    postoBD.getHistorico(p, lido);
    esperaIgual(lido, antigo);
    EXPECT_EQ(caso.linhas(u"VazoesSemanais"_s, 2), 52);
}

Vetor<float> pVetor(std::initializer_list<float> valores) {
    Vetor<float> v(static_cast<int>(valores.size()));
    int i = 1;
    for (const float x : valores) {
        v[i++] = x;
    }
    return v;
}

std::vector<float> pDados(const Vetor<float>& v) {
    return {v.dados().begin() + 1, v.dados().end()};
}

class PrevisoesTeste : public teste::PostosTeste {
protected:
    // The forecast and its lower and upper limits.
    std::array<std::vector<float>, 3> previsao(int codigo) const {
        Vetor<float> p(9), inf(9), sup(9);
        postoBD.getVazoesPrevistas(codigo, p, inf, sup);
        return {pDados(p), pDados(inf), pDados(sup)};
    }
    // Week w of each year holds year * 100 + w, for the weeks given.
    void historico(const Posto& p, std::initializer_list<std::pair<int, int>> semanas) {
        Historico h(p.AnoFinal - p.AnoInicial + 1, p.getNumSemanas());
        for (const auto& [ano, semana] : semanas) {
            h(ano - p.AnoInicial + 1, semana) = static_cast<float>(ano * 100 + semana);
        }
        postoBD.setHistorico(p, h);
    }
    std::pair<bool, std::vector<float>> anteriores(Posto p, int semana, int ano) const {
        p.SemanaInicialPrev = static_cast<std::int16_t>(semana);
        p.AnoInicialPrev = static_cast<std::int16_t>(ano);
        Vetor<float> v;
        const bool achou = postoBD.getVazoesAnteriores(p, v);
        EXPECT_EQ(v.UBound(), 6);
        return {achou, pDados(v)};
    }
};

TEST_F(PrevisoesTeste, PrevisaoSobrescreveSemApagarELeAteOutroPosto) {
    using V = std::vector<float>;
    EXPECT_EQ(previsao(1), (std::array<V, 3>{})) << "no forecast: position 0 only";
    const Vetor<float> seis = pVetor({1, 2, 3, 4, 5, 6});
    postoBD.setVazoesPrevistas(1, seis, pVetor({0.5, 1, 2, 3, 4, 5}), pVetor({2, 3, 4, 5, 6, 7}));
    postoBD.setVazoesPrevistas(2, pVetor({9}), pVetor({9}), pVetor({9}));
    const Vetor<float> quatro = pVetor({10, 20, 30, 40});
    postoBD.setVazoesPrevistas(1, quatro, quatro, quatro);
    EXPECT_EQ(previsao(1),
              (std::array{V{10, 20, 30, 40, 5, 6}, V{10, 20, 30, 40, 4, 5}, V{10, 20, 30, 40, 6, 7}}))
        << "the old tail stays";
    EXPECT_EQ(previsao(2)[2], V{9});
}

TEST_F(PrevisoesTeste, AnterioresAndamPorLinhasNaoPorSemanas) {
    const Posto primeiro = adiciona(1, u"A"_s, 2000, 2000);
    const Posto p = adiciona(2, u"B"_s, 2000, 2000);
    historico(primeiro, {{2000, 51}, {2000, 52}});
    historico(p, {{2000, 2}, {2000, 3}, {2000, 5}, {2000, 6}, {2000, 7}, {2000, 8}, {2000, 9}});
    auto [achou, v] = anteriores(p, 10, 2000);
    EXPECT_TRUE(achou);
    EXPECT_EQ(v, (std::vector<float>{200003, 200005, 200006, 200007, 200008, 200009}))
        << "the gap at 4 shifts";
    std::tie(achou, v) = anteriores(p, 6, 2000);
    EXPECT_EQ(v, (std::vector<float>{0, 200051, 200052, 200002, 200003, 200005}))
        << "a short history runs into the station before, up to the start of the table";
    EXPECT_EQ(anteriores(primeiro, 1, 2001).second, (std::vector<float>{0, 0, 0, 0, 200051, 200052}))
        << "the start of the table leaves the older places at 0";
    EXPECT_FALSE(anteriores(p, 5, 2000).first) << "no row for week 4";
}

TEST_F(PrevisoesTeste, LimitesPorTipoSemApagar) {
    postoBD.setLimitesPrevisao(1, 1, pVetor({1, 2, 3, 4}), pVetor({10, 20, 30, 40}));
    postoBD.setLimitesPrevisao(1, 2, pVetor({5, 6}), pVetor({50, 60}));
    postoBD.setLimitesPrevisao(1, 1, pVetor({7, 8}), pVetor({70, 80}));
    postoBD.setLimitesPrevisao(2, 1, pVetor({9}), pVetor({90}));
    EXPECT_EQ(caso.linhas(u"LimitesPrevisao"_s, 1, u"Codigo"_s), 6);

    Vetor<std::int16_t> ordem(4);
    Vetor<float> inf(4), sup(4);
    postoBD.getLimitesPrevisao(1, 1, ordem, inf, sup);
    EXPECT_EQ(pDados(inf), (std::vector<float>{7, 8, 3, 4})) << "a shorter set leaves the later rows";
    EXPECT_EQ(pDados(sup), (std::vector<float>{70, 80, 30, 40}));
    EXPECT_EQ(ordem[4], 4);

    Vetor<std::int16_t> ordem2(2);
    Vetor<float> inf2(2), sup2(2);
    postoBD.getLimitesPrevisao(1, 2, ordem2, inf2, sup2);
    EXPECT_EQ(pDados(sup2), (std::vector<float>{50, 60}));

    Vetor<std::int16_t> longa(6);
    Vetor<float> infLonga(6), supLonga(6);
    postoBD.getLimitesPrevisao(1, 1, longa, infLonga, supLonga);
    EXPECT_EQ(pDados(supLonga), (std::vector<float>{70, 80, 30, 40, 0, 0}))
        << "longer arrays stop at the next grouping";
}

}  // namespace
