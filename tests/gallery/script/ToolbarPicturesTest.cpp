#include "gallery/script/ToolbarPictures.h"

#include "tests/gallery/MainWindow.h"

#include <QDir>
#include <QGuiApplication>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

QString take(MainWindow& gallery, const QString& folder)
{
    return Gallery::TakeToolbarPictures(gallery.GetSession(), gallery.Window(), folder);
}

}

TEST(ToolbarPictures, ThreeWidthsAreTakenLightAndDarkInBothDirections)
{
    MainWindow gallery;
    const QTemporaryDir folder;

    EXPECT_EQ(take(gallery, folder.filePath(u"new"_s)), QString());

    for (const QString& suffix : {u""_s, u"-dark"_s, u"-rtl"_s, u"-dark-rtl"_s}) {
        const auto width = [&](const QString& name) {
            return QImage(folder.filePath(u"new/%1%2.png"_s.arg(name, suffix))).width();
        };
        EXPECT_EQ(width(u"narrow"_s), 640) << suffix.toStdString();
        EXPECT_EQ(width(u"middle"_s), 900) << suffix.toStdString();
        EXPECT_EQ(width(u"wide"_s), 1440) << suffix.toStdString();
        EXPECT_EQ(width(u"customise"_s), 1180) << suffix.toStdString();
    }
}

TEST(ToolbarPictures, TheWindowIsAsItWasAfterwards)
{
    MainWindow gallery;
    const QTemporaryDir folder;

    take(gallery, folder.path());

    EXPECT_EQ(gallery.Window().width(), 1180);
    EXPECT_FALSE(gallery.GetSession().View()->dark);
    EXPECT_FALSE(gallery.GetSession().GetToolbars()->Setup()->IsActive());
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::LeftToRight);
}

TEST(ToolbarPictures, AFolderThatCannotBeMadeIsTold)
{
    MainWindow gallery;
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"taken"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));

    EXPECT_EQ(take(gallery, file.fileName()), file.fileName() + u"/narrow.png cannot be written."_s);
}
