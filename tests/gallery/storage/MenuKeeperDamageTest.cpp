#include "tests/gallery/storage/MenuKeeperFixture.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using Gallery::MenuHome;
using Gallery::MenuKeeper;

namespace {

class MenuKeeperDamage : public MenuKeeperFixture
{ };

}

TEST_F(MenuKeeperDamage, ADamagedFileIsSetAsideAndTold)
{
    Put("broken");

    ProgramRun run(KeyDocument(), Home());

    EXPECT_EQ(
        run.m_keeper.Notice(),
        u"The stored menus cannot be read, so they were set aside as menus-damaged-1.cbor and the factory menus loaded."_s);
    EXPECT_EQ(run.Fires(KeyOf::CtrlS), 2u);
    EXPECT_EQ(Names(), (QStringList{u"menus-damaged-1.cbor"_s, u"menus.cbor"_s}));
}

TEST_F(MenuKeeperDamage, AMenuThatLacksEntriesIsDamaged)
{
    {
        ProgramRun first(KeyDocument(), Home());
        first.m_menu.DeleteId(3);
        first.m_keeper.Store();
    }

    ProgramRun second(KeyDocument(), Home());

    EXPECT_NE(second.m_keeper.Notice(), QString());
    EXPECT_EQ(second.Rows(), ProgramRun(KeyDocument(), {}).Rows());
    EXPECT_EQ(second.Fires(KeyOf::CtrlP), 3u);
}

TEST_F(MenuKeeperDamage, AMenuWithAnotherCommandIsDamaged)
{
    {
        ProgramRun first(KeyDocument(), Home());
        first.m_menu.SetIdCommand(3, VQ_TEXT("Other"));
        first.m_keeper.Store();
    }

    EXPECT_NE(ProgramRun(KeyDocument(), Home()).m_keeper.Notice(), QString());
}

TEST_F(MenuKeeperDamage, AMenuThatLacksAnEntryOfAContextMenuIsDamaged)
{
    {
        ProgramRun first(KeyDocument(), Home());
        first.m_menu.DeleteId(11);
        first.m_keeper.Store();
    }

    EXPECT_NE(ProgramRun(KeyDocument(), Home()).m_keeper.Notice(), QString());
}

TEST_F(MenuKeeperDamage, AMenuWithAnEntryOfAnotherKindIsDamaged)
{
    {
        ProgramRun first(KeyDocument(), Home());
        first.m_menu.DeleteId(3);
        first.m_menu.AppendOneColor(3, 1, 0, VQ_TEXT("Print"));
        first.m_keeper.Store();
    }

    EXPECT_NE(ProgramRun(KeyDocument(), Home()).m_keeper.Notice(), QString());
}

TEST_F(MenuKeeperDamage, AChangedByteAnywhereLeavesEveryCommandInItsPlace)
{
    ProgramRun(KeyDocument(), Home());
    const QByteArray stored = Stored();
    MenuHome home = Home();
    home.is_written = false;
    for (qsizetype i = 0; i < stored.size(); ++i)
        for (const char bit : {'\x01', '\x20'}) {
            SCOPED_TRACE("byte " + std::to_string(i) + ", bit " + std::to_string(bit));
            QByteArray changed = stored;
            changed[i] = static_cast<char>(changed[i] ^ bit);
            Put(changed);

            ProgramRun run(KeyDocument(), home);

            EXPECT_EQ(run.Command(2), u"Save"_s);
            EXPECT_EQ(run.Command(3), u"Print"_s);
            EXPECT_EQ(run.Command(4), u"Red"_s);
            EXPECT_EQ(run.Command(11), u"Save"_s);
        }
}

TEST_F(MenuKeeperDamage, AFileThatCannotBeSetAsideIsNotWrittenOver)
{
    Put("broken");
    for (int i = 1; i <= 1000; ++i) {
        QFile file(m_folder.filePath(u"menus-damaged-%1.cbor"_s.arg(i)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }

    ProgramRun run(KeyDocument(), Home());
    run.m_keeper.Store();

    EXPECT_EQ(
        run.m_keeper.Notice(),
        u"The stored menus in %1 cannot be read, so the factory menus were loaded and nothing is stored."_s
            .arg(QDir::toNativeSeparators(m_folder.path())));
    EXPECT_EQ(Stored(), "broken");
}

TEST_F(MenuKeeperDamage, AFolderThatIsOnlyReadStaysAsItIs)
{
    Put("broken");
    MenuHome home = Home();
    home.is_written = false;

    ProgramRun run(KeyDocument(), home);
    run.m_keeper.Store();

    EXPECT_EQ(
        run.m_keeper.Notice(),
        u"The stored menus in %1 cannot be read, so the factory menus were loaded and nothing is stored."_s
            .arg(QDir::toNativeSeparators(m_folder.path())));
    EXPECT_EQ(Names(), QStringList{u"menus.cbor"_s});
    EXPECT_EQ(Stored(), "broken");
}

TEST_F(MenuKeeperDamage, AFolderThatCannotBeWrittenIsToldAndLosesNothing)
{
    Put("a file where the folder should be");
    const QString folder = m_folder.filePath(u"menus.cbor"_s);
    ProgramRun run(KeyDocument(), {folder, u"en"_s});
    run.m_keeper.ClearNotice();
    Gallery::MenuKeys(run.m_menu).Set(3, {KeyOf::CtrlK});
    QSignalSpy told(&run.m_keeper, &MenuKeeper::NoticeChanged);

    run.m_keeper.Store();

    EXPECT_EQ(
        run.m_keeper.Notice(),
        u"The menus cannot be stored in %1 (the folder cannot be made), so keys that you change last until the program ends."_s
            .arg(QDir::toNativeSeparators(folder)));
    EXPECT_EQ(told.size(), 1);
    EXPECT_EQ(run.Fires(KeyOf::CtrlK), 3u);
    EXPECT_EQ(run.Fires(KeyOf::CtrlS), 2u);
}
