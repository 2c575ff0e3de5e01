#pragma once

namespace corvalin {

// What a long operation reports its progress to, from 0 to 100: a progress bar, or nothing.
class Progresso {
public:
    virtual ~Progresso() = default;
    virtual void setValue(double valor) = 0;
    // Takes the progress out of sight, before a message that must not stand behind it.
    virtual void Esconde() {}
};

// For operations that nobody watches.
class ProgressoNulo : public Progresso {
public:
    void setValue(double) override {}
};

}  // namespace corvalin
