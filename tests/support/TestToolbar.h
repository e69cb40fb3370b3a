#pragma once

#include "AbstractGui/CVqAbstractToolbar.h"
#include "tests/support/RecordingControl.h"

#include <memory>
#include <string>
#include <utility>

/// A back end for tests: its controls and its picker record their calls into one list of lines, and all that
/// a toolbar keeps to itself is open. What it holds is destroyed with it.
///
///     TestToolbar bar(EToolbarType::Main);
///     bar.Add("open");
///     bar.Add("save");
///     EXPECT_EQ(bar.Order(), "open save |picker");
class TestToolbar : public CVqAbstractToolbar
{
public:
    using Lines = RecordingControl::Lines;

    /// What CreateToolbarPicker() gives: a RecordingPicker, one that does not create itself, or null.
    enum class Picker
    {
        Works,
        Fails,
        None,
    };

    /// Not created.
    TestToolbar() = default;

    explicit TestToolbar(EToolbarType type, Picker picker = Picker::Works) : m_wanted_picker(picker)
    {
        CreateUI(0, type, VQ_TEXT("bar"));
        TakeCalls();
    }

    /// One that shows what is in the picker of `main`, and has to die before it.
    static TestToolbar InPickerOf(const TestToolbar& main)
    {
        TestToolbar bar(main);
        bar.m_eType = EToolbarType::InPicker;
        return bar;
    }

    ~TestToolbar() override { DestroyUI(); }

    IVqUIcontrol* CreateToolbarPicker(const vq_wchar* name) override
    {
        m_picker_name = name ? CVqStringW(name).ToQString().toStdString() : "null";
        if (m_wanted_picker == Picker::None)
            return nullptr;
        m_picker = new RecordingPicker("picker", m_calls);
        m_picker->AnswerHandle(m_wanted_picker == Picker::Works ? 1 : 0);
        return m_picker;
    }

    /// A control of this name that belongs to nobody yet.
    RecordingControl* Make(const std::string& name) { return new RecordingControl(name, m_calls); }

    /// Adds a new control and forgets the lines.
    RecordingControl& Add(const std::string& name)
    {
        RecordingControl* control = Make(name);
        vq_uint64 id = 0;
        AddControl(*control, id);
        TakeCalls();
        return *control;
    }

    /// The names of all controls in order, with `|` in front of the one at the boundary; "-" for a node
    /// without a control.
    std::string Order() const
    {
        std::string out;
        for (CVqList::CVqNode* node = m_pControls ? m_pControls->GetFirst() : nullptr; node;
             node = node->GetNext())
            out += (out.empty() ? "" : " ") + std::string(node == m_pBoundary ? "|" : "")
                + NameOf(static_cast<IVqUIcontrol*>(m_pControls->GetData(node)));
        return out;
    }

    /// The names that a walk with GetFirstNode() and GetNextControl() meets.
    std::string Walk()
    {
        std::string out;
        for (CVqList::CVqNode* node = GetFirstNode(); node;)
            out += (out.empty() ? "" : " ") + NameOf(GetNextControl(node));
        return out;
    }

    static std::string NameOf(const IVqUIcontrol* control)
    {
        const auto* named = dynamic_cast<const RecordingControl*>(control);
        return named ? named->Name() : "-";
    }

    /// Makes `control` the first one that lies in the picker.
    void SetBoundary(const IVqUIcontrol& control) { m_pBoundary = m_pControls->Find(&control); }

    /// What controls and picker were told since the last time, see RecordingControl.
    Lines TakeCalls() { return std::exchange(*m_calls, {}); }

    RecordingPicker& ThePicker() { return *m_picker; }

    using CVqAbstractToolbar::MoveFromPicker;
    using CVqAbstractToolbar::MoveToPicker;

    using CVqAbstractToolbar::m_bLayoutDirty;
    using CVqAbstractToolbar::m_borders;
    using CVqAbstractToolbar::m_bVisible;
    using CVqAbstractToolbar::m_eOrientation;
    using CVqAbstractToolbar::m_eType;
    using CVqAbstractToolbar::m_hHost;
    using CVqAbstractToolbar::m_hWindow;
    using CVqAbstractToolbar::m_pBoundary;
    using CVqAbstractToolbar::m_pCallback;
    using CVqAbstractToolbar::m_pCallbackData;
    using CVqAbstractToolbar::m_pControlIds;
    using CVqAbstractToolbar::m_pControls;
    using CVqAbstractToolbar::m_size;
    using CVqAbstractToolbar::m_ui3dBorders;
    using CVqAbstractToolbar::m_uiBackground;
    using CVqAbstractToolbar::m_uiDragMode;

    std::shared_ptr<Lines> m_calls = std::make_shared<Lines>();
    Picker m_wanted_picker = Picker::Works;
    RecordingPicker* m_picker = nullptr; ///< Not owned; the last one made.
    std::string m_picker_name;           ///< What CreateToolbarPicker() was given.
};
