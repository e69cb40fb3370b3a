#include "gallery/keys/KeyListModel.h"

#include "gallery/keys/MenuKeys.h"
#include "tests/gallery/RealMenu.h"
#include "tests/gallery/keys/KeyMenu.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using Gallery::KeyListModel;

namespace {

class KeyListModelTest : public testing::Test
{
protected:
    QVariant At(int row, KeyListModel::Role role) { return m_model.data(m_model.index(row), role); }

    QStringList Labels()
    {
        QStringList labels;
        for (int row = 0; row < m_model.Count(); ++row)
            labels << At(row, KeyListModel::LabelRole).toString();
        return labels;
    }

    const Gallery::MenuDocument m_document = KeyDocument();
    KeyMenu m_menu{m_document};
    KeyListModel m_model{m_menu.Menu(), m_document};
};

}

TEST_F(KeyListModelTest, HasARowForEachCommand)
{
    EXPECT_EQ(Labels(), (QStringList{u"Save"_s, u"Print..."_s, u"#ff0000"_s, u"Pan Left"_s}));
    EXPECT_EQ(At(0, KeyListModel::CommandRole), u"Save"_s);
    EXPECT_EQ(At(0, KeyListModel::PlaceRole), u"File"_s);
    EXPECT_EQ(At(0, KeyListModel::KeysRole), (QStringList{u"Ctrl+S"_s, u"F12"_s, u"Shift+F12"_s}));
    EXPECT_EQ(At(0, KeyListModel::OwnRole), false);
}

TEST_F(KeyListModelTest, ARowOutsideHasNothing)
{
    EXPECT_FALSE(m_model.data(m_model.index(4), KeyListModel::LabelRole).isValid());
    EXPECT_EQ(m_model.commandAt(4), QString());
    EXPECT_EQ(m_model.commandAt(-1), QString());
}

struct FilterRow
{
    const char* name;
    QString filter;
    QStringList labels;
};

class KeyListFilter : public KeyListModelTest, public testing::WithParamInterface<FilterRow>
{ };

TEST_P(KeyListFilter, KeepsWhatHasEveryWord)
{
    m_model.SetFilter(GetParam().filter);

    EXPECT_EQ(Labels(), GetParam().labels);
    EXPECT_EQ(m_model.Filter(), GetParam().filter);
}

INSTANTIATE_TEST_SUITE_P(KeyListModelTest, KeyListFilter,
                         testing::Values(FilterRow{"Label", u"print"_s, {u"Print..."_s}},
                                         FilterRow{
                                             "Place", u"FILE"_s, {u"Save"_s, u"Print..."_s, u"#ff0000"_s}},
                                         FilterRow{"Key", u"ctrl+p"_s, {u"Print..."_s}},
                                         FilterRow{"Command", u"red"_s, {u"#ff0000"_s}},
                                         FilterRow{"TwoWordsOfTwoPlaces", u" f12   file "_s, {u"Save"_s}},
                                         FilterRow{"Nothing", u"wobble"_s, {}}),
                         [](const auto& row) { return row.param.name; });

TEST_F(KeyListModelTest, TheRowsComeBackInTheirOrder)
{
    m_model.SetFilter(u"pan"_s);

    m_model.SetFilter(QString());

    EXPECT_EQ(Labels(), (QStringList{u"Save"_s, u"Print..."_s, u"#ff0000"_s, u"Pan Left"_s}));
}

TEST_F(KeyListModelTest, RowsComeAndGoAsAModelShouldTell)
{
    const QAbstractItemModelTester tester(&m_model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    QSignalSpy told(&m_model, &KeyListModel::FilterChanged);

    for (const QString& filter : {u"pan"_s, u"p"_s, u"wobble"_s, u""_s, u""_s})
        m_model.SetFilter(filter);

    EXPECT_EQ(told.size(), 4);
    EXPECT_EQ(m_model.Count(), 4);
}

TEST_F(KeyListModelTest, RowsAndCommandsAreFoundByEachOther)
{
    EXPECT_EQ(m_model.rowOf(u"Print"_s), 1);
    EXPECT_EQ(m_model.commandAt(1), u"Print"_s);
    m_model.SetFilter(u"print"_s);
    EXPECT_EQ(m_model.rowOf(u"Print"_s), 0);
    EXPECT_EQ(m_model.rowOf(u"Save"_s), -1);
}

TEST_F(KeyListModelTest, ACommandIsFoundByEachOfItsIdentifiers)
{
    for (const vq_uint32 id : {2u, 11u, 91u})
        EXPECT_EQ(m_model.Find(id)->command, u"Save"_s);
    EXPECT_EQ(m_model.Find(5u), nullptr);
    EXPECT_EQ(m_model.Find(u"Wobble"_s), nullptr);
}

TEST_F(KeyListModelTest, RefreshReadsTheKeysAgain)
{
    QSignalSpy changed(&m_model, &KeyListModel::dataChanged);
    Gallery::MenuKeys(m_menu.Menu()).Set(3, {KeyOf::CtrlK});

    m_model.Refresh();

    EXPECT_EQ(At(1, KeyListModel::KeysRole), QStringList{u"Ctrl+K"_s});
    EXPECT_EQ(At(1, KeyListModel::OwnRole), true);
    EXPECT_EQ(m_model.OwnCount(), 1);
    EXPECT_EQ(changed.size(), 1);
}

TEST_F(KeyListModelTest, RowsStayWhenTheirKeyNoLongerMatches)
{
    m_model.SetFilter(u"ctrl+p"_s);
    Gallery::MenuKeys(m_menu.Menu()).Set(3, {KeyOf::CtrlK});

    m_model.Refresh();

    EXPECT_EQ(Labels(), QStringList{u"Print..."_s});
}
