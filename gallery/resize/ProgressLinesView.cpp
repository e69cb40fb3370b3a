#include "gallery/resize/ProgressLinesView.h"

#include "gallery/resize/TerminalText.h"
#include "system/CVqStringW.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace Gallery {

ProgressLinesView::ProgressLinesView(std::function<void(const QString&)> write, unsigned int range)
    : m_write(std::move(write)), m_range(range)
{ }

void ProgressLinesView::SetLabel(const CVqStringW& label)
{
    m_write(u"%1/%2 %3\n"_s.arg(m_position + 1).arg(m_range).arg(PrintableText(label.ToQString())));
}

}
