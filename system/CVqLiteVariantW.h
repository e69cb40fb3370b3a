#pragma once

#include "arbor_system_export.h"
#include "system/VqText.h"

#include <memory>

class CVqLiteBuilder;
class CVqLiteVariantR;

/// Writes named values and levels one after the other, then hands them to a CVqLiteVariantR.
///
/// The writer stands in a level, at first in the outermost one. Names may be empty (the elements of a list)
/// and may repeat. Names and texts are copied; null reads as empty.
///
///     CVqLiteVariantW writer;
///     writer.LevelBegin(VQ_TEXT("Root"));
///     writer.Set(5u, VQ_TEXT("Id"));
///     writer.LevelEnd();
///     writer.Finalize(reader, 0);
class ARBOR_SYSTEM_EXPORT CVqLiteVariantW
{
public:
    CVqLiteVariantW();
    virtual ~CVqLiteVariantW();

    CVqLiteVariantW(const CVqLiteVariantW&) = delete;
    CVqLiteVariantW& operator=(const CVqLiteVariantW&) = delete;

    /// Opens a sublevel behind what was written so far. 0; -3, with nothing opened, when the data leaves 32
    /// bits.
    int LevelBegin(const vq_wchar* name);

    /// Closes the level opened last. 0; -9 when only the outermost one is open.
    int LevelEnd();

    /// Writes a value behind what was written so far; results as LevelBegin().
    int Set(const vq_wchar* value, const vq_wchar* name);
    int Set(unsigned int value, const vq_wchar* name);
    int Set(int value, const vq_wchar* name);
    int Set(bool value, const vq_wchar* name);

    /// Other pointers would turn into a bool.
    template <typename T>
    int Set(const T* value, const vq_wchar* name) = delete;

    /// Closes what is open and makes `reader` stand on the first entry, whatever it held. The writer is empty
    /// then and can be used again. `options` must be 0; nothing else has a meaning. Returns 0.
    int Finalize(CVqLiteVariantR& reader, int options);

private:
    std::unique_ptr<CVqLiteBuilder> m_pBuilder;
};
