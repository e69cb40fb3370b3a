#include "gallery/render/RenderTarget.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Gallery::WhyNoRenderTarget;
using Gallery::WriteRenderTarget;

namespace {

QImage half_red()
{
    QImage image(3, 2, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    image.setPixelColor(2, 0, QColor(255, 0, 0, 128));
    return image;
}

}

TEST(RenderTarget, APngKeepsItsTransparency)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.png"_s);

    const QString error = WriteRenderTarget(half_red(), path);

    EXPECT_EQ(error, QString());
    const QImage read(path);
    EXPECT_EQ(read.size(), QSize(3, 2));
    EXPECT_EQ(read.pixelColor(2, 0), QColor(255, 0, 0, 128));
    EXPECT_EQ(read.pixelColor(0, 1).alpha(), 0);
}

TEST(RenderTarget, WithoutTransparencyInTheFormatTheGroundIsWhite)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.BMP"_s);

    const QString error = WriteRenderTarget(half_red(), path);

    EXPECT_EQ(error, QString());
    EXPECT_EQ(QImage(path).pixelColor(2, 0), QColor(255, 127, 127));
    EXPECT_EQ(QImage(path).pixelColor(0, 1), QColor(Qt::white));
}

TEST(RenderTarget, WhatWasThereIsReplacedAndNothingElseIsLeftInTheFolder)
{
    const QTemporaryDir folder;
    QFile old(folder.filePath(u"a.png"_s));
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.close();

    const QString error = WriteRenderTarget(half_red(), old.fileName());

    EXPECT_EQ(error, QString());
    EXPECT_FALSE(QImage(old.fileName()).isNull());
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{u"a.png"_s});
}

TEST(RenderTarget, AMissingFolderIsTold)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"nowhere/a.png"_s);

    EXPECT_EQ(WriteRenderTarget(half_red(), path),
              path + u" cannot be written: No such file or directory."_s);
}

TEST(RenderTarget, AFolderInPlaceOfThePictureIsTold)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.png"_s);
    ASSERT_TRUE(QDir().mkdir(path));

    EXPECT_EQ(WriteRenderTarget(half_red(), path),
              path + u" cannot be written: Filename refers to a directory."_s);
}

TEST(RenderTarget, OnlyExtensionsOfPicturesWillDo)
{
    EXPECT_EQ(WhyNoRenderTarget(u"a.png"_s), QString());
    EXPECT_EQ(WhyNoRenderTarget(u"a.b.PNG"_s), QString());
    EXPECT_TRUE(
        WhyNoRenderTarget(u"a.doc"_s).startsWith(u"a.doc has no extension of a picture: there are "_s));
    EXPECT_TRUE(WhyNoRenderTarget(u"png"_s).startsWith(u"png has no extension of a picture: there are "_s));
    EXPECT_TRUE(WhyNoRenderTarget(u"a.doc"_s).contains(u", png, "_s));
}
