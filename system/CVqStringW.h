#pragma once

#include "arbor_system_export.h"
#include "system/VqText.h"

#include <string>
#include <string_view>
#include <utility>

class QString;

/// A text of 16-bit units with value semantics.
///
/// Every object has a buffer of its own, also when it is empty: copies are deep, and the addresses of two
/// texts always differ. Positions and lengths count units from 0. An argument outside the text is moved to
/// its nearest end, a null pointer reads as the empty text, and every argument may point into the text that
/// is changed.
///
///     CVqStringW label(VQ_TEXT("&Open"));
///     label.AppendFormat(VQ_TEXT(" (%d of %d)"), 2, 7);
class ARBOR_SYSTEM_EXPORT CVqStringW
{
public:
    using string_type = std::basic_string<vq_wchar>;
    using view_type = std::basic_string_view<vq_wchar>;

    CVqStringW() = default;
    CVqStringW(const CVqStringW& other) = default;
    CVqStringW(CVqStringW&& other) noexcept = default;
    ~CVqStringW() = default;

    /// Takes at most `length` units up to the terminator; a `length` of 0 or less takes the whole text.
    CVqStringW(const vq_wchar* text, int length = 0);

    /// Reads `text` as UTF-8. `length` counts bytes, with the rule above.
    CVqStringW(const char* text, int length = 0);

    /// Copies all units, zeros among them.
    CVqStringW(const string_type& text);
    CVqStringW(string_type&& text) noexcept : m_strText(std::move(text)) { }

    static CVqStringW FromQString(const QString& text);
    QString ToQString() const;

    CVqStringW& operator=(const CVqStringW& other) = default;
    CVqStringW& operator=(CVqStringW&& other) noexcept = default;
    CVqStringW& operator=(const vq_wchar* text);
    CVqStringW& operator=(const string_type& text);

    /// Replaces the content by all units of `text`, zeros among them.
    CVqStringW& Assign(view_type text);

    // Reading ----------------------------------------------------------------------------------------

    /// Zero-terminated, never null, valid until the next change.
    const vq_wchar* GetString() const { return m_strText.c_str(); }
    operator const vq_wchar*() const { return m_strText.c_str(); }

    /// Valid until the next change.
    view_type View() const { return m_strText; }

    bool IsEmpty() const { return m_strText.empty(); }
    int GetLength() const { return static_cast<int>(m_strText.size()); }

    /// The unit at `pos`; 0 at the length and everywhere outside the text.
    vq_wchar GetAt(int pos) const;

    /// Position of the first `ch` at or after `start`, or -1.
    int Find(vq_wchar ch, int start = 0) const;

    CVqStringW Left(int count) const;

    /// `count` units from `start` on; a negative `count` takes all up to the end.
    CVqStringW Mid(int start, int count = -1) const;

    // Changing: each returns the string itself -------------------------------------------------------

    /// Replaces every occurrence of `old_text`, from the front, without looking at what it put in. An empty
    /// `old_text` occurs nowhere.
    CVqStringW& Replace(const vq_wchar* old_text, const vq_wchar* new_text);

    /// Inserts the first `count` units of `text`; a negative `count` inserts all of it.
    CVqStringW& Insert(const vq_wchar* text, int pos, int count = -1);

    /// Removes `count` units; a negative `count` removes all up to the end.
    CVqStringW& Delete(int pos, int count = 1);

    CVqStringW& TruncateAt(int pos);

    /// Upper-cases each unit by itself, whatever the locale. The length never changes, so a position found in
    /// the result holds in the source: a unit whose upper case needs more units stays, as do surrogates.
    CVqStringW& MakeUpper();

    CVqStringW& AddString(const char* text);
    CVqStringW& AddString(const vq_wchar* text);
    CVqStringW& AddString(const CVqStringW& text);

    /// Appends decimal digits, with a minus in front of a negative value.
    CVqStringW& AddInt(int value);

    /// Replaces the text by a printf-style one. `%s` takes a `const vq_wchar*` (null is the empty text), `%d
    /// %i %u %x %X %o` an int, `%c` one unit, `%f %e %g` (and capitals) a double, `%%` a percent sign. The
    /// flags `- 0 +` and blank, `#` with `%x %X %o`, width and precision work as in C, the last two also as
    /// `*`; `l`, `ll` and `I64` widen integers. A precision cuts a `%s` to that many units. The decimal point
    /// is a point in every locale. What is no conversion is copied as it stands and takes no argument.
    /// Arguments may point into this string. Widths and precisions end at 65,536.
    CVqStringW& Format(const vq_wchar* format, ...);

    /// Appends what Format() would store.
    CVqStringW& AppendFormat(const vq_wchar* format, ...);

    CVqStringW& operator+=(const CVqStringW& text);
    CVqStringW& operator+=(const vq_wchar* text);
    CVqStringW& operator+=(vq_wchar unit);

private:
    string_type m_strText;
};

ARBOR_SYSTEM_EXPORT CVqStringW operator+(const CVqStringW& left, const CVqStringW& right);
ARBOR_SYSTEM_EXPORT CVqStringW operator+(const CVqStringW& left, const vq_wchar* right);

/// Equality of all units; nothing is folded.
ARBOR_SYSTEM_EXPORT bool operator==(const CVqStringW& left, const CVqStringW& right);
ARBOR_SYSTEM_EXPORT bool operator==(const CVqStringW& left, const vq_wchar* right);
ARBOR_SYSTEM_EXPORT bool operator==(const vq_wchar* left, const CVqStringW& right);
ARBOR_SYSTEM_EXPORT bool operator!=(const CVqStringW& left, const CVqStringW& right);
ARBOR_SYSTEM_EXPORT bool operator!=(const CVqStringW& left, const vq_wchar* right);
ARBOR_SYSTEM_EXPORT bool operator!=(const vq_wchar* left, const CVqStringW& right);

/// Order by code units.
ARBOR_SYSTEM_EXPORT bool operator<(const CVqStringW& left, const CVqStringW& right);
