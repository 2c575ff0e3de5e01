#include "platform/runtime/Vetor.h"

#include "tests/platform/runtime/Casos.h"

#include <gtest/gtest.h>

#include <utility>

using plataforma::Matriz;
using plataforma::Vetor;

TEST(Vetor, BoundsReDimAndReDimPreserve) {
    Vetor<int> v(3);
    v[1] = 10;
    v[3] = 30;
    EXPECT_EQ(numeroDoErro([&v] { v[4]; }), 9);
    EXPECT_EQ(numeroDoErro([&v] { v[-1]; }), 9);
    v.ReDimPreserve(5);
    EXPECT_EQ(std::pair(v[3], v[5]), std::pair(30, 0));
    v.ReDimPreserve(2);
    EXPECT_EQ(v[1], 10);
    EXPECT_EQ(numeroDoErro([&v] { v[3]; }), 9);
    v.ReDim(2);
    EXPECT_EQ(v[1], 0);
    v.ReDim(-1);
    EXPECT_EQ(numeroDoErro([&v] { v[0]; }), 9);
    EXPECT_EQ(numeroDoErro([&v] { v.ReDimPreserve(-2); }), 9);
}

TEST(Matriz, EachCellIsItsOwnAndBoundsAreChecked) {
    Matriz<float> m(2, 53);
    m(1, 2) = 5.0f;
    m(2, 53) = 7.0f;
    EXPECT_EQ(m(2, 1), 0.0f);
    EXPECT_EQ(m(1, 2) + m(2, 53), 12.0f);
    for (const auto& [i, j] : {std::pair{3, 0}, {0, 54}, {-1, 0}, {0, -1}}) {
        EXPECT_EQ(numeroDoErro([&m, i = i, j = j] { m(i, j); }), 9) << i << "," << j;
    }
    m.ReDim(1, 1);
    EXPECT_EQ(m(1, 1), 0.0f);
    EXPECT_EQ(numeroDoErro([&m] { m(1, 2); }), 9);
}
