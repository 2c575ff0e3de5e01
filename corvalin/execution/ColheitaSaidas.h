#pragma once

#include <QString>

#include <cstdint>

namespace halvo {
class caso;
}

namespace corvalin {

class Opcoes;
class Posto;
class PostoBD;

// A station's folder in the case: the case folder, the code and the separator.
QString PastaDoPosto(const halvo::caso& caso, std::int32_t codigo);

// What a run leaves in a station folder. Before the solver, the forecast file is brought in from
// the shared folder of forecasts when the station has none; after it, the forecast goes to the
// case whatever the verdict, back to the shared folder, and the files that the station's options
// erase go, with the folder itself when nothing is left. The results of these file operations
// are not looked at: a failed step shows only in the verdict.
class ColheitaSaidas {
public:
    ColheitaSaidas(const halvo::caso& caso, PostoBD& postoBD);

    void TrazPrevisoes(const Posto& posto, const Opcoes& opcoes) const;
    void Colhe(const Posto& posto, const Opcoes& opcoes) const;

private:
    const halvo::caso& mCaso;
    PostoBD& mPostoBD;
};

}  // namespace corvalin
