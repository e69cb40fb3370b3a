#include "AbstractGui/CVqAbstractControl.h"
#include "fuzz/StoredFormFuzz.h"
#include "system/CVqLiteVariantW.h"

// Bytes as the CBOR form of a control's record, as a tree and as a stream. Whatever a control made of it,
// what it then saves comes back the same.

namespace {

class Control : public CVqAbstractControl
{
public:
    bool HoldsTogether() const { return m_uiStateCount <= MaxStates && m_pStates; }
};

void require(bool holds)
{
    if (!holds)
        std::abort();
}

template <typename Container>
QByteArray cbor_of(const Container& container)
{
    QBuffer device;
    device.open(QIODevice::WriteOnly);
    require(VQ_WriteCbor(device, container) == EVqStorageResult::Ok);
    return device.data();
}

CVqVariant saved_as(Control& control, const CVqVariant&)
{
    CVqVariant tree;
    require(control.Save(tree) == 0);
    return tree;
}

CVqLiteVariantR saved_as(Control& control, const CVqLiteVariantR&)
{
    CVqLiteVariantW writer;
    require(control.Save(writer) == 0);
    CVqLiteVariantR stream;
    writer.Finalize(stream, 0);
    stream.CurrentLevelBegin();
    return stream;
}

/// What a control saves that was made of this.
template <typename Container>
Container passed_through(Container container)
{
    Control control;
    const int result = control.Load(container);
    require(result == 0 || result == -9);
    require(control.HoldsTogether());
    control.bitmap();
    control.label();
    return saved_as(control, container);
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
    // Without an image pool the first pass makes codes of images, and the second takes them away.
    const Container once = passed_through(passed_through(container));
    require(cbor_of(passed_through(once)) == cbor_of(once));
}

}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    check<CVqVariant>(bytes);
    check<CVqLiteVariantR>(bytes);
    return 0;
}
