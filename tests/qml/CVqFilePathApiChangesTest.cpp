#include "qml/CVqFilePathApi.h"
#include "tests/qml/ChildProcess.h"
#include "tests/qml/FolderTree.h"

#include <QDir>
#include <QTemporaryDir>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

// Removing, renaming and making.

namespace {

/// The names in the order of tree_below(), without what else it tells.
std::vector<std::string> names_below(const QString& folder)
{
    std::vector<std::string> names;
    for (const std::string& line : tree_below(folder))
        names.push_back(line.substr(line.rfind(' ') + 1));
    std::sort(names.begin(), names.end());
    return names;
}

/// In a folder of its own that is empty.
class CVqFilePathApiChanges : public testing::Test
{
protected:
    QString Path(const QString& name) const { return m_folder.filePath(name); }
    std::vector<std::string> Names() const { return names_below(m_folder.path()); }

    void MakeFiles(const QStringList& names) const
    {
        for (const QString& name : names)
            EXPECT_TRUE(write_file(Path(name), name.toUtf8()));
    }

    QByteArray Content(const QString& name) const
    {
        QFile file(Path(name));
        return file.open(QFile::ReadOnly) ? file.readAll() : "none";
    }

    /// What `work` answers when only the permissions of files and folders count and this folder takes no
    /// changes.
    std::string AnswerOfAnOrdinaryUser(const std::function<bool()>& work) const
    {
        return in_child([&] {
            become_ordinary_user();
            QFile::setPermissions(m_folder.path(), QFile::ReadOwner | QFile::ExeOwner);
            const std::string answer = yes_or_no(work());
            QFile::setPermissions(m_folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
            return answer;
        });
    }

    const CVqFilePathApi m_api;

private:
    const QTemporaryDir m_folder;
};

}

// Removing ---------------------------------------------------------------------------------------------

TEST_F(CVqFilePathApiChanges, FileIsRemoved)
{
    MakeFiles({u"one"_s, u"two"_s});

    EXPECT_TRUE(m_api.removeFile(Path(u"one"_s)));

    EXPECT_THAT(Names(), ElementsAre("two"));
}

TEST_F(CVqFilePathApiChanges, FolderIsNotRemoved)
{
    ASSERT_TRUE(QDir().mkdir(Path(u"folder"_s)));

    EXPECT_FALSE(m_api.removeFile(Path(u"folder"_s)));

    EXPECT_THAT(Names(), ElementsAre("folder"));
}

TEST_F(CVqFilePathApiChanges, FolderWithASlashBehindIsNotRemovedAndNothingIsPrinted)
{
    ASSERT_TRUE(QDir().mkdir(Path(u"folder"_s)));

    EXPECT_FALSE(m_api.removeFile(Path(u"folder/"_s)));

    EXPECT_THAT(Names(), ElementsAre("folder"));
}

TEST_F(CVqFilePathApiChanges, LinkIsRemovedWithoutWhatItPointsTo)
{
    MakeFiles({u"one"_s});
    ASSERT_TRUE(QFile::link(Path(u"one"_s), Path(u"link"_s)));

    EXPECT_TRUE(m_api.removeFile(Path(u"link"_s)));

    EXPECT_THAT(Names(), ElementsAre("one"));
}

TEST_F(CVqFilePathApiChanges, LinkToNothingIsRemoved)
{
    ASSERT_TRUE(QFile::link(Path(u"nothing"_s), Path(u"link"_s)));

    EXPECT_TRUE(m_api.removeFile(Path(u"link"_s)));

    EXPECT_THAT(Names(), IsEmpty());
}

TEST_F(CVqFilePathApiChanges, NothingCannotBeRemoved)
{
    EXPECT_FALSE(m_api.removeFile(Path(u"nothing"_s)));
    EXPECT_FALSE(m_api.removeFile(QString()));
}

TEST_F(CVqFilePathApiChanges, FileInAFolderThatTakesNoChangesIsNotRemoved)
{
    MakeFiles({u"one"_s});

    EXPECT_EQ(AnswerOfAnOrdinaryUser([this] { return m_api.removeFile(Path(u"one"_s)); }), "no");

    EXPECT_THAT(Names(), ElementsAre("one"));
}

// Renaming ---------------------------------------------------------------------------------------------

TEST_F(CVqFilePathApiChanges, NewNameStaysInTheFolderOfTheFile)
{
    ASSERT_TRUE(QDir().mkdir(Path(u"folder"_s)));
    MakeFiles({u"folder/one"_s});

    EXPECT_TRUE(m_api.renameFile(Path(u"folder/one"_s), u"two"_s));

    EXPECT_THAT(Names(), ElementsAre("folder", "folder/two"));
}

TEST_F(CVqFilePathApiChanges, FolderIsRenamedWithWhatIsInIt)
{
    ASSERT_TRUE(QDir().mkdir(Path(u"folder"_s)));
    MakeFiles({u"folder/one"_s});

    EXPECT_TRUE(m_api.renameFile(Path(u"folder"_s), u"Größe 画像"_s));

    EXPECT_EQ(Content(u"Größe 画像/one"_s), "folder/one");
}

TEST_F(CVqFilePathApiChanges, NewNameMayLeadToAnotherFolder)
{
    ASSERT_TRUE(QDir().mkdir(Path(u"folder"_s)));
    MakeFiles({u"one"_s, u"two"_s});

    EXPECT_TRUE(m_api.renameFile(Path(u"one"_s), u"folder/one"_s));
    EXPECT_TRUE(m_api.renameFile(Path(u"two"_s), Path(u"folder/two"_s)));

    EXPECT_THAT(Names(), ElementsAre("folder", "folder/one", "folder/two"));
}

TEST_F(CVqFilePathApiChanges, NameThatIsTakenIsRefusedAndBothFilesStay)
{
    MakeFiles({u"one"_s, u"two"_s});

    EXPECT_FALSE(m_api.renameFile(Path(u"one"_s), u"two"_s));

    EXPECT_EQ(Content(u"one"_s), "one");
    EXPECT_EQ(Content(u"two"_s), "two");
}

TEST_F(CVqFilePathApiChanges, NothingCannotBeRenamed)
{
    EXPECT_FALSE(m_api.renameFile(Path(u"nothing"_s), u"x"_s));
    EXPECT_FALSE(m_api.renameFile(QString(), u"x"_s));
    EXPECT_FALSE(m_api.renameFile(QString(), QString()));
}

TEST_F(CVqFilePathApiChanges, EmptyNewNameIsRefusedAndNothingIsPrinted)
{
    MakeFiles({u"one"_s});

    EXPECT_FALSE(m_api.renameFile(Path(u"one"_s), QString()));

    EXPECT_THAT(Names(), ElementsAre("one"));
}

TEST_F(CVqFilePathApiChanges, FolderWithASlashBehindIsNotRenamedAndNothingIsPrinted)
{
    ASSERT_TRUE(QDir().mkdir(Path(u"folder"_s)));

    EXPECT_FALSE(m_api.renameFile(Path(u"folder/"_s), u"x"_s));

    EXPECT_THAT(Names(), ElementsAre("folder"));
}

TEST_F(CVqFilePathApiChanges, FileInAFolderThatTakesNoChangesIsNotRenamed)
{
    MakeFiles({u"one"_s});

    EXPECT_EQ(AnswerOfAnOrdinaryUser([this] { return m_api.renameFile(Path(u"one"_s), u"two"_s); }), "no");

    EXPECT_THAT(Names(), ElementsAre("one"));
}

// Making -----------------------------------------------------------------------------------------------

TEST_F(CVqFilePathApiChanges, FolderIsMadeWithAllThatIsMissingAboveIt)
{
    EXPECT_TRUE(m_api.createDirectory(Path(u"a/b/c"_s)));

    EXPECT_THAT(Names(), ElementsAre("a", "a/b", "a/b/c"));
}

TEST_F(CVqFilePathApiChanges, FolderThatIsThereCountsAsMade)
{
    EXPECT_TRUE(m_api.createDirectory(Path(QString())));
}

TEST_F(CVqFilePathApiChanges, FolderIsNotMadeOnAFile)
{
    MakeFiles({u"one"_s});

    EXPECT_FALSE(m_api.createDirectory(Path(u"one"_s)));
    EXPECT_FALSE(m_api.createDirectory(Path(u"one/folder"_s)));

    EXPECT_THAT(Names(), ElementsAre("one"));
}

TEST_F(CVqFilePathApiChanges, EmptyFolderIsNotMadeAndNothingIsPrinted)
{
    EXPECT_FALSE(m_api.createDirectory(QString()));
}

TEST_F(CVqFilePathApiChanges, FolderInAFolderThatTakesNoChangesIsNotMade)
{
    EXPECT_EQ(AnswerOfAnOrdinaryUser([this] { return m_api.createDirectory(Path(u"a/b"_s)); }), "no");

    EXPECT_THAT(Names(), IsEmpty());
}
