#include "gallery/PageHolder.h"

#include "tests/gallery/PageFolder.h"
#include "tests/gallery/QmlTypes.h"

#include <QQmlComponent>
#include <QQmlEngine>

using namespace Qt::StringLiterals;

namespace {

class PageHolder : public testing::Test
{
protected:
    PageHolder()
    {
        RegisterQmlTypes();
        QQmlComponent component(&m_engine);
        component.setData("import K7.Arbor.Gallery\nPageHolder { id: outer; width: 300; height: 200 }",
                          QUrl());
        m_holder.reset(qobject_cast<Gallery::PageHolder*>(component.create()));
        EXPECT_TRUE(m_holder) << component.errorString().toStdString();
    }

    void Show(const QByteArray& qml) { m_holder->SetSource(m_folder.Page(qml)); }

    /// Saves a file with another time, as a person would: by it the engine knows what it compiled before.
    void Save(const QString& name, const QByteArray& qml)
    {
        QFile file(m_folder.Write(name, qml));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.setFileTime(QDateTime({2020, 1, 1}, {0, 0}), QFileDevice::FileModificationTime));
    }

    QVariantMap Error(int index = 0) const { return m_holder->Errors().value(index).toMap(); }

    PageFolder m_folder;
    QQmlEngine m_engine;
    std::unique_ptr<Gallery::PageHolder> m_holder;
};

}

TEST_F(PageHolder, HoldsNothingWithoutASource)
{
    EXPECT_FALSE(m_holder->Page());
    EXPECT_TRUE(m_holder->Errors().isEmpty());
}

TEST_F(PageHolder, APageIsAsLargeAsTheHolder)
{
    Show("import QtQuick\nItem {}");
    ASSERT_TRUE(m_holder->Page());
    EXPECT_EQ(m_holder->Page()->size(), QSizeF(300, 200));

    m_holder->setSize({120, 80});

    EXPECT_EQ(m_holder->Page()->size(), QSizeF(120, 80));
}

TEST_F(PageHolder, ANewSourceTakesThePlaceOfTheFormerPage)
{
    Show("import QtQuick\nItem { objectName: 'one' }");
    const QPointer<QQuickItem> former = m_holder->Page();

    m_holder->SetSource(
        QUrl::fromLocalFile(m_folder.Write(u"two.qml"_s, "import QtQuick\nItem { objectName: 'two' }")));

    EXPECT_EQ(m_holder->Page()->objectName(), u"two"_s);
    EXPECT_EQ(m_holder->childItems(), QList<QQuickItem*>{m_holder->Page()});
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(former);
}

TEST_F(PageHolder, ReloadReadsTheFileAgain)
{
    Show("import QtQuick\nItem { objectName: 'one' }");

    Save(u"page.qml"_s, "import QtQuick\nItem { objectName: 'two' }");
    m_holder->reload();

    EXPECT_EQ(m_holder->Page()->objectName(), u"two"_s);
}

TEST_F(PageHolder, ReloadReadsTheTypesOfThePageAgain)
{
    m_folder.Write(u"Part.qml"_s, "import QtQuick\nItem { width: 1 }");
    Show("import QtQuick\nItem { property Part part: Part {} }");

    Save(u"Part.qml"_s, "import QtQuick\nItem { width: 2 }");
    m_holder->reload();

    EXPECT_EQ(m_holder->Page()->property("part").value<QQuickItem*>()->width(), 2);
}

TEST_F(PageHolder, ASyntaxErrorIsToldWithFileLineAndText)
{
    Show("import QtQuick\nItem {\n    width: }\n");

    EXPECT_FALSE(m_holder->Page());
    ASSERT_EQ(m_holder->Errors().size(), 1);
    EXPECT_EQ(Error().value(u"file"_s), m_folder.Path(u"page.qml"_s));
    EXPECT_EQ(Error().value(u"line"_s), 3);
    EXPECT_EQ(Error().value(u"text"_s), u"Expected token `;'"_s);
}

TEST_F(PageHolder, AnErrorInATypeOfThePageIsToldBehindWhatItCaused)
{
    m_folder.Write(u"Part.qml"_s, "import QtQuick\n\n\nItem { wobble: 1 }");
    Show("import QtQuick\nItem {\n Part {} }");

    ASSERT_EQ(m_holder->Errors().size(), 2);
    EXPECT_EQ(Error(0).value(u"line"_s), 3);
    EXPECT_EQ(Error(1).value(u"file"_s), m_folder.Path(u"Part.qml"_s));
    EXPECT_EQ(Error(1).value(u"line"_s), 4);
}

TEST_F(PageHolder, AMissingFileIsTold)
{
    m_holder->SetSource(QUrl::fromLocalFile(m_folder.Path(u"nowhere.qml"_s)));

    EXPECT_FALSE(m_holder->Page());
    EXPECT_EQ(m_holder->Errors().size(), 1);
}

TEST_F(PageHolder, ARootThatIsNoItemIsTold)
{
    Show("import QtQml\nQtObject {}");

    EXPECT_FALSE(m_holder->Page());
    ASSERT_EQ(m_holder->Errors().size(), 1);
    EXPECT_EQ(Error().value(u"text"_s), u"The root of a page must be an item."_s);
}

TEST_F(PageHolder, ARequiredPropertyThatNobodyGivesIsTold)
{
    Show("import QtQuick\nItem { required property int number }");

    EXPECT_FALSE(m_holder->Page());
    EXPECT_EQ(m_holder->Errors().size(), 1);
}

TEST_F(PageHolder, AnErrorHealsWithTheNextGoodFile)
{
    Show("import QtQuick\nItem {");
    ASSERT_FALSE(m_holder->Page());

    Save(u"page.qml"_s, "import QtQuick\nItem {}");
    m_holder->reload();

    EXPECT_TRUE(m_holder->Page());
    EXPECT_TRUE(m_holder->Errors().isEmpty());
}

TEST_F(PageHolder, APageSeesNothingOfItsHolder)
{
    Show("import QtQuick\nItem { property bool sees: typeof outer !== 'undefined' }");

    EXPECT_FALSE(m_holder->Page()->property("sees").toBool());
}
