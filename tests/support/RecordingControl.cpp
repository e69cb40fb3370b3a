#include "tests/support/RecordingControl.h"

#include "AbstractGui/VqControlCodes.h"

#include <QString>

#include <utility>

namespace {

std::string quoted(const void* text)
{
    return "\"" + static_cast<const CVqStringW*>(text)->ToQString().toStdString() + "\"";
}

std::string number(const void* value)
{
    return std::to_string(*static_cast<const int*>(value));
}

// The value of a Set as its code has it.
std::string shown_value(unsigned code, vq_int64 index, const void* data)
{
    switch (code) {
    case vq_control_zoom:
        return QString::number(*static_cast<const double*>(data)).toStdString();
    case vq_control_command:
    case vq_control_text:
    case vq_control_tooltip:
        return "state " + std::to_string(index) + " " + quoted(data);
    case vq_control_bitmap:
        return "state " + std::to_string(index) + " " + number(data);
    case vq_control_name:
        return quoted(data);
    default:
        return number(data);
    }
}

std::string name_of(const void* control)
{
    const auto* named = dynamic_cast<const RecordingControl*>(static_cast<const IVqUIcontrol*>(control));
    return named ? named->Name() : "null";
}

}

RecordingControl::RecordingControl(std::string name, std::shared_ptr<Lines> calls)
    : m_shown_name(std::move(name)), m_calls(std::move(calls))
{
    m_strName = CVqStringW(m_shown_name.c_str());
}

RecordingControl::~RecordingControl()
{
    Record(".Delete");
}

void RecordingControl::Record(const std::string& line)
{
    m_calls->push_back(m_shown_name + line);
}

RecordingControl& RecordingControl::AnswerHandle(vq_uint64 handle)
{
    m_handle = handle;
    return *this;
}

RecordingControl& RecordingControl::AnswerSeparator(int value, int result)
{
    m_separator = value;
    m_separator_result = result;
    return *this;
}

RecordingControl& RecordingControl::AnswerStaysLast(int value)
{
    m_stays_last = value;
    return *this;
}

RecordingControl& RecordingControl::AnswerLoad(int result)
{
    m_load_answer = result;
    return *this;
}

RecordingControl& RecordingControl::Sized(int width, int height)
{
    m_size = {width, height};
    return *this;
}

RecordingControl& RecordingControl::Hidden()
{
    m_bVisible = false;
    return *this;
}

vq_uint64 RecordingControl::CreateUI(vq_uint64 parent)
{
    Record(".CreateUI " + std::to_string(parent) + " = " + std::to_string(m_handle));
    return m_handle;
}

void RecordingControl::DestroyUI()
{
    Record(".DestroyUI");
}

void RecordingControl::MarkToDeleteItself()
{
    Record(".MarkToDeleteItself");
    CVqAbstractControl::MarkToDeleteItself();
}

int RecordingControl::Loaded(int result)
{
    const int answer = m_load_answer.value_or(result);
    Record(".Load = " + std::to_string(answer));
    m_shown_name = m_strName.ToQString().toStdString();
    return answer;
}

int RecordingControl::Load(CVqLiteVariantR& in)
{
    return Loaded(CVqAbstractControl::Load(in));
}

int RecordingControl::Load(const CVqVariant& in)
{
    return Loaded(CVqAbstractControl::Load(in));
}

int RecordingControl::Save(CVqLiteVariantW& out)
{
    Record(".Save");
    return CVqAbstractControl::Save(out);
}

int RecordingControl::Save(CVqVariant& out)
{
    Record(".Save");
    return CVqAbstractControl::Save(out);
}

int RecordingControl::Get(unsigned code, vq_int64 index, void* data)
{
    switch (code) {
    case vq_control_separator:
        *static_cast<int*>(data) = m_separator;
        return m_separator_result;
    case vq_control_stays_last:
        *static_cast<int*>(data) = m_stays_last;
        return 0;
    case vq_control_state_count:
        *static_cast<vq_uint32*>(data) = m_uiStateCount;
        return 0;
    default:
        return CVqAbstractControl::Get(code, index, data);
    }
}

int RecordingControl::Set(unsigned code, vq_int64 index, void* data)
{
    Record(".Set " + std::to_string(code) + " " + shown_value(code, index, data));
    if (code == vq_control_name)
        m_shown_name = static_cast<const CVqStringW*>(data)->ToQString().toStdString();
    if (code != vq_control_state_count)
        return CVqAbstractControl::Set(code, index, data);
    m_uiStateCount = *static_cast<const vq_uint32*>(data);
    return 0;
}

int RecordingControl::Command(unsigned code, vq_int64 index, void* data)
{
    Record(".Command " + std::to_string(code) + " state " + std::to_string(index));
    return CVqAbstractControl::Command(code, index, data);
}

int RecordingControl::Enable(bool enable)
{
    Record(".Enable " + std::to_string(enable));
    return CVqAbstractControl::Enable(enable);
}

void RecordingControl::SetFlatStyle(bool flat)
{
    Record(".SetFlatStyle " + std::to_string(flat));
    CVqAbstractControl::SetFlatStyle(flat);
}

int RecordingControl::SetTextAlign(unsigned align)
{
    Record(".SetTextAlign " + std::to_string(align));
    return CVqAbstractControl::SetTextAlign(align);
}

int RecordingControl::GetControlSize(CVqSizeBase<int>& size, int value)
{
    m_size_value = value;
    size = m_size;
    return 0;
}

int RecordingControl::SetControlSize(const CVqSizeBase<int>& size)
{
    Record(".SetControlSize " + std::to_string(size.m_iWidth) + "x" + std::to_string(size.m_iHeight));
    return CVqAbstractControl::SetControlSize(size);
}

void RecordingControl::SetControlVisibility(bool visible)
{
    Record(".SetControlVisibility " + std::to_string(visible));
    CVqAbstractControl::SetControlVisibility(visible);
}

int RecordingControl::SetOrientation(EOrientation orientation)
{
    Record(".SetOrientation " + std::to_string(static_cast<int>(orientation)));
    return CVqAbstractControl::SetOrientation(orientation);
}

int RecordingPicker::Set(unsigned code, vq_int64 index, void* data)
{
    const std::string line = ".Set " + std::to_string(code);
    switch (code) {
    case vq_picker_boundary:
        Record(line + " "
               + name_of(m_list ? m_list->GetData(static_cast<CVqList::CVqNode*>(data)) : nullptr));
        return 0;
    case vq_picker_callback:
        Record(line);
        m_callback = reinterpret_cast<CVqAbstractToolbar::callback_type>(data);
        m_callback_data = reinterpret_cast<void*>(index);
        return 0;
    case vq_picker_list:
        Record(line);
        m_list = static_cast<CVqList*>(data);
        return 0;
    case vq_picker_map:
        Record(line);
        m_map = static_cast<CVqAbstractToolbar::id_map_type*>(data);
        return 0;
    default:
        return RecordingControl::Set(code, index, data);
    }
}

int RecordingPicker::Command(unsigned code, vq_int64 index, void* data)
{
    if (code != vq_picker_take)
        return RecordingControl::Command(code, index, data);
    Record(".Command 2308 " + name_of(data));
    return 0;
}
