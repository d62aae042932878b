#pragma once

#include <QString>

/// A caption as it is read: without the mark in front of its shortcut letter, a doubled mark as one.
[[nodiscard]] inline QString captionText(const QString& caption) {
    QString shown;
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (caption[i] == u'&' && i + 1 < caption.size())
            ++i;
        shown += caption[i];
    }
    return shown;
}
