#pragma once

#include <QtGlobal>

#include <initializer_list>

namespace company {

/// A stream of numbers that is the same on every machine for the same seeds, which the standard distributions are not.
class Dice final {
public:
    explicit Dice(std::initializer_list<quint64> seeds);

    [[nodiscard]] quint64 next();
    /// 0 to count - 1; count above 0.
    [[nodiscard]] int below(int count);
    /// Both ends included.
    [[nodiscard]] int between(int lowest, int highest) { return lowest + below(highest - lowest + 1); }
    [[nodiscard]] bool chance(int perThousand) { return below(1000) < perThousand; }

    template <typename List>
    [[nodiscard]] const auto& pick(const List& list) {
        return list[size_t(below(int(std::size(list))))];
    }

private:
    quint64 m_state = 0;
};

} // namespace company
