#include "gallery/menu/KeyText.h"

#include <QCoreApplication>
#include <QTranslator>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Gallery::MenuKey;
using Gallery::ParseKeyText;

namespace {

/// Modifier names of a language that has its own word for Ctrl.
class StrgTranslator : public QTranslator
{
public:
    StrgTranslator() { QCoreApplication::installTranslator(this); }
    ~StrgTranslator() override { QCoreApplication::removeTranslator(this); }

    QString translate(const char*, const char* text, const char*, int) const override
    {
        const QString source = QString::fromUtf8(text);
        if (source == u"ctrl"_s)
            return u"strg"_s;
        return source == u"Ctrl"_s ? u"Strg"_s : QString();
    }
    bool isEmpty() const override { return false; }
};

}

TEST(KeyText, NamesGiveFlagsAndKey)
{
    EXPECT_EQ(ParseKeyText(u"Ctrl+Shift+F5"_s), (MenuKey{22, 116}));
    EXPECT_EQ(ParseKeyText(u"Delete"_s), (MenuKey{16, 46}));
    EXPECT_EQ(ParseKeyText(u"["_s), (MenuKey{16, 219}));
}

TEST(KeyText, ATextThatNamesNoKeyGivesNone)
{
    EXPECT_FALSE(ParseKeyText(u"Ctrl"_s));
    EXPECT_FALSE(ParseKeyText(u"Ctrl++"_s));
    EXPECT_FALSE(ParseKeyText(u"Ctrl+;"_s));
    EXPECT_FALSE(ParseKeyText(u"Ctrl+Wobble"_s));
    EXPECT_FALSE(ParseKeyText(u"wobble"_s));
}

TEST(KeyText, ATextWithACommaIsNoKey)
{
    EXPECT_FALSE(ParseKeyText(u"Ctrl+A,Ctrl+B"_s));
}

TEST(KeyText, EnglishModifiersParseInEveryLanguage)
{
    const StrgTranslator german;

    EXPECT_EQ(ParseKeyText(u"Ctrl+Shift+S"_s), (MenuKey{22, 0x53}));
}

TEST(KeyText, LocalTextHasTheUsersModifiersAndEnglishKeys)
{
    const StrgTranslator german;

    EXPECT_EQ(Gallery::LocalKeyText(u"Ctrl+Delete"_s), u"strg+Delete"_s);
}

TEST(KeyText, PrintingGivesTheUsersText)
{
    const QString english = Gallery::PrintKey({22, 0x53});
    const StrgTranslator german;

    EXPECT_EQ(english, u"Ctrl+Shift+S"_s);
    EXPECT_EQ(Gallery::PrintKey({22, 0x53}), u"Strg+Shift+S"_s);
}
