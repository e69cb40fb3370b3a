#include "quick_backend/CVqQuickMenu.h"

#include "quick_backend/CVqQuickMenuBackend.h"
#include "quick_backend/CVqQuickMenuItem.h"
#include "quick_backend/VqMenuRowData.h"

#include <QMetaMethod>
#include <QPointer>
#include <QStringList>

#include <utility>

namespace {

constexpr std::size_t KeyTextRoom = 512;

void AddKeyTexts(const CVqAccelerators& table, vq_uint32 id, QStringList& texts)
{
    vq_uint32 flags = 0;
    vq_wchar key = 0;
    for (int index = 0; table.GetAccelKey(id, index, &flags, &key) == 0;) {
        if (key == 0xFFFF)
            continue;
        vq_wchar text[KeyTextRoom] = {};
        CVqAccelerators::PrintAccel(flags, key, text);
        const QString printed = CVqStringW(text).ToQString();
        if (!texts.contains(printed))
            texts += printed;
    }
}

}

CVqQuickMenu::CVqQuickMenu(QObject* parent) : QObject(parent), m_backend(new CVqQuickMenuBackend(this))
{
    m_pMenuBase = m_backend;
    m_manipulators.SetBackend(m_backend);
    m_pRoot = m_manipulators.create_item_mainroot(m_backend->CreateMenuHandle());
    connect(m_backend, &CVqQuickMenuBackend::menuEntered, this, &CVqQuickMenu::entered);
}

CVqQuickMenu::~CVqQuickMenu() = default;

// Commands -----------------------------------------------------------------------------------------------

void CVqQuickMenu::SetCmdHandler(CmdHandler handler)
{
    m_handler = std::move(handler);
}

int CVqQuickMenu::CallCmdHandler(vq_uint32 id)
{
    CVqStringW command;
    GetIdCommand(id, command);
    const QPointer<CVqQuickMenu> alive(this);
    if (m_handler) {
        const CmdHandler handler = m_handler; // the call may set another one
        handler(id);
    }
    if (alive)
        Q_EMIT commandTriggered(id, command.ToQString());
    return 0;
}

bool CVqQuickMenu::CanFire(vq_uint32 id)
{
    const CVqMenuItem* item = Find(id);
    return !item || VqCanFire(*item);
}

bool CVqQuickMenu::Dispatch(vq_uint32 id)
{
    const bool fires = CanFire(id);
    if (fires)
        CallCmdHandler(id);
    return fires;
}

// Showing ------------------------------------------------------------------------------------------------

CVqQuickMenuRows* CVqQuickMenu::Rows() const
{
    return m_backend->RowsOf(m_pRoot->menu());
}

void CVqQuickMenu::SetTracking(bool tracking)
{
    if (tracking == m_tracking)
        return;
    m_tracking = tracking;
    Q_EMIT trackingChanged();
}

int CVqQuickMenu::TrackContextMenuEx(vq_uint32 id, int x, int y, __vq_hwnd*, vq_uint32* resultId,
                                     const CVqRectBase<int>*, bool, bool)
{
    const CVqMenuItem* item = Find(id);
    if (!item || item->type() != SensePopup || item->deleted())
        return -4;
    if (!isSignalConnected(QMetaMethod::fromSignal(&CVqQuickMenu::contextMenuRequested)))
        return -12;
    if (resultId)
        *resultId = 0;
    Q_EMIT contextMenuRequested(m_backend->RowsOf(item->menu()), x, y);
    return 0;
}

int CVqQuickMenu::track(uint id, int x, int y)
{
    return TrackContextMenu(id, x, y, nullptr, nullptr, false, false);
}

// What the abstract class changes without a word to its back end -------------------------------------------

int CVqQuickMenu::CheckRadioId(vq_uint32 id, vq_uint32 firstId, vq_uint32 lastId)
{
    for (CVqMenuItem* item = Find(firstId); item; item = item->nextItem()) {
        if (auto* quick_item = dynamic_cast<CVqQuickMenuItem*>(item))
            quick_item->setRadio(true);
        if (item->id() == lastId)
            break;
    }
    return CVqAbstractMenu::CheckRadioId(id, firstId, lastId);
}

int CVqQuickMenu::AppendIdAccelKey(vq_uint32 id, vq_uint32 flags, vq_wchar key, bool second)
{
    const int result = CVqAbstractMenu::AppendIdAccelKey(id, flags, key, second);
    KeyTextChanged(id);
    return result;
}

int CVqQuickMenu::SetIdAccelKey(vq_uint32 id, vq_uint32 flags, vq_wchar key, bool second)
{
    int index = 0;
    vq_uint32 former = id;
    (second ? m_accelsSecond : m_accels).FindId(flags, key, index, &former);
    const int result = CVqAbstractMenu::SetIdAccelKey(id, flags, key, second);
    KeyTextChanged(former);
    if (former != id)
        KeyTextChanged(id);
    return result;
}

int CVqQuickMenu::AppendLonelyAccel(vq_uint32 id, vq_uint32 flags, vq_wchar key, const vq_wchar* command)
{
    const int result = CVqAbstractMenu::AppendLonelyAccel(id, flags, key, command);
    KeyTextChanged(id);
    return result;
}

int CVqQuickMenu::DeleteAllLonelyAccels()
{
    const int result = CVqAbstractMenu::DeleteAllLonelyAccels();
    m_backend->KeysChanged();
    return result;
}

int CVqQuickMenu::SwapAccels(CVqAccelerators& main, CVqAccelerators& second)
{
    const int result = CVqAbstractMenu::SwapAccels(main, second);
    m_backend->KeysChanged();
    return result;
}

void CVqQuickMenu::KeyTextChanged(vq_uint32 id)
{
    if (CVqMenuItem* item = Find(id))
        m_backend->UpdateItemText(item);
}

// The rest of a concrete menu ------------------------------------------------------------------------------

CVqAbstractMenu* CVqQuickMenu::Duplicate()
{
    auto* copy = new CVqQuickMenu;
    const vq_uint64 handle = copy->m_pRoot->menu();
    const bool copied = m_manipulators.copy_items_tree(copy->m_pRoot, m_pRoot) == 0;
    copy->m_pRoot->setMenu(handle);
    if (!copied) {
        delete copy;
        return nullptr;
    }
    copy->m_hNative = m_hNative;
    copy->m_handler = m_handler;
    if (CVqMenuItem* first = copy->m_pRoot->subItem())
        copy->m_manipulators.create_all(copy->m_backend, first);
    return copy;
}

QString CVqQuickMenu::KeyText(const CVqMenuItem& item) const
{
    if (item.type() == SensePopup || item.type() == SenseSeparator)
        return {};
    QStringList texts;
    AddKeyTexts(m_accelsSecond, item.id(), texts);
    AddKeyTexts(m_accels, item.id(), texts);
    return texts.join(QStringLiteral(", "));
}

CVqMenuItem* CVqQuickMenu::Find(vq_uint32 id)
{
    return m_manipulators.find_item(id, m_pRoot);
}
