#pragma once

namespace halvo {

// The host's data-access object ("CamadaAcesso.Bean"). A model keeps it and hands it to its
// screens; nothing is called on it.
class CamadaAcesso {
public:
    virtual ~CamadaAcesso() = default;
};

}  // namespace halvo
