#include "gallery/lists/LayerListModel.h"

#include "tests/qml/ModelSignals.h"

#include <QAbstractItemModelTester>
#include <QJSEngine>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Lines = ModelSignals::Strings;
using Model = Gallery::LayerListModel;

namespace {

class LayerListModel : public testing::Test
{
protected:
    LayerListModel()
    {
        m_model.Update(QVariantList{QVariantMap{{u"name"_s, u"a"_s}, {u"percent"_s, 10}},
                                    QVariantMap{{u"name"_s, u"b"_s}, {u"percent"_s, 20}},
                                    QVariantMap{{u"name"_s, u"c"_s}, {u"percent"_s, 30}}});
    }

    QString Names() const
    {
        QStringList names;
        for (int row = 0; row < m_model.rowCount(); ++row)
            names << At(row, Model::NameRole).toString();
        return names.join(u' ');
    }

    QVariant At(int row, int role) const { return m_model.data(m_model.index(row), role); }
    bool Set(int row, const QVariant& value, int role)
    {
        return m_model.setData(m_model.index(row), value, role);
    }

    Model m_model;
    QAbstractItemModelTester m_tester{&m_model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

}

TEST_F(LayerListModel, TakesAListOfMaps)
{
    EXPECT_EQ(Names(), u"a b c"_s);
    EXPECT_EQ(At(1, Model::PercentRole), 20);
    EXPECT_EQ(At(1, Model::KindRole), QVariant());
}

TEST_F(LayerListModel, TakesAListFromScript)
{
    QJSEngine engine;

    m_model.Update(QVariant::fromValue(engine.evaluate(u"[{name: 'x', percent: 5}, {name: 'y'}]"_s)));

    EXPECT_EQ(Names(), u"x y"_s);
    EXPECT_EQ(At(0, Model::PercentRole).toInt(), 5);
}

TEST_F(LayerListModel, ANewListIsAReset)
{
    const ModelSignals log(m_model);

    m_model.Update(QVariantList());

    EXPECT_EQ(log.Lines(), Lines({"about to reset", "reset"}));
}

TEST_F(LayerListModel, NumbersFollowTheRows)
{
    EXPECT_EQ(At(0, Model::NumberRole), 1);
    EXPECT_EQ(At(2, Model::NumberRole), 3);
    EXPECT_EQ(m_model.data({}, Model::NumberRole), QVariant());
}

TEST_F(LayerListModel, AValueThatIsSetIsStoredBeforeItIsTold)
{
    QVariant seen;
    QObject::connect(&m_model, &Model::dataChanged, &m_model,
                     [this, &seen] { seen = At(1, Model::PercentRole); });
    const ModelSignals log(m_model);

    EXPECT_TRUE(Set(1, 25, Model::PercentRole));

    EXPECT_EQ(seen, 25);
    EXPECT_EQ(At(1, Model::PercentRole), 25);
    EXPECT_EQ(log.Lines(), Lines({"changed 1 role " + std::to_string(Model::PercentRole)}));
}

TEST_F(LayerListModel, TheSameValueIsNotTold)
{
    const ModelSignals log(m_model);

    EXPECT_TRUE(Set(1, u"b"_s, Model::NameRole));

    EXPECT_EQ(log.Lines(), Lines());
}

TEST_F(LayerListModel, NumbersAndUnknownRolesCannotBeSet)
{
    const ModelSignals log(m_model);

    EXPECT_FALSE(Set(1, 7, Model::NumberRole));
    EXPECT_FALSE(Set(1, u"x"_s, Qt::DisplayRole));
    EXPECT_FALSE(Set(1, QVariant(), Model::NameRole));
    EXPECT_FALSE(Set(3, u"x"_s, Model::NameRole));
    EXPECT_FALSE(m_model.change(1, u"colour"_s, u"red"_s));

    EXPECT_EQ(log.Lines(), Lines());
}

TEST_F(LayerListModel, RowsAreInsertedAnywhereAlsoAtTheEnd)
{
    EXPECT_TRUE(m_model.insert(0, {{u"name"_s, u"x"_s}, {u"percent"_s, 1}}));
    EXPECT_TRUE(m_model.insert(4, {{u"name"_s, u"y"_s}}));

    EXPECT_EQ(Names(), u"x a b c y"_s);
    EXPECT_EQ(At(0, Model::PercentRole), 1);
}

TEST_F(LayerListModel, AnEmptyListTakesARow)
{
    m_model.empty();
    ASSERT_EQ(m_model.rowCount(), 0);

    EXPECT_TRUE(m_model.insert(0, {{u"name"_s, u"x"_s}}));

    EXPECT_EQ(Names(), u"x"_s);
}

TEST_F(LayerListModel, RowsBehindAnInsertedOneAreNumberedAnew)
{
    const ModelSignals log(m_model);

    EXPECT_TRUE(m_model.insertRows(1, 2));

    EXPECT_EQ(log.Lines(),
              Lines({"about to insert 1-2", "inserted 1-2",
                     "changed 3-4 role " + std::to_string(Model::NumberRole)}));
}

TEST_F(LayerListModel, PlacesThatAreNoneTakeNoRow)
{
    const ModelSignals log(m_model);

    EXPECT_FALSE(m_model.insert(-1, {}));
    EXPECT_FALSE(m_model.insert(4, {}));
    EXPECT_FALSE(m_model.insertRows(0, 0));
    EXPECT_FALSE(m_model.insertRows(0, 1, m_model.index(0)));

    EXPECT_EQ(log.Lines(), Lines());
}

TEST_F(LayerListModel, EachRowCanBeRemovedAlsoTheLast)
{
    EXPECT_TRUE(m_model.remove(2));
    EXPECT_EQ(Names(), u"a b"_s);
    EXPECT_TRUE(m_model.remove(0));
    EXPECT_TRUE(m_model.remove(0));
    EXPECT_EQ(m_model.rowCount(), 0);
}

TEST_F(LayerListModel, RowsThatAreNotThereAreNotRemoved)
{
    const ModelSignals log(m_model);

    EXPECT_FALSE(m_model.remove(3));
    EXPECT_FALSE(m_model.remove(-1));
    EXPECT_FALSE(m_model.removeRows(1, 3));
    EXPECT_FALSE(m_model.removeRows(0, 0));

    EXPECT_EQ(log.Lines(), Lines());
}

TEST_F(LayerListModel, AMovedRowChangesTheNumbersBetween)
{
    const ModelSignals log(m_model);

    EXPECT_TRUE(m_model.moveRow(0, 1));

    EXPECT_EQ(Names(), u"b a c"_s);
    EXPECT_EQ(log.Lines(),
              Lines({"about to move 0 to 2", "moved 0 to 2",
                     "changed 0-1 role " + std::to_string(Model::NumberRole)}));
}

TEST_F(LayerListModel, AMoveToTheSameOrABadPlaceTellsNothing)
{
    const ModelSignals log(m_model);

    EXPECT_TRUE(m_model.moveRow(1, 1));
    EXPECT_FALSE(m_model.moveRow(1, 3));

    EXPECT_EQ(log.Lines(), Lines());
}

TEST_F(LayerListModel, ChangesAnEntryByTheNameOfItsRole)
{
    EXPECT_TRUE(m_model.change(2, u"name"_s, u"z"_s));

    EXPECT_EQ(Names(), u"a b z"_s);
}
