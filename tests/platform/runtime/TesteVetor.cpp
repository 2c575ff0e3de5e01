#include "platform/runtime/Vetor.h"

#include "tests/platform/runtime/Casos.h"

using plataforma::Matriz;
using plataforma::Vetor;

// The traps of the callers rely on error 9 for every subscript outside the bounds.
TEST(Vetor, ReDimPreserveKeepsWhatFitsAndSubscriptsOutsideTheBoundsRaiseError9) {
    Vetor<int> v(3);
    v[1] = 10;
    v[3] = 30;
    v.ReDimPreserve(5);
    EXPECT_EQ(v[3] + v[5], 30);
    v.ReDimPreserve(2);
    EXPECT_EQ(v[1], 10);
    Matriz<float> m(2, 53);
    m(1, 53) = 5.0f;
    m(2, 0) = 7.0f;
    EXPECT_EQ(m(1, 53) + m(2, 1), 5.0f) << "each cell is its own";
    confere<int>({ERRO(v[3], 9), ERRO(v[-1], 9), ERRO(v.ReDimPreserve(-2), 9), ERRO(m(3, 0), 9),
                  ERRO(m(0, 54), 9), ERRO(m(-1, 0), 9), ERRO(m(0, -1), 9)});
    v.ReDim(2);
    EXPECT_EQ(v[1], 0);
}
