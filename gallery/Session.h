#pragma once

#include "gallery/Commands.h"
#include "gallery/ViewState.h"
#include "gallery/keys/KeyEditor.h"
#include "gallery/menu/MenuMarks.h"
#include "gallery/picture/Document.h"
#include "gallery/resize/BatchResize.h"
#include "gallery/storage/MenuKeeper.h"
#include "gallery/toolbar/ToolbarFile.h"
#include "gallery/toolbar/Toolbars.h"
#include "quick_backend/CVqQuickMenu.h"

#include <QUrl>

namespace Gallery {

/// One run of the gallery: the picture, the view, the menu that acts on them, its keys and toolbars, the page
/// that shows, the batch resize, and what status line and notice tell.
class Session : public QObject
{
    Q_OBJECT
    Q_PROPERTY(Gallery::Document* document READ GetDocument CONSTANT)
    Q_PROPERTY(Gallery::ViewState* view READ View CONSTANT)
    Q_PROPERTY(CVqQuickMenu* menu READ Menu CONSTANT)
    Q_PROPERTY(Gallery::Toolbars* toolbars READ GetToolbars CONSTANT)
    Q_PROPERTY(Gallery::BatchResize* batchResize READ GetBatchResize CONSTANT)
    Q_PROPERTY(Gallery::KeyEditor* keyEditor READ GetKeyEditor CONSTANT)
    Q_PROPERTY(QStringList pages READ Pages CONSTANT)
    Q_PROPERTY(QString page READ Page WRITE SetPage NOTIFY PageChanged)
    Q_PROPERTY(QUrl pageUrl READ PageUrl NOTIFY PageChanged)
    Q_PROPERTY(QString lastCommand READ LastCommand NOTIFY Told)
    Q_PROPERTY(QString lastKey READ LastKey NOTIFY Told)
    Q_PROPERTY(QString lastTime READ LastTime NOTIFY Told)
    Q_PROPERTY(QString notice READ Notice NOTIFY NoticeChanged)

public:
    /// Has the menus and toolbars that are kept in `home`, or else the factory's: those of `document` and
    /// `toolbars`.
    explicit Session(const MenuDocument& document, const MenuHome& home = {},
                     const ToolbarDocument& toolbars = FactoryToolbars(), QObject* parent = nullptr);
    ~Session() override;

    /// The session of the program, which QML knows as the singleton Session: the one made last, while it
    /// lives. Null without one.
    static Session* OfProgram();

    Document* GetDocument() { return &m_document; }
    ViewState* View() { return &m_view; }
    CVqQuickMenu* Menu() { return &m_menu; }
    Toolbars* GetToolbars() { return &m_toolbars; }
    const Toolbars* GetToolbars() const { return &m_toolbars; }
    BatchResize* GetBatchResize() { return &m_batch_resize; }
    KeyEditor* GetKeyEditor() { return &m_key_editor; }

    /// The names of all pages, in their order.
    static QStringList Pages();
    /// The title of a page; empty for an unknown name.
    Q_INVOKABLE static QString titleOf(const QString& page);
    /// The page that shows, the first to begin with.
    const QString& Page() const { return m_page; }
    /// An unknown name changes nothing.
    void SetPage(const QString& name);
    /// The compiled resource of the page that shows.
    QUrl PageUrl() const;

    /// Asks whoever shows the present page to load it anew.
    void AskReload() { Q_EMIT reloadAsked(); }

    /// The command that ran last; empty before the first.
    const QString& LastCommand() const { return m_last_command; }
    /// Its entry, 0 before the first.
    vq_uint32 LastId() const { return m_last_id; }
    /// The key that fired it, as menus print it; empty when it was chosen with the mouse or a mnemonic.
    const QString& LastKey() const { return m_last_key; }
    /// Time that finding the command of LastKey() took, with its unit; empty without a key.
    const QString& LastTime() const { return m_last_time; }

    /// What the user should read on the folder of menus and toolbars: a sentence, two lines with a sentence
    /// each, or nothing.
    QString Notice() const;
    /// To be called once it was read.
    Q_INVOKABLE void clearNotice();

    /// Chooses the first entry with `command`, as a click on it does.
    Q_INVOKABLE void choose(const QString& command);

    /// The label of the first entry with `command`, as people read it; empty when there is none.
    Q_INVOKABLE QString label(const QString& command);

    /// Opens the popup that holds the first entry with `command` at `x`, `y` of the desktop.
    Q_INVOKABLE void openPopupOf(const QString& command, int x, int y);

    /// Shows the picture at `percent` of its size.
    Q_INVOKABLE void zoomTo(qreal percent);

    /// Opens the first context menu at `x`, `y` of the desktop.
    Q_INVOKABLE void openContextMenu(int x, int y);

    /// To be called once a key has run the command of `id`; `nanoseconds` is the time that finding it took.
    Q_INVOKABLE void keyFired(uint id, const QString& key, qint64 nanoseconds);

    /// The colours of the side panel's swatches: those of the one-colour entries, each once.
    Q_INVOKABLE QStringList swatches();

Q_SIGNALS:
    void Told();
    void QuitRequested();
    void PageChanged();
    void NoticeChanged();
    void reloadAsked();

private:
    void run(vq_uint32 id);
    void refresh_entries(const QString& command);

    Document m_document;
    ViewState m_view;
    Commands m_commands;
    const MenuDocument m_factory_menu;
    const ToolbarDocument m_factory_toolbars;
    CVqQuickMenu m_menu;
    MenuKeeper m_keeper;
    MenuMarks m_marks;
    Toolbars m_toolbars;
    KeyEditor m_key_editor;
    BatchResize m_batch_resize;
    vq_uint32 m_context_menu = 0;
    QString m_page;
    vq_uint32 m_last_id = 0;
    QString m_last_command;
    QString m_last_key;
    QString m_last_time;
};

}
