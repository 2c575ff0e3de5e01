#include "tests/corvalin/stations/PostosTeste.h"

#include "platform/runtime/ErroVB.h"

#include <vector>

namespace {

using namespace Qt::StringLiterals;
using corvalin::Historico;
using corvalin::Posto;
using plataforma::Vetor;

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
    std::vector<float> previsao(int codigo) const {
        Vetor<float> p(9), inf(9), sup(9);
        postoBD.getVazoesPrevistas(codigo, p, inf, sup);
        EXPECT_EQ(inf.UBound(), p.UBound());
        EXPECT_EQ(sup.UBound(), p.UBound());
        return pDados(p);
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
    EXPECT_TRUE(previsao(1).empty()) << "no forecast: position 0 only";
    const Vetor<float> seis = pVetor({1, 2, 3, 4, 5, 6});
    postoBD.setVazoesPrevistas(1, seis, pVetor({0.5, 1, 2, 3, 4, 5}), pVetor({2, 3, 4, 5, 6, 7}));
    postoBD.setVazoesPrevistas(2, pVetor({9}), pVetor({9}), pVetor({9}));
    const Vetor<float> quatro = pVetor({10, 20, 30, 40});
    postoBD.setVazoesPrevistas(1, quatro, quatro, quatro);
    EXPECT_EQ(previsao(1), (std::vector<float>{10, 20, 30, 40, 5, 6})) << "the old tail stays";
    Vetor<float> p, inf, sup;
    postoBD.getVazoesPrevistas(1, p, inf, sup);
    EXPECT_EQ(pDados(inf), (std::vector<float>{10, 20, 30, 40, 4, 5}));
    EXPECT_EQ(pDados(sup), (std::vector<float>{10, 20, 30, 40, 6, 7}));
    EXPECT_EQ(previsao(2), std::vector<float>{9});
}

TEST_F(PrevisoesTeste, PrevisaoComFalhaNaoGravaNada) {
    postoBD.setVazoesPrevistas(1, pVetor({1, 2}), pVetor({1, 2}), pVetor({1, 2}));
    const Vetor<float> tres = pVetor({7, 8, 9});
    EXPECT_THROW(postoBD.setVazoesPrevistas(1, tres, tres, pVetor({7})), plataforma::ErroVB)
        << "an array shorter than the forecast";
    EXPECT_EQ(previsao(1), (std::vector<float>{1, 2}));
    const Vetor<float> longa(256);
    try {
        postoBD.setVazoesPrevistas(3, longa, longa, longa);
        ADD_FAILURE() << "more weeks than a byte counts";
    } catch (const plataforma::ErroVB& e) {
        EXPECT_EQ(e.Number(), 6);
    }
    EXPECT_EQ(caso.linhas(u"VazoesPrevistas"_s, 3), 0);
}

TEST_F(PrevisoesTeste, AnterioresAtravessamOAnoConformeAsSemanasDoPosto) {
    for (const bool semanas53 : {false, true}) {
        Posto p = adiciona(semanas53 ? 2 : 1, semanas53 ? u"B"_s : u"A"_s, 1999, 2000);
        p.Arquivos.CasoUsa53Semanas = semanas53 ? 1 : 0;
        const int ultima = p.getNumSemanas();
        historico(p, {{1999, ultima - 4},
                      {1999, ultima - 3},
                      {1999, ultima - 2},
                      {1999, ultima - 1},
                      {1999, ultima},
                      {2000, 1},
                      {2000, 2}});
        const auto [achou, v] = anteriores(p, 1, 2000);
        EXPECT_TRUE(achou);
        EXPECT_EQ(v[5], 1999.0f * 100 + static_cast<float>(ultima)) << "week 1 steps back to the last week";
        EXPECT_EQ(v[1], 199900.0f + static_cast<float>(ultima - 4));
        EXPECT_EQ(anteriores(p, 3, 2000).second[5], 200002.0f);
    }
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

    Vetor<std::int16_t> intocado(3);
    Vetor<float> marca = pVetor({-1, -1, -1});
    postoBD.getLimitesPrevisao(1, 3, intocado, marca, marca);
    EXPECT_EQ(pDados(marca), (std::vector<float>{-1, -1, -1})) << "no rows: the arrays stay";

    Vetor<std::int16_t> longa(6);
    Vetor<float> infLonga(6), supLonga(6);
    postoBD.getLimitesPrevisao(1, 1, longa, infLonga, supLonga);
    EXPECT_EQ(pDados(supLonga), (std::vector<float>{70, 80, 30, 40, 0, 0}))
        << "longer arrays stop at the next grouping";
}

}  // namespace
