#include "qml/CVqQtAbstractListModel.h"

#include "tests/qml/ModelSignals.h"
#include "tests/qml/NamedRows.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// A variant with a variant inside, which fromValue() does not make.
QVariant wrapped(const QVariant& content)
{
    return QVariant(QMetaType::fromType<QVariant>(), &content);
}

std::string text(const QModelIndex& index, int role)
{
    return index.data(role).toString().toStdString();
}

}

TEST(CVqQtAbstractListModel, HasTheParentThatItIsGiven)
{
    class Rows : public CVqQtAbstractListModel
    {
    public:
        using CVqQtAbstractListModel::CVqQtAbstractListModel;
        void Update(QVariant) override { }
    };
    QObject owner;

    const auto* model = new Rows(&owner);

    EXPECT_EQ(model->parent(), &owner);
}

TEST(CVqQtAbstractListModel, ANewOneHasNoRows)
{
    const NamedRows model;

    EXPECT_EQ(model.rowCount(), 0);
}

TEST(CVqQtAbstractListModel, CountsItsRows)
{
    const NamedRows model({u"sky"_s, u"sea"_s});

    EXPECT_EQ(model.rowCount(), 2);
}

TEST(CVqQtAbstractListModel, ARowHasNoRowsOfItsOwn)
{
    const NamedRows model({u"sky"_s, u"sea"_s});

    EXPECT_EQ(model.rowCount(model.index(0)), 0);
}

TEST(CVqQtAbstractListModel, HasOneColumnAlsoUnderARow)
{
    const NamedRows model({u"sky"_s});

    EXPECT_EQ(model.columnCount(), 1);
    EXPECT_EQ(model.columnCount(model.index(0)), 1);
}

TEST(CVqQtAbstractListModel, DataIsTheEntryUnderTheNameOfTheRole)
{
    const NamedRows model({u"sky"_s, u"sea"_s});

    EXPECT_EQ(model.data(model.index(1), NamedRows::Name), QVariant(u"sea"_s));
    EXPECT_EQ(model.data(model.index(1), NamedRows::Size), QVariant(2));
}

TEST(CVqQtAbstractListModel, DataFindsANameThatIsNotAscii)
{
    NamedRows model;
    model.SetRoleNames({{7,
                         "gr\xC3\xB6\xC3\x9F"
                         "e"}});
    model.rows += QVariantMap{{u"größe"_s, 12}};

    EXPECT_EQ(model.data(model.index(0), 7), QVariant(12));
}

TEST(CVqQtAbstractListModel, DataIsInvalidWithoutAnEntryForTheRole)
{
    NamedRows model;
    model.rows += QVariantMap{{u"name"_s, u"sky"_s}};

    EXPECT_FALSE(model.data(model.index(0), NamedRows::Size).isValid());
}

TEST(CVqQtAbstractListModel, DataIsInvalidForANumberWithoutAName)
{
    const NamedRows model({u"sky"_s});

    EXPECT_FALSE(model.data(model.index(0), Qt::DisplayRole).isValid());
}

TEST(CVqQtAbstractListModel, ANumberWithoutANameReadsTheEntryWithTheEmptyName)
{
    NamedRows model;
    model.rows += QVariantMap{{QString(), u"nameless"_s}};

    EXPECT_EQ(text(model.index(0), Qt::DisplayRole), "nameless");
}

TEST(CVqQtAbstractListModel, DataIsInvalidInARowThatIsNoMap)
{
    NamedRows model;
    model.rows += QVariant(5);

    EXPECT_FALSE(model.data(model.index(0), NamedRows::Name).isValid());
}

TEST(CVqQtAbstractListModel, DataOfTheInvalidIndexIsInvalid)
{
    const NamedRows model({u"sky"_s});

    EXPECT_FALSE(model.data(QModelIndex(), NamedRows::Name).isValid());
}

TEST(CVqQtAbstractListModel, DataOfARowThatHasGoneIsInvalid)
{
    NamedRows model({u"sky"_s, u"sea"_s});
    const QModelIndex index = model.index(1);
    model.Clear();

    EXPECT_FALSE(model.data(index, NamedRows::Name).isValid());
}

TEST(CVqQtAbstractListModel, DataOfAnotherColumnIsInvalid)
{
    const NamedRows model({u"sky"_s});

    EXPECT_FALSE(model.data(model.createdIndex(0, 1), NamedRows::Name).isValid());
}

TEST(CVqQtAbstractListModel, DataOfACountThatADerivedClassMadeUpIsInvalid)
{
    class LongerRows : public NamedRows
    {
    public:
        int rowCount(const QModelIndex& = QModelIndex()) const override { return 5; }
    };
    const LongerRows model;

    EXPECT_FALSE(model.data(model.index(4), NamedRows::Name).isValid());
}

TEST(CVqQtAbstractListModel, TranslatesARoleToItsNumber)
{
    NamedRows model;

    EXPECT_EQ(model.TranslateRole(u"name"_s), NamedRows::Name);
    EXPECT_EQ(model.TranslateRole(u"size"_s), NamedRows::Size);
}

TEST(CVqQtAbstractListModel, TranslatesAnUnknownRoleTo0)
{
    NamedRows model;

    EXPECT_EQ(model.TranslateRole(u"unknown"_s), 0);
}

TEST(CVqQtAbstractListModel, TranslatesByLetterCase)
{
    NamedRows model;

    EXPECT_EQ(model.TranslateRole(u"Name"_s), 0);
}

TEST(CVqQtAbstractListModel, TranslatesANameThatIsNotAscii)
{
    NamedRows model;
    model.SetRoleNames({{7,
                         "gr\xC3\xB6\xC3\x9F"
                         "e"}});

    EXPECT_EQ(model.TranslateRole(u"größe"_s), 7);
}

TEST(CVqQtAbstractListModel, TranslatesANameThatTwoRolesShareToTheFirstOfTheHash)
{
    NamedRows model;
    const QHash<int, QByteArray> names{{41, "name"}, {42, "name"}};
    model.SetRoleNames(names);

    EXPECT_EQ(model.TranslateRole(u"name"_s), names.keys().first());
}

TEST(CVqQtAbstractListModel, SetDataAnnouncesAChangeOfTheRole)
{
    NamedRows model({u"sky"_s, u"sea"_s});
    const ModelSignals log(model);

    EXPECT_TRUE(model.setData(model.index(1), u"lake"_s, NamedRows::Name));

    EXPECT_THAT(log.Lines(), ElementsAre("changed 1 role 257"));
}

TEST(CVqQtAbstractListModel, SetDataDoesNotStore)
{
    NamedRows model({u"sky"_s, u"sea"_s});

    model.setData(model.index(1), u"lake"_s, NamedRows::Name);

    EXPECT_EQ(TextsOf(model, NamedRows::Name), Texts({"sky", "sea"}));
}

TEST(CVqQtAbstractListModel, SetDataDoesNotAddAnEntry)
{
    NamedRows model;
    model.rows += QVariant();

    EXPECT_TRUE(model.setData(model.index(0), 5, NamedRows::Size));

    EXPECT_FALSE(model.rows[0].isValid());
}

TEST(CVqQtAbstractListModel, SetDataOfThePresentValueIsSilent)
{
    NamedRows model({u"sky"_s});
    const ModelSignals log(model);

    EXPECT_TRUE(model.setData(model.index(0), u"sky"_s, NamedRows::Name));

    EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST(CVqQtAbstractListModel, SetDataLooksIntoAWrappedValue)
{
    NamedRows model;
    model.rows += QVariantMap{{u"size"_s, wrapped(5)}};
    const ModelSignals log(model);

    EXPECT_TRUE(model.setData(model.index(0), 5, NamedRows::Size));
    EXPECT_THAT(log.Lines(), IsEmpty());
    EXPECT_TRUE(model.setData(model.index(0), 6, NamedRows::Size));
    EXPECT_THAT(log.Lines(), ElementsAre("changed 0 role 258"));
}

TEST(CVqQtAbstractListModel, SetDataAnnouncesAValueForARowThatIsNoMap)
{
    NamedRows model;
    model.rows += QVariant();
    const ModelSignals log(model);

    EXPECT_TRUE(model.setData(model.index(0), u"sky"_s, NamedRows::Name));

    EXPECT_THAT(log.Lines(), ElementsAre("changed 0 role 257"));
}

TEST(CVqQtAbstractListModel, SetDataTakesTheEditRoleWhenNoneIsGiven)
{
    NamedRows model({u"sky"_s});
    const ModelSignals log(model);

    EXPECT_TRUE(model.setData(model.index(0), 1));

    EXPECT_THAT(log.Lines(), ElementsAre("changed 0 role 2"));
}

TEST(CVqQtAbstractListModel, SetDataRefusesAnInvalidValue)
{
    NamedRows model({u"sky"_s});
    const ModelSignals log(model);

    EXPECT_FALSE(model.setData(model.index(0), QVariant(), NamedRows::Name));

    EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST(CVqQtAbstractListModel, SetDataRefusesAnIndexThatIsNotThere)
{
    NamedRows model({u"sky"_s, u"sea"_s});
    const QModelIndex gone = model.index(1);
    model.rows.removeLast();
    const ModelSignals log(model);

    EXPECT_FALSE(model.setData(QModelIndex(), u"lake"_s, NamedRows::Name));
    EXPECT_FALSE(model.setData(gone, u"lake"_s, NamedRows::Name));
    EXPECT_FALSE(model.setData(model.createdIndex(0, 1), u"lake"_s, NamedRows::Name));

    EXPECT_THAT(log.Lines(), IsEmpty());
}
