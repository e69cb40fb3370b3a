#include "tests/qml/MetaObjectTexts.h"
#include "tests/qml/NamedRows.h"
#include "tests/support/VirtualSlot.h"

#include <gmock/gmock.h>

#include <cstddef>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// Opens what derived classes see.
class Slots : public CVqQtAbstractListModel
{
public:
    static std::size_t OfTheLastOfQt() { return VirtualSlot(&Slots::resetInternalData); }
};

using Model = CVqQtAbstractListModel;
using ShortMove = bool (Model::*)(int, int);
using LongMove = bool (Model::*)(const QModelIndex&, int, const QModelIndex&, int);

}

TEST(CVqQtAbstractListModelInterface, HasItsMethodsInTheirOrder)
{
    EXPECT_THAT(MetaObjectTexts::Methods(Model::staticMetaObject),
                ElementsAre("slot void Update(QVariant qvarInput)",
                            "method int TranslateRole(QString qstrRole)",
                            "method bool moveRow(int iSourceIndex, int iDestinationIndex)"));
}

TEST(CVqQtAbstractListModelInterface, AddsNoPropertyAndNoEnumeration)
{
    EXPECT_THAT(MetaObjectTexts::Properties(Model::staticMetaObject), IsEmpty());
    EXPECT_THAT(MetaObjectTexts::Enumerations(Model::staticMetaObject), IsEmpty());
}

TEST(CVqQtAbstractListModelInterface, DerivesFromTheListModelOfQt)
{
    EXPECT_EQ(Model::staticMetaObject.superClass(), &QAbstractListModel::staticMetaObject);
}

TEST(CVqQtAbstractListModelInterface, OperationsKeepTheirSlotsBehindThoseOfQt)
{
    const std::size_t last_of_qt = Slots::OfTheLastOfQt();

    EXPECT_EQ(VirtualSlot(&Model::TranslateRole), last_of_qt + 1);
    EXPECT_EQ(VirtualSlot(static_cast<ShortMove>(&Model::moveRow)), last_of_qt + 2);
    EXPECT_EQ(VirtualSlot(static_cast<LongMove>(&Model::moveRow)), last_of_qt + 3);
    EXPECT_EQ(VirtualSlot(&Model::Clear), last_of_qt + 4);
    EXPECT_EQ(VirtualSlot(&Model::Update), last_of_qt + 5);
}

TEST(CVqQtAbstractListModelInterface, UpdateReachesTheConcreteModelByItsName)
{
    NamedRows model;
    const QVariant rows = QVariantList{NamedRows::Row(u"sky"_s, 1), NamedRows::Row(u"sea"_s, 2)};

    QMetaObject::invokeMethod(&model, "Update", Q_ARG(QVariant, rows));

    EXPECT_EQ(TextsOf(model, NamedRows::Name), Texts({"sky", "sea"}));
}

TEST(CVqQtAbstractListModelInterface, TranslateRoleIsReachedByItsName)
{
    NamedRows model;
    int role = 0;

    QMetaObject::invokeMethod(&model, "TranslateRole", Q_RETURN_ARG(int, role), Q_ARG(QString, u"size"_s));

    EXPECT_EQ(role, NamedRows::Size);
}

TEST(CVqQtAbstractListModelInterface, MoveRowIsReachedByItsName)
{
    NamedRows model({u"sky"_s, u"sea"_s});
    bool moved = false;

    QMetaObject::invokeMethod(&model, "moveRow", Q_RETURN_ARG(bool, moved), Q_ARG(int, 0), Q_ARG(int, 1));

    EXPECT_TRUE(moved);
    EXPECT_EQ(TextsOf(model, NamedRows::Name), Texts({"sea", "sky"}));
}
