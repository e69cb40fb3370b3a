#include "tests/support/RecordingMenuBase.h"

#include "AbstractGui/CVqMenuItem.h"

#include <QString>

namespace {

std::string Name(const CVqMenuItem* item)
{
    return item ? std::to_string(item->id()) : "null";
}

}

RecordingMenuBase::RecordingMenuBase() = default;

RecordingMenuBase::~RecordingMenuBase()
{
    m_calls->push_back("Delete");
}

IVqMenuBase* RecordingMenuBase::Duplicate()
{
    m_calls->push_back("Duplicate");
    return new RecordingMenuBase(*this);
}

int RecordingMenuBase::EnterMenu(vq_wchar character)
{
    m_calls->push_back("EnterMenu " + std::to_string(static_cast<unsigned>(character)));
    return 0;
}

vq_uint64 RecordingMenuBase::CreateMenuHandle()
{
    m_calls->push_back("CreateMenuHandle = " + std::to_string(++m_last_handle));
    return m_last_handle;
}

int RecordingMenuBase::CodeFor(const CVqMenuItem* item) const
{
    const auto code = item ? m_codes.find(item->id()) : m_codes.end();
    return code == m_codes.end() ? m_code : code->second;
}

int RecordingMenuBase::InsertItem(CVqMenuItem* parent, CVqMenuItem* position, CVqMenuItem* item)
{
    const int code = CodeFor(item);
    m_calls->push_back("InsertItem parent " + Name(parent) + ", position " + Name(position) + ", item "
                       + Name(item) + " = " + std::to_string(code));
    return code;
}

void RecordingMenuBase::DestroyItem(CVqMenuItem* item)
{
    m_calls->push_back("DestroyItem " + Name(item));
}

void RecordingMenuBase::UpdateItemText(CVqMenuItem* item)
{
    m_calls->push_back("UpdateItemText " + Name(item) + " \"" + item->text().ToQString().toStdString()
                       + "\"");
}

void RecordingMenuBase::UpdateItemState(CVqMenuItem* item)
{
    m_calls->push_back("UpdateItemState " + Name(item) + " status " + std::to_string(item->status()));
}
