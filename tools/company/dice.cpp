#include "tools/company/dice.h"

namespace company {

Dice::Dice(std::initializer_list<quint64> seeds) {
    for (const quint64 seed : seeds) {
        m_state += seed;
        m_state = next();
    }
}

quint64 Dice::next() {
    // The mixing step of the SplitMix generator with 64 bits of state.
    m_state += 0x9E3779B97F4A7C15U;
    quint64 mixed = m_state;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9U;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBU;
    return mixed ^ (mixed >> 31);
}

int Dice::below(int count) {
    return int(next() % quint64(count));
}

} // namespace company
