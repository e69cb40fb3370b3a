#include "qml/CVqFilePathApi.h"

#include "tests/qml/ChildProcess.h"
#include "tests/qml/FolderTree.h"
#include "tests/qml/MetaObjectTexts.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;

// The meta-object, and questions about paths and files.

namespace {

using TextQuestion = QString (CVqFilePathApi::*)(const QString&) const;
using Question = bool (CVqFilePathApi::*)(const QString&) const;

struct TextRow
{
    const char* name;
    TextQuestion question;
    QString path;
    QString expected;
};

void PrintTo(const TextRow& row, std::ostream* out)
{
    *out << row.name;
}

const TextRow text_rows[] = {
    {"FileName", &CVqFilePathApi::fileName, u"/none/b.c/archive.tar.gz"_s, u"archive.tar.gz"_s},
    {"FileNameOfAFolderWithASlashBehind", &CVqFilePathApi::fileName, u"/none/b/"_s, u""_s},
    {"FileNameThatIsNotAscii", &CVqFilePathApi::fileName, u"/none/Größe 画像.png"_s, u"Größe 画像.png"_s},
    {"BaseName", &CVqFilePathApi::baseName, u"/none/b.c/archive.tar.gz"_s, u"archive"_s},
    {"BaseNameOfAHiddenFile", &CVqFilePathApi::baseName, u"/none/.profile"_s, u""_s},
    {"CompleteBaseName", &CVqFilePathApi::completeBaseName, u"/none/b.c/archive.tar.gz"_s, u"archive.tar"_s},
    {"Suffix", &CVqFilePathApi::suffix, u"/none/b.c/archive.tar.gz"_s, u"gz"_s},
    {"SuffixOfANameWithoutOne", &CVqFilePathApi::suffix, u"/none/b.c/archive"_s, u""_s},
    {"CompleteSuffix", &CVqFilePathApi::completeSuffix, u"/none/b.c/archive.tar.gz"_s, u"tar.gz"_s},
    {"AbsolutePath", &CVqFilePathApi::absolutePath, u"/none/b/../c/file"_s, u"/none/c"_s},
    {"AbsoluteFilePath", &CVqFilePathApi::absoluteFilePath, u"/none/b/../c/file"_s, u"/none/c/file"_s},
    {"CanonicalFilePathOfNothing", &CVqFilePathApi::canonicalFilePath, u"/none/b/file"_s, u""_s},
    {"NativeSeparators", &CVqFilePathApi::toNativeSeparators, u"/none/b"_s, u"/none/b"_s},
    {"SeparatorsFromNative", &CVqFilePathApi::fromNativeSeparators, u"/none/b"_s, u"/none/b"_s},
    {"EmptyFileName", &CVqFilePathApi::fileName, u""_s, u""_s},
    {"EmptyBaseName", &CVqFilePathApi::baseName, u""_s, u""_s},
    {"EmptyCompleteBaseName", &CVqFilePathApi::completeBaseName, u""_s, u""_s},
    {"EmptyAbsolutePath", &CVqFilePathApi::absolutePath, u""_s, u""_s},
    {"EmptyAbsoluteFilePath", &CVqFilePathApi::absoluteFilePath, u""_s, u""_s},
    {"EmptySuffix", &CVqFilePathApi::suffix, u""_s, u""_s},
    {"EmptyCompleteSuffix", &CVqFilePathApi::completeSuffix, u""_s, u""_s},
    {"EmptyCanonicalPath", &CVqFilePathApi::canonicalPath, u""_s, u""_s},
    {"EmptyCanonicalFilePath", &CVqFilePathApi::canonicalFilePath, u""_s, u""_s},
    {"EmptyNativeSeparators", &CVqFilePathApi::toNativeSeparators, u""_s, u""_s},
    {"EmptySeparatorsFromNative", &CVqFilePathApi::fromNativeSeparators, u""_s, u""_s},
};

class CVqFilePathApiTexts : public testing::TestWithParam<TextRow>
{ };

struct BoolRow
{
    const char* name;
    Question question;
    QString path; // below the folder of the test, but for absolute and empty paths
    bool expected;
};

void PrintTo(const BoolRow& row, std::ostream* out)
{
    *out << row.name;
}

const BoolRow bool_rows[] = {
    {"FileExists", &CVqFilePathApi::exists, u"file"_s, true},
    {"FolderExists", &CVqFilePathApi::exists, u"folder"_s, true},
    {"NothingDoesNotExist", &CVqFilePathApi::exists, u"nothing"_s, false},
    {"LinkToNothingDoesNotExist", &CVqFilePathApi::exists, u"to_nothing"_s, false},
    {"EmptyPathDoesNotExist", &CVqFilePathApi::exists, u""_s, false},
    {"FolderIsAFolder", &CVqFilePathApi::isDir, u"folder"_s, true},
    {"LinkToAFolderIsAFolder", &CVqFilePathApi::isDir, u"to_folder"_s, true},
    {"FileIsNoFolder", &CVqFilePathApi::isDir, u"file"_s, false},
    {"NothingIsNoFolder", &CVqFilePathApi::isDir, u"nothing"_s, false},
    {"EmptyPathIsNoFolder", &CVqFilePathApi::isDir, u""_s, false},
    {"FileIsAFile", &CVqFilePathApi::isFile, u"file"_s, true},
    {"FolderIsNoFile", &CVqFilePathApi::isFile, u"folder"_s, false},
    {"NothingIsNoFile", &CVqFilePathApi::isFile, u"nothing"_s, false},
    {"EmptyPathIsNoFile", &CVqFilePathApi::isFile, u""_s, false},
    {"AbsoluteIsAbsolute", &CVqFilePathApi::isAbsolute, u"/none"_s, true},
    {"RelativeIsNotAbsolute", &CVqFilePathApi::isAbsolute, u"file"_s, false},
    {"EmptyPathIsNotAbsolute", &CVqFilePathApi::isAbsolute, u""_s, false},
    {"RelativeIsRelative", &CVqFilePathApi::isRelative, u"file"_s, true},
    {"AbsoluteIsNotRelative", &CVqFilePathApi::isRelative, u"/none"_s, false},
    {"EmptyPathIsNotRelative", &CVqFilePathApi::isRelative, u""_s, false},
    {"FileIsNative", &CVqFilePathApi::isNativePath, u"file"_s, true},
    {"CompiledResourceIsNotNative", &CVqFilePathApi::isNativePath, u":/none"_s, false},
    {"EmptyPathIsNotNative", &CVqFilePathApi::isNativePath, u""_s, false},
};

/// Runs in a folder of its own with a file, a folder, a link to the folder and one to nothing.
class CVqFilePathApiFiles : public testing::Test
{
protected:
    CVqFilePathApiFiles()
    {
        QDir::setCurrent(m_folder.path());
        EXPECT_TRUE(write_file(u"file"_s));
        EXPECT_TRUE(QDir().mkdir(u"folder"_s));
        EXPECT_TRUE(QFile::link(u"folder"_s, u"to_folder"_s));
        EXPECT_TRUE(QFile::link(u"none/at/all"_s, u"to_nothing"_s));
    }

    ~CVqFilePathApiFiles() override { QDir::setCurrent(m_former); }

    QString Canonical() const { return QDir(m_folder.path()).canonicalPath(); }

    const CVqFilePathApi m_api;

private:
    const QTemporaryDir m_folder;
    const QString m_former = QDir::currentPath();
};

class CVqFilePathApiBools : public CVqFilePathApiFiles, public testing::WithParamInterface<BoolRow>
{ };

/// Those of the methods for which `is_meant` says yes.
std::vector<std::string> names_of_methods(bool (*is_meant)(const QMetaMethod&))
{
    const QMetaObject& meta = CVqFilePathApi::staticMetaObject;
    std::vector<std::string> names;
    for (int index = meta.methodOffset(); index < meta.methodCount(); ++index) {
        if (is_meant(meta.method(index)))
            names.push_back(meta.method(index).name().toStdString());
    }
    return names;
}

template <class Api>
concept gives_a_time_without_a_format = requires(const Api& api, const QString& path) {
    api.creationTime(path);
} || requires(const Api& api, const QString& path) { api.modifyTime(path); };

}

TEST(CVqFilePathApi, ListsItsMethodsInTheirOrder)
{
    EXPECT_THAT(
        MetaObjectTexts::Methods(CVqFilePathApi::staticMetaObject),
        ElementsAre("method bool exists(QString filepath)", "method bool isDir(QString filepath)",
                    "method bool isFile(QString filepath)", "method bool isAbsolute(QString filepath)",
                    "method bool isRelative(QString filepath)", "method bool isNativePath(QString filepath)",
                    "method bool isReadable(QString path)", "method bool isWritable(QString path)",
                    "method QString fileName(QString filepath)", "method QString baseName(QString filepath)",
                    "method QString completeBaseName(QString filepath)",
                    "method QString absolutePath(QString filepath)",
                    "method QString absoluteFilePath(QString filepath)",
                    "method QString suffix(QString filepath)",
                    "method QString completeSuffix(QString filepath)",
                    "method QString canonicalPath(QString filepath)",
                    "method QString canonicalFilePath(QString filepath)",
                    "method QString toNativeSeparators(QString filepath)",
                    "method QString fromNativeSeparators(QString filepath)",
                    "method QString creationTime(QString filepath, QString format)",
                    "method QString creationTime(QString filepath)",
                    "method QString modifyTime(QString filepath, QString format)",
                    "method QString modifyTime(QString filepath)", "method bool removeFile(QString filepath)",
                    "method bool renameFile(QString filepath, QString newName)",
                    "method bool createDirectory(QString folder)", "method QString urlToLocalFile(QUrl url)",
                    "method QUrl urlFromLocalFile(QString filepath)",
                    "method QString predefAiNetworksFolder(bool relative, bool useFolderGuid)",
                    "method QString formatAiNetworkPath(QString filePath)",
                    "method QStringList filesInFolder(QString strFolder, QString strNameFilter)"));
}

TEST(CVqFilePathApi, HasConstMethodsButForTheStaticOnes)
{
    EXPECT_THAT(names_of_methods([](const QMetaMethod& method) { return !method.isConst(); }),
                ElementsAre("isReadable", "isWritable"));
}

TEST(CVqFilePathApi, HasClonesOfTheMethodsWhoseFormatQmlMayLeaveOut)
{
    const auto is_clone
        = [](const QMetaMethod& method) { return (method.attributes() & QMetaMethod::Cloned) != 0; };

    EXPECT_THAT(names_of_methods(is_clone), ElementsAre("creationTime", "modifyTime"));
}

TEST(CVqFilePathApi, HoldsNoData)
{
    EXPECT_EQ(sizeof(CVqFilePathApi), sizeof(QObject));
}

TEST(CVqFilePathApi, HasNoPropertiesAndNoEnumerations)
{
    const QMetaObject& meta = CVqFilePathApi::staticMetaObject;

    EXPECT_EQ(meta.propertyCount(), meta.propertyOffset());
    EXPECT_EQ(meta.enumeratorCount(), meta.enumeratorOffset());
}

TEST(CVqFilePathApi, CallersInCppGiveTheFormatOfATime)
{
    EXPECT_FALSE(gives_a_time_without_a_format<CVqFilePathApi>);
}

TEST_P(CVqFilePathApiTexts, AnswerAboutAPath)
{
    EXPECT_EQ((CVqFilePathApi().*GetParam().question)(GetParam().path), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Paths, CVqFilePathApiTexts, testing::ValuesIn(text_rows),
                         [](const auto& row) { return row.param.name; });

TEST_P(CVqFilePathApiBools, AnswerAboutAFile)
{
    EXPECT_EQ((m_api.*GetParam().question)(GetParam().path), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Files, CVqFilePathApiBools, testing::ValuesIn(bool_rows),
                         [](const auto& row) { return row.param.name; });

TEST_F(CVqFilePathApiFiles, RelativePathIsBelowTheCurrentFolder)
{
    EXPECT_EQ(m_api.absolutePath(u"sub/file"_s), QDir::currentPath() + u"/sub"_s);
    EXPECT_EQ(m_api.absoluteFilePath(u"sub/file"_s), QDir::currentPath() + u"/sub/file"_s);
}

TEST_F(CVqFilePathApiFiles, CanonicalPathsHaveNoLinks)
{
    ASSERT_TRUE(write_file(u"folder/inner"_s));

    EXPECT_EQ(m_api.canonicalPath(u"to_folder/inner"_s), Canonical() + u"/folder"_s);
    EXPECT_EQ(m_api.canonicalFilePath(u"to_folder/inner"_s), Canonical() + u"/folder/inner"_s);
}

TEST_F(CVqFilePathApiFiles, FolderIsReadable)
{
    EXPECT_TRUE(CVqFilePathApi::isReadable(u"folder"_s));
    EXPECT_TRUE(CVqFilePathApi::isReadable(u"to_folder"_s));
}

TEST_F(CVqFilePathApiFiles, NothingIsNotReadable)
{
    EXPECT_FALSE(CVqFilePathApi::isReadable(u"nothing"_s));
    EXPECT_FALSE(CVqFilePathApi::isReadable(u"to_nothing"_s));
}

TEST_F(CVqFilePathApiFiles, FileIsReadableAsAFolderOfItsPermissionsWouldBe)
{
    EXPECT_TRUE(CVqFilePathApi::isReadable(u"file"_s));
}

TEST_F(CVqFilePathApiFiles, FolderThatMayNotBeListedIsNotReadableForAnOrdinaryUser)
{
    const std::string answer = in_child([] {
        become_ordinary_user();
        QFile::setPermissions(u"folder"_s, QFile::WriteOwner | QFile::ExeOwner);
        return yes_or_no(CVqFilePathApi::isReadable(u"folder"_s));
    });

    EXPECT_EQ(answer, "no");
}

TEST_F(CVqFilePathApiFiles, EmptyPathAsksWhetherTheCurrentFolderIsReadable)
{
    EXPECT_TRUE(CVqFilePathApi::isReadable(QString()));
}

TEST(CVqFilePathApi, AddressOfAFileBecomesItsPath)
{
    EXPECT_EQ(CVqFilePathApi().urlToLocalFile(QUrl(u"file:///none/a%20%25%C3%BC.png"_s)),
              u"/none/a %ü.png"_s);
}

TEST(CVqFilePathApi, AddressOfSomethingElseHasNoPath)
{
    EXPECT_EQ(CVqFilePathApi().urlToLocalFile(QUrl(u"qrc:/none/a.png"_s)), QString());
    EXPECT_EQ(CVqFilePathApi().urlToLocalFile(QUrl()), QString());
}

TEST(CVqFilePathApi, PathBecomesTheAddressOfAFile)
{
    EXPECT_EQ(CVqFilePathApi().urlFromLocalFile(u"/none/a %#ü.png"_s).toEncoded(),
              "file:///none/a%20%25%23%C3%BC.png");
}

TEST(CVqFilePathApi, EmptyPathBecomesAnEmptyAddress)
{
    EXPECT_EQ(CVqFilePathApi().urlFromLocalFile(QString()), QUrl());
}
