#pragma once

// QML: ToolbarLooks { button: Component {...}; textButton: ...; separator: ...; picker: ...; general: ... }

#include "arbor_quick_backend_export.h"
#include "quick_backend/toolbar/CVqQuickControl.h"

#include <QObject>
#include <QQmlComponent>
#include <QtQmlIntegration>

/// What controls look like: a component for each kind, each with `required property QuickControl control`.
/// A kind without one shows nothing.
class ARBOR_QUICK_BACKEND_EXPORT CVqQuickToolbarLooks : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(ToolbarLooks)
    Q_PROPERTY(QQmlComponent* button MEMBER m_button FINAL)
    Q_PROPERTY(QQmlComponent* textButton MEMBER m_text_button FINAL)
    Q_PROPERTY(QQmlComponent* separator MEMBER m_separator FINAL)
    Q_PROPERTY(QQmlComponent* picker MEMBER m_picker FINAL)
    Q_PROPERTY(QQmlComponent* general MEMBER m_general FINAL)

public:
    explicit CVqQuickToolbarLooks(QObject* parent = nullptr);

    /// The component for a kind, or null; not owned.
    QQmlComponent* Of(CVqQuickControl::Kind kind) const;

private:
    QQmlComponent* m_button = nullptr;
    QQmlComponent* m_text_button = nullptr;
    QQmlComponent* m_separator = nullptr;
    QQmlComponent* m_picker = nullptr;
    QQmlComponent* m_general = nullptr;
};
