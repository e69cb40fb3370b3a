#pragma once

#include "AbstractGui/CVqAbstractControl.h"
#include "AbstractGui/CVqAbstractToolbar.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

/// A control without a widget that writes down each call that changes something as a line of text, and
/// answers what a test tells it. All else is as in CVqAbstractControl.
///
///     auto calls = std::make_shared<RecordingControl::Lines>();
///     auto* open = new RecordingControl("open", calls); // the toolbar deletes it
///     ...
///     EXPECT_THAT(*calls, ElementsAre("open.Set 160 1", "open.Set 162 1.5"));
///
/// The control is written by its name, which it also has in the line that gives it another one. The lines:
///
///     .CreateUI 7 = 1
///     .DestroyUI
///     .MarkToDeleteItself
///     .Load = -9                       (in either form)
///     .Save
///     .Set 160 1                       (with an int)
///     .Set 162 1.5                     (the zoom)
///     .Set 258 state 2 "Open"          (texts and the image index of a state)
///     .Set 262 "open"
///     .Command 3 state 1
///     .Enable 0
///     .SetFlatStyle 1
///     .SetTextAlign 16
///     .SetControlSize 10x20
///     .SetControlVisibility 0
///     .SetOrientation 1
///     .Delete
class RecordingControl : public CVqAbstractControl
{
public:
    using Lines = std::vector<std::string>;

    explicit RecordingControl(std::string name, std::shared_ptr<Lines> calls = std::make_shared<Lines>());
    ~RecordingControl() override;

    const std::string& Name() const { return m_shown_name; }

    // What it answers --------------------------------------------------------------------------------

    /// What CreateUI gives; 1 when nothing is told. 0 is a failure.
    RecordingControl& AnswerHandle(vq_uint64 handle);

    /// Answers `value` to code 1536, with `result`.
    RecordingControl& AnswerSeparator(int value, int result = 0);

    /// Answers `value` to code 33.
    RecordingControl& AnswerStaysLast(int value);

    /// What both Load operations give in place of the real result.
    RecordingControl& AnswerLoad(int result);

    /// Its size, whatever the orientation; unlike SetControlSize() without a line.
    RecordingControl& Sized(int width, int height);

    /// Hides it without a line.
    RecordingControl& Hidden();

    /// The value with which GetControlSize was called last, or 0.
    int SizeValue() const { return m_size_value; }

    // IVqUIcontrol -----------------------------------------------------------------------------------

    vq_uint64 CreateUI(vq_uint64 parent) override;
    void DestroyUI() override;
    void MarkToDeleteItself() override;
    int Load(CVqLiteVariantR& in) override;
    int Load(const CVqVariant& in) override;
    int Save(CVqLiteVariantW& out) override;
    int Save(CVqVariant& out) override;
    int Get(unsigned code, vq_int64 index, void* data) override;
    int Set(unsigned code, vq_int64 index, void* data) override;
    int Command(unsigned code, vq_int64 index, void* data) override;
    int Enable(bool enable) override;
    void SetFlatStyle(bool flat) override;
    int SetTextAlign(unsigned align) override;
    int GetControlSize(CVqSizeBase<int>& size, int value) override;
    int SetControlSize(const CVqSizeBase<int>& size) override;
    void SetControlVisibility(bool visible) override;
    int SetOrientation(EOrientation orientation) override;

protected:
    void Record(const std::string& line);

private:
    int Loaded(int result);

    std::string m_shown_name;
    std::shared_ptr<Lines> m_calls;
    vq_uint64 m_handle = 1;
    int m_separator = 0;
    int m_separator_result = 0;
    int m_stays_last = 0;
    std::optional<int> m_load_answer;
    int m_size_value = 0;
};

/// A picker that creates itself and writes down what it is told of its toolbar. Its lines:
///
///     .Set 2306 open         (the control at the boundary; null at the end of the list)
///     .Set 2307
///     .Command 2308 open
///     .Set 2309              (and 2310)
class RecordingPicker final : public RecordingControl
{
public:
    using RecordingControl::RecordingControl;

    int Set(unsigned code, vq_int64 index, void* data) override;
    int Command(unsigned code, vq_int64 index, void* data) override;

    // What it was told last.
    CVqList* m_list = nullptr;
    CVqAbstractToolbar::id_map_type* m_map = nullptr;
    CVqAbstractToolbar::callback_type m_callback = nullptr;
    void* m_callback_data = nullptr;
};
