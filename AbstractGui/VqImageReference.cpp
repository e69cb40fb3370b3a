#include "AbstractGui/VqImageReference.h"

#include "AbstractGui/CVqAbstractBitmapPool.h"

#include <filesystem>
#include <optional>
#include <string>
#include <system_error>

namespace {

using Path = std::filesystem::path;
using Text = std::basic_string<vq_wchar>;
using View = std::basic_string_view<vq_wchar>;

// All below throw what the file system refuses: names that are too long, loops of links, lone surrogates.
using Refused = std::system_error;

Path canonical(const vq_wchar* name)
{
    return std::filesystem::weakly_canonical(Path(VqView(name)));
}

Path folder_of_module()
{
    constexpr int size = 259;
    vq_wchar name[size + 1] = {}; // terminated, whatever the pool does
    CVqAbstractBitmapPool::GetDefaultModuleFileName(name, size);
    name[size] = 0;
    return canonical(name).parent_path();
}

SVqImageReference source_of(vq_uint32 index)
{
    SVqImageReference source;
    CVqAbstractBitmapPool::GetImageSource(index, source.file, source.resource);
    return source;
}

// The way from the module's folder to a file in it or below; empty when the file is elsewhere.
Text way_from_module(const CVqStringW& file)
{
    const Path folder = folder_of_module();
    const Path path = canonical(file);
    const Path way = path.parent_path().lexically_relative(folder);
    if (way.empty() || way.string().find("..") != std::string::npos)
        return {};
    return way.string<vq_wchar>() + path.filename().string<vq_wchar>();
}

// Nothing for a name that has a root or a folder.
std::optional<CVqStringW> behind_folder_of_module(const CVqStringW& name)
{
    const Path path = canonical(name);
    const Path folder = folder_of_module();
    if (path.has_root_path() || path.has_parent_path())
        return {};
    return CVqStringW(folder.string<vq_wchar>() + path.string<vq_wchar>());
}

CVqStringW file_of(const CVqStringW& name)
{
    std::optional<CVqStringW> file;
    try {
        if (name != VQ_TEXT("NULL"))
            file = behind_folder_of_module(name);
    } catch (const Refused&) {
        return name;
    }
    if (!file)
        return name;
    CVqAbstractBitmapPool::ReplaceDebug(*file);
    return *std::move(file);
}

}

SVqImageReference VqImageReferenceFromModule(vq_uint32 index)
{
    SVqImageReference image = source_of(index);
    try {
        if (!image.file.IsEmpty())
            image.file += CVqStringW(way_from_module(image.file));
    } catch (const Refused&) {
        return image;
    }
    return image;
}

SVqImageReference VqImageReferenceByName(vq_uint32 index)
{
    SVqImageReference image = source_of(index);
    image.file = Text(VqFileNameAndExtension(image.file.View()));
    return image;
}

int VqAddReferencedImage(const SVqImageReference& image)
{
    const CVqStringW file = file_of(image.file);
    return CVqAbstractBitmapPool::AddImage(file, image.resource, nullptr);
}

std::basic_string_view<vq_wchar> VqFileNameAndExtension(std::basic_string_view<vq_wchar> path)
{
    if (path.size() >= 2 && path[1] == VQ_TEXT(':'))
        path.remove_prefix(2);
    return path.substr(path.find_last_of(VQ_TEXT("/\\")) + 1);
}
