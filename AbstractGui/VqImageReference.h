#pragma once

#include "system/CVqStringW.h"
#include "system/VqText.h"
#include "system/VqTypes.h"

#include <string_view>

/// How a stored menu names an image: a file, and a resource in it or an empty text.
struct SVqImageReference
{
    CVqStringW file;
    CVqStringW resource;
};

/// The source of an image, as the lightweight form stores it. When its folder is that of the pool's default
/// module, or below, the way from there to the file is put directly behind the file name, without a
/// separator: "/app/img/a.png" beside "/app/app.so" is stored as "/app/img/a.pngimga.png". Readers of stored
/// menus depend on it (held by the test FileBelowTheModuleIsFollowedByTheWayToIt).
///
/// A file name that the file system refuses is stored as it is.
SVqImageReference VqImageReferenceFromModule(vq_uint32 index);

/// The source of an image, as the tree form stores it: file name and extension only.
SVqImageReference VqImageReferenceByName(vq_uint32 index);

/// Hands a stored image to the pool and returns what AddImage() gives. A bare file name, unless it is "NULL",
/// is put directly behind the folder of the default module, without a separator, and passed through
/// ReplaceDebug(): "a.png" beside "/app/app.so" is "/appa.png" (held by the test
/// BareNameFollowsTheModulesFolderDirectly).
///
/// A file name that the file system refuses is handed on as it is.
int VqAddReferencedImage(const SVqImageReference& image);

/// File name and extension: what stands behind the drive (a colon in second position) and the last slash or
/// backslash, on every platform.
std::basic_string_view<vq_wchar> VqFileNameAndExtension(std::basic_string_view<vq_wchar> path);
