#pragma once

#include <QList>
#include <QStringList>

namespace db {
class Connection;
}

namespace company {

/// The rows of a table of tab-separated texts without its header line. Throws std::runtime_error, naming the line,
/// where the header differs, a column lacks or is too many, or a cell is empty.
[[nodiscard]] QList<QStringList> textRows(const QString& table, const QStringList& header);

/// Fills the captions and messages of every language.
void writeTexts(db::Connection& app);

} // namespace company
