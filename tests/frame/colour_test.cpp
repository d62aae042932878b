#include "toolkit/text/bool_text.h"
#include "toolkit/ui/colour_text.h"

#include <QGuiApplication>
#include <QPalette>

#include <gtest/gtest.h>

namespace {

std::string colourOf(const char* text) {
    try {
        const QColor colour = colourFromText(QString::fromUtf8(text));
        return colour.isValid() ? colour.name().toStdString() : "none";
    } catch (const std::invalid_argument&) {
        return "refused";
    }
}

TEST(ColourText, NamesAndNumbersWithRedInTheLowestByte) {
    const std::pair<const char*, const char*> cases[] = {
        {"clRed", "#ff0000"},       {"CLLIME", "#00ff00"},   {"clSkyBlue", "#a6caf0"}, {"clMoneyGreen", "#c0dcc0"},
        {"255", "#ff0000"},         {"16711680", "#0000ff"}, {"$0080C8FF", "#ffc880"}, {"$FFE0C0", "#c0e0ff"},
        {"0x00FF8000", "#0080ff"},  {"0XC0", "#c00000"},     {" clBlack ", "#000000"}, {"$02808080", "#808080"},
        {"clNone", "none"},         {"clDefault", "none"},   {"536870911", "none"},    {"", "refused"},
        {"red", "refused"},         {"#ff0000", "refused"},  {"$GG", "refused"},       {"4294967296", "refused"},
        {"-2147483649", "refused"}, {"1.5", "refused"},
    };
    for (const auto& [text, colour] : cases)
        EXPECT_EQ(colourOf(text), colour) << text;
}

TEST(ColourText, SystemColoursComeFromThePaletteInEveryForm) {
    const std::string button = QGuiApplication::palette().color(QPalette::Button).name().toStdString();
    const std::string window = QGuiApplication::palette().color(QPalette::Base).name().toStdString();
    for (const char* text : {"clBtnFace", "$FF00000F", "-16777201", "$8000000F", "-2147483633", "4278190095"})
        EXPECT_EQ(colourOf(text), button) << text;
    EXPECT_EQ(colourOf("clWindow"), window);
    EXPECT_EQ(colourOf("$FF000005"), window);
}

TEST(BoolText, NumbersAndWords) {
    for (const char* text : {"-1", "1", " 2", "0.5", "True", "TRUE"})
        EXPECT_TRUE(boolFromText(QString::fromUtf8(text))) << text;
    for (const char* text : {"0", "-0", "0.0", "false"})
        EXPECT_FALSE(boolFromText(QString::fromUtf8(text))) << text;
    for (const char* text : {"", "ya", "-"})
        EXPECT_THROW((void)boolFromText(QString::fromUtf8(text)), std::invalid_argument) << text;
}

} // namespace
