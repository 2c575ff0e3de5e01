#pragma once

#include <QString>

#include <array>

namespace halvo {

// The host's names of the groups of screens that a model offers (groups 1 to 4), as its menus
// show them, with their accelerators.
inline constexpr std::array<const char16_t*, 4> MenusDosGrupos{u"Ca&dastro", u"&Importação", u"&Execução",
                                                               u"&Resultados"};

inline QString MenuDoGrupo(int grupo) {
    return QString::fromUtf16(MenusDosGrupos.at(grupo - 1));
}
inline QString NomeDoGrupo(int grupo) {
    return MenuDoGrupo(grupo).remove(QLatin1Char('&'));
}

}  // namespace halvo
