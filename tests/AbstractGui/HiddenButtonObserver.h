#pragma once

#include "AbstractGui/VqHiddenToolbarButtons.h"

#include <optional>
#include <string>
#include <vector>

/// The four values of one call of an observer.
struct HiddenButtonChange
{
    std::basic_string<vq_wchar> m_toolbar;
    std::optional<std::basic_string<vq_wchar>> m_button; ///< None: null.
    bool m_hidden;
    bool m_system;

    bool operator==(const HiddenButtonChange&) const = default;
};

/// Listens to changes of hidden toolbar buttons for the time of its life.
class HiddenButtonObserver : public SVqToolbarButtonHiddenCallback
{
public:
    /// Puts itself into `order` at each call.
    explicit HiddenButtonObserver(std::vector<const HiddenButtonObserver*>* order = nullptr) : m_order(order)
    {
        VQ_SetToolbarButtonAsHiddenCallback(this);
    }
    HiddenButtonObserver(const HiddenButtonObserver&) = delete;
    HiddenButtonObserver& operator=(const HiddenButtonObserver&) = delete;
    ~HiddenButtonObserver() override { VQ_RemoveToolbarButtonAsHiddenCallback(this); }

    int ButtonHiddenChanged(const vq_wchar* toolbar, const vq_wchar* button, bool hidden,
                            bool system) override
    {
        m_changes.push_back({toolbar, {}, hidden, system});
        if (button)
            m_changes.back().m_button = button;
        if (m_order)
            m_order->push_back(this);
        return -1;
    }

    std::vector<HiddenButtonChange> m_changes;

private:
    std::vector<const HiddenButtonObserver*>* const m_order;
};
