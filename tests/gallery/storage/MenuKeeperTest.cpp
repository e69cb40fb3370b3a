#include "gallery/storage/MenuKeeper.h"

#include "gallery/Translations.h"
#include "tests/gallery/RealMenu.h"
#include "tests/gallery/storage/MenuKeeperFixture.h"

using namespace Qt::StringLiterals;
using Gallery::MenuDocument;

namespace {

class MenuKeeperTest : public MenuKeeperFixture
{ };

/// The menu of KeyDocument() in a later version: Print has another identifier, Ctrl+K is Find's.
MenuDocument newer_document()
{
    Gallery::MenuFile file;
    EXPECT_TRUE(file.Parse(R"({ "format": 1, "menu": [ { "type": "popup", "id": 1, "text": "&File", "items": [
        { "id": 2, "text": "&Save", "command": "Save", "key": "Ctrl+S" },
        { "id": 33, "text": "&Print", "command": "Print", "key": "Ctrl+P" },
        { "id": 34, "text": "&Find", "command": "Find", "key": "Ctrl+K" } ] } ] })",
                           u"m.json"_s));
    return file.Document();
}

}

TEST_F(MenuKeeperTest, TheFirstRunHasTheFactoryMenuAndStoresIt)
{
    ProgramRun run(RealMenu(), Home());

    EXPECT_EQ(run.Rows().size(), shown_rows(ProgramRun(RealMenu(), {}).m_menu.Rows()).size());
    EXPECT_EQ(Names(), QStringList{u"menus.cbor"_s});
    EXPECT_EQ(run.m_keeper.Notice(), QString());
}

TEST_F(MenuKeeperTest, WithoutAFolderNothingIsStored)
{
    ProgramRun run(RealMenu(), {});

    run.m_keeper.Store();

    EXPECT_EQ(run.m_keeper.Notice(), QString());
    EXPECT_EQ(Names(), QStringList());
}

TEST_F(MenuKeeperTest, TheNextRunShowsTheSame)
{
    const QStringList first = ProgramRun(RealMenu(), Home()).Rows();

    ProgramRun second(RealMenu(), Home());

    EXPECT_EQ(second.Rows(), first);
    EXPECT_EQ(second.m_keeper.Notice(), QString());
}

TEST_F(MenuKeeperTest, ItIsTheStoredMenuThatShows)
{
    {
        ProgramRun first(KeyDocument(), Home());
        first.m_menu.SetIdMenuString(3, VQ_TEXT("As it was stored"));
        first.m_keeper.Store();
    }

    EXPECT_EQ(ProgramRun(KeyDocument(), Home()).Text(3), u"As it was stored\aCtrl+P"_s);
}

TEST_F(MenuKeeperTest, ImagesComeBackByModuleAndName)
{
    ProgramRun(RealMenu(), Home());

    ProgramRun second(RealMenu(), Home());

    vq_int32 index = -1;
    CVqStringW file;
    CVqStringW resource;
    second.m_menu.GetIdBitmap(1105, index);
    ASSERT_EQ(CVqAbstractBitmapPool::GetImageSource(static_cast<vq_uint32>(index), file, resource), 0);
    EXPECT_EQ(file.ToQString(), u"k7_tile_assets.dll"_s);
    EXPECT_EQ(resource.ToQString(), u"COPY"_s);
}

TEST_F(MenuKeeperTest, OwnKeysAreThereAgain)
{
    {
        ProgramRun first(KeyDocument(), Home());
        Gallery::MenuKeys(first.m_menu).Set(3, {KeyOf::CtrlK});
        first.m_keeper.Store();
    }

    ProgramRun second(KeyDocument(), Home());

    EXPECT_EQ(second.Fires(KeyOf::CtrlK), 3u);
    EXPECT_EQ(second.Fires(KeyOf::CtrlP), 0u);
    EXPECT_EQ(second.Text(3), u"&Print...\aCtrl+K"_s);
}

TEST_F(MenuKeeperTest, AKeyWithoutAnEntryThatWasTakenAwayStaysAway)
{
    {
        ProgramRun first(KeyDocument(), Home());
        Gallery::MenuKeys(first.m_menu).Set(90, {});
        first.m_keeper.Store();
    }

    ProgramRun second(KeyDocument(), Home());

    EXPECT_EQ(second.Fires(KeyOf::Left), 0u);
    EXPECT_EQ(second.m_keeper.Notice(), QString());
}

TEST_F(MenuKeeperTest, MarksAndEnabledStatesBeginAnew)
{
    const QStringList factory = ProgramRun(RealMenu(), {}).Rows();
    {
        ProgramRun first(RealMenu(), Home());
        first.m_menu.EnableId(1101, true);
        first.m_menu.EnableId(1105, false);
        first.m_menu.CheckId(1305, false);
        first.m_menu.CheckRadioId(1702, 1701, 1723);
        first.m_keeper.Store();
    }

    EXPECT_EQ(ProgramRun(RealMenu(), Home()).Rows(), factory);
}

TEST_F(MenuKeeperTest, TheEntriesWithAMarkAreThoseOfTheDocument)
{
    const ProgramRun first(RealMenu(), Home());

    const ProgramRun second(RealMenu(), Home());

    ASSERT_EQ(second.m_roles.size(), first.m_roles.size());
    EXPECT_TRUE(second.m_roles.value(1305).toggle);
    EXPECT_EQ(second.m_roles.value(1702).radio_last, 1723u);
}

TEST_F(MenuKeeperTest, AnotherLanguageGetsItsLabels)
{
    ProgramRun(RealMenu(), Home());
    const Gallery::Translations german(u"de"_s);

    ProgramRun second(RealMenu(), Home(u"de"_s));

    const QStringList rows = ProgramRun(RealMenu(), {}).Rows();
    const QStringList relabelled = second.Rows();
    EXPECT_EQ(relabelled.size(), rows.size());
    for (qsizetype i = 0; i < rows.size(); ++i)
        EXPECT_EQ(relabelled.value(i).toStdString(), rows[i].toStdString());
}

TEST_F(MenuKeeperTest, AnotherLanguageKeepsOwnKeys)
{
    {
        ProgramRun first(RealMenu(), Home());
        Gallery::MenuKeys(first.m_menu).Set(1105, {KeyOf::CtrlK});
        first.m_keeper.Store();
    }
    const Gallery::Translations german(u"de"_s);

    ProgramRun second(RealMenu(), Home(u"de"_s));

    EXPECT_EQ(second.Fires(KeyOf::CtrlK), 1105u);
    EXPECT_TRUE(second.Text(1105).endsWith(u"\aStrg+K"_s)) << second.Text(1105).toStdString();
}

TEST_F(MenuKeeperTest, ANewerFactoryMenuShowsWithOwnKeys)
{
    {
        ProgramRun first(KeyDocument(), Home());
        Gallery::MenuKeys keys(first.m_menu);
        keys.Set(3, {KeyOf::CtrlK});
        keys.Set(2, {KeyOf::F12});
        first.m_keeper.Store();
    }

    ProgramRun second(newer_document(), Home());

    EXPECT_EQ(second.Text(33), u"&Print\aCtrl+K"_s);
    EXPECT_EQ(second.Text(2), u"&Save\aF12"_s);
    EXPECT_EQ(second.Text(34), u"&Find"_s);
    EXPECT_EQ(second.m_keeper.Notice(), QString());
}

TEST_F(MenuKeeperTest, ANewerFactoryMenuIsStoredAtOnce)
{
    ProgramRun(KeyDocument(), Home());
    ProgramRun(newer_document(), Home());
    const QByteArray stored = Stored();

    ProgramRun(newer_document(), Home());

    EXPECT_EQ(Stored(), stored);
}
