#pragma once

#include <QString>

namespace base {

/// Whose employees the lists of a session show: everybody's, those of one branch, or, before that is known, nobody's.
class Branch final {
public:
    /// Nobody's.
    Branch() = default;
    [[nodiscard]] static Branch all() { return Branch(0, false); }
    [[nodiscard]] static Branch one(qint32 cab_id_auto) { return Branch(cab_id_auto, true); }

    [[nodiscard]] bool isLimited() const { return m_limited; }
    /// Key of the one branch, else 0.
    [[nodiscard]] qint32 cab_id_auto() const { return m_cab_id_auto; }
    /// The test of that column where the session is limited. Nothing equals NULL, so it holds for no row where the
    /// session sees nobody.
    [[nodiscard]] QString condition(QStringView column = u"cab_id_auto") const;
    /// The same to stand behind other conditions, with a blank at its end; empty where the session is not limited.
    [[nodiscard]] QString furtherCondition(QStringView column = u"cab_id_auto") const;

private:
    Branch(qint32 cab_id_auto, bool limited) : m_cab_id_auto(cab_id_auto), m_limited(limited) {}

    qint32 m_cab_id_auto = 0;
    bool m_limited = true;
};

} // namespace base
