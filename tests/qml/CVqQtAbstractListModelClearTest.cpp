#include "qml/CVqQtAbstractListModel.h"
#include "tests/qml/LetterRows.h"
#include "tests/qml/ModelSignals.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;

TEST(CVqQtAbstractListModelClear, TakesAllRowsAway)
{
    LetterRows model(u"abc"_s);
    const ModelSignals log(model);

    model.Clear();

    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_THAT(log.Lines(), ElementsAre("about to reset", "reset"));
}

TEST(CVqQtAbstractListModelClear, ResetsAnEmptyModelToo)
{
    NamedRows model;
    const ModelSignals log(model);

    model.Clear();

    EXPECT_THAT(log.Lines(), ElementsAre("about to reset", "reset"));
}

TEST(CVqQtAbstractListModelClear, KeepsTheStorage)
{
    LetterRows model(u"abc"_s);
    const QVariant* storage = model.rows.constData();
    const qsizetype capacity = model.rows.capacity();

    model.Clear();

    EXPECT_EQ(model.rows.constData(), storage);
    EXPECT_EQ(model.rows.capacity(), capacity);
}

TEST(CVqQtAbstractListModelClear, OfSharedRowsLeavesTheOthersAndKeepsTheCapacity)
{
    LetterRows model(u"abc"_s);
    const QList<QVariant> copy = model.rows;

    model.Clear();

    EXPECT_EQ(copy.size(), 3);
    EXPECT_EQ(model.rows.capacity(), copy.capacity());
}
