#include "tests/support/RecordingProgressView.h"

#include "system/CVqStringW.h"

#include <QString>

#include <utility>

namespace {

std::string quoted(const CVqStringW& text)
{
    return '"' + text.ToQString().toStdString() + '"';
}

}

RecordingProgressView::RecordingProgressView(std::shared_ptr<Lines> calls) : m_calls(std::move(calls)) { }

RecordingProgressView::~RecordingProgressView()
{
    m_calls->push_back("Delete");
}

void RecordingProgressView::SetPos(unsigned int position)
{
    m_calls->push_back("SetPos " + std::to_string(position));
}

void RecordingProgressView::SetLabel(const CVqStringW& label)
{
    m_calls->push_back("SetLabel " + quoted(label));
}

void RecordingProgressView::SetTitle(const CVqStringW& title)
{
    m_calls->push_back("SetTitle " + quoted(title));
}

void RecordingProgressView::ProcessEvents()
{
    m_calls->push_back("ProcessEvents");
}
