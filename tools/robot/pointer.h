#pragma once

#include <QPoint>
#include <QWidget>

/// Clicks the control where a hand would: a check box on its mark, anything else in its middle. Throws CommandFault
/// where another widget lies over that point.
void clickControl(QWidget* control, const QString& path);

/// Clicks a point of a widget, given in the widget's own coordinates.
void clickPoint(QWidget* widget, QPoint point, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

/// Two clicks that both stand in the queue before the first is handled, as from a fast hand.
void doubleClickControl(QWidget* control, const QString& path);
