#pragma once

#include "tests/AbstractGui/TestControl.h"

/// What tests of the codes start from: three filled states, the last of them current.
class FilledControl
{
protected:
    FilledControl()
    {
        m_control.FillStates(3);
        m_control.m_iState = 2;
        m_control.m_uiFlags = TestControl::Checked | TestControl::Disabled;
        m_control.m_uiValue = 77;
        m_control.m_strName = VQ_TEXT("name");
    }

    TestControl m_control;
};
