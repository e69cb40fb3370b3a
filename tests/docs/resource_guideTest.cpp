#include "docs/snippets/resource_guide.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class ResourceGuide : public ::testing::Test
{
protected:
    ResourceGuide() { qunsetenv("ORV_DEVELOP_RESOURCES"); }
    ~ResourceGuide() override { qunsetenv("ORV_DEVELOP_RESOURCES"); }
};

}

TEST_F(ResourceGuide, UsuallyThePageIsTheCompiledOne)
{
    EXPECT_EQ(main_page(), QUrl(u"qrc:///shop/Main.qml"_s));
}

TEST_F(ResourceGuide, WithTheVariableSetThePageIsTheFileInTheSources)
{
    qputenv("ORV_DEVELOP_RESOURCES", "1");

    EXPECT_EQ(main_page(), QUrl::fromLocalFile(QStringLiteral(SHOP_QML_FOLDER "/Main.qml")));
}

TEST_F(ResourceGuide, IconOfTheSkinComesBeforeTheStandardOneAndTheCompiledOne)
{
    const QTemporaryDir skin, standard;
    const QString of_skin = skin.filePath(u"open.png"_s), of_standard = standard.filePath(u"open.png"_s);
    ASSERT_TRUE(QFile(of_skin).open(QIODevice::WriteOnly));
    ASSERT_TRUE(QFile(of_standard).open(QIODevice::WriteOnly));

    EXPECT_EQ(skinned_icon(skin.path(), standard.path()), QUrl::fromLocalFile(of_skin));
    ASSERT_TRUE(QFile::remove(of_skin));
    EXPECT_EQ(skinned_icon(skin.path(), standard.path()), QUrl::fromLocalFile(of_standard));
    ASSERT_TRUE(QFile::remove(of_standard));
    EXPECT_EQ(skinned_icon(skin.path(), standard.path()), QUrl(u"qrc:///shop/icons/open.png"_s));
}
