#include "quick_backend/VqProgressWindow.h"

#include "tests/quick_backend/ProgressFixture.h"
#include "tests/support/ExpectMessage.h"

#include <QAccessible>
#include <QQmlAbstractUrlInterceptor>
#include <QQmlEngine>

using namespace Qt::StringLiterals;

namespace {

/// Sends whoever wants the window's file to a place where there is none.
class NoWindowFile : public QQmlAbstractUrlInterceptor
{
public:
    QUrl intercept(const QUrl& path, DataType) override
    {
        return path.fileName() == u"ProgressWindow.qml"_s ? QUrl(u"qrc:/nowhere.qml"_s) : path;
    }
};

class VqProgressWindow : public testing::Test
{
protected:
    std::unique_ptr<QQuickWindow> Show(bool suppress_others)
    {
        return VqShowProgressWindow(engine, view, suppress_others);
    }

    double now = 0;
    QQmlEngine engine;
    CVqQuickProgressView view{[this] { return now; }, 100};
};

#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
/// What a screen reader is given to say, for the time of its scope.
class HeardAnnouncements
{
public:
    HeardAnnouncements() : m_former(QAccessible::installUpdateHandler(note))
    {
        m_texts.clear();
        QAccessible::setActive(true);
    }

    HeardAnnouncements(const HeardAnnouncements&) = delete;
    HeardAnnouncements& operator=(const HeardAnnouncements&) = delete;

    ~HeardAnnouncements()
    {
        QAccessible::setActive(false);
        QAccessible::installUpdateHandler(m_former);
    }

    static const QStringList& Texts() { return m_texts; }

private:
    static void note(QAccessibleEvent* event)
    {
        if (event->type() == QAccessible::Announcement)
            m_texts += static_cast<QAccessibleAnnouncementEvent*>(event)->message();
    }

    static inline QStringList m_texts;
    const QAccessible::UpdateHandler m_former;
};
#endif

}

TEST_F(VqProgressWindow, ThatSuppressesOthersIsModalToTheApplication)
{
    const auto window = Show(true);

    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(window->modality(), Qt::ApplicationModal);
}

TEST_F(VqProgressWindow, ThatStandsAloneBlocksNothingOtherwise)
{
    const auto window = Show(false);

    EXPECT_EQ(window->modality(), Qt::NonModal);
    EXPECT_EQ(window->transientParent(), nullptr);
}

TEST_F(VqProgressWindow, StandsBeforeTheWindowThatHasTheFocusAndInItsMiddle)
{
    CountingWindow main;
    main.requestActivate();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&main));

    const auto window = Show(true);

    EXPECT_EQ(window->transientParent(), &main);
    EXPECT_LE((window->geometry().center() - main.geometry().center()).manhattanLength(), 2);
}

TEST_F(VqProgressWindow, StandsBeforeTheOwnerOfAPopup)
{
    CountingWindow main;
    QRasterWindow popup;
    popup.setFlags(Qt::Popup);
    popup.setTransientParent(&main);
    popup.setGeometry(60, 60, 50, 50);
    popup.show();
    popup.requestActivate();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&popup));

    const auto window = Show(true);

    EXPECT_EQ(window->transientParent(), &main);
}

TEST_F(VqProgressWindow, StandsBeforeAnotherProgressWindowAndBlocksIt)
{
    const auto outer = Show(false);

    const auto inner = Show(false);

    EXPECT_EQ(inner->transientParent(), outer.get());
    EXPECT_EQ(inner->modality(), Qt::WindowModal);
}

TEST_F(VqProgressWindow, TheTopOneIsTheOneThatAppearedLast)
{
    EXPECT_EQ(VqTopProgressWindow(), nullptr);

    const auto outer = Show(true);
    auto inner = Show(true);
    EXPECT_EQ(VqTopProgressWindow(), inner.get());

    inner.reset();
    EXPECT_EQ(VqTopProgressWindow(), outer.get());
}

TEST_F(VqProgressWindow, AnOuterOneMayEndFirst)
{
    auto outer = Show(true);
    const auto inner = Show(true);

    outer.reset();

    EXPECT_EQ(inner->transientParent(), nullptr);
    EXPECT_EQ(VqTopProgressWindow(), inner.get());
}

TEST_F(VqProgressWindow, WarnsWhereQmlCannotMakeIt)
{
    NoWindowFile interceptor;
    engine.addUrlInterceptor(&interceptor);
    const ExpectMessage warning(QtWarningMsg, u"nowhere.qml"_s, ExpectMessage::Match::Contains);

    EXPECT_EQ(Show(true), nullptr);
    EXPECT_EQ(VqTopProgressWindow(), nullptr);
}

#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
TEST_F(VqProgressWindow, HasScreenReadersSayTheLabelThatItAppearsWithAndLaterOnes)
{
    view.SetLabel(CVqStringW(VQ_TEXT("one.png")));
    view.Start();
    const HeardAnnouncements heard;

    const auto window = Show(true);
    now = 5'000;
    view.SetLabel(CVqStringW(VQ_TEXT("two.png")));
    view.ProcessEvents();

    EXPECT_EQ(heard.Texts(), (QStringList{u"one.png"_s, u"two.png"_s}));
}
#endif
