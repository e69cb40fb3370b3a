#include "gallery/script/KeyScript.h"
#include "tests/gallery/MainWindow.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class StatusLine : public testing::Test
{
protected:
    void press(const QString& key)
    {
        Gallery::KeyScript(m_gallery.GetSession(), m_gallery.Window()).Press(*Gallery::ParseKeyPress(key));
    }

    /// What `name` shows now; empty when it does not show.
    QString shown(const QString& name)
    {
        const auto* text = m_gallery.Window().findChild<QQuickItem*>(name);
        return text && text->isVisible() ? text->property("text").toString() : QString();
    }

    MainWindow m_gallery;
};

}

TEST_F(StatusLine, InvitesBeforeTheFirstCommand)
{
    EXPECT_EQ(shown(u"statusLabel"_s), u"Choose a command, or press its key."_s);
    EXPECT_EQ(shown(u"statusCommand"_s), QString());
    EXPECT_EQ(shown(u"statusKey"_s), QString());
    EXPECT_EQ(shown(u"statusTime"_s), QString());
}

TEST_F(StatusLine, TellsTheLastCommand)
{
    press(u"Ctrl+Shift+S"_s);

    EXPECT_EQ(shown(u"statusLabel"_s), u"Save As..."_s);
    EXPECT_EQ(shown(u"statusCommand"_s), u"FileSaveAs"_s);
}

TEST_F(StatusLine, TellsTheKeyThatFiredIt)
{
    press(u"Ctrl+Comma"_s);

    EXPECT_EQ(shown(u"statusKey"_s), u"Ctrl+,"_s);
}

TEST_F(StatusLine, TellsTheTimeThatFindingTheCommandTook)
{
    press(u"Ctrl+S"_s);

    const QRegularExpression time(u"^found in [0-9]+(\\.[0-9])? (ns|µs)$"_s);
    EXPECT_TRUE(time.match(shown(u"statusTime"_s)).hasMatch()) << shown(u"statusTime"_s).toStdString();
}

TEST_F(StatusLine, ACommandOfAMnemonicHasNeitherKeyNorTime)
{
    press(u"Ctrl+S"_s);

    press(u"Alt+S"_s);
    press(u"A"_s);

    EXPECT_EQ(shown(u"statusCommand"_s), u"SelectAll"_s);
    EXPECT_EQ(shown(u"statusKey"_s), QString());
    EXPECT_EQ(shown(u"statusTime"_s), QString());
}

TEST_F(StatusLine, ACommandWithoutAnEntryIsToldOnce)
{
    press(u"["_s);

    EXPECT_EQ(shown(u"statusLabel"_s), u"BrushSmaller"_s);
    EXPECT_EQ(shown(u"statusCommand"_s), QString());
    EXPECT_EQ(shown(u"statusKey"_s), u"["_s);
}

TEST_F(StatusLine, TellsToolSizeAndZoom)
{
    press(u"W"_s);
    press(u"Ctrl+1"_s);

    EXPECT_EQ(shown(u"statusTool"_s), u"Magic Wand"_s);
    EXPECT_EQ(shown(u"statusSize"_s), u"1200 × 800"_s);
    EXPECT_EQ(shown(u"statusZoom"_s), u"100 %"_s);
}

TEST(StatusLineInGerman, LabelsAndKeysAreGerman)
{
    MainWindow gallery(u"de"_s);
    Gallery::KeyScript script(gallery.GetSession(), gallery.Window());
    const auto text = [&gallery](const QString& name, const char* property = "text") {
        return gallery.Window().findChild<QQuickItem*>(name)->property(property).toString();
    };

    script.Press(*Gallery::ParseKeyPress(u"Ctrl+Backspace"_s));

    EXPECT_EQ(text(u"statusLabel"_s), u"Mit Vordergrund füllen"_s);
    EXPECT_EQ(text(u"statusKey"_s), u"Strg+Rück"_s);
    EXPECT_EQ(text(u"statusTool"_s), u"Pinsel"_s);
    EXPECT_EQ(text(u"lightLayer"_s, "detail"), u"Negativ multiplizieren, 60 %"_s);
}
