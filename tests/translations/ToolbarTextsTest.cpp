#include "tests/translations/Catalogues.h"

#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct File
{
    std::string name;
    std::size_t texts;
};

class ToolbarTexts : public testing::TestWithParam<File>
{
protected:
    static QString Context() { return QString::fromStdString(GetParam().name); }
};

INSTANTIATE_TEST_SUITE_P(, ToolbarTexts,
                         testing::Values(File{"ToolbarMenu", 4}, File{"ToolbarSession", 1},
                                         File{"ToolbarSetupButtons", 6}, File{"ToolbarSetupCommands", 5},
                                         File{"ToolbarSetupPad", 4}, File{"ToolbarSetupPanel", 5},
                                         File{"ToolbarSetupRow", 2}, File{"ToolbarSetupTabs", 1}),
                         [](const auto& row) { return row.param.name; });

}

TEST_P(ToolbarTexts, EveryCatalogueTranslatesTheFile)
{
    QFile file(QStringLiteral(ARBOR_SOURCES "/quick_backend/") + Context() + u".qml"_s);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    static const QRegularExpression call(uR"x(qsTr\("([^"]*)"\))x"_s);
    std::set<Source> texts;
    for (auto match = call.globalMatch(QString::fromUtf8(file.readAll())); match.hasNext();)
        texts.emplace(match.next().captured(1).toStdString(), "");

    EXPECT_EQ(texts.size(), GetParam().texts);
    ExpectTranslated(Context(), texts);
}

TEST_P(ToolbarTexts, EveryCatalogueKeepsThePlacesOfNamesAndNumbers)
{
    for (const auto& [name, catalogue] : Catalogues()) {
        SCOPED_TRACE(name);
        for (const auto& [source, text] : EntriesOf(catalogue, Context()))
            EXPECT_EQ(text.count(u'%'), std::ranges::count(source.first, '%')) << source.first;
    }
}
