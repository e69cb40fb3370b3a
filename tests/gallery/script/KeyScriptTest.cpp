#include "gallery/script/KeyScript.h"

#include "gallery/menu/MenuPath.h"
#include "tests/gallery/GalleryWindow.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class KeyScriptTest : public testing::Test
{
protected:
    QString press(const QString& key) { return m_script.Press(*Gallery::ParseKeyPress(key)); }

    GalleryWindow m_gallery;
    Gallery::KeyScript m_script{m_gallery.GetSession(), m_gallery.Window()};
};

}

TEST_F(KeyScriptTest, AKeyTellsTheCommandThatItFired)
{
    EXPECT_EQ(press(u"Ctrl+Shift+S"_s), u"Ctrl+Shift+S -> 1016 FileSaveAs"_s);
}

TEST_F(KeyScriptTest, AKeyThatNoTextCarriesFires)
{
    EXPECT_EQ(press(u"Ctrl+Comma"_s), u"Ctrl+Comma -> 1119 EditPreferences"_s);
}

TEST_F(KeyScriptTest, AKeyWithoutAnEntryFires)
{
    EXPECT_EQ(press(u"["_s), u"[ -> 9004 BrushSmaller"_s);
}

TEST_F(KeyScriptTest, AKeyThatIsNotInTheMenuHasNoCommand)
{
    EXPECT_EQ(press(u"Ctrl+Shift+F12"_s), u"Ctrl+Shift+F12 -> no command"_s);
}

TEST_F(KeyScriptTest, AKeyOfADisabledEntryHasNoCommand)
{
    EXPECT_EQ(press(u"Ctrl+Z"_s), u"Ctrl+Z -> no command"_s);
}

TEST_F(KeyScriptTest, AKeyThatFiresNothingLeavesTheLastCommand)
{
    press(u"Ctrl+S"_s);

    press(u"Alt+F"_s);

    EXPECT_EQ(m_gallery.GetSession().LastCommand(), u"FileSave"_s);
}

TEST_F(KeyScriptTest, TheSameCommandIsToldAsOftenAsItIsFired)
{
    EXPECT_EQ(press(u"Ctrl+S"_s), u"Ctrl+S -> 1015 FileSave"_s);
    EXPECT_EQ(press(u"Ctrl+S"_s), u"Ctrl+S -> 1015 FileSave"_s);
}

TEST_F(KeyScriptTest, MnemonicsOpenPopupsAndFire)
{
    EXPECT_EQ(press(u"Alt+S"_s), u"Alt+S -> opens popup Select"_s);
    EXPECT_EQ(m_script.OpenPopups(), QList<vq_uint32>{1400});
    EXPECT_EQ(press(u"A"_s), u"A -> 1401 SelectAll"_s);
    EXPECT_TRUE(m_script.OpenPopups().isEmpty());
}

TEST_F(KeyScriptTest, PopupsInPopupsOpenAndClose)
{
    const QStringList keys = Gallery::MnemonicKeys(*m_gallery.GetSession().Menu(), u"FileExport(png)"_s);
    ASSERT_EQ(keys.size(), 3);
    press(keys[0]);

    EXPECT_EQ(press(keys[1]), keys[1] + u" -> opens popup Export"_s);
    EXPECT_EQ(m_script.OpenPopups().size(), 2);
    EXPECT_EQ(press(u"Esc"_s), u"Esc -> no command"_s);
    EXPECT_EQ(m_script.OpenPopups().size(), 1);
}

TEST_F(KeyScriptTest, ClosingLeavesNoPopupOpen)
{
    press(u"Alt+F"_s);
    press(u"Down"_s);

    m_script.CloseAll();

    EXPECT_TRUE(m_script.OpenPopups().isEmpty());
    EXPECT_FALSE(m_gallery.GetSession().Menu()->IsTracking());
}
