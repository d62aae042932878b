#pragma once

#include "toolkit/data/data_set.h"
#include "toolkit/db/connection.h"
#include "toolkit/db/parameters.h"

namespace data {

/// The rows of one statement, read whole at each open; read-only.
class SqlQuery final : public DataSet {
    Q_OBJECT

public:
    explicit SqlQuery(db::Connection& connection, const QString& sql = {}, QObject* parent = nullptr);

    /// Takes effect at the next open.
    void setSql(const QString& sql) { m_sql = sql; }
    [[nodiscard]] const QString& sql() const { return m_sql; }
    /// Takes the statement and opens with it; a refused one leaves statement and rows as they were.
    void openSql(const QString& sql);

    void setParameter(const QString& name, const QVariant& value);
    /// At each open the named parameters take the values that the fields of the same names have in master's current
    /// record, NULL where it has none. The master must outlive the query.
    void follow(const DataSet& master, const QStringList& names);

    [[nodiscard]] db::Connection& connection() const { return m_connection; }
    /// The statement with its parameters filled in.
    [[nodiscard]] QString boundSql() const;

    /// Runs the statement and gives its rows; leaves this set as it is.
    [[nodiscard]] Rows run() const;

protected:
    [[nodiscard]] Rows fetch() override { return run(); }

private:
    db::Connection& m_connection;
    QString m_sql;
    db::Parameters m_parameters;
    const DataSet* m_master = nullptr;
    QStringList m_followed;
};

} // namespace data
