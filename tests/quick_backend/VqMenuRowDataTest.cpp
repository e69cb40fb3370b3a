#include "quick_backend/VqMenuRowData.h"

#include "AbstractGui/CVqAbstractMenu.h"
#include "quick_backend/CVqQuickMenuItem.h"
#include "quick_backend/CVqQuickMenuRows.h"
#include "quick_backend/IVqQuickMenuKeys.h"

#include <QColor>

#include <gtest/gtest.h>

namespace {

/// Every item has the key F5, except those without a command.
class F5 final : public IVqQuickMenuKeys
{
public:
    QString KeyText(const CVqMenuItem& item) const override
    {
        return item.command().IsEmpty() ? QString() : QStringLiteral("F5");
    }
};

}

TEST(VqMenuRowData, AnItemIsShownWhenItIsNeitherRemovedNorDeleted)
{
    CVqQuickMenuItem item;
    EXPECT_TRUE(VqIsShown(item));

    item.setRemoved(true);
    EXPECT_FALSE(VqIsShown(item));

    item.setRemoved(false);
    item.setDeleted(true);
    EXPECT_FALSE(VqIsShown(item));
}

TEST(VqMenuRowData, AnItemIsGrayedWhenItIsDisabledOrGrayed)
{
    CVqQuickMenuItem item;
    EXPECT_FALSE(VqIsGrayed(item));

    item.setStatus(0);
    EXPECT_TRUE(VqIsGrayed(item));

    item.setStatus(CVqMenuItem::StatusEnabled | CVqMenuItem::StatusGrayed);
    EXPECT_TRUE(VqIsGrayed(item));
}

TEST(VqMenuRowData, KeysGoBeforeTheNoteOfTheLabel)
{
    const F5 keys;
    CVqQuickMenuItem item;
    item.setText(VQ_TEXT("&Zoom\tdouble click\aCtrl+1"));
    EXPECT_EQ(VqMenuRowKeyText(item, &keys), QStringLiteral("double click"));
    EXPECT_EQ(VqMenuRowKeyText(item, nullptr), QStringLiteral("double click"));

    item.setCommand(VQ_TEXT("Zoom"));
    EXPECT_EQ(VqMenuRowKeyText(item, &keys), QStringLiteral("F5"));
    EXPECT_EQ(VqMenuRowLabel(item), QStringLiteral("Zoom"));
}

TEST(VqMenuRowData, AnItemWithoutALabelIsNamedByWhatItShows)
{
    CVqQuickMenuItem item;
    item.setCol1(0x0000FF);
    item.setCol2(0xFF8000);
    item.setLineWidth(7);
    const auto name_as = [&](vq_uint32 type) {
        item.setType(type);
        return VqMenuRowData(item, CVqQuickMenuRows::AccessibleNameRole, nullptr).toString();
    };

    EXPECT_EQ(name_as(CVqQuickMenuRows::OneColor), QStringLiteral("#ff0000"));
    EXPECT_EQ(name_as(CVqQuickMenuRows::TwoColor), QStringLiteral("#ff0000, #0080ff"));
    EXPECT_EQ(name_as(CVqQuickMenuRows::LineWidth), QStringLiteral("7 px"));
    EXPECT_EQ(name_as(CVqQuickMenuRows::Command), QString());

    item.setText(VQ_TEXT("&Red"));
    EXPECT_EQ(name_as(CVqQuickMenuRows::OneColor), QStringLiteral("Red"));
}

TEST(VqMenuRowData, ACommandIsShownAsItIs)
{
    CVqQuickMenuItem item;
    item.setCommand(VQ_TEXT("Run(\"x\")"));

    EXPECT_EQ(VqMenuRowData(item, CVqQuickMenuRows::CommandRole, nullptr), QStringLiteral("Run(\"x\")"));
}

TEST(VqMenuRowData, AnItemFiresUnlessItOrAPopupAboveForbidsIt)
{
    CVqQuickMenuItem root;
    CVqQuickMenuItem popup;
    CVqQuickMenuItem item;
    root.setType(CVqAbstractMenu::SenseMainRoot);
    root.setDeleted(true); // nobody looks at the root
    popup.setParentItem(&root);
    item.setParentItem(&popup);
    EXPECT_TRUE(VqCanFire(item));
    EXPECT_FALSE(VqCanFire(root));

    popup.setRemoved(true);
    EXPECT_TRUE(VqCanFire(item));

    popup.setDeleted(true);
    EXPECT_FALSE(VqCanFire(item));

    popup.setDeleted(false);
    item.setRemoved(true);
    EXPECT_FALSE(VqCanFire(item));
}

TEST(VqMenuRowData, ARoleThatNoRowHasIsInvalid)
{
    const CVqQuickMenuItem item;

    EXPECT_FALSE(VqMenuRowData(item, Qt::DecorationRole, nullptr).isValid());
    EXPECT_FALSE(VqMenuRowData(item, Qt::UserRole, nullptr).isValid());
}
