#pragma once

#include "tests/support/RecordingControl.h"

/// Does what it is told and gives a result of its own all the same, so that it shows who passes a result on.
class RefusingControl final : public RecordingControl
{
public:
    static constexpr int Result = -5;

    using RecordingControl::RecordingControl;

    int Get(unsigned code, vq_int64 index, void* data) override
    {
        RecordingControl::Get(code, index, data);
        return Result;
    }

    int Set(unsigned code, vq_int64 index, void* data) override
    {
        RecordingControl::Set(code, index, data);
        return Result;
    }

    int Command(unsigned code, vq_int64 index, void* data) override
    {
        RecordingControl::Command(code, index, data);
        return Result;
    }

    int Enable(bool enable) override
    {
        RecordingControl::Enable(enable);
        return Result;
    }

    int SetTextAlign(unsigned align) override
    {
        RecordingControl::SetTextAlign(align);
        return Result;
    }

    int GetControlSize(CVqSizeBase<int>& size, int value) override
    {
        RecordingControl::GetControlSize(size, value);
        return Result;
    }

    int SetControlSize(const CVqSizeBase<int>& size) override
    {
        RecordingControl::SetControlSize(size);
        return Result;
    }
};
