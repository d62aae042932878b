#pragma once

#include <QHash>
#include <QString>

#include <initializer_list>
#include <utility>

namespace report {

/// The fixed texts of a family of reports, each under the name by which an installation's language can replace it.
class Captions final {
public:
    Captions(std::initializer_list<std::pair<QString, QString>> texts) : m_texts(texts) {}

    /// Names go without regard to case; one that is not there is passed over.
    void replace(const QString& name, const QString& text);
    [[nodiscard]] const QHash<QString, QString>& byName() const { return m_texts; }
    /// Throws std::out_of_range on a name that is not there.
    [[nodiscard]] const QString& operator[](const QString& name) const;

private:
    QHash<QString, QString> m_texts; ///< by name in small letters
};

} // namespace report
