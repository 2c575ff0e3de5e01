#include "platform/recordstore/CacheComandos.h"

#include <functional>

namespace recordstore {

std::size_t CacheComandos::Hash::operator()(const ChaveComando& c) const noexcept {
    std::size_t h = 0;
    for (const unsigned parte :
         {static_cast<unsigned>(c.dono), static_cast<unsigned>(c.tipo), static_cast<unsigned>(c.indice),
          static_cast<unsigned>(c.nivel), static_cast<unsigned>(c.chaves), c.variante}) {
        h = h * 31 + std::hash<unsigned>{}(parte);
    }
    return h;
}

void CacheComandos::descarta(int dono) {
    std::erase_if(mComandos, [dono](const auto& par) { return par.first.dono == dono; });
}

void CacheComandos::limpa() {
    mComandos.clear();
}

}  // namespace recordstore
