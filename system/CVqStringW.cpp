#include "system/CVqStringW.h"

#include "system/VqQtText.h"

#include <QChar>

#include <algorithm>
#include <charconv>

namespace {

std::size_t position_in(const std::basic_string<vq_wchar>& text, int pos)
{
    return pos <= 0 ? 0 : std::min(static_cast<std::size_t>(pos), text.size());
}

/// A negative count means "up to the end".
std::size_t count_of(int count)
{
    return count < 0 ? std::basic_string<vq_wchar>::npos : static_cast<std::size_t>(count);
}

template <typename Unit>
std::basic_string_view<Unit> first_units(const Unit* text, int length)
{
    const auto whole = text ? std::basic_string_view<Unit>(text) : std::basic_string_view<Unit>();
    return length > 0 ? whole.substr(0, static_cast<std::size_t>(length)) : whole;
}

std::basic_string<vq_wchar> widened(std::string_view text)
{
    const QString wide = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    return std::basic_string<vq_wchar>(from_qview(wide));
}

vq_wchar upper_unit(vq_wchar unit)
{
    const char32_t upper = QChar::toUpper(static_cast<char32_t>(unit));
    return upper <= 0xFFFF ? static_cast<vq_wchar>(upper) : unit;
}

}

CVqStringW::CVqStringW(const vq_wchar* text, int length) : m_strText(first_units(text, length)) { }

CVqStringW::CVqStringW(const char* text, int length) : m_strText(widened(first_units(text, length))) { }

CVqStringW::CVqStringW(const string_type& text) : m_strText(text) { }

CVqStringW CVqStringW::FromQString(const QString& text)
{
    CVqStringW result;
    result.m_strText = from_qview(text);
    return result;
}

QString CVqStringW::ToQString() const
{
    return to_qview(m_strText).toString();
}

CVqStringW& CVqStringW::operator=(const vq_wchar* text)
{
    Assign(VqView(text));
    return *this;
}

CVqStringW& CVqStringW::operator=(const string_type& text)
{
    m_strText = text;
    return *this;
}

CVqStringW& CVqStringW::Assign(view_type text)
{
    m_strText.assign(text);
    return *this;
}

vq_wchar CVqStringW::GetAt(int pos) const
{
    return pos >= 0 && pos < GetLength() ? m_strText[static_cast<std::size_t>(pos)] : vq_wchar(0);
}

int CVqStringW::Find(vq_wchar ch, int start) const
{
    const auto pos = m_strText.find(ch, position_in(m_strText, start));
    return pos == string_type::npos ? -1 : static_cast<int>(pos);
}

CVqStringW CVqStringW::Left(int count) const
{
    return Mid(0, std::max(count, 0));
}

CVqStringW CVqStringW::Mid(int start, int count) const
{
    return CVqStringW(m_strText.substr(position_in(m_strText, start), count_of(count)));
}

CVqStringW& CVqStringW::Replace(const vq_wchar* old_text, const vq_wchar* new_text)
{
    const view_type wanted = VqView(old_text);
    if (wanted.empty())
        return *this;
    string_type result;
    std::size_t from = 0;
    for (auto at = m_strText.find(wanted); at != string_type::npos; at = m_strText.find(wanted, from)) {
        result.append(m_strText, from, at - from).append(VqView(new_text));
        from = at + wanted.size();
    }
    result.append(m_strText, from, string_type::npos);
    m_strText = std::move(result);
    return *this;
}

CVqStringW& CVqStringW::Insert(const vq_wchar* text, int pos, int count)
{
    const string_type units(VqView(text).substr(0, count_of(count)));
    m_strText.insert(position_in(m_strText, pos), units);
    return *this;
}

CVqStringW& CVqStringW::Delete(int pos, int count)
{
    m_strText.erase(position_in(m_strText, pos), count_of(count));
    return *this;
}

CVqStringW& CVqStringW::TruncateAt(int pos)
{
    m_strText.resize(position_in(m_strText, pos));
    return *this;
}

CVqStringW& CVqStringW::MakeUpper()
{
    std::transform(m_strText.begin(), m_strText.end(), m_strText.begin(), upper_unit);
    return *this;
}

CVqStringW& CVqStringW::AddString(const char* text)
{
    m_strText += widened(first_units(text, 0));
    return *this;
}

CVqStringW& CVqStringW::AddString(const vq_wchar* text)
{
    m_strText += VqView(text);
    return *this;
}

CVqStringW& CVqStringW::AddString(const CVqStringW& text)
{
    m_strText += text.m_strText;
    return *this;
}

CVqStringW& CVqStringW::AddInt(int value)
{
    char digits[16];
    const auto end = std::to_chars(std::begin(digits), std::end(digits), value).ptr;
    m_strText.append(std::begin(digits), end);
    return *this;
}

CVqStringW& CVqStringW::operator+=(const CVqStringW& text)
{
    return AddString(text);
}

CVqStringW& CVqStringW::operator+=(const vq_wchar* text)
{
    return AddString(text);
}

CVqStringW& CVqStringW::operator+=(vq_wchar unit)
{
    m_strText += unit;
    return *this;
}

CVqStringW operator+(const CVqStringW& left, const CVqStringW& right)
{
    return CVqStringW(left) += right;
}

CVqStringW operator+(const CVqStringW& left, const vq_wchar* right)
{
    return CVqStringW(left) += right;
}

bool operator==(const CVqStringW& left, const CVqStringW& right)
{
    return left.View() == right.View();
}

bool operator==(const CVqStringW& left, const vq_wchar* right)
{
    return left.View() == VqView(right);
}

bool operator==(const vq_wchar* left, const CVqStringW& right)
{
    return right == left;
}

bool operator!=(const CVqStringW& left, const CVqStringW& right)
{
    return !(left == right);
}

bool operator!=(const CVqStringW& left, const vq_wchar* right)
{
    return !(left == right);
}

bool operator!=(const vq_wchar* left, const CVqStringW& right)
{
    return !(right == left);
}

bool operator<(const CVqStringW& left, const CVqStringW& right)
{
    return left.View() < right.View();
}
