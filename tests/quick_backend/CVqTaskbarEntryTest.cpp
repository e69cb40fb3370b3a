#include "quick_backend/CVqTaskbarEntry.h"

#include <QList>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

class CVqTaskbarEntryTest : public testing::Test
{
protected:
    std::unique_ptr<CVqTaskbarEntry> Entry(const QString& desktop_file)
    {
        return std::make_unique<CVqTaskbarEntry>(
            desktop_file, [this](const QDBusMessage& message) { messages += message; });
    }

    QVariantMap LastProperties() const { return messages.last().arguments().value(1).toMap(); }

    QList<QDBusMessage> messages;
};

}

TEST_F(CVqTaskbarEntryTest, SendsTheUpdateOfTheLauncherInterface)
{
    Entry(u"org.example.Gallery"_s)->Show(0.25);

    const QDBusMessage& message = messages.first();
    EXPECT_EQ(message.type(), QDBusMessage::SignalMessage);
    EXPECT_EQ(message.path(), u"/com/canonical/unity/launcherentry/1"_s);
    EXPECT_EQ(message.interface(), u"com.canonical.Unity.LauncherEntry"_s);
    EXPECT_EQ(message.member(), u"Update"_s);
    EXPECT_EQ(message.arguments(),
              (QVariantList{u"application://org.example.Gallery.desktop"_s,
                            QVariantMap{{u"progress"_s, 0.25}, {u"progress-visible"_s, true}}}));
}

TEST_F(CVqTaskbarEntryTest, SendsOnlyWholePercents)
{
    const auto entry = Entry(u"gallery"_s);

    for (int step = 0; step < 1'000; ++step)
        entry->Show(step / 1'000.0);

    EXPECT_EQ(messages.size(), 100);
    EXPECT_EQ(LastProperties().value(u"progress"_s), 0.99);
}

TEST_F(CVqTaskbarEntryTest, TakesTheProgressOffAtItsEnd)
{
    auto entry = Entry(u"gallery"_s);
    entry->Show(0.5);

    entry.reset();

    EXPECT_EQ(messages.size(), 2);
    EXPECT_EQ(LastProperties().value(u"progress-visible"_s), false);
}

TEST_F(CVqTaskbarEntryTest, WhatNeverShowedIsNotTakenOff)
{
    Entry(u"gallery"_s).reset();

    EXPECT_EQ(messages.size(), 0);
}

TEST_F(CVqTaskbarEntryTest, AnApplicationWithoutADesktopFileSendsNothing)
{
    Entry(QString())->Show(0.5);

    EXPECT_EQ(messages.size(), 0);
}

TEST(CVqTaskbarEntry, IsSilentWithoutASessionBus)
{
    const QByteArray address = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");

    CVqTaskbarEntry(u"gallery"_s).Show(0.5);

    if (!address.isNull())
        qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    SUCCEED() << "A Qt warning would have failed the test.";
}
