#pragma once

#include "arbor_system_export.h"
#include "system/CVqStringW.h"
#include "system/VqTypes.h"

#include <memory>
#include <string_view>
#include <vector>

class CVqLiteIndex;
struct SVqLiteData;

/// A cursor over what a CVqLiteVariantW wrote or a device gave.
///
/// The reader stands in a level, at first in the outermost one, and on one of its entries: values and
/// sublevels in the order in which they were written. Entering a level stands on its first entry; leaving it
/// stands where the outer level stood before. Named operations look at the whole level and neither need nor
/// move the cursor; of a repeated name they see the first. They are fastest when names are asked for in their
/// written order; in any other order a look-up costs no more than the logarithm of the level's size on
/// average. Copies are cheap and have cursors of their own. Calls that don't fit together fail without
/// harm. Null names and texts read as empty. A look-up remembers its place, so each thread needs a copy of
/// its own; copies may be used at the same time.
///
///     for (; reader.IsNextValue(); reader.NextValue()) {
///         if (reader.CurrentLevelBegin() != 0)
///             continue;
///         const int id = reader.Get(VQ_TEXT("Id"), 0);
///         reader.LevelEnd();
///     }
class ARBOR_SYSTEM_EXPORT CVqLiteVariantR
{
public:
    /// Without any entry.
    CVqLiteVariantR();
    CVqLiteVariantR(const CVqLiteVariantR& other);
    CVqLiteVariantR(CVqLiteVariantR&& other) noexcept;
    ~CVqLiteVariantR();
    CVqLiteVariantR& operator=(const CVqLiteVariantR& other);
    CVqLiteVariantR& operator=(CVqLiteVariantR&& other) noexcept;

    // Walking ----------------------------------------------------------------------------------------

    /// True while the cursor stands on an entry of the current level.
    bool IsNextValue() const;

    /// Moves on to the next entry, or behind the last one. 0; -9 when the cursor stood behind the last one.
    int NextValue();

    /// Enters the sublevel of that name. 0; -13, with the cursor where it was, when there is none or the
    /// first entry of that name is a value. `count`, if not null, gets the number of entries of the level, or
    /// 0.
    int LevelBegin(const vq_wchar* name, int* count = nullptr);

    /// Enters the sublevel under the cursor; results as above.
    int CurrentLevelBegin(int* count = nullptr);

    /// Leaves the level entered last. 0; -9 in the outermost level.
    int LevelEnd();

    /// Copies the name of the entry under the cursor into `buffer` of `size` units, cut to fit and
    /// terminated. 0; -9 behind the last entry, with an empty text. Nothing is written when `buffer` is null
    /// or `size` is not positive (-9).
    int GetCurrentName(vq_wchar* buffer, int size) const;

    // The entry under the cursor: as the named ones, and nothing behind the last one ------------------

    /// Valid as long as this reader is neither assigned to nor destroyed.
    std::basic_string_view<vq_wchar> CurrentName() const;

    bool IsCurrentValueSet() const;
    int GetCurrent(int default_value) const;
    bool GetCurrent(bool default_value) const;
    CVqStringW& GetCurrent(CVqStringW& out, const vq_wchar* default_value) const;

    // Named entries of the current level -------------------------------------------------------------

    /// True for a value and for a sublevel of that name.
    bool IsValueSet(const vq_wchar* name) const;

    /// The value, converted as CVqVariant does; `default_value` when there is none or it is no number.
    int Get(const vq_wchar* name, int default_value) const;
    bool Get(const vq_wchar* name, bool default_value) const;

    /// Stores the text, or a number in decimal digits, or else `default_value`, in `out` and returns `out`.
    CVqStringW& GetCVqStringW(CVqStringW& out, const vq_wchar* name, const vq_wchar* default_value) const;

private:
    friend struct SVqLiteAccess;

    struct SPlace
    {
        vq_uint32 m_uiLevel;      // index of the level's node
        vq_uint32 m_uiCursor;     // index of the entry; the level's end behind the last one
        vq_uint32 m_uiHit;        // where the last look-up by name succeeded
        vq_uint64 m_uiWalked = 0; // entries that look-ups walked over
        std::shared_ptr<const CVqLiteIndex> m_pIndex{}; // once they have walked too far
    };

    ARBOR_SYSTEM_NO_EXPORT void start(std::shared_ptr<const SVqLiteData> data);
    ARBOR_SYSTEM_NO_EXPORT vq_uint32 find(const vq_wchar* name) const;
    ARBOR_SYSTEM_NO_EXPORT vq_uint32 search(SPlace& place, vq_uint32 name) const;
    ARBOR_SYSTEM_NO_EXPORT vq_uint32 walk(SPlace& place, vq_uint32 name) const;
    ARBOR_SYSTEM_NO_EXPORT vq_uint32 current() const;
    ARBOR_SYSTEM_NO_EXPORT bool is_set_at(vq_uint32 index) const;
    ARBOR_SYSTEM_NO_EXPORT int number_at(vq_uint32 index, int default_value) const;
    ARBOR_SYSTEM_NO_EXPORT CVqStringW& text_at(vq_uint32 index, CVqStringW& out,
                                               const vq_wchar* default_value) const;
    ARBOR_SYSTEM_NO_EXPORT int enter(vq_uint32 index, int* count);

    std::shared_ptr<const SVqLiteData> m_pData; // null: no entries, and no places
    mutable std::vector<SPlace> m_places;       // the levels that were entered, outermost first
};
