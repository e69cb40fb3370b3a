#include "docs/snippets/toolbar_guide.h"

#include "quick_backend/toolbar/CVqQuickItemControl.h"

#include <QDir>
#include <QQuickItem>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class ToolbarGuide : public ::testing::Test
{
protected:
    ToolbarGuide()
    {
        m_menu.AppendPopup(1, 0, VQ_TEXT("&File"));
        m_menu.AppendMenuItem(2, 1, VQ_TEXT("&Open...\aCtrl+O"), VQ_TEXT("FileOpen"), 0);
        m_menu.AppendMenuItem(3, 1, VQ_TEXT("&Play"), VQ_TEXT("MacroPlay"), 0);
        fill_toolbar(m_bar, m_menu);
    }

    CVqQuickControl& Control(const vq_wchar* name)
    {
        return dynamic_cast<CVqQuickControl&>(*m_bar.ControlFromId(m_bar.FindButton(name)));
    }

    CVqQuickMenu m_menu;
    CVqQuickButtonToolbar m_bar{VQ_TEXT("main")};
    const QTemporaryDir m_folder;
};

}

TEST_F(ToolbarGuide, AButtonShowsWhatItsCommandSays)
{
    m_menu.EnableId(2, false);

    EXPECT_FALSE(Control(VQ_TEXT("open")).IsEnabledNow());
    EXPECT_TRUE(Control(VQ_TEXT("play")).IsEnabledNow());
    EXPECT_EQ(Control(VQ_TEXT("open")).KeyText(), u"Ctrl+O"_s);
}

TEST_F(ToolbarGuide, AnotherStateIsAnotherTextAndCommand)
{
    Control(VQ_TEXT("play")).setState(1);

    EXPECT_EQ(Control(VQ_TEXT("play")).Text(), u"Stop"_s);
    EXPECT_EQ(Control(VQ_TEXT("play")).CommandText(), u"MacroStop"_s);
}

TEST_F(ToolbarGuide, AHostedItemHasItsOwnSize)
{
    auto* slider = new QQuickItem;
    slider->setSize({120, 20});

    add_slider(m_bar, slider);

    EXPECT_EQ(Control(VQ_TEXT("zoom")).NaturalSize(), (CVqSizeBase<int>{120, 20}));
}

TEST_F(ToolbarGuide, AStoredToolbarComesBackInAnotherOne)
{
    CVqQuickButtonToolbar other(VQ_TEXT("other"));
    const QString file = m_folder.filePath(u"bar.cbor"_s);

    EXPECT_TRUE(save_toolbar(m_bar, file));
    EXPECT_TRUE(load_toolbar(other, file));

    EXPECT_EQ(other.GetButtonsCount(), 3U);
    EXPECT_NE(other.FindButton(VQ_TEXT("open")), 0U);
    EXPECT_TRUE(other.IsIDSeparator(other.GetButtonID(1, false)));
}

TEST_F(ToolbarGuide, AFileThatIsNoRecordLeavesTheToolbar)
{
    EXPECT_FALSE(load_toolbar(m_bar, m_folder.filePath(u"none.cbor"_s)));
    EXPECT_EQ(m_bar.GetButtonsCount(), 3U);
}

TEST_F(ToolbarGuide, WhatIsAcceptedIsStored)
{
    const QString before = QDir::currentPath();
    QDir::setCurrent(m_folder.path());
    CVqQuickToolbarSetup setup;
    customise(setup, m_bar);

    setup.begin();
    setup.remove(&Control(VQ_TEXT("open")));
    setup.accept();
    CVqQuickButtonToolbar other(VQ_TEXT("other"));
    const bool loaded = load_toolbar(other, u"main.cbor"_s);
    QDir::setCurrent(before);

    EXPECT_TRUE(loaded);
    EXPECT_EQ(other.FindButton(VQ_TEXT("open")), 0U);
    EXPECT_NE(other.FindButton(VQ_TEXT("play")), 0U);
}
