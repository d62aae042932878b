#include "toolkit/ui/theme.h"

#include <QApplication>
#include <QDateTimeEdit>
#include <QEvent>
#include <QLabel>
#include <QPalette>
#include <QPixmapCache>
#include <QStyleFactory>
#include <QToolButton>

#include <initializer_list>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

QPalette lightPalette() {
    QPalette palette(QColor(0xf3, 0xf5, 0xf7));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xf5, 0xf8, 0xfa));
    palette.setColor(QPalette::Text, QColor(0x1f, 0x29, 0x33));
    palette.setColor(QPalette::WindowText, QColor(0x1f, 0x29, 0x33));
    palette.setColor(QPalette::ButtonText, QColor(0x1f, 0x29, 0x33));
    palette.setColor(QPalette::Highlight, QColor(0x0f, 0x6b, 0x8f));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, QColor(0x7b, 0x87, 0x94));
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(0x9a, 0xa5, 0xb1));
    return palette;
}

const QColor deep(0x0f, 0x4c, 0x64);

void setColours(QWidget& widget, const std::initializer_list<std::pair<QPalette::ColorRole, QColor>>& colours) {
    QPalette palette = widget.palette();
    for (const auto& [role, colour] : colours)
        palette.setColor(role, colour);
    widget.setPalette(palette);
}

void makeBold(QWidget& widget, int points = 0) {
    QFont font = widget.font();
    font.setBold(true);
    if (points > 0)
        font.setPointSize(points);
    widget.setFont(font);
}

/// Title bars of panels carry the dynamic property "judul", sums "jumlah", what is to stand out "tebal". A style sheet
/// would do the same, and keep some kilobytes of every screen that it ever drew.
class MarkedLooks final : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Polish && watched->isWidgetType())
            dress(static_cast<QWidget&>(*watched));
        return false;
    }

private:
    static void dress(QWidget& widget) {
        constexpr int sumPoints = 13;
        const auto is = [&widget](const char* mark) { return widget.property(mark).toBool(); };
        if (is("judul")) {
            setColours(widget, {{QPalette::Window, deep},
                                {QPalette::WindowText, Qt::white},
                                {QPalette::Button, deep},
                                {QPalette::ButtonText, Qt::white}});
            widget.setAutoFillBackground(!qobject_cast<QToolButton*>(&widget));
            makeBold(widget);
            if (qobject_cast<QLabel*>(&widget))
                widget.setContentsMargins(10, 5, 10, 5);
        } else if (is("jumlah")) {
            setColours(widget, {{QPalette::WindowText, deep}});
            makeBold(widget, sumPoints);
        } else if (is("tebal")) {
            makeBold(widget);
        }
    }
};

/// With a calendar the style draws a wider arrow than the hint of a date edit has room for; in a large font the last
/// digit lies under it.
class DateRoom final : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        auto* edit = event->type() == QEvent::Show ? qobject_cast<QDateTimeEdit*>(watched) : nullptr;
        if (edit)
            edit->setMinimumWidth(edit->sizeHint().width() + 2 * edit->fontMetrics().averageCharWidth());
        return false;
    }
};

} // namespace

void applyTheme(QApplication& application) {
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
    QApplication::setPalette(lightPalette());
    application.installEventFilter(new DateRoom(&application));
    application.installEventFilter(new MarkedLooks(&application));
    // The style draws its controls through this cache, under names that differ from widget to widget: what a closed
    // screen left there is never found again.
    QPixmapCache::setCacheLimit(0);
}
