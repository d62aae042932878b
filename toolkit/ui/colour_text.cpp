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

/// A colour that follows the look of the screen.
struct SystemColour {
    QLatin1String name; ///< empty: the place has none
    QPalette::ColorRole role;
};

// By the place that a number names.
constexpr SystemColour systemColours[] = {
    {"clScrollBar"_L1, QPalette::Window},
    {"clBackground"_L1, QPalette::Window},
    {"clActiveCaption"_L1, QPalette::Highlight},
    {"clInactiveCaption"_L1, QPalette::Mid},
    {"clMenu"_L1, QPalette::Base},
    {"clWindow"_L1, QPalette::Base},
    {"clWindowFrame"_L1, QPalette::Shadow},
    {"clMenuText"_L1, QPalette::Text},
    {"clWindowText"_L1, QPalette::Text},
    {"clCaptionText"_L1, QPalette::HighlightedText},
    {"clActiveBorder"_L1, QPalette::Mid},
    {"clInactiveBorder"_L1, QPalette::Midlight},
    {"clAppWorkSpace"_L1, QPalette::Dark},
    {"clHighlight"_L1, QPalette::Highlight},
    {"clHighlightText"_L1, QPalette::HighlightedText},
    {"clBtnFace"_L1, QPalette::Button},
    {"clBtnShadow"_L1, QPalette::Dark},
    {"clGrayText"_L1, QPalette::Mid},
    {"clBtnText"_L1, QPalette::ButtonText},
    {"clInactiveCaptionText"_L1, QPalette::WindowText},
    {"clBtnHighlight"_L1, QPalette::Light},
    {"cl3DDkShadow"_L1, QPalette::Shadow},
    {"cl3DLight"_L1, QPalette::Midlight},
    {"clInfoText"_L1, QPalette::ToolTipText},
    {"clInfoBk"_L1, QPalette::ToolTipBase},
    {""_L1, QPalette::Window},
    {"clHotLight"_L1, QPalette::Link},
    {"clGradientActiveCaption"_L1, QPalette::Highlight},
    {"clGradientInactiveCaption"_L1, QPalette::Mid},
    {"clMenuHighlight"_L1, QPalette::Highlight},
    {"clMenuBar"_L1, QPalette::Window},
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

std::optional<quint32> namedColour(const QString& text) {
    if (const auto found = namedColours().constFind(text.toLower()); found != namedColours().constEnd())
        return *found;
    for (quint32 place = 0; place < std::size(systemColours); ++place)
        if (const QLatin1String name = systemColours[place].name;
            !name.isEmpty() && text.compare(name, Qt::CaseInsensitive) == 0)
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
    if ((kind == 0xff || kind == 0x80) && place < std::size(systemColours))
        return QGuiApplication::palette().color(systemColours[place].role);
    return {int(*number & 0xff), int(*number >> 8 & 0xff), int(*number >> 16 & 0xff)};
}
