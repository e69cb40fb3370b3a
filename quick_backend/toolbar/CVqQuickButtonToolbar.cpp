#include "quick_backend/toolbar/CVqQuickButtonToolbar.h"

#include "AbstractGui/CVqSeparatorPass.h"
#include "AbstractGui/VqHiddenToolbarButtons.h"
#include "quick_backend/CVqQuickMenu.h"
#include "quick_backend/toolbar/CVqQuickSeparator.h"
#include "quick_backend/toolbar/CVqQuickTextButton.h"
#include "quick_backend/toolbar/CVqQuickToolbarCommands.h"
#include "quick_backend/toolbar/CVqQuickWatchedToolbar.h"
#include "quick_backend/toolbar/SVqUiEvent.h"
#include "quick_backend/toolbar/VqItemOf.h"

#include <QPointer>
#include <QQmlEngine>
#include <QQuickWindow>

#include <cstdint>
#include <utility>

namespace {

const vq_wchar* name_of(CVqQuickControl& control)
{
    // NOLINTNEXTLINE(performance-no-int-to-ptr): an identifier is the address of a name.
    return reinterpret_cast<const vq_wchar*>(static_cast<std::uintptr_t>(control.GetControlID()));
}

template <class Work>
void each_control(CVqAbstractToolbar& toolbar, Work work)
{
    for (CVqList::CVqNode* node = toolbar.GetFirstNode(); node;)
        if (IVqUIcontrol* control = toolbar.GetNextControl(node))
            work(*control);
}

// A place of the window as one of the desktop.
QPoint desktop_place(const CVqQuickControl& control, QPointF place)
{
    const QQuickWindow* window = control.Item() ? control.Item()->window() : nullptr;
    return (window ? window->mapToGlobal(place) : place).toPoint();
}

}

CVqQuickButtonToolbar::CVqQuickButtonToolbar(const vq_wchar* name, EToolbarType type,
                                             EOrientation orientation, QObject* parent)
    : QObject(parent), m_commands(std::make_unique<CVqQuickToolbarCommands>())
{
    QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
    auto* toolbar = static_cast<CVqQuickWatchedToolbar*>(CVqQuickButtonToolbar::CreateToolbar());
    m_pToolbar = toolbar;
    m_hToolbar = toolbar->CreateUI(0, type, name);
    CVqAbstractButtonToolbar::Init(orientation != EOrientation::Horizontal, type);
    toolbar->SetOrientation(orientation);
    toolbar->SetToolbarVisibility(true);
    toolbar->SetControlFunctions([this](CVqQuickControl& control) { control_came(control); },
                                 [this](CVqQuickControl& control) { control_gone(control); });
    toolbar->SetTidyFunction([this] { tidy(); });
    toolbar->SetEventFunction(
        [this](CVqQuickControl& control, SVqUiEvent& event) { handle(control, event); });
    VQ_SetToolbarButtonAsHiddenCallback(this);
}

CVqQuickButtonToolbar::~CVqQuickButtonToolbar()
{
    VQ_RemoveToolbarButtonAsHiddenCallback(this);
    static_cast<CVqQuickWatchedToolbar*>(m_pToolbar)->SetControlFunctions({}, {});
    m_pToolbar->DestroyUI();
}

CVqQuickToolbar& CVqQuickButtonToolbar::Toolbar() const
{
    return *static_cast<CVqQuickToolbar*>(m_pToolbar);
}

CVqQuickToolbarArea* CVqQuickButtonToolbar::Area() const
{
    return Toolbar().Area();
}

QString CVqQuickButtonToolbar::Name() const
{
    return m_pToolbar->GetName().ToQString();
}

void CVqQuickButtonToolbar::SetMenu(CVqQuickMenu* menu)
{
    m_commands->SetMenu(menu);
}

CVqQuickMenu* CVqQuickButtonToolbar::Menu() const
{
    return m_commands->Menu();
}

// Factories --------------------------------------------------------------------------------------------

CVqAbstractToolbar* CVqQuickButtonToolbar::CreateToolbar()
{
    return new CVqQuickWatchedToolbar;
}

IVqUIcontrol* CVqQuickButtonToolbar::CreateControlButton(bool)
{
    return new CVqQuickButton;
}

IVqUIcontrol* CVqQuickButtonToolbar::CreateTextButton()
{
    return new CVqQuickTextButton;
}

IVqUIcontrol* CVqQuickButtonToolbar::CreateSeparator()
{
    return new CVqQuickSeparator;
}

// Controls ---------------------------------------------------------------------------------------------

void CVqQuickButtonToolbar::control_came(CVqQuickControl& control)
{
    m_seen[&control] = {CVqStringW(name_of(control)), control.Tooltip(), control.IsShown()};
    connect(&control, &CVqQuickControl::lookChanged, this, [this, &control] { look_changed(control); });
    connect(&control, &CVqAbstractControl::labelChanged, this, [this] { content_changed(); });
    read_store(control);
    m_commands->Add(control);
    UpdateSeparators(true);
    content_changed();
}

void CVqQuickButtonToolbar::control_gone(CVqQuickControl& control)
{
    disconnect(&control, nullptr, this, nullptr);
    m_seen.erase(&control);
    m_commands->Remove(control);
    UpdateSeparators(true);
    content_changed();
}

// Comes often and mostly for nothing, so it compares before it does anything.
void CVqQuickButtonToolbar::look_changed(CVqQuickControl& control)
{
    SSeen& seen = m_seen[&control];
    const bool renamed = !VqEquals(seen.m_name, name_of(control));
    const QString tooltip = control.Tooltip();
    if (renamed || seen.m_tooltip != tooltip)
        content_changed();
    if (control.GetKind() != CVqQuickControl::Separator && seen.m_shown != control.IsShown())
        UpdateSeparators(true);
    seen = {renamed ? CVqStringW(name_of(control)) : std::move(seen.m_name), tooltip, control.IsShown()};
    if (renamed)
        read_store(control);
    m_commands->Update(control);
}

void CVqQuickButtonToolbar::read_store(CVqQuickControl& control)
{
    control.SetListedAsHidden(VQ_IsToolbarButtonSetAsHidden(m_pToolbar->GetName(), name_of(control)));
}

// The lookup knows which names a change reaches, so all controls are looked up again.
int CVqQuickButtonToolbar::ButtonHiddenChanged(const vq_wchar*, const vq_wchar*, bool, bool)
{
    each_control(*m_pToolbar, [this](IVqUIcontrol& control) {
        if (auto* quick = dynamic_cast<CVqQuickControl*>(&control))
            read_store(*quick);
    });
    return 0;
}

void CVqQuickButtonToolbar::content_changed()
{
    if (!std::exchange(m_content_told, false))
        return;
    const auto tell = [this] {
        m_content_told = true;
        Q_EMIT contentChanged();
    };
    QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}

void CVqQuickButtonToolbar::EnableAll(bool enable)
{
    CVqAbstractButtonToolbar::EnableAll(enable);
    m_commands->SetAllEnabled(enable);
}

void CVqQuickButtonToolbar::ResetAllControlSizesOnToolbar()
{
    each_control(*m_pToolbar, [](IVqUIcontrol& control) { control.SetControlSize({0, 0}); });
    Toolbar().RequestLayout();
}

// Separators -------------------------------------------------------------------------------------------

int CVqQuickButtonToolbar::UpdateSeparators(bool defer)
{
    if (defer) {
        Toolbar().RequestLayout();
        return CVqAbstractButtonToolbar::UpdateSeparators(true);
    }
    CVqSeparatorPass pass(m_pToolbar->IsToolbarDragDropEnabled());
    each_control(*m_pToolbar, [&pass](IVqUIcontrol& control) {
        const auto* quick = dynamic_cast<const CVqQuickControl*>(&control);
        pass.Meet(control, quick ? quick->IsShown() : control.GetControlVisibility());
    });
    pass.End();
    return 0;
}

void CVqQuickButtonToolbar::tidy()
{
    if (std::exchange(m_bSeparatorsDirty, false))
        UpdateSeparators(false);
}

// Setting up -------------------------------------------------------------------------------------------

void CVqQuickButtonToolbar::EnableToolbarDragDrop(bool enable)
{
    const bool was_customizing = IsCustomizing();
    CVqAbstractButtonToolbar::EnableToolbarDragDrop(enable);
    UpdateSeparators(true);
    if (IsCustomizing() != was_customizing)
        Q_EMIT customizingChanged();
}

void CVqQuickButtonToolbar::ChangeToolbarType(EToolbarType type, bool keep)
{
    const bool was_customizing = IsCustomizing();
    CVqAbstractButtonToolbar::ChangeToolbarType(type, keep);
    if (IsCustomizing() != was_customizing)
        Q_EMIT customizingChanged();
}

void CVqQuickButtonToolbar::ShowToolbarSetup(vq_uint64 parent, CVqVariant& factory, vq_uint64 button,
                                             bool commands, setup_callback_type callback)
{
    auto* first = dynamic_cast<CVqQuickControl*>(m_pToolbar->GetControl(button));
    Q_EMIT setupRequested({VqItemOf(parent), factory, first, commands, callback});
}

bool CVqQuickButtonToolbar::StartDrag(SVqUiEvent& event)
{
    if (!IsToolbarDragDropEnabled())
        return false;
    Q_EMIT dragRequested(m_dragged, event.m_place.x(), event.m_place.y());
    return true;
}

// Events -----------------------------------------------------------------------------------------------

void CVqQuickButtonToolbar::handle(CVqQuickControl& control, SVqUiEvent& event)
{
    const bool is_picker = control.GetKind() == CVqQuickControl::Picker;
    if (event.m_kind == SVqUiEvent::EKind::ContextMenu) {
        Q_EMIT contextMenuRequested(is_picker ? nullptr : &control, event.m_place.x(), event.m_place.y());
    } else if (is_picker) {
        return; // its look opens it
    } else if (event.m_kind == SVqUiEvent::EKind::Triggered) {
        run(control, event);
    } else if (event.m_kind == SVqUiEvent::EKind::DropDown) {
        open_drop_down(control, event);
    } else {
        const QPointer<CVqQuickButtonToolbar> alive(this);
        m_dragged = &control;
        StartDrag(event);
        if (alive)
            m_dragged = nullptr;
    }
}

void CVqQuickButtonToolbar::run(const CVqQuickControl& control, SVqUiEvent& event)
{
    const QString command = control.CommandText();
    const QPointer<CVqQuickButtonToolbar> alive(this);
    if ((m_pCallback && m_pCallback(event)) || !alive)
        return;
    if (const std::optional<vq_uint32> item = m_commands->ItemOf(command))
        Menu()->Dispatch(*item);
    else
        Q_EMIT triggered(command);
}

void CVqQuickButtonToolbar::open_drop_down(const CVqQuickControl& control, const SVqUiEvent& event) const
{
    const QPoint place = desktop_place(control, event.m_place);
    if (Menu() && control.HasDropDown())
        Menu()->track(control.DropDownId(), place.x(), place.y());
}
