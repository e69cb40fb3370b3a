#include "gallery/Pages.h"

#include "gallery/Translations.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Pages, ThePictureComesFirst)
{
    EXPECT_EQ(Gallery::PageNames().first(), u"PicturePage"_s);
}

TEST(Pages, EachIsACompiledResource)
{
    for (const QString& name : Gallery::PageNames())
        EXPECT_TRUE(QFile::exists(u':' + Gallery::PageUrl(name).path())) << name.toStdString();
}

TEST(Pages, EachHasATitle)
{
    EXPECT_EQ(Gallery::PageTitle(u"PicturePage"_s), u"Picture"_s);
    EXPECT_EQ(Gallery::PageTitle(u"OffscreenPage"_s), u"Offscreen"_s);
    EXPECT_EQ(Gallery::PageTitle(u"ResourcesPage"_s), u"Resources"_s);
}

TEST(Pages, AnUnknownOneHasNoTitle)
{
    EXPECT_EQ(Gallery::PageTitle(u"WobblePage"_s), QString());
}

TEST(Pages, EachCompiledPageIsInTheList)
{
    const QFileInfo first(u':' + Gallery::PageUrl(Gallery::PageNames().first()).path());

    const QFileInfoList compiled = first.dir().entryInfoList({u"*.qml"_s});

    EXPECT_EQ(compiled.size(), Gallery::PageNames().size());
    for (const QFileInfo& page : compiled)
        EXPECT_TRUE(Gallery::PageNames().contains(page.baseName())) << page.baseName().toStdString();
}

TEST(Pages, EachHasATitleInEveryLanguage)
{
    for (const QString& locale : {u"en"_s, u"de"_s}) {
        const Gallery::Translations translations(locale);

        for (const QString& name : Gallery::PageNames())
            EXPECT_FALSE(Gallery::PageTitle(name).isEmpty()) << name.toStdString();
    }
}

TEST(Pages, TitlesAreTranslated)
{
    EXPECT_EQ(Gallery::PageTitle(u"PicturePage"_s), u"Picture"_s);

    const Gallery::Translations german(u"de"_s);

    EXPECT_EQ(Gallery::PageTitle(u"PicturePage"_s), u"Bild"_s);
}
