#pragma once

#include <QString>
#include <QWidget>

/// Replaces what stands in the control, key by key.
void typeText(QWidget* control, const QString& text);
