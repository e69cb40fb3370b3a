#include "AbstractGui/CVqAbstractButtonToolbar.h"
#include "AbstractGui/CVqAbstractControl.h"
#include "AbstractGui/VqControlCodes.h"
#include "fuzz/StoredFormFuzz.h"

// Bytes as the CBOR form of a toolbar, as a tree and as a stream. Whatever a toolbar made of it, what it then
// saves comes back the same.

namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

class Separator final : public CVqAbstractControl
{
public:
    int Get(unsigned code, vq_int64 index, void* data) override
    {
        if (code != vq_control_separator)
            return CVqAbstractControl::Get(code, index, data);
        *static_cast<int*>(data) = 1;
        return 0;
    }
};

class Bar final : public CVqAbstractButtonToolbar
{
public:
    Bar()
    {
        m_pToolbar = new CVqAbstractToolbar;
        m_pToolbar->CreateUI(0, EToolbarType::Fixed, VQ_TEXT("bar"));
    }
    Bar(const Bar&) = delete;
    Bar& operator=(const Bar&) = delete;
    ~Bar() override { m_pToolbar->DestroyUI(); }

    IVqUIcontrol* CreateControlButton(bool) override { return new CVqAbstractControl; }
    IVqUIcontrol* CreateSeparator() override { return new Separator; }

    int Length()
    {
        int length = 0;
        for (CVqList::CVqNode* node = m_pToolbar->GetFirstNode(); node; ++length)
            require(m_pToolbar->GetNextControl(node) != nullptr);
        return length;
    }
};

int load(Bar& bar, CVqVariant& in)
{
    CVqStringW name;
    return bar.Load(in, &name);
}

int load(Bar& bar, CVqLiteVariantR& in)
{
    return bar.Load(in);
}

void save(Bar& bar, CVqVariant& out)
{
    bar.Save(out, VQ_TEXT("bar"));
}

void save(Bar& bar, CVqLiteVariantR& out)
{
    bar.Save(out);
}

template <typename Container>
QByteArray cbor_of(const Container& container)
{
    QBuffer device;
    device.open(QIODevice::WriteOnly);
    require(VQ_WriteCbor(device, container) == EVqStorageResult::Ok);
    return device.data();
}

/// What a toolbar saves that was made of this; `length` gets the number of its controls.
template <typename Container>
Container passed_through(Container container, int& length)
{
    Bar bar;
    const int result = load(bar, container);
    require(result == 0 || result == -9);
    length = bar.Length();
    require(bar.GetButtonsCount() == length);
    require(bar.UpdateSeparators(false) == 0);
    Container out;
    save(bar, out);
    return out;
}

bool are_equal(CVqVariant& left, CVqVariant& right)
{
    return CVqAbstractButtonToolbar::IsEqual(left, right);
}

bool are_equal(const CVqLiteVariantR&, const CVqLiteVariantR&)
{
    return true;
}

template <typename Container>
void check(const QByteArray& bytes)
{
    QBuffer device;
    device.setData(bytes);
    device.open(QIODevice::ReadOnly);
    Container container;
    if (VQ_ReadCbor(device, container) != EVqStorageResult::Ok)
        return;
    // Without an image pool the first pass makes codes of images, and the second takes them away. The first
    // may also name a button so that the second makes a separator of it.
    int length = 0;
    Container once = passed_through(passed_through(container, length), length);
    Container twice = passed_through(once, length);
    const bool names_shift = length > 100; // in a tree
    require(names_shift || (are_equal(once, twice) && cbor_of(once) == cbor_of(twice)));
}

}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    check<CVqVariant>(bytes);
    check<CVqLiteVariantR>(bytes);
    return 0;
}
