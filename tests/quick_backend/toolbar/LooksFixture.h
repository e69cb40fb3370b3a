#pragma once

#include "quick_backend/toolbar/CVqQuickToolbarLooks.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>

#include <gtest/gtest.h>

#include <memory>

/// An engine and looks that are written in QML: plain items named "button", "text", "separator" and so on.
class LooksFixture : public testing::Test
{
protected:
    std::unique_ptr<QObject> Make(const QByteArray& qml)
    {
        QQmlComponent component(&engine);
        component.setData("import QtQuick\nimport K7.Arbor.QuickBackend\n" + qml, QUrl());
        std::unique_ptr<QObject> made(component.create());
        EXPECT_TRUE(made) << qPrintable(component.errorString());
        return made;
    }

    std::unique_ptr<CVqQuickToolbarLooks> MakeLooks(const QByteArray& prefix = {})
    {
        const auto look = [&prefix](const QByteArray& kind, const QByteArray& name) {
            return kind + ": Component { Item { required property QuickControl control; objectName: \""
                + prefix + name + "\"; readonly property string shown: control.name } }\n";
        };
        return std::unique_ptr<CVqQuickToolbarLooks>(qobject_cast<CVqQuickToolbarLooks*>(
            Make("ToolbarLooks {\n" + look("button", "button") + look("textButton", "text")
                 + look("separator", "separator") + look("picker", "picker") + look("general", "general")
                 + "}")
                .release()));
    }

    /// The look in a control's frame, or null.
    static QQuickItem* LookOf(const CVqQuickControl& control)
    {
        const QList<QQuickItem*> children = control.Item()->childItems();
        for (QQuickItem* child : children)
            if (child->property("control").isValid())
                return child;
        return nullptr;
    }

    QQmlEngine engine;
};
