#pragma once

class CVqVariant;
struct SVqLiteData;

// Between a tree and the flat data that the stored forms write and read. Not installed.

/// The tree as the one entry of the outermost level, which is the data's root.
SVqLiteData flatten(const CVqVariant& tree);

/// The tree below the data's root.
CVqVariant unflatten(const SVqLiteData& data);
