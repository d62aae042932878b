#pragma once

#include <QDateTime>
#include <QString>

#include <memory>
#include <string_view>
#include <vector>

struct st_mysql_res;

namespace db {

enum class ColumnType { Integer, Real, Text, Date, Moment };

struct Column {
    QString name;
    ColumnType type = ColumnType::Text;
    int bits = 0; ///< width of an integer column as declared: 8, 16, 24, 32 or 64; 0 for other types
    bool isUnsigned = false;
    QString table; ///< table the column comes from; empty for a computed one
};

/// The whole answer of one query, held on the client, read row by row. Before the first next() it stands on no row.
/// Reading a column that does not exist throws Fault; NULL reads as empty text, 0, 0.0 or an invalid date.
class Result final {
public:
    explicit Result(st_mysql_res* result);

    [[nodiscard]] const std::vector<Column>& columns() const { return m_columns; }
    /// Position of a column by name, without regard to case. Throws Fault where there is none.
    [[nodiscard]] int columnIndex(const QString& name) const;
    [[nodiscard]] qint64 rowCount() const;

    /// Moves to the next row; false after the last one.
    bool next();

    [[nodiscard]] bool isNull(int column) const;
    /// The value as the server sent it, UTF-8; valid until the next call of next().
    [[nodiscard]] std::string_view bytes(int column) const;
    [[nodiscard]] QString text(int column) const;
    /// A number with decimals is rounded to the nearest whole one, ties to even; a text that is no number reads as 0.
    /// Throws Fault where the value does not fit 64 bits.
    [[nodiscard]] qint64 integer(int column) const;
    [[nodiscard]] double real(int column) const;
    [[nodiscard]] QDate date(int column) const;
    [[nodiscard]] QDateTime moment(int column) const;

    [[nodiscard]] QString text(const QString& name) const { return text(columnIndex(name)); }
    [[nodiscard]] qint64 integer(const QString& name) const { return integer(columnIndex(name)); }
    [[nodiscard]] double real(const QString& name) const { return real(columnIndex(name)); }
    [[nodiscard]] QDate date(const QString& name) const { return date(columnIndex(name)); }
    [[nodiscard]] QDateTime moment(const QString& name) const { return moment(columnIndex(name)); }

private:
    struct Free {
        void operator()(st_mysql_res* result) const;
    };

    std::unique_ptr<st_mysql_res, Free> m_result;
    std::vector<Column> m_columns;
    char** m_row = nullptr;
    unsigned long* m_lengths = nullptr;
};

} // namespace db
