#include "qml/CVqQtAbstractListModel.h"
#include "tests/qml/LetterRows.h"
#include "tests/qml/ModelSignals.h"

#include <gmock/gmock.h>

#include <limits>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr int g_most = std::numeric_limits<int>::max();
constexpr int g_least = std::numeric_limits<int>::min();

struct Range
{
    const char* name;
    int row;
    int count;
};

std::string name_of(const testing::TestParamInfo<Range>& info)
{
    return info.param.name;
}

class RefusedInsertion : public testing::TestWithParam<Range>
{ };
class RefusedRemoval : public testing::TestWithParam<Range>
{ };

}

TEST(CVqQtAbstractListModelRows, InsertsEmptyRows)
{
    LetterRows model(u"abc"_s);

    EXPECT_TRUE(model.insertRows(1, 2));

    EXPECT_EQ(model.Letters(), "a--bc");
    EXPECT_FALSE(model.rows[1].isValid());
}

TEST(CVqQtAbstractListModelRows, AnnouncesAnInsertion)
{
    LetterRows model(u"abc"_s);
    const ModelSignals log(model);

    model.insertRows(1, 2);

    EXPECT_THAT(log.Lines(), ElementsAre("about to insert 1-2", "inserted 1-2"));
}

TEST(CVqQtAbstractListModelRows, InsertsBeforeTheLastRow)
{
    LetterRows model(u"abc"_s);

    EXPECT_TRUE(model.insertRows(2, 1));

    EXPECT_EQ(model.Letters(), "ab-c");
}

TEST(CVqQtAbstractListModelRows, InsertsNothingIntoAnEmptyModel)
{
    NamedRows model;
    const ModelSignals log(model);

    EXPECT_FALSE(model.insertRows(0, 1));

    EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST_P(RefusedInsertion, ChangesAndAnnouncesNothing)
{
    LetterRows model(u"abc"_s);
    const ModelSignals log(model);

    EXPECT_FALSE(model.insertRows(GetParam().row, GetParam().count));

    EXPECT_EQ(model.Letters(), "abc");
    EXPECT_THAT(log.Lines(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(CVqQtAbstractListModelRows, RefusedInsertion,
                         testing::Values(Range{"BehindTheLastRow", 3, 1}, Range{"FarBehind", g_most, 1},
                                         Range{"BeforeTheFirstRow", -1, 1}, Range{"FarBefore", g_least, 1},
                                         Range{"NoRows", 0, 0}, Range{"FewerThanNoRows", 0, -1},
                                         Range{"SumBeyond32Bits", 1, g_most},
                                         Range{"MoreThan32BitsCountWithThePresentOnes", 0, g_most - 2},
                                         Range{"AllBeyond32Bits", g_most, g_most}),
                         name_of);

TEST(CVqQtAbstractListModelRows, AnInsertionUnderARowIsAnnouncedThereAndDoneAtTheTop)
{
    LetterRows model(u"abc"_s);
    const ModelSignals log(model);

    EXPECT_TRUE(model.insertRows(0, 1, model.index(2)));

    EXPECT_EQ(model.Letters(), "-abc");
    EXPECT_THAT(log.Lines(), ElementsAre("about to insert 0 under 2", "inserted 0 under 2"));
}

TEST(CVqQtAbstractListModelRows, RemovesRows)
{
    LetterRows model(u"abcdef"_s);

    EXPECT_TRUE(model.removeRows(1, 2));

    EXPECT_EQ(model.Letters(), "adef");
}

TEST(CVqQtAbstractListModelRows, AnnouncesARemoval)
{
    LetterRows model(u"abcdef"_s);
    const ModelSignals log(model);

    model.removeRows(1, 2);

    EXPECT_THAT(log.Lines(), ElementsAre("about to remove 1-2", "removed 1-2"));
}

TEST(CVqQtAbstractListModelRows, RemovesTheFirstOfThree)
{
    LetterRows model(u"abc"_s);

    EXPECT_TRUE(model.removeRows(0, 1));

    EXPECT_EQ(model.Letters(), "bc");
}

TEST(CVqQtAbstractListModelRows, RemovesUpToTheTwoLast)
{
    LetterRows model(u"abcde"_s);

    EXPECT_TRUE(model.removeRows(0, 3));

    EXPECT_EQ(model.Letters(), "de");
}

TEST(CVqQtAbstractListModelRows, RemovesNothingFromAnEmptyModel)
{
    NamedRows model;

    EXPECT_FALSE(model.removeRows(0, 1));
}

TEST(CVqQtAbstractListModelRows, ARemovalUnderARowIsAnnouncedThereAndDoneAtTheTop)
{
    LetterRows model(u"abcd"_s);
    const ModelSignals log(model);

    EXPECT_TRUE(model.removeRows(0, 1, model.index(2)));

    EXPECT_EQ(model.Letters(), "bcd");
    EXPECT_THAT(log.Lines(), ElementsAre("about to remove 0 under 2", "removed 0 under 2"));
}

TEST_P(RefusedRemoval, ChangesAndAnnouncesNothing)
{
    LetterRows model(u"abcde"_s);
    const ModelSignals log(model);

    EXPECT_FALSE(model.removeRows(GetParam().row, GetParam().count));

    EXPECT_EQ(model.Letters(), "abcde");
    EXPECT_THAT(log.Lines(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(CVqQtAbstractListModelRows, RefusedRemoval,
                         testing::Values(Range{"TheLastRow", 4, 1}, Range{"TheRowBeforeTheLast", 3, 1},
                                         Range{"ToTheLastRow", 0, 5}, Range{"ToTheRowBeforeTheLast", 0, 4},
                                         Range{"BehindTheLastRow", 5, 1}, Range{"BeforeTheFirstRow", -1, 1},
                                         Range{"FarBefore", g_least, 1}, Range{"NoRows", 0, 0},
                                         Range{"FewerThanNoRows", 0, -1}, Range{"LeastCount", 0, g_least},
                                         Range{"SumBeyond32Bits", 1, g_most},
                                         Range{"SumAtTheEndOf32Bits", 1, g_most - 1},
                                         Range{"AllBeyond32Bits", g_most, g_most}),
                         name_of);

TEST(CVqQtAbstractListModelRows, ASlotThatEmptiesTheModelBeforeAnInsertionDoesNoHarm)
{
    LetterRows model(u"abcd"_s);
    QObject::connect(&model, &QAbstractItemModel::rowsAboutToBeInserted, &model,
                     [&model] { model.rows.clear(); });

    EXPECT_TRUE(model.insertRows(3, 2));

    EXPECT_EQ(model.Letters(), "--");
}

TEST(CVqQtAbstractListModelRows, ASlotThatEmptiesTheModelBeforeARemovalDoesNoHarm)
{
    LetterRows model(u"abcd"_s);
    QObject::connect(&model, &QAbstractItemModel::rowsAboutToBeRemoved, &model,
                     [&model] { model.rows.clear(); });

    EXPECT_TRUE(model.removeRows(1, 1));

    EXPECT_EQ(model.Letters(), "");
}
