#pragma once

class CVqLiteVariantR;
struct SVqLiteData;

/// The way of writers and stored forms to the data behind a reader. Not installed.
struct SVqLiteAccess
{
    /// Makes the reader stand on the first entry of `data`.
    static void start(CVqLiteVariantR& reader, SVqLiteData&& data);

    /// Null for a reader that was never given anything.
    static const SVqLiteData* data_of(const CVqLiteVariantR& reader);
};
