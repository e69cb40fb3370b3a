#include "tests/quick_backend/MenuWindow.h"

#include <QQuickImageProvider>

namespace {

/// Images of one colour: 1 is red, all others are blue; a disabled one is gray.
class FlatImages final : public QQuickImageProvider
{
public:
    FlatImages() : QQuickImageProvider(QQuickImageProvider::Image) { }

    QImage requestImage(const QString& id, QSize* size, const QSize& wanted) override
    {
        QImage image(wanted, QImage::Format_RGB32);
        const QColor color = id.section(u'?', 0, 0) == QStringLiteral("1") ? Qt::red : Qt::blue;
        image.fill(id.contains(QStringLiteral("state=disabled")) ? QColor(Qt::gray) : color);
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

    QString SourceOf(int row)
    {
        return window.Row(row)
            ->findChild<QQuickItem*>(QStringLiteral("menuImage"))
            ->property("source")
            .toString();
    }

    /// The row's text colour with `opacity`, as an address has it.
    QString Encoded(int row, qreal opacity)
    {
        QColor ink = window.Row(row)->property("ink").value<QColor>();
        ink.setAlphaF(float(opacity));
        const QString name = ink.name(opacity < 1 ? QColor::HexArgb : QColor::HexRgb);
        return QString::fromLatin1(QUrl::toPercentEncoding(name));
    }

    QQuickItem* PlateOf(int row)
    {
        return window.Row(row)->findChild<QQuickItem*>(QStringLiteral("imagePlate"));
    }

    /// The shape of the row's mark: 0 for none.
    int MarkOf(int row)
    {
        return window.Row(row)->findChild<QQuickItem*>(QStringLiteral("menuMark"))->property("shape").toInt();
    }

    QQuickItem* LabelOf(int row)
    {
        return window.Row(row)->findChild<QQuickItem*>(QStringLiteral("menuLabel"));
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

TEST_F(MenuRow, AsksForTheImageWithItsStateAndInk)
{
    window.Menu().SetIdBitmap(11, 1);
    window.Menu().SetIdBitmap(12, 2);
    window.Menu().EnableId(12, false);
    window.Click(window.BarItem(1));

    EXPECT_EQ(SourceOf(0), QStringLiteral("image://pool/1?state=normal&color=") + Encoded(0, 1));
    EXPECT_TRUE(SourceOf(1).startsWith(QStringLiteral("image://pool/2?state=disabled&color=%23")))
        << SourceOf(1).toStdString();
    window.Hover(window.Row(0));
    EXPECT_TRUE(SourceOf(0).startsWith(QStringLiteral("image://pool/1?state=selected&")));
}

TEST_F(MenuRow, DrawsTheImageOfADisabledItemAsTheProviderGraysIt)
{
    window.Menu().SetIdBitmap(11, 1);
    window.Menu().EnableId(11, false);
    window.Click(window.BarItem(1));

    EXPECT_EQ(ColorIn(PartWith(0, "source"), 0.5), QColor(Qt::gray));
}

TEST_F(MenuRow, AnImageTakesThePlaceOfTheMarkAndACheckedOneLiesOnAPlate)
{
    window.Menu().SetIdBitmap(11, 1);
    window.Menu().CheckId(11, true);
    window.Menu().SetIdBitmap(12, 1);
    window.Menu().CheckId(13, true);
    window.Click(window.BarItem(1));

    EXPECT_TRUE(PlateOf(0)->isVisible());
    EXPECT_EQ(MarkOf(0), 0);
    EXPECT_FALSE(PlateOf(1)->isVisible());
    EXPECT_FALSE(PlateOf(2)->isVisible());
    EXPECT_NE(MarkOf(2), 0);
}

TEST_F(MenuRow, AnImageIsSixteenPixelsWideBesideALabelThatStaysInItsPlace)
{
    window.Menu().SetIdBitmap(11, 1);
    window.Click(window.BarItem(1));

    const QQuickItem* image = PartWith(0, "source");
    EXPECT_EQ(image->size(), QSizeF(16, 16));
    EXPECT_EQ(LabelOf(0)->mapToScene({}).x(), LabelOf(1)->mapToScene({}).x());
    EXPECT_GE(LabelOf(0)->mapToScene({}).x(), image->mapToScene({16, 0}).x());
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
