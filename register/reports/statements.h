#pragma once

#include <QList>
#include <QString>

namespace payroll {

/// The condition that takes the runs together: "process_id=1 or process_id=2 ". Empty where none is ticked.
[[nodiscard]] QString processFilter(const QList<qint64>& processIds);

/// One row per employee of the runs, in the order of the PIN, then of the key: `jml_gaji` and who he is.
[[nodiscard]] QString sqlDetail(const QString& filter);

enum class ComponentType { Earning = 0, Deduction = 1 };

/// The employees' lines, one per component, condition, kind of rule and way of payment.
[[nodiscard]] QString sqlSubdetail(const QString& filter, ComponentType type);

} // namespace payroll
