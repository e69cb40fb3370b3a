#include "gallery/live/LiveAddresses.h"

#include "tests/gallery/DeveloperMode.h"

using namespace Qt::StringLiterals;
using Gallery::GalleryUrl;
using Gallery::LiveAddresses;

TEST(LiveAddresses, StayAsTheyAreWithoutTheDevelopersMode)
{
    LiveAddresses addresses;

    EXPECT_EQ(addresses.intercept(GalleryUrl(u"Theme.qml"_s), LiveAddresses::QmlFile),
              GalleryUrl(u"Theme.qml"_s));
    EXPECT_EQ(Gallery::LiveFolders(), QStringList());
}

TEST(LiveAddresses, ComeFromTheSourceTreeInTheDevelopersMode)
{
    const DeveloperMode mode;
    LiveAddresses addresses;

    const QUrl found = addresses.intercept(GalleryUrl(u"Theme.qml"_s), LiveAddresses::QmlFile);

    EXPECT_TRUE(found.isLocalFile()) << found.toString().toStdString();
    EXPECT_TRUE(found.path().endsWith(u"/branch9/src/arbor_qml_support/gallery/Theme.qml"_s));
}

TEST(LiveAddresses, TheListOfTypesStaysTheCompiledOne)
{
    const DeveloperModeOnCopy mode;
    mode.Copy().Write(u"qmldir"_s, "module Other");
    LiveAddresses addresses;

    EXPECT_EQ(addresses.intercept(GalleryUrl(u"qmldir"_s), LiveAddresses::QmldirFile),
              GalleryUrl(u"qmldir"_s));
}

TEST(LiveAddresses, ComeFromAFolderThatWasNamed)
{
    const DeveloperModeOnCopy mode;
    LiveAddresses addresses;

    EXPECT_EQ(addresses.intercept(GalleryUrl(u"pages/PicturePage.qml"_s), LiveAddresses::QmlFile),
              QUrl::fromLocalFile(mode.Copy().Path(u"pages/PicturePage.qml"_s)));
}

TEST(LiveAddresses, WhatTheFolderLacksIsTheCompiledOne)
{
    const DeveloperModeOnCopy mode;
    ASSERT_TRUE(QFile::remove(mode.Copy().Path(u"Theme.qml"_s)));
    LiveAddresses addresses;

    EXPECT_EQ(addresses.intercept(GalleryUrl(u"Theme.qml"_s), LiveAddresses::QmlFile),
              GalleryUrl(u"Theme.qml"_s));
}

TEST(LiveAddresses, TheFoldersAreThoseOfTheWindowAndOfThePages)
{
    const DeveloperModeOnCopy mode;

    EXPECT_EQ(Gallery::LiveFolders(), (QStringList{mode.Copy().Folder(), mode.Copy().Path(u"pages"_s)}));
}
