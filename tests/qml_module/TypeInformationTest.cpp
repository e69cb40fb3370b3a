// What tools know of the types of K7.Arbor: a checker of QML finds what is wrong with a file before it runs.

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Verdict
{
    int exit_code = -1;
    std::string text;
};

Verdict check(const QByteArray& qml, const QStringList& options = {})
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"Page.qml"_s));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(qml);
    file.close();

    QProcess program;
    program.setProcessChannelMode(QProcess::MergedChannels);
    program.start(QStringLiteral(QMLLINT),
                  QStringList{u"-I"_s, QStringLiteral(ARBOR_QML_DIR), u"--max-warnings"_s, u"0"_s}
                      << options << file.fileName());
    EXPECT_TRUE(program.waitForFinished());
    return {program.exitCode(), program.readAll().toStdString()};
}

struct Row
{
    const char* name;
    const char* line;
    const char* remark;
};

class TypeInformationMisuse : public testing::TestWithParam<Row>
{ };

QByteArray page_with(const QByteArray& line)
{
    return "import QtQml\nimport K7.Arbor\n\nQtObject {\n    id: page\n    " + line + "\n}\n";
}

}

TEST(TypeInformation, AGoodFilePasses)
{
    const Verdict verdict = check(page_with(R"(property SortFilterProxyModel proxy: SortFilterProxyModel {
        source: page.rows
        sortRole: "name"
        sortOrder: Qt.DescendingOrder
        filterSyntax: SortFilterProxyModel.Wildcard
        filterString: page.text
    }
    property AbstractListModel rows: null
    property int count: proxy.count
    property string text: GuiSupport.makeHEX(0xff112233)
    property bool fits: FilePathApi.isWritable(text)
    property string when: FilePathApi.creationTime(text)
    property list<double> hsl: GuiSupport.HSLFromRGB(1, 2, 3)
    property int red: GuiSupport.RGBFromHSL(0, 1, 1)[0])"));

    EXPECT_EQ(verdict.exit_code, 0) << verdict.text;
}

TEST_P(TypeInformationMisuse, IsFound)
{
    const QStringList arguments_too{u"--compiler"_s, u"warning"_s};

    const Verdict verdict = check(page_with(GetParam().line), arguments_too);

    EXPECT_NE(verdict.exit_code, 0);
    EXPECT_NE(verdict.text.find(GetParam().remark), std::string::npos) << verdict.text;
}

INSTANTIATE_TEST_SUITE_P(
    TypeInformation, TypeInformationMisuse,
    testing::Values(Row{"AnUnknownOperation", "property string a: GuiSupport.makeHexText(1)",
                        R"(Member "makeHexText" not found)"},
                    Row{"AnUnknownProperty",
                        "property SortFilterProxyModel a: SortFilterProxyModel { sortBy: 'name' }",
                        R"(Property "sortBy" does not exist)"},
                    Row{"ATextForAnEnumeration",
                        "property SortFilterProxyModel a: SortFilterProxyModel { filterSyntax: 'Wildcard' }",
                        "Cannot assign literal of type string to FilterSyntax"},
                    Row{"ANumberForARole",
                        "property SortFilterProxyModel a: SortFilterProxyModel { sortRole: 3 }",
                        "Cannot assign literal of type double to QByteArray"},
                    Row{"AnObjectForAByte", "property list<double> a: GuiSupport.HSLFromRGB({}, 2, 3)",
                        "expected to contain the type quint8"},
                    Row{"OneArgumentTooMany", "property string a: GuiSupport.makeHEX(1, 2)",
                        "Function expects 1 arguments"},
                    Row{"AnObjectThatIsNoModel", "property AbstractListModel a: QtObject {}",
                        "Cannot assign object of type"}),
    [](const auto& row) { return row.param.name; });
