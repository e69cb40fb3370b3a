#include "gallery/files/FolderModel.h"

#include "tests/qml/ModelSignals.h"

#include <QAbstractItemModelTester>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Gallery::FolderModel;
using Lines = ModelSignals::Strings;

namespace {

QVariantMap file(const QString& name, qint64 size = 1)
{
    return {{u"name"_s, name}, {u"path"_s, u"/files/"_s + name}, {u"size"_s, size}};
}

class FolderModelUpdate : public testing::Test
{
protected:
    QStringList Names() const
    {
        QStringList names;
        for (int row = 0; row < m_model.rowCount(); ++row)
            names << m_model.data(m_model.index(row), FolderModel::NameRole).toString();
        return names;
    }

    FolderModel m_model;
    QAbstractItemModelTester m_tester{&m_model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

}

TEST_F(FolderModelUpdate, ANewListIsOneChange)
{
    const ModelSignals log(m_model);

    m_model.Update(QVariantList{file(u"a"_s), file(u"b"_s), file(u"c"_s)});

    EXPECT_EQ(Names(), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
    EXPECT_EQ(log.Lines(), Lines({"about to insert 0-2", "inserted 0-2"}));
}

TEST_F(FolderModelUpdate, TheSameListChangesNothing)
{
    m_model.Update(QVariantList{file(u"a"_s), file(u"b"_s)});
    const ModelSignals log(m_model);

    m_model.Update(QVariantList{file(u"b"_s), file(u"a"_s)});

    EXPECT_EQ(log.Lines(), Lines());
}

TEST_F(FolderModelUpdate, WhatIsGoneLeavesInRuns)
{
    m_model.Update(QVariantList{file(u"a"_s), file(u"b"_s), file(u"c"_s), file(u"d"_s), file(u"e"_s)});
    const ModelSignals log(m_model);

    m_model.Update(QVariantList{file(u"b"_s)});

    EXPECT_EQ(Names(), QStringList{u"b"_s});
    EXPECT_EQ(log.Lines(), Lines({"about to remove 2-4", "removed 2-4", "about to remove 0", "removed 0"}));
}

TEST_F(FolderModelUpdate, WhatIsNewComesBehindTheRest)
{
    m_model.Update(QVariantList{file(u"b"_s)});
    const ModelSignals log(m_model);

    m_model.Update(QVariantList{file(u"a"_s), file(u"b"_s), file(u"c"_s)});

    EXPECT_EQ(Names(), (QStringList{u"b"_s, u"a"_s, u"c"_s}));
    EXPECT_EQ(log.Lines(), Lines({"about to insert 1-2", "inserted 1-2"}));
}

TEST_F(FolderModelUpdate, AFileThatGrewKeepsItsRow)
{
    m_model.Update(QVariantList{file(u"a"_s), file(u"b"_s)});
    const ModelSignals log(m_model);

    m_model.Update(QVariantList{file(u"a"_s), file(u"b"_s, 9)});

    EXPECT_EQ(m_model.data(m_model.index(1), FolderModel::SizeRole), 9);
    EXPECT_EQ(log.Lines(), Lines({"changed 1"}));
}

TEST_F(FolderModelUpdate, AnotherFolderTakesAllRowsAwayAtOnce)
{
    m_model.Update(QVariantList{file(u"a"_s), file(u"b"_s)});
    const ModelSignals log(m_model);

    m_model.Update(QVariantList());

    EXPECT_EQ(m_model.rowCount(), 0);
    EXPECT_EQ(log.Lines(), Lines({"about to remove 0-1", "removed 0-1"}));
}

TEST(FolderModel, EachEntryHasARole)
{
    FolderModel model;

    for (const char* name : {"name", "path", "folder", "size", "sizeText", "stamp", "changed", "order"})
        EXPECT_GT(model.TranslateRole(QString::fromLatin1(name)), int(Qt::UserRole)) << name;
}
