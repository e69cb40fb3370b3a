#include "quick_backend/toolbar_setup/CVqQuickToolbarSetup.h"

#include "quick_backend/toolbar_setup/CVqHiddenButtonEdits.h"
#include "quick_backend/toolbar_setup/SVqCustomisedBar.h"
#include "quick_backend/toolbar_setup/VqToolbarOrder.h"

#include <algorithm>

CVqQuickToolbarSetup::CVqQuickToolbarSetup(QObject* parent)
    : QObject(parent), m_hidden(std::make_unique<CVqHiddenButtonEdits>())
{ }

CVqQuickToolbarSetup::~CVqQuickToolbarSetup()
{
    cancel();
}

// The bars -----------------------------------------------------------------------------------------------

void CVqQuickToolbarSetup::AddToolbar(CVqQuickButtonToolbar& bar, const CVqVariant& factory,
                                      const QString& title)
{
    auto added = std::make_unique<SVqCustomisedBar>();
    added->m_bar = &bar;
    added->m_title = title.isEmpty() ? bar.Name() : title;
    added->m_factory = factory;
    if (factory.GetCount() == 0)
        bar.Save(added->m_factory, nullptr);
    if (m_active)
        note_state(*added);
    m_bars.push_back(std::move(added));
    connect(&bar, &QObject::destroyed, this, &CVqQuickToolbarSetup::forget_lost_bars);
    connect(&bar, &CVqQuickButtonToolbar::setupRequested, this,
            [this, &bar](const SVqToolbarSetupRequest& request) { answer(bar, request); });
    Q_EMIT toolbarsChanged();
    if (m_current < 0)
        SetCurrent(0);
}

void CVqQuickToolbarSetup::forget_lost_bars()
{
    const auto is_lost = [](const auto& bar) { return !bar->m_bar; };
    const auto lost_in_front
        = m_current < 0 ? 0 : std::count_if(m_bars.begin(), m_bars.begin() + m_current, is_lost);
    std::erase_if(m_bars, is_lost);
    m_current = std::min(m_current - int(lost_in_front), int(m_bars.size()) - 1);
    Q_EMIT toolbarsChanged();
    Q_EMIT currentChanged();
}

SVqCustomisedBar* CVqQuickToolbarSetup::find(const CVqQuickButtonToolbar* bar) const
{
    const auto found = std::find_if(m_bars.begin(), m_bars.end(),
                                    [bar](const auto& known) { return bar && known->m_bar == bar; });
    return found == m_bars.end() ? nullptr : found->get();
}

QList<CVqQuickButtonToolbar*> CVqQuickToolbarSetup::Toolbars() const
{
    QList<CVqQuickButtonToolbar*> bars;
    for (const auto& bar : m_bars)
        bars << bar->m_bar;
    return bars;
}

QVariantList CVqQuickToolbarSetup::ToolbarValues() const
{
    QVariantList bars;
    for (const auto& bar : m_bars)
        bars << QVariant::fromValue(bar->m_bar.data());
    return bars;
}

QStringList CVqQuickToolbarSetup::Titles() const
{
    QStringList titles;
    for (const auto& bar : m_bars)
        titles << bar->m_title;
    return titles;
}

CVqQuickButtonToolbar* CVqQuickToolbarSetup::toolbarOf(CVqQuickControl* control) const
{
    for (const auto& bar : m_bars)
        if (control && VqHolds(*bar->m_bar, control))
            return bar->m_bar;
    return nullptr;
}

// What is chosen -----------------------------------------------------------------------------------------

CVqQuickButtonToolbar* CVqQuickToolbarSetup::CurrentToolbar() const
{
    return m_current < 0 ? nullptr : m_bars[std::size_t(m_current)]->m_bar.data();
}

void CVqQuickToolbarSetup::SetCurrent(int index)
{
    if (index < 0 || index >= int(m_bars.size()) || index == m_current)
        return;
    m_current = index;
    Q_EMIT currentChanged();
    if (m_control && toolbarOf(m_control) != CurrentToolbar())
        SetControl(nullptr);
}

void CVqQuickToolbarSetup::SetControl(CVqQuickControl* control)
{
    CVqQuickButtonToolbar* bar = toolbarOf(control);
    CVqQuickControl* chosen = bar ? control : nullptr;
    if (chosen == m_control)
        return;
    m_control = chosen;
    if (bar)
        SetCurrent(int(Toolbars().indexOf(bar)));
    Q_EMIT controlChanged();
}

// The session --------------------------------------------------------------------------------------------

void CVqQuickToolbarSetup::note_state(SVqCustomisedBar& bar)
{
    bar.m_state = std::make_unique<CVqToolbarState>(*bar.m_bar);
    bar.m_had_drag_drop = bar.m_bar->IsToolbarDragDropEnabled();
    bar.m_bar->EnableToolbarDragDrop(true);
}

void CVqQuickToolbarSetup::enter(CVqQuickButtonToolbar* bar, const SVqToolbarSetupRequest& request)
{
    if (m_active || m_bars.empty())
        return;
    for (const auto& known : m_bars)
        note_state(*known);
    const CVqQuickButtonToolbar* shown = find(bar) ? bar : CurrentToolbar();
    const QQuickItem* place = request.m_parent ? request.m_parent : shown->Area();
    m_opener = request.m_parent;
    m_window = place->window();
    m_commands_offered = request.m_commands;
    m_ask = request.m_callback;
    m_active = true;
    Q_EMIT activeChanged();
}

void CVqQuickToolbarSetup::choose(CVqQuickButtonToolbar* bar, CVqQuickControl* control)
{
    if (!m_active)
        return;
    if (find(bar))
        SetCurrent(int(Toolbars().indexOf(bar)));
    SetControl(control);
}

void CVqQuickToolbarSetup::answer(CVqQuickButtonToolbar& bar, const SVqToolbarSetupRequest& request)
{
    if (request.m_factory.GetCount() > 0)
        find(&bar)->m_factory = request.m_factory;
    enter(&bar, request);
    choose(&bar, request.m_first);
}

void CVqQuickToolbarSetup::begin()
{
    SVqToolbarSetupRequest request;
    request.m_commands = true;
    enter(nullptr, request);
}

void CVqQuickToolbarSetup::beginAt(CVqQuickButtonToolbar* bar, CVqQuickControl* control)
{
    SVqToolbarSetupRequest request;
    request.m_commands = true;
    enter(bar, request);
    choose(bar, control);
}

void CVqQuickToolbarSetup::leave()
{
    for (const auto& bar : m_bars) {
        bar->m_bar->EnableToolbarDragDrop(bar->m_had_drag_drop);
        bar->m_state.reset();
    }
    m_hidden->Forget();
    sweep();
    m_active = false;
    m_opener = nullptr;
    m_window = nullptr;
    SetControl(nullptr);
    Q_EMIT activeChanged();
}

void CVqQuickToolbarSetup::accept()
{
    if (!m_active)
        return;
    leave();
    Q_EMIT accepted();
}

void CVqQuickToolbarSetup::cancel()
{
    if (!m_active)
        return;
    restore();
    leave();
    Q_EMIT changed();
    Q_EMIT cancelled();
}

void CVqQuickToolbarSetup::restore()
{
    std::vector<SVqCustomisedBar*> reordered;
    for (const auto& bar : m_bars)
        if (!bar->m_state->IsOrderKept())
            reordered.push_back(bar.get());
    for (const SVqCustomisedBar* bar : reordered)
        for (CVqQuickControl* control : VqControlsOf(*bar->m_bar))
            take_out(*bar->m_bar, *control);
    for (const SVqCustomisedBar* bar : reordered)
        bar->m_state->PutBack();
    m_hidden->Restore();
    for (const auto& bar : m_bars)
        bar->m_state->RestoreLooks();
}

// What was made or taken out and stands nowhere has no other owner.
void CVqQuickToolbarSetup::sweep()
{
    for (const auto& control : m_touched)
        if (control && !toolbarOf(control))
            control->MarkToDeleteItself();
    m_touched.clear();
}

void CVqQuickToolbarSetup::touch(CVqQuickControl& control)
{
    if (std::find(m_touched.begin(), m_touched.end(), &control) == m_touched.end())
        m_touched.emplace_back(&control);
}

void CVqQuickToolbarSetup::take_out(CVqQuickButtonToolbar& bar, CVqQuickControl& control)
{
    touch(control);
    VqTakeOut(bar, control);
}

void CVqQuickToolbarSetup::tell()
{
    CVqQuickButtonToolbar* bar = toolbarOf(m_control);
    if (bar)
        SetCurrent(int(Toolbars().indexOf(bar)));
    else
        SetControl(nullptr);
    Q_EMIT changed();
    if (m_active)
        return;
    m_hidden->Forget();
    sweep();
    Q_EMIT accepted();
}
