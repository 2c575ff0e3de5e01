#include "tests/corvalin/stations/PostosTeste.h"

#include "platform/runtime/ErroVB.h"

#include <functional>

namespace {

using namespace Qt::StringLiterals;
using corvalin::Historico;
using corvalin::Posto;

class HistoricoTeste : public teste::PostosTeste {
protected:
    Posto posto(int codigo, int anoInicial, int anoFinal, bool semanas53 = false) {
        Posto p = adiciona(codigo, u"Posto %1"_s.arg(codigo), anoInicial, anoFinal);
        p.Arquivos.CasoUsa53Semanas = semanas53 ? 1 : 0;
        return p;
    }
    // A history of the station's shape holding a recognisable value in every week but the given gaps.
    static Historico cheio(const Posto& p, std::initializer_list<std::pair<int, int>> lacunas = {}) {
        Historico h(p.AnoFinal - p.AnoInicial + 1, p.getNumSemanas());
        for (int a = 1; a <= h.UBound1(); ++a) {
            for (int s = 1; s <= h.UBound2(); ++s) {
                h(a, s) = static_cast<float>(a * 100 + s) + 0.25f;
            }
        }
        for (const auto& [a, s] : lacunas) {
            h(a, s) = 0;
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
    static int erro(const std::function<void()>& f) {
        try {
            f();
        } catch (const plataforma::ErroVB& e) {
            return e.Number();
        }
        return 0;
    }
};

TEST_F(HistoricoTeste, IdaEVoltaEm52E53SemanasComLacunasSemLinha) {
    for (const bool semanas53 : {false, true}) {
        const Posto p = posto(semanas53 ? 53 : 52, 1990, 1992, semanas53);
        const Historico gravado = cheio(p, {{1, 1}, {2, 30}, {3, p.getNumSemanas()}});
        postoBD.setHistorico(p, gravado);
        EXPECT_EQ(caso.linhas(u"VazoesSemanais"_s, p.Codigo), 3 * p.getNumSemanas() - 3)
            << "a missing week has no row";
        Historico lido(7, 7);
        EXPECT_TRUE(postoBD.getHistorico(p, lido));
        esperaIgual(lido, gravado);
    }
}

TEST_F(HistoricoTeste, GravarSubstituiTudoSemMisturar) {
    const Posto p = posto(1, 2000, 2001);
    postoBD.setHistorico(p, cheio(p));
    Historico novo(2, 52);
    novo(2, 5) = -1.5f;  // negative flows are values too
    postoBD.setHistorico(p, novo);
    Historico lido;
    postoBD.getHistorico(p, lido);
    esperaIgual(lido, novo);
    EXPECT_EQ(caso.linhas(u"VazoesSemanais"_s, 1), 1);
}

TEST_F(HistoricoTeste, FormaVemDoPostoEOsAnosForaCaemOuFalham) {
    const Posto vazio = posto(1, 0, 0);
    Historico h(9, 9);
    EXPECT_FALSE(postoBD.getHistorico(vazio, h));
    EXPECT_EQ(h.UBound1(), 1);
    EXPECT_EQ(h.UBound2(), 52);
    EXPECT_EQ(h(1, 1), 0.0f);

    Posto p = posto(2, 1990, 1991, true);
    postoBD.setHistorico(p, cheio(p));
    p.AnoInicial = 1991;  // the rows of 1990 now stand before the first year
    ASSERT_TRUE(postoBD.getHistorico(p, h));
    EXPECT_EQ(h.UBound1(), 1);
    EXPECT_EQ(h(0, 53), 153.25f) << "the year before lands in the unused position";
    EXPECT_EQ(h(1, 53), 253.25f);

    p.Arquivos.CasoUsa53Semanas = 0;
    EXPECT_EQ(erro([&] { postoBD.getHistorico(p, h); }), 9) << "a week 53 read with 52 weeks";
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

TEST_F(HistoricoTeste, UltimaSemanaComValorAPartirDoAnoFinal) {
    Posto p = posto(1, 1990, 1992);
    Historico h(3, 52);
    h(1, 50) = 1;
    h(3, 29) = 2;
    postoBD.setHistorico(p, h);
    EXPECT_EQ(postoBD.getUltimaSemana(p), 29);
    h(3, 30) = 3;
    postoBD.setHistorico(p, h);
    EXPECT_EQ(postoBD.getUltimaSemana(p), 30);
    const Posto seguinte = posto(2, 1990, 1990);
    postoBD.setHistorico(seguinte, cheio(seguinte));
    h(3, 29) = 0;
    h(3, 30) = 0;
    postoBD.setHistorico(p, h);
    EXPECT_EQ(postoBD.getUltimaSemana(p), 0) << "no row in the last year: the seek lands on the next station";
    p.AnoFinal = 1989;
    EXPECT_EQ(postoBD.getUltimaSemana(p), 50) << "the years after AnoFinal count as well";
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
    EXPECT_EQ(erro([&] { postoBD.setHistorico(p, novo); }), 9);
    p.AnoFinal = 1991;
    Historico lido;
    postoBD.getHistorico(p, lido);
    esperaIgual(lido, antigo);
    EXPECT_EQ(caso.linhas(u"VazoesSemanais"_s, 2), 52);

    // A caller's transaction around several writes keeps or drops them together.
    {
        recordstore::Transacao importacao(postoBD.BancoDeDados());
        postoBD.setHistorico(p, Historico(2, 52));
        postoBD.delPosto(outro);
    }
    EXPECT_EQ(caso.linhas(u"VazoesSemanais"_s, 1), 104);
    EXPECT_EQ(caso.linhas(u"Postos"_s, 2), 1);
}

}  // namespace
