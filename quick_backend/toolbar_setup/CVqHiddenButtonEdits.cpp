#include "quick_backend/toolbar_setup/CVqHiddenButtonEdits.h"

#include "AbstractGui/VqHiddenToolbarButtons.h"
#include "quick_backend/toolbar/CVqQuickButtonToolbar.h"
#include "quick_backend/toolbar/CVqQuickControl.h"
#include "system/CVqStringW.h"

using namespace Qt::StringLiterals;

namespace {

QString plain_name(const QString& bar)
{
    return bar.section(u'#', 0, 0);
}

bool is_listed(const QString& bar, const QString& button)
{
    return VQ_IsToolbarButtonSetAsHidden(CVqStringW::FromQString(bar), CVqStringW::FromQString(button));
}

// An instance that the application never heard of: what is found for it is the user's own setting.
bool is_hidden_by_user(const QString& plain_bar, const QString& button)
{
    return is_listed(plain_bar + u"#\u0001"_s, button);
}

void set_hidden(const QString& plain_bar, const QString& button, bool hidden)
{
    VQ_SetToolbarButtonAsHidden(CVqStringW::FromQString(plain_bar), CVqStringW::FromQString(button), hidden,
                                false);
}

}

bool CVqHiddenButtonEdits::IsHidden(CVqQuickButtonToolbar& bar, const CVqQuickControl& control)
{
    return is_hidden_by_user(plain_name(bar.Name()), control.Name());
}

bool CVqHiddenButtonEdits::IsLocked(CVqQuickButtonToolbar& bar, const CVqQuickControl& control)
{
    return !IsHidden(bar, control) && is_listed(bar.Name(), control.Name());
}

void CVqHiddenButtonEdits::Set(CVqQuickButtonToolbar& bar, const CVqQuickControl& control, bool hidden)
{
    const QString plain_bar = plain_name(bar.Name());
    const bool before = is_hidden_by_user(plain_bar, control.Name());
    if (before == hidden)
        return;
    m_before.try_emplace({plain_bar, control.Name()}, before);
    set_hidden(plain_bar, control.Name(), hidden);
}

void CVqHiddenButtonEdits::Restore()
{
    for (const auto& [names, hidden] : m_before)
        if (is_hidden_by_user(names.first, names.second) != hidden)
            set_hidden(names.first, names.second, hidden);
    Forget();
}
