#include "toolkit/ui/colour_text.h"

#include <QGuiApplication>
#include <QHash>
#include <QPalette>

#include <limits>
#include <optional>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

constexpr quint32 systemColour = 0xff000000;
constexpr quint32 noColour = 0x1fffffff;
constexpr quint32 defaultColour = 0x20000000;

// Palette roles by the place of the system colour.
constexpr QPalette::ColorRole systemRoles[] = {
    QPalette::Window,          // clScrollBar
    QPalette::Window,          // clBackground
    QPalette::Highlight,       // clActiveCaption
    QPalette::Mid,             // clInactiveCaption
    QPalette::Base,            // clMenu
    QPalette::Base,            // clWindow
    QPalette::Shadow,          // clWindowFrame
    QPalette::Text,            // clMenuText
    QPalette::Text,            // clWindowText
    QPalette::HighlightedText, // clCaptionText
    QPalette::Mid,             // clActiveBorder
    QPalette::Midlight,        // clInactiveBorder
    QPalette::Dark,            // clAppWorkSpace
    QPalette::Highlight,       // clHighlight
    QPalette::HighlightedText, // clHighlightText
    QPalette::Button,          // clBtnFace
    QPalette::Dark,            // clBtnShadow
    QPalette::Mid,             // clGrayText
    QPalette::ButtonText,      // clBtnText
    QPalette::WindowText,      // clInactiveCaptionText
    QPalette::Light,           // clBtnHighlight
    QPalette::Shadow,          // cl3DDkShadow
    QPalette::Midlight,        // cl3DLight
    QPalette::ToolTipText,     // clInfoText
    QPalette::ToolTipBase,     // clInfoBk
    QPalette::Window,          // unused place
    QPalette::Link,            // clHotLight
    QPalette::Highlight,       // clGradientActiveCaption
    QPalette::Mid,             // clGradientInactiveCaption
    QPalette::Highlight,       // clMenuHighlight
    QPalette::Window,          // clMenuBar
};

const QHash<QString, quint32>& namedColours() {
    static const QHash<QString, quint32> names{
        {u"clblack"_s, 0x000000},      {u"clmaroon"_s, 0x000080},  {u"clgreen"_s, 0x008000},
        {u"clolive"_s, 0x008080},      {u"clnavy"_s, 0x800000},    {u"clpurple"_s, 0x800080},
        {u"clteal"_s, 0x808000},       {u"clgray"_s, 0x808080},    {u"cldkgray"_s, 0x808080},
        {u"clsilver"_s, 0xc0c0c0},     {u"clltgray"_s, 0xc0c0c0},  {u"clred"_s, 0x0000ff},
        {u"cllime"_s, 0x00ff00},       {u"clyellow"_s, 0x00ffff},  {u"clblue"_s, 0xff0000},
        {u"clfuchsia"_s, 0xff00ff},    {u"claqua"_s, 0xffff00},    {u"clwhite"_s, 0xffffff},
        {u"clmoneygreen"_s, 0xc0dcc0}, {u"clskyblue"_s, 0xf0caa6}, {u"clcream"_s, 0xf0fbff},
        {u"clmedgray"_s, 0xa4a0a0},    {u"clnone"_s, noColour},    {u"cldefault"_s, defaultColour},
    };
    return names;
}

// In the order of systemRoles.
constexpr QLatin1String systemNames[] = {
    "clScrollBar"_L1,
    "clBackground"_L1,
    "clActiveCaption"_L1,
    "clInactiveCaption"_L1,
    "clMenu"_L1,
    "clWindow"_L1,
    "clWindowFrame"_L1,
    "clMenuText"_L1,
    "clWindowText"_L1,
    "clCaptionText"_L1,
    "clActiveBorder"_L1,
    "clInactiveBorder"_L1,
    "clAppWorkSpace"_L1,
    "clHighlight"_L1,
    "clHighlightText"_L1,
    "clBtnFace"_L1,
    "clBtnShadow"_L1,
    "clGrayText"_L1,
    "clBtnText"_L1,
    "clInactiveCaptionText"_L1,
    "clBtnHighlight"_L1,
    "cl3DDkShadow"_L1,
    "cl3DLight"_L1,
    "clInfoText"_L1,
    "clInfoBk"_L1,
    ""_L1,
    "clHotLight"_L1,
    "clGradientActiveCaption"_L1,
    "clGradientInactiveCaption"_L1,
    "clMenuHighlight"_L1,
    "clMenuBar"_L1,
};
static_assert(std::size(systemNames) == std::size(systemRoles));

std::optional<quint32> namedColour(const QString& text) {
    if (const auto found = namedColours().constFind(text.toLower()); found != namedColours().constEnd())
        return *found;
    for (quint32 place = 0; place < std::size(systemNames); ++place)
        if (!systemNames[place].isEmpty() && text.compare(systemNames[place], Qt::CaseInsensitive) == 0)
            return systemColour | place;
    return std::nullopt;
}

/// As a signed or an unsigned number of 32 bits.
std::optional<quint32> numberedColour(const QString& text) {
    bool isNumber = false;
    qint64 number = 0;
    if (text.startsWith(u'$'))
        number = text.mid(1).toUInt(&isNumber, 16);
    else if (text.startsWith(u"0x"_s, Qt::CaseInsensitive))
        number = text.mid(2).toUInt(&isNumber, 16);
    else
        number = text.toLongLong(&isNumber, 10);
    const bool fits = number >= std::numeric_limits<qint32>::min() && number <= std::numeric_limits<quint32>::max();
    return isNumber && fits ? std::optional(quint32(number)) : std::nullopt;
}

} // namespace

QColor colourFromText(const QString& text) {
    const QString trimmed = text.trimmed();
    std::optional<quint32> number = namedColour(trimmed);
    if (!number)
        number = numberedColour(trimmed);
    if (!number)
        throw std::invalid_argument(u"'%1' is no colour"_s.arg(text).toStdString());
    if (*number == noColour || *number == defaultColour)
        return {};
    const quint32 kind = *number >> 24;
    const quint32 place = *number & 0xffffff;
    if ((kind == 0xff || kind == 0x80) && place < std::size(systemRoles))
        return QGuiApplication::palette().color(systemRoles[place]);
    return {int(*number & 0xff), int(*number >> 8 & 0xff), int(*number >> 16 & 0xff)};
}
