#include "gallery/resize/TerminalText.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Gallery::FitTerminal;

TEST(TerminalText, WhatFitsStaysAsItIs)
{
    EXPECT_EQ(FitTerminal(u"harbour.png"_s, 11), u"harbour.png"_s);
    EXPECT_EQ(FitTerminal({}, 0), QString());
}

TEST(TerminalText, WhatIsLongerIsCutWithAMark)
{
    EXPECT_EQ(FitTerminal(u"harbour.png"_s, 10), u"harbour..."_s);
    EXPECT_EQ(FitTerminal(u"harbour.png"_s, 3), u"..."_s);
    EXPECT_EQ(FitTerminal(u"harbour.png"_s, 2), QString());
}

TEST(TerminalText, WideCharactersTakeTwoColumns)
{
    const QString name = u"\u6e2f\u306e\u5915\U0001F3D9"_s;

    EXPECT_EQ(Gallery::TerminalColumns(name), 8);
    EXPECT_EQ(FitTerminal(name, 8), name);
    EXPECT_EQ(FitTerminal(name, 7), u"\u6e2f\u306e..."_s);
}

TEST(TerminalText, WhatWouldChangeTheTerminalIsReplaced)
{
    EXPECT_EQ(Gallery::PrintableText(u"a\x1b[2Jb\nc\u202ed"_s), u"a?[2Jb?c?d"_s);
    EXPECT_EQ(FitTerminal(u"a\rb"_s, 9), u"a?b"_s);
}

TEST(TerminalText, ALoneSurrogateIsReplaced)
{
    EXPECT_EQ(Gallery::PrintableText(QString(u'a') + QChar(0xD800)), u"a\ufffd"_s);
}
