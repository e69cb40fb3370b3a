#include "tests/quick_backend/toolbar_setup/SetupBars.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>

namespace {

/// An application with a panel in each of two windows; the bars show in the main one.
class ToolbarSetupWindows : public testing::Test, protected SetupBars
{
protected:
    ToolbarSetupWindows() : m_component(&m_engine)
    {
        m_component.setData(R"(
            import QtQuick
            import K7.Arbor.QuickBackend
            QtObject {
                id: application
                required property QuickToolbar first
                required property ToolbarSetup setup
                property Window mainWindow: Window {
                    visible: true
                    Toolbar { toolbar: application.first; width: parent.width }
                    ToolbarSetupPanel {
                        objectName: "mainPanel"
                        setup: application.setup
                        visible: setup.active && setup.window === Window.window
                    }
                }
                property Window preferences: Window {
                    visible: true
                    Item { objectName: "opener" }
                    ToolbarSetupPanel {
                        objectName: "preferencesPanel"
                        setup: application.setup
                        visible: setup.active && setup.window === Window.window
                    }
                }
            })",
                            QUrl());
        m_object.reset(m_component.createWithInitialProperties(
            {{QStringLiteral("first"), QVariant::fromValue(&first)},
             {QStringLiteral("setup"), QVariant::fromValue(setup.get())}}));
        EXPECT_TRUE(m_object) << qPrintable(m_component.errorString());
    }

    ~ToolbarSetupWindows() override { setup->cancel(); }

    QQuickItem* In(const char* window, const char* name)
    {
        return m_object->property(window).value<QQuickWindow*>()->findChild<QQuickItem*>(
            QString::fromLatin1(name));
    }

    bool ShowsInMain() { return In("mainWindow", "mainPanel")->isVisible(); }
    bool ShowsInPreferences() { return In("preferences", "preferencesPanel")->isVisible(); }

private:
    QQmlEngine m_engine;
    QQmlComponent m_component;
    std::unique_ptr<QObject> m_object;
};

}

TEST_F(ToolbarSetupWindows, ThePanelOpensInTheWindowOfItsOpener)
{
    CVqVariant factory;
    QQuickItem* opener = In("preferences", "opener");

    first.ShowToolbarSetup(reinterpret_cast<vq_uint64>(opener), factory, 0, true, nullptr);

    EXPECT_TRUE(ShowsInPreferences());
    EXPECT_FALSE(ShowsInMain());
}

TEST_F(ToolbarSetupWindows, WithoutAnOpenerItOpensInTheWindowOfTheBar)
{
    CVqVariant factory;

    first.ShowToolbarSetup(0, factory, 0, true, nullptr);

    EXPECT_TRUE(ShowsInMain());
    EXPECT_FALSE(ShowsInPreferences());
}
