#include "quick_backend/VqMenuLabel.h"

#include <gtest/gtest.h>

TEST(VqMenuLabel, TakesTheMarkOfTheMnemonicOut)
{
    const SVqMenuLabel label = VqMenuLabel(VQ_TEXT("Save &as...\aCtrl+S"), VQ_TEXT('a'));

    EXPECT_EQ(label.text, QStringLiteral("Save as..."));
    EXPECT_EQ(label.mnemonic, 5);
    EXPECT_EQ(label.Styled(), QStringLiteral("Save <u>a</u>s..."));
}

TEST(VqMenuLabel, OnlyTheMarkThatTheMnemonicNamesCounts)
{
    const SVqMenuLabel label = VqMenuLabel(VQ_TEXT("&Open &File"), VQ_TEXT('f'));

    EXPECT_EQ(label.text, QStringLiteral("Open File"));
    EXPECT_EQ(label.mnemonic, 5);
}

TEST(VqMenuLabel, OfTwoMarksOfOneLetterTheFirstCounts)
{
    const SVqMenuLabel label = VqMenuLabel(VQ_TEXT("&Save &selection"), VQ_TEXT('S'));

    EXPECT_EQ(label.Styled(), QStringLiteral("<u>S</u>ave selection"));
}

TEST(VqMenuLabel, WithoutAMnemonicNoMarkCounts)
{
    const SVqMenuLabel label = VqMenuLabel(VQ_TEXT("&Open"), 0);

    EXPECT_EQ(label.text, QStringLiteral("Open"));
    EXPECT_EQ(label.mnemonic, -1);
    EXPECT_EQ(label.Styled(), QStringLiteral("Open"));
}

TEST(VqMenuLabel, ADoubledMarkIsOne)
{
    const SVqMenuLabel label = VqMenuLabel(VQ_TEXT("R&&&D <b>"), VQ_TEXT('d'));

    EXPECT_EQ(label.text, QStringLiteral("R&D <b>"));
    EXPECT_EQ(label.mnemonic, 2);
    EXPECT_EQ(label.Styled(), QStringLiteral("R&amp;<u>D</u> &lt;b&gt;"));
}

TEST(VqMenuLabel, AMarkAtTheEndIsNone)
{
    const SVqMenuLabel label = VqMenuLabel(VQ_TEXT("Open&"), 0);

    EXPECT_EQ(label.text, QStringLiteral("Open"));
    EXPECT_EQ(label.mnemonic, -1);
}

TEST(VqMenuLabel, WhatStandsBehindATabIsANote)
{
    const SVqMenuLabel label = VqMenuLabel(VQ_TEXT("&Zoom\tdouble click\aCtrl+1"), VQ_TEXT('z'));

    EXPECT_EQ(label.text, QStringLiteral("Zoom"));
    EXPECT_EQ(label.note, QStringLiteral("double click"));
}

TEST(VqMenuLabel, EmptyAndNullTextsAreEmpty)
{
    EXPECT_EQ(VqMenuLabel(VQ_TEXT(""), VQ_TEXT('a')).text, QString());
    EXPECT_EQ(VqMenuLabel(nullptr, 0).text, QString());
}

TEST(VqMenuLabel, ALongTextStaysWhole)
{
    const std::basic_string<vq_wchar> text(5'000, VQ_TEXT('x'));

    EXPECT_EQ(VqMenuLabel(text.c_str(), VQ_TEXT('x')).text.size(), 5'000);
}
