#include "gallery/toolbar/ToolbarKeeper.h"

#include "AbstractGui/VqHiddenToolbarButtons.h"
#include "gallery/Translations.h"
#include "gallery/storage/StoredTree.h"
#include "system/CVqLiteVariantR.h"
#include "system/VqVariantStorage.h"
#include "tests/gallery/toolbar/ToolbarSet.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using Gallery::MenuHome;
using Gallery::ToolbarKeeper;

namespace {

/// One run of a program that keeps its toolbars.
class BarsRun : public ToolbarSet
{
public:
    explicit BarsRun(const MenuHome& home) : m_keeper({&m_first, &m_second}, m_builder, home)
    {
        m_first.SetMenu(&m_menu);
        m_keeper.Fill();
    }

    QStringList First() { return Looked(m_first).Names(); }
    QStringList Second() { return Looked(m_second).Names(); }
    CVqQuickButtonToolbar& FirstBar() { return m_first; }
    CVqQuickButtonToolbar& SecondBar() { return m_second; }
    CVqQuickControl* Named(const QString& name) { return Looked(m_first).Named(name); }

    void Remove(const QString& name) { m_first.RemoveButton(Looked(m_first).IdOf(name)); }
    bool IsHidden(const QString& name)
    {
        return VQ_IsToolbarButtonSetAsHidden(VQ_TEXT("first"), name.toStdU16String().c_str());
    }

    ToolbarKeeper m_keeper;

private:
    void TestBody() override { }
};

class ToolbarKeeperTest : public testing::Test
{
protected:
    ~ToolbarKeeperTest() override { VQ_SetToolbarButtonAsHidden(VQ_TEXT("first"), nullptr, false, false); }

    MenuHome Home(const QString& language = u"en"_s) const { return {m_folder.path(), language}; }
    QString File() const { return m_folder.filePath(u"toolbars.cbor"_s); }
    QStringList Names() const { return QDir(m_folder.path()).entryList(QDir::Files, QDir::Name); }

    void Put(const QByteArray& bytes) const
    {
        QFile file(File());
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    /// A file with this record of the first toolbar.
    void PutRecord(const CVqVariant& record) const
    {
        EXPECT_EQ(Gallery::WriteStoredTree(File(), Gallery::ToTree({{u"first"_s, record, {}}})), QString());
    }

    QTemporaryDir m_folder;
    const QStringList m_factory{u"FileOpen"_s, u"|"_s, u"zoom"_s, u"ViewZoom(100)"_s, u"ViewGrid"_s};
};

QString damaged_sentence()
{
    return u"The stored toolbars cannot be read, so they were set aside as toolbars-damaged-1.cbor and the factory toolbars loaded."_s;
}

void hide(const QString& name)
{
    VQ_SetToolbarButtonAsHidden(VQ_TEXT("first"), name.toStdU16String().c_str(), true, false);
}

}

TEST_F(ToolbarKeeperTest, TheFirstRunHasTheFactoryToolbarsAndWritesNothing)
{
    BarsRun run(Home());

    EXPECT_EQ(run.First(), m_factory);
    EXPECT_EQ(Names(), QStringList());
    EXPECT_EQ(run.m_keeper.Notice(), QString());
}

TEST_F(ToolbarKeeperTest, WithoutAFolderNothingIsStored)
{
    BarsRun run({});

    run.m_keeper.Store();

    EXPECT_EQ(run.First(), m_factory);
    EXPECT_EQ(run.m_keeper.Notice(), QString());
}

TEST_F(ToolbarKeeperTest, TheNextRunHasWhatWasStored)
{
    {
        BarsRun first(Home());
        first.Remove(u"FileOpen"_s);
        first.FirstBar().AppendSeparator(nullptr);
        first.m_keeper.Store();
    }

    BarsRun second(Home());

    EXPECT_EQ(second.First(), (QStringList{u"|"_s, u"zoom"_s, u"ViewZoom(100)"_s, u"ViewGrid"_s, u"|"_s}));
    EXPECT_EQ(second.Named(u"zoom"_s)->GetKind(), CVqQuickControl::General);
    EXPECT_EQ(second.Named(u"ViewZoom(100)"_s)->GetKind(), CVqQuickControl::TextButton);
    EXPECT_EQ(second.Second(), BarsRun({}).Second());
    EXPECT_EQ(second.m_keeper.Notice(), QString());
}

TEST_F(ToolbarKeeperTest, AnEmptyToolbarStaysEmpty)
{
    {
        BarsRun first(Home());
        for (const QString& name : {u"Tool(brush)"_s, u"Tool(crop)"_s})
            first.SecondBar().RemoveButton(Looked(first.SecondBar()).IdOf(name));
        first.m_keeper.Store();
    }

    EXPECT_EQ(BarsRun(Home()).Second(), QStringList());
}

TEST_F(ToolbarKeeperTest, HiddenButtonsAreHiddenAgain)
{
    {
        BarsRun first(Home());
        hide(u"ViewGrid"_s);
        first.m_keeper.Store();
        VQ_SetToolbarButtonAsHidden(VQ_TEXT("first"), nullptr, false, false);
    }

    BarsRun second(Home());

    EXPECT_TRUE(second.IsHidden(u"ViewGrid"_s));
    EXPECT_FALSE(second.IsHidden(u"FileOpen"_s));
    EXPECT_FALSE(second.Named(u"ViewGrid"_s)->IsShown());
    EXPECT_TRUE(second.Named(u"ViewGrid"_s)->GetControlVisibility());
}

TEST_F(ToolbarKeeperTest, WhatTheSystemHidesIsNotKeptAsTheUsers)
{
    {
        BarsRun first(Home());
        VQ_SetToolbarButtonAsHidden(VQ_TEXT("first"), VQ_TEXT("ViewGrid"), true, true);
        hide(u"FileOpen"_s);
        first.m_keeper.Store();
        VQ_SetToolbarButtonAsHidden(VQ_TEXT("first"), VQ_TEXT("ViewGrid"), false, true);
        VQ_SetToolbarButtonAsHidden(VQ_TEXT("first"), nullptr, false, false);
    }

    BarsRun second(Home());

    EXPECT_TRUE(second.IsHidden(u"FileOpen"_s));
    EXPECT_FALSE(second.IsHidden(u"ViewGrid"_s));
}

TEST_F(ToolbarKeeperTest, ARunBeginsWithoutTheHiddenButtonsOfAnother)
{
    hide(u"ViewGrid"_s);

    BarsRun run({});

    EXPECT_FALSE(run.IsHidden(u"ViewGrid"_s));
}

TEST_F(ToolbarKeeperTest, AToolbarAsTheFactoryMadeItFollowsTheFactory)
{
    {
        BarsRun first(Home());
        hide(u"ViewGrid"_s);
        first.m_keeper.Store();
    }
    CVqVariant tree;
    ASSERT_EQ(Gallery::ReadStoredTree(File(), tree), QString());

    const auto stored = Gallery::ToolbarsFromTree(tree);
    ASSERT_TRUE(stored);
    for (const Gallery::StoredToolbar& bar : *stored)
        EXPECT_EQ(bar.record.GetCount(), 0) << bar.name.toStdString();
    EXPECT_EQ(BarsRun(Home()).First(), m_factory);
}

TEST_F(ToolbarKeeperTest, AnItemThatWentToAnotherToolbarIsThereAgain)
{
    {
        BarsRun first(Home());
        first.Remove(u"zoom"_s);
        first.SecondBar().AddButton(VQ_TEXT("zoom"));
        first.m_keeper.Store();
    }

    BarsRun second(Home());

    EXPECT_EQ(second.First(), (QStringList{u"FileOpen"_s, u"|"_s, u"ViewZoom(100)"_s, u"ViewGrid"_s}));
    EXPECT_EQ(second.Second(), (QStringList{u"Tool(brush)"_s, u"Tool(crop)"_s, u"zoom"_s}));
    EXPECT_EQ(Looked(second.SecondBar()).Named(u"zoom"_s)->GetKind(), CVqQuickControl::General);
}

TEST_F(ToolbarKeeperTest, TextsAreInTheLanguageOfTheRun)
{
    {
        BarsRun first(Home());
        first.Remove(u"ViewGrid"_s);
        first.m_keeper.Store();
    }
    const Gallery::Translations german(u"de"_s);

    BarsRun second(Home(u"de"_s));

    EXPECT_EQ(second.First().size(), 4);
    EXPECT_EQ(second.Named(u"FileOpen"_s)->Tooltip(), u"Öffnen"_s);
}

TEST_F(ToolbarKeeperTest, ACommandThatIsGoneLeavesItsToolbar)
{
    {
        BarsRun first(Home());
        const vq_uint64 id = first.FirstBar().AddButton(VQ_TEXT("Wobble"));
        first.FirstBar().SetCommandOnButton(id, 0, VQ_TEXT("Wobble"));
        first.m_keeper.Store();
    }

    EXPECT_EQ(BarsRun(Home()).First(), m_factory);
}

TEST_F(ToolbarKeeperTest, TheLightweightFormIsReadToo)
{
    BarsRun run({});
    run.Remove(u"FileOpen"_s);
    CVqLiteVariantR stream;
    run.FirstBar().Save(stream);
    QBuffer bytes;
    bytes.open(QIODevice::ReadWrite);
    VQ_WriteCbor(bytes, stream);
    bytes.seek(0);
    CVqVariant record;
    VQ_ReadCbor(bytes, record);
    PutRecord(record);

    BarsRun second(Home());

    EXPECT_EQ(second.First(), (QStringList{u"|"_s, u"zoom"_s, u"ViewZoom(100)"_s, u"ViewGrid"_s}));
    EXPECT_EQ(second.Named(u"zoom"_s)->GetKind(), CVqQuickControl::General);
}

TEST_F(ToolbarKeeperTest, MoreThanAHundredControlsComeBack)
{
    QStringList names;
    {
        BarsRun first(Home());
        for (int i = 0; i < 120; ++i) {
            const vq_uint64 id = first.FirstBar().AddButton(u"Copy%1"_s.arg(i).toStdU16String().c_str());
            first.FirstBar().SetCommandOnButton(id, 0, VQ_TEXT("EditCopy"));
        }
        names = first.First();
        first.m_keeper.Store();
    }

    EXPECT_EQ(BarsRun(Home()).First(), names);
}

TEST_F(ToolbarKeeperTest, ADamagedFileIsSetAsideAndTold)
{
    Put("broken");

    BarsRun run(Home());

    EXPECT_EQ(run.m_keeper.Notice(), damaged_sentence());
    EXPECT_EQ(run.First(), m_factory);
    EXPECT_EQ(Names(), QStringList{u"toolbars-damaged-1.cbor"_s});
}

TEST_F(ToolbarKeeperTest, ATreeWithTooManyControlsIsDamaged)
{
    BarsRun run({});
    for (int i = 0; i < 120; ++i)
        run.FirstBar().AppendSeparator(nullptr);
    CVqVariant record;
    run.FirstBar().Save(record, VQ_TEXT("first"));
    PutRecord(record);

    BarsRun second(Home());

    EXPECT_EQ(second.m_keeper.Notice(), damaged_sentence());
    EXPECT_EQ(second.First(), m_factory);
}

TEST_F(ToolbarKeeperTest, ARecordThatLacksTextsIsDamagedAndAllToolbarsAreTheFactorys)
{
    BarsRun run({});
    CVqVariant record = Gallery::SaveRecord(run.FirstBar());
    CVqVariant empty;
    empty.SetName(VQ_TEXT("a05Other"));
    record.Append(empty);
    PutRecord(record);

    BarsRun second(Home());

    EXPECT_EQ(second.m_keeper.Notice(), damaged_sentence());
    EXPECT_EQ(second.First(), m_factory);
    EXPECT_EQ(second.Named(u"zoom"_s)->GetKind(), CVqQuickControl::General);
}

TEST_F(ToolbarKeeperTest, AfterADamageTheNextRunIsCalm)
{
    Put("broken");
    {
        BarsRun first(Home());
        first.Remove(u"ViewGrid"_s);
        first.m_keeper.Store();
    }

    BarsRun second(Home());

    EXPECT_EQ(second.m_keeper.Notice(), QString());
    EXPECT_EQ(second.First().size(), 4);
}

TEST_F(ToolbarKeeperTest, AFolderThatIsOnlyReadStaysAsItIs)
{
    Put("broken");
    MenuHome home = Home();
    home.is_written = false;

    BarsRun run(home);
    run.m_keeper.Store();

    EXPECT_EQ(
        run.m_keeper.Notice(),
        u"The stored toolbars in %1 cannot be read, so the factory toolbars were loaded and nothing is stored."_s
            .arg(QDir::toNativeSeparators(m_folder.path())));
    EXPECT_EQ(Names(), QStringList{u"toolbars.cbor"_s});
}

TEST_F(ToolbarKeeperTest, AFolderThatCannotBeWrittenIsToldAndLosesNothing)
{
    Put("a file where the folder should be");
    BarsRun run({File(), u"en"_s});
    run.m_keeper.ClearNotice();
    run.Remove(u"ViewGrid"_s);
    const QStringList changed = run.First();
    QSignalSpy told(&run.m_keeper, &ToolbarKeeper::NoticeChanged);

    run.m_keeper.Store();

    EXPECT_EQ(
        run.m_keeper.Notice(),
        u"The toolbars cannot be stored in %1 (the folder cannot be made), so changes to them last until the program ends."_s
            .arg(QDir::toNativeSeparators(File())));
    EXPECT_EQ(told.size(), 1);
    EXPECT_EQ(run.First(), changed);
}
