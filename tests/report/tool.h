#pragma once

#include <QString>
#include <QStringList>

/// Runs another program and gives what it writes; the test fails where it does not end well.
[[nodiscard]] QString outputOf(const QString& program, const QStringList& arguments);
