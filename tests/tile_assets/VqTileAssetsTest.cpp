#include "tile_assets/VqTileAssets.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgRenderer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QStringList icons()
{
    return QDir(VqTileAssetsRoot()).entryList(QDir::Files);
}

QByteArray text_of(const QString& icon)
{
    QFile file(VqTileAssetsRoot() + u'/' + icon);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

QImage drawn(QSvgRenderer& icon, int size)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    icon.render(&painter);
    return image;
}

// Ink on the outermost pixels would be cut.
bool touches_the_edge(const QImage& image)
{
    const int last = image.width() - 1;
    for (int at = 0; at <= last; ++at) {
        if (qAlpha(image.pixel(at, 0)) || qAlpha(image.pixel(at, last)) || qAlpha(image.pixel(0, at))
            || qAlpha(image.pixel(last, at)))
            return true;
    }
    return false;
}

}

TEST(VqTileAssets, RootIsAFolderOfIcons)
{
    EXPECT_EQ(VqTileAssetsRoot(), u":/tile_assets"_s);
    EXPECT_GE(icons().size(), 40);
}

TEST(VqTileAssets, PickerOfControlsIsThere)
{
    EXPECT_TRUE(icons().contains(u"picker_br.svg"_s));
}

TEST(VqTileAssets, NamesAreLowerCase)
{
    static const QRegularExpression name(u"^[a-z0-9_]+\\.svg$"_s);

    for (const QString& icon : icons())
        EXPECT_TRUE(name.match(icon).hasMatch()) << qPrintable(icon);
}

TEST(VqTileAssets, EachIconIsDrawnOnOneGridInTheCurrentColour)
{
    static const QRegularExpression other_colour(
        u"#[0-9a-fA-F]|rgb|(?:fill|stroke)=\"(?!none|currentColor)"_s);

    for (const QString& icon : icons()) {
        QSvgRenderer renderer(text_of(icon));
        EXPECT_EQ(renderer.defaultSize(), QSize(24, 24)) << qPrintable(icon);
        EXPECT_EQ(renderer.viewBox(), QRect(0, 0, 24, 24)) << qPrintable(icon);
        EXPECT_FALSE(QString::fromUtf8(text_of(icon)).contains(other_colour)) << qPrintable(icon);
    }
}

TEST(VqTileAssets, EachIconHasInkAndKeepsOffTheEdge)
{
    for (const QString& icon : icons()) {
        QSvgRenderer renderer(text_of(icon));
        const QImage image = drawn(renderer, 48);
        QImage empty = image;
        empty.fill(Qt::transparent);
        EXPECT_NE(image, empty) << qPrintable(icon);
        EXPECT_FALSE(touches_the_edge(image)) << qPrintable(icon);
    }
}

TEST(VqTileAssets, NoTwoIconsLookAlike)
{
    QList<QImage> seen;
    for (const QString& icon : icons()) {
        QSvgRenderer renderer(text_of(icon));
        const QImage image = drawn(renderer, 16);
        EXPECT_FALSE(seen.contains(image)) << qPrintable(icon);
        seen += image;
    }
}
