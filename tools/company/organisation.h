#pragma once

#include <QList>
#include <QString>

namespace db {
class Connection;
}

namespace company {

/// The numbers of the salary groups.
enum Group { Manajemen = 1, Staf, Produksi, Keamanan, Harian };

/// A post with its wage and its place in the company.
struct Function {
    QString name;
    Group group = Staf;
    int lowestWage = 0; ///< thousands of rupiah a month
    int highestWage = 0;
    int share = 0;            ///< how many of a thousand employees hold it
    QList<int> departments{}; ///< where it is held
};

/// Keys are the place in the list, from 1 on.
[[nodiscard]] const QList<Function>& functions();
[[nodiscard]] const QList<QString>& branches();

/// The whole paths; the first one is the root.
[[nodiscard]] const QList<QString>& departments();

void writeOrganisation(db::Connection& main);

} // namespace company
