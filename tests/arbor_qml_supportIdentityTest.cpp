#include "tests/support/ToolOutput.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtEndian>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype g_slot_size = 512;
constexpr qsizetype g_slots = 13;

QByteArray section_of_library()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"ver9ID"_s));
    ToolOutput(QStringLiteral(OBJCOPY),
               {u"--dump-section"_s, u"ver9ID="_s + file.fileName(), QStringLiteral(LIBRARY_FILE),
                folder.filePath(u"copy"_s)});
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

/// Row of the section table: size, and flags as letters.
struct SectionRow
{
    qsizetype m_size;
    QString m_flags;
};

SectionRow row_of_section()
{
    const QByteArray table = ToolOutput(QStringLiteral(READELF), {u"-SW"_s, QStringLiteral(LIBRARY_FILE)});
    static const QRegularExpression columns(u" ver9ID +\\w+ +\\w+ +\\w+ +(\\w+) +\\w+ +([A-Za-z]+) "_s);
    const QRegularExpressionMatch match = columns.match(QString::fromUtf8(table));
    EXPECT_TRUE(match.hasMatch());
    return {match.captured(1).toLongLong(nullptr, 16), match.captured(2)};
}

/// What the build was configured with, in the form in which an attribute holds it.
QString configured(const QString& name)
{
    QFile cache(QStringLiteral(CACHE_FILE));
    EXPECT_TRUE(cache.open(QIODevice::ReadOnly));
    const QRegularExpression entry(u"^"_s + name + u":STRING=(.*)$"_s, QRegularExpression::MultilineOption);
    return entry.match(QString::fromUtf8(cache.readAll())).captured(1).toHtmlEscaped();
}

QString text_of_slot(const QByteArray& slot)
{
    QString text;
    for (qsizetype i = 0; i + 1 < slot.size(); i += 2)
        text += QChar(qFromLittleEndian<quint16>(slot.constData() + i));
    return text;
}

struct SlotRow
{
    const char* m_name;
    int m_slot;
    QString m_text;
};

void PrintTo(const SlotRow& row, std::ostream* out)
{
    *out << row.m_name;
}

const QList<SlotRow> g_rows{
    {"FileVersion", 0,
     u"<variant version=\"1.0\"><VQ_GLOB_FILEVERSION_WCS value=\"7, 100, 2200, 4\"/></variant>"_s},
    {"ProductVersion", 1,
     u"<variant version=\"1.0\"><VQ_GLOB_PRODUCTVERSION_WCS value=\"0, 0, 0, 0\"/></variant>"_s},
    {"CompanyName", 2,
     u"<variant version=\"1.0\"><VQ_GLOB_COMPANYNAME value=\"{ARBOR_COMPANY_NAME}\"/></variant>"_s},
    {"Copyright", 3,
     u"<variant version=\"1.0\"><VQ_GLOB_COPYRIGHT value=\"{ARBOR_COPYRIGHT}\"/></variant>"_s},
    {"Trademarks", 4, u"<variant version=\"1.0\"><VQ_GLOB_TRADEMARKS value=\"\"/></variant>"_s},
    {"Comments", 5, u"<variant version=\"1.0\"><VQ_LOCAL_COMMENTS value=\"comments...\"/></variant>"_s},
    {"FileDescription", 6,
     u"<variant version=\"1.0\"><VQ_LOCAL_FILEDESCRIPTION value=\"QML support\"/></variant>"_s},
    {"InternalName", 7,
     u"<variant version=\"1.0\"><VQ_LOCAL_INTERNALNAME value=\"arbor_qml_support\"/></variant>"_s},
    {"OriginalFileName", 8,
     u"<variant version=\"1.0\"><VQ_LOCAL_ORIGINALFILENAME value=\"k7_arbor_qml_support.dll\"/></variant>"_s},
    {"ProductName", 9,
     u"<variant version=\"1.0\"><VQ_LOCAL_PRODUCTNAME value=\"arbor_qml_support\"/></variant>"_s},
    {"PrivateBuild", 10, u"<variant version=\"1.0\"><VQ_LOCAL_PRIVATEBUILD value=\"1\"/></variant>"_s},
    {"SpecialBuild", 11, u"<variant version=\"1.0\"><VQ_LOCAL_SPECIALBUILD value=\"1\"/></variant>"_s},
    {"NoDebugging", 12, u"<variant version=\"1.0\"><NDEBUG/></variant>"_s},
};

}

TEST(arbor_qml_supportIdentity, SectionHoldsThirteenSlotsAndNothingElse)
{
    EXPECT_EQ(row_of_section().m_size, 6656);
    EXPECT_EQ(section_of_library().size(), g_slots * g_slot_size);
}

TEST(arbor_qml_supportIdentity, SectionIsLoadedAndWritable)
{
    const QString flags = row_of_section().m_flags;

    EXPECT_TRUE(flags.contains(u'A')) << flags.toStdString();
    EXPECT_TRUE(flags.contains(u'W')) << flags.toStdString();
    EXPECT_FALSE(flags.contains(u'X')) << flags.toStdString();
}

class arbor_qml_supportIdentitySlot : public testing::TestWithParam<SlotRow>
{ };

TEST_P(arbor_qml_supportIdentitySlot, HoldsItsTextAndThenZeros)
{
    QString expected = GetParam().m_text;
    for (const QString& name : {u"ARBOR_COMPANY_NAME"_s, u"ARBOR_COPYRIGHT"_s})
        expected.replace(u'{' + name + u'}', configured(name));

    const QByteArray slot = section_of_library().mid(GetParam().m_slot * g_slot_size, g_slot_size);

    EXPECT_EQ(text_of_slot(slot), expected.leftJustified(g_slot_size / 2, QChar(0)));
}

INSTANTIATE_TEST_SUITE_P(Rows, arbor_qml_supportIdentitySlot, testing::ValuesIn(g_rows),
                         [](const auto& row) { return std::string(row.param.m_name); });
