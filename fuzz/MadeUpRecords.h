#pragma once

#include "system/CVqLiteVariantR.h"
#include "system/CVqLiteVariantW.h"
#include "system/CVqStringW.h"
#include "system/CVqVariant.h"

#include <cstddef>
#include <iterator>
#include <string>
#include <vector>

/// Numbers and texts cut off the front of a fuzzer's bytes; zeros when they are used up.
class ByteSource
{
public:
    ByteSource(const unsigned char* data, std::size_t size) : m_data(data), m_end(data + size) { }

    bool IsEmpty() const { return m_data == m_end; }
    unsigned Byte() { return IsEmpty() ? 0u : *m_data++; }
    unsigned Number()
    {
        unsigned number = 0;
        for (int i = 0; i < 4; ++i)
            number = number << 8 | Byte();
        return number;
    }

    template <class Rows>
    auto OneOf(const Rows& rows)
    {
        return rows[Byte() % std::size(rows)];
    }

private:
    const unsigned char* m_data;
    const unsigned char* m_end;
};

/// Puts fields into a stream.
class LiteRecords
{
public:
    using Container = CVqLiteVariantR;

    template <class Value>
    void Set(Value value, const vq_wchar* name)
    {
        m_writer.Set(value, name);
    }

    void Begin(const vq_wchar* name) { m_writer.LevelBegin(name); }
    void End() { m_writer.LevelEnd(); }

    Container Take()
    {
        Container container;
        m_writer.Finalize(container, 0);
        return container;
    }

private:
    CVqLiteVariantW m_writer;
};

/// Puts fields into a tree.
class TreeRecords
{
public:
    using Container = CVqVariant;

    TreeRecords() { m_open.push_back(&m_tree); }

    template <class Value>
    void Set(Value value, const vq_wchar* name)
    {
        m_open.back()->Append(CVqVariant(value, name));
    }

    void Begin(const vq_wchar* name)
    {
        CVqVariant level;
        level.SetName(name);
        m_open.push_back(&m_open.back()->Append(level));
    }

    void End()
    {
        if (m_open.size() > 1)
            m_open.pop_back();
    }

    Container Take() { return m_tree; }

private:
    CVqVariant m_tree;
    std::vector<CVqVariant*> m_open;
};

/// Fields that the bytes choose, mostly with names and values that mean something in a stored menu.
template <class Records>
typename Records::Container made_up_records(ByteSource bytes)
{
    static const vq_wchar* const lists[]
        = {VQ_TEXT(""),        VQ_TEXT("SubMenu"), VQ_TEXT("Root"), VQ_TEXT("LonelyAccels"),
           VQ_TEXT("CVqMenu"), VQ_TEXT("Id")};
    static const vq_wchar* const names[] = {
        VQ_TEXT("Removed"),        VQ_TEXT("Deleted"),       VQ_TEXT("Id"),        VQ_TEXT("Type"),
        VQ_TEXT("Status"),         VQ_TEXT("Text"),          VQ_TEXT("Command"),   VQ_TEXT("LineWidth"),
        VQ_TEXT("Col1"),           VQ_TEXT("Col2"),          VQ_TEXT("AccelKey0"), VQ_TEXT("AccelKey1"),
        VQ_TEXT("AccelKey2"),      VQ_TEXT("AccelKeyX"),     VQ_TEXT("SubMenu"),   VQ_TEXT("Unknown"),
        VQ_TEXT("EnaBmpFileName"), VQ_TEXT("EnaBmpResName"), VQ_TEXT("Root"),      VQ_TEXT("DisBmpFileName")};
    static const unsigned numbers[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 0xFFFFFFFF, 0x80000000, 4259858};
    static const vq_wchar* const texts[] = {VQ_TEXT(""),       VQ_TEXT("&File"), VQ_TEXT("&Open\aCtrl+O"),
                                            VQ_TEXT("&&a\tb"), VQ_TEXT("&"),     VQ_TEXT("NULL"),
                                            VQ_TEXT("a.png"),  VQ_TEXT("7"),     VQ_TEXT("\a")};

    Records records;
    while (!bytes.IsEmpty()) {
        const unsigned step = bytes.Byte() % 8;
        const vq_wchar* name = step < 2 ? bytes.OneOf(lists) : step > 2 ? bytes.OneOf(names) : nullptr;
        if (step < 2)
            records.Begin(name);
        else if (step == 2)
            records.End();
        else if (step == 3)
            records.Set(bytes.OneOf(texts), name);
        else if (step == 4)
            records.Set(bytes.Byte() % 2 == 1, name);
        else if (step == 5)
            records.Set(static_cast<int>(bytes.Number()), name);
        else
            records.Set(bytes.OneOf(numbers), name);
    }
    return records.Take();
}
