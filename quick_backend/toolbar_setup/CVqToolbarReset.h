#pragma once

#include <functional>
#include <vector>

class CVqQuickButtonToolbar;
class CVqQuickControl;
struct SVqCustomisedBar;

/// Puts the factory records of bars back.
///
/// A record makes plain buttons. Where there is a control that one of them stands for, that very control
/// takes its place: it may be of another kind, and it knows what no record holds. Controls are only taken
/// out, never deleted.
class CVqToolbarReset
{
public:
    /// Hears of each control that is made or taken out: from then on the receiver owns it while no bar holds
    /// it.
    using TouchFunction = std::function<void(CVqQuickControl& control)>;

    /// In a session: each bar has its state.
    CVqToolbarReset(std::vector<SVqCustomisedBar*> bars, TouchFunction touch);

    /// Gives the bars that were rebuilt: all whose records are short enough.
    std::vector<CVqQuickButtonToolbar*> Run();

private:
    bool is_held(CVqQuickControl& control) const;
    bool is_made(const CVqQuickControl* control) const;
    void rebuild(const SVqCustomisedBar& bar);
    CVqQuickControl* own(const SVqCustomisedBar& bar, const CVqQuickControl& made) const;
    CVqQuickControl* moved_away(const CVqQuickControl& made) const;
    void replace_made(const SVqCustomisedBar& bar, bool by_its_own);
    void put_general_back(const SVqCustomisedBar& fallback);

    const std::vector<SVqCustomisedBar*> m_bars;
    const TouchFunction m_touch;
    std::vector<CVqQuickControl*> m_taken_out;
    std::vector<CVqQuickControl*> m_made;
};
