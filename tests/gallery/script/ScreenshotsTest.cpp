#include "gallery/script/Screenshots.h"

#include "tests/gallery/GalleryWindow.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Gallery::Screenshots;

TEST(Screenshots, AllPicturesAreWrittenInTheSizeOfTheWindow)
{
    GalleryWindow gallery;
    const QTemporaryDir folder;
    Screenshots pictures(gallery.GetSession(), gallery.Window(), folder.filePath(u"new"_s));

    EXPECT_TRUE(pictures.TakeAll()) << pictures.Error().toStdString();

    for (const QString& name :
         {u"main"_s, u"popup"_s, u"submenu"_s, u"colours"_s, u"contextmenu"_s, u"dark"_s})
        EXPECT_EQ(QImage(folder.filePath(u"new/%1.png"_s.arg(name))).size(), QSize(640, 480))
            << name.toStdString();
}

TEST(Screenshots, EachShowsSomethingElse)
{
    GalleryWindow gallery;
    const QTemporaryDir folder;
    Screenshots pictures(gallery.GetSession(), gallery.Window(), folder.path());
    ASSERT_TRUE(pictures.TakeAll());

    const QImage main(folder.filePath(u"main.png"_s));
    for (const QString& name : {u"popup"_s, u"submenu"_s, u"colours"_s, u"contextmenu"_s, u"dark"_s})
        EXPECT_NE(QImage(folder.filePath(name + u".png"_s)), main) << name.toStdString();
}

TEST(Screenshots, TheWindowIsLightAndClosedUpAfterwards)
{
    GalleryWindow gallery;
    const QTemporaryDir folder;

    Screenshots(gallery.GetSession(), gallery.Window(), folder.path()).TakeAll();

    EXPECT_FALSE(gallery.GetSession().View()->dark);
    EXPECT_FALSE(gallery.GetSession().Menu()->IsTracking());
}

TEST(Screenshots, TheStatusLineTellsOfAKey)
{
    GalleryWindow gallery;
    const QTemporaryDir folder;

    Screenshots(gallery.GetSession(), gallery.Window(), folder.path()).TakeAll();

    EXPECT_EQ(gallery.GetSession().LastCommand(), u"ViewPalette(light)"_s);
}

TEST(Screenshots, AFolderThatCannotBeMadeIsTold)
{
    GalleryWindow gallery;
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"taken"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    Screenshots pictures(gallery.GetSession(), gallery.Window(), file.fileName());

    EXPECT_FALSE(pictures.TakeAll());

    EXPECT_EQ(pictures.Error(), file.fileName() + u"/main.png cannot be written."_s);
}
