#include "AbstractGui/IVqMenuBase.h"

IVqMenuBase::~IVqMenuBase() = default;

void IVqMenuBase::Reserved2() { }

void IVqMenuBase::Reserved4() { }

void IVqMenuBase::Reserved5() { }

void IVqMenuBase::Reserved10() { }

void IVqMenuBase::Reserved12() { }

void IVqMenuBase::Reserved13() { }

void IVqMenuBase::Reserved14() { }
