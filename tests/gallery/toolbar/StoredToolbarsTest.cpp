#include "gallery/toolbar/StoredToolbars.h"

#include "system/CVqLiteVariantR.h"
#include "system/VqVariantStorage.h"
#include "tests/gallery/toolbar/ToolbarSet.h"

#include <QBuffer>

using namespace Qt::StringLiterals;
using Gallery::LoadRecord;
using Gallery::SaveRecord;
using Gallery::StoredToolbar;
using Gallery::ToolbarsFromTree;
using Gallery::ToTree;

namespace {

class StoredToolbarsTest : public testing::Test
{
protected:
    void Fill(int buttons)
    {
        for (int i = 0; i < buttons; ++i)
            m_bar.AddButton(u"Button%1"_s.arg(i).toStdU16String().c_str());
    }

    QStringList LoadedNames(const CVqVariant& record)
    {
        CVqQuickButtonToolbar loaded(VQ_TEXT("loaded"));
        EXPECT_TRUE(LoadRecord(loaded, record));
        return Looked(loaded).Names();
    }

    CVqQuickButtonToolbar m_bar{VQ_TEXT("bar")};
};

/// The lightweight form of a toolbar, as a tree.
CVqVariant light_record(CVqQuickButtonToolbar& bar)
{
    CVqLiteVariantR stream;
    bar.Save(stream);
    QBuffer bytes;
    bytes.open(QIODevice::ReadWrite);
    VQ_WriteCbor(bytes, stream);
    bytes.seek(0);
    CVqVariant record;
    EXPECT_EQ(VQ_ReadCbor(bytes, record), EVqStorageResult::Ok);
    return record;
}

}

TEST_F(StoredToolbarsTest, ATreeFormComesBack)
{
    Fill(2);
    m_bar.AppendSeparator(nullptr);
    Fill(1);

    EXPECT_EQ(LoadedNames(SaveRecord(m_bar)),
              (QStringList{u"Button0"_s, u"Button1"_s, u"|"_s, u"Button0"_s}));
}

TEST_F(StoredToolbarsTest, ALightweightFormComesBack)
{
    Fill(2);
    m_bar.AppendSeparator(nullptr);

    EXPECT_EQ(LoadedNames(light_record(m_bar)), (QStringList{u"Button0"_s, u"Button1"_s, u"|"_s}));
}

TEST_F(StoredToolbarsTest, AHundredControlsAreATree)
{
    Fill(100);

    const CVqVariant record = SaveRecord(m_bar);

    EXPECT_EQ(record.GetCount(), 101); // with the name
    EXPECT_EQ(LoadedNames(record), Looked(m_bar).Names());
}

TEST_F(StoredToolbarsTest, MoreThanAHundredControlsComeBackToo)
{
    Fill(101);

    const CVqVariant record = SaveRecord(m_bar);

    EXPECT_EQ(record.GetCount(), 1);
    EXPECT_EQ(LoadedNames(record), Looked(m_bar).Names());
}

TEST_F(StoredToolbarsTest, AnEmptyToolbarHasARecord)
{
    const CVqVariant record = SaveRecord(m_bar);

    EXPECT_GT(record.GetCount(), 0);
    EXPECT_EQ(LoadedNames(record), QStringList());
}

TEST_F(StoredToolbarsTest, ATreeWithMoreThanAHundredControlsIsRefused)
{
    Fill(101);
    CVqVariant record;
    m_bar.Save(record, VQ_TEXT("bar"));
    CVqQuickButtonToolbar loaded(VQ_TEXT("loaded"));
    loaded.AddButton(VQ_TEXT("Old"));

    EXPECT_FALSE(LoadRecord(loaded, record));

    EXPECT_EQ(Looked(loaded).Names(), QStringList{u"Old"_s});
}

TEST_F(StoredToolbarsTest, ARecordWithOtherChildrenIsRefused)
{
    CVqVariant record;
    record.Append(CVqVariant(VQ_TEXT("x"), VQ_TEXT("Button")));

    EXPECT_FALSE(LoadRecord(m_bar, record));
    EXPECT_FALSE(LoadRecord(m_bar, CVqVariant()));
}

TEST_F(StoredToolbarsTest, AButtonThatLacksItsTextsIsTold)
{
    Fill(1);
    CVqVariant record = SaveRecord(m_bar);
    CVqVariant empty;
    empty.SetName(VQ_TEXT("a01Other"));
    record.Append(empty);

    EXPECT_FALSE(LoadRecord(m_bar, record));
}

TEST_F(StoredToolbarsTest, ToolbarsComeBackFromTheirTree)
{
    Fill(1);
    const QList<StoredToolbar> bars{{u"first"_s, SaveRecord(m_bar), {u"A"_s, u"B@C"_s}},
                                    {u"second"_s, {}, {}}};

    const auto read = ToolbarsFromTree(ToTree(bars));

    ASSERT_TRUE(read);
    ASSERT_EQ(read->size(), 2);
    EXPECT_EQ(read->at(0).name, u"first"_s);
    EXPECT_EQ(read->at(0).hidden, (QStringList{u"A"_s, u"B@C"_s}));
    EXPECT_EQ(LoadedNames(read->at(0).record), QStringList{u"Button0"_s});
    EXPECT_EQ(read->at(1).name, u"second"_s);
    EXPECT_EQ(read->at(1).record.GetCount(), 0);
    EXPECT_TRUE(read->at(1).hidden.isEmpty());
}

TEST_F(StoredToolbarsTest, AnotherFormatIsNone)
{
    CVqVariant tree;
    tree.Append(CVqVariant(2u, VQ_TEXT("Format")));

    EXPECT_FALSE(ToolbarsFromTree(tree));
    EXPECT_FALSE(ToolbarsFromTree(CVqVariant()));
}
