#include "gallery/render/PageMaker.h"

#include "tests/gallery/PageFolder.h"

#include <QQmlEngine>
#include <QQuickItem>

using namespace Qt::StringLiterals;

namespace {

constexpr auto g_page = R"(import QtQuick
Item {
    required property string label
    property int number: 1
    property string seen
    Component.onCompleted: seen = label + number
}
)";

class PageMaker : public testing::Test
{
protected:
    std::unique_ptr<QQuickItem> Make(const QByteArray& qml, const QList<Gallery::RenderValue>& values)
    {
        return Gallery::MakePage(m_engine, m_folder.Page(qml), values, m_errors);
    }

    QString PagePath() const { return m_folder.Path(u"page.qml"_s); }

    PageFolder m_folder;
    QQmlEngine m_engine;
    QStringList m_errors;
};

}

TEST_F(PageMaker, TheRootHasItsValuesBeforeItIsComplete)
{
    const auto page = Make(g_page, {{u"label"_s, u"a"_s}, {u"number"_s, u"2"_s}});

    ASSERT_TRUE(page) << m_errors.join(u'\n').toStdString();
    EXPECT_EQ(page->property("seen").toString(), u"a2"_s);
}

TEST_F(PageMaker, TheLastOfTwoValuesForOnePropertyHolds)
{
    const auto page = Make(g_page, {{u"label"_s, u"a"_s}, {u"label"_s, u"b"_s}});

    ASSERT_TRUE(page) << m_errors.join(u'\n').toStdString();
    EXPECT_EQ(page->property("label").toString(), u"b"_s);
}

TEST_F(PageMaker, AMissingRequiredPropertyIsToldWithFileAndLine)
{
    const auto page = Make(g_page, {{u"number"_s, u"2"_s}});

    EXPECT_FALSE(page);
    EXPECT_EQ(m_errors, QStringList{PagePath() + u":3: Required property label was not initialized"_s});
}

TEST_F(PageMaker, EachValueThatDoesNotFitHasItsSentence)
{
    const auto page = Make(g_page, {{u"label"_s, u"a"_s}, {u"number"_s, u"many"_s}, {u"lable"_s, u"a"_s}});

    EXPECT_FALSE(page);
    EXPECT_EQ(m_errors,
              (QStringList{u"The property \"number\" takes a whole number, not \"many\"."_s,
                           u"The root has no property \"lable\"."_s}));
}

TEST_F(PageMaker, AnErrorInTheFileIsToldWithFileAndLine)
{
    const auto page = Make("import QtQuick\nItem {\n    wdith: 3\n}\n", {{u"width"_s, u"3"_s}});

    EXPECT_FALSE(page);
    EXPECT_EQ(m_errors, QStringList{PagePath() + u":3: Cannot assign to non-existent property \"wdith\""_s});
}

TEST_F(PageMaker, ARootThatIsNoItemIsTold)
{
    const auto page = Make("import QtQml\nQtObject { property int number }\n", {{u"number"_s, u"3"_s}});

    EXPECT_FALSE(page);
    EXPECT_EQ(m_errors, QStringList{PagePath() + u": the root is no item, so there is nothing to draw."_s});
}
