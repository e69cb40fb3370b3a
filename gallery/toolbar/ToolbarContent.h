#pragma once

#include <QPointer>
#include <QQuickItem>

namespace Gallery {

/// What a control of its own hosts: one of the gallery's QML files, which it makes as soon as it lies in the
/// window of a QML engine. So a toolbar can stand before there is an engine.
///
/// Its implicit size is that of the file's root, which fills it. A file that cannot be read gives a warning.
class ToolbarContent : public QQuickItem
{
    Q_OBJECT

public:
    /// `file` is relative to gallery/, without .qml.
    explicit ToolbarContent(const QString& file);

    /// The root of the file, owned by this; null before there is an engine.
    QQuickItem* Root() const { return m_root; }

    /// Whether it lies on a vertical toolbar: told to the root's property `vertical`, if it has one.
    void SetVertical(bool vertical);

protected:
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void geometryChange(const QRectF& now, const QRectF& before) override;

private:
    void make_root(QQmlEngine& engine);
    void follow_root();

    const QString m_file;
    QPointer<QQuickItem> m_root;
    bool m_vertical = false;
};

}
