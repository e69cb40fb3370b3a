#include "qml/CVqFilePathApi.h"
#include "tests/qml/FolderTree.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

// Lists of names, and the folders of the AI networks.

namespace {

/// In a folder of its own that is empty.
class CVqFilePathApiLists : public testing::Test
{
protected:
    QString Path(const QString& name) const { return m_folder.filePath(name); }

    void MakeFiles(const QStringList& names) const
    {
        for (const QString& name : names)
            EXPECT_TRUE(write_file(Path(name)));
    }

    const CVqFilePathApi m_api;

private:
    const QTemporaryDir m_folder;
};

struct NetworkRow
{
    const char* name;
    QString path; // $APP stands for the application's folder
    QString expected;
};

void PrintTo(const NetworkRow& row, std::ostream* out)
{
    *out << row.name;
}

const NetworkRow network_rows[] = {
    {"BelowTheApplication", u"$APP/nets/one.net"_s, u"./nets/one.net"_s},
    {"BelowTheApplicationBySomeWay", u"$APP/nets/../other/one.net"_s, u"./other/one.net"_s},
    {"TheApplicationsFolder", u"$APP"_s, u"./."_s},
    {"FolderWhoseNameBeginsAlike", u"$APP-2/one.net"_s, u"./../$NAME-2/one.net"_s},
    {"Elsewhere", u"/none/one.net"_s, u"/none/one.net"_s},
    {"ElsewhereBySomeWayStaysAsItIs", u"/none/../none/one.net"_s, u"/none/../none/one.net"_s},
    {"Relative", u"nets/one.net"_s, u"nets/one.net"_s},
    {"PlaceHolderInTheName", u"$APP/%1%2.net"_s, u"./%1%2.net"_s},
    {"Empty", u""_s, u""_s},
};

class CVqFilePathApiNetworks : public testing::TestWithParam<NetworkRow>
{
protected:
    static QString Filled(QString text)
    {
        const QString application = QCoreApplication::applicationDirPath();
        return text.replace(u"$APP"_s, application).replace(u"$NAME"_s, application.section(u'/', -1));
    }
};

}

// Lists of names ---------------------------------------------------------------------------------------

TEST_F(CVqFilePathApiLists, FilesAndFoldersAreSortedWithoutRegardToCase)
{
    MakeFiles({u"b.txt"_s, u"A.txt"_s, u"C.png"_s, u"ä"_s});
    ASSERT_TRUE(QDir().mkdir(Path(u"bb"_s)));

    EXPECT_EQ(m_api.filesInFolder(Path(QString()), QString()),
              QStringList({u"."_s, u".."_s, u"A.txt"_s, u"b.txt"_s, u"bb"_s, u"C.png"_s, u"ä"_s}));
}

TEST_F(CVqFilePathApiLists, EmptyFilterListsEverythingAlsoFolders)
{
    MakeFiles({u"file"_s, u"no suffix"_s, u"picture.png"_s});
    ASSERT_TRUE(QDir().mkdir(Path(u"folder"_s)));

    EXPECT_EQ(m_api.filesInFolder(Path(QString()), QString()),
              QStringList({u"."_s, u".."_s, u"file"_s, u"folder"_s, u"no suffix"_s, u"picture.png"_s}));
}

TEST_F(CVqFilePathApiLists, FilterHasSeveralPatternsInAnyCase)
{
    MakeFiles({u"one.TXT"_s, u"two.png"_s, u"three.jpg"_s});

    EXPECT_EQ(m_api.filesInFolder(Path(QString()), u"*.txt *.PNG"_s),
              QStringList({u"one.TXT"_s, u"two.png"_s}));
    EXPECT_EQ(m_api.filesInFolder(Path(QString()), u"*.txt;*.jpg"_s),
              QStringList({u"one.TXT"_s, u"three.jpg"_s}));
}

TEST_F(CVqFilePathApiLists, FilterHoldsForFoldersToo)
{
    ASSERT_TRUE(QDir().mkpath(Path(u"one.d"_s)) && QDir().mkpath(Path(u"two"_s)));

    EXPECT_EQ(m_api.filesInFolder(Path(QString()), u"*.d"_s), QStringList({u"one.d"_s}));
}

TEST_F(CVqFilePathApiLists, HiddenFilesAndLinksToNothingAreLeftOut)
{
    MakeFiles({u".hidden"_s, u"file"_s});
    ASSERT_TRUE(QFile::link(Path(u"file"_s), Path(u"link"_s))
                && QFile::link(Path(u"none"_s), Path(u"to_nothing"_s)));

    EXPECT_EQ(m_api.filesInFolder(Path(QString()), QString()),
              QStringList({u"."_s, u".."_s, u"file"_s, u"link"_s}));
}

TEST_F(CVqFilePathApiLists, NamesFromBelowAreLeftOut)
{
    ASSERT_TRUE(QDir().mkpath(Path(u"a/b"_s)));

    EXPECT_EQ(m_api.filesInFolder(Path(QString()), QString()), QStringList({u"."_s, u".."_s, u"a"_s}));
}

TEST_F(CVqFilePathApiLists, FileOrNothingInPlaceOfTheFolderGivesAnEmptyList)
{
    MakeFiles({u"file"_s});

    EXPECT_EQ(m_api.filesInFolder(Path(u"file"_s), QString()), QStringList());
    EXPECT_EQ(m_api.filesInFolder(Path(u"nothing"_s), QString()), QStringList());
}

TEST_F(CVqFilePathApiLists, EmptyFolderNameMeansTheCurrentFolder)
{
    MakeFiles({u"file"_s});
    const QString former = QDir::currentPath();
    QDir::setCurrent(Path(QString()));

    const QStringList names = m_api.filesInFolder(QString(), u"f*"_s);

    QDir::setCurrent(former);
    EXPECT_EQ(names, QStringList({u"file"_s}));
}

// Folders of the AI networks ---------------------------------------------------------------------------

TEST(CVqFilePathApiNetworkFolders, RelativeOnesBeginWithADot)
{
    const CVqFilePathApi api;

    EXPECT_EQ(api.predefAiNetworksFolder(true, false), u"./ZUQaiNetworks/Predefined/"_s);
    EXPECT_EQ(api.predefAiNetworksFolder(true, true),
              u"./5bf1378a-f976-4858-8d4a-c068207a11a6/Predefined/"_s);
}

TEST(CVqFilePathApiNetworkFolders, AbsoluteOnesBeginWithTheApplicationsFolder)
{
    const CVqFilePathApi api;
    const QString application = QCoreApplication::applicationDirPath();

    EXPECT_EQ(api.predefAiNetworksFolder(false, false), application + u"/ZUQaiNetworks/Predefined/"_s);
    EXPECT_EQ(api.predefAiNetworksFolder(false, true),
              application + u"/5bf1378a-f976-4858-8d4a-c068207a11a6/Predefined/"_s);
}

TEST_P(CVqFilePathApiNetworks, AreSeenFromTheApplication)
{
    EXPECT_EQ(CVqFilePathApi().formatAiNetworkPath(Filled(GetParam().path)), Filled(GetParam().expected));
}

INSTANTIATE_TEST_SUITE_P(Paths, CVqFilePathApiNetworks, testing::ValuesIn(network_rows),
                         [](const auto& row) { return row.param.name; });

TEST(CVqFilePathApiNetworkFolders, PathThatDiffersFromTheApplicationsFolderInCaseAloneStaysAsItIs)
{
    const QString path = QCoreApplication::applicationDirPath().toUpper() + u"/one.net"_s;

    EXPECT_EQ(CVqFilePathApi().formatAiNetworkPath(path), path);
}
