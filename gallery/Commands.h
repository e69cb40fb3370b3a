#pragma once

#include <QHash>
#include <QImage>
#include <QObject>
#include <QString>

#include <functional>

namespace Gallery {

class Document;
class ViewState;

/// Runs the command strings of the menu on the picture and the view.
///
/// A command is a name, alone or with arguments: "EditUndo", "ViewZoom(200)", "ColorPair(#1b1b1f,#ffffff)".
/// Many commands of the menu have nothing behind them: this is a gallery of menus, not an editor.
class Commands : public QObject
{
    Q_OBJECT

public:
    /// `document` and `view` must outlive the commands.
    Commands(Document& document, ViewState& view, QObject* parent = nullptr);

    /// Runs `command`; `checked` is the mark of its entry, for the commands that switch something. False when
    /// nothing is behind the command.
    bool Run(const QString& command, bool checked);

    /// True for commands that work only at times ("EditUndo", "FilterRepeat" ...) and have nothing to do now.
    bool IsIdle(const QString& command) const;

Q_SIGNALS:
    void QuitRequested();
    void PageRequested(const QString& name);
    void CustomiseRequested();

private:
    using Action = std::function<void(const QString& arguments)>;

    void add_file_commands();
    void add_edit_commands();
    void add_image_commands();
    void add_select_commands();
    void add_adjust_commands();
    void add_filter_commands();
    void add_layer_commands();
    void add_view_commands();
    void add_zoom_commands();
    void add_color_commands();
    void add_switch(const QString& name, bool ViewState::* member);
    void filter(const QString& name, int amount);
    void fill(const QColor& color);
    void paste();
    void transform(const QTransform& how);
    void zoom(qreal percent);
    void switch_panel(const QString& name);

    Document& m_document;
    ViewState& m_view;
    QHash<QString, Action> m_actions;
    QImage m_clipboard;
    QString m_last_filter;
    int m_last_amount = 0;
    bool m_checked = false; // of the entry whose command runs
};

}
