#include "tests/gallery/PageFixture.h"

#include <QAbstractItemModel>
#include <QAbstractItemModelTester>

using namespace Qt::StringLiterals;

namespace {

class ListsPage : public PageFixture
{
protected:
    ListsPage() : PageFixture(u"ListsPage"_s) { Focus(u"layerListView"_s); }

    QAbstractItemModel& Model(const QString& name)
    {
        return *m_gallery.Window().findChild<QAbstractItemModel*>(name);
    }

    /// The names that show, and those of the list itself.
    QStringList Shown() { return names(Model(u"shownLayers"_s)); }
    QStringList Layers() { return names(Model(u"layers"_s)); }

    /// The view settles it when it lays its rows out.
    int Current()
    {
        m_gallery.Window().grabWindow();
        return Property(u"layerListView"_s, "currentIndex").toInt();
    }
    QString InHand() { return Shown().value(Current()); }

    void PressDown(int times)
    {
        for (int i = 0; i < times; ++i)
            Press(Qt::Key_Down);
    }

    /// A choice of a row of choices.
    void Choose(const QString& row, int index)
    {
        const QQuickItem* choice = Item(row)->childItems().at(index);
        QTest::mouseClick(&m_gallery.Window(), Qt::LeftButton, {},
                          choice->mapToScene({choice->width() / 2, choice->height() / 2}).toPoint());
    }

    /// Carries the row `from` by its handle to the middle of the row `to`.
    void Carry(const QString& from, const QString& to)
    {
        const QQuickItem* target = Item(u"layer:"_s + to);
        const QPoint begin = Item(u"handle:"_s + from)->mapToScene({17, 17}).toPoint();
        const QPoint end = target->mapToScene({17, target->height() - 4}).toPoint();
        QTest::mousePress(&m_gallery.Window(), Qt::LeftButton, {}, begin);
        QTest::mouseMove(&m_gallery.Window(), (begin + end) / 2);
        QTest::mouseMove(&m_gallery.Window(), end);
        QTest::mouseRelease(&m_gallery.Window(), Qt::LeftButton, {}, end);
    }

private:
    static QStringList names(const QAbstractItemModel& model)
    {
        const int role = model.roleNames().key("name");
        QStringList names;
        for (int row = 0; row < model.rowCount(); ++row)
            names << model.index(row, 0).data(role).toString();
        return names;
    }
};

}

TEST_F(ListsPage, BeginsWithAllRowsInTheirOrder)
{
    EXPECT_EQ(Shown().size(), 12);
    EXPECT_EQ(Shown(), Layers());
    EXPECT_EQ(InHand(), u"Sky"_s);
    EXPECT_EQ(Text(u"countText"_s), u"Rows shown: 12"_s);
}

TEST_F(ListsPage, TheKeyboardBeginsInTheList)
{
    Focus(u"pageHolder"_s);

    EXPECT_TRUE(HasFocus(u"layerListView"_s));
}

TEST_F(ListsPage, AltAndArrowsMoveTheRowInHand)
{
    const QAbstractItemModelTester tester(&Model(u"shownLayers"_s));

    Press(Qt::Key_Down, Qt::AltModifier);
    Press(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(Layers().mid(0, 3), (QStringList{u"Hills"_s, u"Harbour"_s, u"Sky"_s}));
    EXPECT_EQ(InHand(), u"Sky"_s);
    EXPECT_EQ(Text(u"toldText"_s), u"Row 2 is row 3 now."_s);

    Press(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(Shown().mid(0, 3), (QStringList{u"Hills"_s, u"Sky"_s, u"Harbour"_s}));
    EXPECT_EQ(m_gallery.GetSession().LastCommand(), QString());
}

TEST_F(ListsPage, TheFirstRowGoesNoHigher)
{
    const QStringList before = Layers();

    Press(Qt::Key_Up, Qt::AltModifier);

    EXPECT_EQ(Layers(), before);
}

TEST_F(ListsPage, ARowIsCarriedByItsHandle)
{
    Carry(u"Sky"_s, u"Boats"_s);

    EXPECT_EQ(Layers().mid(0, 4), (QStringList{u"Hills"_s, u"Harbour"_s, u"Boats"_s, u"Sky"_s}));
    EXPECT_EQ(InHand(), u"Sky"_s);
    EXPECT_FALSE(Item(u"dropLine"_s)->isVisible());
}

TEST_F(ListsPage, ARowIsCarriedUpwardsToo)
{
    Carry(u"Boats"_s, u"Sky"_s);

    EXPECT_EQ(Layers().mid(0, 4), (QStringList{u"Sky"_s, u"Boats"_s, u"Hills"_s, u"Harbour"_s}));
}

TEST_F(ListsPage, AMoveWithinAFilterGoesPastTheRowsBetween)
{
    Type(u"filterField"_s, u"boats"_s);
    ASSERT_EQ(Shown(), (QStringList{u"Boats"_s, u"Boats, mirrored"_s}));
    Focus(u"layerListView"_s);

    Press(Qt::Key_Down, Qt::AltModifier);

    EXPECT_EQ(Shown(), (QStringList{u"Boats, mirrored"_s, u"Boats"_s}));
}

TEST_F(ListsPage, RowsAreMovedOnlyInTheOrderOfTheirNumbers)
{
    Click(u"nameHeader"_s);
    const QStringList before = Layers();

    Press(Qt::Key_Down, Qt::AltModifier);

    EXPECT_EQ(Layers(), before);
    EXPECT_EQ(Text(u"toldText"_s), u"Rows can be moved while they are sorted upwards by their number."_s);
}

TEST_F(ListsPage, F2ChangesANameInItsPlace)
{
    Press(Qt::Key_F2);
    EXPECT_TRUE(HasFocus(u"rowNameInput"_s));
    for (const char letter : {'D', 'u', 's', 'k'})
        QTest::keyClick(&m_gallery.Window(), letter);
    Press(Qt::Key_Return);

    EXPECT_EQ(Layers().first(), u"Dusk"_s);
    EXPECT_TRUE(HasFocus(u"layerListView"_s));
}

TEST_F(ListsPage, EscapeLeavesTheName)
{
    Press(Qt::Key_F2);
    QTest::keyClick(&m_gallery.Window(), 'x');

    Press(Qt::Key_Escape);

    EXPECT_EQ(Layers().first(), u"Sky"_s);
    EXPECT_TRUE(HasFocus(u"layerListView"_s));
}

TEST_F(ListsPage, ANameThatSortsElsewhereStaysInHand)
{
    Click(u"nameHeader"_s);
    Focus(u"layerListView"_s);
    Press(Qt::Key_Home);
    ASSERT_EQ(InHand(), u"Boats"_s);

    Press(Qt::Key_F2);
    QTest::keyClick(&m_gallery.Window(), 'z');
    Press(Qt::Key_Return);

    EXPECT_EQ(InHand(), u"z"_s);
    EXPECT_EQ(Current(), 11);
}

TEST_F(ListsPage, LeftAndRightChangeTheOpacity)
{
    PressDown(3);
    ASSERT_EQ(InHand(), u"Boats"_s);

    Press(Qt::Key_Right);
    Press(Qt::Key_Right);
    EXPECT_EQ(Property(u"layer:Boats"_s, "percent"), 100);
    Press(Qt::Key_Left);
    EXPECT_EQ(Property(u"layer:Boats"_s, "percent"), 95);
    EXPECT_EQ(Text(u"percentSlider"_s, "readout"), u"95 %"_s);
}

TEST_F(ListsPage, ThePanelChangesTheRowInHand)
{
    Choose(u"kindChoice"_s, 3);
    EXPECT_EQ(Text(u"layer:Sky"_s, "kind"), u"Shape"_s);

    Focus(u"percentSlider"_s);
    Press(Qt::Key_Home);
    EXPECT_EQ(Property(u"layer:Sky"_s, "percent"), 0);
}

TEST_F(ListsPage, RowsAreInsertedAboveAndAtTheEnd)
{
    Press(Qt::Key_Down);

    Press(Qt::Key_Insert);
    EXPECT_EQ(Layers().mid(0, 3), (QStringList{u"Sky"_s, u"New layer"_s, u"Hills"_s}));
    EXPECT_EQ(Current(), 1);

    Click(u"appendButton"_s);
    EXPECT_EQ(Layers().last(), u"New layer"_s);
    EXPECT_EQ(Current(), 13);
    EXPECT_EQ(Text(u"toldText"_s), u"Row 14 is new."_s);
}

TEST_F(ListsPage, EachRowCanBeRemovedAlsoTheLast)
{
    Press(Qt::Key_End);

    Press(Qt::Key_Delete);

    EXPECT_EQ(Layers().size(), 11);
    EXPECT_EQ(Layers().last(), u"Title shadow"_s);
    EXPECT_EQ(InHand(), u"Title shadow"_s);
    EXPECT_EQ(Text(u"toldText"_s), u"Signature is removed."_s);
}

TEST_F(ListsPage, AClearedListTakesRowsAndBeginsAgain)
{
    Click(u"clearButton"_s);
    EXPECT_EQ(Layers().size(), 0);
    EXPECT_FALSE(Property(u"renameButton"_s, "enabled").toBool());

    Click(u"insertButton"_s);
    EXPECT_EQ(Shown(), QStringList{u"New layer"_s});

    Click(u"beginButton"_s);
    EXPECT_EQ(Layers().size(), 12);
}

TEST_F(ListsPage, TextFiltersAnywhereWhateverTheCase)
{
    Type(u"filterField"_s, u"SHADOW"_s);
    EXPECT_EQ(Shown(), (QStringList{u"Shadows"_s, u"Title shadow"_s}));

    Type(u"filterField"_s, u"light"_s); // a kind, too
    EXPECT_EQ(Shown(), (QStringList{u"Evening light"_s, u"Shadows"_s, u"Lamp glow"_s}));
}

TEST_F(ListsPage, AChosenRoleIsTheOnlyOneThatIsLookedInto)
{
    Type(u"filterField"_s, u"light"_s);

    Choose(u"roleChoice"_s, 1);
    EXPECT_EQ(Shown(), QStringList{u"Evening light"_s});

    Choose(u"roleChoice"_s, 3);
    EXPECT_EQ(Shown(), QStringList());

    Choose(u"roleChoice"_s, 0);
    EXPECT_EQ(Shown().size(), 3);
}

TEST_F(ListsPage, WildcardsAndExpressionsAreReadAsSuch)
{
    Type(u"filterField"_s, u"b?at"_s);
    EXPECT_EQ(Shown(), QStringList());

    Choose(u"syntaxChoice"_s, 1);
    EXPECT_EQ(Shown().size(), 2);

    Type(u"filterField"_s, u"^(Sky|Frame)$"_s);
    EXPECT_EQ(Shown(), QStringList());

    Choose(u"syntaxChoice"_s, 0);
    EXPECT_EQ(Shown(), (QStringList{u"Sky"_s, u"Frame"_s}));
}

TEST_F(ListsPage, AnUnfinishedExpressionMatchesNothingAndSaysSo)
{
    Choose(u"syntaxChoice"_s, 0);

    Type(u"filterField"_s, u"(Sky"_s);

    EXPECT_EQ(Shown(), QStringList());
    EXPECT_TRUE(Property(u"filterField"_s, "faulty").toBool());
    EXPECT_EQ(Text(u"layerList"_s, "emptyText"), u"This is no expression yet."_s);
}

TEST_F(ListsPage, AChangeInPlaceLeavesTheFilter)
{
    Type(u"filterField"_s, u"boats"_s);
    Focus(u"layerListView"_s);
    ASSERT_EQ(InHand(), u"Boats"_s);

    Press(Qt::Key_F2);
    QTest::keyClick(&m_gallery.Window(), 'x');
    Press(Qt::Key_Return);

    EXPECT_EQ(Shown(), QStringList{u"Boats, mirrored"_s});
    EXPECT_EQ(Layers()[3], u"x"_s);
}

TEST_F(ListsPage, HeadersSortByNumbersAndTextsAndKeepTheRowInHand)
{
    Click(u"percentHeader"_s);
    EXPECT_EQ(Shown().first(), u"Shadows"_s); // 35 before 100
    EXPECT_EQ(InHand(), u"Sky"_s);

    Click(u"percentHeader"_s);
    EXPECT_EQ(Shown().last(), u"Shadows"_s);

    Click(u"numberHeader"_s);
    EXPECT_EQ(Shown(), Layers());
}

TEST_F(ListsPage, RowsAndHandlesHaveNamesForScreenReaders)
{
    EXPECT_EQ(Accessible(u"layerListView"_s)->role(), QAccessible::List);
    EXPECT_EQ(Accessible(u"layer:Boats"_s)->text(QAccessible::Name), u"Boats"_s);
    EXPECT_EQ(Accessible(u"layer:Boats"_s)->text(QAccessible::Description), u"Row 4, Paint, 95 %"_s);
    EXPECT_EQ(Accessible(u"numberHeader"_s)->text(QAccessible::Name), u"Number, sorted upwards"_s);
}
