#include "AbstractGui/CVqAbstractMenu.h"
#include "tests/AbstractGui/RefusingWriter.h"
#include "tests/AbstractGui/StoredMenus.h"

#include <gtest/gtest.h>

#include <string>

TEST(CVqAbstractMenuSaveLite, EmptyMenuGivesAnEmptyStreamThatLoads)
{
    TestMenu menu;
    CVqLiteVariantR stored = LiteForm::Make({{VQ_TEXT("Old"), 1}});

    EXPECT_EQ(menu.Save(stored), 0);

    EXPECT_EQ(LiteForm::Show(stored), "");
    fill_menu(menu);
    EXPECT_EQ(menu.Load(stored), 0);
    EXPECT_EQ(menu.Tree(), "");
}

TEST(CVqAbstractMenuSaveLite, MenuWithoutARootGivesAnEmptyStream)
{
    CVqAbstractMenu menu;
    CVqLiteVariantR stored;

    EXPECT_EQ(menu.Save(stored), 0);

    EXPECT_EQ(LiteForm::Show(stored), "");
}

TEST(CVqAbstractMenuSaveLite, RootIsWrittenEmptyBesideLonelyAccelerators)
{
    TestMenu menu;
    menu.AppendLonelyAccel(4, 18, 0x42, VQ_TEXT("lonely"));

    EXPECT_EQ(saved<LiteForm>(menu),
              "CVqMenu(Root() LonelyAccels((Id=4 Type=0 Status=1 Command=lonely AccelKey0=4325394)))");
}

TEST(CVqAbstractMenuSaveLite, LonelyAcceleratorsStandAloneWithoutARoot)
{
    CVqAbstractMenu menu;
    menu.AppendLonelyAccel(4, 18, 0x42, VQ_TEXT("lonely"));
    CVqLiteVariantR stored;

    menu.Save(stored);

    EXPECT_EQ(LiteForm::Show(stored),
              "CVqMenu(LonelyAccels((Id=4 Type=0 Status=1 Command=lonely AccelKey0=4325394)))");
}

TEST(CVqAbstractMenuSaveLite, WrapperThatCannotBeBegunGivesAnEmptyStream)
{
    TestMenu menu;
    fill_menu(menu);
    const RefusingWriter refusing(VQ_TEXT("CVqMenu"));

    EXPECT_EQ(saved<LiteForm>(menu), "");
}

TEST(CVqAbstractMenuSaveLite, ListThatCannotBeBegunIsLeftOut)
{
    TestMenu menu;
    fill_menu(menu);
    const RefusingWriter refusing(VQ_TEXT("Root"));

    EXPECT_EQ(saved<LiteForm>(menu),
              "CVqMenu(LonelyAccels((Id=4 Type=0 Status=1 Command=lonely AccelKey0=4325394)))");
}

TEST(CVqAbstractMenuLoadLite, LonelyAcceleratorsAloneComeBack)
{
    TestMenu menu;
    menu.AppendLonelyAccel(4, 18, 0x42, VQ_TEXT("lonely"));
    CVqLiteVariantR stored;
    menu.Save(stored);
    TestMenu other;

    EXPECT_EQ(other.Load(stored), 0);

    EXPECT_EQ(other.Tree(), "");
    EXPECT_EQ(TestMenu::Chain(other.LonelyAccels()), "4");
}

TEST(CVqAbstractMenuLoadLite, ReaderInsideTheWrapperWorksToo)
{
    TestMenu menu;
    CVqLiteVariantR stored = LiteForm::MakeMenu(items_of_ids({1}), items_of_ids({2}));
    stored.CurrentLevelBegin();

    EXPECT_EQ(menu.Load(stored), 0);

    EXPECT_EQ(menu.Tree(), "1");
    EXPECT_EQ(TestMenu::Chain(menu.LonelyAccels()), "2");
}

TEST(CVqAbstractMenuLoadLite, ReaderIsLeftWhereItWasAndCanBeReadAgain)
{
    TestMenu menu;
    CVqLiteVariantR stored = LiteForm::MakeMenu(items_of_ids({1}), {});

    menu.Load(stored);
    menu.Load(stored);

    EXPECT_EQ(menu.Tree(), "1");
    EXPECT_EQ(stored.LevelEnd(), -9);
}

TEST(CVqAbstractMenuLoadLite, WrapperIsTheLevelUnderTheCursorWhateverItsName)
{
    TestMenu menu;
    CVqLiteVariantR stored
        = LiteForm::Make({{VQ_TEXT("Other"), 1},
                          {VQ_TEXT("AnyName"), Stored::Children{{VQ_TEXT("Root"), items_of_ids({1})}}}});
    stored.NextValue();

    menu.Load(stored);

    EXPECT_EQ(menu.Tree(), "1");
}

TEST(CVqAbstractMenuLoadLite, InsideAWrapperWithoutRootNothingIsFound)
{
    TestMenu menu;
    CVqLiteVariantR stored = LiteForm::Make({{VQ_TEXT("LonelyAccels"), items_of_ids({2})}});

    EXPECT_EQ(menu.Load(stored), 0);

    EXPECT_EQ(menu.LonelyAccels(), nullptr);
}

TEST(CVqAbstractMenuLoadLite, LonelyAcceleratorsOfAMenuWithoutARootComeBack)
{
    TestMenu menu;
    CVqLiteVariantR stored = LiteForm::Make(
        {{VQ_TEXT("CVqMenu"), Stored::Children{{VQ_TEXT("LonelyAccels"), items_of_ids({2})}}}});

    EXPECT_EQ(menu.Load(stored), 0);

    EXPECT_EQ(TestMenu::Chain(menu.LonelyAccels()), "2");
}

TEST(CVqAbstractMenuLoadLite, ValueOfTheNameRootHidesTheWrapper)
{
    TestMenu menu;
    CVqLiteVariantR stored = LiteForm::Make(
        {{VQ_TEXT("CVqMenu"), Stored::Children{{VQ_TEXT("Root"), items_of_ids({1})}}}, {VQ_TEXT("Root"), 5}});

    EXPECT_EQ(menu.Load(stored), 0);

    EXPECT_EQ(menu.Tree(), "");
}

TEST(CVqAbstractMenuLoadLite, ListOfItemsWithoutRootIsNotRead)
{
    TestMenu menu;
    CVqLiteVariantR stored = LiteForm::Make(items_of_ids({1, 2}));

    EXPECT_EQ(menu.Load(stored), 0);

    EXPECT_EQ(menu.Tree(), "");
}

TEST(CVqAbstractMenuLoadLite, OldLonelyAcceleratorsStayWithoutTheirListButTheirKeysGo)
{
    TestMenu menu;
    fill_menu(menu);
    CVqLiteVariantR stored = LiteForm::MakeMenu(items_of_ids({7}), {});

    menu.Load(stored);

    EXPECT_EQ(menu.Tree(), "7");
    EXPECT_EQ(TestMenu::Chain(menu.LonelyAccels()), "4");
    EXPECT_EQ(menu.MainTable().GetAccelsCount(), 0u);
}

TEST(CVqAbstractMenuLoadLite, EmptyStreamEmptiesTheMainTableAndKeepsLonelyAccelerators)
{
    TestMenu menu;
    fill_menu(menu);
    CVqLiteVariantR nothing;

    menu.Load(nothing);

    EXPECT_EQ(menu.MainTable().GetAccelsCount(), 0u);
    EXPECT_EQ(TestMenu::Chain(menu.LonelyAccels()), "4");
}
