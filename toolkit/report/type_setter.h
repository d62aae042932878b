#pragma once

#include "toolkit/report/look.h"

#include <QFont>
#include <QFontMetricsF>
#include <QHash>

#include <map>

namespace report {

/// Fine enough that rounding to whole dots is never seen.
inline constexpr double dotsPerMm = 1200 / 25.4;
/// The height of one line of text with the space around it: 0.19 inch.
inline constexpr double lineMm = 0.19 * 25.4;

/// Sets texts in the reports' typeface: Arial, or its metric twin. Measures come from the outlines at 1200 dots an
/// inch and not from any screen, so that a line breaks at the same word in the preview, on paper and in a file.
class TypeSetter final {
public:
    TypeSetter();

    /// Sized in dots.
    [[nodiscard]] QFont font(const Look& look) const;

    /// Millimetres.
    [[nodiscard]] double width(const QString& text, const Look& look);
    /// From the top of a line to its base line; millimetres. From line to line it is lineMm, also in a wrapped text, so
    /// that texts beside each other stay on common lines.
    [[nodiscard]] double baseline(const Look& look) {
        return lineMm / 2 + (face(look).ascent - face(look).descent) / 2;
    }

    /// The text broken into lines that are no wider than the width (mm), parted by '\n'. A word that is wider breaks
    /// anywhere.
    [[nodiscard]] const QString& wrapped(const QString& text, const Look& look, double width);

private:
    struct Face {
        QFontMetricsF metrics;
        double ascent;
        double descent;
    };
    struct Setting {
        QString text;
        double points;
        double width;
        bool bold;
        friend bool operator==(const Setting&, const Setting&) = default;
        friend size_t qHash(const Setting& s, size_t seed) {
            return qHashMulti(seed, s.text, s.points, s.width, s.bold);
        }
    };

    [[nodiscard]] const Face& face(const Look& look);
    [[nodiscard]] QString broken(const QString& text, const Look& look, double width);

    QString m_family;
    std::map<std::pair<double, bool>, Face> m_faces;
    QHash<Setting, QString> m_wrapped; ///< names of components and departments come back on every slip
};

} // namespace report
