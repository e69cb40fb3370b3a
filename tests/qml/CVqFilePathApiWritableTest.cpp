#include "qml/CVqFilePathApi.h"
#include "tests/qml/ChildProcess.h"
#include "tests/qml/FolderTree.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/resource.h>

using namespace Qt::StringLiterals;

// Whether a folder can be written to, and that asking leaves no trace. Each case looks at the whole tree
// before and after.

namespace {

const QString longest_name = QString(255, u'n');
const QString too_long_name = QString(256, u'n');

struct PathRow
{
    const char* name;
    QString path; // below the folder of the test
    bool expected;
};

void PrintTo(const PathRow& row, std::ostream* out)
{
    *out << row.name;
}

const PathRow path_rows[] = {
    {"FolderThatIsThere", u"folder"_s, true},
    {"FolderWithASlashBehind", u"folder/"_s, true},
    {"OneMissingLevel", u"new"_s, true},
    {"ThreeMissingLevels", u"new/b/c"_s, true},
    {"MissingLevelWithASlashBehind", u"new/"_s, true},
    {"MissingLevelsBelowAFolder", u"folder/sub/new/b"_s, true},
    {"NamesThatAreNotAscii", u"Größe 画像 🖼/новый"_s, true},
    {"LongestName", longest_name, true},
    {"LongestNameTwice", longest_name + u'/' + longest_name, true},
    {"NameThatIsTooLong", too_long_name, false},
    {"NameThatIsTooLongBelowLevelsThatAreMade", u"new/b/"_s + too_long_name + u"/d"_s, false},
    {"File", u"folder/file"_s, false},
    {"BelowAFile", u"folder/file/new"_s, false},
    {"LinkToAFolder", u"to_folder"_s, true},
    {"MissingLevelsBehindALink", u"to_folder/new/b"_s, true},
    {"LinkToNothing", u"to_nothing"_s, false},
    {"BelowALinkToNothing", u"to_nothing/new"_s, false},
    {"LinkToItself", u"to_itself"_s, false},
    {"BelowALinkToItself", u"to_itself/new"_s, false},
    {"BackFromAMissingLevel", u"folder/missing/.."_s, true},
    {"BackFromTwoMissingLevels", u"folder/missing/missing/../.."_s, true},
    {"BackFromAMissingLevelToAMissingOne", u"folder/missing/../new"_s, true},
    {"BackFromALinkIsTheFolderOfTheLink", u"links/to_sub/.."_s, true},
    {"BesideALinkIsInTheFolderOfTheLink", u"links/to_sub/../beside"_s, true},
    {"DotsAndSlashes", u"./folder//./new"_s, true},
};

/// In a folder of its own:
///
///     folder/  file, sub/, beside/
///     links/   to_sub -> ../folder/sub
///     to_folder -> folder, to_nothing, to_itself
class CVqFilePathApiWritable : public testing::Test
{
protected:
    CVqFilePathApiWritable()
    {
        for (const QString& folder : {u"folder"_s, u"folder/sub"_s, u"folder/beside"_s, u"links"_s})
            EXPECT_TRUE(QDir().mkdir(Path(folder)));
        EXPECT_TRUE(write_file(Path(u"folder/file"_s)));
        EXPECT_TRUE(QFile::link(u"../folder/sub"_s, Path(u"links/to_sub"_s)));
        EXPECT_TRUE(QFile::link(u"folder"_s, Path(u"to_folder"_s)));
        EXPECT_TRUE(QFile::link(u"none/at/all"_s, Path(u"to_nothing"_s)));
        EXPECT_TRUE(QFile::link(u"to_itself"_s, Path(u"to_itself"_s)));
    }

    QString Path(const QString& name) const { return m_folder.path() + u'/' + name; }

    /// All but the times of folders, which tell when something was last put there or taken away.
    std::vector<std::string> Tree() const
    {
        std::vector<std::string> lines = tree_below(m_folder.path());
        for (std::string& line : lines) {
            const std::size_t time = line.find(' ', line.find(' ') + 1);
            if (line.starts_with("40"))
                line.erase(time, line.find(' ', time + 1) - time);
        }
        std::sort(lines.begin(), lines.end());
        return lines;
    }

    /// The answer when only the permissions of files and folders count.
    static std::string AnswerForAnOrdinaryUser(const QString& path)
    {
        return in_child([&path] {
            become_ordinary_user();
            return yes_or_no(CVqFilePathApi::isWritable(path));
        });
    }

private:
    const QTemporaryDir m_folder;
};

class CVqFilePathApiWritablePaths : public CVqFilePathApiWritable, public testing::WithParamInterface<PathRow>
{ };

/// Gives a folder other permissions for the time of its scope.
class ScopedPermissions
{
public:
    ScopedPermissions(const QString& path, mode_t permissions) : m_path(QFile::encodeName(path))
    {
        EXPECT_EQ(stat(m_path.constData(), &m_former), 0);
        EXPECT_EQ(chmod(m_path.constData(), permissions), 0);
    }

    ~ScopedPermissions() { chmod(m_path.constData(), m_former.st_mode & 07777); }

    ScopedPermissions(const ScopedPermissions&) = delete;
    ScopedPermissions& operator=(const ScopedPermissions&) = delete;

private:
    const QByteArray m_path;
    struct stat m_former = {};
};

struct PermissionRow
{
    const char* name;
    mode_t permissions;
    const char* folder;
    const char* below;
};

void PrintTo(const PermissionRow& row, std::ostream* out)
{
    *out << row.name;
}

const PermissionRow permission_rows[] = {
    {"NoWriting", 0500, "no", "no"},
    {"NoSearching", 0600, "no", "no"},
    {"NothingAtAll", 0, "no", "no"},
    {"NoReading", 0300, "yes", "yes"},
};

class CVqFilePathApiPermissions : public CVqFilePathApiWritable,
                                  public testing::WithParamInterface<PermissionRow>
{ };

}

TEST_P(CVqFilePathApiWritablePaths, AreToldApart)
{
    EXPECT_EQ(CVqFilePathApi::isWritable(Path(GetParam().path)), GetParam().expected);
}

TEST_P(CVqFilePathApiWritablePaths, AreLeftAsTheyWere)
{
    const std::vector<std::string> before = Tree();

    CVqFilePathApi::isWritable(Path(GetParam().path));

    EXPECT_EQ(Tree(), before);
}

INSTANTIATE_TEST_SUITE_P(Paths, CVqFilePathApiWritablePaths, testing::ValuesIn(path_rows),
                         [](const auto& row) { return row.param.name; });

TEST_F(CVqFilePathApiWritable, AskingAboutAFolderChangesNothingBesideAndBelowIt)
{
    const std::vector<std::string> below = tree_below(Path(u"folder"_s));
    const std::vector<std::string> beside = tree_below(Path(u"links"_s));

    EXPECT_TRUE(CVqFilePathApi::isWritable(Path(u"folder"_s)));

    EXPECT_EQ(tree_below(Path(u"folder"_s)), below);
    EXPECT_EQ(tree_below(Path(u"links"_s)), beside);
}

TEST_F(CVqFilePathApiWritable, EmptyPathIsTheCurrentFolder)
{
    const auto answer_in = [this](const QString& folder) {
        return in_child([&] {
            become_ordinary_user();
            QDir::setCurrent(Path(folder));
            return yes_or_no(CVqFilePathApi::isWritable(QString()));
        });
    };
    const ScopedPermissions read_only(Path(u"links"_s), 0500);

    EXPECT_EQ(answer_in(u"folder"_s), "yes");
    EXPECT_EQ(answer_in(u"links"_s), "no");
}

TEST_F(CVqFilePathApiWritable, RelativePathIsBelowTheCurrentFolder)
{
    const std::string answer = in_child([this] {
        QDir::setCurrent(Path(u"folder"_s));
        return yes_or_no(CVqFilePathApi::isWritable(u"../folder/file"_s))
            + yes_or_no(CVqFilePathApi::isWritable(u"new/b"_s));
    });

    EXPECT_EQ(answer, "noyes");
}

TEST_F(CVqFilePathApiWritable, PathWithoutAnythingThatExistsAboveItIsNot)
{
    const std::vector<std::string> before = Tree();

    // Above the first level of a path is the current folder, which cannot be seen here.
    const std::string answer = in_child([this] {
        QDir::setCurrent(Path(u"folder"_s));
        const ScopedPermissions none(Path(u"folder"_s), 0);
        become_ordinary_user();
        return yes_or_no(CVqFilePathApi::isWritable(u"/arbor-none/new"_s));
    });

    EXPECT_EQ(answer, "no");
    EXPECT_EQ(Tree(), before);
    EXPECT_FALSE(QFileInfo::exists(u"/arbor-none"_s));
}

TEST_F(CVqFilePathApiWritable, CompiledResourcesAreNot)
{
    EXPECT_FALSE(CVqFilePathApi::isWritable(u":/"_s));
    EXPECT_FALSE(CVqFilePathApi::isWritable(u":/none/new"_s));
}

TEST_F(CVqFilePathApiWritable, FoldersOfTheSystemAreNotForAnOrdinaryUser)
{
    EXPECT_EQ(AnswerForAnOrdinaryUser(u"/proc/self/new/b"_s), "no");
    EXPECT_EQ(AnswerForAnOrdinaryUser(u"/proc"_s), "no");
}

TEST_P(CVqFilePathApiPermissions, CountForAnOrdinaryUser)
{
    const ScopedPermissions permissions(Path(u"folder"_s), GetParam().permissions);

    EXPECT_EQ(AnswerForAnOrdinaryUser(Path(u"folder"_s)), GetParam().folder);
    EXPECT_EQ(AnswerForAnOrdinaryUser(Path(u"folder/new/b"_s)), GetParam().below);
}

TEST_P(CVqFilePathApiPermissions, AreLeftWithTheWholeTree)
{
    const std::vector<std::string> before = Tree();

    {
        const ScopedPermissions permissions(Path(u"folder"_s), GetParam().permissions);
        AnswerForAnOrdinaryUser(Path(u"folder/new/b"_s));
    }

    EXPECT_EQ(Tree(), before);
}

INSTANTIATE_TEST_SUITE_P(Permissions, CVqFilePathApiPermissions, testing::ValuesIn(permission_rows),
                         [](const auto& row) { return row.param.name; });

TEST_F(CVqFilePathApiWritable, FirstLevelGoesWhereTheSecondCannotBeMadeInIt)
{
    const std::vector<std::string> before = Tree();

    const std::string answer = in_child([this] {
        become_ordinary_user();
        umask(0777); // new folders take nothing
        return yes_or_no(CVqFilePathApi::isWritable(Path(u"new/b"_s)));
    });

    EXPECT_EQ(answer, "no");
    EXPECT_EQ(Tree(), before);
}

TEST_F(CVqFilePathApiWritable, LevelsGoWhereTheFileCannotBeOpened)
{
    const std::vector<std::string> before = Tree();

    // The first answer also leaves a sanitizer nothing to look into that it would open a pipe for.
    const std::string answers = in_child([this] {
        const std::string with_files = yes_or_no(CVqFilePathApi::isWritable(Path(u"new/b/c"_s)));
        const rlimit no_files = {0, 0};
        setrlimit(RLIMIT_NOFILE, &no_files);
        return with_files + yes_or_no(CVqFilePathApi::isWritable(Path(u"new/b/c"_s)));
    });

    EXPECT_EQ(answers, "yesno");
    EXPECT_EQ(Tree(), before);
}
