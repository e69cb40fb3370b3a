#include "arbor_qml_support.h"
#include "tests/support/ExpectMessage.h"

#include <QFileInfo>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

// The library as it is built, on the tree that it was built from.

TEST(FindQmlResource, LibraryGivesFilesOfTheCheckoutThatItWasBuiltFrom)
{
    const ResourcePrefix row(u"/checkout-tests/"_s, u"branch9/src/arbor_qml_support/tests/"_s);
    const ExpectMessage missing(QtDebugMsg,
                                u"Resource 'qrc:///checkout-tests/README.md' not in qrc file!\n"_s);
    qputenv("ORV_DEVELOP_RESOURCES", "1");

    const QUrl found = FindQmlResource(QUrl(u"qrc:///checkout-tests/README.md"_s), {});

    qunsetenv("ORV_DEVELOP_RESOURCES");
    EXPECT_EQ(QFileInfo(found.toLocalFile()).canonicalFilePath(),
              QFileInfo(QStringLiteral(ARBOR_TESTS_FOLDER "/README.md")).canonicalFilePath());
    EXPECT_TRUE(QFileInfo::exists(found.toLocalFile()));
}

TEST(FindQmlResource, LibraryGivesTheAddressBackOutsideTheDevelopersMode)
{
    qunsetenv("ORV_DEVELOP_RESOURCES");
    const QUrl url(u"qrc:///tile_assets/b.qml"_s);

    EXPECT_EQ(FindQmlResource(url, {}), url);
}

TEST(QmlWinClassName, LibraryGivesAText)
{
    EXPECT_NE(QmlWinClassName()[0], 0);
}
