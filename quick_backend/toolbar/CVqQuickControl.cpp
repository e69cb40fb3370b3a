#include "quick_backend/toolbar/CVqQuickControl.h"

#include "AbstractGui/VqControlCodes.h"
#include "quick_backend/toolbar/CVqQuickControlItem.h"
#include "quick_backend/toolbar/IVqQuickControlOwner.h"
#include "quick_backend/toolbar/SVqUiEvent.h"
#include "quick_backend/toolbar/VqItemOf.h"

#include <QQmlEngine>

#include <algorithm>
#include <cmath>

namespace {

constexpr int g_failed = -9;

}

CVqQuickControl::CVqQuickControl(Kind kind) : CVqAbstractControl(kind), m_kind(kind)
{
    QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
    for (const auto signal : {&CVqAbstractControl::stateChanged, &CVqAbstractControl::bitmapChanged,
                              &CVqAbstractControl::labelChanged})
        connect(this, signal, this, &CVqQuickControl::Changed);
}

CVqQuickControl::~CVqQuickControl()
{
    delete m_item;
}

void CVqQuickControl::Changed()
{
    Q_EMIT lookChanged();
    if (m_owner)
        m_owner->ControlChanged(*this);
}

template <class Value>
void CVqQuickControl::assign(Value& member, const Value& value)
{
    if (member == value)
        return;
    member = value;
    Changed();
}

const SVqControlState* CVqQuickControl::CurrentState() const
{
    const vq_uint32 count = std::min(m_uiStateCount, MaxStates);
    return m_iState >= 0 && vq_uint32(m_iState) < count ? &m_pStates[std::size_t(m_iState)] : nullptr;
}

int CVqQuickControl::Zoomed(int pixels) const
{
    return int(std::lround(std::min(pixels * Zoom(), double(LargestSide))));
}

// What the look shows ----------------------------------------------------------------------------------

QString CVqQuickControl::Name() const
{
    return m_strName.ToQString();
}

QString CVqQuickControl::Text() const
{
    const SVqControlState* state = CurrentState();
    return state ? state->m_text.ToQString() : QString();
}

int CVqQuickControl::ImageIndex() const
{
    const SVqControlState* state = CurrentState();
    return state ? state->m_bitmap : -1;
}

QString CVqQuickControl::Tooltip() const
{
    const SVqControlState* state = CurrentState();
    return state ? state->m_tooltip.ToQString() : QString();
}

QString CVqQuickControl::CommandText() const
{
    const SVqControlState* state = CurrentState();
    return state ? state->m_command.ToQString() : QString();
}

void CVqQuickControl::SetKeyText(const QString& text)
{
    assign(m_key_text, text);
}

void CVqQuickControl::SetCheckable(bool checkable)
{
    assign(m_checkable, checkable);
}

void CVqQuickControl::SetListedAsHidden(bool hidden)
{
    assign(m_listed_as_hidden, hidden);
}

void CVqQuickControl::SetHiddenByCommand(bool hidden)
{
    assign(m_hidden_by_command, hidden);
}

void CVqQuickControl::SetInPicker(bool in_picker)
{
    assign(m_in_picker, in_picker);
}

// Events -----------------------------------------------------------------------------------------------

void CVqQuickControl::Send(SVqUiEvent event)
{
    if (!IsEnabled() && event.m_kind != SVqUiEvent::EKind::ContextMenu)
        return;
    const QPointer<CVqQuickControl> self(this);
    if (m_pHandler && m_pHandler(this, event))
        return;
    if (self && m_owner)
        m_owner->ControlEvent(*this, event);
}

void CVqQuickControl::trigger()
{
    QMetaObject::invokeMethod(this, [this] { Send({}); }, Qt::QueuedConnection);
}

void CVqQuickControl::openDropDown(qreal x, qreal y)
{
    const SVqUiEvent event{SVqUiEvent::EKind::DropDown, QPointF(x, y)};
    QMetaObject::invokeMethod(this, [this, event] { Send(event); }, Qt::QueuedConnection);
}

void CVqQuickControl::openContextMenu(qreal x, qreal y)
{
    const SVqUiEvent event{SVqUiEvent::EKind::ContextMenu, QPointF(x, y)};
    QMetaObject::invokeMethod(this, [this, event] { Send(event); }, Qt::QueuedConnection);
}

// The item ---------------------------------------------------------------------------------------------

QQuickItem* CVqQuickControl::Item() const
{
    return m_item;
}

vq_uint64 CVqQuickControl::GetWindowHandle()
{
    return reinterpret_cast<vq_uint64>(m_item.data());
}

vq_uint64 CVqQuickControl::CreateUI(vq_uint64 parent)
{
    DestroyUI();
    m_item = new CVqQuickControlItem(*this);
    m_item->setParentItem(VqItemOf(parent));
    Q_EMIT itemChanged();
    return GetWindowHandle();
}

void CVqQuickControl::DestroyUI()
{
    if (!m_item)
        return;
    delete m_item;
    Q_EMIT itemChanged();
}

void CVqQuickControl::MarkToDeleteItself()
{
    deleteLater();
}

int CVqQuickControl::SetControlPos(const CVqRectBase<int>& rect)
{
    if (m_item) {
        m_item->setPosition(QPointF(rect.m_iLeft, rect.m_iTop));
        m_item->setSize(QSizeF(rect.m_iRight - rect.m_iLeft, rect.m_iBottom - rect.m_iTop));
    }
    return CVqAbstractControl::SetControlPos(rect);
}

// What the abstract control changes without a word -------------------------------------------------------

int CVqQuickControl::Load(CVqLiteVariantR& in)
{
    const int result = CVqAbstractControl::Load(in);
    Changed();
    return result;
}

int CVqQuickControl::Load(const CVqVariant& in)
{
    const int result = CVqAbstractControl::Load(in);
    Changed();
    return result;
}

int CVqQuickControl::Get(unsigned code, vq_int64 index, void* data)
{
    if (code != vq_control_state_count)
        return CVqAbstractControl::Get(code, index, data);
    if (!data)
        return g_failed;
    *static_cast<vq_uint32*>(data) = m_uiStateCount;
    return 0;
}

int CVqQuickControl::set_state_count(vq_uint32 count)
{
    if (count > MaxStates)
        return g_failed;
    for (vq_uint32 state = m_uiStateCount; state < count; ++state)
        m_pStates[state] = SVqControlState();
    assign(m_uiStateCount, count);
    return 0;
}

int CVqQuickControl::set_zoom(double zoom)
{
    if (!(zoom > 0)) // nor one that is no number
        return g_failed;
    assign(m_dZoom, zoom);
    return 0;
}

int CVqQuickControl::Set(unsigned code, vq_int64 index, void* data)
{
    const bool is_own
        = code == vq_control_state_count || code == vq_control_enlarge || code == vq_control_zoom;
    if (is_own && !data)
        return g_failed;
    switch (code) {
    case vq_control_state_count:
        return set_state_count(*static_cast<const vq_uint32*>(data));
    case vq_control_enlarge:
        assign(m_enlarged, *static_cast<const vq_int32*>(data) != 0);
        return 0;
    case vq_control_zoom:
        return set_zoom(*static_cast<const double*>(data));
    default:
        return set_abstract(code, index, data);
    }
}

int CVqQuickControl::set_abstract(unsigned code, vq_int64 index, void* data)
{
    const int result = CVqAbstractControl::Set(code, index, data);
    m_checkable = m_checkable || IsChecked();
    const bool is_told = code == vq_control_state || code == vq_control_text || code == vq_control_bitmap;
    if (result == 0 && !is_told)
        Changed();
    return result;
}

int CVqQuickControl::Command(unsigned code, vq_int64 index, void* data)
{
    const int result = CVqAbstractControl::Command(code, index, data);
    const bool is_told = code == vq_control_write_state;
    if (result == 0 && code != vq_control_read_state && !is_told)
        Changed();
    return result;
}

void CVqQuickControl::SetFlatStyle(bool flat)
{
    const vq_uint32 before = m_uiStyle;
    CVqAbstractControl::SetFlatStyle(flat);
    if (m_uiStyle != before)
        Changed();
}

int CVqQuickControl::SetTextAlign(unsigned align)
{
    const vq_uint32 before = m_uiStyle;
    const int result = CVqAbstractControl::SetTextAlign(align);
    if (m_uiStyle != before)
        Changed();
    return result;
}

int CVqQuickControl::GetControlSize(CVqSizeBase<int>& size, int value)
{
    size = NaturalSize();
    return CVqAbstractControl::GetControlSize(size, value);
}

int CVqQuickControl::SetControlSize(const CVqSizeBase<int>& size)
{
    assign(m_size, size);
    return 0;
}

void CVqQuickControl::SetDesriptionText(CVqStringW& text)
{
    CVqAbstractControl::SetDesriptionText(text);
    Changed();
}

int CVqQuickControl::SetOrientation(EOrientation orientation)
{
    const bool turned = orientation != m_eOrientation;
    const int result = CVqAbstractControl::SetOrientation(orientation);
    if (turned)
        Changed();
    return result;
}
