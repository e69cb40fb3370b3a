#pragma once

#include "arbor_qml_support_export.h"

/// What modules that compute with OpenCL hand to one another. The library itself calls nothing of OpenCL.
class ARBOR_QML_SUPPORT_EXPORT CVqOpenCL_API
{
public:
    /// Base of what a ptrWrap holds.
    class ARBOR_QML_SUPPORT_EXPORT IVqObject
    {
    public:
        virtual ~IVqObject();
    };

    /// Holds one pointer and deletes its object at the end of its life.
    ///
    /// Copies hold the same pointer, and assignment drops the pointer that was held without deleting its
    /// object. So of all that hold one object, all but one have to be set to null before they die:
    ///
    ///     to = from;
    ///     from.m_pObject = nullptr;
    struct ARBOR_QML_SUPPORT_EXPORT ptrWrap
    {
        /// Takes `object`, which may be null.
        explicit ptrWrap(IVqObject* object = nullptr);
        ptrWrap(const ptrWrap& other);
        ptrWrap& operator=(const ptrWrap& other);
        ~ptrWrap();

        IVqObject* m_pObject;
    };
};
