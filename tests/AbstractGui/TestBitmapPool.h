#pragma once

#include "AbstractGui/CVqAbstractBitmapPool.h"
#include "system/CVqStringA.h"
#include "system/CVqStringW.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

/// The image pool of a test program: gives what a test tells it and writes down each call as a line of text.
///
/// A pool cannot be taken back once it is registered, so there is one for the life of the process; Fresh()
/// gives it without anything that an earlier test left.
///
///     TestBitmapPool& pool = TestBitmapPool::Fresh();
///     pool.SetModule(VQ_TEXT("/app/app.so"));
///     ...
///     EXPECT_EQ(pool.TakeCalls(), Lines{"AddImage /app/a.png, , null = 100"});
class TestBitmapPool final : public CVqAbstractBitmapPool
{
public:
    using Lines = std::vector<std::string>;

    static TestBitmapPool& Fresh()
    {
        static TestBitmapPool pool;
        instance(&pool);
        pool.m_sources.clear();
        pool.m_module = VQ_TEXT("");
        pool.m_debug_suffix = VQ_TEXT("");
        pool.m_next_index = 100;
        pool.m_calls.clear();
        return pool;
    }

    void SetModule(const CVqStringW& name) { m_module = name; }

    void SetSource(vq_uint32 index, const CVqStringW& file, const CVqStringW& resource)
    {
        m_sources[index] = {file, resource};
    }

    /// ReplaceDebug appends this.
    void SetDebugSuffix(const CVqStringW& suffix) { m_debug_suffix = suffix; }

    /// The index that the next image gets; counts up from 100. A negative one is a code and stays.
    void SetNextIndex(int index) { m_next_index = index; }

    Lines TakeCalls() { return std::exchange(m_calls, {}); }

    int imageSource(vq_uint32 index, CVqStringW& file, CVqStringW& resource) override
    {
        const auto found = m_sources.find(index);
        if (found == m_sources.end())
            return -13;
        file = found->second.first;
        resource = found->second.second;
        return 0;
    }

    int defaultModuleFileName(vq_wchar* buffer, int size) override
    {
        int length = 0;
        for (; length < size && m_module.GetAt(length); ++length)
            buffer[length] = m_module.GetAt(length);
        if (length < size)
            buffer[length] = 0;
        return 0;
    }

    int addImage(QPixmap*, const vq_wchar* name) override { return added("AddImage pixmap, " + shown(name)); }
    int addImage(const vq_wchar* file) override { return added("AddImage " + shown(file)); }
    int addImage(const vq_wchar* file, const vq_wchar* module, const vq_wchar* resource) override
    {
        return added("AddImage " + shown(file) + ", " + shown(module) + ", " + shown(resource));
    }

    int addImageSVG(const vq_wchar*, const char*) override { return 0; }
    int replaceImageSVG(const vq_wchar*, const char*) override { return 0; }
    vq_uint64 createBitmapFromSVG(const char*, vq_uint32, vq_uint32, bool, vq_uint32) override { return 0; }
    void imageSize(vq_uint32, vq_uint32&, vq_uint32&) override { }
    int getImage(const vq_wchar*) override { return -1; }

    int replaceDebug(CVqStringW& name) override
    {
        m_calls.push_back("ReplaceDebug " + shown(name));
        name += m_debug_suffix;
        return 0;
    }

private:
    TestBitmapPool() = default;

    // Units outside ASCII as \uD800.
    static std::string shown(const vq_wchar* text)
    {
        std::string out = text ? "" : "null";
        for (const vq_wchar unit : VqView(text))
            out += unit < 0x80 ? std::string(1, static_cast<char>(unit))
                               : "\\u" + QString::number(unit, 16).toUpper().toStdString();
        return out;
    }

    int added(std::string call)
    {
        const int index = m_next_index;
        if (m_next_index >= 0)
            ++m_next_index;
        m_calls.push_back(std::move(call) + " = " + std::to_string(index));
        return index;
    }

    std::map<vq_uint32, std::pair<CVqStringW, CVqStringW>> m_sources;
    CVqStringW m_module;
    CVqStringW m_debug_suffix;
    int m_next_index = 100;
    Lines m_calls;
};
