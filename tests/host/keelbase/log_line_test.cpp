#include "support/keelbase/log_line.h"

#include <gtest/gtest.h>

#include <string>

using Keelbase::composeLine;
using Keelbase::maximumTextSize;

TEST(LogLine, HoldsLevelCategorySourceLineAndText)
{
    EXPECT_EQ(composeLine({6, "MainForm", "ui/uninstall/src/widget", 77, "-->Widget::Widget()"}),
              "6 MainForm ui/uninstall/src/widget:77 | -->Widget::Widget()");
}

TEST(LogLine, EmptyTextKeepsTheShape)
{
    EXPECT_EQ(composeLine({3, "IPC", "source", 1, ""}), "3 IPC source:1 | ");
}

TEST(LogLine, LineBreaksCannotMakeASecondLine)
{
    const std::string forged = "text\r\n2026-11-21 01:39:46.123 1:1 6 MainForm source:1 | forged";
    const std::string line = composeLine({6, "IPC", "source", 1, forged});
    EXPECT_EQ(line, "6 IPC source:1 | text\\r\\n2026-11-21 01:39:46.123 1:1 6 MainForm source:1 | "
                    "forged");
    EXPECT_EQ(composeLine({6, "I\nPC", "so\rurce", 1, ""}), "6 I\\nPC so\\rurce:1 | ");
}

TEST(LogLine, ControlBytesAreShownAsNumbers)
{
    EXPECT_EQ(composeLine({6, "c", "s", 1, std::string("a\0b\x1B[31m\x7F\t\x1F", 11)}),
              "6 c s:1 | a\\x00b\\x1B[31m\\x7F\\t\\x1F");
}

TEST(LogLine, NonAsciiTextAndBackslashesAreKept)
{
    const std::string text = "C:\\new\\Gr\xC3\xBC\xC3\x9F"
                             "e \xE8\xA9\xA6";
    EXPECT_EQ(composeLine({6, "c", "s", 1, text}), "6 c s:1 | " + text);
}

TEST(LogLine, TextOfTheMaximumSizeIsWhole)
{
    const std::string text(maximumTextSize, 'x');
    EXPECT_EQ(composeLine({6, "c", "s", 1, text}), "6 c s:1 | " + text);
}

TEST(LogLine, LongerTextIsCutWithANotice)
{
    EXPECT_EQ(composeLine({6, "c", "s", 1, std::string(maximumTextSize + 1, 'x')}),
              "6 c s:1 | " + std::string(maximumTextSize, 'x') + "... (1 bytes more)");
}

TEST(LogLine, CutFallsBetweenCharacters)
{
    const std::string text = std::string(maximumTextSize - 1, 'x') + "\xE8\xA9\xA6";
    EXPECT_EQ(composeLine({6, "c", "s", 1, text}),
              "6 c s:1 | " + std::string(maximumTextSize - 1, 'x') + "... (3 bytes more)");
}

TEST(LogLine, CutOfContinuationBytesKeepsNothing)
{
    EXPECT_EQ(composeLine({6, "c", "s", 1, std::string(maximumTextSize + 5, '\x80')}),
              "6 c s:1 | ... (" + std::to_string(maximumTextSize + 5) + " bytes more)");
}
