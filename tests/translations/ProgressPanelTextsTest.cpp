#include "tests/translations/Catalogues.h"

#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

std::set<Source> texts_of_the_panel()
{
    QFile file(QStringLiteral(ARBOR_SOURCES "/quick_backend/ProgressPanel.qml"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    static const QRegularExpression call(uR"x(qsTr\("([^"]*)"\))x"_s);
    std::set<Source> texts;
    for (auto match = call.globalMatch(QString::fromUtf8(file.readAll())); match.hasNext();)
        texts.emplace(match.next().captured(1).toStdString(), "");
    return texts;
}

}

TEST(ProgressPanelTexts, EveryCatalogueTranslatesThePanel)
{
    const std::set<Source> texts = texts_of_the_panel();
    ASSERT_EQ(texts.size(), 9u);
    ExpectTranslated(u"ProgressPanel"_s, texts);
}

TEST(ProgressPanelTexts, EveryCatalogueKeepsThePlacesOfNumbers)
{
    for (const auto& [name, catalogue] : Catalogues()) {
        SCOPED_TRACE(name);
        for (const auto& [source, text] : EntriesOf(catalogue, u"ProgressPanel"_s))
            EXPECT_EQ(text.count(u'%'), std::ranges::count(source.first, '%')) << source.first;
    }
}
