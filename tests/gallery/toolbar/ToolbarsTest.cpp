#include "gallery/toolbar/Toolbars.h"

#include "gallery/Session.h"
#include "gallery/storage/StoredTree.h"
#include "quick_backend/CVqQuickMenuItem.h"
#include "tests/gallery/toolbar/ToolbarSet.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <random>

using namespace Qt::StringLiterals;
using Gallery::Toolbars;

namespace {

class ToolbarsTest : public testing::Test
{
protected:
    QList<CVqQuickControl*> Buttons()
    {
        QList<CVqQuickControl*> buttons;
        for (CVqQuickButtonToolbar* bar : m_session.GetToolbars()->Bars())
            for (int i = 0; i < bar->GetButtonsCount(); ++i)
                if (CVqQuickControl* control = Looked(*bar).At(i); !control->CommandText().isEmpty())
                    buttons << control;
        return buttons;
    }

    CVqMenuItem* ItemOf(const QString& command)
    {
        vq_uint32 id = 0;
        vq_uint32 count = 1;
        CVqQuickMenu& menu = *m_session.Menu();
        menu.FindItemsByCommand(command.toStdU16String().c_str(), CVqAbstractMenu::SenseAny, 0xFF00, &id,
                                count);
        return menu.Manipulators().find_item(id, menu.getRootMenuItem());
    }

    /// What a button and its entry say differently; empty when they agree.
    QString Disagreement(const CVqQuickControl& button)
    {
        const CVqMenuItem* item = ItemOf(button.CommandText());
        if (!item)
            return u"no entry"_s;
        if (button.IsEnabledNow() != m_session.Menu()->CanFire(item->id()))
            return u"enabled"_s;
        if (button.IsChecked() != ((item->status() & CVqMenuItem::StatusChecked) != 0))
            return u"checked"_s;
        if (button.IsHiddenByCommand() != (item->removed() || item->deleted()))
            return u"hidden"_s;
        return {};
    }

    void ExpectAgreement(const QString& after)
    {
        for (const CVqQuickControl* button : Buttons())
            EXPECT_EQ(Disagreement(*button), QString())
                << button->CommandText().toStdString() << " after " << after.toStdString();
    }

    CVqQuickBitmapPool m_pool;
    Gallery::Session m_session{RealMenu()};
};

}

TEST_F(ToolbarsTest, EachToolbarOfTheFileIsThereAndFull)
{
    for (const Gallery::ToolbarDescription& description : Gallery::FactoryToolbars().bars) {
        CVqQuickButtonToolbar* bar = m_session.GetToolbars()->bar(description.name);
        ASSERT_TRUE(bar) << description.name.toStdString();
        EXPECT_EQ(bar->GetButtonsCount(), int(description.entries.size())) << description.name.toStdString();
    }
    EXPECT_FALSE(m_session.GetToolbars()->bar(u"wobble"_s));
}

TEST_F(ToolbarsTest, EachCommandAndEachPopupIsInTheMenu)
{
    for (const Gallery::ToolbarDescription& bar : Gallery::FactoryToolbars().bars)
        for (const Gallery::ToolbarEntry& entry : bar.entries) {
            CVqQuickMenu& menu = *m_session.Menu();
            EXPECT_TRUE(entry.command.isEmpty() || ItemOf(entry.command)) << entry.command.toStdString();
            const CVqMenuItem* popup = menu.Manipulators().find_item(entry.popup, menu.getRootMenuItem());
            EXPECT_TRUE(entry.popup == 0 || (popup && popup->type() == CVqAbstractMenu::SensePopup))
                << entry.popup;
        }
}

TEST_F(ToolbarsTest, EachButtonHasAnImageOrIsAText)
{
    for (const CVqQuickControl* button : Buttons())
        EXPECT_TRUE(button->bitmap() >= 0 || button->GetKind() == CVqQuickControl::TextButton)
            << button->CommandText().toStdString();
}

TEST_F(ToolbarsTest, AtTheStartButtonsAndEntriesAgree)
{
    EXPECT_GT(Buttons().size(), 40);
    ExpectAgreement(u"the start"_s);
}

TEST_F(ToolbarsTest, AfterRandomCommandsButtonsAndEntriesAgree)
{
    const QStringList commands{
        u"EditUndo"_s,     u"EditRedo"_s,    u"ImageRotate(90)"_s,   u"FilterBlur(2)"_s,
        u"LayerVisible"_s, u"ViewZoomFit"_s, u"ViewZoom(200)"_s,     u"ViewZoomIn"_s,
        u"ViewGrid"_s,     u"ViewRulers"_s,  u"SelectEdges"_s,       u"ImageHistogram"_s,
        u"Tool(move)"_s,   u"Tool(crop)"_s,  u"ViewPalette(dark)"_s, u"ViewPalette(light)"_s};
    std::mt19937 random(4711);
    for (int i = 0; i < 200; ++i) {
        const QString& command = commands[static_cast<qsizetype>(random() % commands.size())];
        m_session.choose(command);
        ExpectAgreement(command);
    }
}

TEST_F(ToolbarsTest, AButtonRunsItsEntry)
{
    Looked(*m_session.GetToolbars()->bar(u"tools"_s)).Named(u"Tool(crop)"_s)->trigger();
    QCoreApplication::processEvents();

    EXPECT_EQ(m_session.LastCommand(), u"Tool(crop)"_s);
    EXPECT_EQ(m_session.View()->tool, u"crop"_s);
    ExpectAgreement(u"a press"_s);
}

TEST_F(ToolbarsTest, AnEntryThatGoesTakesItsButtonsAlong)
{
    const vq_uint32 grid = 1814;

    m_session.Menu()->Manipulators().find_item(grid, m_session.Menu()->getRootMenuItem())->setRemoved(true);
    m_session.Menu()->EnableId(grid, true); // a change that the menu tells

    EXPECT_FALSE(Looked(*m_session.GetToolbars()->bar(u"text"_s)).Named(u"ViewGrid"_s)->IsShown());
}

TEST_F(ToolbarsTest, ABarHasItsTitle)
{
    EXPECT_EQ(m_session.GetToolbars()->Setup()->Titles(),
              (QStringList{u"Main Bar"_s, u"Tools"_s, u"Text Bar"_s}));
}

TEST_F(ToolbarsTest, TheMenuBeginsCustomising)
{
    m_session.choose(u"ViewCustomiseToolbars"_s);

    EXPECT_TRUE(m_session.GetToolbars()->Setup()->IsActive());
}

TEST_F(ToolbarsTest, ResetGivesTheFactoryToolbars)
{
    CVqQuickToolbarSetup& setup = *m_session.GetToolbars()->Setup();
    CVqQuickButtonToolbar& text = *m_session.GetToolbars()->bar(u"text"_s);
    const QStringList factory = Looked(text).Names();
    setup.begin();
    setup.remove(Looked(text).Named(u"ViewGrid"_s));
    setup.accept();
    setup.begin();

    setup.reset();
    setup.accept();

    EXPECT_EQ(Looked(text).Names(), factory);
    EXPECT_EQ(Looked(text).Named(u"ViewGrid"_s)->GetKind(), CVqQuickControl::TextButton);
    ExpectAgreement(u"a reset"_s);
}

TEST_F(ToolbarsTest, ACommandThatWasAddedGetsItsArrow)
{
    CVqQuickToolbarSetup& setup = *m_session.GetToolbars()->Setup();
    CVqQuickButtonToolbar& tools = *m_session.GetToolbars()->bar(u"tools"_s);
    setup.begin();
    setup.addCommand(u"FileOpen"_s, &tools, nullptr);

    setup.accept();

    EXPECT_EQ(Looked(tools).Named(u"FileOpen"_s)->DropDownId(), 1009u);
}

TEST(ToolbarsKept, WhatWasAcceptedIsThereInTheNextRun)
{
    const QTemporaryDir folder;
    {
        Gallery::Session session(RealMenu(), {folder.path(), u"en"_s});
        CVqQuickToolbarSetup& setup = *session.GetToolbars()->Setup();
        setup.begin();
        setup.remove(Looked(*session.GetToolbars()->bar(u"text"_s)).Named(u"ViewGrid"_s));
        setup.accept();
    }

    Gallery::Session session(RealMenu(), {folder.path(), u"en"_s});

    EXPECT_FALSE(Looked(*session.GetToolbars()->bar(u"text"_s)).Named(u"ViewGrid"_s));
}

TEST(ToolbarsKept, WhatWasCancelledIsNot)
{
    const QTemporaryDir folder;
    Gallery::Session session(RealMenu(), {folder.path(), u"en"_s});
    CVqQuickToolbarSetup& setup = *session.GetToolbars()->Setup();
    CVqQuickControl* grid = Looked(*session.GetToolbars()->bar(u"text"_s)).Named(u"ViewGrid"_s);
    setup.begin();
    setup.remove(grid);

    setup.cancel();

    EXPECT_EQ(Looked(*session.GetToolbars()->bar(u"text"_s)).Named(u"ViewGrid"_s), grid);
    EXPECT_FALSE(QFile::exists(folder.filePath(u"toolbars.cbor"_s)));
}

TEST(ToolbarsKept, HidingOneByRightClickIsKeptAtOnce)
{
    const QTemporaryDir folder;
    {
        Gallery::Session session(RealMenu(), {folder.path(), u"en"_s});
        session.GetToolbars()->Setup()->setShown(
            Looked(*session.GetToolbars()->bar(u"main"_s)).Named(u"EditCut"_s), false);
    }

    Gallery::Session session(RealMenu(), {folder.path(), u"en"_s});

    EXPECT_FALSE(Looked(*session.GetToolbars()->bar(u"main"_s)).Named(u"EditCut"_s)->IsShown());
}

TEST(ToolbarsKept, BothNoticesAreTold)
{
    const QTemporaryDir folder;
    for (const QString& name : {u"menus.cbor"_s, u"toolbars.cbor"_s}) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("broken");
    }

    Gallery::Session session(RealMenu(), {folder.path(), u"en"_s});

    EXPECT_EQ(session.Notice().split(u'\n').size(), 2);
    session.clearNotice();
    EXPECT_EQ(session.Notice(), QString());
}
