#include "gallery/Session.h"

#include "gallery/Pages.h"
#include "gallery/menu/MenuPath.h"

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

constexpr qint64 g_micro = 1000; // nanoseconds
constexpr vq_uint32 g_any_status = 0xFF00;
constexpr vq_uint32 g_most_swatches = 64;

Session* g_of_program = nullptr;

QString color_text(vq_uint32 color)
{
    return QColor(color & 0xFF, color >> 8 & 0xFF, color >> 16 & 0xFF).name();
}

QString time_text(qint64 nanoseconds)
{
    return nanoseconds < g_micro ? u"%1 ns"_s.arg(nanoseconds)
                                 : u"%1 µs"_s.arg(double(nanoseconds) / g_micro, 0, 'f', 1);
}

}

Session::Session(const MenuDocument& document, const MenuHome& home, const ToolbarDocument& toolbars,
                 QObject* parent)
    : QObject(parent),
      m_commands(m_document, m_view),
      m_factory_menu(document),
      m_factory_toolbars(toolbars),
      m_keeper(m_menu, m_factory_menu, home),
      m_marks(m_menu, m_keeper.Fill()),
      m_toolbars(m_menu, m_factory_toolbars, home),
      m_key_editor(m_menu, m_factory_menu),
      m_context_menu(document.context.empty() ? 0 : document.context.front().id),
      m_page(PageNames().constFirst())
{
    g_of_program = this;
    m_menu.SetCmdHandler([this](vq_uint32 id) { run(id); });
    connect(&m_commands, &Commands::QuitRequested, this, &Session::QuitRequested);
    connect(&m_commands, &Commands::PageRequested, this, &Session::SetPage);
    connect(&m_document, &Document::Changed, this, [this] { refresh_entries({}); });
    connect(&m_key_editor, &KeyEditor::KeysChanged, &m_keeper, &MenuKeeper::Store);
    connect(&m_keeper, &MenuKeeper::NoticeChanged, this, &Session::NoticeChanged);
    connect(&m_toolbars.Keeper(), &ToolbarKeeper::NoticeChanged, this, &Session::NoticeChanged);
    connect(&m_commands, &Commands::CustomiseRequested, m_toolbars.Setup(), &CVqQuickToolbarSetup::begin);
}

Session::~Session()
{
    if (g_of_program == this)
        g_of_program = nullptr;
}

Session* Session::OfProgram()
{
    return g_of_program;
}

QStringList Session::Pages()
{
    return PageNames();
}

QString Session::titleOf(const QString& page)
{
    return PageTitle(page);
}

void Session::SetPage(const QString& name)
{
    if (name == m_page || !PageNames().contains(name))
        return;
    m_page = name;
    Q_EMIT PageChanged();
}

QUrl Session::PageUrl() const
{
    return Gallery::PageUrl(m_page);
}

QString Session::Notice() const
{
    QStringList sentences{m_keeper.Notice(), m_toolbars.Keeper().Notice()};
    sentences.removeAll(QString());
    return sentences.join(u'\n');
}

void Session::clearNotice()
{
    m_keeper.ClearNotice();
    m_toolbars.Keeper().ClearNotice();
}

void Session::choose(const QString& command)
{
    const QList<vq_uint32> ids = m_marks.EntriesOf(command);
    if (!ids.isEmpty())
        m_menu.Dispatch(ids.front());
}

QString Session::label(const QString& command)
{
    const QList<vq_uint32> ids = command.isEmpty() ? QList<vq_uint32>() : m_marks.EntriesOf(command);
    return ids.isEmpty() ? QString() : PlainLabel(m_menu, ids.front());
}

void Session::openPopupOf(const QString& command, int x, int y)
{
    const QList<vq_uint32> ids = m_marks.EntriesOf(command);
    const CVqMenuItem* item
        = ids.isEmpty() ? nullptr : m_menu.Manipulators().find_item(ids.front(), m_menu.getRootMenuItem());
    if (item && item->parentItem())
        m_menu.track(item->parentItem()->id(), x, y);
}

void Session::zoomTo(qreal percent)
{
    m_commands.Run(u"ViewZoom(%1)"_s.arg(percent), true);
    m_marks.ClearGroup(u"ViewZoomFit"_s);
}

void Session::openContextMenu(int x, int y)
{
    if (m_context_menu != 0)
        m_menu.track(m_context_menu, x, y);
}

void Session::keyFired(uint id, const QString& key, qint64 nanoseconds)
{
    m_last_id = id;
    m_last_key = key;
    m_last_time = time_text(nanoseconds);
    Q_EMIT Told();
}

QStringList Session::swatches()
{
    QList<vq_uint32> ids(g_most_swatches);
    vq_uint32 count = g_most_swatches;
    m_menu.FindItems(VQ_TEXT(""), CVqAbstractMenu::SenseOneColor, g_any_status, ids.data(), count);
    ids.resize(count);
    QStringList colors;
    for (const vq_uint32 id : ids)
        colors << color_text(m_menu.Manipulators().find_item(id, m_menu.getRootMenuItem())->col1());
    colors.removeDuplicates();
    return colors;
}

void Session::run(vq_uint32 id)
{
    CVqStringW text;
    m_menu.GetIdCommand(id, text);
    const QString command = text.ToQString();
    m_last_id = id;
    m_last_command = command;
    m_last_key.clear();
    m_last_time.clear();
    m_commands.Run(command, m_marks.Choose(id));
    refresh_entries(command);
    Q_EMIT Told();
}

void Session::refresh_entries(const QString& command)
{
    for (const QString& name : {u"EditUndo"_s, u"EditRedo"_s, u"FilterRepeat"_s, u"FilterShowLast"_s})
        m_marks.Enable(name, !m_commands.IsIdle(name));
    if (command == u"ViewZoomIn"_s || command == u"ViewZoomOut"_s)
        m_marks.ClearGroup(u"ViewZoomFit"_s);
}

}
