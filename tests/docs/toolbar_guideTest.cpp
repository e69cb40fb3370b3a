#include "docs/snippets/toolbar_guide.h"

#include "AbstractGui/VqHiddenToolbarButtons.h"
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

    ~ToolbarGuide() override { VQ_SetToolbarButtonAsHidden(VQ_TEXT("main"), nullptr, false, false); }

    CVqQuickControl& Control(const vq_wchar* name) { return ControlOf(m_bar, name); }

    static CVqQuickControl& ControlOf(CVqQuickButtonToolbar& bar, const vq_wchar* name)
    {
        return dynamic_cast<CVqQuickControl&>(*bar.ControlFromId(bar.FindButton(name)));
    }

    CVqQuickMenu m_menu;
    CVqQuickButtonToolbar m_bar{VQ_TEXT("main")};
    const QTemporaryDir m_folder;
};

/// A program that keeps its files in the current folder, which is a temporary one meanwhile.
class ToolbarGuideAtStart : public ToolbarGuide
{
protected:
    ToolbarGuideAtStart() { QDir::setCurrent(m_folder.path()); }
    ~ToolbarGuideAtStart() override { QDir::setCurrent(m_before); }

    /// One run of that program.
    struct Run
    {
        explicit Run(CVqQuickMenu& menu) { start_toolbar(setup, bar, menu, new QQuickItem); }

        QString NameAt(unsigned index)
        {
            CVqStringW name;
            bar.GetButtonName(bar.GetButtonID(index, false), name);
            return name.ToQString();
        }

        CVqQuickButtonToolbar bar{VQ_TEXT("main")};
        CVqQuickToolbarSetup setup;
    };

private:
    const QString m_before = QDir::currentPath();
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

TEST_F(ToolbarGuide, WhatTheApplicationHidesIsNotTheUsers)
{
    VQ_SetToolbarButtonAsHidden(VQ_TEXT("main"), VQ_TEXT("open"), true, true);

    hide_buttons(m_bar, {u"play"_s});
    const QStringList hidden = hidden_buttons(m_bar);
    VQ_SetToolbarButtonAsHidden(VQ_TEXT("main"), VQ_TEXT("open"), false, true);

    EXPECT_EQ(hidden, QStringList{u"play"_s});
}

TEST_F(ToolbarGuide, AnItemTakesThePlaceThatALoadLeft)
{
    m_bar.InsertButtonBefore(m_bar.FindButton(VQ_TEXT("play")), VQ_TEXT("zoom"));

    add_slider(m_bar, new QQuickItem);

    EXPECT_EQ(m_bar.GetButtonsCount(), 4U);
    EXPECT_EQ(m_bar.GetButtonID(2, false), m_bar.FindButton(VQ_TEXT("zoom")));
    EXPECT_EQ(Control(VQ_TEXT("zoom")).GetKind(), CVqQuickControl::General);
}

TEST_F(ToolbarGuideAtStart, TheFirstRunHasTheToolbarAsItWasBuiltAndTheItemBehind)
{
    Run run(m_menu);

    EXPECT_EQ(run.bar.GetButtonsCount(), 4U);
    EXPECT_EQ(run.NameAt(0), u"open"_s);
    EXPECT_EQ(run.NameAt(3), u"zoom"_s);
}

TEST_F(ToolbarGuideAtStart, TheNextRunHasWhatWasAccepted)
{
    {
        Run run(m_menu);
        run.setup.begin();
        run.setup.move(&ControlOf(run.bar, VQ_TEXT("zoom")), &run.bar, &ControlOf(run.bar, VQ_TEXT("open")));
        run.setup.setShown(&ControlOf(run.bar, VQ_TEXT("play")), false);
        run.setup.accept();
    }
    VQ_SetToolbarButtonAsHidden(VQ_TEXT("main"), nullptr, false, false);

    Run next(m_menu);

    EXPECT_EQ(next.NameAt(0), u"zoom"_s);
    EXPECT_EQ(ControlOf(next.bar, VQ_TEXT("zoom")).GetKind(), CVqQuickControl::General);
    EXPECT_FALSE(next.bar.GetButtonVisibility(next.bar.FindButton(VQ_TEXT("play"))));
}

TEST_F(ToolbarGuideAtStart, AResetGoesBackToTheToolbarAsItWasBuilt)
{
    {
        Run run(m_menu);
        run.setup.remove(&ControlOf(run.bar, VQ_TEXT("open")));
    }
    Run next(m_menu);
    EXPECT_EQ(next.bar.FindButton(VQ_TEXT("open")), 0U);

    next.setup.begin();
    next.setup.reset();

    EXPECT_EQ(next.NameAt(0), u"open"_s);
    EXPECT_EQ(next.NameAt(3), u"zoom"_s);
}
