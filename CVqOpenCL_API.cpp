#include "CVqOpenCL_API.h"

CVqOpenCL_API::IVqObject::~IVqObject() = default;

CVqOpenCL_API::ptrWrap::ptrWrap(IVqObject* object) : m_pObject(object) { }

CVqOpenCL_API::ptrWrap::ptrWrap(const ptrWrap& other) = default;
CVqOpenCL_API::ptrWrap& CVqOpenCL_API::ptrWrap::operator=(const ptrWrap& other) = default;

CVqOpenCL_API::ptrWrap::~ptrWrap()
{
    delete m_pObject;
}
