#include "tests/quick_backend/MenuWindow.h"

#include <QQuickImageProvider>

namespace {

/// Images of one colour: 1 is red, all others are blue.
class FlatImages final : public QQuickImageProvider
{
public:
    FlatImages() : QQuickImageProvider(QQuickImageProvider::Image) { }

    QImage requestImage(const QString& id, QSize* size, const QSize& wanted) override
    {
        QImage image(wanted, QImage::Format_RGB32);
        image.fill(id == QStringLiteral("1") ? QColor(Qt::red) : QColor(Qt::blue));
        *size = image.size();
        return image;
    }
};

class MenuRow : public testing::Test
{
protected:
    MenuRow()
    {
        window.Engine().addImageProvider(QStringLiteral("pool"), new FlatImages);
        FillMenu(window.Menu());
    }

    /// The visible part of row `row` whose property of that name is neither missing nor empty, or null.
    QQuickItem* PartWith(int row, const char* property) { return PartBelow(window.Row(row), property); }

    static QQuickItem* PartBelow(QQuickItem* item, const char* property)
    {
        if (!item->isVisible())
            return nullptr;
        if (!item->property(property).toString().isEmpty())
            return item;
        const QList<QQuickItem*> children = item->childItems();
        for (QQuickItem* child : children) {
            if (QQuickItem* found = PartBelow(child, property))
                return found;
        }
        return nullptr;
    }

    QColor ColorIn(const QQuickItem* item, qreal across)
    {
        return window.ColorAt(item, {item->width() * across, item->height() / 2});
    }

    MenuWindow window{"imageSource: \"image://pool/\""};
};

}

TEST_F(MenuRow, ShowsTheImageOfItsIndex)
{
    window.Menu().SetIdBitmap(11, 1);
    window.Menu().SetIdBitmap(12, 2);
    window.Click(window.BarItem(1));

    ASSERT_TRUE(PartWith(0, "source") && PartWith(1, "source"));
    EXPECT_EQ(ColorIn(PartWith(0, "source"), 0.5), QColor(Qt::red));
    EXPECT_EQ(ColorIn(PartWith(1, "source"), 0.5), QColor(Qt::blue));
    EXPECT_EQ(PartWith(2, "source"), nullptr);
}

TEST_F(MenuRow, FollowsAnImageThatChangesWhileItShows)
{
    window.Menu().SetIdBitmap(11, 2);
    window.Click(window.BarItem(1));
    ASSERT_TRUE(PartWith(0, "source"));

    window.Menu().SetIdBitmap(11, 1);

    EXPECT_EQ(ColorIn(PartWith(0, "source"), 0.5), QColor(Qt::red));
}

TEST_F(MenuRow, DrawsAColourItemAsItsColour)
{
    window.Menu().AppendOneColor(31, 20, 0x0080FF, VQ_TEXT("Orange"));
    window.Click(window.BarItem(2));

    const QQuickItem* sample = PartWith(1, "color1")->findChild<QQuickItem*>(QStringLiteral("menuSample"));
    ASSERT_TRUE(sample);
    EXPECT_EQ(ColorIn(sample, 0.25), QColor(255, 128, 0));
    EXPECT_EQ(ColorIn(sample, 0.75), QColor(255, 128, 0));
}

TEST_F(MenuRow, DrawsATwoColourItemAsBothOfItsColours)
{
    window.Menu().AppendTwoColor(32, 20, 0x0000FF, 0xFF0000, VQ_TEXT("Both"));
    window.Click(window.BarItem(2));

    const QQuickItem* sample = PartWith(1, "color1")->findChild<QQuickItem*>(QStringLiteral("menuSample"));
    ASSERT_TRUE(sample);
    EXPECT_EQ(ColorIn(sample, 0.25), QColor(Qt::red));
    EXPECT_EQ(ColorIn(sample, 0.75), QColor(Qt::blue));
}

TEST_F(MenuRow, DrawsALineWidthItemAsALineOfThatWidth)
{
    window.Menu().AppendLineWidth(33, 20, 6, VQ_TEXT(""), VQ_TEXT("Wide"));
    window.Click(window.BarItem(2));

    const QQuickItem* sample = PartWith(1, "color1")->findChild<QQuickItem*>(QStringLiteral("menuSample"));
    ASSERT_TRUE(sample);
    const QColor ink = window.Row(1)->property("ink").value<QColor>();
    const qreal middle = sample->height() / 2;
    EXPECT_EQ(window.ColorAt(sample, {20, middle - 2}), ink);
    EXPECT_EQ(window.ColorAt(sample, {20, middle + 2}), ink);
    EXPECT_NE(window.ColorAt(sample, {20, middle - 5}), ink);
    EXPECT_NE(window.ColorAt(sample, {20, middle + 5}), ink);
}
