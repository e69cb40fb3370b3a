#include "gallery/files/FolderRows.h"

#include "tests/gallery/files/FilesFolder.h"

#include <QDateTime>

using namespace Qt::StringLiterals;
using Gallery::ReadFolder;

namespace {

QStringList names_in(const QString& folder, const QString& words = {})
{
    QStringList names;
    for (const QVariant& row : ReadFolder(folder, words))
        names << row.toMap().value(u"name"_s).toString();
    return names;
}

class FolderRows : public testing::Test
{
protected:
    FolderRows()
    {
        for (const QString& name : {u"Boats.PNG"_s, u"harbour.png"_s, u"notes.txt"_s, u"[old].txt"_s})
            m_files.Write(name);
        m_files.MakeFolder(u"archive"_s);
    }

    QStringList Names(const QString& words) const { return names_in(m_files.Path(), words); }

    FilesFolder m_files;
};

}

TEST_F(FolderRows, AreAllNamesWithoutWords)
{
    EXPECT_EQ(Names({}),
              (QStringList{u"[old].txt"_s, u"archive"_s, u"Boats.PNG"_s, u"harbour.png"_s, u"notes.txt"_s}));
    EXPECT_EQ(Names(u"  "_s).size(), 5);
}

TEST_F(FolderRows, LeaveHiddenFilesOut)
{
    m_files.Write(u".hidden"_s);

    EXPECT_EQ(Names({}).size(), 5);
}

TEST_F(FolderRows, APatternMatchesWholeNamesWhateverTheCase)
{
    EXPECT_EQ(Names(u"*.png"_s), (QStringList{u"Boats.PNG"_s, u"harbour.png"_s}));
    EXPECT_EQ(Names(u"b????.*"_s), QStringList{u"Boats.PNG"_s});
    EXPECT_EQ(Names(u"*.pn?x"_s), QStringList());
}

TEST_F(FolderRows, AWordIsLookedForInNames)
{
    EXPECT_EQ(Names(u"O"_s), (QStringList{u"[old].txt"_s, u"Boats.PNG"_s, u"harbour.png"_s, u"notes.txt"_s}));
    EXPECT_EQ(Names(u"chive"_s), QStringList{u"archive"_s});
}

TEST_F(FolderRows, OneOfSeveralWordsIsEnough)
{
    EXPECT_EQ(Names(u"*.txt; boat"_s), (QStringList{u"[old].txt"_s, u"Boats.PNG"_s, u"notes.txt"_s}));
}

TEST_F(FolderRows, AMissingFolderHasNone)
{
    EXPECT_EQ(names_in(m_files.Path(u"nowhere"_s)), QStringList());
}

TEST_F(FolderRows, AFileHasSizeAndTime)
{
    m_files.Write(u"notes.txt"_s, "12345");
    QFile file(m_files.Path(u"notes.txt"_s));
    const QDateTime time(QDate(2024, 2, 29), QTime(23, 59));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.setFileTime(time, QFileDevice::FileModificationTime));
    file.close();

    const QVariantMap row = ReadFolder(m_files.Path(), u"notes"_s).value(0).toMap();

    EXPECT_EQ(row[u"name"_s], u"notes.txt"_s);
    EXPECT_EQ(row[u"path"_s], m_files.Path(u"notes.txt"_s));
    EXPECT_EQ(row[u"folder"_s], false);
    EXPECT_EQ(row[u"size"_s], 5);
    EXPECT_EQ(row[u"sizeText"_s], u"5 bytes"_s);
    EXPECT_EQ(row[u"stamp"_s], time.toMSecsSinceEpoch());
    EXPECT_EQ(row[u"changed"_s], u"2024-02-29 23:59"_s);
    EXPECT_EQ(row[u"order"_s], u"1notes.txt"_s);
}

TEST_F(FolderRows, AFolderHasNoSizeAndComesFirst)
{
    const QVariantMap row = ReadFolder(m_files.Path(), u"archive"_s).value(0).toMap();

    EXPECT_EQ(row[u"folder"_s], true);
    EXPECT_EQ(row[u"size"_s], -1);
    EXPECT_EQ(row[u"sizeText"_s], QString());
    EXPECT_EQ(row[u"order"_s], u"0archive"_s);
}
