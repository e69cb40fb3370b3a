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

struct Move
{
    const char* name;
    int from;
    int to;
};

std::string name_of(const testing::TestParamInfo<Move>& info)
{
    return info.param.name;
}

class RefusedMove : public testing::TestWithParam<Move>
{ };

}

TEST(CVqQtAbstractListModelMoves, MovesARowDown)
{
    LetterRows model(u"abcde"_s);
    const ModelSignals log(model);

    EXPECT_TRUE(model.moveRow(1, 3));

    EXPECT_EQ(model.Letters(), "acdbe");
    EXPECT_THAT(log.Lines(), ElementsAre("about to move 1 to 4", "moved 1 to 4"));
}

TEST(CVqQtAbstractListModelMoves, MovesARowUp)
{
    LetterRows model(u"abcde"_s);
    const ModelSignals log(model);

    EXPECT_TRUE(model.moveRow(3, 1));

    EXPECT_EQ(model.Letters(), "adbce");
    EXPECT_THAT(log.Lines(), ElementsAre("about to move 3 to 1", "moved 3 to 1"));
}

TEST(CVqQtAbstractListModelMoves, MovesTheFirstRowToTheEndAndBack)
{
    LetterRows model(u"abc"_s);

    EXPECT_TRUE(model.moveRow(0, 2));
    EXPECT_EQ(model.Letters(), "bca");
    EXPECT_TRUE(model.moveRow(2, 0));
    EXPECT_EQ(model.Letters(), "abc");
}

TEST(CVqQtAbstractListModelMoves, AMoveToItsOwnPlaceIsDoneWithoutASignal)
{
    LetterRows model(u"abc"_s);
    const ModelSignals log(model);

    EXPECT_TRUE(model.moveRow(1, 1));

    EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST(CVqQtAbstractListModelMoves, AMoveToItsOwnPlaceIsDoneEvenWhereThereIsNoSuchRow)
{
    NamedRows model;
    const ModelSignals log(model);

    EXPECT_TRUE(model.moveRow(1, 1));
    EXPECT_TRUE(model.moveRow(-7, -7));
    EXPECT_TRUE(model.moveRow(QModelIndex(), g_most, QModelIndex(), g_most));

    EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST_P(RefusedMove, ChangesAndAnnouncesNothing)
{
    LetterRows model(u"abc"_s);
    const ModelSignals log(model);

    EXPECT_FALSE(model.moveRow(GetParam().from, GetParam().to));

    EXPECT_EQ(model.Letters(), "abc");
    EXPECT_THAT(log.Lines(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(CVqQtAbstractListModelMoves, RefusedMove,
                         testing::Values(Move{"FromBehindTheLastRow", 3, 0}, Move{"ToBehindTheLastRow", 0, 3},
                                         Move{"FromBeforeTheFirstRow", -1, 0},
                                         Move{"ToBeforeTheFirstRow", 0, -1},
                                         Move{"AcrossAllNumbers", g_most, g_least}),
                         name_of);

TEST(CVqQtAbstractListModelMoves, TheShortMoveGoesThroughTheLongOneWithoutParents)
{
    class Moves : public NamedRows
    {
    public:
        using NamedRows::moveRow;
        bool moveRow(const QModelIndex& from, int source, const QModelIndex& to, int destination) override
        {
            m_last = {from.isValid() || to.isValid() ? 1 : 0, source, destination};
            return false;
        }
        std::vector<int> m_last;
    };
    Moves model;

    EXPECT_FALSE(model.moveRow(4, 4));

    EXPECT_THAT(model.m_last, ElementsAre(0, 4, 4));
}

TEST(CVqQtAbstractListModelMoves, AMoveBetweenParentsIsAnnouncedThereAndDoneAtTheTop)
{
    LetterRows model(u"abcd"_s);
    const ModelSignals log(model);

    EXPECT_TRUE(model.moveRow(QModelIndex(), 0, model.index(3), 2));

    EXPECT_EQ(model.Letters(), "bcad");
    // The row that was the last is one further up by then.
    EXPECT_THAT(log.Lines(), ElementsAre("about to move 0 to 3 under 3", "moved 0 to 3 under 2"));
}

// No view can follow a row into itself, so Qt refuses to begin; there is then nothing to end.
TEST(CVqQtAbstractListModelMoves, AMoveOfARowIntoItselfIsDoneWithoutASignal)
{
    LetterRows model(u"abcd"_s);
    const ModelSignals log(model);

    EXPECT_TRUE(model.moveRow(QModelIndex(), 0, model.index(0), 2));

    EXPECT_EQ(model.Letters(), "bcad");
    EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST(CVqQtAbstractListModelMoves, AChangeAfterARefusedBeginningIsAnnouncedAsEver)
{
    LetterRows model(u"abcd"_s);
    model.moveRow(QModelIndex(), 0, model.index(0), 2);
    const ModelSignals log(model);

    model.moveRow(0, 1);

    EXPECT_THAT(log.Lines(), ElementsAre("about to move 0 to 2", "moved 0 to 2"));
}

TEST(CVqQtAbstractListModelMoves, ASlotThatEmptiesTheModelBeforeAMoveDoesNoHarm)
{
    LetterRows model(u"abcd"_s);
    QObject::connect(&model, &QAbstractItemModel::rowsAboutToBeMoved, &model,
                     [&model] { model.rows.clear(); });

    EXPECT_TRUE(model.moveRow(0, 3));

    EXPECT_EQ(model.Letters(), "");
}
