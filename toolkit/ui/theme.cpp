#include "toolkit/ui/theme.h"

#include <QApplication>
#include <QDateTimeEdit>
#include <QEvent>
#include <QPalette>
#include <QStyleFactory>

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

// Title bars of panels carry the dynamic property "judul"; everything else is the style's.
constexpr char16_t sheet[] = uR"(
    *[judul="true"] { background: #0f4c64; color: white; padding: 5px 10px; font-weight: bold; }
    *[jumlah="true"] { font-size: 13pt; font-weight: bold; color: #0f4c64; }
    *[tebal="true"] { font-weight: bold; }
    #pnl_notice { background: #fff4d6; border-top: 1px solid #e3c878; }
    QStatusBar { background: #e4e9ed; }
    QStatusBar::item { border-right: 1px solid #c3ccd4; }
)";

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
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(lightPalette());
    application.installEventFilter(new DateRoom(&application));
    application.setStyleSheet(QString::fromUtf16(sheet));
}
