#include "gallery/render/PageAddress.h"

#include "gallery/Pages.h"
#include "tests/gallery/DeveloperMode.h"
#include "tests/gallery/PageFolder.h"

#include <QDir>

using namespace Qt::StringLiterals;
using Gallery::PageAddress;

TEST(PageAddress, APathIsAFile)
{
    const PageFolder folder;
    const QString path = folder.Write(u"a page.qml"_s, "");
    QString error;

    EXPECT_EQ(PageAddress(path, error), QUrl::fromLocalFile(path));
    EXPECT_EQ(error, QString());
}

TEST(PageAddress, APathIsSeenFromThePresentFolder)
{
    const PageFolder folder;
    const QString path = folder.Write(u"a.qml"_s, "");
    QString error;

    EXPECT_EQ(PageAddress(QDir::current().relativeFilePath(path), error), QUrl::fromLocalFile(path));
}

TEST(PageAddress, APageOfTheGalleryGoesByItsName)
{
    QString error;

    EXPECT_EQ(PageAddress(u"PicturePage"_s, error), Gallery::PageUrl(u"PicturePage"_s));
}

TEST(PageAddress, AResourceGoesByItsAddress)
{
    QString error;

    EXPECT_EQ(PageAddress(u"qrc:///shop/a.qml"_s, error), QUrl(u"qrc:///shop/a.qml"_s));
}

TEST(PageAddress, AResourceUnderDevelopmentComesFromTheSourceTree)
{
    const DeveloperMode mode;
    QString error;

    const std::optional<QUrl> address = PageAddress(u"PicturePage"_s, error);

    ASSERT_TRUE(address);
    EXPECT_TRUE(address->isLocalFile()) << address->toString().toStdString();
}

TEST(PageAddress, AMissingFileIsToldWithThePagesThatThereAre)
{
    QString error;

    EXPECT_FALSE(PageAddress(u"WobblePage"_s, error));
    EXPECT_EQ(error,
              u"WobblePage: there is no such file, and no such page; there are %1."_s.arg(
                  Gallery::PageNames().join(u", "_s)));
}

TEST(PageAddress, AFolderIsTold)
{
    const PageFolder folder;
    QString error;

    EXPECT_FALSE(PageAddress(folder.Path(u"."_s), error));
    EXPECT_EQ(error, folder.Path(u"."_s) + u": it is a folder."_s);
}
