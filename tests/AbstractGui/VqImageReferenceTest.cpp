#include "AbstractGui/VqImageReference.h"

#include "tests/AbstractGui/TestBitmapPool.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <string>

using testing::ElementsAre;

namespace {

std::string plain(const CVqStringW& text)
{
    return text.ToQString().toStdString();
}

struct WriteRow
{
    const char* name;
    const vq_wchar* module;
    const vq_wchar* file;
    const char* stored;
};

void PrintTo(const WriteRow& row, std::ostream* out)
{
    *out << row.name;
}

struct ReadRow
{
    const char* name;
    const vq_wchar* module;
    const vq_wchar* file;
    const char* handed_on;
    bool through_replace_debug;
};

void PrintTo(const ReadRow& row, std::ostream* out)
{
    *out << row.name;
}

struct NameRow
{
    const char* name;
    const vq_wchar* path;
    const vq_wchar* expected;
};

void PrintTo(const NameRow& row, std::ostream* out)
{
    *out << row.name;
}

constexpr vq_wchar lone_surrogate[] = {VQ_TEXT('a'), 0xD800, VQ_TEXT('b'), 0};

// None of these files exists.
const WriteRow write_rows[] = {
    {"FileBelowTheModuleIsFollowedByTheWayToIt", VQ_TEXT("/arbor-none/app.so"),
     VQ_TEXT("/arbor-none/img/a.png"), "/arbor-none/img/a.pngimga.png"},
    {"TwoFoldersBelow", VQ_TEXT("/arbor-none/app.so"), VQ_TEXT("/arbor-none/img/new/a.png"),
     "/arbor-none/img/new/a.pngimg/newa.png"},
    {"BesideTheModuleTheWayIsADot", VQ_TEXT("/arbor-none/app.so"), VQ_TEXT("/arbor-none/a.png"),
     "/arbor-none/a.png.a.png"},
    {"AboveTheModuleItStands", VQ_TEXT("/arbor-none/bin/app.so"), VQ_TEXT("/arbor-none/a.png"),
     "/arbor-none/a.png"},
    {"BesideTheModulesFolderItStands", VQ_TEXT("/arbor-none/bin/app.so"), VQ_TEXT("/arbor-none/img/a.png"),
     "/arbor-none/img/a.png"},
    {"FolderWithTwoDotsInItsNameCountsAsAbove", VQ_TEXT("/arbor-none/app.so"),
     VQ_TEXT("/arbor-none/im..g/a.png"), "/arbor-none/im..g/a.png"},
    {"RelativeFileHasNoWayFromAnAbsoluteModule", VQ_TEXT("/arbor-none/app.so"),
     VQ_TEXT("arbor-none-img/a.png"), "arbor-none-img/a.png"},
    {"WayIsMadeOfCanonicalPathsAndTheFileStays", VQ_TEXT("/arbor-none/bin/../app.so"),
     VQ_TEXT("/arbor-none/./img/../img/a.png"), "/arbor-none/./img/../img/a.pngimga.png"},
    {"WithoutAModuleABareNameIsInItsFolder", VQ_TEXT(""), VQ_TEXT("arbor-none.png"),
     "arbor-none.png.arbor-none.png"},
    {"NoFileStaysNoFile", VQ_TEXT(""), VQ_TEXT(""), ""},
};

const ReadRow read_rows[] = {
    {"BareNameFollowsTheModulesFolderDirectly", VQ_TEXT("/arbor-none/app.so"), VQ_TEXT("a.png"),
     "/arbor-nonea.png", true},
    {"WithoutAModuleABareNameStandsAlone", VQ_TEXT(""), VQ_TEXT("arbor-none.png"), "arbor-none.png", true},
    {"NameOfModuleIsMadeCanonical", VQ_TEXT("/arbor-none/x/../app.so"), VQ_TEXT("a.png"), "/arbor-nonea.png",
     true},
    {"NameInTheWorkingFolderStays", VQ_TEXT("/arbor-none/app.so"), VQ_TEXT("./arbor-none.png"),
     "./arbor-none.png", false},
    {"NameWithAFolderStays", VQ_TEXT("/arbor-none/app.so"), VQ_TEXT("arbor-none-img/a.png"),
     "arbor-none-img/a.png", false},
    {"NameWithARootStays", VQ_TEXT("/arbor-none/app.so"), VQ_TEXT("/a.png"), "/a.png", false},
    {"StayingNameIsNotMadeCanonical", VQ_TEXT("/arbor-none/app.so"), VQ_TEXT("/arbor-none/../a.png"),
     "/arbor-none/../a.png", false},
    {"NullIsHandedOnUnchanged", VQ_TEXT("/arbor-none/app.so"), VQ_TEXT("NULL"), "NULL", false},
    {"NullInSmallLettersIsABareName", VQ_TEXT("/arbor-none/app.so"), VQ_TEXT("null"), "/arbor-nonenull",
     true},
};

const NameRow name_rows[] = {
    {"Bare", VQ_TEXT("a.png"), VQ_TEXT("a.png")},
    {"BehindSlashes", VQ_TEXT("/img/new/a.png"), VQ_TEXT("a.png")},
    {"BehindBackslashes", VQ_TEXT("C:\\img\\new\\a.png"), VQ_TEXT("a.png")},
    {"BehindBoth", VQ_TEXT("C:\\img/new\\a.png"), VQ_TEXT("a.png")},
    {"BehindTheDrive", VQ_TEXT("C:a.png"), VQ_TEXT("a.png")},
    {"BehindANetworkName", VQ_TEXT("\\\\server\\share\\a.png"), VQ_TEXT("a.png")},
    {"ColonElsewhereIsPartOfTheName", VQ_TEXT("ab:c.png"), VQ_TEXT("ab:c.png")},
    {"ColonInFrontIsPartOfTheName", VQ_TEXT(":a.png"), VQ_TEXT(":a.png")},
    {"SeveralDots", VQ_TEXT("img/a.b.png"), VQ_TEXT("a.b.png")},
    {"DotInAFolderOnly", VQ_TEXT("im.g/a"), VQ_TEXT("a")},
    {"ExtensionOnly", VQ_TEXT("img/.png"), VQ_TEXT(".png")},
    {"Folder", VQ_TEXT("img/"), VQ_TEXT("")},
    {"DriveOnly", VQ_TEXT("C:"), VQ_TEXT("")},
    {"Empty", VQ_TEXT(""), VQ_TEXT("")},
};

template <class Row>
std::string name_of_row(const testing::TestParamInfo<Row>& row)
{
    return row.param.name;
}

/// The file system's working folder is a new empty one for the time of a test.
class InEmptyFolder
{
public:
    InEmptyFolder() : m_former(QDir::currentPath()) { QDir::setCurrent(m_folder.path()); }
    ~InEmptyFolder() { QDir::setCurrent(m_former); }

private:
    QTemporaryDir m_folder;
    const QString m_former;
};

class VqImageReferenceWrite : public testing::TestWithParam<WriteRow>
{ };

class VqImageReferenceRead : public testing::TestWithParam<ReadRow>
{ };

class VqFileName : public testing::TestWithParam<NameRow>
{ };

}

// Writing, lightweight form ---------------------------------------------------------------------------

TEST_P(VqImageReferenceWrite, GivesFileWithItsWay)
{
    const InEmptyFolder here;
    TestBitmapPool& pool = TestBitmapPool::Fresh();
    pool.SetModule(GetParam().module);
    pool.SetSource(5, GetParam().file, VQ_TEXT("res"));

    const SVqImageReference image = VqImageReferenceFromModule(5);

    EXPECT_EQ(plain(image.file), GetParam().stored);
    EXPECT_EQ(plain(image.resource), "res");
}

INSTANTIATE_TEST_SUITE_P(Rows, VqImageReferenceWrite, testing::ValuesIn(write_rows), name_of_row<WriteRow>);

TEST(VqImageReference, LinksAreFollowedOnTheWayFromTheModule)
{
    const QTemporaryDir folder;
    const QDir dir(QFileInfo(folder.path()).canonicalFilePath());
    ASSERT_TRUE(dir.mkdir(QStringLiteral("real")));
    ASSERT_TRUE(QFile::link(dir.filePath(QStringLiteral("real")), dir.filePath(QStringLiteral("link"))));
    TestBitmapPool& pool = TestBitmapPool::Fresh();
    pool.SetModule(CVqStringW::FromQString(dir.filePath(QStringLiteral("app.so"))));
    pool.SetSource(5, CVqStringW::FromQString(dir.filePath(QStringLiteral("link/a.png"))), VQ_TEXT(""));

    const SVqImageReference image = VqImageReferenceFromModule(5);

    EXPECT_EQ(plain(image.file), dir.filePath(QStringLiteral("link/a.pngreala.png")).toStdString());
}

TEST(VqImageReference, UnknownImageHasNoReference)
{
    TestBitmapPool::Fresh();

    const SVqImageReference image = VqImageReferenceFromModule(5);

    EXPECT_TRUE(image.file.IsEmpty());
    EXPECT_TRUE(image.resource.IsEmpty());
}

TEST(VqImageReference, ModuleNameIsCutAt259Units)
{
    TestBitmapPool& pool = TestBitmapPool::Fresh();
    CVqStringW folder(VQ_TEXT("/arbor-none"));
    while (folder.GetLength() < 259)
        folder += VQ_TEXT("/abcdefghi");
    pool.SetModule(folder + VQ_TEXT("/app.so"));
    // 11 + 24 * 10 = 251, so the cut name ends in "/abcdefg", in the folder of the first 251 units.
    pool.SetSource(5, folder.Left(251) + VQ_TEXT("/img/a.png"), VQ_TEXT(""));

    const SVqImageReference image = VqImageReferenceFromModule(5);

    EXPECT_EQ(plain(image.file), plain(folder.Left(251)) + "/img/a.pngimga.png");
}

TEST(VqImageReference, TooLongFileNameIsStoredAsItIs)
{
    TestBitmapPool& pool = TestBitmapPool::Fresh();
    CVqStringW file(VQ_TEXT("/"));
    file += CVqStringW(std::basic_string<vq_wchar>(300, VQ_TEXT('a')));
    pool.SetModule(VQ_TEXT("/app.so"));
    pool.SetSource(5, file, VQ_TEXT("res"));

    const SVqImageReference image = VqImageReferenceFromModule(5);

    EXPECT_EQ(image.file, file);
    EXPECT_EQ(plain(image.resource), "res");
}

TEST(VqImageReference, FileNameWithALoneSurrogateIsStoredAsItIs)
{
    TestBitmapPool& pool = TestBitmapPool::Fresh();
    pool.SetSource(5, lone_surrogate, VQ_TEXT(""));

    EXPECT_EQ(VqImageReferenceFromModule(5).file, lone_surrogate);
}

TEST(VqImageReference, FileIsStoredAsItIsBesideARefusedModule)
{
    TestBitmapPool& pool = TestBitmapPool::Fresh();
    pool.SetModule(lone_surrogate);
    pool.SetSource(5, VQ_TEXT("/a.png"), VQ_TEXT(""));

    EXPECT_EQ(plain(VqImageReferenceFromModule(5).file), "/a.png");
}

TEST(VqImageReference, FileInALoopOfLinksIsStoredAsItIs)
{
    const QTemporaryDir folder;
    const QDir dir(folder.path());
    ASSERT_TRUE(QFile::link(dir.filePath(QStringLiteral("loop")), dir.filePath(QStringLiteral("loop"))));
    TestBitmapPool& pool = TestBitmapPool::Fresh();
    pool.SetModule(CVqStringW::FromQString(dir.filePath(QStringLiteral("app.so"))));
    const CVqStringW file = CVqStringW::FromQString(dir.filePath(QStringLiteral("loop/a.png")));
    pool.SetSource(5, file, VQ_TEXT(""));

    EXPECT_EQ(VqImageReferenceFromModule(5).file, file);
}

// Writing, tree form ----------------------------------------------------------------------------------

TEST(VqImageReference, ByNameKeepsFileNameAndExtensionOnly)
{
    TestBitmapPool& pool = TestBitmapPool::Fresh();
    pool.SetModule(VQ_TEXT("/app.so"));
    pool.SetSource(5, VQ_TEXT("C:\\img/new\\a.b.png"), VQ_TEXT("dir/res"));

    const SVqImageReference image = VqImageReferenceByName(5);

    EXPECT_EQ(plain(image.file), "a.b.png");
    EXPECT_EQ(plain(image.resource), "dir/res");
}

TEST(VqImageReference, ByNameOfAnUnknownImageHasNoReference)
{
    TestBitmapPool::Fresh();

    EXPECT_TRUE(VqImageReferenceByName(5).file.IsEmpty());
}

TEST_P(VqFileName, IsWhatStandsBehindDriveAndFolders)
{
    EXPECT_EQ(VqFileNameAndExtension(GetParam().path), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, VqFileName, testing::ValuesIn(name_rows), name_of_row<NameRow>);

// Reading ---------------------------------------------------------------------------------------------

TEST_P(VqImageReferenceRead, HandsOnTheFile)
{
    const InEmptyFolder here;
    TestBitmapPool& pool = TestBitmapPool::Fresh();
    pool.SetModule(GetParam().module);
    pool.SetDebugSuffix(VQ_TEXT("-d"));
    const std::string handed_on = GetParam().handed_on;

    EXPECT_EQ(VqAddReferencedImage({GetParam().file, VQ_TEXT("res")}), 100);

    if (GetParam().through_replace_debug)
        EXPECT_THAT(
            pool.TakeCalls(),
            ElementsAre("ReplaceDebug " + handed_on, "AddImage " + handed_on + "-d, res, null = 100"));
    else
        EXPECT_THAT(pool.TakeCalls(), ElementsAre("AddImage " + handed_on + ", res, null = 100"));
}

INSTANTIATE_TEST_SUITE_P(Rows, VqImageReferenceRead, testing::ValuesIn(read_rows), name_of_row<ReadRow>);

TEST(VqImageReference, BareNameOfAFileInTheWorkingFolderHasARootAndStays)
{
    const InEmptyFolder here;
    QFile file(QStringLiteral("a.png"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    TestBitmapPool& pool = TestBitmapPool::Fresh();
    pool.SetModule(VQ_TEXT("/arbor-none/app.so"));

    VqAddReferencedImage({VQ_TEXT("a.png"), VQ_TEXT("")});

    EXPECT_THAT(pool.TakeCalls(), ElementsAre("AddImage a.png, , null = 100"));
}

TEST(VqImageReference, CodeOfThePoolIsGivenBack)
{
    TestBitmapPool::Fresh().SetNextIndex(-9);

    EXPECT_EQ(VqAddReferencedImage({VQ_TEXT("/a.png"), VQ_TEXT("")}), -9);
}

TEST(VqImageReference, TooLongNameIsHandedOnAsItIs)
{
    TestBitmapPool& pool = TestBitmapPool::Fresh();
    const std::string name(300, 'a');

    VqAddReferencedImage({CVqStringW(name.c_str()), VQ_TEXT("")});

    EXPECT_THAT(pool.TakeCalls(), ElementsAre("AddImage " + name + ", , null = 100"));
}

TEST(VqImageReference, NameWithALoneSurrogateIsHandedOnAsItIs)
{
    TestBitmapPool& pool = TestBitmapPool::Fresh();

    EXPECT_EQ(VqAddReferencedImage({lone_surrogate, VQ_TEXT("")}), 100);

    EXPECT_THAT(pool.TakeCalls(), ElementsAre("AddImage a\\uD800b, , null = 100"));
}

TEST(VqImageReference, NameIsHandedOnAsItIsBesideARefusedModule)
{
    TestBitmapPool& pool = TestBitmapPool::Fresh();
    pool.SetModule(lone_surrogate);

    VqAddReferencedImage({VQ_TEXT("arbor-none.png"), VQ_TEXT("")});

    EXPECT_THAT(pool.TakeCalls(), ElementsAre("AddImage arbor-none.png, , null = 100"));
}
