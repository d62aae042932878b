#pragma once

class QApplication;

/// Gives the program its look: one widget style and one palette on every machine, the user's own font and font size.
void applyTheme(QApplication& application);
